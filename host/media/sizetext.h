#ifndef MEDIA_SIZETEXT_H
#define MEDIA_SIZETEXT_H

#include <QSize>
#include <QString>

#include <optional>

/*! "1280x720". */
[[nodiscard]] QString sizeText(const QSize &size);

/*! "25.0 MB", in units of 1000. */
[[nodiscard]] QString bytesText(double bytes);

/*! Reads "1280x720"; nullopt for any other form. */
[[nodiscard]] std::optional<QSize> sizeFromText(const QString &text);

#endif
