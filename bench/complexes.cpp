// The typed entries of complex division, square root, exponential and logarithm beside the C library's
// functions, division beside the compiler's operator. Both run over the same points; rounds alternate and the
// median round counts. Prints nanoseconds for one operation and our ratio to the peer.
//
//   bench_complexes [rounds]
#include "scalar/scalar_types.h"

#include <torvane/failure.h>
#include <torvane/scalars.h>

#include <algorithm>
#include <chrono>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace torvane;

namespace {

using Peer = std::complex<double>; // its functions are the C library's csqrt, cexp and clog
using Points = std::vector<ComplexReal64>;
constexpr size_t kPoints = 4096;

Points pointsOf(double low, double high) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> part(low, high);
  Points points(kPoints);
  for (ComplexReal64 &z : points) z = {part(random), part(random)};
  return points;
}

template <class Operation>
[[gnu::noinline]] double nanoseconds(const Points &points, Points &results, Operation operation) {
  const auto start = std::chrono::steady_clock::now();
  for (size_t k = 0; k < kPoints; ++k) results[k] = operation(points[k]);
  const std::chrono::duration<double, std::nano> elapsed = std::chrono::steady_clock::now() - start;
  return elapsed.count() / double(kPoints);
}

double median(std::vector<double> &values) {
  std::nth_element(values.begin(), values.begin() + long(values.size() / 2), values.end());
  return values[values.size() / 2];
}

ComplexReal64 ofPeer(Peer z) { return {z.real(), z.imag()}; }
Peer peerOf(ComplexReal64 z) { return {z.re, z.im}; }

template <class Ours, class Theirs> void compare(const char *name, int rounds, Ours ours, Theirs theirs) {
  const Points points = pointsOf(-4, 4);
  Points results(kPoints);
  std::vector<double> own, peer;
  for (int round = 0; round < rounds; ++round) {
    own.push_back(nanoseconds(points, results, ours));
    peer.push_back(nanoseconds(points, results, theirs));
  }
  const double a = median(own), b = median(peer);
  std::printf("%-8s %8.2f ns %8.2f ns  ratio %.2f\n", name, a, b, a / b);
}

using Unary = double *(*)(double *, double *, double, double);
template <Unary entry> ComplexReal64 entryAt(ComplexReal64 z) {
  ComplexReal64 result;
  entry(&result.re, &result.im, z.re, z.im);
  return result;
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 201;
  std::printf("%-8s %11s %11s\n", "", "ours", "C library");
  const ComplexReal64 dividend = {1.5, -0.75};
  compare(
      "divide", rounds,
      [=](ComplexReal64 z) {
        ComplexReal64 result;
        binary_divide_ComplexReal64_ComplexReal64(&result.re, &result.im, dividend.re, dividend.im, z.re,
                                                  z.im);
        return result;
      },
      [=](ComplexReal64 z) { return ofPeer(peerOf(dividend) / peerOf(z)); });
  compare("sqrt", rounds, entryAt<unary_sqrt_ComplexReal64>,
          [](ComplexReal64 z) { return ofPeer(std::sqrt(peerOf(z))); });
  compare("exp", rounds, entryAt<unary_exp_ComplexReal64>,
          [](ComplexReal64 z) { return ofPeer(std::exp(peerOf(z))); });
  compare("log", rounds, entryAt<unary_log_ComplexReal64>,
          [](ComplexReal64 z) { return ofPeer(std::log(peerOf(z))); });
  return getExceptionActive() == 0 ? 0 : 1;
}
