#include "formats/models/formatdetailmodeldata.h"

#include "formats/models/presetfields_p.h"

using PresetFields::Block;

namespace {

QVariantMap toMap(const FormatDetailModelData &preset, Block block)
{
    QVariantMap map;
    for (const PresetFields::Field &field : PresetFields::all) {
        if (field.block == block) {
            map.insert(PresetFields::key(field), PresetFields::read(preset, field.member));
        }
    }
    return map;
}

void foldVideoBitrates(QVariantMap &video, const FormatDetailModelData &preset)
{
    for (const auto &level : {QStringLiteral("bitrateLow"), QStringLiteral("bitrateMid"),
                              QStringLiteral("bitrateHigh")}) {
        video.remove(level);
    }
    const QString colon = QStringLiteral(":");
    video.insert(QStringLiteral("bitrates"),
                 preset.videoBitrateHigh + colon + preset.videoBitrateMid + colon +
                     preset.videoBitrateLow + colon +
                     preset.joinStringList(preset.videoBitrates, QStringLiteral(",")));
}

} // namespace

QVariantMap FormatDetailModelData::toVarMap() const
{
    QVariantMap map = toMap(*this, Block::Preset);
    map.insert(QStringLiteral("audio"), toMap(*this, Block::Audio));
    if (!videoEncoders.isEmpty()) {
        map.insert(QStringLiteral("video"), toMap(*this, Block::Video));
    }
    return map;
}

QVariantMap FormatDetailModelData::toVarMapForSave() const
{
    QVariantMap map = toVarMap();
    const auto video = map.find(QStringLiteral("video"));
    if (video != map.end()) {
        QVariantMap folded = video->toMap();
        foldVideoBitrates(folded, *this);
        *video = folded;
    }
    return map;
}

QString FormatDetailModelData::joinStringList(const QVariantList &list, const QString &sep) const
{
    QStringList texts;
    texts.reserve(list.size());
    for (const QVariant &item : list) {
        texts.append(item.toString());
    }
    return texts.join(sep);
}
