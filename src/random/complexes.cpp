// Uniform complex numbers of a box: all real parts, then all imaginary ones.
#include "../runtime/memory.h"
#include "../tensor/tensor.h"
#include "draw_source.h"
#include <torvane/distributions.h>

using namespace torvane;

namespace {

// No negative zero comes out.
mreal withoutSignOfZero(mreal x) { return x == 0 ? 0.0 : x; }

// Null for none, and where they cannot be had.
mreal *newReals(mint count) {
  const uint32_t bytes = count > 0 ? checkedByteCount(sizeof(mreal), count) : 0;
  return bytes == kByteOverflow ? nullptr : static_cast<mreal *>(allocate(bytes, 1, kReport));
}

} // namespace

// The scratch is never freed: the call leaves it allocated on every path, which its callers count among its
// costs and rely upon. Whoever draws in a loop draws many at a time.
mint UniformRandomMComplexes(mcomplex *destination, mint count, mreal lowRe, mreal lowIm, mreal highRe,
                             mreal highIm) {
  if (!RealSource()) return kNoFunction;
  mreal *const scratch = newReals(count);
  if (scratch == nullptr && count > 0) return kSizeFailed;
  mint status = UniformRandomMReals(scratch, count, lowRe, highRe);
  if (status != kSuccess) return status;
  for (mint k = 0; k < count; ++k) destination[k] = {withoutSignOfZero(scratch[k]), 0.0};
  status = UniformRandomMReals(scratch, count, lowIm, highIm);
  if (status != kSuccess) return status;
  for (mint k = 0; k < count; ++k) destination[k].im = withoutSignOfZero(scratch[k]);
  return kSuccess;
}

mint Runtime_UniformRandomMComplexes(mcomplex *destination, mint count, mreal lowRe, mreal lowIm,
                                     mreal highRe, mreal highIm) {
  return UniformRandomMComplexes(destination, count, lowRe, lowIm, highRe, highIm);
}
