// What a typed entry costs when compiled code calls it, through a pointer as a peer is that does the same
// with the compiler's overflow builtin; what a raise costs in style 1; and what Real16 costs, whose results
// come through a pointer. In a chain each call waits for the one before, as in a loop that accumulates.
#include "table.h"

#include <torvane/failure.h>
#include <torvane/scalars.h>

#include <cstdint>
#include <string>

using bench::compare;
using bench::Run;

namespace {

[[gnu::noinline]] int32_t builtinPlus(int32_t x, int32_t y) {
  int32_t sum;
  if (__builtin_add_overflow(x, y, &sum) || sum == INT32_MIN) throwTorvaneException(1);
  return sum;
}

[[gnu::noinline]] int64_t builtinTimes(int64_t x, int64_t y) {
  int64_t product;
  if (__builtin_mul_overflow(x, y, &product) || product == INT64_MIN) throwTorvaneException(1);
  return product;
}

template <class T> Run chained(T (*entry)(T, T), T start, T operand) {
  return [entry, start, operand](int calls) {
    T (*volatile pointer)(T, T) = entry;
    T value = start;
    for (int k = 0; k < calls; ++k) value = pointer(value, operand);
    asm volatile("" : : "r"(value));
  };
}

// No peer raises. What was raised is taken back, so that what follows finds nothing pending.
void timeRaise(const char *name, const Run &run) {
  compare({name}, {{"ours", run}});
  setExceptionActive(0);
}

using HalfEntry = uint16_t *(*)(uint16_t *, uint16_t, uint16_t);
constexpr uint16_t kHalfOne = 0x3C00;

// Or each call by itself, over patterns of numbers between 1 and 2.
Run halves(HalfEntry entry, bool isChained) {
  return [entry, isChained](int calls) {
    HalfEntry volatile pointer = entry;
    uint16_t value = kHalfOne;
    for (int k = 0; k < calls; ++k)
      pointer(&value, isChained ? value : uint16_t(kHalfOne + k % 1024), kHalfOne);
    asm volatile("" : : "r"(value));
  };
}

void timeHalves(const std::string &name, HalfEntry entry) {
  compare({name + " of Real16"}, {{"ours", halves(entry, false)}});
  compare({name + " of Real16, chained"}, {{"ours", halves(entry, true)}});
}

} // namespace

int main(int argc, char **argv) {
  bench::start("scalar_entries", "ns a call", argc, argv, 501);
  compare({"checked plus of Integer32, chained"},
          {{"ours", chained<int32_t>(checked_binary_plus_Integer32_Integer32, 0, 1)},
           {"builtin", chained<int32_t>(builtinPlus, 0, 1)}});
  compare({"checked times of Integer64, chained"},
          {{"ours", chained<int64_t>(checked_binary_times_Integer64_Integer64, 3, 1)},
           {"builtin", chained<int64_t>(builtinTimes, 3, 1)}});
  timeRaise("plus of Integer8, every other raises",
            chained<int8_t>(checked_binary_plus_Integer8_Integer8, 127, 127));
  timeRaise("divide of Integer32, each raises", chained<int32_t>(binary_divide_Integer32_Integer32, 1, 1));
  timeHalves("plus", binary_plus_Real16_Real16);
  timeHalves("times", binary_times_Real16_Real16);
  timeHalves("checked plus", checked_binary_plus_Real16_Real16);
  timeHalves("checked times", checked_binary_times_Real16_Real16);
}
