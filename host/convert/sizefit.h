#ifndef CONVERT_SIZEFIT_H
#define CONVERT_SIZEFIT_H

#include "host/convert/encoderchoice.h"
#include "host/convert/ratecontrol.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

#include <QVector>

#include <optional>

/*!
 * Finds the video bitrate with which a file gets an asked size: it begins with the one that should
 * do, and corrects it by what came out.
 */
class SizeFit
{
public:
    /*! For a file of \a bytes that lasts \a seconds, first tried with \a kbps. */
    SizeFit(double bytes, double seconds, double kbps);

    /*! Takes the size that came out with kbps(). Whether another attempt is worthwhile: the file is
     *  too large, or more than 2 % too small. */
    [[nodiscard]] bool corrects(qint64 bytes);
    /*! For when the encoder refuses kbps() as too few. Whether another attempt is worthwhile: with
     *  more, but fewer than the last one. */
    [[nodiscard]] bool raises();
    /*! Whether something came out that is not too large. */
    [[nodiscard]] bool hasBest() const { return m_best.has_value(); }
    /*! Whether what came out last is the largest that is not too large. */
    [[nodiscard]] bool isBest() const { return m_best && m_best == m_attempts.size() - 1; }
    /*! Of the attempt to make; once none is worthwhile, of the best one, if any. */
    [[nodiscard]] double kbps() const { return m_kbps; }

private:
    struct Attempt
    {
        double kbps = 0;
        double bytes = 0;
    };

    [[nodiscard]] double correctedKbps() const;

    const double m_target;
    const double m_seconds;
    double m_kbps;
    QVector<Attempt> m_attempts;
    std::optional<int> m_best; // of the attempts
    int m_refusals = 0;
};

/*! The settings with the bitrates that let the result of \a source have the asked size, as
 *  \a target's container and encoders allow; the same where none is asked. Fails where nothing
 *  lets it. */
[[nodiscard]] Result<OutputSettings> fittedToSize(const MediaFacts &source,
                                                  const StreamTarget &target);

/*! Says that \a picture looks poor in \a codec with so few kbps, and what would look better; empty
 *  where it doesn't. */
[[nodiscard]] QString poorPicture(const VideoCodec &codec, const EncodedPicture &picture,
                                  double kbps);

/*! The most bytes that the result of \a source may have; 0 where the encoder's quality decides. */
[[nodiscard]] double mostBytes(const MediaFacts &source, const StreamTarget &target);

#endif
