// The routines of the operator tables one after the other, of either arity, on raw elements: for tests that
// hold one run of a routine against another run of it.
#pragma once

#include "elementwise/result_types.h"
#include "scalar/operator_table.h"
#include "support/kinds.h"

#include <string>
#include <torvane/operators.h>

namespace torvane::test {

struct Routine {
  std::string name;
  TorvaneUnaryRoutine unary = nullptr;
  TorvaneBinaryRoutine binary = nullptr;
  mint kinds[3] = {}; // stored, first operand, second operand or 0

  int arity() const { return binary != nullptr ? 2 : 1; }
  mint operator()(void *result, const void *x, const void *y, mint count, const mint *strides,
                  mint flags) const {
    return binary != nullptr ? binary(result, x, y, count, strides, flags)
                             : unary(result, x, count, strides, flags);
  }
};

inline std::vector<Routine> allRoutines() {
  std::vector<Routine> all;
  const auto add = [&all](const char *arity, mint number, auto &routine, const mint(&kinds)[3]) {
    if (routine == nullptr) return;
    Routine one;
    one.name = std::string(arity) + std::to_string(number) + " of kinds " + std::to_string(kinds[1]) + " " +
               std::to_string(kinds[2]);
    if constexpr (requires { one.unary = routine; })
      one.unary = routine;
    else
      one.binary = routine;
    std::copy(kinds, kinds + 3, one.kinds);
    all.push_back(std::move(one));
  };
  for (mint number = 1; number < 85; ++number)
    for (mint x = 2; x <= 4; ++x)
      add("unary ", number, machfunsarray_1[3 * number + x - 2], {storedKind1(number, x), x, 0});
  for (mint number = 257; number < 278; ++number)
    for (mint x = 2; x <= 4; ++x)
      for (mint y = 2; y <= 4; ++y)
        add("binary ", number, machfunsarray_2[9 * (number - 256) + 3 * (x - 2) + y - 2],
            {storedKind2(number, x, y), x, y});
  return all;
}

// An operand pair of one routine; the second element is not looked at by a unary one.
struct Operands {
  Element x, y;
};

// The most negative integer divided by -1 traps: -1 is no divisor here.
inline Operands sampleOperands(const Routine &routine, std::mt19937_64 &random) {
  Operands operands = {sampleElement(routine.kinds[1], random),
                       sampleElement(routine.kinds[2] == 0 ? 2 : routine.kinds[2], random)};
  if (operands.y.value.re == -1) operands.y.value.re = 7;
  return operands;
}

// In place, reals and complexes are tested one by one; apart, by what the run accrues.
enum class Place { apart, onFirst };

inline mint runOne(const Routine &routine, const Operands &operands, mint flags, Place place = Place::apart) {
  const mint strides[3] = {1, 1, 1};
  Buffer x(operands.x.kind, 1), y(operands.y.kind, 1), result(routine.kinds[0], 1);
  x.set(0, operands.x);
  y.set(0, operands.y);
  return routine(place == Place::onFirst ? x.data() : result.data(), x.data(), y.data(), 1, strides, flags);
}

// Operands with the outcome asked for, if a few thousand samples have any.
inline bool findOperands(const Routine &routine, bool failing, mint flags, std::mt19937_64 &random,
                         Operands *found, Place place = Place::apart) {
  for (int attempt = 0; attempt < 3000; ++attempt) {
    *found = sampleOperands(routine, random);
    if ((runOne(routine, *found, flags, place) != 0) == failing) return true;
  }
  return false;
}

} // namespace torvane::test
