// Accumulate: running sums of the rows of a tensor.
//
// Row i of the result is its row i - 1 plus row i of the tensor, by the vector routine for plus, whose status
// is the result's. Vectors keep their sum in a register instead. That of reals starts from 0.0 and is tested
// at its end whatever the flags say, deliberately: an infinite or NaN sum is a failure there.
#include "../elementwise/exceptions.h"
#include "../scalar/bodies/arithmetic.h"
#include "../scalar/evaluate.h"
#include "handler.h"
#include "result_tensor.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

mint accumulateReals(mreal *to, const mreal *from, mint count) {
  mreal sum = 0;
  for (mint k = 0; k < count; ++k) to[k] = sum = sum + from[k];
  return classify(sum) == error::none ? kSuccess : kNotFinite;
}

// Rows of one element: where one fails, its position is 1.
template <class Form> mint accumulateIntegers(mint *to, const mint *from, mint count) {
  error code = error::none;
  mint sum = to[0] = from[0];
  for (mint k = 1; k < count && code == error::none; ++k)
    to[k] = sum = compute<binary::plus, Form>(code, sum, from[k]);
  return code == error::none ? 0 : 1;
}

// The bulk test of all rows at once: a row that fails has status 1, whichever it is.
mint accumulateComplexes(ComplexReal64 *to, const ComplexReal64 *from, mint count, mint flags) {
  const bool isChecked = (flags & TORVANE_CHECK_REALS) != 0;
  if (isChecked) clearFailingExceptions();
  ComplexReal64 sum = to[0] = from[0];
  for (mint k = 1; k < count; ++k) to[k] = sum = {sum.re + from[k].re, sum.im + from[k].im};
  return isChecked && hasFailingExceptions() ? 1 : 0;
}

mint accumulateVector(MTensor *to, const MTensor *from, mint flags) {
  const mint count = from->elementCount;
  switch (from->type) {
  case TORVANE_TYPE_INTEGER:
    return (flags & TORVANE_CHECK_INTEGERS) != 0
               ? accumulateIntegers<Checked>(integersOf(to), integersOf(from), count)
               : accumulateIntegers<Plain>(integersOf(to), integersOf(from), count);
  case TORVANE_TYPE_REAL:
    return accumulateReals(static_cast<mreal *>(to->data), static_cast<const mreal *>(from->data), count);
  default:
    return accumulateComplexes(static_cast<ComplexReal64 *>(to->data),
                               static_cast<const ComplexReal64 *>(from->data), count, flags);
  }
}

template <class T, class Routine>
mint accumulateRows(T *to, const T *from, mint count, mint width, Routine plus, mint flags) {
  const mint dense[] = {1, 1, 1};
  for (mint k = 0; k < width; ++k) to[k] = from[k];
  mint status = 0;
  for (mint i = 1; i < count && status == 0; ++i) {
    const T *above = to;
    to += width, from += width;
    status = plus(to, above, from, width, dense, flags);
  }
  return status;
}

mint accumulateRows(MTensor *to, const MTensor *from, mint flags) {
  const mint count = from->dimensions[0], width = from->elementCount / count;
  if (from->type == TORVANE_TYPE_INTEGER)
    return accumulateRows(integersOf(to), integersOf(from), count, width, machfunc_ii_plus, flags);
  return accumulateRows(static_cast<mreal *>(to->data), static_cast<const mreal *>(from->data), count,
                        from->type == TORVANE_TYPE_COMPLEX ? 2 * width : width, machfunc_dd_plus, flags);
}

mint accumulate(MTensor **slot, const MTensor *tensor, mint flags) {
  if (tensor->rank < 1) return kWrongRank;
  if (elementWidth(tensor->type) == 0) return kWrongType;
  ResultTensor sums(slot, {tensor});
  mint status = sums.allocateLike(tensor->type, tensor);
  if (status == kSuccess && tensor->elementCount > 0)
    status = tensor->rank == 1 ? accumulateVector(sums.get(), tensor, flags)
                               : accumulateRows(sums.get(), tensor, flags);
  return status == kSuccess ? sums.commit() : status;
}

} // namespace

mint handleAccumulate(TorvaneLibraryData *, mint, void *const *arguments, void *result) {
  return accumulate(tensorResult(result), tensorArgument(arguments, 0), integerArgument(arguments, 1));
}

} // namespace torvane
