// Draws without memory: every request of the process heap fails in turn.
//
// Results and scratch are above 1 MiB: no thread heap keeps blocks of that size, so that each is one request.
#include "algorithms/named_call.h"
#include "scripted_draws.h"
#include "support/failing_heap.h"

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kMany = 300000;

Tensor onesOf(mint type, const Extents &extents) {
  Tensor tensor = newTensor(type, extents);
  MTensor_initialize(tensor.get(), 1);
  return tensor;
}

// A call, how many requests it makes with an empty slot, and the status when one of them fails, the last one
// by itself.
struct Attempt {
  const char *what;
  int64_t requests;
  mint status, lastStatus;
  std::function<NamedCall()> call;
};

const std::vector<Attempt> kAttempts = {
    {"integers", 1, 403, 403,
     [] { return NamedCall("RandomIntegers").integer(1).integer(9).vector({kMany}); }},
    {"reals", 1, 403, 403, [] { return NamedCall("RandomReals").real(1).real(9).vector({kMany}); }},
    {"an even count of normal variates", 1, 403, 403,
     [] { return NamedCall("RandomNormal").real(1).real(9).vector({kMany}); }},
    {"an odd count of normal variates", 2, 403, 403,
     [] { return NamedCall("RandomNormal").real(1).real(9).vector({kMany + 1}); }},
    {"beta by inversion", 1, 403, 403,
     [] { return NamedCall("RandomBeta").real(1).real(9).vector({kMany}); }},
    {"beta by rejection", 2, 403, 403,
     [] { return NamedCall("RandomBeta").real(3).real(9).vector({kMany}); }},
    {"choices: positions, result", 2, 403, 4,
     [] { return NamedCall("RandomChoice").tensor(3, numbered({5})).vector({kMany}); }},
    {"a choice of a large row", 1, 403, 403,
     [] {
       return NamedCall("RandomChoice").tensor(onesOf(3, {2, kMany}));
     }},
    {"weighted choices: positions, sums, reals, result", 4, 403, 4,
     [] {
       return NamedCall("RandomChoiceWeights")
           .tensor(onesOf(2, {kMany}))
           .tensor(onesOf(3, {kMany}))
           .vector({kMany});
     }},
    {"a sample: positions, numbers, result", 3, 403, 403,
     [] { return NamedCall("RandomSample").tensor(onesOf(3, {kMany})); }},
    {"a weighted sample: positions, sums, tree, reals, result", 5, 403, 403,
     [] { return NamedCall("RandomSampleWeights").tensor(onesOf(3, {kMany})).tensor(onesOf(3, {kMany})); }},
    {"a small weighted sample: sums", 1, 403, 403,
     [] {
       return NamedCall("RandomSampleWeights")
           .tensor(onesOf(3, {kMany}))
           .tensor(onesOf(3, {kMany}))
           .integer(3);
     }},
};

class RandomMemory : public testing::Test {
protected:
  // Small blocks are there: of tensors, of a few numbers, of a small hash table.
  static void SetUpTestSuite() {
    startRandomNumbers();
    MTensor *slot = nullptr;
    for (const Attempt &attempt : kAttempts) EXPECT_EQ(attempt.call().run(&slot), 0);
    MTensor_delete(slot);
  }
  const Tensor warm = onesOf(3, {2});
};

// One run with its k-th request failing; whether one failed.
bool runFailing(FailingHeap &heap, const Attempt &attempt, const NamedCall &original, int64_t k,
                bool isUsed) {
  NamedCall call(original);
  Tensor reused = onesOf(3, {3, 2});
  MTensor *slot = isUsed ? reused.get() : nullptr;
  heap.failRequest(k);
  const mint status = call.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  const bool isLast = k == attempt.requests;
  EXPECT_EQ(status, !failed  ? 0
                    : isLast ? attempt.lastStatus
                             : attempt.status)
      << attempt.what << ", request " << k;
  if (failed) EXPECT_EQ(slot, isUsed ? reused.get() : nullptr) << attempt.what << ", request " << k;
  if (!isUsed) MTensor_delete(slot);
  return failed;
}

TEST_F(RandomMemory, EveryRequestThatFailsIsToldAndNothingLeaks) {
  for (const Attempt &attempt : kAttempts)
    for (const bool isUsed : {false, true}) {
      const NamedCall original = attempt.call();
      const uint32_t used = usedBytesOfThisThread();
      FailingHeap heap;
      int64_t k = 1;
      while (runFailing(heap, attempt, original, k, isUsed)) ++k;
      EXPECT_EQ(k - 1, attempt.requests) << attempt.what;
      EXPECT_EQ(usedBytesOfThisThread(), used) << attempt.what;
      EXPECT_EQ(heap.blocksOut(), 0) << attempt.what;
    }
}

// The result is there before the scratch, which would have stayed.
TEST_F(RandomMemory, ComplexesWithoutScratchLeaveNothing) {
  const Tensor pair = onesOf(4, {2}), dimensions = tensorOf<mint>({1}, {kMany});
  MTensor *bounds = pair.get(), *given = dimensions.get(), *slot = nullptr;
  void *arguments[] = {&bounds, &given};
  const auto handler = lookupRuntimeFunction("RandomComplexes");
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  for (const auto &[k, status] : {std::pair{1, 403}, {2, 4}}) {
    heap.failRequest(k);
    EXPECT_EQ(handler(nullptr, 2, arguments, &slot), status);
    EXPECT_TRUE(heap.failed());
    EXPECT_EQ(slot, nullptr);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(heap.blocksOut(), 0);
  std::vector<mcomplex> drawn(kMany);
  heap.failRequest(1);
  EXPECT_EQ(UniformRandomMComplexes(drawn.data(), kMany, 0, 0, 1, 1), 403);
}

} // namespace
