#ifndef WINDOW_OPENFILE_H
#define WINDOW_OPENFILE_H

#include "host/error.h"

#include <QString>

#include <functional>

/*! Shows the file in the file manager, selected if that can do so. \a failed gets one line that
 *  says why it couldn't, now or later. */
void showFile(const QString &path, const std::function<void(const QString &line)> &failed);
/*! Opens the file with the program that the user has chosen for such files. */
[[nodiscard]] Result<> playFile(const QString &path);

#endif
