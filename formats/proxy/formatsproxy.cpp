#include "formats/proxy/formatsproxy.h"

#include "formats/models/presetfields_p.h"
#include "formats/parsers/widthformatidparser.h"
#include "formats/proxy/formatsproxyprivate.h"

#include <formatcodecapi.h>

#include <QDebug>
#include <QtQml>

#include <algorithm>
#include <limits>

namespace {

const QLatin1String recentlyFile("recently.json");
const QLatin1String userPresetsFile("formatCache.json");

// The values that the user may change, each under its role name.
void applyUserValues(FormatDetailModelData &preset, const QVariantMap &param)
{
    using Preset = FormatDetailModelData;
    constexpr PresetFields::Text members[] = {
        &Preset::title,
        &Preset::videoEncoder,
        &Preset::videoFrameRate,
        &Preset::videoResolution,
        &Preset::videoBitrateLow,
        &Preset::videoBitrateMid,
        &Preset::videoBitrateHigh,
        &Preset::audioEncoder,
        &Preset::audioSampleRate,
        &Preset::audioChannel,
        &Preset::audioBitrate,
    };
    for (const PresetFields::Text member : members) {
        const char *name = PresetFields::of(member).roleName;
        preset.*member = param.value(QLatin1String(name)).toString();
    }
}

// The same values as the converter wants them.
void applyConverterSettings(QVariantMap &outPutNode, const QVariantMap &param)
{
    const auto text = [&param](const QString &key) { return param.value(key).toString(); };
    const auto number = [&param](const QString &key) { return param.value(key).toInt(); };

    const QString videoParam = QStringLiteral("videoParam");
    QVariantMap video = outPutNode.value(videoParam).toMap();
    video.insert(QStringLiteral("bitrateKbps"), number(QStringLiteral("videoBitrateMid")));
    video.insert(QStringLiteral("encoder"), text(QStringLiteral("videoEncoder")));
    video.insert(QStringLiteral("frameRate"), text(QStringLiteral("videoFrameRate")));
    video.insert(QStringLiteral("resolution"), text(QStringLiteral("videoResolution")));
    outPutNode.insert(videoParam, video);
    outPutNode.insert(QStringLiteral("audioParam"),
                      QVariantMap{
                          {QStringLiteral("bitrateKbps"), number(QStringLiteral("audioBitrate"))},
                          {QStringLiteral("channel"), text(QStringLiteral("audioChannel"))},
                          {QStringLiteral("encoder"), text(QStringLiteral("audioEncoder"))},
                          {QStringLiteral("sampleRate"), number(QStringLiteral("audioSampleRate"))},
                      });
}

QString withLastPart(const QString &catalogueId, const QString &lastPart)
{
    const QStringList parts = catalogueId.split(QLatin1Char('_'));
    return QStringLiteral("%1_%2_%3").arg(parts.value(0), parts.value(1), lastPart);
}

// Width times height of a text such as "1920x1080"; a missing side counts as 0.
qint64 area(const QString &resolution)
{
    const QStringList sides = resolution.split(QLatin1Char('x'));
    return qint64(sides.value(0).toInt()) * sides.value(1).toInt();
}

// Of all presets offered the one with the smallest distance, the last one on a tie.
class ClosestPreset
{
public:
    void offer(qint64 distance, const FormatDetailModelData &preset)
    {
        const auto rank = int(qBound<qint64>(std::numeric_limits<int>::min(), distance,
                                             std::numeric_limits<int>::max()));
        if (!m_found || rank <= m_rank) {
            m_found = true;
            m_rank = rank;
            m_preset = preset;
        }
    }

    QVariantMap toVarMap() const { return m_found ? m_preset.toVarMap() : QVariantMap(); }

private:
    bool m_found = false;
    int m_rank = 0;
    FormatDetailModelData m_preset;
};

qint64 distance(qint64 a, qint64 b)
{
    return qAbs(a - b);
}

} // namespace

