#ifndef WINDOW_WINDOWAPP_H
#define WINDOW_WINDOWAPP_H

struct WindowOptions;

/*!
 * Shows the window until it is closed, hands its files to a window that is open already, or writes
 * pictures of every screen instead. Returns the exit code; where there is no display, ends the
 * program with the one for a wrong call.
 */
int runWindow(int &argc, char **argv, const WindowOptions &options);

#endif
