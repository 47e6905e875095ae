#ifndef MEDIA_SIZETEXT_H
#define MEDIA_SIZETEXT_H

#include <QSize>
#include <QString>

#include <optional>

/*! "1280x720". */
[[nodiscard]] QString sizeText(const QSize &size);

/*! The size of such a text; nothing for any other. */
[[nodiscard]] std::optional<QSize> sizeFromText(const QString &text);

#endif
