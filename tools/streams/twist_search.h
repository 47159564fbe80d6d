// The search for twist vectors of period 2^521 - 1: random candidates, one number after the other.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace streams {

// Whether the recurrence has the longest period: 2^521 - 1 is prime, so that irreducible is enough.
bool hasLongestPeriod(uint32_t twist);

class TwistSearch {
public:
  TwistSearch();

  // The next twist whose low 16 bits are `number`; 0 where 10,000 candidates had none. Numbers are asked for
  // in order, because one sequence of random words serves them all.
  uint32_t find(uint32_t number);

private:
  struct Factor {
    uint32_t constantResidue;
    uint32_t residues[32];
  };
  bool hasSmallFactor(uint32_t twist) const;
  std::vector<Factor> smallFactors;
  std::mt19937 words;
};

} // namespace streams
