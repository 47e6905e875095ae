#ifndef CONVERT_PROGRESS_H
#define CONVERT_PROGRESS_H

#include <QByteArray>
#include <QMetaType>

/*! How far a conversion is. */
struct Progress
{
    double done = 0;  //!< seconds of media written
    double total = 0; //!< seconds of the source; 0: unknown
    double speed = 0; //!< seconds of media a second; 0: unknown yet

    /*! 0 to 100; -1 when the source's length is unknown. */
    [[nodiscard]] int percent() const;
    /*! Seconds to go; -1 when unknown. */
    [[nodiscard]] double timeLeft() const;
};
Q_DECLARE_METATYPE(Progress)

/*! Reads what ffmpeg writes for -progress, in pieces cut anywhere. */
class ProgressReader
{
public:
    /*! For a run that writes \a seconds of media; \a before and \a after it are other runs of so
     *  many each. */
    explicit ProgressReader(double seconds = 0, int before = 0, int after = 0)
        : m_before(seconds * before)
    {
        m_progress.total = seconds * (before + 1 + after);
        m_progress.done = m_before;
    }

    /*! Takes the next bytes; true when they end at least one report, so that progress() is new. */
    bool feed(const QByteArray &bytes);
    [[nodiscard]] const Progress &progress() const { return m_progress; }
    /*! Seconds of media that this run has written. */
    [[nodiscard]] double written() const { return m_progress.done - m_before; }

private:
    double m_before = 0;
    Progress m_progress;
    Progress m_growing;
    QByteArray m_line;
};

#endif
