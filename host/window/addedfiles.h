#ifndef WINDOW_ADDEDFILES_H
#define WINDOW_ADDEDFILES_H

#include "host/queue/sourcefiles.h"

#include <QList>
#include <QSet>
#include <QStringList>
#include <QUrl>
#include <QVector>

/*! What becomes of files that the user adds to a list. */
struct AddedFiles
{
    QVector<SourceFile> files; //!< to add, absolute
    QVector<SourceFile> known; //!< those that are in the list already, absolute
    QStringList notices;       //!< what can't be added and why, a line each

    /*! Sorts the files at \a paths, and the media files of the folders among them and of their
     *  subfolders. \a present are the files of the list, and \a results is the folder of earlier
     *  results, which are no sources unless it is added itself; empty: none. */
    [[nodiscard]] static AddedFiles of(const QStringList &paths, const QSet<QString> &present,
                                       const QString &results);
};

/*! One line for each of the addresses that is no file of this machine. */
[[nodiscard]] QStringList noticesOfRemote(const QList<QUrl> &urls);

#endif
