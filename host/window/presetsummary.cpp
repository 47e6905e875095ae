#include "host/window/presetsummary.h"

#include "host/presets/presetsettings.h"
#include "host/window/toolfun.h"

#include <QLocale>

#include <algorithm>
#include <iterator>

namespace {

struct SettingWords
{
    const char *name;  //!< of valueNames()
    const char *group; //!< a text of the window; null: none
    const char *label; //!< a text of the window
};

constexpr SettingWords settingWords[] = {
    {"video-encoder", "Video", "Encoder"},   {"resolution", nullptr, "Resolution"},
    {"frame-rate", nullptr, "Frame Rate"},   {"video-bitrate", "Video", "Bitrate"},
    {"audio-encoder", "Audio", "Encoder"},   {"channel", nullptr, "Channel"},
    {"sample-rate", nullptr, "Sample Rate"}, {"audio-bitrate", "Audio", "Bitrate"},
};

bool isChosen(const QString &value)
{
    return !value.isEmpty() && value != QLatin1String("0");
}

QString channelText(const QString &count)
{
    return count == QLatin1String("1")   ? ToolFun::text(QStringLiteral("mono"))
           : count == QLatin1String("2") ? ToolFun::text(QStringLiteral("stereo"))
           : count == QLatin1String("6") ? QStringLiteral("5.1")
           : count == QLatin1String("8") ? QStringLiteral("7.1")
                                         : count;
}

QString kbpsText(const QString &value)
{
    // Without groups, as in the parameter dialog.
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return QStringLiteral("%1\u00A0kbps").arg(locale.toString(value.toDouble(), 'g', 9));
}

/*! A value that isn't the source's. */
QString chosenText(const QString &name, QString value)
{
    if (name == QLatin1String("resolution")) {
        return value.replace(QLatin1Char('x'), QStringLiteral(" × "));
    }
    if (name == QLatin1String("frame-rate")) {
        return QStringLiteral("%1\u00A0fps").arg(QLocale().toString(value.toDouble(), 'g', 6));
    }
    if (name == QLatin1String("video-bitrate")) {
        return ToolFun::text(QStringLiteral("at most %1")).arg(kbpsText(value));
    }
    if (name == QLatin1String("audio-bitrate")) {
        return kbpsText(value);
    }
    if (name == QLatin1String("sample-rate")) {
        return QStringLiteral("%1\u00A0kHz").arg(QLocale().toString(value.toDouble() / 1000));
    }
    return name == QLatin1String("channel") ? channelText(value) : value;
}

} // namespace

QString summaryOf(const QVariantMap &preset)
{
    const PresetValues values = valuesOf(preset);
    QStringList parts = {QLatin1Char('.') + preset.value(QStringLiteral("extension")).toString()};
    for (const SettingWords &each : settingWords) {
        const QString name = QLatin1String(each.name);
        if (isChosen(values.value(name))) {
            parts << chosenText(name, values.value(name));
        }
    }
    return ToolFun::joined(parts);
}

QString reasonText(const PresetMatch::Reason &reason)
{
    const auto named = [&reason](const QString &field) {
        return labelled(ToolFun::text(field), reason.text);
    };
    switch (reason.field) {
    case Field::Format:
    case Field::Title:
        break;
    case Field::Extension:
        return QLatin1Char('.') + reason.text;
    case Field::Codec:
        return named(QStringLiteral("Encoder"));
    case Field::Size:
        return named(QStringLiteral("Resolution"));
    case Field::Bitrate:
        return named(QStringLiteral("Bitrate"));
    case Field::FrameRate:
        return named(QStringLiteral("Frame Rate"));
    case Field::Note:
        return named(QStringLiteral("Note"));
    case Field::Kind:
    case Field::Category:
        return reason.text == QLatin1String("own") ? ToolFun::text(QStringLiteral("My presets"))
                                                   : ToolFun::text(reason.text);
    case Field::Purpose:
        // Purposes have no names but the words that people use for them.
        return ToolFun::text(QStringLiteral("good for “%1”")).arg(reason.typed);
    }
    return {};
}

QString labelled(const QString &label, const QString &value)
{
    return ToolFun::text(QStringLiteral("%1: %2")).arg(label, value);
}

QString settingLabel(const QString &name)
{
    const auto *const words = std::find_if(
        std::begin(settingWords), std::end(settingWords),
        [&name](const SettingWords &each) { return name == QLatin1String(each.name); });
    if (words == std::end(settingWords)) {
        return name; // of an encoder, which has its own words
    }
    const QString label = ToolFun::text(QLatin1String(words->label));
    return words->group == nullptr ? label
                                   : labelled(ToolFun::text(QLatin1String(words->group)), label);
}

QString settingText(const QString &name, const QString &value)
{
    return isChosen(value) ? chosenText(name, value) : ToolFun::text(QStringLiteral("automatic"));
}
