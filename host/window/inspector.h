#ifndef WINDOW_INSPECTOR_H
#define WINDOW_INSPECTOR_H

#include "host/files/workfolder.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QQueue>

/*!
 * Looks into files, one after another and without ever waiting: what they hold, and a picture of
 * each film. Any number of files may stand in the queue.
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
    /*! After read(), for a file with a picture. \a url is there as long as this object. */
    void pictured(int id, const QString &url);

private:
    struct Question
    {
        int id = 0;
        QString path;
    };

    void askNext();
    void take(const Result<MediaFacts> &facts);
    void picture(const Question &question, const MediaFacts &facts);
    void takePicture(const Result<ToolRun> &run);
    QString pictureFile(int id) const;

    QQueue<Question> m_questions;
    const Result<WorkFolder> m_pictures = WorkFolder::make();
    // They work on the first question, and stop before the folder is removed.
    MediaProbe m_probe;
    Tool m_ffmpeg;
};

#endif
