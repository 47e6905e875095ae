#ifndef TESTS_SUPPORT_MEDIACLIPS_H
#define TESTS_SUPPORT_MEDIACLIPS_H

#include "host/media/mediafacts.h"

#include <QString>
#include <QStringList>
#include <QVector>

/*! Small clips, made with ffmpeg and probed with ffprobe; each call waits for the tool. */
namespace MediaClips {

/*! Runs ffmpeg with these space-separated arguments, and the file to write. */
bool make(const QString &path, const QString &arguments);

/*! A file name that says its kind, and the arguments for make(). */
struct Kind
{
    QString name;
    QString arguments;
};
/*! The kinds of media files that ffmpeg writes and converters meet; ffmpegs differ in what they can
 *  write. */
QVector<Kind> kinds();

/*! A video with audio: 320x240, 25 fps, h264; a sine, aac 44100 Hz mono. */
bool makeFilm(const QString &path, int seconds = 1);
/*! A sine: 44100 Hz mono, in the extension's usual codec. */
bool makeSong(const QString &path);

MediaFacts factsOf(const QString &path);
bool hasEncoder(const QString &name);

/*!
 * Writes a shell script to \a folder that replaces \a tool on the PATH. In the script $REAL is the
 * real tool. Queries for the encoders are already answered: with all of ffmpeg's except \a lacking.
 */
bool makeStandIn(const QString &folder, const QString &script,
                 const QString &lacking = QStringLiteral("nothing"),
                 const QString &tool = QStringLiteral("ffmpeg"));

/*! The PATH with \a folder in front. */
QByteArray pathWith(const QString &folder);

} // namespace MediaClips

#endif
