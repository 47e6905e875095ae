#ifndef CHECK_PRESETPROOF_H
#define CHECK_PRESETPROOF_H

#include "host/check/writtenfile.h"
#include "host/convert/conversion.h"
#include "host/error.h"

#include <QTimer>

#include <functional>

/*! The clip that presets are proven on: one second of picture and stereo sound. */
struct ProofClip
{
    QString path;
    MediaFacts facts;
};

/*!
 * Makes the clip in \a folder, with a picture of \a size in a form that no preset can copy, without
 * waiting. \a done is called once from the event loop.
 */
void makeProofClip(const QSize &size, const QString &folder, QObject *parent,
                   const std::function<void(const Result<ProofClip> &)> &done);

/*!
 * Converts the clip with a preset's settings and holds the result against them, without waiting.
 * Destroying it stops the conversion; the result is removed in any case.
 */
class PresetProof : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PresetProof)

public:
    PresetProof(const OutputSettings &settings, const ProofClip &clip, QObject *parent = nullptr);
    ~PresetProof() override;

    /*!
     * A conversion that isn't done after so many milliseconds fails: one that hangs, not one of a
     * large picture on a busy machine.
     */
    void start(int limit = 1800000);

Q_SIGNALS:
    /*! The preset converts as it says; else why not, of the kind EncoderMissing where only this
     *  machine's ffmpeg is to blame. */
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
