#include "formats/proxy/formatsproxyprivate.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/models/formatlistmodelproxy.h"
#include "formats/proxy/formatsproxy.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

FormatsProxyPrivate::FormatsProxyPrivate(FormatsProxy *facade)
    : q(facade)
    , formatListModel(new FormatListModel(facade))
    , formatListModelProxy(new FormatListModelProxy(facade))
    , recentlyModel(new FormatDetailModel(facade))
{
    formatListModelProxy->setSourceModel(formatListModel);
}

bool FormatsProxyPrivate::write2Local(const QString &path, const QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(text.toUtf8());
    return true;
}

QString FormatsProxyPrivate::configPath(QLatin1String fileName) const
{
    return configDir + QDir::separator() + fileName;
}

void FormatsProxyPrivate::save(QLatin1String fileName, const QVariantList &list)
{
    const QByteArray json = QJsonDocument::fromVariant(list).toJson();
    write2Local(configPath(fileName), QString::fromUtf8(json));
}

const FormatListModel &FormatsProxyPrivate::catalogue() const
{
    static const FormatListModel empty;
    return formatListModel ? *formatListModel : empty;
}

const FormatDetailModelData *
FormatsProxyPrivate::find(const QString &tagName, const QString &className, const QString &id) const
{
    const FormatDetailModel *presets = tagName == QLatin1String("recently")
                                           ? recentlyModel
                                           : catalogue().formatDetailModel(className);
    return presets ? presets->find(id) : nullptr;
}

QString FormatsProxyPrivate::classOf(const QString &id) const
{
    return q->getTagAndClassById(id).value(QStringLiteral("class")).toString();
}

const FormatDetailModelData *FormatsProxyPrivate::findInCatalogue(const QString &id) const
{
    const QString className = classOf(id);
    return className.isEmpty() ? nullptr : catalogue().formatDetailModel(className)->find(id);
}

void FormatsProxyPrivate::updateFormatDetailModelDataByAudioBitrate(FormatDetailModelData &preset,
                                                                    const QString &bitrate)
{
    const QString audioParam = QStringLiteral("audioParam");
    preset.audioBitrate = bitrate;
    QVariantMap settings = preset.outPutNode.value(audioParam).toMap();
    settings.insert(QStringLiteral("bitrateKbps"), bitrate);
    preset.outPutNode.insert(audioParam, settings);
}
