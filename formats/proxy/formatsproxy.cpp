#include "formats/proxy/formatsproxy.h"

#include "formats/parsers/widthformatidparser.h"
#include "formats/proxy/formatsproxyprivate.h"
#include "formats/proxy/presetfitting_p.h"
#include "formats/proxy/userpresets_p.h"

#include <formatcodecapi.h>

#include <QDebug>
#include <QtQml>

#include <algorithm>
#include <optional>

namespace {

const QLatin1String recentlyFile("recently.json");
const QLatin1String userPresetsFile("formatCache.json");

QVariantMap toVarMap(const std::optional<FormatDetailModelData> &preset)
{
    return preset ? preset->toVarMap() : QVariantMap();
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
    Q_INIT_RESOURCE(formats); // a static library's resources need this call
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
    // Even without a folder: the path is then the separator and the file name.
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
    // Only user-defined presets are saved, and the recently-used ones must be.
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
        return {};
    }
    UserPresets::applyValues(preset, param);
    UserPresets::applyId(preset, QString::number(presets->getIdIndex() + 1));
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
    UserPresets::applyValues(preset, param);
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
        return {};
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
    return d->findInCatalogue(id) && multiTrackClasses.contains(d->classOf(id));
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
        return {};
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
    QVariantList bitrates = first.audioBitrates.mid(1); // the first one is the source's own
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
    return toVarMap(PresetFitting::closestInAudioBitrate(
        d->catalogue().formatDetailModel(formatTitle), bitrate.toInt()));
}

QMap<QString, QVariant> FormatsProxy::getFitVideoFormatByName(const QString &formatTitle,
                                                              const QString &presetTitle,
                                                              const QString &bitrateCap) const
{
    std::optional<FormatDetailModelData> preset =
        PresetFitting::titled(d->catalogue().formatDetailModel(formatTitle), presetTitle);
    const int cap = bitrateCap.toInt();
    if (preset && cap >= 1) {
        const int chosen = PresetFitting::highestWithin(cap, preset->audioBitrates);
        d->updateFormatDetailModelDataByAudioBitrate(*preset, QString::number(chosen));
    }
    return toVarMap(preset);
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
        return {};
    }
    QString name = format;
    if (!getSupportFormat(format)) {
        preferSource = true;
        name = isVideo ? QStringLiteral("mp4") : QStringLiteral("mp3");
    }

    const FormatDetailModel *presets = d->catalogue().formatDetailModel(name.toUpper());
    return toVarMap(isVideo
                        ? PresetFitting::forResolution(presets, target.toString(), preferSource)
                        : PresetFitting::forAudioBitrate(presets, target.toInt(), preferSource));
}
