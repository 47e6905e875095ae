#include "host/presets/ownpresets.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/parsers/widthformatidparser.h"
#include "formats/proxy/formatsproxy.h"
#include "host/files/atomicwrite.h"
#include "host/files/workfolder.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

const QLatin1String idKey("id");
const QLatin1String titleKey("title");
const QLatin1String groupKey("group");
const QLatin1String paramKey("videoParam");

/*! The values as the library takes them to add or change a preset. */
QVariantMap libraryValues(const QVariantMap &preset, const QString &title,
                          const PresetValues &values)
{
    const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
    QVariantMap all = {
        {titleKey, title},
        {QStringLiteral("videoBitrateLow"), video.value(QStringLiteral("bitrateLow")).toString()},
        {QStringLiteral("videoBitrateHigh"), video.value(QStringLiteral("bitrateHigh")).toString()},
    };
    for (const PresetSetting &setting : presetSettings()) {
        all.insert(setting.paramKey, values.value(setting.option));
    }
    return all;
}

/*! Offers \a value, after the smaller ones where these are numbers. */
void offer(QVariantList &choices, const QString &value)
{
    const auto isIt = [&value](const QVariant &each) { return each.toString() == value; };
    if (value.isEmpty() || std::any_of(choices.begin(), choices.end(), isIt)) {
        return;
    }
    const double number = value.toDouble();
    const auto larger =
        std::find_if(choices.begin(), choices.end(), [number](const QVariant &each) {
            return number > 0 && each.toDouble() > number;
        });
    choices.insert(larger, value);
}

struct Offered
{
    const char *option;
    QVariantList FormatDetailModelData::*choices;
};

constexpr Offered offered[] = {
    {"video-encoder", &FormatDetailModelData::videoEncoders},
    {"resolution", &FormatDetailModelData::videoResolutions},
    {"frame-rate", &FormatDetailModelData::videoFrameRates},
    {"video-bitrate", &FormatDetailModelData::videoBitrates},
    {"audio-encoder", &FormatDetailModelData::audioEncoders},
    {"channel", &FormatDetailModelData::audioChannels},
    {"sample-rate", &FormatDetailModelData::audioSampleRates},
    {"audio-bitrate", &FormatDetailModelData::audioBitrates},
};

QVector<FormatDetailModelData> ownIn(const FormatDetailModel &list)
{
    QVector<FormatDetailModelData> own;
    for (int row = 0; row < list.rowCount(); ++row) {
        FormatDetailModelData preset;
        if (list.data(list.index(row), FormatDetailModel::UserDefineRole).toBool() &&
            list.getModelInfoByIndex(row, preset)) {
            own << preset;
        }
    }
    return own;
}

} // namespace

bool OwnPreset::isSameAs(const OwnPreset &other) const
{
    return record == other.record && note.toJson() == other.note.toJson();
}

QString OwnPreset::title() const
{
    return record.value(titleKey).toString();
}

QMap<QString, OwnPreset> OwnPresets::all() const
{
    QMap<QString, OwnPreset> presets;
    const QJsonArray saved =
        QJsonArray::fromVariantList(m_formats.formatListModel()->toVariantListForSave());
    for (const QJsonValue &value : saved) {
        QJsonObject format = value.toObject();
        const QJsonArray group = format.take(groupKey).toArray();
        for (int row = 0; row < group.size(); ++row) {
            const QJsonObject record = group.at(row).toObject();
            const QString id = record.value(idKey).toString();
            presets.insert(id, {format, row, record, m_notes.of(id)});
        }
    }
    return presets;
}

QStringList OwnPresets::idsOf(const QString &className) const
{
    QStringList ids;
    if (const FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(className)) {
        const QVector<FormatDetailModelData> own = ownIn(*list);
        for (const FormatDetailModelData &preset : own) {
            ids << preset.id;
        }
    }
    return ids;
}

