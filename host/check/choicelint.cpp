#include "host/check/choicelint.h"

namespace {

void lintOffered(CheckedPreset &preset, const CatalogueSetting &setting)
{
    const QStringList offered = preset.offered(setting);
    for (int i = 0; i < offered.size(); ++i) {
        const QString &value = offered.at(i);
        if (!setting.accepts(value)) {
            preset.noteOffered(
                setting, i,
                QStringLiteral("must be %1, not %2").arg(setting.acceptedText(), value));
        }
        if (offered.indexOf(value) < i) {
            preset.noteOffered(setting, i, QStringLiteral("%1 is listed twice").arg(value));
        }
    }
}

QString notOffered(const QString &value, const CatalogueSetting &setting)
{
    return QStringLiteral("%1 is not one of the values that %2 offers")
        .arg(value, setting.optionsPath());
}

void lintChosen(CheckedPreset &preset, const CatalogueSetting &setting)
{
    const QVariant value = preset.chosen(setting);
    if (value.isValid() && !preset.offered(setting).contains(value.toString())) {
        preset.note(setting.paramPath(), notOffered(value.toString(), setting),
                    setting.optionsPath());
    }
}

void lintDetail(CheckedPreset &preset, const CatalogueDetail &detail)
{
    const QVariant value = preset.stated(detail);
    const QString key = CatalogueBlock::videoParam + QLatin1Char('.') + detail.key;
    const CatalogueSetting &bitrate = CatalogueSetting::of(CatalogueSetting::VideoBitrate);
    if (!value.isValid()) {
        return;
    }
    if (detail.type() == QJsonValue::Double && !bitrate.accepts(value.toString())) {
        preset.note(
            key,
            QStringLiteral("must be %1, not %2").arg(bitrate.acceptedText(), value.toString()));
    }
    if (detail.type() == QJsonValue::String) {
        preset.expectForm(key, value.toString(), detail.pattern);
    }
}

void lintLevels(CheckedPreset &preset)
{
    const CatalogueSetting &levelSetting = CatalogueSetting::of(CatalogueSetting::VideoLevels);
    const CatalogueSetting &bitrate = CatalogueSetting::of(CatalogueSetting::VideoBitrate);
    const QStringList offered = preset.offered(bitrate);
    const QStringList levels = preset.offered(levelSetting);
    for (int i = 0; i < levels.size(); ++i) {
        if (!offered.contains(levels.at(i))) {
            preset.noteOffered(levelSetting, i, notOffered(levels.at(i), bitrate),
                               bitrate.optionsPath());
        }
    }
    const double high = levels.value(0).toDouble();
    const double middle = levels.value(1).toDouble();
    const double low = levels.value(2).toDouble();
    if (high < low || (middle != 0 && (high < middle || middle < low))) {
        preset.note(levelSetting.optionsPath(),
                    QStringLiteral("must descend from the high to the low bitrate; only the middle "
                                   "one can be 0 instead"));
    }
}

} // namespace

void lintChoices(CheckedPreset &preset)
{
    for (const CatalogueSetting &setting : CatalogueSetting::all()) {
        if (setting.id != CatalogueSetting::VideoLevels) {
            lintOffered(preset, setting);
            lintChosen(preset, setting);
        }
    }
    lintLevels(preset);
    for (const CatalogueDetail &detail : CatalogueDetail::all()) {
        lintDetail(preset, detail);
    }
}
