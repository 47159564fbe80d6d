// Processors of the machine, from the operating system.
#pragma once

#include "types.h"

namespace torvane {

inline constexpr int kCacheLevels = 4;

struct ProcessorInformation {
  mint coreCount;
  mint logicalProcessorCount;
  uint64_t cacheBytes[kCacheLevels]; // of all caches of levels 1 to 4 together, instruction caches included
};

// False, and nothing counted, where the system does not tell.
bool readProcessorInformation(ProcessorInformation *machine);

// The same from a directory in the form of Linux's /sys/devices/system/cpu.
bool readProcessorDirectory(const char *directory, ProcessorInformation *machine);

} // namespace torvane
