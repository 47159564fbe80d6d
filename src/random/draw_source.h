// Where a draw of one kind comes from: the calling thread's generator and that function of its table.
//
// The function is null where the generator lacks it. There may be no generator at all: a host can hide the
// default method by one of the same name that refuses its parameters, and a new thread gets none then.
#pragma once

#include <torvane/random.h>

namespace torvane {

template <class Function, Function RandomGeneratorFunctions::*kFunction> struct DrawSource {
  RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
  Function function = generator != nullptr ? generator->functions->*kFunction : nullptr;

  explicit operator bool() const { return function != nullptr; }
  template <class Value> mint draw(Value *destination, mint count, Value low, Value high) const {
    return function(destination, count, low, high, generator);
  }
};

using IntegerSource = DrawSource<RandomMIntegers, &RandomGeneratorFunctions::randomMIntegers>;
using RealSource = DrawSource<RandomMReals, &RandomGeneratorFunctions::randomMReals>;

} // namespace torvane
