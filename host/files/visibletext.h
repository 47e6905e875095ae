#ifndef FILES_VISIBLETEXT_H
#define FILES_VISIBLETEXT_H

#include <QString>

/*!
 * Whether the code unit at \a index can be shown as it is: no control character, line separator or
 * change of the writing direction, and no half of a character, such as a byte that is no UTF-8.
 */
[[nodiscard]] bool isVisible(const QString &text, int index);

/*! A line to show, with U+FFFD in the place of each code unit that isn't visible. */
[[nodiscard]] QString visibleText(const QString &text);

#endif
