// RandomInteger to RandomComplexes: bounds as a pair in a tensor or as two values, the result one number or a
// tensor of given extents.
#include "../algorithms/handler.h"
#include "../algorithms/result_tensor.h"
#include "dimension_argument.h"
#include <torvane/distributions.h>

namespace torvane {

namespace {

template <class Value> struct Bounds { Value low, high; };

template <class Value> constexpr mint kTypeOf = TORVANE_TYPE_INTEGER;
template <> constexpr mint kTypeOf<mreal> = TORVANE_TYPE_REAL;
template <> constexpr mint kTypeOf<mcomplex> = TORVANE_TYPE_COMPLEX;

mint draw(mint *destination, mint count, const Bounds<mint> &bounds) {
  return UniformRandomMIntegers(destination, count, bounds.low, bounds.high);
}
mint draw(mreal *destination, mint count, const Bounds<mreal> &bounds) {
  return UniformRandomMReals(destination, count, bounds.low, bounds.high);
}
mint draw(mcomplex *destination, mint count, const Bounds<mcomplex> &bounds) {
  return UniformRandomMComplexes(destination, count, bounds.low.re, bounds.low.im, bounds.high.re,
                                 bounds.high.im);
}

template <class Value> bool isPair(const MTensor *tensor) {
  return tensor->type == kTypeOf<Value> && tensor->rank > 0 && tensor->dimensions[0] == 2 &&
         tensor->elementCount > 0;
}

// From one argument or from two.
template <class Value> mint readBounds(mint count, void *const *arguments, Bounds<Value> *bounds) {
  if (count == 2) {
    *bounds = {argument<Value>(arguments, 0), argument<Value>(arguments, 1)};
    return kSuccess;
  }
  const MTensor *pair = tensorArgument(arguments, 0);
  if (!isPair<Value>(pair)) return kValueFailed;
  const auto *values = static_cast<const Value *>(pair->data);
  *bounds = {values[0], values[1]};
  return kSuccess;
}

template <class Value> mint drawOne(mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  Bounds<Value> bounds;
  if (const mint status = readBounds(argumentCount, arguments, &bounds)) return status;
  Value value;
  const mint status = draw(&value, 1, bounds);
  if (status == kSuccess) storeResult(result, value);
  return status;
}

// Every failure of the draw is one status here. Callers rely on that, as on the scalar form's telling them
// apart.
template <class Value> mint drawTensor(mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  Bounds<Value> bounds;
  GivenExtents given;
  const MTensor *dimensions = tensorArgument(arguments, argumentCount - 1);
  if (const mint status = readBounds(argumentCount - 1, arguments, &bounds)) return status;
  if (const mint status = readExtents(dimensions, &given)) return status;
  ResultTensor drawn(tensorResult(result), {dimensions});
  if (argumentCount == 2) drawn.avoid(tensorArgument(arguments, 0));
  if (const mint status = drawn.allocate(kTypeOf<Value>, given.rank, given.extents)) return status;
  const MTensor *tensor = drawn.get();
  if (draw(static_cast<Value *>(tensor->data), tensor->elementCount, bounds) != kSuccess) return kValueFailed;
  return drawn.commit();
}

} // namespace

mint handleRandomInteger(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawOne<mint>(argumentCount, arguments, result);
}
mint handleRandomReal(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawOne<mreal>(argumentCount, arguments, result);
}
mint handleRandomComplex(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawOne<mcomplex>(argumentCount, arguments, result);
}
mint handleRandomIntegers(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawTensor<mint>(argumentCount, arguments, result);
}
mint handleRandomReals(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawTensor<mreal>(argumentCount, arguments, result);
}
mint handleRandomComplexes(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return drawTensor<mcomplex>(argumentCount, arguments, result);
}

} // namespace torvane
