#include "host/convert/piecesizes.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <cmath>

namespace {

/*! What containers note of each packet. */
constexpr double bytesOfANote = 12;

/*! A stream of a piece. */
struct Stream
{
    double timeBase = 0; //!< seconds
    bool isVideo = false;
    double bytes = 0;   //!< of its packets, without the key frame that it begins with
    double seconds = 0; //!< that the packets last
    double firstBytes = 0;
    int laterKeyFrames = 0;
};

/*! Reads "#tb 0: 1/25" and "#media_type 0: video". */
void readHead(const QByteArray &line, QHash<int, Stream> &streams)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3) {
        return;
    }
    Stream &stream = streams[words.at(1).chopped(1).toInt()];
    if (words.at(0) == "#tb") {
        const QList<QByteArray> parts = words.at(2).split('/');
        stream.timeBase = parts.at(0).toDouble() / std::max(1.0, parts.value(1).toDouble());
    } else if (words.at(0) == "#media_type") {
        stream.isVideo = words.at(2) == "video";
    }
}

/*! Reads "0, 12, 14, 1, 5051, 0x0af16d2e, F=0x0" if it begins before \a seconds: the stream, two
 *  times, the duration, the size, a checksum, and flags where it is no mere key frame. */
void readPacket(const QByteArray &line, double seconds, QHash<int, Stream> &streams)
{
    const QList<QByteArray> cells = line.split(',');
    if (cells.size() < 6) {
        return;
    }
    Stream &stream = streams[cells.at(0).toInt()];
    if (cells.at(2).trimmed().toDouble() * stream.timeBase >= seconds) {
        return;
    }
    const double bytes = cells.at(4).trimmed().toDouble() + bytesOfANote;
    const bool isKey = stream.isVideo && !line.contains("F=0x0");
    if (isKey && stream.firstBytes == 0) {
        stream.firstBytes = bytes;
    } else {
        stream.bytes += bytes;
        stream.laterKeyFrames += isKey ? 1 : 0;
    }
    stream.seconds += cells.at(3).trimmed().toDouble() * stream.timeBase;
}

} // namespace

void PieceSizes::add(const QByteArray &packets, double seconds)
{
    QHash<int, Stream> streams;
    const QList<QByteArray> lines = packets.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith('#')) {
            readHead(line, streams);
        } else {
            readPacket(line, seconds, streams);
        }
    }
    double later = 0;
    bool isEmpty = true;
    for (const Stream &stream : qAsConst(streams)) {
        // Some containers lose the first audio where they are entered in the middle.
        const double share =
            stream.isVideo || stream.seconds <= 0 ? 1 : std::max(1.0, seconds / stream.seconds);
        later += stream.bytes * share;
        m_firstBytes += stream.firstBytes;
        m_laterKeyFrames += stream.laterKeyFrames;
        isEmpty = isEmpty && stream.bytes + stream.firstBytes == 0;
    }
    if (!isEmpty && seconds > 0) {
        m_seconds += seconds;
        m_laterBytes += later;
        m_rates << later / seconds;
    }
}

bool PieceSizes::agree() const
{
    constexpr double largestError = 0.06; // of the mean
    const int count = m_rates.size();
    if (count < 2) {
        return false;
    }
    double sum = 0;
    for (const double rate : m_rates) {
        sum += rate;
    }
    const double mean = sum / count;
    double squares = 0;
    for (const double rate : m_rates) {
        squares += (rate - mean) * (rate - mean);
    }
    return std::sqrt(squares / (count - 1) / count) <= largestError * mean;
}

double PieceSizes::ownBytes() const
{
    return m_firstBytes + m_laterBytes;
}

double PieceSizes::bytes(double seconds) const
{
    if (m_rates.isEmpty()) {
        return 0;
    }
    // Each piece begins with a large key frame, but the film has one only where the encoder's
    // interval ends, or the scene.
    const double scenes = m_laterKeyFrames / m_seconds;
    const double forced = std::max(0.0, 1 / m_keyFrameSeconds - scenes);
    return seconds * (m_laterBytes / m_seconds + forced * m_firstBytes / m_rates.size());
}
