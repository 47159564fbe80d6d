// What this machine can do at best, measured in this process: the rates that a row's limit is made of.
#pragma once

#include <cstddef>

namespace bench {

// Bytes a nanosecond, read by a sum over so many of them, written by memset, and both counted by memcpy.
double readRate(double bytes);
double writeRate(double bytes);
double copyRate(double bytes);

// Products and sums of doubles a nanosecond, not fused, on one thread.
double operationRate();

} // namespace bench
