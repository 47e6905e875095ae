#include "host/window/runprogress.h"

#include <algorithm>

void RunProgress::add(int id, double seconds)
{
    drop(id);
    constexpr double least = 1; // what has no known length counts, too
    const double weight = std::max(seconds, least);
    m_tasks.insert(id, {weight});
    m_weight += weight;
    if (!m_clock.isValid() && m_milliseconds == 0) {
        m_clock.start();
    }
}

void RunProgress::setShare(int id, double share)
{
    const auto task = m_tasks.find(id);
    if (task != m_tasks.end() && !task->hasEnded) {
        setDone(*task, std::clamp(share, 0.0, 1.0) * task->weight);
    }
}

void RunProgress::end(int id)
{
    const auto task = m_tasks.find(id);
    if (task != m_tasks.end() && !task->hasEnded) {
        setDone(*task, task->weight);
        task->hasEnded = true;
        ++m_ended;
    }
}

void RunProgress::drop(int id)
{
    const auto task = m_tasks.find(id);
    if (task != m_tasks.end()) {
        setDone(*task, 0);
        m_weight -= task->weight;
        m_ended -= task->hasEnded ? 1 : 0;
        m_tasks.erase(task);
    }
}

void RunProgress::pause()
{
    if (m_clock.isValid()) {
        m_milliseconds += m_clock.elapsed();
        m_clock.invalidate();
    }
}

void RunProgress::resume()
{
    if (!m_tasks.isEmpty() && !m_clock.isValid()) {
        m_clock.start();
    }
}

double RunProgress::secondsLeft() const
{
    constexpr double least = 0.01;
    constexpr double soonest = 2;
    const double passed =
        double(m_milliseconds + (m_clock.isValid() ? m_clock.elapsed() : 0)) / 1000;
    return share() < least || passed < soonest ? -1 : passed * (1 - share()) / share();
}

void RunProgress::setDone(Part &part, double done)
{
    m_done += done - part.done;
    part.done = done;
}
