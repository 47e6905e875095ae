#ifndef FILES_VISIBLETEXT_H
#define FILES_VISIBLETEXT_H

#include <QString>

/*!
 * Whether the code unit at \a index can be shown as it is: not a control character, a line
 * separator, a change of the writing direction or a lone surrogate, such as an invalid byte of a
 * file name.
 */
[[nodiscard]] bool isVisible(const QString &text, int index);

/*! The text as a line to show, with U+FFFD for each code unit that isn't visible. */
[[nodiscard]] QString visibleText(const QString &text);

#endif
