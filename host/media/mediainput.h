#ifndef MEDIA_MEDIAINPUT_H
#define MEDIA_MEDIAINPUT_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/*! The comma-separated names of the demuxers that may read \a path and open no other file. */
[[nodiscard]] QString demuxersFor(const QString &path);

/*!
 * The arguments that make ffmpeg and ffprobe read \a path and no other file, whatever its content
 * refers to. \a demuxers are those allowed, such as MediaFacts::container; empty means
 * demuxersFor(path).
 */
[[nodiscard]] QStringList inputArguments(const QString &path, const QString &demuxers);

/*! Why the file is refused and what to choose instead, if ffprobe's \a errors say that none of the
 *  allowed demuxers reads it. */
[[nodiscard]] std::optional<QString> refusedKind(const QString &path, const QByteArray &errors);

#endif
