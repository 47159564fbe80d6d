// Draws that a test writes itself, in the table of the thread's generator while the object lives.
#pragma once

#include "words.h"

#include <functional>

namespace torvane::test {

class ScriptedDraws {
public:
  // Each fills `count` places from the given bounds and returns a status.
  std::function<mint(mint *to, mint count, mint low, mint high)> integers;
  std::function<mint(mreal *to, mint count, mreal a, mreal b)> reals;

  ScriptedDraws() {
    current.generator->state = this;
    current.table()->randomMIntegers = [](mint *to, mint count, mint low, mint high, RandomGenerator *self) {
      return static_cast<ScriptedDraws *>(self->state)->integers(to, count, low, high);
    };
    current.table()->randomMReals = [](mreal *to, mint count, mreal a, mreal b, RandomGenerator *self) {
      return static_cast<ScriptedDraws *>(self->state)->reals(to, count, a, b);
    };
  }
  RandomGeneratorFunctions *table() const { return current.table(); }

private:
  const CurrentGenerator current;
};

} // namespace torvane::test
