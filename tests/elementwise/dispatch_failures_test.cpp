// Whole-tensor mathematics when memory is short, in every exception style, and from several threads at once.
#include "elementwise/dispatch.h"
#include "elementwise/real_first.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"
#include "support/failing_heap.h"
#include "widening_oracle.h"

#include <thread>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- memory -------------------------------------------------------------------------------------

// Every request for memory fails in turn: status 5, nothing lost. Yields how often the slot stayed empty. On
// one thread, since a pool that finds no memory is no failure of the call.
template <class Call> int failEveryRequestOf(Call call) {
  const mint parallelBefore = setParallelDisabled(1);
  FailingHeap heap;
  int empty = 0;
  const int64_t failures = failEveryRequest(heap, [&] {
    MTensor *slot = nullptr;
    const mint status = call(&slot);
    EXPECT_EQ(status, heap.failed() ? 5 : 0);
    empty += slot == nullptr;
    MTensor_delete(slot);
  });
  EXPECT_GT(failures, 0) << "the test asks for memory that the heap had at hand";
  setParallelDisabled(parallelBefore);
  return empty;
}

// Payloads so large that the process heap is asked for each.
constexpr mint kLarge = 200000;

TEST(DispatchMemory, AFailureIsStatusFiveForEveryOperation) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4));
  EXPECT_GE(
      failEveryRequestOf([&](MTensor **slot) { return tensorMathUnary(slot, x.get(), kSquare, kReal, 0); }),
      1);
  EXPECT_GE(
      failEveryRequestOf([&](MTensor **slot) { return tensorMathUnary(slot, x.get(), kSqrt, kComplex, 0); }),
      1);
  EXPECT_GE(failEveryRequestOf(
                [&](MTensor **slot) { return tensorMathBinary(slot, x.get(), x.get(), kPlus, kReal, 0); }),
            1);
  // The real result may stand when memory for the complex one cannot be had; it is the caller's.
  failEveryRequestOf([&](MTensor **slot) { return realFirstUnary(slot, x.get(), kSqrt, 0); });
}

TEST(DispatchMemory, AFailureOfThePoolLeavesTheWorkToTheCaller) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4)),
               held = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge)));
  FailingHeap heap;
  const int64_t failures = failEveryRequest(heap, [&] {
    tearDownPool();
    MTensor *slot = held.get();
    EXPECT_EQ(tensorMathUnary(&slot, x.get(), kSquare, kReal, 0), 0);
    EXPECT_EQ(elements<mreal>(held)[kLarge - 1], 16);
    elements<mreal>(held)[kLarge - 1] = 0;
  });
  EXPECT_TRUE(workerCount() < 2 || failures > 0);
}

TEST(DispatchMemory, AFailureLeavesTheTensorOfTheSlotWithItsOwner) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), 4)), held = tensorOf<mreal>({2}, {1, 2});
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *slot = held.get();
  for (int call = 0; call < 2; ++call) { // the second finds the shape and no payload
    EXPECT_EQ(tensorMathBinary(&slot, x.get(), x.get(), kPlus, kReal, 0), 5);
    EXPECT_EQ(slot, held.get());
  }
  heap.succeed();
  EXPECT_EQ(tensorMathBinary(&slot, x.get(), x.get(), kPlus, kReal, 0), 0) << "asked again, it is allocated";
  EXPECT_EQ(elements<mreal>(held)[kLarge - 1], 8);
}

TEST(DispatchMemory, AFailureOfRealFirstKeepsTheOperandThatIsItsResult) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4));
  FailingHeap heap;
  for (const int64_t request : {1, 2, 3}) {
    heap.failFrom(request);
    MTensor *slot = x.get();
    const mint status = realFirstUnary(&slot, x.get(), kSqrt, 0);
    if (!heap.failed()) break;
    EXPECT_EQ(status, 5);
    EXPECT_EQ(x->type, kReal);
    EXPECT_EQ(elements<mreal>(x)[kLarge - 1], -4);
    heap.succeed();
  }
}

// Only 403 has a status of its own; what else an allocation says comes through.
TEST(DispatchMemory, OtherStatusesOfTheAllocationComeThrough) {
  mint extents[2] = {2, -1};
  MTensor broken = {};
  broken.type = kReal;
  broken.rank = 2;
  broken.dimensions = extents;
  MTensor *result = nullptr;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 402);
  EXPECT_EQ(tensorMathBinary(&result, &broken, &broken, kPlus, kReal, 0), 402);
  EXPECT_EQ(realFirstUnary(&result, &broken, kSqrt, 0), 402);
  broken.rank = -1;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 401);
  extents[0] = extents[1] = 65536;
  broken.rank = 2;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 5);
  EXPECT_EQ(MTensorMathUnary(&result, &broken, kSqrt, kReal), 1);
  EXPECT_EQ(result, nullptr);
}

// ---- what no call does -----------------------------------------------------------------------------

// Positions are all that is left of a failure: neither a pending code nor a jump nor a throw.
TEST(DispatchFailures, RaiseInNoStyle) {
  const Tensor x = tensorOf<mreal>({3}, {1, -1, 1});
  for (const mint style : {0, 1, 2}) {
    setExceptionStyle(style);
    const mint before = setExceptionActive(77);
    MTensor *result = nullptr;
    EXPECT_EQ(MTensorMathUnary(&result, x.get(), kLog, kReal), 1);
    EXPECT_EQ(MTensorMathUnary(&result, x.get(), kLog, kComplex), 0);
    EXPECT_EQ(setExceptionActive(before), 77);
    MTensor_delete(result);
  }
  setExceptionStyle(1);
}

// Operands are only read, so that several threads may compute from the same ones.
TEST(ConcurrentDispatch, ThreadsShareTheirOperands) {
  std::mt19937_64 random(12);
  const Tensor x = operand(kReal, {40, 50}, Mixture::random, random),
               y = operand(kReal, {40}, Mixture::positive, random);
  std::vector<Complexes> roots(4);
  std::vector<Reals> sums(4);
  std::vector<std::thread> threads;
  for (size_t k = 0; k < 4; ++k)
    threads.emplace_back([&, k] {
      MTensor *root = nullptr, *sum = nullptr;
      EXPECT_EQ(MTensorMathUnary(&root, x.get(), kSqrt, kComplex), 0);
      EXPECT_EQ(MTensorMathBinary(&sum, x.get(), y.get(), kPlus, kReal), 0);
      roots[k] = valuesOf<mcomplex>(Tensor(root));
      sums[k] = valuesOf<mreal>(Tensor(sum));
    });
  for (std::thread &thread : threads) thread.join();
  UnaryPair pair;
  ASSERT_TRUE(wideningPair(kSqrt, &pair));
  const Looped looped = loopUnary(pair, elements<mreal>(x), 0, 2000, 0);
  for (size_t k = 0; k < 4; ++k) {
    expectWritten(roots[k].data(), 0, looped);
    EXPECT_EQ(sums[k], sums[0]);
    EXPECT_EQ(sums[k][1999], elements<mreal>(x)[1999] + elements<mreal>(y)[39]);
  }
}

} // namespace
