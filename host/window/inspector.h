#ifndef WINDOW_INSPECTOR_H
#define WINDOW_INSPECTOR_H

#include "host/files/workfolder.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QPointer>
#include <QQueue>

/*!
 * Looks into files, one after another and without ever waiting: what they hold, and a picture of
 * each film. Any number of files may stand in the queue.
 */
class Inspector : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~Inspector() override;

    /*! \a id names the file in the signals. */
    void inspect(int id, const QString &path);
    /*! Gives the file up at once, also while a tool works on it. */
    void forget(int id);

Q_SIGNALS:
    void read(int id, const ProbeOutcome &outcome);
    /*! After read(), for a file with a picture. \a url is there as long as this object. */
    void pictured(int id, const QString &url);

private:
    struct Question
    {
        int id = 0;
        QString path;
    };

    void askNext();
    void take(const ProbeOutcome &outcome);
    void picture(const Question &question, const MediaFacts &facts);

    QQueue<Question> m_questions;
    QPointer<Tool> m_tool; // works on the first question
    WorkFolder m_pictures;
};

#endif
