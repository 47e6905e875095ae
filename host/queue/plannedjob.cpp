#include "host/queue/plannedjob.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <cmath>

namespace {

constexpr int planVersion = 1;

/*! A choice besides the preset that is a number; 0: none is made. */
struct NumberChoice
{
    const char *key;
    double OutputSettings::*value;
};

const NumberChoice numberChoices[] = {
    {"start", &OutputSettings::start},
    {"end", &OutputSettings::end},
    {"stillSeconds", &OutputSettings::stillSeconds},
    {"targetBytes", &OutputSettings::targetBytes},
};

struct TrackChoiceKey
{
    const char *key;
    TrackChoice OutputSettings::*value;
};

const TrackChoiceKey trackChoices[] = {
    {"audio", &OutputSettings::audioTracks},
    {"subtitles", &OutputSettings::subtitles},
};

const QLatin1String burnedKey("burnedSubtitles");
const QLatin1String averageKey("averagesBitrate");

QVariantMap choicesOf(const OutputSettings &settings)
{
    QVariantMap choices;
    for (const NumberChoice &choice : numberChoices) {
        if (settings.*choice.value > 0) {
            choices.insert(QLatin1String(choice.key), settings.*choice.value);
        }
    }
    for (const TrackChoiceKey &choice : trackChoices) {
        choices.insert(QLatin1String(choice.key), (settings.*choice.value).text());
    }
    if (settings.burnedSubtitles > 0) {
        choices.insert(burnedKey, settings.burnedSubtitles);
    }
    if (settings.averagesBitrate) {
        choices.insert(averageKey, true);
    }
    return choices;
}

/*! False if one is invalid. */
bool readChoices(OutputSettings &settings, const QVariantMap &choices)
{
    for (const NumberChoice &choice : numberChoices) {
        const double value = choices.value(QLatin1String(choice.key)).toDouble();
        if (!std::isfinite(value) || value < 0) {
            return false;
        }
        settings.*choice.value = value;
    }
    for (const TrackChoiceKey &choice : trackChoices) {
        const QVariant text = choices.value(QLatin1String(choice.key), QStringLiteral("all"));
        const std::optional<TrackChoice> read = TrackChoice::fromText(text.toString());
        if (!read) {
            return false;
        }
        settings.*choice.value = *read;
    }
    settings.burnedSubtitles = choices.value(burnedKey).toInt();
    settings.averagesBitrate = choices.value(averageKey).toBool();
    return settings.burnedSubtitles >= 0;
}

} // namespace

Result<PlannedJob> PlannedJob::fromLine(const QByteArray &line)
{
    QJsonParseError mistake;
    const QVariantMap read = QJsonDocument::fromJson(line, &mistake).object().toVariantMap();
    if (read.isEmpty()) {
        return failed(tr("is no whole job (%1); the plan may be cut off: make it again")
                          .arg(mistake.errorString()));
    }
    const int version = read.value(QStringLiteral("version")).toInt();
    if (version > planVersion) {
        return failed(tr("is of a newer version of vexconvert (plan version %1, known is %2); "
                         "update it on this machine")
                          .arg(version)
                          .arg(planVersion));
    }
    PlannedJob job;
    job.source = read.value(QStringLiteral("source")).toString();
    job.target = read.value(QStringLiteral("target")).toString();
    job.preset = read.value(QStringLiteral("preset")).toMap();
    if (version < 1 || job.source.isEmpty() || job.target.isEmpty() || job.preset.isEmpty()) {
        return failed(tr("lacks its version, source, target or preset; make the plan again"));
    }
    job.settings = OutputSettings::fromPreset(job.preset);
    if (!readChoices(job.settings, read.value(QStringLiteral("choices")).toMap())) {
        return failed(tr("has an invalid value among its choices; make the plan again"));
    }
    if (QFileInfo(job.target).suffix() != job.settings.extension) {
        return failed(tr("names a result that doesn't end with \".%1\"; make the plan again")
                          .arg(job.settings.extension));
    }
    job.keepDates = read.value(QStringLiteral("keepDates")).toBool();
    job.cost = read.value(QStringLiteral("cost")).toDouble();
    return job;
}

QByteArray PlannedJob::toLine() const
{
    QVariantMap line = {{QStringLiteral("version"), planVersion},
                        {QStringLiteral("source"), source},
                        {QStringLiteral("target"), target},
                        {QStringLiteral("preset"), preset},
                        {QStringLiteral("choices"), choicesOf(settings)},
                        {QStringLiteral("cost"), cost}};
    if (keepDates) {
        line.insert(QStringLiteral("keepDates"), true);
    }
    return QJsonDocument(QJsonObject::fromVariantMap(line)).toJson(QJsonDocument::Compact);
}

ConversionJob PlannedJob::conversion(OutputTarget::IfExists ifExists) const
{
    ConversionJob job;
    job.source = source;
    job.settings = settings;
    job.target = fixedOutput(target, ifExists);
    job.keepDates = keepDates;
    return job;
}
