// Compiled for the machine at hand, as the peers are. A rate of memory is measured at the size asked for, cut
// to its three leading bits: a fifth less at most, so that the limit stays one. It is kept.
#include "limits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <vector>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

// The least time of one call, over 30 ms or five of them.
template <class Call> double leastNanoseconds(const Call &call) {
  double least = 1e300;
  const auto begin = Clock::now();
  for (int round = 0; round < 5 || Clock::now() - begin < std::chrono::milliseconds(30); ++round) {
    const auto start = Clock::now();
    call();
    asm volatile("" : : : "memory");
    least = std::min(least, std::chrono::duration<double, std::nano>(Clock::now() - start).count());
  }
  return least;
}

// Small amounts are gone through again and again, so that the clock does not count.
constexpr size_t kLeastBytes = size_t{1} << 14, kMostBytes = size_t{1} << 28, kTimedBytes = size_t{1} << 20;

template <class Pass> double rateOf(size_t bytes, const Pass &pass) {
  const size_t passes = std::max<size_t>(1, kTimedBytes / bytes);
  const double time = leastNanoseconds([&] {
    for (size_t k = 0; k < passes; ++k) {
      pass();
      asm volatile("" : : : "memory");
    }
  });
  return static_cast<double>(bytes * passes) / time;
}

using Word = uint64_t __attribute__((vector_size(64)));
constexpr size_t kUnrolled = 8;

double measureRead(size_t bytes) {
  const std::vector<Word> words(bytes / sizeof(Word));
  return rateOf(bytes, [&] {
    std::array<Word, kUnrolled> sums = {};
    for (size_t k = 0; k < words.size(); k += kUnrolled)
      for (size_t j = 0; j < kUnrolled; ++j) sums[j] += words[k + j];
    Word sum = {}; // of all: an array that is looked at itself would be stored at every step
    for (const Word &one : sums) sum += one;
    asm volatile("" : : "m"(sum));
  });
}

double measureWrite(size_t bytes) {
  std::vector<char> to(bytes);
  return rateOf(bytes, [&] { std::memset(to.data(), 1, bytes); });
}

double measureCopy(size_t bytes) {
  std::vector<char> from(bytes / 2, 1), to(bytes / 2);
  return rateOf(bytes, [&] { std::memcpy(to.data(), from.data(), bytes / 2); });
}

using Measure = double (*)(size_t bytes);

template <Measure measure> double kept(double bytes) {
  static std::array<double, 64 * 4> rates = {};
  const auto asked = static_cast<size_t>(
      std::clamp(bytes, static_cast<double>(kLeastBytes), static_cast<double>(kMostBytes)));
  const auto width = static_cast<size_t>(std::bit_width(asked));
  const size_t leading = asked >> (width - 3);
  double &rate = rates[4 * (width - 1) + (leading & 3)];
  if (rate == 0) rate = measure(leading << (width - 3));
  return rate;
}

// Chains enough to fill every port; products and sums in separate chains, so that nothing can be fused.
double measureOperations() {
  using Reals = double __attribute__((vector_size(64)));
  constexpr int kChains = 12, kSteps = 2000;
  std::array<Reals, kChains> chains = {};
  Reals factor = {}, term = {};
  asm volatile("" : "+m"(factor), "+m"(term));
  const double time = leastNanoseconds([&] {
    for (int step = 0; step < kSteps; ++step)
      for (size_t k = 0; k < kChains; k += 2) {
        chains[k] *= factor;
        chains[k + 1] += term;
      }
    asm volatile("" : "+m"(chains));
  });
  return kChains * kSteps * (sizeof(Reals) / sizeof(double)) / time;
}

} // namespace

double readRate(double bytes) { return kept<measureRead>(bytes); }
double writeRate(double bytes) { return kept<measureWrite>(bytes); }
double copyRate(double bytes) { return kept<measureCopy>(bytes); }

double operationRate() {
  static const double rate = measureOperations();
  return rate;
}

} // namespace bench
