#ifndef TOOLS_ENCODERLIST_H
#define TOOLS_ENCODERLIST_H

#include "host/tools/tool.h"

#include <QSet>
#include <QSharedPointer>

/*!
 * Finds out which encoders the ffmpeg on the PATH has. Those who ask at the same time share a
 * query; its list is cached until the process ends or the program's file changes.
 */
class EncoderList : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(EncoderList)

public:
    explicit EncoderList(QObject *parent = nullptr);

    /*! finished() follows from the event loop, once. */
    void start();
    /*! Cancels the query; finished() follows with Error::Cancelled. */
    void stop();

Q_SIGNALS:
    /*! The names of the encoders, as ffmpeg takes them for -c. */
    void finished(const Result<QSet<QString>> &encoders);

private:
    void forgetQuery();
    void take(const Result<ToolRun> &run);

    QSharedPointer<Tool> m_query; // while it runs
    QTimer m_answer;              // delivers what is known already from the event loop
    QString m_program;
    bool m_isStopped = false;
};

/*! The encoders' names in the list that ffmpeg prints for -encoders. */
[[nodiscard]] QSet<QString> encodersInListing(const QByteArray &listing);

#endif
