#ifndef QUEUE_SOURCEFILES_H
#define QUEUE_SOURCEFILES_H

#include "host/error.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/*! A file to convert. */
struct SourceFile
{
    QString path;      //!< as it was named
    QString subfolder; //!< where it lies below the folder that was named; empty: directly in it
};

/*! The files that a user names to be converted: files, and folders for the media files in them. */
class SourceFiles
{
    Q_DECLARE_TR_FUNCTIONS(SourceFiles)
public:
    using Take = std::function<void(const SourceFile &file)>;

    SourceFiles() = default;
    SourceFiles(const QStringList &named, bool isRecursive)
        : m_named(named)
        , m_isRecursive(isRecursive)
    {}

    /*! Leaves \a folder out, as it gets the results. An error if it is one of the folders. */
    [[nodiscard]] Result<> leaveOut(const QString &folder);
    /*! Leaves all files out but those with these paths. */
    void keepOnly(const QSet<QString> &paths) { m_only = paths; }
    /*! The folders that were named. */
    [[nodiscard]] QStringList folders() const;
    /*!
     * Calls \a take for each file, in the order in which they were named. Those of a folder follow
     * sorted by name, then those of its subfolders if the search is recursive. Links to folders and
     * hidden folders are left out. Holds the names of one folder at a time.
     */
    void each(const Take &take) const;

private:
    void eachIn(const QString &folder, const QString &subfolder, const Take &take) const;

    QStringList m_named;
    bool m_isRecursive = false;
    QString m_leftOut;
    std::optional<QSet<QString>> m_only;
};

/*! The paths in a list of them, one per line, or each ended by a NUL as "find -print0" does. */
[[nodiscard]] QStringList pathsInList(const QByteArray &list);

#endif
