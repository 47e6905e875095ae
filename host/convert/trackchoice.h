#ifndef CONVERT_TRACKCHOICE_H
#define CONVERT_TRACKCHOICE_H

#include "host/media/tracks.h"

#include <optional>

/*! Which of the tracks of a kind come along. */
struct TrackChoice
{
    enum Kind { All, First, None, OfLanguage };

    Kind kind = All;
    QString language = {}; //!< as people write it: "de", "deu" or "ger"

    /*! Reads "all", "first", "none" or a language; nothing where it is none of these. */
    [[nodiscard]] static std::optional<TrackChoice> fromText(const QString &text);

    /*! Whether a track comes along; of First, whether it may. */
    [[nodiscard]] bool takes(const Track &track) const;

    [[nodiscard]] bool operator==(const TrackChoice &other) const
    {
        return kind == other.kind && language == other.language;
    }
};

#endif
