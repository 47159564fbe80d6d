// How far the processor goes beyond the instructions that every target has.
//
// The level is chosen once, at stage 0 of start-up, and is that of the baseline before. It decides which copy
// of a loop runs and never what the loop computes.
#pragma once

#include "types.h"

#include <atomic>

namespace torvane {

enum ProcessorLevel : mint {
  kBaselineLevel = 0,
  kAvx2Level = 1,   // AVX2 and FMA
  kAvx512Level = 2, // AVX-512 F, DQ, BW and VL besides
};
inline constexpr mint kProcessorLevels = 3;

// What the processor has and the operating system saves between its threads.
ProcessorLevel highestProcessorLevel();

extern std::atomic<mint> processorLevelWord;
inline mint processorLevel() { return processorLevelWord.load(std::memory_order_relaxed); }

// The level in force; one above the highest becomes the highest. Yields the previous one. For start-up and
// for tests, while no other thread runs a loop.
mint setProcessorLevel(mint level);

} // namespace torvane
