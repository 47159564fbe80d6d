// What every handler of the registry does with its arguments: read them where they point, check tensors, hand
// on.
#pragma once

#include "../tensor/tensor.h"
#include "registry.h"

namespace torvane {

// The value that argument i points at: an mint, an mreal, an mcomplex, or (tensorArgument) a handle.
template <class Value> const Value &argument(void *const *arguments, mint i) {
  return *static_cast<const Value *>(arguments[i]);
}
inline mint integerArgument(void *const *arguments, mint i) { return argument<mint>(arguments, i); }
inline mreal realArgument(void *const *arguments, mint i) { return argument<mreal>(arguments, i); }
inline MTensor *tensorArgument(void *const *arguments, mint i) { return argument<MTensor *>(arguments, i); }

// Where the result goes: the slot of a tensor, or a scalar.
inline MTensor **tensorResult(void *result) { return static_cast<MTensor **>(result); }
template <class Value> void storeResult(void *result, Value value) { *static_cast<Value *>(result) = value; }

inline mint *integersOf(const MTensor *tensor) { return static_cast<mint *>(tensor->data); }

// kSuccess, or why a tensor is not a vector of integers: kWrongType first, then kWrongRank.
inline mint checkIntegerVector(const MTensor *tensor) {
  if (tensor->type != TORVANE_TYPE_INTEGER) return kWrongType;
  return tensor->rank == 1 ? kSuccess : kWrongRank;
}

} // namespace torvane
