#ifndef CHECK_CHOICELINT_H
#define CHECK_CHOICELINT_H

#include "host/check/checkedpreset.h"

/*! Notes offered values that are out of bounds or repeated, and chosen values and levels that
 *  aren't offered. */
void lintChoices(CheckedPreset &preset);

#endif
