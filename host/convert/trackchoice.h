#ifndef CONVERT_TRACKCHOICE_H
#define CONVERT_TRACKCHOICE_H

#include "host/media/tracks.h"

#include <QVector>

#include <optional>

/*! Which tracks of a kind are kept, and which of them players choose by themselves. */
struct TrackChoice
{
    enum Kind { All, First, None, OfLanguage, Numbered };

    Kind kind = All;
    QString language = {};                 //!< any usual code: "de", "deu" or "ger"
    QVector<int> numbers = {};             //!< Track::number of those that are kept, ascending
    std::optional<int> defaultNumber = {}; //!< Numbered: 0: none; nullopt: as in the source

    /*! Reads "all", "first", "none", a language code, numbers such as "1,3", or "1,3/3", which also
     *  makes the third track the default one and "1,3/0" none; nullopt for anything else. */
    [[nodiscard]] static std::optional<TrackChoice> fromText(const QString &text);

    /*! As fromText() reads it. */
    [[nodiscard]] QString text() const;

    /*! Whether a track is kept; for First, whether it may be. */
    [[nodiscard]] bool takes(const Track &track) const;

    /*! Whether a track that is kept is to be the default one. */
    [[nodiscard]] bool isDefault(const Track &track) const;

    [[nodiscard]] bool operator==(const TrackChoice &other) const
    {
        return kind == other.kind && language == other.language && numbers == other.numbers &&
               defaultNumber == other.defaultNumber;
    }
};

/*! The usual code of a language, of two letters where it has one: "de" of "ger" and "de-CH". */
[[nodiscard]] QString usualLanguageCode(const QString &language);

#endif
