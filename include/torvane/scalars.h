#ifndef TORVANE_SCALARS_H
#define TORVANE_SCALARS_H
#include "types.h"
#endif
