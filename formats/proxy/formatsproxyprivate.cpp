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

FormatDetailModel *FormatsProxyPrivate::presetsOf(const QString &tagName,
                                                  const QString &className) const
{
    return tagName == QLatin1String("recently") ? recentlyModel
                                                : formatListModel->formatDetailModel(className);
}

bool FormatsProxyPrivate::findInCatalogue(const QString &id, QString &className,
                                          FormatDetailModelData &preset) const
{
    className = q->getTagAndClassById(id).value(QStringLiteral("class")).toString();
    return !className.isEmpty() &&
           formatListModel->formatDetailModel(className)->getModelInfoById(id, preset);
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