FormatsProxy *FormatsProxy::getInstance()
{
    static FormatsProxy instance;
    return &instance;
}

FormatsProxy::FormatsProxy(QObject *parent)
    : QObject(parent)
    , d(new FormatsProxyPrivate(this))
{
    qmlRegisterType<FormatListModel>("CVFormats", 1, 0, "FormatListModel");
    qmlRegisterType<FormatListModelProxy>("CVFormats", 1, 0, "FormatListModelProxy");
    qmlRegisterType<FormatDetailModel>("CVFormats", 1, 0, "FormatDetailModel");
    d->parser = new WidthFormatIdParser(this);
}

FormatsProxy::~FormatsProxy() = default;

void FormatsProxy::init(const QString &dir)
{
    d->configDir = dir;
    setFormatTags({QStringLiteral("recently"), QStringLiteral("video"), QStringLiteral("audio"),
                   QStringLiteral("device"), QStringLiteral("socialvideo")});
    if (!d->configDir.isEmpty()) {
        d->parser->parseRecently(d->configPath(recentlyFile), d->recentlyModel, true);
    }
    const QVariantList categories = FormatCodecApi::getInstance()->getExportCategoryLists();
    for (const QVariant &category : categories) {
        d->parser->parseVideoNew(category.toString(), d->formatListModel);
    }
    // Without a folder the path is the separator and the name: looked for all the same.
    d->parser->parseVideo(d->configPath(userPresetsFile), d->formatListModel, true);
}

void FormatsProxy::uninit()
{
    if (d->configDir.isEmpty()) {
        return;
    }
    if (d->recentlyModel) {
        d->save(recentlyFile, d->recentlyModel->toVariantListForSave());
    }
    if (d->formatListModel) {
        d->save(userPresetsFile, d->formatListModel->toVariantListForSave());
    }
}

QList<QVariant> FormatsProxy::formatTags() const
{
    return d->formatTags;
}

void FormatsProxy::setFormatTags(const QList<QVariant> &tags)
{
    if (tags == d->formatTags) {
        return;
    }
    d->formatTags = tags;
    Q_EMIT formatTagsChanged();
}

FormatListModelProxy *FormatsProxy::formatListModelProxy()
{
    return d->formatListModelProxy;
}

FormatListModel *FormatsProxy::formatListModel()
{
    return d->formatListModel;
}

void FormatsProxy::setFormatTag(const QString &tag)
{
    d->formatListModelProxy->setFilterKey(tag);
}

FormatDetailModel *FormatsProxy::recentlyFormatsModel()
{
    return d->recentlyModel;
}

bool FormatsProxy::add2Recently(const QString &tagName, const QString &className, const QString &id)
{
    FormatDetailModel *recently = d->recentlyModel;
    if (!recently) {
        return false;
    }
    const FormatDetailModelData *source = d->find(tagName, className, id);
    if (!source) {
        return true;
    }
    FormatDetailModelData preset = *source;
    // Only user-defined presets are saved, and the recently-used ones are to be.
    preset.userDefine = true;
    const bool moved = recently->delModelInfoByKey(preset.id);
    if (!moved && recently->rowCount() >= d->maxRecentlyCount) {
        recently->delModeInfo(recently->rowCount() - 1);
    }
    recently->addModeInfoAtHead(preset);
    return true;
}

bool FormatsProxy::delFromRecently(const QString &id)
{
    return d->recentlyModel && d->recentlyModel->delModelInfoByKey(id);
}

QString FormatsProxy::addUserDefineFormat(const QString & /*tagName*/, const QString &className,
                                          const QString &id, const QVariantMap &param)
{
    FormatDetailModel *presets = d->catalogue().formatDetailModel(className);
    FormatDetailModelData preset;
    if (!presets || !presets->getModelInfoById(id, preset)) {
        return QString();
    }
    preset.id = QString::number(presets->getIdIndex() + 1);
    preset.userDefine = true;
    applyUserValues(preset, param);
    applyConverterSettings(preset.outPutNode, param);
    const QString idKey = QStringLiteral("id");
    preset.outPutNode.insert(idKey,
                             withLastPart(preset.outPutNode.value(idKey).toString(), preset.id));
    presets->addModeInfo(preset);
    return preset.id;
}

