#include "host/app/console.h"
#include "host/commandline/batchreports.h"
#include "host/commandline/convertoptions.h"
#include "host/tools/shelltext.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

#include <cmath>

namespace {

/*! Prints an event of the job with its \a values. */
void print(const char *event, const BatchJob &job, QVariantMap values)
{
    values.insert(QStringLiteral("event"), QLatin1String(event));
    values.insert(QStringLiteral("index"), job.number);
    values.insert(QStringLiteral("source"), job.conversion.source);
    Console::printJsonLine(
        QJsonDocument(QJsonObject::fromVariantMap(values)).toJson(QJsonDocument::Compact));
}

const char *statusOf(const Result<ConversionOutcome> &outcome)
{
    if (outcome) {
        return outcome->isSkipped ? "skipped" : "converted";
    }
    return outcome.error().kind == Error::Cancelled ? "stopped" : "failed";
}

} // namespace

void JsonReport::started(const BatchJob &job)
{
    if (m_events == All && !job.conversion.planOnly) {
        print("planned", job, {});
    }
}

void JsonReport::progressed(const BatchJob &job, const Progress &progress)
{
    if (m_events == OnlyResults) {
        return;
    }
    QVariantMap values = {{QStringLiteral("seconds"), progress.done}};
    if (progress.percent() >= 0) {
        values.insert(QStringLiteral("percent"), progress.percent());
    }
    if (progress.speed > 0) {
        values.insert(QStringLiteral("speed"), progress.speed);
    }
    print("progress", job, values);
}

void JsonReport::logged(const BatchJob &job, const ToolCall &call, const QString &log)
{
    print("log", job,
          {{QStringLiteral("command"), shellText(call)}, {QStringLiteral("text"), log}});
}

void JsonReport::finished(const BatchJob &job, const Result<ConversionOutcome> &outcome)
{
    if (outcome && job.conversion.planOnly && !outcome->isSkipped) {
        QStringList commands;
        for (const ToolCall &call : outcome->plan) {
            commands << shellText(call);
        }
        QVariantMap planned = {{QStringLiteral("target"), outcome->target},
                               {QStringLiteral("command"), commands.join(QStringLiteral(" && "))}};
        if (outcome->mostBytes > 0) {
            planned.insert(QStringLiteral("mostBytes"), std::round(outcome->mostBytes));
        }
        print("planned", job, planned);
        return;
    }
    QVariantMap values = {{QStringLiteral("status"), QLatin1String(statusOf(outcome))}};
    if (!outcome) {
        values.insert(QStringLiteral("error"), outcome.error().text);
        if (m_events == OnlyResults) {
            values.insert(QStringLiteral("target"),
                          fixedTarget(job.conversion).value_or(QString()));
        }
    } else {
        values.insert(QStringLiteral("target"), outcome->target);
        values.insert(QStringLiteral("bytes"), double(QFileInfo(outcome->target).size()));
        if (outcome->wholeBytes > 0) {
            values.insert(QStringLiteral("wholeBytes"), std::round(outcome->wholeBytes));
        }
        const QStringList notes = outcome->notes();
        for (const QString &note : notes) {
            if (m_events == All) {
                print("note", job, {{QStringLiteral("text"), note}});
            }
        }
        if (!notes.isEmpty()) {
            values.insert(QStringLiteral("notes"), notes);
        }
    }
    values.insert(QStringLiteral("isComplete"), outcome && outcome->shortfall.isEmpty());
    print("result", job, values);
}
