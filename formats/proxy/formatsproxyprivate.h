#ifndef FORMATS_PROXY_FORMATSPROXYPRIVATE_H
#define FORMATS_PROXY_FORMATSPROXYPRIVATE_H

#include "formats/formatsglobal.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

class FormatDetailModel;
class FormatDetailModelData;
class FormatListModel;
class FormatListModelProxy;
class FormatsProxy;
class IFormatsParser;

/*!
 * The facade's state. Models and parser are children of the facade. The format list and the
 * recently-used list may be null: a null list counts as empty, except that add2Recently() fails
 * and uninit() does not write its file.
 */
class VEX_FORMATS_EXPORT FormatsProxyPrivate
{
    Q_DISABLE_COPY(FormatsProxyPrivate)

public:
    explicit FormatsProxyPrivate(FormatsProxy *q);

    /*! Overwrites the file with \a text in UTF-8; false if it cannot be opened. Makes no folder. */
    bool write2Local(const QString &path, const QString &text);

    FormatsProxy *q;
    QList<QVariant> formatTags;
    QMap<QString, FormatListModel *> modelMap;
    FormatListModel *formatListModel;
    FormatListModelProxy *formatListModelProxy;
    FormatDetailModel *recentlyModel;
    IFormatsParser *parser = nullptr;
    int maxRecentlyCount = 10;
    QString configDir;

private:
    friend class FormatsProxy;

    [[nodiscard]] Q_DECL_HIDDEN QString configPath(QLatin1String fileName) const;
    Q_DECL_HIDDEN void save(QLatin1String fileName, const QVariantList &list);
    // The format list, or an empty one if it is null.
    [[nodiscard]] Q_DECL_HIDDEN const FormatListModel &catalogue() const;
    // Both return null if there is no such preset, else a pointer that is valid until its list
    // changes.
    [[nodiscard]] Q_DECL_HIDDEN const FormatDetailModelData *
    find(const QString &tagName, const QString &className, const QString &id) const;
    [[nodiscard]] Q_DECL_HIDDEN const FormatDetailModelData *
    findInCatalogue(const QString &id) const;
    // The format of the catalogue's preset with this id; empty if there is none.
    [[nodiscard]] Q_DECL_HIDDEN QString classOf(const QString &id) const;
    Q_DECL_HIDDEN void updateFormatDetailModelDataByAudioBitrate(FormatDetailModelData &preset,
                                                                 const QString &bitrate);
};

#endif
