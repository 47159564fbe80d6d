// The generators of the calling thread: one at most of each method, in the method's slot, and one of these
// current.
#pragma once

#include <torvane/random.h>

namespace torvane {

inline constexpr const char *kDefaultMethodName = "ExtendedCA";

// As it stands, shared or not; null where the thread has none.
RandomGenerator *currentGenerator();
void setCurrentGenerator(RandomGenerator *generator);

// Holds the generator in its method's slot, and lets go of the one that was there; current as that one was.
void putIntoThread(RandomGenerator *generator);

// What a pinned snapshot holds too is left to it: the thread goes on with a clone, as it stands where the
// method cannot make one. Returns the current generator.
RandomGenerator *unshareCurrentGenerator();

// The default method, seeded from the clock, where the thread has no generator.
void requireCurrentGenerator();

// The start and end of what is current in all threads, and the end of a thread.
void createCurrentSlot();
void deleteCurrentSlot();
void releaseGeneratorsOfThread();

} // namespace torvane
