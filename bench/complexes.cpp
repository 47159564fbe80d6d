// The typed entries of complex division, square root, exponential and logarithm over the same points as the C
// library's functions, and division beside the compiler's operator.
#include "scalar/scalar_types.h"
#include "table.h"

#include <torvane/failure.h>
#include <torvane/scalars.h>

#include <algorithm>
#include <complex>
#include <cstdio>
#include <random>
#include <vector>

using bench::repeated;
using torvane::ComplexReal64;

namespace {

using Peer = std::complex<double>; // its functions are the C library's csqrt, cexp and clog
using Points = std::vector<ComplexReal64>;

Points somePoints() {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> part(-4, 4);
  Points points(4096);
  for (ComplexReal64 &z : points) z = {part(random), part(random)};
  return points;
}

ComplexReal64 ofPeer(Peer z) { return {z.real(), z.imag()}; }
Peer peerOf(ComplexReal64 z) { return {z.re, z.im}; }

template <class Ours, class Theirs>
void compare(const char *name, const char *peer, const Ours &ours, const Theirs &theirs) {
  static const Points points = somePoints();
  Points results(points.size());
  bench::compare(
      {name, double(points.size())},
      {{"ours", repeated([&] { std::transform(points.begin(), points.end(), results.begin(), ours); })},
       {peer, repeated([&] { std::transform(points.begin(), points.end(), results.begin(), theirs); })}});
}

using Unary = double *(*)(double *, double *, double, double);
template <Unary entry> ComplexReal64 entryAt(ComplexReal64 z) {
  ComplexReal64 result;
  entry(&result.re, &result.im, z.re, z.im);
  return result;
}

constexpr ComplexReal64 kDividend = {1.5, -0.75};

ComplexReal64 quotient(ComplexReal64 z) {
  ComplexReal64 result;
  binary_divide_ComplexReal64_ComplexReal64(&result.re, &result.im, kDividend.re, kDividend.im, z.re, z.im);
  return result;
}

} // namespace

int main(int argc, char **argv) {
  bench::start("complexes", "ns an operation", argc, argv, 301);
  compare(
      "divide", "compiler", [](ComplexReal64 z) { return quotient(z); },
      [](ComplexReal64 z) { return ofPeer(peerOf(kDividend) / peerOf(z)); });
  compare(
      "sqrt", "C library", [](ComplexReal64 z) { return entryAt<unary_sqrt_ComplexReal64>(z); },
      [](ComplexReal64 z) { return ofPeer(std::sqrt(peerOf(z))); });
  compare(
      "exp", "C library", [](ComplexReal64 z) { return entryAt<unary_exp_ComplexReal64>(z); },
      [](ComplexReal64 z) { return ofPeer(std::exp(peerOf(z))); });
  compare(
      "log", "C library", [](ComplexReal64 z) { return entryAt<unary_log_ComplexReal64>(z); },
      [](ComplexReal64 z) { return ofPeer(std::log(peerOf(z))); });
  if (getExceptionActive() == 0) return 0;
  std::fprintf(stderr, "bench_complexes: an operation raised\n");
  return 1;
}
