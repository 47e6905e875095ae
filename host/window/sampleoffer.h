#ifndef WINDOW_SAMPLEOFFER_H
#define WINDOW_SAMPLEOFFER_H

#include "host/window/offer.h"
#include "host/window/sampletrial.h"

/*! Tries ten seconds of a file, plays them, and offers to play them again, with the size that all
 *  of the file would have. */
class SampleOffer : public QObject
{
    Q_OBJECT

public:
    /*! \a offer outlives this object. */
    explicit SampleOffer(Offer &offer, QObject *parent = nullptr);

    /*! Offers to stop meanwhile; a trial that still runs is stopped. */
    void start(const ConversionJob &job);

Q_SIGNALS:
    /*! One line about what went wrong. */
    void noticed(const QString &line);

private:
    void take(const Result<ConversionOutcome> &outcome);
    void play(const QString &sample);

    Offer &m_offer;
    QString m_source;
    SampleTrial m_trial;
};

#endif