QString OwnPresets::add(const QString &className, const QVariantMap &base, const QString &title,
                        const PresetValues &values)
{
    const QString baseId = base.value(idKey).toString();
    FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(className);
    FormatDetailModelData baseRecord;
    if (list == nullptr || !list->getModelInfoById(baseId, baseRecord)) {
        return {};
    }
    QString id =
        m_formats.addUserDefineFormat({}, className, baseId, libraryValues(base, title, values));
    setDetails(*list, id, values);
    PresetNote note = baseRecord.userDefine ? m_notes.of(baseId) : PresetNote::about(baseRecord);
    note.text.clear();
    m_notes.set(id, note);
    return id;
}

void OwnPresets::change(const QString &className, const QString &id, const QString &title,
                        const PresetValues &values)
{
    FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(className);
    FormatDetailModelData record;
    if (list == nullptr || !list->getModelInfoById(id, record)) {
        return;
    }
    m_formats.changeUserDefineFormat(className, id,
                                     libraryValues(record.toVarMap(), title, values));
    setDetails(*list, id, values);
}

void OwnPresets::remove(const QString &className, const QString &id)
{
    m_formats.delUserDefineFormat({}, className, id);
    m_notes.remove(id);
}

void OwnPresets::setDetails(FormatDetailModel &list, const QString &id, const PresetValues &values)
{
    FormatDetailModelData record;
    list.getModelInfoById(id, record);
    if (record.outPutNode.contains(paramKey) && !record.videoEncoders.isEmpty()) {
        QVariantMap param = record.outPutNode.value(paramKey).toMap();
        for (const PresetDetail &detail : presetDetails()) {
            const QString value = values.value(detail.name);
            if (value.isEmpty()) {
                param.remove(detail.key);
            } else if (param.value(detail.key).toString() != value) {
                param.insert(detail.key, value);
            }
        }
        record.outPutNode.insert(paramKey, param);
    }
    for (const Offered &each : offered) {
        QVariantList &choices = record.*each.choices;
        if (!choices.isEmpty()) { // no video: nothing of it is offered
            offer(choices, values.value(QLatin1String(each.option)));
        }
    }
    list.updateModeInfo(list.findModelInfoIndex(id), record);
}

Result<> OwnPresets::put(const OwnPreset &preset)
{
    const QString className = preset.format.value(titleKey).toString();
    const QString id = preset.record.value(idKey).toString();
    QStringList ids = idsOf(className);
    const int row = ids.contains(id) ? ids.indexOf(id) : std::clamp(preset.row, 0, ids.size());
    QJsonObject format = preset.format;
    format.insert(groupKey, QJsonArray{preset.record});
    // Only the library's reader knows how a saved preset becomes a record.
    const Result<> written = WorkFolder::make().and_then([&](const WorkFolder &work) {
        const QString path = work.filePath(QStringLiteral("preset.json"));
        return writeAtomically(path, QJsonDocument(QJsonArray{format}).toJson(), {}).map([&] {
            if (FormatDetailModel *list =
                    m_formats.formatListModel()->formatDetailModel(className)) {
                list->delModelInfoByKey(id);
            }
            WidthFormatIdParser().parseVideo(path, m_formats.formatListModel(), true);
        });
    });
    if (!written) {
        return failed(
            tr("can't write a temporary file (%1); check the disk").arg(written.error().text));
    }
    ids.removeAll(id);
    ids.insert(row, id);
    sort(className, ids);
    m_notes.set(id, preset.note);
    return {};
}

void OwnPresets::sort(const QString &className, const QStringList &ids)
{
    FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(className);
    if (list == nullptr || idsOf(className) == ids) {
        return;
    }
    QVector<FormatDetailModelData> own = ownIn(*list);
    std::sort(own.begin(), own.end(),
              [&ids](const FormatDetailModelData &one, const FormatDetailModelData &other) {
                  return ids.indexOf(one.id) < ids.indexOf(other.id);
              });
    for (const FormatDetailModelData &preset : qAsConst(own)) {
        list->delModelInfoByKey(preset.id);
        list->addModeInfo(preset);
    }
}

QVariantMap OwnPresets::baseOf(const QString &id) const
{
    return m_formats.getFormat(m_notes.of(id).base);
}