bool FormatsProxy::changeUserDefineFormat(const QString &className, const QString &id,
                                          const QVariantMap &param)
{
    FormatDetailModel *presets = d->catalogue().formatDetailModel(className);
    if (!presets) {
        return true;
    }
    FormatDetailModelData preset;
    if (!presets->getModelInfoById(id, preset)) {
        return false;
    }
    applyUserValues(preset, param);
    applyConverterSettings(preset.outPutNode, param);
    presets->updateModeInfo(presets->findModelInfoIndex(id), preset);
    return true;
}

bool FormatsProxy::delUserDefineFormat(const QString & /*tagName*/, const QString &className,
                                       const QString &id)
{
    FormatDetailModel *presets = d->catalogue().formatDetailModel(className);
    if (!presets || !presets->delModelInfoByKey(id)) {
        return false;
    }
    delFromRecently(id);
    return true;
}

QVariantMap FormatsProxy::getFormat(const QString &tagName, const QString &className,
                                    const QString &id) const
{
    const FormatDetailModelData *preset = d->find(tagName, className, id);
    return preset ? preset->toVarMap() : QVariantMap();
}

QVariantMap FormatsProxy::getFormat(const QString &id) const
{
    const QVariantMap place = getTagAndClassById(id);
    if (place.isEmpty()) {
        return QVariantMap();
    }
    return getFormat(place.value(QStringLiteral("tag")).toString(),
                     place.value(QStringLiteral("class")).toString(), id);
}

bool FormatsProxy::isAudioFormat(const QString &id) const
{
    const FormatDetailModelData *preset = d->findInCatalogue(id);
    return preset && preset->videoEncoders.isEmpty() && !preset->audioEncoders.isEmpty();
}

bool FormatsProxy::isVideoFormat(const QString &id) const
{
    const FormatDetailModelData *preset = d->findInCatalogue(id);
    return preset && !preset->videoEncoders.isEmpty() && !preset->audioEncoders.isEmpty();
}

bool FormatsProxy::isSupportMultiTrack(const QString &id) const
{
    static const QStringList multiTrackClasses{QStringLiteral("MP4"), QStringLiteral("MOV"),
                                               QStringLiteral("AVI"), QStringLiteral("M4V")};
    QString className;
    return d->findInCatalogue(id, &className) && multiTrackClasses.contains(className);
}

QString FormatsProxy::getTagName(const QString &id) const
{
    return d->catalogue().getTagName(id);
}

QVariantMap FormatsProxy::getTagAndClassById(const QString &id) const
{
    const QString tag = d->catalogue().getTagName(id);
    const QString className = d->catalogue().getGetClass(id);
    if (tag.isEmpty() || className.isEmpty()) {
        return QVariantMap();
    }
    return {{QStringLiteral("tag"), tag}, {QStringLiteral("class"), className}};
}

QString FormatsProxy::getClassIconById(const QString &id) const
{
    return d->catalogue().getIcon(id);
}

int FormatsProxy::getUserDefineCount(const QString &tagName, const QString &className) const
{
    if (tagName.isEmpty() || className.isEmpty() || tagName == QLatin1String("recently")) {
        return -1;
    }
    const FormatDetailModel *presets = d->catalogue().formatDetailModel(className);
    return presets ? presets->userDefineCount() : -1;
}

bool FormatsProxy::isFormatInRecently(const QString &id) const
{
    return d->recentlyModel && d->recentlyModel->containId(id);
}

