#ifndef CONVERT_PICTUREFIT_H
#define CONVERT_PICTUREFIT_H

#include "host/convert/codecs.h"

#include <QSize>
#include <QVector>

/*!
 * The largest even size of \a shown's shape that fits into \a box and isn't larger than \a shown
 * itself. A picture taller than wide turns a wide box.
 */
[[nodiscard]] QSize fitIntoBox(const QSize &shown, const QSize &box);

/*! The nearest even size that isn't larger. */
[[nodiscard]] QSize evenSize(const QSize &size);

/*! A fixed frame, and the picture's size in its pixels; the rest of the frame stays black. */
struct FrameFit
{
    VideoCodec::Frame frame;
    QSize picture;
};

/*! The frame closest to \a rate that a picture shown as \a shown fills best; \a frames has one. */
[[nodiscard]] FrameFit fitIntoFrame(const QSize &shown, const Ratio &rate,
                                    const QVector<VideoCodec::Frame> &frames);

#endif
