#ifndef CONVERT_SIZESAMPLE_H
#define CONVERT_SIZESAMPLE_H

#include "host/convert/conversion.h"
#include "host/convert/piecesizes.h"

#include <QTimer>

#include <memory>

Q_DECLARE_METATYPE(Result<double>)

/*!
 * Encodes short pieces of a source, at several places and at low priority, to find out about how
 * large all of the result would be. No file is written.
 */
class SizeSample : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SizeSample)

public:
    /*! A sample that takes more than \a patience ms is given up. */
    explicit SizeSample(int patience = 20000, QObject *parent = nullptr);

    /*! Whether pieces tell more of the result's size than its settings and its \a source do:
     *  not where its bitrate is constant, its size asked for, or its picture copied. */
    [[nodiscard]] static bool isUseful(const MediaFacts &source, const StreamTarget &target);

    /*! Samples the job with the source \a facts, for which that is useful. One that still runs is
     *  stopped. */
    void start(const ConversionJob &job, const MediaFacts &facts, const QSet<QString> &encoders);
    /*! Without finished(). */
    void stop();

Q_SIGNALS:
    /*! The likely size in bytes. Once per start(). */
    void finished(const Result<double> &bytes);

private:
    /*! A part of the source, in seconds. */
    struct Piece
    {
        double start = 0;
        double seconds = 0;
    };

    void begin(const Result<MediaFacts> &source);
    void encodeNext();
    void takePiece(const Result<ToolRun> &run);
    void giveUp();
    void end(const Result<double> &bytes);
    [[nodiscard]] Result<double> likelyBytes() const;

    ConversionJob m_job;
    MediaFacts m_source;
    QSet<QString> m_encoders;
    QVector<Piece> m_pieces; // the next one first
    bool m_isWhole = false;  // the only piece is all of the result
    double m_seconds = 0;    // of the result
    double m_audioBytes = 0; // that the pieces lack
    std::unique_ptr<PieceSizes> m_sizes;
    std::unique_ptr<SourceLook> m_look;
    Tool m_ffmpeg;
    QTimer m_deadline;
};

#endif
