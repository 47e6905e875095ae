#include "host/convert/picturefit.h"

#include <algorithm>
#include <cmath>

namespace {

int nearestEven(double length, int limit)
{
    const int even = 2 * int(std::lround(length / 2));
    return std::max(2, even > limit ? even - 2 : even);
}

QSize scaled(const QSizeF &size, double factor, const QSize &limit)
{
    return {nearestEven(size.width() * factor, limit.width()),
            nearestEven(size.height() * factor, limit.height())};
}

double factorInto(const QSizeF &size, const QSizeF &box)
{
    return std::min(box.width() / size.width(), box.height() / size.height());
}

FrameFit fitIntoFrame(const QSize &shown, const VideoCodec::Frame &frame)
{
    const QSizeF inFramePixels(shown.width() / frame.pixelAspect.value(), shown.height());
    return {frame, scaled(inFramePixels, factorInto(inFramePixels, frame.size), frame.size)};
}

} // namespace

QSize fitIntoBox(const QSize &shown, const QSize &box)
{
    const bool turned = shown.height() > shown.width() && box.width() > box.height();
    const QSize limit = (turned ? box.transposed() : box).boundedTo(shown);
    return scaled(shown, factorInto(shown, limit), limit);
}

QSize evenSize(const QSize &size)
{
    return scaled(size, 1, size);
}

FrameFit fitIntoFrame(const QSize &shown, const Ratio &rate,
                      const QVector<VideoCodec::Frame> &frames)
{
    const auto rateDistance = [&rate](const FrameFit &fit) {
        return std::abs(fit.frame.frameRate.value() - rate.value());
    };
    const auto filledPart = [](const FrameFit &fit) {
        return double(fit.picture.width()) * fit.picture.height() /
               (double(fit.frame.size.width()) * fit.frame.size.height());
    };
    FrameFit best = fitIntoFrame(shown, frames.first());
    for (const VideoCodec::Frame &frame : frames) {
        const FrameFit fit = fitIntoFrame(shown, frame);
        const double nearer = rateDistance(best) - rateDistance(fit);
        if (nearer > 0 || (nearer == 0 && filledPart(fit) > filledPart(best))) {
            best = fit;
        }
    }
    return best;
}
