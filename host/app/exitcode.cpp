#include "host/app/exitcode.h"

#include "host/app/console.h"

ExitCode report(const Error &error)
{
    Console::printError(error.text);
    return error.kind == Error::WrongUsage ? WrongUsage : Failure;
}
