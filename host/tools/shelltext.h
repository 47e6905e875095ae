#ifndef TOOLS_SHELLTEXT_H
#define TOOLS_SHELLTEXT_H

#include "host/tools/toolcall.h"

/*! The call as a person would type it into a shell. */
[[nodiscard]] QString shellText(const ToolCall &call);

#endif
