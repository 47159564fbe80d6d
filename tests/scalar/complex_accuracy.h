// Errors of the complex operators against MPC at 200 bits.
//
// An error is the distance to the exact value in units of the last place of its modulus. Some formulas lose
// accuracy by their nature near certain points and are kept as they are: there the error may grow as the
// operator's clearance, a number up to 1, shrinks. The product of the two is what the row bounds.
#pragma once

#include "scalar/operator_table.h"

#include <complex>
#include <string>
#include <vector>

namespace torvane::test {

using Point = std::complex<double>;

struct WorstPoint {
  double ulps = 0, cleared = 0; // the error, and its product with the clearance, by which it is the worst
  Point x, y;
};

struct ComplexAccuracy {
  std::string name;
  bool isPair;
  double bound;
  const char *clearance; // as the page writes it
  int64_t points;
  WorstPoint wide, narrow; // of ComplexReal64 and ComplexReal32
};

// Errors of every operator; an error is infinite where a code is raised. `points` are tried in each of the
// seven regions: tiny, small, moderate, large and huge parts, circles around the branch points, beside the
// axes.
std::vector<ComplexAccuracy> measureComplexOperators(int points);

// The bound of `typed` for complexes, in the operator's row; 0 for no row.
double complexBound(const std::string &typed, bool isPair);

// The section of docs/accuracy.md on them, measured on so many points.
std::string complexAccuracySection(const std::vector<ComplexAccuracy> &measured, int points);

} // namespace torvane::test
