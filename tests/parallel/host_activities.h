// A little of everything that a host's thread does in the library, and what it got: bit for bit the same for
// the same seed, whoever else is at work meanwhile. Each activity uses no more than its seed and the calling
// thread.
#pragma once

#include "support/tensor_builders.h"
#include <torvane/sparse_arrays.h>

#include <vector>

namespace torvane::test {

inline constexpr uint32_t kHosts = 8; // their seeds are below

// What a thread got, as bytes in the order in which it came.
class Results {
public:
  void add(const void *data, size_t size) {
    const auto *first = static_cast<const char *>(data);
    bytes.insert(bytes.end(), first, first + size);
  }
  template <class Value> void value(Value x) { add(&x, sizeof x); }
  void tensor(const MTensor *tensor);
  void sparse(const MSparseArray *sparse);
  friend bool operator==(const Results &, const Results &) = default;

private:
  std::vector<char> bytes;
};

Tensor realsOf(const Extents &extents, uint32_t seed);
MSparseArray *sparseOf(uint32_t seed);

inline constexpr uint32_t kActivityCount = 16;
Results resultsOf(uint32_t activity, uint32_t seed);

// What all activities of one seed leave allocated: the scratch that draws of complexes keep.
uint32_t bytesKeptByActivities();

// The library-data record of each host, made and freed while no other thread is in the library.
struct HostRecords {
  HostRecords();
  ~HostRecords();
  HostRecords(const HostRecords &) = delete;
  HostRecords &operator=(const HostRecords &) = delete;
};

} // namespace torvane::test
