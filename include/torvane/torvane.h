/* Every exported interface of TorvaneRTL_Minimal. C11 and C++20. */
#ifndef TORVANE_TORVANE_H
#define TORVANE_TORVANE_H

#include "types.h"
#include "memory.h"
#include "failure.h"
#include "startup.h"
#include "tensor.h"
#include "lists.h"
#include "linalg.h"
#include "operators.h"
#include "elementwise.h"
#include "tolerance.h"
#include "scalars.h"
#include "integers.h"
#include "text.h"
#include "parallel.h"
#include "parts.h"
#include "random.h"
#include "distributions.h"
#include "registry.h"
#include "library_data.h"
#include "sorting.h"
#include "sparse_arrays.h"
#include "transposition.h"
#include "numeric_arrays.h"
#include "machfuncs.h"
#include "vectors.h"

#endif
