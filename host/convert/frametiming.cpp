#include "host/convert/frametiming.h"

#include "host/convert/nearest.h"

#include <cmath>

namespace {

// 30 and 30000/1001 are one rate to every player.
constexpr double sameRate = 1.002;

bool exceeds(const Ratio &rate, const Ratio &ceiling)
{
    return ceiling.isValid() && rate.value() > ceiling.value() * sameRate;
}

/*! \a rate, or one that \a ceiling allows: half of it, a third ... where that isn't far below, so
 *  that the motion stays even. */
Ratio rateWithin(const Ratio &rate, const Ratio &ceiling)
{
    constexpr double nearEnough = 0.8;
    if (!exceeds(rate, ceiling)) {
        return rate;
    }
    const int every = int(std::ceil(rate.value() / (ceiling.value() * sameRate)));
    const Ratio even{rate.numerator, rate.denominator * every};
    return even.value() >= ceiling.value() * nearEnough ? even : ceiling;
}

/*! A rate at which no frame of usual footage is lost, for what can't tell the time otherwise. */
Ratio countingRate(const VideoTrack &track)
{
    constexpr Ratio fastestUsual{60, 1};
    const bool isUsual = track.hasSteadyRate && !exceeds(track.frameRate, fastestUsual);
    return isUsual ? track.frameRate : fastestUsual;
}

/*! The usual rate that comes closest to a variable one. */
Ratio evenedRate(const VideoTrack &track)
{
    static const QVector<Ratio> usual = {
        {10, 1},       {12, 1}, {15, 1}, {20, 1}, {24000, 1001}, {24, 1}, {25, 1},
        {30000, 1001}, {30, 1}, {48, 1}, {50, 1}, {60000, 1001}, {60, 1}, {120, 1}};
    const Ratio counted = countingRate(track);
    if (track.hasSteadyRate && counted == track.frameRate) {
        return counted;
    }
    const Ratio average =
        track.averageFrameRate.isValid() ? track.averageFrameRate : track.frameRate;
    return average.isValid() ? nearestAllowed(average, usual) : average;
}

/*! The first frame of each step of \a rate. */
FrameTiming thinnedTo(const Ratio &rate)
{
    FrameTiming timing;
    timing.rate = rate;
    timing.filter = QStringLiteral("select=isnan(prev_t)"
                                   "+gt(floor(t*%1+0.25)\\,floor(prev_t*%1+0.25))")
                        .arg(rate.toText());
    return timing;
}

/*! Each frame of a variable rate from its own time on: after a gap, ffmpeg's own counting would
 * begin one step early. */
FrameTiming evenTiming(const Ratio &rate)
{
    FrameTiming timing = FrameTiming::constant(rate);
    timing.filter = QStringLiteral("fps=%1").arg(rate.toText());
    return timing;
}

FrameTiming variableTiming(const VideoTrack &track, const VideoCodec &codec,
                           const OutputSettings &settings)
{
    FrameTiming timing;
    if (!codec.takesAnyTime) {
        timing.rate = countingRate(track);
        const Ratio rate = rateWithin(timing.rate, settings.frameRate);
        return rate == timing.rate ? timing : thinnedTo(rate);
    }
    constexpr Ratio fineClock{1, 90000};
    timing.clock = fineClock;
    const bool mayExceed = !track.hasSteadyRate || exceeds(track.frameRate, settings.frameRate);
    if (settings.frameRate.isValid() && mayExceed) {
        constexpr double jitter = 0.05;
        timing.filter = QStringLiteral("select=isnan(prev_selected_t)"
                                       "+gte(t-prev_selected_t\\,%1)")
                            .arg((1 - jitter) / settings.frameRate.value(), 0, 'f', 5);
    }
    return timing;
}

} // namespace

Ratio resultRate(const Ratio &rate, const OutputSettings &settings)
{
    const bool isFixed = settings.frameRateMode == OutputSettings::FrameRateMode::Fixed;
    return settings.frameRate.isValid() && isFixed ? settings.frameRate
                                                   : rateWithin(rate, settings.frameRate);
}

FrameTiming FrameTiming::make(const VideoTrack &track, const VideoCodec &codec,
                              const Container &container, const OutputSettings &settings)
{
    const bool isVariable = track.hasVariableRate();
    const Ratio own = isVariable ? evenedRate(track) : track.frameRate;
    const Ratio wanted = resultRate(own, settings);
    if (!wanted.isValid()) {
        return {};
    }
    const Ratio rate = nearestAllowed(wanted, codec.frameRates);
    const bool isFixed = settings.frameRateMode == OutputSettings::FrameRateMode::Fixed;
    const bool isCounted = container.times == Container::Times::EveryFrame;
    const bool isCountedAnew = rate != wanted || isCounted || (isFixed && wanted != own);
    if (isVariable) {
        const bool canVary = container.times == Container::Times::Any && codec.frameRates.isEmpty();
        return canVary && !isCountedAnew && !isFixed && settings.keepsVariableRate
                   ? variableTiming(track, codec, settings)
                   : evenTiming(rate);
    }
    if (isCountedAnew) {
        return constant(rate);
    }
    return rate == own ? FrameTiming() : thinnedTo(rate);
}

FrameTiming FrameTiming::constant(const Ratio &rate)
{
    FrameTiming timing;
    timing.rate = rate;
    timing.isConstant = true;
    return timing;
}

ToolOptions FrameTiming::options() const
{
    ToolOptions all;
    if (rate.isValid()) {
        all.append({QStringLiteral("r"), rate.toText()});
    }
    all.append(
        {QStringLiteral("fps_mode"), isConstant ? QStringLiteral("cfr") : QStringLiteral("vfr")});
    if (clock.isValid()) {
        all.append({QStringLiteral("enc_time_base"), clock.toText()});
    }
    return all;
}
