#ifndef MEDIA_MEDIAINPUT_H
#define MEDIA_MEDIAINPUT_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/*! The names of the demuxers that read \a path and no other file, commas between. */
[[nodiscard]] QString demuxersFor(const QString &path);

/*!
 * The arguments with which ffmpeg and ffprobe take \a path as their source, and open no other file
 * whatever it says. \a demuxers are those that may read it: demuxersFor(path), or the one that has
 * read it before; where that isn't known, an empty text is as good as demuxersFor(path).
 */
[[nodiscard]] QStringList inputArguments(const QString &path, const QString &demuxers);

/*! What the file is instead, and what to choose, where \a errors of ffprobe tell that no demuxer
 *  of those may read it. */
[[nodiscard]] std::optional<QString> refusedKind(const QString &path, const QByteArray &errors);

#endif
