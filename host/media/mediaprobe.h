#ifndef MEDIA_MEDIAPROBE_H
#define MEDIA_MEDIAPROBE_H

#include "host/media/mediafacts.h"
#include "host/tools/tool.h"

/*! What a look into a file may take: any file that can be read takes far less. */
constexpr ToolLimits probeLimits{32LL * 1024 * 1024, 30000};

/*! Asks ffprobe what files hold, without waiting, one file after another. */
class MediaProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MediaProbe)

public:
    explicit MediaProbe(QObject *parent = nullptr);

    /*! finished() follows from the event loop, once. A question that is open already is abandoned.
     */
    void start(const QString &path, const ToolLimits &limits = probeLimits);
    /*! Gives the question up; finished() follows with Error::Cancelled. */
    void stop() { m_tool.stop(); }
    /*! Gives the question up; no finished() follows. */
    void abandon() { m_tool.abandon(); }

Q_SIGNALS:
    void finished(const Result<MediaFacts> &facts);

private:
    [[nodiscard]] Result<MediaFacts> factsFrom(const Result<ToolRun> &run) const;

    Tool m_tool;
    QString m_path;
};

#endif
