#include "host/convert/likeness.h"

#include "host/media/mediainput.h"
#include "host/tools/toolcall.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

QStringList inputOf(const ViewedFile &file, double seconds)
{
    QStringList arguments;
    if (file.start > 0) {
        arguments << QStringLiteral("-ss") << QString::number(file.start, 'f', 3);
    }
    if (seconds > 0) {
        arguments << QStringLiteral("-t") << QString::number(seconds, 'f', 3);
    }
    return arguments + inputArguments(file.path, file.facts.container);
}

/*! The video of an input, with what makes it comparable: whole frames at times from 0. */
QString viewed(int input, const VideoTrack &track, const QSize &size)
{
    const QString joined = track.isInterlaced()
                               ? QStringLiteral("bwdif=mode=send_frame:deint=interlaced,")
                               : QString();
    return QStringLiteral("[%1:%2]%3setpts=PTS-STARTPTS,scale=%4:%5:flags=bicubic,setsar=1,"
                          "format=yuv420p")
        .arg(input)
        .arg(track.index)
        .arg(joined)
        .arg(size.width())
        .arg(size.height());
}

} // namespace

QStringList likenessArguments(const ViewedFile &result, const ViewedFile &source, double seconds,
                              LikenessMeasure measure)
{
    const VideoTrack &shown = *result.facts.video();
    const QSize size = shown.displaySize();
    const QString filter = measure == LikenessMeasure::Ssim
                               ? QStringLiteral("ssim=stats_file=-")
                               : QStringLiteral("libvmaf=log_fmt=csv:log_path=/dev/stdout");
    return inputOf(result, seconds) + inputOf(source, seconds) +
           QStringList{QStringLiteral("-filter_complex"),
                       viewed(0, shown, size) + QStringLiteral("[result];") +
                           viewed(1, *source.facts.video(), size) +
                           QStringLiteral("[source];[result][source]") + filter,
                       QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")};
}

std::optional<double> likenessIn(const QByteArray &log)
{
    // SSIM has a line per frame with "All:0.98"; VMAF has its column "vmaf" in such a table.
    static const QRegularExpression frame(QStringLiteral(" All:([0-9.]+)"));
    QVector<double> values;
    int column = -1;
    const QList<QByteArray> lines = log.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> cells = line.trimmed().split(',');
        const QRegularExpressionMatch match = frame.match(QString::fromLatin1(line));
        if (match.hasMatch()) {
            values.append(match.captured(1).toDouble());
        } else if (cells.contains("vmaf")) {
            column = cells.indexOf("vmaf");
        } else if (column >= 0 && cells.size() > column) {
            values.append(cells.at(column).toDouble());
        }
    }
    if (values.isEmpty()) {
        return std::nullopt;
    }
    double sum = 0;
    for (const double value : qAsConst(values)) {
        sum += value;
    }
    return sum / values.size();
}

QStringList sideBySideArguments(const QVector<LabelledFile> &files, const QString &target)
{
    constexpr int mostLines = 720;
    int lines = mostLines;
    for (const LabelledFile &each : files) {
        lines = std::min(lines, each.file.facts.video()->displaySize().height());
    }
    QStringList inputs;
    QStringList chains;
    QString pictures;
    for (int i = 0; i < files.size(); ++i) {
        const VideoTrack &track = *files.at(i).file.facts.video();
        const QSize shown = track.displaySize();
        const QSize size(shown.width() * lines / std::max(1, shown.height()) / 2 * 2, lines);
        inputs += inputOf(files.at(i).file, 0);
        chains << viewed(i, track, size) +
                      QStringLiteral(",drawtext=textfile=%1:expansion=none:x=8:y=8:fontsize=%2:"
                                     "fontcolor=white:box=1:boxcolor=black@0.6:boxborderw=6[p%3]")
                          .arg(files.at(i).labelPath)
                          .arg(std::max(12, lines / 26))
                          .arg(i);
        pictures += QStringLiteral("[p%1]").arg(i);
    }
    const QString stacked =
        files.size() > 1 ? QStringLiteral("%1hstack=inputs=%2").arg(pictures).arg(files.size())
                         : pictures + QStringLiteral("null");
    chains << stacked;
    return QStringList{QStringLiteral("-y")} + inputs +
           QStringList{QStringLiteral("-filter_complex"),
                       chains.join(QLatin1Char(';')),
                       QStringLiteral("-frames:v"),
                       QStringLiteral("1"),
                       QStringLiteral("-c:v"),
                       QStringLiteral("png"),
                       QStringLiteral("-f"),
                       QStringLiteral("image2pipe"),
                       fileArgument(target)};
}
