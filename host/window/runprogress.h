#ifndef WINDOW_RUNPROGRESS_H
#define WINDOW_RUNPROGRESS_H

#include <QElapsedTimer>
#include <QHash>

/*! How far a page's conversions are as a whole. A task counts as much as its file is long. */
class RunProgress
{
public:
    /*! A task of the run, whose file is \a seconds long; 0: unknown. */
    void add(int id, double seconds);
    /*! The task has done this share of its work, from 0 to 1. */
    void setShare(int id, double share);
    void end(int id);
    /*! The task is no longer part of the run. */
    void drop(int id);
    /*! The run is over. */
    void clear() { *this = {}; }
    /*! Stops the clock until resume(). */
    void pause();
    void resume();

    [[nodiscard]] bool isEmpty() const { return m_tasks.isEmpty(); }
    [[nodiscard]] int total() const { return m_tasks.size(); }
    [[nodiscard]] int ended() const { return m_ended; }
    /*! 0 to 100. */
    [[nodiscard]] int percent() const { return int(100 * share()); }
    /*! -1 where it is too early to tell. */
    [[nodiscard]] double secondsLeft() const;

private:
    struct Part
    {
        double weight = 0;
        double done = 0; //!< of the weight
        bool hasEnded = false;
    };

    [[nodiscard]] double share() const { return m_weight > 0 ? m_done / m_weight : 0; }
    void setDone(Part &part, double done);

    QHash<int, Part> m_tasks;
    double m_weight = 0;
    double m_done = 0;
    int m_ended = 0;
    QElapsedTimer m_clock;
    qint64 m_milliseconds = 0; //!< before the last pause
};

#endif
