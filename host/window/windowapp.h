#ifndef WINDOW_WINDOWAPP_H
#define WINDOW_WINDOWAPP_H

struct WindowOptions;

/*!
 * Shows the window until it is closed, or passes the files to a window that is already open.
 * Returns the exit code. Without a display, ends the program with the exit code for wrong usage.
 */
int runWindow(int &argc, char **argv, const WindowOptions &options);

#endif
