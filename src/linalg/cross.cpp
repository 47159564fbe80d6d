// Cross: the vector across one vector of the plane, or across two of space.
//
// The products and differences are the vector routines', one element at a time, with the check flags of the
// caller's arithmetic. Where one fails, what has been computed stays in the slot, deliberately: compiled code
// that goes on after the failure finds the components before it, and zeros behind it.
#include "../algorithms/handler.h"
#include "../algorithms/result_tensor.h"
#include "../runtime/library_data.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

#include <string.h>

namespace torvane {

namespace {

mint checkFlags(const TorvaneLibraryData *libraryData) {
  const RuntimeState *state = libraryData != nullptr ? runtimeState(libraryData) : nullptr;
  const intptr_t flags = state != nullptr ? state->arithmeticFlags : 0;
  return static_cast<mint>(flags & (TORVANE_CHECK_REALS | TORVANE_CHECK_INTEGERS));
}

mint checkVector(const MTensor *vector, mint length) {
  if (vector->rank != 1) return kWrongRank;
  return vector->dimensions[0] == length ? kSuccess : kWrongDimensions;
}

// Integers wrap; the sign of a real flips whatever it is.
mint opposite(mint x) { return static_cast<mint>(0 - static_cast<uint32_t>(x)); }
mreal opposite(mreal x) { return -x; }
mcomplex opposite(const mcomplex &z) { return {-z.re, -z.im}; }

template <class T> void turn(MTensor *result, const MTensor *vector) {
  const T *x = static_cast<const T *>(vector->data);
  T *turned = static_cast<T *>(result->data);
  turned[0] = opposite(x[1]);
  turned[1] = x[0];
}

void turn(MTensor *result, const MTensor *vector) {
  switch (vector->type) {
  case TORVANE_TYPE_INTEGER:
    return turn<mint>(result, vector);
  case TORVANE_TYPE_REAL:
    return turn<mreal>(result, vector);
  default:
    return turn<mcomplex>(result, vector);
  }
}

struct Arithmetic {
  TorvaneBinaryRoutine times, subtract;
};
constexpr Arithmetic kArithmetics[] = {{machfunc_ii_times, machfunc_ii_subtract},
                                       {machfunc_dd_times, machfunc_dd_subtract},
                                       {machfunc_cc_times, machfunc_cc_subtract}};

template <class T> mint multiply(T *r, const T *a, const T *b, const Arithmetic &arithmetic, mint flags) {
  constexpr mint kOne[] = {1, 1, 1};
  mint failure = 0;
  for (mint i = 0; i < 3 && failure == 0; ++i) {
    const mint j = (i + 1) % 3, k = (i + 2) % 3;
    T temporary;
    failure = arithmetic.times(r + i, a + j, b + k, 1, kOne, flags);
    if (failure == 0) failure = arithmetic.times(&temporary, a + k, b + j, 1, kOne, flags);
    if (failure == 0) failure = arithmetic.subtract(r + i, r + i, &temporary, 1, kOne, flags);
  }
  return failure == 0 ? kSuccess : kValueFailed;
}

mint multiply(MTensor *result, const MTensor *a, const MTensor *b, mint flags) {
  const auto run = [&]<class T>(T *r) {
    return multiply(r, static_cast<const T *>(a->data), static_cast<const T *>(b->data),
                    kArithmetics[a->type - TORVANE_TYPE_INTEGER], flags);
  };
  if (a->type == TORVANE_TYPE_INTEGER) return run(integersOf(result));
  if (a->type == TORVANE_TYPE_REAL) return run(static_cast<mreal *>(result->data));
  return run(static_cast<mcomplex *>(result->data));
}

// `b` is null for the form of one vector.
mint cross(MTensor **slot, const MTensor *a, const MTensor *b, mint flags) {
  const mint length = b == nullptr ? 2 : 3;
  mint status = checkVector(a, length);
  if (status == kSuccess && b != nullptr) status = checkVector(b, length);
  if (status != kSuccess) return status;
  if (elementWidth(a->type) == 0 || (b != nullptr && b->type != a->type)) return kWrongType;
  ResultTensor result(slot, {a});
  if (b != nullptr) result.avoid(b);
  status = result.allocateLike(a->type, a);
  if (status != kSuccess) return status;
  // A failure leaves the components behind it unwritten, and the caller gets them all the same.
  memset(result.get()->data, 0, static_cast<size_t>(length) * elementWidth(a->type));
  if (b == nullptr)
    turn(result.get(), a);
  else
    status = multiply(result.get(), a, b, flags);
  result.commit();
  return status;
}

} // namespace

mint handleCross(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  const MTensor *second = argumentCount == 2 ? tensorArgument(arguments, 1) : nullptr;
  return cross(tensorResult(result), tensorArgument(arguments, 0), second, checkFlags(libraryData));
}

} // namespace torvane
