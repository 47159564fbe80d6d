// What a typed entry costs when compiled code calls it: beside a function of this program, not inlined, that
// does the same with the compiler's overflow builtin, both called through a pointer, rounds alternating; and
// what a raise costs in style 1; and what Real16 costs, whose results come through a pointer. Prints
// nanoseconds for one call and the ratio.
//
//   bench_scalar_entries [rounds]
#include <torvane/failure.h>
#include <torvane/scalars.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kCalls = 2000000;

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

// Each call waits for the one before, as in a loop that accumulates.
template <class T> double chained(T (*entry)(T, T), T start, T operand) {
  T (*volatile pointer)(T, T) = entry;
  T value = start;
  const auto begin = Clock::now();
  for (int k = 0; k < kCalls; ++k) value = pointer(value, operand);
  const double elapsed = std::chrono::duration<double, std::nano>(Clock::now() - begin).count();
  asm volatile("" : : "r"(value));
  return elapsed / kCalls;
}

using HalfEntry = uint16_t *(*)(uint16_t *, uint16_t, uint16_t);

// As above, or each call by itself over patterns of numbers between 1 and 2.
double halves(HalfEntry entry, bool isChained) {
  HalfEntry volatile pointer = entry;
  uint16_t value = 0x3C00;
  const auto begin = Clock::now();
  for (int k = 0; k < kCalls; ++k) pointer(&value, isChained ? value : uint16_t(0x3C00 + k % 1024), 0x3C00);
  const double elapsed = std::chrono::duration<double, std::nano>(Clock::now() - begin).count();
  asm volatile("" : : "r"(value));
  return elapsed / kCalls;
}

double median(std::vector<double> rounds) {
  std::nth_element(rounds.begin(), rounds.begin() + std::ptrdiff_t(rounds.size() / 2), rounds.end());
  return rounds[rounds.size() / 2];
}

template <class T>
void compare(const char *name, int rounds, T (*ours)(T, T), T (*peer)(T, T), T start, T operand) {
  std::vector<double> a, b;
  for (int k = 0; k < rounds; ++k) {
    a.push_back(chained(ours, start, operand));
    b.push_back(chained(peer, start, operand));
  }
  std::printf("%-48s %6.2f ns   builtin %6.2f ns   ratio %.2f\n", name, median(a), median(b),
              median(a) / median(b));
}

void compareHalves(const char *name, int rounds, HalfEntry entry) {
  std::vector<double> chained, apart;
  for (int k = 0; k < rounds; ++k) {
    chained.push_back(halves(entry, true));
    apart.push_back(halves(entry, false));
  }
  std::printf("%-48s %6.2f ns   one after the other %6.2f ns\n", name, median(apart), median(chained));
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 31;
  compare<int32_t>("checked_binary_plus_Integer32_Integer32", rounds, checked_binary_plus_Integer32_Integer32,
                   builtinPlus, 0, 1);
  compare<int64_t>("checked_binary_times_Integer64_Integer64", rounds,
                   checked_binary_times_Integer64_Integer64, builtinTimes, 3, 1);
  std::vector<double> raises;
  for (int k = 0; k < rounds; ++k)
    raises.push_back(chained<int8_t>(checked_binary_plus_Integer8_Integer8, 127, 127));
  setExceptionActive(0);
  std::printf("%-48s %6.2f ns a call, every other one raises in style 1\n",
              "checked_binary_plus_Integer8_Integer8", median(raises));
  std::vector<double> undefined;
  for (int k = 0; k < rounds; ++k)
    undefined.push_back(chained<int32_t>(binary_divide_Integer32_Integer32, 1, 1));
  setExceptionActive(0);
  std::printf("%-48s %6.2f ns a call, each raises in style 1\n", "binary_divide_Integer32_Integer32",
              median(undefined));
  compareHalves("binary_plus_Real16_Real16", rounds, binary_plus_Real16_Real16);
  compareHalves("binary_times_Real16_Real16", rounds, binary_times_Real16_Real16);
  compareHalves("checked_binary_plus_Real16_Real16", rounds, checked_binary_plus_Real16_Real16);
  compareHalves("checked_binary_times_Real16_Real16", rounds, checked_binary_times_Real16_Real16);
}
