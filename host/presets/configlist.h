#ifndef PRESETS_CONFIGLIST_H
#define PRESETS_CONFIGLIST_H

#include "host/error.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QString>

/*! A list that this program keeps in a JSON file of its own in the configuration folder:
 *  {"version": 1, "entries": [...]}. */
class ConfigList
{
    Q_DECLARE_TR_FUNCTIONS(ConfigList)

public:
    /*! \a path is absolute; the file need not exist. */
    explicit ConfigList(const QString &path)
        : m_path(path)
    {}

    /*! Empty if there is no file. Fails for a file that can't be read or has another form. */
    [[nodiscard]] Result<QJsonArray> read() const;
    /*! Replaces the file in one step; one that read() refuses is kept under another name. On
     *  failure the file is unchanged. */
    [[nodiscard]] Result<> write(const QJsonArray &entries) const;

private:
    QString m_path;
};

/*! The content of a JSON file of a limited size; what can't be read is named with the reason. */
[[nodiscard]] Result<QByteArray> readSmallFile(const QString &path, qint64 largest);

#endif
