#ifndef WINDOW_INSPECTOR_H
#define WINDOW_INSPECTOR_H

#include "host/files/workfolder.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QQueue>

/*! Reads files asynchronously, one at a time: their facts, and a thumbnail of each video or cover.
 */
class Inspector : public QObject
{
    Q_OBJECT

public:
    explicit Inspector(QObject *parent = nullptr);

    /*! Queues the file. \a id identifies it in the signals. */
    void inspect(int id, const QString &path);
    /*! Removes the file from the queue, even while a tool is reading it. */
    void forget(int id);

Q_SIGNALS:
    void read(int id, const Result<MediaFacts> &facts);
    /*! Follows read() if the file has a video or cover. \a url is valid as long as this object. */
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
    // Run for the first request. Declared last, so that they stop before the folder is removed.
    MediaProbe m_probe;
    Tool m_ffmpeg;
};

#endif
