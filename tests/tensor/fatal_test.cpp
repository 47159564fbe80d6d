// What ends the process.
#include "runtime/memory.h"
#include "runtime/platform.h"
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <functional>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr int kReturned = 99; // of a child whose body returned

struct FatalCase {
  const char *name;
  std::function<void()> body;
};

void expectStatus(const std::vector<FatalCase> &cases, int status) {
  for (const FatalCase &fatal : cases) EXPECT_EQ(runInChild(fatal.body).status, status) << fatal.name;
}

mint allocateFresh(mint type, const Extents &extents, mint errorMode) {
  MTensor *slot = nullptr;
  return MTensor_allocateCommon(&slot, type, static_cast<mint>(extents.size()), extents.data(), errorMode);
}

void withoutMemory(const std::function<void()> &body) {
  FailingHeap heap;
  heap.failFrom(1);
  body();
}

const mint kHuge[] = {65536, 65536}, kNegative[] = {2, -1}, kBytesOverflow[] = {1 << 29};
mreal element = 1.0;

TEST(FatalPath, IsTakenForASizeThatOverflows) {
  expectStatus(
      {
          {"count", [] { NumberOfElements_common(2, kHuge, kFatal); }},
          {"negative extent", [] { NumberOfElements_common(2, kNegative, kFatal); }},
          {"allocation, count",
           [] {
             allocateFresh(TORVANE_TYPE_REAL, {65536, 65536}, kFatal);
           }},
          {"allocation, largest extent", [] { allocateFresh(TORVANE_TYPE_INTEGER, {INT32_MAX}, kFatal); }},
          {"allocation, bytes", [] { allocateFresh(TORVANE_TYPE_REAL, {1 << 29}, kFatal); }},
          {"bytes of the extents", [] { MTensor_setShape(MTensor_new(), 0x40000000, kHuge, 1, kFatal); }},
          {"adopted data, count", [] { MTensor_newUsingDataArray(TORVANE_TYPE_REAL, 2, kHuge, nullptr); }},
          {"adopted data, negative extent",
           [] { MTensor_newUsingDataArray(TORVANE_TYPE_REAL, 2, kNegative, nullptr); }},
          {"copied data, count", [] { MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 2, kHuge, &element); }},
          {"copied data, negative extent",
           [] { MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 2, kNegative, &element); }},
          {"copied data, bytes",
           [] { MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 1, kBytesOverflow, &element); }},
          {"fitted payload",
           [] {
             Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
             tensor->elementCount = 1 << 29;
             MTensor_reallocateAndCopyData(tensor.get());
           }},
      },
      1);
}

TEST(FatalPath, IsTakenForElementsWithoutWidth) {
  expectStatus(
      {
          {"allocation", [] { allocateFresh(TORVANE_TYPE_NONE, {3}, kFatal); }},
          {"copy of a fresh record",
           [] {
             const Tensor source(MTensor_new()), target(MTensor_new());
             MTensor_copy(target.get(), source.get());
           }},
      },
      1);
}

TEST(FatalPath, IsTakenWhenMemoryRunsOutWhereNoModeIsGiven) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {100000}), target(MTensor_new());
  const Extents wide(50000, 1);
  std::vector<mreal> data(50000);
  expectStatus(
      {
          {"allocation", [&] { withoutMemory([&] { allocateAs(target, 3, {100000}, kFatal); }); }},
          {"extents", [&] { withoutMemory([&] { allocateAs(target, 3, wide, kFatal); }); }},
          {"copy", [&] { withoutMemory([&] { MTensor_copy(target.get(), source.get()); }); }},
          {"copy into a slot",
           [&] {
             MTensor *slot = target.get();
             withoutMemory([&] { MTensor_makeCopy(&slot, source.get()); });
           }},
          {"reset dimensions",
           [&] { withoutMemory([&] { MTensor_resetDimensions(source.get(), 50000, wide.data()); }); }},
          {"fitted payload",
           [&] {
             source->elementCount = 300000;
             withoutMemory([&] { MTensor_reallocateAndCopyData(source.get()); });
           }},
          {"copied data",
           [&] {
             const mint extents[] = {50000};
             withoutMemory([&] { MTensor_newCopyFromDataArray(3, 1, extents, data.data()); });
           }},
      },
      1);
}

// The system gives the lowest free slot; taken away again, it refuses to hold a value. The allocator takes
// its own slot before, or it would get the lost one.
void loseTheSlotOfTheSharedScalars() {
  ThreadSlot lowest;
  torvane::free(allocate(8, 0, kFatal));
  tearDownRankZeroTensors();
  if (!createThreadSlot(&lowest, nullptr)) return;
  deleteThreadSlot(lowest);
  initializeRankZeroTensors(1);
  deleteThreadSlot(lowest);
}

void takeAllSlots() {
  for (ThreadSlot slot; createThreadSlot(&slot, nullptr);) {
  }
}

TEST(FatalPath, IsTakenWhenASharedScalarCannotBeHad) {
  expectStatus(
      {
          {"no slot",
           [] {
             tearDownRankZeroTensors();
             takeAllSlots();
             initializeRankZeroTensors(1);
           }},
          {"no place in the slot",
           [] {
             loseTheSlotOfTheSharedScalars();
             LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 0);
           }},
          {"no memory",
           [] {
             const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {});
             FailingHeap heap;
             heap.failFrom(1);
             for (;;) LoadNewRankZeroMTensor(nullptr, TORVANE_TYPE_COMPLEX);
           }},
      },
      1);
}

// The other side of the tests above: in the other modes, and for 401 and 402, the process lives.
TEST(FatalPath, IsNotTakenWhereAStatusIsReturned) {
  expectStatus(
      {
          {"negative extent",
           [] {
             allocateFresh(TORVANE_TYPE_REAL, {65536, 65536, -1}, kFatal);
           }},
          {"negative rank", [] { MTensor_setPayload(MTensor_new(), TORVANE_TYPE_REAL, -1, 1, kFatal); }},
          {"quiet overflow",
           [] {
             allocateFresh(TORVANE_TYPE_REAL, {65536, 65536}, kQuiet);
           }},
          {"reported overflow",
           [] {
             allocateFresh(TORVANE_TYPE_REAL, {65536, 65536}, kReport);
           }},
          {"any other mode",
           [] {
             allocateFresh(TORVANE_TYPE_REAL, {65536, 65536}, 7);
           }},
      },
      kReturned);
}

} // namespace
