#ifndef APP_EXITCODE_H
#define APP_EXITCODE_H

#include "host/error.h"

/*! The program's exit codes. */
enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

/*! Prints the error and returns the exit code for it. */
[[nodiscard]] ExitCode report(const Error &error);

#endif
