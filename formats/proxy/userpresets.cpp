#include "formats/proxy/userpresets_p.h"

#include "formats/models/presetfields_p.h"

namespace {

// The values are keyed by role name.
void applyToFields(FormatDetailModelData &preset, const QVariantMap &values)
{
    using Preset = FormatDetailModelData;
    constexpr PresetFields::Text members[] = {
        &Preset::title,
        &Preset::videoEncoder,
        &Preset::videoFrameRate,
        &Preset::videoResolution,
        &Preset::videoBitrateLow,
        &Preset::videoBitrateMid,
        &Preset::videoBitrateHigh,
        &Preset::audioEncoder,
        &Preset::audioSampleRate,
        &Preset::audioChannel,
        &Preset::audioBitrate,
    };
    for (const PresetFields::Text member : members) {
        const char *name = PresetFields::of(member).roleName;
        preset.*member = values.value(QLatin1String(name)).toString();
    }
}

void applyToConverterSettings(QVariantMap &outPutNode, const QVariantMap &values)
{
    const auto text = [&values](const QString &key) { return values.value(key).toString(); };
    const auto number = [&values](const QString &key) { return values.value(key).toInt(); };

    const QString videoParam = QStringLiteral("videoParam");
    QVariantMap video = outPutNode.value(videoParam).toMap();
    video.insert(QStringLiteral("bitrateKbps"), number(QStringLiteral("videoBitrateMid")));
    video.insert(QStringLiteral("encoder"), text(QStringLiteral("videoEncoder")));
    video.insert(QStringLiteral("frameRate"), text(QStringLiteral("videoFrameRate")));
    video.insert(QStringLiteral("resolution"), text(QStringLiteral("videoResolution")));
    outPutNode.insert(videoParam, video);
    outPutNode.insert(QStringLiteral("audioParam"),
                      QVariantMap{
                          {QStringLiteral("bitrateKbps"), number(QStringLiteral("audioBitrate"))},
                          {QStringLiteral("channel"), text(QStringLiteral("audioChannel"))},
                          {QStringLiteral("encoder"), text(QStringLiteral("audioEncoder"))},
                          {QStringLiteral("sampleRate"), number(QStringLiteral("audioSampleRate"))},
                      });
}

QString withLastPart(const QString &catalogueId, const QString &lastPart)
{
    const QStringList parts = catalogueId.split(QLatin1Char('_'));
    return QStringLiteral("%1_%2_%3").arg(parts.value(0), parts.value(1), lastPart);
}

} // namespace

namespace UserPresets {

void applyValues(FormatDetailModelData &preset, const QVariantMap &values)
{
    applyToFields(preset, values);
    applyToConverterSettings(preset.outPutNode, values);
}

void applyId(FormatDetailModelData &preset, const QString &id)
{
    const QString key = QStringLiteral("id");
    preset.id = id;
    preset.userDefine = true;
    preset.outPutNode.insert(key, withLastPart(preset.outPutNode.value(key).toString(), id));
}

} // namespace UserPresets
