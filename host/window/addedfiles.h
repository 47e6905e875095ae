#ifndef WINDOW_ADDEDFILES_H
#define WINDOW_ADDEDFILES_H

#include <QList>
#include <QSet>
#include <QStringList>
#include <QUrl>

/*! What becomes of files that the user adds to a list. */
struct AddedFiles
{
    QStringList files;   //!< to add, absolute
    QStringList known;   //!< those that are in the list already, absolute
    QStringList notices; //!< what can't be added and why, a line each

    /*! Sorts the files at \a paths, and the media files of the folders among them. \a present are
     *  the files of the list. */
    [[nodiscard]] static AddedFiles of(const QStringList &paths, const QSet<QString> &present);
};

/*! One line for each of the addresses that is no file of this machine. */
[[nodiscard]] QStringList noticesOfRemote(const QList<QUrl> &urls);

#endif
