#include "formats/proxy/presetfitting_p.h"

#include "formats/models/formatdetailmodel.h"

#include <algorithm>
#include <limits>

using Preset = FormatDetailModelData;

namespace {

const QLatin1String sourceValue("0");

// Width times height of a resolution such as "1920x1080"; a missing side counts as 0.
qint64 area(const QString &resolution)
{
    const QStringList sides = resolution.split(QLatin1Char('x'));
    return qint64(sides.value(0).toInt()) * sides.value(1).toInt();
}

qint64 distance(qint64 a, qint64 b)
{
    return qAbs(a - b);
}

// Keeps the offered preset with the smallest distance; on a tie, the last one.
class ClosestPreset
{
public:
    void offer(qint64 distance, const Preset &preset)
    {
        const auto rank = int(std::clamp<qint64>(distance, std::numeric_limits<int>::min(),
                                                 std::numeric_limits<int>::max()));
        if (!m_preset || rank <= m_rank) {
            m_rank = rank;
            m_preset = preset;
        }
    }

    [[nodiscard]] const std::optional<Preset> &preset() const { return m_preset; }

private:
    int m_rank = 0;
    std::optional<Preset> m_preset;
};

} // namespace

namespace PresetFitting {

std::optional<Preset> closestInAudioBitrate(const FormatDetailModel *presets, int kbps)
{
    ClosestPreset closest;
    Preset preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        closest.offer(distance(preset.audioBitrate.toInt(), kbps), preset);
    }
    return closest.preset();
}

std::optional<Preset> titled(const FormatDetailModel *presets, const QString &title)
{
    Preset preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        if (preset.title.compare(title, Qt::CaseInsensitive) == 0) {
            return preset;
        }
    }
    return std::nullopt;
}

int highestWithin(int cap, const QVariantList &bitrates)
{
    std::optional<int> highest;
    for (const QVariant &bitrate : bitrates) {
        const int kbps = bitrate.toInt();
        if (kbps <= cap && (!highest || kbps > *highest)) {
            highest = kbps;
        }
    }
    return highest.value_or(0);
}

std::optional<Preset> forResolution(const FormatDetailModel *presets, const QString &resolution,
                                    bool preferSource)
{
    const qint64 wanted = area(resolution);
    ClosestPreset closest;
    Preset preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        if (preset.userDefine) {
            continue;
        }
        if (preset.videoResolution == sourceValue) {
            if (preferSource) {
                return preset;
            }
            // Not distance(): a negative area ranks first.
            closest.offer(wanted, preset);
        }
        closest.offer(distance(area(preset.videoResolution), wanted), preset);
    }
    return closest.preset();
}

std::optional<Preset> forAudioBitrate(const FormatDetailModel *presets, int kbps, bool preferSource)
{
    ClosestPreset closest;
    Preset preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        if (preset.userDefine) {
            continue;
        }
        if (preferSource && preset.audioBitrate == sourceValue) {
            return preset;
        }
        closest.offer(distance(preset.audioBitrate.toInt(), kbps), preset);
    }
    return closest.preset();
}

} // namespace PresetFitting
