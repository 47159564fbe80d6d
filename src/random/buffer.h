// Buffered generators: the outer generator holds words to be read bit by bit, the inner one, its source, the
// recurrence that makes them.
#pragma once

#include <torvane/random.h>

namespace torvane {

inline RandomBuffer *bufferOf(const RandomGenerator *generator) {
  return static_cast<RandomBuffer *>(generator->state);
}

// What the inner generator of a buffered one holds.
template <class State> State *sourceState(const RandomGenerator *outer) {
  return static_cast<State *>(bufferOf(outer)->source->state);
}

// An inner generator: nothing draws from it but the fill of its buffer.
RandomGenerator *newSource(RandomSeed seed, void *state);

// The end of a buffered generator and its source, whose state is the method's to free before.
void deleteWithSource(RandomGenerator *outer);

} // namespace torvane
