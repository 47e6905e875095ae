#include "host/media/tracks.h"

#include <QStringList>

#include <cmath>

bool Colour::isHdr() const
{
    return transfer == QLatin1String("smpte2084") || transfer == QLatin1String("arib-std-b67");
}

bool VideoTrack::hasVariableRate() const
{
    constexpr double tolerance = 0.01;
    const bool strays = averageFrameRate.isValid() && frameRate.isValid() &&
                        std::abs(averageFrameRate.value() / frameRate.value() - 1) > tolerance;
    return strays || !hasSteadyRate;
}

QSize VideoTrack::displaySize() const
{
    const int width = int(std::lround(storedSize.width() * pixelAspect.value()));
    const QSize shown(width, storedSize.height());
    return rotation % 180 == 0 ? shown : shown.transposed();
}

bool SubtitleTrack::isText() const
{
    static const QStringList bitmaps = {QStringLiteral("hdmv_pgs_subtitle"),
                                        QStringLiteral("dvd_subtitle"),
                                        QStringLiteral("dvb_subtitle"), QStringLiteral("xsub")};
    return !bitmaps.contains(codec);
}