QVariantList FormatsProxy::getSupportAudioLisrfromType(const QString &type) const
{
    const QVariantList fallback{QStringLiteral("320"), QStringLiteral("256"),
                                QStringLiteral("128")};
    const FormatDetailModel *presets = d->catalogue().formatDetailModel(type.toUpper());
    FormatDetailModelData first;
    if (!presets || !presets->getModelInfoByIndex(0, first) || first.userDefine) {
        return fallback;
    }
    QVariantList bitrates = first.audioBitrates;
    if (!bitrates.isEmpty()) {
        bitrates.removeFirst(); // the source's own
    }
    qInfo() << "getSupportAudioLisrfromType"
            << "reverse tempList";
    std::reverse(bitrates.begin(), bitrates.end());
    return bitrates.isEmpty() ? fallback : bitrates;
}

bool FormatsProxy::isVideoType(const QString &format) const
{
    return d->catalogue().isVideoType(format);
}

QMap<QString, QVariant> FormatsProxy::getFitAudioFormatByBitrate(const QString &formatTitle,
                                                                 const QString &bitrate) const
{
    const FormatDetailModel *presets = d->catalogue().formatDetailModel(formatTitle);
    ClosestPreset closest;
    FormatDetailModelData preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        closest.offer(distance(preset.audioBitrate.toInt(), bitrate.toInt()), preset);
    }
    return closest.toVarMap();
}

QMap<QString, QVariant> FormatsProxy::getFitVideoFormatByName(const QString &formatTitle,
                                                              const QString &presetTitle,
                                                              const QString &bitrateCap) const
{
    const FormatDetailModel *presets = d->catalogue().formatDetailModel(formatTitle);
    FormatDetailModelData preset;
    int row = 0;
    while (presets && presets->getModelInfoByIndex(row, preset) &&
           preset.title.compare(presetTitle, Qt::CaseInsensitive) != 0) {
        ++row;
    }
    if (!presets || row == presets->rowCount()) {
        return QVariantMap();
    }

    const int cap = bitrateCap.toInt();
    if (cap >= 1) {
        QVector<int> withinCap;
        for (const QVariant &bitrate : qAsConst(preset.audioBitrates)) {
            if (bitrate.toInt() <= cap) {
                withinCap.append(bitrate.toInt());
            }
        }
        const int chosen =
            withinCap.isEmpty() ? 0 : *std::max_element(withinCap.cbegin(), withinCap.cend());
        d->updateFormatDetailModelDataByAudioBitrate(preset, QString::number(chosen));
    }
    return preset.toVarMap();
}

bool FormatsProxy::getSupportFormat(const QString &format) const
{
    return d->catalogue().formatList().contains(format.toUpper());
}

QMap<QString, QVariant> FormatsProxy::getConverterParameters(const QString &type,
                                                             const QString &format, QVariant target,
                                                             bool preferSource) const
{
    const bool isVideo = type == QLatin1String("video");
    const bool isAudio = type == QLatin1String("audio");
    if (!isVideo && !isAudio) {
        return QVariantMap();
    }
    QString name = format;
    if (!getSupportFormat(format)) {
        preferSource = true;
        name = isVideo ? QStringLiteral("mp4") : QStringLiteral("mp3");
    }

    const QString source = QStringLiteral("0");
    const FormatDetailModel *presets = d->catalogue().formatDetailModel(name.toUpper());
    ClosestPreset closest;
    FormatDetailModelData preset;
    for (int row = 0; presets && presets->getModelInfoByIndex(row, preset); ++row) {
        if (preset.userDefine) {
            continue;
        }
        const QString &own = isVideo ? preset.videoResolution : preset.audioBitrate;
        if (preferSource && own == source) {
            return preset.toVarMap();
        }
        if (isAudio) {
            closest.offer(distance(own.toInt(), target.toInt()), preset);
            continue;
        }
        const qint64 wanted = area(target.toString());
        if (own == source) {
            closest.offer(wanted, preset);
        }
        closest.offer(distance(area(own), wanted), preset);
    }
    return closest.toVarMap();
}
