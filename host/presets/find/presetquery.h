#ifndef PRESETS_FIND_PRESETQUERY_H
#define PRESETS_FIND_PRESETQUERY_H

#include "host/presets/find/field.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/*! What is known of presets beside the presets themselves. */
struct PresetExtras
{
    QStringList favorites;         //!< ids, the best first
    QHash<QString, QString> notes; //!< the user's, by id
};

/*! What a preset must have. Every word of every text must match; an empty text allows all. */
struct PresetQuery
{
    QString text; //!< matches any field
    // These match only the field that they are named after, and as whole words.
    QString kind; //!< "video", "audio", or "own" for the user's
    QString codec;
    QString size;          //!< "1080", "4k", "1920x1080", ...
    QString category = {}; //!< the tag of the format: "device", ...
};

/*! A preset that was found. */
struct PresetMatch
{
    /*! What a word of the query matched. */
    struct Reason
    {
        QString typed; //!< folded
        Field field;
        QString text; //!< of the field
    };

    QString id;
    QString title;
    QString format; //!< its title
    QString tag;
    QVector<Reason> why; //!< one for each word
};

struct PresetMatches
{
    QVector<PresetMatch> best; //!< the best first
    int count = 0;             //!< how many there are, including those not in \a best
    QString unknown;           //!< the first word that no preset has, folded; empty: none
};

#endif
