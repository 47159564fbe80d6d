// Every typed entry of every operator as data: what it is called by, what its row checks, samples of its
// operands. So a walk over all of them is compiled once, not once for each of two hundred signatures.
#pragma once

#include "scalar/operator_table.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace torvane::test {

// The samples of one scalar type. A value goes in as one part or, a complex, as two.
struct SampleSet {
  const char *type;
  const unsigned char *values;
  size_t count, bytes, parts;
  bool (*quotientTraps)(const void *x, const void *y); // the most negative integer by -1

  const void *at(size_t k) const { return values + k * bytes; }
};

struct TypedEntry {
  const char *name;
  void (*code)();
  size_t places; // pointers before the operands that lead to parts of the result; 0 where it is returned
  // Stores what the entry returns. The arguments are the places themselves, and the addresses of the rest.
  void (*invoke)(void (*code)(), void *returned, void *const *arguments);
  mint (*valueCode)(const void *result); // 6 or 9 for an infinite or NaN value, else 0
  size_t resultBytes;
};

// An operator on one type, or a power of two.
struct TypedCell {
  const char *typed;
  Checks checks;
  std::array<const SampleSet *, 3> samples; // null beyond the arity
  TypedEntry plain, checked;
};

std::span<const TypedCell> unaryCells(), binaryCells(), ternaryCells();
std::span<const TypedCell> powerCells(); // of every pair of types

struct Operands {
  const TypedCell &cell;
  std::array<const void *, 3> values;
};

// All operands that a walk over the cell meets, but for those that trap.
void forEachSample(const TypedCell &cell, const std::function<void(const Operands &)> &visit);

inline constexpr size_t kResultBytes = 16;

struct Called {
  mint code = 0;
  mint valueCode = 0;
  std::array<unsigned char, kResultBytes> bytes = {};
};

// Holds what every entry promises. Result pointers lead to poisoned bytes: a call that raises leaves them,
// and the first comes back either way. A code is pending before the call: one that succeeds leaves it.
Called call(const TypedEntry &entry, const Operands &operands);

// With null for each result pointer; yields what an entry with such pointers returns, else null.
const void *callWithoutPlaces(const TypedEntry &entry, const Operands &operands);

// The code that a call raises in style 1, 0 where it succeeds and leaves the pending code alone.
mint codeBesidePending(const std::function<void()> &call);

} // namespace torvane::test
