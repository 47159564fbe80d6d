// From cpuid leaves 1 and 7, and from what the system lets the processor save: Intel 64 and IA-32
// Architectures Software Developer's Manual, volume 1, sections 14.3 and 15.2.
#include "platform_cpu_level.h"

#include <algorithm>
#include <cpuid.h>

namespace torvane {

constinit std::atomic<mint> processorLevelWord{kBaselineLevel};

namespace {

struct Leaf {
  unsigned a = 0, b = 0, c = 0, d = 0;

  explicit Leaf(unsigned number) { __get_cpuid_count(number, 0, &a, &b, &c, &d); }
};

constexpr bool hasAll(unsigned word, unsigned bits) { return (word & bits) == bits; }

// Only where leaf 1 tells that the instruction is there.
unsigned savedStates() {
  unsigned low, high;
  asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return low;
}

constexpr unsigned kSavesAvx = 0x6, kSavesAvx512 = 0xE6; // XMM and YMM; mask and ZMM registers besides

} // namespace

ProcessorLevel highestProcessorLevel() {
  const Leaf basic(1), extended(7);
  if (!hasAll(basic.c, bit_OSXSAVE | bit_AVX | bit_FMA)) return kBaselineLevel;
  const unsigned saved = savedStates();
  if (!hasAll(extended.b, bit_AVX2) || !hasAll(saved, kSavesAvx)) return kBaselineLevel;
  const unsigned wide = bit_AVX512F | bit_AVX512DQ | bit_AVX512BW | bit_AVX512VL;
  return hasAll(extended.b, wide) && hasAll(saved, kSavesAvx512) ? kAvx512Level : kAvx2Level;
}

mint setProcessorLevel(mint level) {
  const mint highest = highestProcessorLevel();
  return processorLevelWord.exchange(std::clamp(level, mint{kBaselineLevel}, highest),
                                     std::memory_order_relaxed);
}

} // namespace torvane
