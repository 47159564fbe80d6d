// Rearranging functions without memory: every request of the process heap fails in turn.
//
// Tensors here have payloads, and where it matters extents, above 1 MiB: no thread heap keeps blocks of that
// size, so that each is one request of the process heap.
#include "named_call.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

using namespace torvane;
using namespace torvane::test;

namespace {

class StructureMemory : public NamedFunctions {
protected:
  // The slabs of small blocks exist.
  StructureMemory() : warm(newTensor(TORVANE_TYPE_REAL, {2})), warmToo(newTensor(TORVANE_TYPE_REAL, {3, 2})) {}
  const Tensor warm, warmToo;
};

constexpr mint kWide = 300000;

Extents wide(mint last) {
  Extents extents(kWide, 1);
  extents.back() = last;
  return extents;
}

Tensor vectorOf(mint length, mint entry) {
  Tensor vector = newTensor(TORVANE_TYPE_INTEGER, {length});
  MTensor_initialize(vector.get(), entry);
  return vector;
}
Tensor reals(const Extents &extents) {
  Tensor tensor = newTensor(TORVANE_TYPE_REAL, extents);
  MTensor_initialize(tensor.get(), 1);
  return tensor;
}

// A call, how many requests it makes of the heap with an empty slot, and the status when one fails.
struct Attempt {
  const char *what;
  int64_t requests;
  mint status;
  std::function<NamedCall()> call;
};

const std::vector<Attempt> kAttempts = {
    {"copy", 1, 403, [] { return NamedCall("CopyTensor").tensor(reals({200000})); }},
    {"coercion", 1, 403, [] { return NamedCall("CoerceTensor").integer(4).tensor(reals({200000})); }},
    {"take of a block", 1, 403,
     [] {
       return NamedCall("Take").tensor(reals({2, 200000})).integer(0).integer(1);
     }},
    {"take by a vector", 1, 403,
     [] {
       return NamedCall("Take").tensor(reals({400000})).integer(1).vector({1, -1, 2});
     }},
    {"drop by a vector", 1, 403,
     [] {
       return NamedCall("Drop").tensor(reals({400000})).integer(1).vector({1, -1, 2});
     }},
    {"take of a high rank", 3, 403,
     [] { return NamedCall("Take").tensor(reals(wide(200000))).integer(0).integer(1); }},
    {"drop of a high rank", 3, 403,
     [] { return NamedCall("Drop").tensor(reals(wide(200000))).integer(0).integer(0); }},
    {"insert", 2, 403,
     [] {
       return NamedCall("Insert")
           .tensor(reals({200000}))
           .tensor(reals({}))
           .tensor(tensorOf<mint>({200000, 1}, std::vector<mint>(200000, 7)));
     }},
    {"delete", 2, 403,
     [] {
       return NamedCall("Delete")
           .tensor(reals({400000}))
           .tensor(tensorOf<mint>({200000, 1}, std::vector<mint>(200000, 7)));
     }},
    {"delete of a high rank", 3, 403,
     [] {
       return NamedCall("Delete").tensor(reals(wide(200000))).tensor(tensorOf<mint>({1, kWide}, [] {
         std::vector<mint> row(kWide, 1);
         row.back() = 5;
         return row;
       }()));
     }},
    {"reverse", 1, 403, [] { return NamedCall("Reverse").tensor(reals({200000})); }},
    {"rotation", 1, 403, [] { return NamedCall("RotateLeft").tensor(reals({200000})); }},
    {"rotation of a high rank", 3, 403,
     [] { return NamedCall("RotateRight").tensor(reals(wide(200000))).tensor(vectorOf(kWide, 1)); }},
    {"partition", 1, 5,
     [] { return NamedCall("Partition").tensor(reals({200000})).vector({2}).vector({1}); }},
    {"partition in order", 1, 5,
     [] { return NamedCall("Partition").tensor(reals({200000})).vector({2}).vector({2}); }},
    {"partition of a high rank", 3, 5,
     [] {
       return NamedCall("Partition")
           .tensor(reals(wide(200000)))
           .tensor(vectorOf(kWide, 1))
           .tensor(vectorOf(kWide, 1));
     }},
    {"padding", 1, 403,
     [] { return NamedCall("PadLeft").tensor(reals({5})).vector({200000}).tensor(reals({1})).vector({0}); }},
    {"padding of a high rank", 3, 403,
     [] {
       return NamedCall("PadRight")
           .tensor(reals(wide(200000)))
           .tensor(vectorOf(kWide, 1))
           .tensor(reals(wide(1)))
           .tensor(vectorOf(kWide, 0));
     }},
    {"no positions", 1, 403,
     [] {
       return NamedCall("Delete").tensor(reals({200000})).tensor(tensorOf<mint>({0, 1}, {}));
     }},
    {"dimensions of a high rank", 1, 5, [] { return NamedCall("Dimensions").tensor(reals(wide(1))); }},
};

using SlotOf = std::function<MTensor *(NamedCall &)>;

bool isArgument(const NamedCall &call, const MTensor *tensor) {
  for (size_t i = 0; i < call.count(); ++i)
    if (tensor != nullptr && call.tensorAt(i) == tensor) return true;
  return false;
}

// One run with its k-th request failing; whether one failed. Arguments stay what they were, the one in the
// slot too.
bool runFailing(FailingHeap &heap, const Attempt &attempt, const NamedCall &original, const SlotOf &slotOf,
                int64_t k) {
  NamedCall call(original);
  MTensor *slot = slotOf(call), *const held = slot;
  heap.failRequest(k);
  const mint status = call.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  EXPECT_EQ(status, failed ? attempt.status : 0) << attempt.what << ", request " << k;
  if (failed) {
    EXPECT_EQ(slot, held) << attempt.what << ", request " << k;
    expectUntouched(call, original, kNoArgument);
  }
  if (!isArgument(call, slot)) MTensor_delete(slot);
  return failed;
}

int64_t tryEveryFailure(const Attempt &attempt, const SlotOf &slotOf) {
  const NamedCall original = attempt.call();
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  int64_t k = 1;
  while (runFailing(heap, attempt, original, slotOf, k)) ++k;
  EXPECT_EQ(usedBytesOfThisThread(), used) << attempt.what;
  EXPECT_EQ(heap.blocksOut(), 0) << attempt.what;
  return k - 1;
}

TEST_F(StructureMemory, OutOfItAnEmptySlotStaysEmptyAndNothingLeaks) {
  for (const Attempt &attempt : kAttempts)
    EXPECT_EQ(tryEveryFailure(attempt, [](NamedCall &) { return nullptr; }), attempt.requests)
        << attempt.what;
}

TEST_F(StructureMemory, OutOfItAUsedSlotKeepsItsRecordAndNothingLeaks) {
  for (const Attempt &attempt : kAttempts)
    EXPECT_GT(tryEveryFailure(attempt,
                              [](NamedCall &) {
                                return reals({3, 2}).release();
                              }),
              0)
        << attempt.what;
}

// An argument in the slot is as it was when the call fails. Some calls change its extents alone, and need
// nothing.
TEST_F(StructureMemory, OutOfItAnArgumentInTheSlotIsWhole) {
  for (const Attempt &attempt : kAttempts) {
    const NamedCall call = attempt.call();
    for (size_t i = 0; i < call.count(); ++i)
      if (call.tensorAt(i) != nullptr)
        tryEveryFailure(attempt, [i](NamedCall &mine) { return mine.tensorAt(i); });
  }
}

TEST_F(StructureMemory, OutOfItJoinLeavesTheLengthInItsFirstTensor) {
  const Attempt join = {"join", 0, 403, [] {
                          return NamedCall("Join").tensor(reals({150000, 1})).tensor(reals({50000, 1}));
                        }};
  const uint32_t used = usedBytesOfThisThread();
  {
    NamedCall call = join.call();
    FailingHeap heap;
    heap.failRequest(1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.run(&slot), 403);
    EXPECT_TRUE(heap.failed());
    EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(extentsOf(call.tensorAt(0)), (Extents{200000, 1}));
    EXPECT_EQ(call.tensorAt(0)->elementCount, 150000);
    EXPECT_EQ(extentsOf(call.tensorAt(1)), (Extents{50000, 1}));
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(StructureMemory, OutOfItJoinOfManyTensorsHasNoRoomForTheirHandles) {
  const Tensor tensor = reals({1});
  MTensor *handle = tensor.get(), *slot = nullptr;
  std::vector<void *> arguments(300000, &handle);
  FailingHeap heap;
  heap.failRequest(1);
  EXPECT_EQ(lookupRuntimeFunction("Join")(nullptr, 300000, arguments.data(), &slot), 403);
  EXPECT_TRUE(heap.failed());
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(tensor->dimensions[0], 1);
  EXPECT_EQ(heap.blocksOut(), 0);
}

// Whole copies end the process.
TEST_F(StructureMemory, OutOfItFlattenAndJoinAtLevelEndTheProcess) {
  for (const char *name : {"Flatten", "JoinAtLevel"}) {
    const ChildOutcome child = runInChild([name] {
      NamedCall call(name);
      call.tensor(reals({2, 200000})).integer(1);
      FailingHeap heap;
      heap.failRequest(1);
      MTensor *slot = nullptr;
      call.run(&slot);
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 1) << name;
    EXPECT_NE(child.output, "") << name;
  }
}

} // namespace
