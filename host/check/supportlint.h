#ifndef CHECK_SUPPORTLINT_H
#define CHECK_SUPPORTLINT_H

#include "host/check/checkedpreset.h"

/*! Notes offered values that the container or one of the offered encoders doesn't support. */
void lintSupport(CheckedPreset &preset);

#endif
