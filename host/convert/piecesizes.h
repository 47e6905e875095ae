#ifndef CONVERT_PIECESIZES_H
#define CONVERT_PIECESIZES_H

#include <QByteArray>
#include <QVector>

/*! Tells from short pieces of an encoded film how large all of it would be. */
class PieceSizes
{
public:
    /*! For an encoder that writes a key frame at least every \a keyFrameSeconds. */
    explicit PieceSizes(double keyFrameSeconds)
        : m_keyFrameSeconds(keyFrameSeconds)
    {}

    /*! Adds the first \a seconds of a piece, as packetArguments() lets ffmpeg print it. Nothing is
     *  added if it has no packets. */
    void add(const QByteArray &packets, double seconds);
    [[nodiscard]] int count() const { return m_rates.size(); }
    /*! Whether the pieces are so alike that more of them would tell little more. */
    [[nodiscard]] bool agree() const;
    /*! Of all pieces together, as one file. */
    [[nodiscard]] double ownBytes() const;
    /*! Of a film of so many \a seconds that is like the pieces; 0 without any. */
    [[nodiscard]] double bytes(double seconds) const;

private:
    const double m_keyFrameSeconds;
    QVector<double> m_rates; // bytes a second of each piece, without its first key frame
    double m_seconds = 0;
    double m_firstBytes = 0; // of the key frames that begin the pieces
    double m_laterBytes = 0; // of all other packets
    int m_laterKeyFrames = 0;
};

#endif
