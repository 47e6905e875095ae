#include "host/commandline/fitness.h"

#include "host/commandline/commandline.h"
#include "host/convert/codecs.h"
#include "host/convert/ffmpegarguments.h"
#include "host/media/mediaprobe.h"
#include "host/tools/encoderlist.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace {

/*! Starts what finishes with a result, and waits for it. */
template <typename Value, typename Object, typename Start>
Result<Value> waitFor(Object &object, const Start &start)
{
    Result<Value> result;
    QEventLoop loop;
    QObject::connect(&object, &Object::finished, &loop, [&](const Result<Value> &finished) {
        result = finished;
        loop.quit();
    });
    start();
    loop.exec();
    // No other loop may follow that deletes what this one put off.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return result;
}

double areaOf(const OutputSettings &settings)
{
    return double(settings.box.width()) * settings.box.height();
}

} // namespace

Result<Fitness> Fitness::of(const QString &source)
{
    Fitness fitness;
    EncoderList encoders;
    const Result<QSet<QString>> names =
        waitFor<QSet<QString>>(encoders, [&encoders] { encoders.start(); });
    if (!names) {
        return failed(names);
    }
    fitness.m_encoders = *names;
    if (!source.isEmpty()) {
        MediaProbe probe;
        fitness.m_source = QFileInfo(source).absoluteFilePath();
        const Result<MediaFacts> facts =
            waitFor<MediaFacts>(probe, [&] { probe.start(fitness.m_source); });
        if (!facts) {
            return failed(QStringLiteral("%1 %2").arg(source, facts.error().text));
        }
        fitness.m_facts = *facts;
    }
    return fitness;
}

QString Fitness::problemWith(const FoundPreset &preset) const
{
    const OutputSettings settings = preset.outputSettings();
    const Result<> valid = settings.validate();
    if (!valid) {
        return valid.error().text;
    }
    if (m_facts) {
        const Result<QStringList> arguments =
            ffmpegArguments(settings, *m_facts, m_encoders, m_source,
                            QStringLiteral("result.") + settings.extension);
        return arguments ? QString() : arguments.error().text;
    }
    const StreamTarget target{settings, *Container::find(settings.extension), m_encoders};
    const QStringList video = videoCodec(settings.videoCodec).encoderNames();
    const QStringList audio = audioCodec(settings.audioCodec).encoderNames();
    const auto problem = [&target](const QString &codec, const QStringList &names) {
        const bool isChosen = !codec.isEmpty() && !names.isEmpty();
        const Result<QString> encoder =
            isChosen ? availableEncoder(names, codec, target) : Result<QString>();
        return encoder ? QString() : encoder.error().text;
    };
    const QString ofVideo = problem(settings.videoCodec, video);
    return ofVideo.isEmpty() ? problem(settings.audioCodec, audio) : ofVideo;
}

QString Fitness::nearestTo(const FoundPreset &preset, const PresetStore &store) const
{
    const OutputSettings wanted = preset.outputSettings();
    using Distance = std::tuple<bool, double, bool, bool>;
    std::optional<Distance> least;
    QString nearest;
    const QStringList ids = store.ids();
    for (const QString &id : ids) {
        const std::optional<FoundPreset> other = store.find(id);
        if (!other || other->tag != preset.tag) {
            continue;
        }
        const OutputSettings settings = other->outputSettings();
        const Distance distance{
            other->className != preset.className, std::abs(areaOf(settings) - areaOf(wanted)),
            settings.videoCodec != wanted.videoCodec, settings.audioCodec != wanted.audioCodec};
        const bool isCloser = !least || distance < *least;
        if (isCloser && settings.hasVideo == wanted.hasVideo && problemWith(*other).isEmpty()) {
            least = distance;
            nearest = id;
        }
    }
    return nearest;
}

QString problemInWords(const QString &id, const QString &problem, const QString &instead)
{
    const QString line = CommandLine::tr("%1 can't be used: %2").arg(id, problem);
    return instead.isEmpty() ? line : CommandLine::tr("%1; nearest: %2").arg(line, instead);
}

QCommandLineOption sourceOption()
{
    return valueOption(QStringLiteral("for"),
                       CommandLine::tr("Say which presets can't be used for this file."),
                       CommandLine::tr("FILE"));
}
