#include "host/window/sampleoffer.h"

#include "host/files/visibletext.h"
#include "host/window/openfile.h"
#include "host/window/presetsummary.h"
#include "host/window/tasktexts.h"
#include "host/window/toolfun.h"

SampleOffer::SampleOffer(Offer &offer, QObject *parent)
    : QObject(parent)
    , m_offer(offer)
{
    connect(&m_trial, &SampleTrial::finished, this, &SampleOffer::take);
}

void SampleOffer::start(const ConversionJob &job)
{
    m_source = job.source;
    m_offer.make(
        ToolFun::text(QStringLiteral("Trying 10 seconds of %1 …")).arg(visibleName(m_source)),
        ToolFun::text(QStringLiteral("Stop")), [this] { m_trial.stop(); });
    m_trial.start(job);
}

void SampleOffer::take(const Result<ConversionOutcome> &outcome)
{
    m_offer.dismiss();
    if (!outcome) {
        Q_EMIT noticed(labelled(visibleName(m_source), outcome.error().text));
        return;
    }
    play(outcome->target);
    m_offer.make(ToolFun::text(QStringLiteral("All of %1 would be about %2."))
                     .arg(visibleName(m_source), sizeText(outcome->wholeBytes)),
                 ToolFun::text(QStringLiteral("Play again")),
                 [this, sample = outcome->target] { play(sample); });
}

void SampleOffer::play(const QString &sample)
{
    const Result<> played = playFile(sample);
    if (!played) {
        Q_EMIT noticed(played.error().text);
    }
}
