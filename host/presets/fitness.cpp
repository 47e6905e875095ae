#include "host/presets/fitness.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/encoderchoice.h"
#include "host/convert/ffmpegarguments.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

double areaOf(const OutputSettings &settings)
{
    return double(settings.box.width()) * settings.box.height();
}

} // namespace

QString Fitness::problemWith(const FoundPreset &preset) const
{
    const OutputSettings settings = preset.outputSettings();
    const Result<> valid = settings.validate();
    if (!valid) {
        return valid.error().text;
    }
    if (m_source) {
        const Result<QStringList> arguments =
            ffmpegArguments(settings, m_source->facts, m_encoders, m_source->path,
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

QString Fitness::nearestTo(const FoundPreset &preset, const PresetStore &store,
                           const QStringList &standIns) const
{
    QString ofFormat = closest(store.idsOf(preset.className), preset, store);
    if (!ofFormat.isEmpty()) {
        return ofFormat;
    }
    // Of a large catalogue's other formats, the first presets tell which suits.
    const std::optional<FoundPreset> other = store.find(closest(store.firstIds(), preset, store));
    return other ? closest(store.idsOf(other->className), preset, store)
                 : firstUsable(standIns + store.firstIds(), store);
}

QString Fitness::firstUsable(const QStringList &ids, const PresetStore &store) const
{
    const auto usable = std::find_if(ids.begin(), ids.end(), [this, &store](const QString &id) {
        const std::optional<FoundPreset> preset = store.find(id);
        return preset && problemWith(*preset).isEmpty();
    });
    return usable == ids.end() ? QString() : *usable;
}

QString Fitness::closest(const QStringList &ids, const FoundPreset &preset,
                         const PresetStore &store) const
{
    const OutputSettings wanted = preset.outputSettings();
    using Distance = std::tuple<double, bool, bool>;
    std::optional<Distance> least;
    QString closest;
    for (const QString &id : ids) {
        const std::optional<FoundPreset> other = store.find(id);
        if (!other || other->tag != preset.tag) {
            continue;
        }
        const OutputSettings settings = other->outputSettings();
        const Distance distance{std::abs(areaOf(settings) - areaOf(wanted)),
                                settings.videoCodec != wanted.videoCodec,
                                settings.audioCodec != wanted.audioCodec};
        const bool isCloser = !least || distance < *least;
        if (isCloser && settings.hasVideo == wanted.hasVideo && problemWith(*other).isEmpty()) {
            least = distance;
            closest = id;
        }
    }
    return closest;
}
