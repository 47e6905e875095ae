#ifndef WINDOW_INSPECTOR_H
#define WINDOW_INSPECTOR_H

#include "host/files/workfolder.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QQueue>
#include <QVector>

#include <memory>
#include <vector>

/*!
 * Reads files asynchronously: the facts of as many at a time as there are processor cores, and then
 * the thumbnails that are asked for, one at a time.
 */
class Inspector : public QObject
{
    Q_OBJECT

public:
    explicit Inspector(QObject *parent = nullptr);

    /*! Queues the file. \a id identifies it in the signals. */
    void inspect(int id, const QString &path);
    /*! Queues the thumbnail of a file that has been read; the last one asked for is made first.
     *  Nothing follows if \a facts name neither video nor cover. */
    void requestThumbnail(int id, const QString &path, const MediaFacts &facts);
    /*! Removes the file from the queues, even while a tool is reading it. */
    void forget(int id);

Q_SIGNALS:
    void read(int id, const Result<MediaFacts> &facts);
    /*! \a url is valid as long as this object. */
    void thumbnailReady(int id, const QString &url);

private:
    struct File
    {
        int id = 0;
        QString path;
    };
    struct Reader
    {
        MediaProbe probe;
        int id = 0; //!< of the file that it reads; 0: none
    };
    struct Picture
    {
        int id = 0;
        QStringList arguments; //!< of ffmpeg
    };

    void readNext();
    void makeNextThumbnail();
    void takeThumbnail(const Result<ToolRun> &run);
    QString thumbnailFile(int id) const;

    QQueue<File> m_unread;
    QVector<Picture> m_pictures; // the next one last
    int m_pictured = 0;          // whose thumbnail is being made; 0: none
    const Result<WorkFolder> m_thumbnails = WorkFolder::make();
    // Declared last, so that they stop before the folder is removed.
    std::vector<std::unique_ptr<Reader>> m_readers;
    Tool m_ffmpeg;
};

#endif
