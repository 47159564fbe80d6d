// The search for the two masks of the tempering that a twist vector goes with best: bit by bit from the top,
// by the equidistribution of the tempered bits so far.
#pragma once

#include <cstdint>
#include <vector>

namespace streams {

struct Masks {
  uint32_t b, c;
};

Masks findMasks(uint32_t twist);

// Entry v - 1: how many successive words are equidistributed in their top v tempered bits.
std::vector<int> equidistribution(uint32_t twist, const Masks &masks);

} // namespace streams
