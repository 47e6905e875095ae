#ifndef MEDIA_RATIO_H
#define MEDIA_RATIO_H

#include <QString>

/*! An exact fraction, such as a frame rate (30000/1001) or a pixel aspect ratio (16:11). */
struct Ratio
{
    int numerator = 0;
    int denominator = 1;

    /*! Reads "30000/1001", "16:11" or "25"; invalid for anything else, including zeros. */
    [[nodiscard]] static Ratio fromText(const QString &text);
    /*! Reads a frame rate as people write it: "23.976" and "23.98" mean 24000/1001. */
    [[nodiscard]] static Ratio fromFrameRate(const QString &text);

    [[nodiscard]] bool isValid() const { return numerator > 0 && denominator > 0; }
    [[nodiscard]] double value() const { return isValid() ? double(numerator) / denominator : 0; }
    /*! "30000/1001", or "25" if the denominator is 1, as ffmpeg reads it. */
    [[nodiscard]] QString toText() const;

    bool operator==(const Ratio &other) const
    {
        return qint64(numerator) * other.denominator == qint64(other.numerator) * denominator;
    }
    bool operator!=(const Ratio &other) const { return !(*this == other); }
};

#endif
