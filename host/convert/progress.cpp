#include "host/convert/progress.h"

#include "host/media/mediafacts.h"

#include <algorithm>

int Progress::percent() const
{
    return total > 0 ? int(std::clamp(done / total * 100, 0.0, 100.0)) : -1;
}

double Progress::timeLeft() const
{
    if (total <= 0 || speed <= 0) {
        return -1;
    }
    const double left = std::max(0.0, total - done) / speed;
    return left == plausibleSeconds(left) ? left : -1;
}

bool ProgressReader::feed(const QByteArray &bytes)
{
    bool isNew = false;
    m_line += bytes;
    for (int end = m_line.indexOf('\n'); end >= 0; end = m_line.indexOf('\n')) {
        const QByteArray line = m_line.left(end).trimmed();
        m_line.remove(0, end + 1);
        const int equals = line.indexOf('=');
        const QByteArray key = line.left(equals);
        QByteArray value = line.mid(equals + 1).trimmed();
        if (key == "out_time_us") {
            // ffmpeg writes "N/A" or a huge negative number before the first frame.
            m_growing.done = plausibleSeconds(value.toDouble() / 1e6);
        } else if (key == "speed") {
            if (value.endsWith('x')) {
                value.chop(1);
            }
            m_growing.speed = plausibleSeconds(value.toDouble());
        } else if (key == "progress") {
            m_progress.done = m_before + m_growing.done;
            m_progress.speed = m_growing.speed;
            isNew = true;
        }
    }
    // A line of ffmpeg's is short; what never ends isn't one.
    constexpr int longestLine = 64 * 1024;
    if (m_line.size() > longestLine) {
        m_line.clear();
    }
    return isNew;
}
