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

/*! A visible text for the middle of a sentence or a line of details: one in a right-to-left script
 *  is marked as a unit, so that neither its order nor that of what follows changes. */
[[nodiscard]] QString isolated(const QString &text);

/*! The same as visibleText(), but what isolated() has marked in it stays so. */
[[nodiscard]] QString visibleLine(const QString &line);

/*! The path as the system writes it, visible and isolated. */
[[nodiscard]] QString visiblePath(const QString &path);

/*! The file's name without its folder, visible and isolated. */
[[nodiscard]] QString visibleName(const QString &path);

#endif
