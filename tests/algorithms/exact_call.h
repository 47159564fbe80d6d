// Calls of named functions whose results are held bit for bit, in every state of the result slot, and whose
// failures are tried in all of them. What named_call.h does for rearranging functions, for arithmetic.
#pragma once

#include "named_call.h"
#include "elementwise/at_levels.h"
#include "support/failing_heap.h"

#include <cstring>
#include <random>

namespace torvane::test {

inline bool sameTensor(const MTensor *a, const MTensor *b) {
  return a->type == b->type && extentsOf(a) == extentsOf(b) && a->elementCount == b->elementCount &&
         (a->elementCount == 0 ||
          std::memcmp(a->data, b->data, size_t(a->elementCount) * elementWidth(a->type)) == 0);
}

inline std::string textOf(const MTensor *tensor) {
  std::string text = "type " + std::to_string(tensor->type) + " {";
  for (mint extent : extentsOf(tensor)) text += " " + std::to_string(extent);
  text += " }:";
  for (mint i = 0; i < std::min(tensor->elementCount, 12); ++i) {
    if (tensor->type == TORVANE_TYPE_INTEGER)
      text += " " + std::to_string(static_cast<mint *>(tensor->data)[i]);
    if (tensor->type == TORVANE_TYPE_REAL)
      text += " " + std::to_string(static_cast<mreal *>(tensor->data)[i]);
    if (tensor->type == TORVANE_TYPE_COMPLEX)
      text += " " + std::to_string(static_cast<mcomplex *>(tensor->data)[i].re) + "," +
              std::to_string(static_cast<mcomplex *>(tensor->data)[i].im);
  }
  return text;
}

inline void expectSame(const MTensor *tensor, const MTensor *expected, const std::string &where) {
  ASSERT_NE(tensor, nullptr) << where;
  EXPECT_TRUE(isValidTensor(tensor)) << where;
  EXPECT_TRUE(sameTensor(tensor, expected))
      << where << ": " << textOf(tensor) << ", not " << textOf(expected);
}

inline void expectArgumentsOf(const NamedCall &call, const NamedCall &original, size_t except = kNoArgument) {
  for (size_t i = 0; i < call.count(); ++i)
    if (i != except && call.tensorAt(i) != nullptr)
      expectSame(call.tensorAt(i), original.tensorAt(i), call.name + " argument " + std::to_string(i));
}

// The call with the slot empty, with it holding tensors of other types and shapes, and with it holding each
// argument.
inline void expectExactly(const NamedCall &call, const Tensor &expected) {
  const uint32_t used = usedBytesOfThisThread();
  {
    NamedCall once(call);
    MTensor *slot = nullptr;
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    expectSame(slot, expected.get(), call.name + ", empty slot");
    expectArgumentsOf(once, call);
    MTensor_delete(slot);
  }
  for (const mint held : kTensorTypes) {
    NamedCall once(call);
    const Tensor reused = tensorOfModel(held, numbered({3, 2}, 900));
    MTensor *slot = reused.get();
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    EXPECT_EQ(slot, reused.get());
    expectSame(slot, expected.get(), call.name + ", used slot");
    expectArgumentsOf(once, call);
  }
  for (size_t i = 0; i < call.count(); ++i) {
    if (call.tensorAt(i) == nullptr) continue;
    NamedCall once(call);
    MTensor *slot = once.tensorAt(i);
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    EXPECT_EQ(slot, once.tensorAt(i));
    expectSame(slot, expected.get(), call.name + ", slot with argument " + std::to_string(i));
    expectArgumentsOf(once, call, i);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used) << call.name;
}

// A status, with an empty slot left empty, a used slot left its record, and every argument as it was, the one
// in the slot too.
inline void expectFails(const NamedCall &call, mint status) {
  const uint32_t used = usedBytesOfThisThread();
  {
    NamedCall once(call);
    MTensor *slot = nullptr;
    EXPECT_EQ(once.run(&slot), status) << call.name;
    EXPECT_EQ(slot, nullptr) << call.name;
    const Tensor reused = tensorOf<mreal>({2, 3}, {1, 2, 3, 4, 5, 6});
    slot = reused.get();
    EXPECT_EQ(once.run(&slot), status) << call.name;
    EXPECT_EQ(slot, reused.get()) << call.name;
    EXPECT_TRUE(isValidTensor(slot)) << call.name;
    for (size_t i = 0; i < call.count(); ++i) {
      if ((slot = once.tensorAt(i)) == nullptr) continue;
      EXPECT_EQ(once.run(&slot), status) << call.name;
      EXPECT_EQ(slot, once.tensorAt(i)) << call.name;
    }
    expectArgumentsOf(once, call);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used) << call.name;
}

// One run with its k-th request failing; whether one did.
inline bool runWithFailure(FailingHeap &heap, const NamedCall &call, bool isInPlace, int64_t k) {
  NamedCall once(call);
  MTensor *slot = isInPlace ? once.tensorAt(0) : nullptr, *const held = slot;
  heap.failRequest(k);
  const mint status = once.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  EXPECT_EQ(status, failed ? 403 : 0) << call.name << ", request " << k;
  if (failed) {
    EXPECT_EQ(slot, held) << call.name << ", request " << k;
    expectArgumentsOf(once, call);
  }
  if (!isInPlace) MTensor_delete(slot);
  return failed;
}

// Every request of the process heap fails in turn, with the slot empty and with it holding the first
// argument, and nothing is lost or changed. Blocks above 1 MiB are one request each. The number of requests.
inline int64_t failEveryAllocation(const NamedCall &call, bool isInPlace) {
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  int64_t k = 1;
  while (runWithFailure(heap, call, isInPlace, k)) ++k;
  EXPECT_EQ(usedBytesOfThisThread(), used) << call.name;
  EXPECT_EQ(heap.blocksOut(), 0) << call.name;
  return k - 1;
}

// Warm: the slabs of small blocks exist.
inline void expectRequests(const NamedCall &call, int64_t requests) {
  const Tensor small = newTensor(TORVANE_TYPE_REAL, {2}), flat = newTensor(TORVANE_TYPE_REAL, {3, 2});
  EXPECT_EQ(failEveryAllocation(call, false), requests) << call.name;
  EXPECT_EQ(failEveryAllocation(call, true), requests) << call.name;
}

// At each processor level of this machine.
template <class Body> void atEveryLevel(Body body) {
  for (mint level = 0; level < levelsToTest(); ++level) {
    const mint previous = setProcessorLevel(level);
    body();
    setProcessorLevel(previous);
  }
}

// Shapes of a rank of at least `least`, small, some without elements.
inline Extents randomExtents(std::mt19937 &random, mint least, mint most) {
  Extents extents(size_t(least) + random() % size_t(most - least + 1));
  for (mint &extent : extents) extent = mint(random() % 6);
  if (random() % 4 != 0)
    for (mint &extent : extents) extent = std::max(extent, 1);
  return extents;
}

} // namespace torvane::test
