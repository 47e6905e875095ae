#ifndef CHECK_PRESETPROOF_H
#define CHECK_PRESETPROOF_H

#include "host/check/writtenfile.h"
#include "host/convert/conversion.h"
#include "host/error.h"

#include <QTimer>

#include <functional>

/*! The clip that presets are proven with: one second of video and stereo audio. */
struct ProofClip
{
    QString path;
    MediaFacts facts;
};

/*!
 * Makes the clip in \a folder asynchronously, with video of \a size and codecs that no preset can
 * copy. \a done is called once, from the event loop.
 */
void makeProofClip(const QSize &size, const QString &folder, QObject *parent,
                   const std::function<void(const Result<ProofClip> &)> &done);

/*!
 * Converts the clip with a preset's settings asynchronously and compares the result with them.
 * Destroying it stops the conversion; the converted file is always removed.
 */
class PresetProof : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PresetProof)

public:
    PresetProof(const OutputSettings &settings, const ProofClip &clip, QObject *parent = nullptr);
    ~PresetProof() override;

    /*!
     * A conversion that takes longer than \a limit (ms) fails. The default is enough for large
     * video on a busy machine, so that only one that hangs exceeds it.
     */
    void start(int limit = 1800000);

Q_SIGNALS:
    /*! The preset converts as expected; else an error, of the kind EncoderMissing if this machine's
     *  ffmpeg lacks the encoder. */
    void finished(const Result<> &outcome);

private:
    void measure(const Result<ConversionOutcome> &outcome);
    void compare(const Result<ToolRun> &run);

    const OutputSettings m_settings;
    const ProofClip m_clip;
    Conversion m_conversion;
    Tool m_packetList;
    ConversionOutcome m_converted;
    QTimer m_limit;
};

#endif
