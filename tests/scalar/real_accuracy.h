// Errors of the functions of reals against MPFR.
//
// A function is tried on steps through its intervals, evenly spaced and evenly spaced in the exponent, at the
// neighbours of the intervals' ends and at points that are known to be hard. An error counts units in the
// last place of Real64 at a size that is the exact value's own, unless the definition loses digits that no
// evaluation of it can keep: then the size is that of what the definition works with.
#pragma once

#include "real_functions.h"

#include <string>

namespace torvane::test {

// No double is closer to a multiple of pi / 2: the hardest argument of a reduction.
inline constexpr double kHardest = 0x1.6ac5b262ca1ffp+849;

struct WorstError {
  double ulps = 0; // of the type, at the size
  double x = 0, y = 0;
  double beyond = 0; // Real32: ulps of Real64 at the size beyond half an ulp of Real32
};

struct Accuracy {
  std::string name;
  double bound;
  const char *size; // what the ulps are counted at
  bool isPair;
  int64_t points;
  WorstError real64, real32;
  WorstError elsewhere; // of Real64 but for kHardest
};

// Errors of every row; `steps` through each interval. A row without an oracle has 0 points.
std::vector<Accuracy> measureRealFunctions(int steps);

// The page docs/accuracy.md.
std::string accuracyPage(const std::vector<Accuracy> &measured);

} // namespace torvane::test
