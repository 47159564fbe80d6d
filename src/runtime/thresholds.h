// Process-wide words that say when and how wide loops run in parallel. Set by stages 0 and 1 of start-up and
// by their setters; read without a lock by everybody, hence relaxed atomics. They hold the values of stage 0
// when the library is loaded.
#pragma once

#include "types.h"

#include <atomic>

namespace torvane {

inline constexpr mint kVectorParallelThresholds =
    5;                                             // reductions, unary, scalar-valued binary, binary, ternary
inline constexpr mint kVectorVendorThresholds = 3; // read by nothing
inline constexpr mint kDefaultParallelLength = 32768;
inline constexpr mint kDefaultVendorLength = 0x7FFFFFFF;

struct ThresholdWords {
  std::atomic<mint> parallelLength[kVectorParallelThresholds];
  std::atomic<mint> vendorLength[kVectorVendorThresholds];
  std::atomic<mint> workerCount;
  std::atomic<mint> coreCount;
  std::atomic<mint> logicalProcessorCount;
  std::atomic<mint> workerCountFixed;
  std::atomic<mint> parallelDisabled;
};
extern ThresholdWords thresholdWords;

inline mint readWord(const std::atomic<mint> &word) { return word.load(std::memory_order_relaxed); }

// Element count from which a routine of the kind may run in parallel. The index is not checked.
inline mint vectorParallelLength(mint index) { return readWord(thresholdWords.parallelLength[index]); }

// Threads that the pool gets at its next loop; 0 counts as 1. Setters return the previous value.
inline mint workerCount() { return readWord(thresholdWords.workerCount); }
mint setWorkerCount(mint count);

// Processor cores and logical processors of the machine, 1 where the system does not tell.
inline mint coreCount() { return readWord(thresholdWords.coreCount); }
inline mint logicalProcessorCount() { return readWord(thresholdWords.logicalProcessorCount); }

// Non-zero keeps stage 1 from setting the worker count. Stage 0 clears it, so it has effect when a host sets
// it between the two.
inline mint workerCountFixed() { return readWord(thresholdWords.workerCountFixed); }
mint setWorkerCountFixed(mint fixed);

// Non-zero makes elementwise routines run serially.
inline mint parallelDisabled() { return readWord(thresholdWords.parallelDisabled); }
mint setParallelDisabled(mint disabled);

} // namespace torvane
