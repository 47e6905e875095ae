#ifndef MEDIA_MEDIAPROBE_H
#define MEDIA_MEDIAPROBE_H

#include "host/media/mediafacts.h"
#include "host/tools/tool.h"

/*! Limits of a probe. Any readable file stays far below them. */
constexpr ToolLimits probeLimits{32LL * 1024 * 1024, 30000};

/*! Asks ffprobe asynchronously what files contain, one file at a time. */
class MediaProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MediaProbe)

public:
    explicit MediaProbe(QObject *parent = nullptr);

    /*! finished() follows from the event loop, once. A running probe is abandoned first. */
    void start(const QString &path, const ToolLimits &limits = probeLimits);
    /*! Cancels the probe; finished() follows with Error::Cancelled. */
    void stop() { m_tool.stop(); }
    /*! Cancels the probe; finished() does not follow. */
    void abandon() { m_tool.abandon(); }

Q_SIGNALS:
    void finished(const Result<MediaFacts> &facts);

private:
    [[nodiscard]] Result<MediaFacts> factsFrom(const Result<ToolRun> &run) const;

    Tool m_tool;
    QString m_path;
};

#endif
