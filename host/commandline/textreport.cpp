#include "host/app/console.h"
#include "host/commandline/batchreports.h"
#include "host/commandline/commandline.h"
#include "host/commandline/progresstext.h"
#include "host/media/sizetext.h"
#include "host/tools/shelltext.h"

#include <QFileInfo>

#include <algorithm>

void TextReport::started(const BatchJob &job)
{
    m_toldTenths.insert(job.number, 0);
}

void TextReport::progressed(const BatchJob &job, const Progress &progress)
{
    if (m_detail == Quiet) {
        return;
    }
    if (isOverwriting()) {
        showProgress(job, progress);
        return;
    }
    // One line a tenth of the way, or for an unknown length one in ten seconds of media.
    const int tenths = progress.percent() >= 0 ? progress.percent() / 10 : int(progress.done / 10);
    int &told = m_toldTenths[job.number];
    if (tenths > told) {
        told = tenths;
        Console::print(QStringLiteral("%1: %2").arg(QFileInfo(job.conversion.source).fileName(),
                                                    progressText(progress)));
    }
}

void TextReport::logged(const BatchJob &job, const ToolCall &call, const QString &log)
{
    Q_UNUSED(job)
    Console::printLog(shellText(call) + QLatin1Char('\n') + log);
}

void TextReport::finished(const BatchJob &job, const Result<ConversionOutcome> &outcome)
{
    const QString &file = job.conversion.source;
    ++m_ended;
    m_toldTenths.remove(job.number);
    m_states.remove(job.number);
    if (isOverwriting()) {
        Console::overwriteLine(QString());
    }
    if (outcome) {
        tellConverted(job, *outcome);
    } else if (outcome.error().kind == Error::Cancelled) {
        Console::printError(CommandLine::tr("%1: stopped; nothing was written").arg(file));
    } else {
        Console::printError(QStringLiteral("%1: %2").arg(file, outcome.error().text));
    }
}

void TextReport::ended(const BatchSummary &summary) const
{
    if (m_total < 2 || m_detail == Quiet) {
        return;
    }
    QStringList parts = {
        CommandLine::tr("%1 of %2 files converted").arg(summary.converted).arg(m_total)};
    if (summary.skipped > 0) {
        parts << CommandLine::tr("%1 skipped").arg(summary.skipped);
    }
    if (!summary.failed.isEmpty()) {
        parts << CommandLine::tr("failed: %1").arg(summary.failed.join(QStringLiteral(", ")));
    }
    Console::print(parts.join(QStringLiteral("; ")));
}

void TextReport::showProgress(const BatchJob &job, const Progress &progress)
{
    const QString name = QFileInfo(job.conversion.source).fileName();
    m_states.insert(job.number, QStringLiteral("%1 %2").arg(name, progressText(progress)));
    if (m_total < 2) {
        Console::overwriteLine(
            QStringLiteral("%1 %2 %3").arg(name, progressBar(progress), progressText(progress)));
        return;
    }
    QList<int> running = m_states.keys();
    std::sort(running.begin(), running.end());
    QStringList states;
    for (const int number : qAsConst(running)) {
        states << m_states.value(number);
    }
    Console::overwriteLine(QStringLiteral("%1/%2  %3")
                               .arg(m_ended)
                               .arg(m_total)
                               .arg(states.join(QStringLiteral("  "))));
}

void TextReport::tellConverted(const BatchJob &job, const ConversionOutcome &outcome) const
{
    const QString &file = job.conversion.source;
    const bool isPlan = job.conversion.planOnly && !outcome.isSkipped;
    if (isPlan) {
        for (const ToolCall &call : outcome.plan) {
            Console::print(shellText(call));
        }
        if (outcome.mostBytes > 0) {
            Console::print(QStringLiteral("# ") +
                           CommandLine::tr("at most %1").arg(bytesText(outcome.mostBytes)));
        }
    }
    if (!isPlan && m_detail != Quiet && outcome.isSkipped) {
        Console::print(CommandLine::tr("%1: skipped, as %2 is there").arg(file, outcome.target));
    } else if (!isPlan && m_detail != Quiet) {
        Console::print(CommandLine::tr("%1 -> %2").arg(file, outcome.target));
        Console::print(QStringLiteral("  ") + outcome.facts.summary());
        if (outcome.wholeBytes > 0) {
            Console::print(QStringLiteral("  ") + CommandLine::tr("all of it would have about %1")
                                                      .arg(bytesText(outcome.wholeBytes)));
        }
    }
    const QStringList notes = outcome.notes();
    for (const QString &note : notes) {
        Console::printError(QStringLiteral("%1: %2").arg(file, note));
    }
}

bool TextReport::isOverwriting() const
{
    return m_detail == Normal && Console::isTerminal();
}
