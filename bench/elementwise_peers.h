// The peers of bench_elementwise, in a unit of their own: it alone is compiled for the machine at hand.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <torvane/types.h>
#include <vector>

namespace peers {

struct Data {
  std::size_t count, rows;
  std::vector<mreal> x, y, perRow, result;
  std::vector<mint> n, m, words;
  std::vector<mcomplex> complexes;
};

// What runs an operation once on the data; empty where the peer has no such operation.
using Run = std::function<void()>;
struct Peers {
  Run plain, eigen, xtensor;
};
Peers peersOf(const std::string &operation, Data &data);

// Square roots, those of negative numbers imaginary: a plain loop.
void widenRoots(std::vector<mcomplex> &result, const std::vector<mreal> &x);

} // namespace peers
