#ifndef CONVERT_TRACKCHOICE_H
#define CONVERT_TRACKCHOICE_H

#include "host/media/tracks.h"

#include <optional>

/*! Which tracks of a kind are kept. */
struct TrackChoice
{
    enum Kind { All, First, None, OfLanguage };

    Kind kind = All;
    QString language = {}; //!< any usual code: "de", "deu" or "ger"

    /*! Reads "all", "first", "none" or a language code; nullopt for anything else. */
    [[nodiscard]] static std::optional<TrackChoice> fromText(const QString &text);

    /*! As fromText() reads it. */
    [[nodiscard]] QString text() const;

    /*! Whether a track is kept; for First, whether it may be. */
    [[nodiscard]] bool takes(const Track &track) const;

    [[nodiscard]] bool operator==(const TrackChoice &other) const
    {
        return kind == other.kind && language == other.language;
    }
};

#endif
