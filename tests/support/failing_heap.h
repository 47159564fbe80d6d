// A process heap that fails on request, and counts what is out, so that every failed allocation of an
// operation can be tried in turn: the k-th request fails, for every k until the operation succeeds.
#pragma once

#include "runtime/platform.h"

#include <cstdint>

namespace torvane::test {

// While one lives, the library's process heap is the platform's behind a counter. One at a time.
class FailingHeap {
public:
  FailingHeap();
  ~FailingHeap();
  FailingHeap(const FailingHeap &) = delete;
  FailingHeap &operator=(const FailingHeap &) = delete;

  void failRequest(int64_t k); // the k-th request from now on fails, once; 1 is the next
  void failFrom(int64_t k);    // the k-th request and all later ones fail
  void succeed();              // no request fails any more
  bool failed() const;         // whether a request has failed since the last call of the three above
  int64_t requests() const;    // requests since then
  int64_t blocksOut() const;   // taken and not given back since construction; may be negative
};

// Runs `attempt` with the first, second, ... request failing, until a run meets no failure. `attempt` has
// the heap's failing state set when it is called. Returns the number of requests that were failed.
template <class Attempt> int64_t failEveryRequest(FailingHeap &heap, Attempt attempt) {
  for (int64_t k = 1;; ++k) {
    heap.failRequest(k);
    attempt();
    const bool failed = heap.failed();
    heap.succeed();
    if (!failed) return k - 1;
  }
}

} // namespace torvane::test
