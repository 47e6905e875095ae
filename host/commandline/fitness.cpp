#include "host/commandline/fitness.h"

#include "host/commandline/commandline.h"
#include "host/media/mediaprobe.h"
#include "host/tools/encoderlist.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>

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

} // namespace

Result<Fitness> fitnessFor(const QString &source)
{
    EncoderList encoders;
    const Result<QSet<QString>> names =
        waitFor<QSet<QString>>(encoders, [&encoders] { encoders.start(); });
    if (!names) {
        return failed(names);
    }
    if (source.isEmpty()) {
        return Fitness(*names);
    }
    const QString path = QFileInfo(source).absoluteFilePath();
    MediaProbe probe;
    const Result<MediaFacts> facts = waitFor<MediaFacts>(probe, [&] { probe.start(path); });
    if (!facts) {
        return failed(QStringLiteral("%1 %2").arg(source, facts.error().text));
    }
    return Fitness(*names, FitnessSource{path, *facts});
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
