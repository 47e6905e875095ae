#ifndef COMMANDLINE_BATCHREPORTS_H
#define COMMANDLINE_BATCHREPORTS_H

#include "host/queue/batch.h"

#include <QHash>

/*! Tells people on the console what a batch does. */
class TextReport : public BatchReport
{
public:
    enum Detail {
        Quiet, //!< only what went wrong
        Normal,
        Verbose //!< with ffmpeg's calls and logs, on standard error
    };

    TextReport(int total, Detail detail)
        : m_total(total)
        , m_detail(detail)
    {}

    void started(const BatchJob &job) override;
    void progressed(const BatchJob &job, const Progress &progress) override;
    void logged(const BatchJob &job, const ToolCall &call, const QString &log) override;
    void finished(const BatchJob &job, const Result<ConversionOutcome> &outcome) override;
    /*! Says how many were converted, if there were several. */
    void ended(const BatchSummary &summary) const;

private:
    void showProgress(const BatchJob &job, const Progress &progress);
    void tellConverted(const BatchJob &job, const ConversionOutcome &outcome) const;
    [[nodiscard]] bool isOverwriting() const;

    const int m_total;
    const Detail m_detail;
    int m_ended = 0;
    QHash<int, int> m_toldTenths; //!< of the running jobs
    QHash<int, QString> m_states; //!< of the running jobs: their names and progress
};

/*! Tells programs, with one JSON object per line. */
class JsonReport : public BatchReport
{
public:
    enum Events { OnlyResults, All };

    explicit JsonReport(Events events)
        : m_events(events)
    {}

    void started(const BatchJob &job) override;
    void progressed(const BatchJob &job, const Progress &progress) override;
    void logged(const BatchJob &job, const ToolCall &call, const QString &log) override;
    void finished(const BatchJob &job, const Result<ConversionOutcome> &outcome) override;

private:
    const Events m_events;
};

#endif
