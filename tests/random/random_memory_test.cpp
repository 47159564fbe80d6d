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
  // Small blocks are there, as many at a time as below.
  static void SetUpTestSuite() {
    startRandomNumbers();
    for (const Attempt &attempt : kAttempts) {
      const NamedCall original = attempt.call();
      NamedCall call(original);
      const Tensor another = onesOf(3, {3, 2});
      MTensor *slot = nullptr;
      EXPECT_EQ(call.run(&slot), 0);
      MTensor_delete(slot);
    }
  }
  const Tensor warm = onesOf(3, {2});
};

// The slot may be empty, used, or hold an argument.
enum Held : size_t { kNothing = 100, kAnother = 101 };

MTensor *slotOf(const NamedCall &call, size_t held, const Tensor &another) {
  if (held == kNothing) return nullptr;
  return held == kAnother ? another.get() : call.tensorAt(held);
}

// One run with its k-th request failing; whether one failed. Arguments stay what they were, the one in the
// slot too.
bool runFailing(FailingHeap &heap, const Attempt &attempt, const NamedCall &original, int64_t k,
                size_t held) {
  NamedCall call(original);
  const Tensor another = onesOf(3, {3, 2});
  MTensor *const before = slotOf(call, held, another), *slot = before;
  heap.failRequest(k);
  const mint status = call.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  const mint expected = k == attempt.requests ? attempt.lastStatus : attempt.status;
  EXPECT_EQ(status, failed ? expected : 0) << attempt.what << ", request " << k;
  if (failed) {
    EXPECT_EQ(slot, before) << attempt.what << ", request " << k;
    expectUntouched(call, original, kNoArgument);
  }
  if (held == kNothing) MTensor_delete(slot);
  return failed;
}

void expectToldAndNothingLeaked(const Attempt &attempt, size_t held) {
  const NamedCall original = attempt.call();
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  int64_t k = 1;
  while (runFailing(heap, attempt, original, k, held)) ++k;
  EXPECT_EQ(k - 1, attempt.requests) << attempt.what;
  EXPECT_EQ(usedBytesOfThisThread(), used) << attempt.what;
  EXPECT_EQ(heap.blocksOut(), 0) << attempt.what;
}

TEST_F(RandomMemory, EveryRequestThatFailsIsToldAndNothingLeaks) {
  for (const Attempt &attempt : kAttempts)
    for (const size_t held : {kNothing, kAnother}) expectToldAndNothingLeaked(attempt, held);
}

// A small result would go into the argument as it is, were it not built apart.
TEST_F(RandomMemory, AnArgumentInTheSlotIsWholeAfterAFailure) {
  for (const Attempt &attempt : kAttempts) {
    const NamedCall call = attempt.call();
    for (size_t i = 0; i < call.count(); ++i)
      if (call.tensorAt(i) != nullptr) expectToldAndNothingLeaked(attempt, i);
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
