// From tensors to a vector routine: shape, allocation, the dispatch tables, the repetition rule.
//
// An entry of a dispatch table answers with an outcome: -2 and below for success, -1 for a combination
// without a routine, else the 0-based position of the first failing element. A routine that stores
// another kind than the result tensor holds counts as none, so that no payload is ever read or written
// as another type.
#include "dispatch.h"

#include "../runtime/types.h"
#include "../tensor/tensor.h"
#include "outcome.h"
#include "repetition.h"
#include "result_types.h"
#include "widening.h"
#include <torvane/operators.h>

namespace torvane {

namespace {

constexpr bool isKind(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

// ---- entries of the dispatch tables ---------------------------------------------------------------

mint noUnary(const MTensor *, MTensor *, mint, mint) { return kNoRoutine; }

mint plainUnary(const MTensor *x, MTensor *result, mint op, mint flags) {
  const TorvaneUnaryRoutine routine = machfunsarray_1[3 * op + (x->type - 2)];
  if (routine == nullptr || storedKind1(op, x->type) != result->type) return kNoRoutine;
  const mint strides[2] = {1, 1};
  return outcomeOf(routine(result->data, x->data, x->elementCount, strides, flags));
}

mint wideningUnary(const MTensor *x, MTensor *result, mint op, mint flags) {
  UnaryPair pair;
  if (!wideningPair(op, &pair)) return kNoRoutine;
  return widenUnary(pair, static_cast<mcomplex *>(result->data), static_cast<const mreal *>(x->data), 0,
                    x->elementCount, flags);
}

mint noBinary(const MTensor *, const MTensor *, MTensor *, mint, mint) { return kNoRoutine; }

mint plainBinary(const MTensor *x, const MTensor *y, MTensor *result, mint op, mint flags) {
  const TorvaneBinaryRoutine routine = binaryRoutineOf(op, x->type, y->type);
  if (routine == nullptr || storedKind2(op, x->type, y->type) != result->type) return kNoRoutine;
  return runOverBlocks(routine, result, x, y, flags);
}

mint wideningBinary(const MTensor *x, const MTensor *y, MTensor *result, mint op, mint flags) {
  BinaryPair pair;
  if (!wideningPair(op, x->type, y->type, &pair)) return kNoRoutine;
  return widenBinary(pair, result, x, y, 0, flags);
}

using UnaryEntry = mint (*)(const MTensor *, MTensor *, mint, mint);
using BinaryEntry = mint (*)(const MTensor *, const MTensor *, MTensor *, mint, mint);

// Rows: operand integer, real, complex. Columns: result integer, real, complex.
constexpr UnaryEntry kUnaryEntries[9] = {
    plainUnary, noUnary,    noUnary,       //
    plainUnary, plainUnary, wideningUnary, //
    plainUnary, plainUnary, plainUnary,
};

// Rows: first and second operand. Columns: result integer, real, complex.
constexpr BinaryEntry kBinaryEntries[27] = {
    plainBinary, noBinary,    noBinary,       // integer, integer
    plainBinary, plainBinary, wideningBinary, // integer, real
    noBinary,    plainBinary, plainBinary,    // integer, complex
    plainBinary, plainBinary, wideningBinary, // real, integer
    plainBinary, plainBinary, wideningBinary, // real, real
    noBinary,    plainBinary, plainBinary,    // real, complex
    noBinary,    plainBinary, plainBinary,    // complex, integer
    noBinary,    plainBinary, plainBinary,    // complex, real
    noBinary,    plainBinary, plainBinary,    // complex, complex
};

mint runUnary(const MTensor *x, MTensor *result, mint op, mint flags) {
  if (op < 0 || op >= kUnaryNumbers || !isKind(x->type) || !isKind(result->type)) return kNoRoutine;
  return kUnaryEntries[3 * (x->type - 2) + (result->type - 2)](x, result, op, flags);
}

mint runBinary(const MTensor *x, const MTensor *y, MTensor *result, mint op, mint flags) {
  if (op < kFirstBinary || op >= kFirstBinary + kBinaryNumbers) return kNoRoutine;
  if (!isKind(x->type) || !isKind(y->type) || !isKind(result->type)) return kNoRoutine;
  return kBinaryEntries[9 * (x->type - 2) + 3 * (y->type - 2) + (result->type - 2)](x, y, result, op, flags);
}

// An operand that becomes its own result in another type is still read while the result is written, so
// the result grows in a payload of its own and changes places with the operand's at the end.
mint retypeInPlace(MTensor *x, mint op, mint resultType, mint flags) {
  MTensor *fresh = nullptr;
  const mint status = tensorMathUnary(&fresh, x, op, resultType, flags);
  if (status == kSuccess) exchangeContents(x, fresh);
  MTensor_delete(fresh);
  return status;
}

// A compiled loop comes back with a result of the right shape and type; nothing is asked of the allocator
// then, and one look at the extents is enough.
bool alreadyHolds(const MTensor *result, mint type, const MTensor *x, const MTensor *y) {
  if (result == nullptr || result->type != type || result->data == nullptr) return false;
  if (result->rank != x->rank || x->rank != y->rank) return false;
  for (mint i = 0; i < x->rank; ++i)
    if (((result->dimensions[i] ^ x->dimensions[i]) | (x->dimensions[i] ^ y->dimensions[i])) != 0)
      return false;
  return true;
}

} // namespace

mint tensorMathUnary(MTensor **result, MTensor *x, mint op, mint resultType, mint flags) {
  if (*result == x && x->type != resultType) return retypeInPlace(x, op, resultType, flags);
  const mint status =
      allocationStatus(MTensor_allocateCommon(result, resultType, x->rank, x->dimensions, kReport));
  return status != kSuccess ? status : statusOf(runUnary(x, *result, op, flags));
}

mint tensorMathBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint resultType, mint flags) {
  if (alreadyHolds(*result, resultType, x, y)) return statusOf(runBinary(x, y, *result, op, flags));
  mint rank;
  mint *dimensions;
  if (MTensor_maxCompatibleDimensions(x, y, &rank, &dimensions) == 0) return -1;
  if (*result != x && *result != y) {
    const mint status =
        allocationStatus(MTensor_allocateCommon(result, resultType, rank, dimensions, kReport));
    if (status != kSuccess) return status;
  } else if ((*result)->elementCount < resultCount(x->elementCount, y->elementCount)) {
    return kValueFailed; // nothing grows in place, and the larger operand's elements would not fit
  }
  return statusOf(runBinary(x, y, *result, op, flags));
}

} // namespace torvane

using namespace torvane;

mint MTensorMathUnary(MTensor **result, MTensor *x, mint op, mint resultType) {
  return tensorMathUnary(result, x, op, resultType, 0) == kSuccess ? 0 : 1;
}

mint MTensorMathBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint resultType) {
  return tensorMathBinary(result, x, y, op, resultType, 0) == kSuccess ? 0 : 1;
}
