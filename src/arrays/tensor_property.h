// The shape record of arrays that are not dense.
#pragma once

#include "../runtime/types.h"
#include <torvane/sparse_arrays.h>

namespace torvane {

// A new record by an errorMode; null where it is not fatal and memory is short.
TensorProperty *newTensorProperty(mint rank, mint errorMode);

#if UINTPTR_MAX > 0xFFFFFFFF
static_assert(offsetof(TensorProperty, rank) == 16 && sizeof(TensorProperty) == 32);
#else
static_assert(offsetof(TensorProperty, rank) == 12 && sizeof(TensorProperty) == 24);
#endif
static_assert(offsetof(TensorProperty, realProperty) == 0 && offsetof(TensorProperty, dimensions) == 8);

} // namespace torvane
