#ifndef CONVERT_ENCODERCHOICE_H
#define CONVERT_ENCODERCHOICE_H

#include "host/convert/containers.h"
#include "host/convert/outputsettings.h"
#include "host/error.h"

#include <QSet>
#include <QStringList>

/*! The streams that are taken over as they are, or may be. */
struct Copies
{
    bool video = true;
    bool audio = true;
    bool subtitles = true; //!< false: they aren't written at all

    [[nodiscard]] bool operator!=(const Copies &other) const
    {
        return video != other.video || audio != other.audio || subtitles != other.subtitles;
    }
};

/*! One of two runs over a source, the first of which only finds out what the second needs. */
struct EncodingPass
{
    int number = 0;    //!< from 1; 0: there is only one run
    QString file = {}; //!< for what the first one finds
};

/*! What a stream is written for. */
struct StreamTarget
{
    const OutputSettings &settings;
    const Container &container;
    const QSet<QString> &encoders; //!< those that ffmpeg has
    Copies allowed = {};
    QString burnFilter = {}; //!< draws the subtitles onto the picture; empty: none are drawn
    EncodingPass pass = {};

    /*! Not where the start is cut off: a copied stream can begin only at a key frame. */
    [[nodiscard]] bool allowsVideoCopy() const { return allowed.video && settings.start <= 0; }
    [[nodiscard]] bool allowsAudioCopy() const { return allowed.audio && settings.start <= 0; }
};

/*! The name of the codec that the preset has \a chosen, else the source's \a own where \a held has
 *  it and ffmpeg one of \a ownEncoders, else the usual one. */
[[nodiscard]] QString codecToWrite(const QString &chosen, const QString &own,
                                   const QStringList &ownEncoders, const QStringList &held,
                                   const StreamTarget &target);

/*! The first encoder of \a names that ffmpeg has, with which it writes \a codec. */
[[nodiscard]] Result<QString> availableEncoder(const QStringList &names, const QString &codec,
                                               const StreamTarget &target);

#endif
