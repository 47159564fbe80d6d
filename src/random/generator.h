// What makes a generator a thread's own: its info, and the count of those who hold it.
//
// refCount is the number of thread slots and pinned snapshots that hold the generator; the last of them that
// lets go destroys it. One that is held twice is about to be restored, and nobody may draw from it or seed
// it.
#pragma once

#include "method.h"

namespace torvane {

// The info of every generator that the framework has adopted, with the way back to its method.
struct AdoptedInfo {
  RandomGeneratorInfo shown;
  RandomGeneratorMethod *method;
};

inline RandomGeneratorMethod *methodOf(const RandomGenerator *generator) {
  return reinterpret_cast<const AdoptedInfo *>(generator->info)->method;
}

// Gives a generator its info, with nobody holding it yet. Null stays null.
RandomGenerator *adopt(RandomGenerator *generator, RandomGeneratorMethod *method);

// A clone of its own that nobody holds yet; null where the method cannot.
RandomGenerator *cloneGenerator(RandomGenerator *generator);

inline bool isShared(const RandomGenerator *generator) { return generator->info->refCount > 1; }
void retain(RandomGenerator *generator);
void release(RandomGenerator *generator);

} // namespace torvane
