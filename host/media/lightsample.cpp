#include "host/media/lightsample.h"

#include "host/media/mediainput.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

const QString bright = QStringLiteral("lavfi.signalstats.YHIGH"); // nine tenths are darker
const QString brightest = QStringLiteral("lavfi.signalstats.YMAX");

QVector<double> valuesOf(const QString &key, const QString &sample)
{
    const QRegularExpression value(QRegularExpression::escape(key) + QStringLiteral("=([0-9.]+)"));
    QVector<double> values;
    auto found = value.globalMatch(sample);
    while (found.hasNext()) {
        values.append(found.next().captured(1).toDouble());
    }
    return values;
}

/*! The light of a signal from 0 to 1 in cd/m², by SMPTE ST 2084. */
double perceptualLight(double signal)
{
    const double root = std::pow(signal, 1 / 78.84375);
    const double share = std::max(root - 0.8359375, 0.0) / (18.8515625 - 18.6875 * root);
    return 10000 * std::pow(share, 1 / 0.1593017578125);
}

/*! The same by ARIB STD-B67, on a display of 1000 cd/m². */
double hybridLight(double signal)
{
    const double scene = signal <= 0.5
                             ? signal * signal / 3
                             : (std::exp((signal - 0.55991073) / 0.17883277) + 0.28466892) / 12;
    return 1000 * std::pow(scene, 1.2);
}

/*! The light in cd/m² of a luma of 10 bits. */
double lightOf(double luma, const Colour &colour)
{
    const bool isFull = colour.range == QLatin1String("pc");
    const double signal = std::clamp(isFull ? luma / 1023 : (luma - 64) / 876, 0.0, 1.0);
    return colour.transfer == QLatin1String("smpte2084") ? perceptualLight(signal)
                                                         : hybridLight(signal);
}

} // namespace

QStringList lightSampleArguments(const MediaFacts &facts, const VideoTrack &track,
                                 const QString &path)
{
    constexpr int pictures = 8;
    QStringList arguments;
    QString streams;
    for (int i = 0; i < pictures; ++i) {
        const double at = facts.duration * (i + 0.5) / pictures;
        // With more threads each decoder would fill its own buffers.
        arguments +=
            QStringList{QStringLiteral("-threads"),  QStringLiteral("1"),  QStringLiteral("-ss"),
                        QString::number(at, 'f', 3), QStringLiteral("-t"), QStringLiteral("0.1")} +
            inputArguments(path, facts.container);
        streams += QStringLiteral("[%1:%2]").arg(i).arg(track.index);
    }
    // Made small, single pixels no longer count.
    const QString filter = QStringLiteral("%1concat=n=%2,scale=320:-2:flags=area,"
                                          "format=yuv420p10le,signalstats,"
                                          "metadata=mode=print:file=-")
                               .arg(streams)
                               .arg(pictures);
    return arguments + QStringList{QStringLiteral("-filter_complex"), filter, QStringLiteral("-f"),
                                   QStringLiteral("null"), QStringLiteral("-")};
}

std::optional<SeenLight> seenLightIn(const QByteArray &sample, const Colour &colour)
{
    const QString text = QString::fromLatin1(sample);
    const QVector<double> high = valuesOf(bright, text);
    const QVector<double> top = valuesOf(brightest, text);
    if (high.isEmpty() || top.isEmpty()) {
        return std::nullopt;
    }
    // The mean of what is seen, so that a few bright scenes don't darken a film.
    const double mean = std::accumulate(high.begin(), high.end(), 0.0) / high.size();
    return SeenLight{lightOf(mean, colour),
                     lightOf(*std::max_element(top.begin(), top.end()), colour)};
}
