#ifndef MEDIA_MEDIAPROBE_H
#define MEDIA_MEDIAPROBE_H

#include "host/media/mediafacts.h"
#include "host/media/probehelpers.h"

/*! Limits of a probe. Any readable file stays far below them. */
constexpr ToolLimits probeLimits{32LL * 1024 * 1024, 30000};

/*!
 * Finds out asynchronously what files contain, one file at a time. It asks vexprobe, which runs
 * already, and where that has no answer ffprobe, which also says why a file can't be read.
 */
class MediaProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MediaProbe)

public:
    explicit MediaProbe(QObject *parent = nullptr, ProbeHelpers &helpers = ProbeHelpers::shared());
    ~MediaProbe() override;

    /*! finished() follows from the event loop, once. A running probe is abandoned first. */
    void start(const QString &path, const ToolLimits &limits = probeLimits);
    /*! Cancels the probe; finished() follows with Error::Cancelled. */
    void stop();
    /*! Cancels the probe; finished() does not follow. */
    void abandon();

Q_SIGNALS:
    void finished(const Result<MediaFacts> &facts);

private:
    void takeAnswer(const QByteArray &json);
    void releaseHelper();
    void askFfprobe();
    [[nodiscard]] Result<MediaFacts> factsFrom(const Result<ToolRun> &run) const;

    ProbeHelpers &m_helpers;
    std::unique_ptr<ProbeHelper> m_helper; // while it is asked
    Tool m_ffprobe;
    QString m_path;
    ToolLimits m_limits;
    bool m_isStopped = false;
};

#endif
