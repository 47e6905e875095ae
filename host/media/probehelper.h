#ifndef MEDIA_PROBEHELPER_H
#define MEDIA_PROBEHELPER_H

#include "host/tools/tool.h"

/*!
 * Asks a process of vexprobe what files contain, one file at a time. The process is started for the
 * first question and waits for the next one; one that dies, hangs or rambles is replaced.
 */
class ProbeHelper : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ProbeHelper)

public:
    /*! \a program is the path of vexprobe. */
    explicit ProbeHelper(const QString &program, QObject *parent = nullptr);

    /*! answered() follows from the event loop, once. An open question is abandoned first. */
    void ask(const QString &path, const ToolLimits &limits);
    /*! Kills the process; if there is a question, an empty answer follows. */
    void stop() { m_tool.stop(); }
    /*! Kills the process; no answer follows. */
    void abandon();

Q_SIGNALS:
    /*! What ffprobe would print, with the keys that MediaFacts reads. Empty if there was no answer
     *  within the limits, or the file can't be read. */
    void answered(const QByteArray &json);

private:
    void readAnswer();
    void answer(const QByteArray &json);

    const QString m_program;
    Tool m_tool;
    QTimer m_deadline;
    QByteArray m_received;
    qint64 m_mostBytes = 0;
    bool m_isAsked = false;
};

#endif
