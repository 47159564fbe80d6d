// Where threads leave blocks, tensors and arrays for others, who look them over and free them: often threads
// that came after the maker ended.
#pragma once

#include <torvane/numeric_arrays.h>
#include <torvane/sparse_arrays.h>

#include <atomic>
#include <deque>
#include <mutex>
#include <optional>

namespace torvane::test {

// All of it made of its seed.
struct Parcel {
  uint32_t seed, maker;
  char *block, *text;
  MTensor *tensor;
  MNumericArray *array;
  MSparseArray *sparse;
};

class PostOffice {
public:
  void post(uint32_t seed, uint32_t maker);
  // Opens the oldest parcel that somebody else has made, if there is one.
  void collect(uint32_t reader);
  int opened() const { return openedParcels; }
  size_t waiting() const { return parcels.size(); } // with all threads at rest

private:
  std::optional<Parcel> take(uint32_t reader);
  std::mutex lock;
  std::deque<Parcel> parcels;
  std::atomic<int> openedParcels{0};
};

} // namespace torvane::test
