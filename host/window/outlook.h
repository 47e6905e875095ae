#ifndef WINDOW_OUTLOOK_H
#define WINDOW_OUTLOOK_H

#include "host/convert/conversion.h"

#include <QObject>

/*! What a conversion will give, as far as it can be told before. */
struct Outlook
{
    Q_GADGET
    Q_PROPERTY(QString problem MEMBER problem)
    Q_PROPERTY(QString nearest MEMBER nearest)
    Q_PROPERTY(QString nearestCaption MEMBER nearestCaption)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString size MEMBER size)
    Q_PROPERTY(QString losses MEMBER losses)

public:
    QString problem; //!< why it isn't possible; empty if it is
    QString nearest; //!< id of a preset with which it is, if there is a problem; empty: none is
    QString nearestCaption;
    QString name;             //!< of the new file
    QString size;             //!< "at most 120.0 MB", "about 80.0 MB"; empty if nothing is known
    QString losses;           //!< what will be left out; empty if nothing
    bool needsSample = false; //!< a SizeSample would tell the size better
};

Q_DECLARE_METATYPE(Outlook)

/*! How large a new file will be. */
struct ExpectedSize
{
    double bytes = 0;      //!< 0: unknown
    bool isLikely = false; //!< about so many; else that is the most
};

/*! That of the result of \a source. */
[[nodiscard]] ExpectedSize expectedSize(const MediaFacts &source, const StreamTarget &target);

/*! The outlook of a job with the source \a facts, without a nearest preset. \a sampledBytes are
 *  those that a sample has foretold; 0: none has. */
[[nodiscard]] Outlook outlookOf(const ConversionJob &job, const MediaFacts &facts,
                                const QSet<QString> &encoders, double sampledBytes = 0);

#endif
