#ifndef TESTS_SUPPORT_MEDIACLIPS_H
#define TESTS_SUPPORT_MEDIACLIPS_H

#include "host/media/mediafacts.h"

#include <QString>
#include <QStringList>

/*! Small clips made with ffmpeg, and looked at with ffprobe, both awaited. */
namespace MediaClips {

/*! Runs ffmpeg with these arguments, written with blanks between, and the file to write. */
bool make(const QString &path, const QString &arguments);

/*! A film with sound: 320x240, 25 fps, h264; a sine, aac 44100 Hz mono. */
bool makeFilm(const QString &path, int seconds = 1);
/*! A sine: 44100 Hz mono, in the usual codec of the file's extension. */
bool makeSong(const QString &path);

MediaFacts factsOf(const QString &path);
bool hasEncoder(const QString &name);

/*!
 * Puts a shell script in \a folder in the place of \a tool, for the PATH. In it $REAL is the tool
 * itself, and questions for the encoders are answered by it already: all of ffmpeg's but \a
 * lacking.
 */
bool makeStandIn(const QString &folder, const QString &script,
                 const QString &lacking = QStringLiteral("nothing"),
                 const QString &tool = QStringLiteral("ffmpeg"));

/*! The PATH with \a folder in front. */
QByteArray pathWith(const QString &folder);

} // namespace MediaClips

#endif
