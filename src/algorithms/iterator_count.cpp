// How often a loop steps: one less than its passes, and negative when it makes none.
#include "handler.h"
#include <torvane/lists.h>

#include <math.h>

namespace torvane {

namespace {

// The most negative integer is reserved: a difference that comes to it counts as overflow.
mint countIntegerSteps(mint min, mint max, mint step, mint *count) {
  mint difference;
  if (__builtin_sub_overflow(max, min, &difference) || difference == INT32_MIN || step == 0)
    return kValueFailed;
  *count = difference / step;
  if (*count == 0 && difference != 0 && (difference < 0) != (step < 0)) *count = -1;
  return kSuccess;
}

constexpr mint kNoStep = -1; // the status of a real step that is 0 or not a number
constexpr mreal kTolerance = 2.220446049250313e-16;
constexpr mreal kMostPasses = 2147483646.0;

// |x|, or -|x| for a loop that descends.
mreal magnitudeAlong(mreal direction, mreal x) { return x > 0 ? direction * x : x < 0 ? direction * -x : 0; }

// The tolerance lets a last value count that misses the bound by rounding.
mreal passes(mreal min, mreal max, mreal step) {
  const mreal direction = step < 0 ? -1 : 1;
  const mreal scale = magnitudeAlong(direction, max) + 2 * (max - min) + magnitudeAlong(direction, min);
  return floor(scale * kTolerance / step + ((max - min) / step + 1));
}

mint countRealSteps(mreal min, mreal max, mreal step, mint *count) {
  if (!(step > 0) && !(step < 0)) return kNoStep;
  const mreal whole = passes(min, max, step);
  if (!(whole >= 0 && whole <= kMostPasses)) return kValueFailed;
  *count = static_cast<mint>(whole) - 1;
  return kSuccess;
}

} // namespace

mint handleIteratorCountI(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const mint step = argumentCount == 3 ? integerArgument(arguments, 2) : 1;
  return countIntegerSteps(integerArgument(arguments, 0), integerArgument(arguments, 1), step,
                           static_cast<mint *>(result));
}

mint handleIteratorCountR(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const mreal step = argumentCount == 3 ? realArgument(arguments, 2) : 1;
  return countRealSteps(realArgument(arguments, 0), realArgument(arguments, 1), step,
                        static_cast<mint *>(result));
}

} // namespace torvane

using namespace torvane;

mint Runtime_IteratorCount_I_I_I_I(mint min, mint max, mint step) {
  mint count = 0;
  return countIntegerSteps(min, max, step, &count) == kSuccess ? count : 0;
}

mint Runtime_IteratorCount_R_R_R_I(mreal min, mreal max, mreal step) {
  mint count = 0;
  return countRealSteps(min, max, step, &count) == kSuccess ? count : 0;
}
