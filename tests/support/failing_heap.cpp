#include "failing_heap.h"

#include "runtime/heap_area.h"

#include <atomic>
#include <cstdlib>

namespace torvane::test {

namespace {

std::atomic<int64_t> seen, failAt, out;
std::atomic<bool> onwards, didFail;

bool refuses() {
  const int64_t number = ++seen;
  const int64_t at = failAt;
  if (at == 0 || number < at || (number > at && !onwards)) return false;
  didFail = true;
  return true;
}

void *counted(void *block) {
  if (block != nullptr) ++out;
  return block;
}

void *take(size_t bytes) { return refuses() ? nullptr : counted(platformProcessHeap.take(bytes)); }

void *takeZeroed(size_t bytes) {
  return refuses() ? nullptr : counted(platformProcessHeap.takeZeroed(bytes));
}

void *takeAligned(size_t bytes, size_t alignment) {
  return refuses() ? nullptr : counted(platformProcessHeap.takeAligned(bytes, alignment));
}

void give(void *block) {
  if (block != nullptr) --out;
  platformProcessHeap.give(block);
}

void giveAligned(void *block) {
  if (block != nullptr) --out;
  platformProcessHeap.giveAligned(block);
}

const ProcessHeap failingHeap = {take, give, takeZeroed, takeAligned, giveAligned};

// Areas that ended threads have left would serve requests that are to reach this heap.
void arm(int64_t k, bool andLater) {
  emptyAreaStore();
  seen = 0;
  didFail = false;
  onwards = andLater;
  failAt = k;
}

} // namespace

FailingHeap::FailingHeap() {
  arm(0, false);
  out = 0;
  processHeap = &failingHeap;
}

FailingHeap::~FailingHeap() {
  emptyAreaStore();
  processHeap = &platformProcessHeap;
}

void FailingHeap::failRequest(int64_t k) { arm(k, false); }
void FailingHeap::failFrom(int64_t k) { arm(k, true); }
void FailingHeap::succeed() { arm(0, false); }
bool FailingHeap::failed() const { return didFail; }
int64_t FailingHeap::requests() const { return seen; }
int64_t FailingHeap::blocksOut() const {
  emptyAreaStore();
  return out;
}

} // namespace torvane::test
