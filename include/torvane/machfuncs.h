#ifndef TORVANE_MACHFUNCS_H
#define TORVANE_MACHFUNCS_H
#include "types.h"
TORVANE_BEGIN_DECLARATIONS
TORVANE_API mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_END_DECLARATIONS
#endif
