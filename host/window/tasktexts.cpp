#include "host/window/tasktexts.h"

#include "host/files/visibletext.h"
#include "host/media/clocktext.h"
#include "host/window/toolfun.h"

#include <QLocale>

#include <cmath>

namespace {

/*! How the new size compares to the old one; empty where nobody would see a difference. */
QString comparison(double bytes, double before)
{
    const int percent = before > 0 ? int(std::lround(100 * (bytes - before) / before)) : 0;
    if (percent == 0) {
        return {};
    }
    return (percent < 0 ? ToolFun::text(QStringLiteral("%1 % smaller"))
                        : ToolFun::text(QStringLiteral("%1 % larger")))
        .arg(std::abs(percent));
}

} // namespace

QString sizeText(double bytes)
{
    QString text = QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
    // French writes a narrow space there, as in its numbers, at which no line ends.
    return QLocale().language() == QLocale::French ? text.replace(QLatin1Char(' '), QChar(0x202F))
                                                   : text;
}

QString countText(int count)
{
    return QLocale().toString(count);
}

QString runningText(const Progress &progress)
{
    const int percent = progress.percent();
    QStringList parts = {percent < 0 ? ToolFun::text(QStringLiteral("Converting …"))
                                     : ToolFun::text(QStringLiteral("%1 %")).arg(percent)};
    if (progress.speed > 0) {
        const int digits = progress.speed < 10 ? 1 : 0;
        parts << QLocale().toString(progress.speed, 'f', digits) + QStringLiteral("×");
    }
    if (progress.timeLeft() >= 0) {
        parts << ToolFun::text(QStringLiteral("%1 left")).arg(clockText(progress.timeLeft()));
    }
    return ToolFun::joined(parts);
}

QString detailsOf(const MediaFacts &facts)
{
    QStringList parts;
    if (const VideoTrack *video = facts.video()) {
        const QSize size = video->displaySize();
        parts << QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
    }
    if (facts.duration > 0) {
        parts << clockText(facts.duration);
    }
    if (facts.bytes > 0) {
        parts << sizeText(double(facts.bytes));
    }
    return ToolFun::joined(parts);
}

QString codecsOf(const MediaFacts &facts)
{
    QStringList codecs;
    if (const VideoTrack *video = facts.video()) {
        codecs << video->codec;
    }
    if (const AudioTrack *audio = facts.audio()) {
        codecs << audio->codec;
    }
    return codecs.join(QStringLiteral(", "));
}

QString resultOf(const Task &task)
{
    if (task.target.isEmpty()) {
        return {};
    }
    QString size;
    if (task.targetBytes > 0) {
        // A part of the source can't be compared to all of it.
        const bool isWhole = task.start <= 0 && task.end <= 0;
        const QString compared =
            isWhole ? comparison(double(task.targetBytes), double(task.facts.bytes)) : QString();
        size = ToolFun::listed({sizeText(double(task.targetBytes)), compared});
    }
    return ToolFun::joined({visibleName(task.target), size});
}
