// The real routine runs over everything. If it fails at position p, the p results it has stored are coerced
// to complex ones, and the element loop of the widening drivers goes on from p. A routine that tests its
// results in bulk tells position 0 and everything is done again.
//
// The coerced results are those of MTensor_copySomeDataCoerce: a zero of either sign among the first p
// becomes +0, where the element loop would keep the sign.
#include "real_first.h"

#include "dispatch.h"
#include "repetition.h"
#include "widening.h"

namespace torvane {

namespace {

// `goOn(complexResult)` computes the elements from `position` on.
template <class GoOn> mint turnComplex(MTensor *result, mint position, GoOn goOn) {
  MTensor *wide = nullptr;
  const mint status = allocationStatus(
      MTensor_allocateCommon(&wide, TORVANE_TYPE_COMPLEX, result->rank, result->dimensions, kReport));
  if (status != kSuccess) return status;
  MTensor_copySomeDataCoerce(wide, 0, 1, result, 0, 1, position);
  const mint outcome = goOn(wide);
  exchangeContents(result, wide);
  MTensor_delete(wide);
  return statusOf(outcome);
}

// An operand that is its own result is read to the end, so the result grows beside it.
template <class Compute> mint besideOperand(MTensor *operand, Compute compute) {
  MTensor *fresh = nullptr;
  const mint status = compute(&fresh);
  if (status == kSuccess) exchangeContents(operand, fresh);
  MTensor_delete(fresh);
  return status;
}

bool isRealOrInteger(mint type) { return type == TORVANE_TYPE_REAL || type == TORVANE_TYPE_INTEGER; }

mint allocateReal(MTensor **result, mint rank, const mint *dimensions) {
  return allocationStatus(MTensor_allocateCommon(result, TORVANE_TYPE_REAL, rank, dimensions, kReport));
}

} // namespace

mint realFirstUnary(MTensor **result, MTensor *x, mint op, mint flags) {
  UnaryPair pair;
  if (x->type != TORVANE_TYPE_REAL || !wideningPair(op, &pair)) return kValueFailed;
  if (*result == x)
    return besideOperand(x, [&](MTensor **fresh) { return realFirstUnary(fresh, x, op, flags); });
  const mint status = allocateReal(result, x->rank, x->dimensions);
  if (status != kSuccess) return status;
  const mint strides[2] = {1, 1};
  const mint answer = pair.real((*result)->data, x->data, x->elementCount, strides, flags);
  if (answer == 0) return kSuccess;
  return turnComplex(*result, answer - 1, [&](MTensor *wide) {
    return widenUnary(pair, static_cast<mcomplex *>(wide->data), static_cast<const mreal *>(x->data),
                      answer - 1, x->elementCount, flags);
  });
}

mint realFirstBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint flags) {
  mint rank;
  mint *dimensions;
  BinaryPair pair;
  if (MTensor_maxCompatibleDimensions(x, y, &rank, &dimensions) == 0) return -1;
  if (!isRealOrInteger(x->type) || !isRealOrInteger(y->type)) return kValueFailed;
  if (!wideningPair(op, x->type, y->type, &pair)) return kValueFailed;
  if (*result == x || *result == y)
    return besideOperand(*result, [&](MTensor **fresh) { return realFirstBinary(fresh, x, y, op, flags); });
  const mint status = allocateReal(result, rank, dimensions);
  if (status != kSuccess) return status;
  const mint outcome = runOverBlocks(pair.real, *result, x, y, flags | TORVANE_CHECK_REALS);
  if (outcome < kNoRoutine) return kSuccess;
  return turnComplex(*result, outcome,
                     [&](MTensor *wide) { return widenBinary(pair, wide, x, y, outcome, flags); });
}

} // namespace torvane
