#ifndef WINDOW_WINDOWAPP_H
#define WINDOW_WINDOWAPP_H

struct WindowOptions;

/*!
 * Shows the window until it is closed, or hands its files to a window that is open already. Returns
 * the exit code; where there is no display, ends the program with the one for a wrong call.
 */
int runWindow(int &argc, char **argv, const WindowOptions &options);

#endif
