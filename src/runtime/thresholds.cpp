#include "thresholds.h"

#include "platform_cpu.h"
#include "platform_cpu_level.h"
#include "startup.h"
#include <torvane/elementwise.h>

namespace torvane {

constinit ThresholdWords thresholdWords{{kDefaultParallelLength, kDefaultParallelLength,
                                         kDefaultParallelLength, kDefaultParallelLength,
                                         kDefaultParallelLength},
                                        {kDefaultVendorLength, kDefaultVendorLength, kDefaultVendorLength},
                                        1,
                                        1,
                                        1,
                                        0,
                                        0};

namespace {

constexpr auto relaxed = std::memory_order_relaxed;

void resetLengthThresholds() {
  for (auto &word : thresholdWords.parallelLength) word.store(kDefaultParallelLength, relaxed);
}

void resetVendorThresholds() {
  for (auto &word : thresholdWords.vendorLength) word.store(kDefaultVendorLength, relaxed);
}

void resetWorkers() {
  setWorkerCountFixed(0);
  setWorkerCount(1);
  thresholdWords.coreCount.store(1, relaxed);
  thresholdWords.logicalProcessorCount.store(1, relaxed);
}

void countProcessors() {
  ProcessorInformation machine;
  if (!readProcessorInformation(&machine)) return;
  thresholdWords.coreCount.store(machine.coreCount, relaxed);
  thresholdWords.logicalProcessorCount.store(machine.logicalProcessorCount, relaxed);
}

} // namespace

void initializeThresholds(mint stage) {
  if (stage == 0) {
    resetWorkers();
    setParallelDisabled(0);
    resetLengthThresholds();
    resetVendorThresholds();
    setProcessorLevel(highestProcessorLevel());
  } else if (stage == 1) {
    countProcessors();
    if (workerCountFixed() == 0) setWorkerCount(coreCount());
  }
}

mint setWorkerCount(mint count) { return thresholdWords.workerCount.exchange(count, relaxed); }
mint setWorkerCountFixed(mint fixed) { return thresholdWords.workerCountFixed.exchange(fixed, relaxed); }
mint setParallelDisabled(mint disabled) {
  return thresholdWords.parallelDisabled.exchange(disabled, relaxed);
}

} // namespace torvane

using namespace torvane;

mint getVectorParallelLengthThreshold(mint index) { return vectorParallelLength(index); }

void setVectorParallelLengthThreshold(mint index, mint value) {
  thresholdWords.parallelLength[index].store(value, relaxed);
}

mint getVectorVendorLengthThreshold(mint index) { return readWord(thresholdWords.vendorLength[index]); }

void setVectorVendorLengthThreshold(mint index, mint value) {
  thresholdWords.vendorLength[index].store(value, relaxed);
}
