// What the streams of the ParallelMersenneTwister differ in, by stream number: the twist vector, whose low 16
// bits are the number, and the two masks of the tempering. Made by tools/streams.
#pragma once

#include <stdint.h>

namespace torvane {

inline constexpr uint32_t kStreamCount = 1024;

extern const uint32_t streamTwists[kStreamCount];
extern const uint32_t streamMasksB[kStreamCount];
extern const uint32_t streamMasksC[kStreamCount];

} // namespace torvane
