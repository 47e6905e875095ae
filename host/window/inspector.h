#ifndef WINDOW_INSPECTOR_H
#define WINDOW_INSPECTOR_H

#include "host/files/workfolder.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QQueue>

/*!
 * Reads files one after another, without blocking: what they hold, and a thumbnail of each video or
 * cover. Any number of files may wait.
 */
class Inspector : public QObject
{
    Q_OBJECT

public:
    explicit Inspector(QObject *parent = nullptr);

    /*! \a id names the file in the signals. */
    void inspect(int id, const QString &path);
    /*! Gives the file up at once, also while a tool works on it. */
    void forget(int id);

Q_SIGNALS:
    void read(int id, const Result<MediaFacts> &facts);
    /*! After read(), for a file with a picture. The file at \a url lives as long as this object. */
    void thumbnailReady(int id, const QString &url);

private:
    struct Request
    {
        int id = 0;
        QString path;
    };

    void readNext();
    void takeFacts(const Result<MediaFacts> &facts);
    void makeThumbnail(const Request &request, const MediaFacts &facts);
    void takeThumbnail(const Result<ToolRun> &run);
    QString thumbnailFile(int id) const;

    QQueue<Request> m_requests;
    const Result<WorkFolder> m_thumbnails = WorkFolder::make();
    // They work on the first request, and stop before the folder is removed.
    MediaProbe m_probe;
    Tool m_ffmpeg;
};

#endif
