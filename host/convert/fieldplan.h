#ifndef CONVERT_FIELDPLAN_H
#define CONVERT_FIELDPLAN_H

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/media/tracks.h"

/*! What becomes of the fields of an interlaced picture; nothing, where it isn't. */
struct FieldPlan
{
    QStringList filters = {};
    bool isKept = false;
    ToolOptions options = {}; //!< the encoder's

    [[nodiscard]] static FieldPlan make(const VideoTrack &track, const VideoCodec &codec,
                                        const Container &container);

    /*! The filter that scales to \a size with \a further options, each field by itself where they
     *  are kept. */
    [[nodiscard]] QString scaleTo(const QSize &size, const QString &further) const;
};

#endif
