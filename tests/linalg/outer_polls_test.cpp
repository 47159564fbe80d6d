// Where outer products ask for an abort, and what one leaves.
#include "outer_calls.h"

#include "runtime/failure.h"
#include "support/polling.h"

using namespace torvane;
using namespace torvane::test;

namespace {

class OuterPolls : public testing::Test {
  const Polling polling{INT64_MAX};
};

struct Label {
  mint count, block; // tensors, elements of a block
  const char *list, *sum;
};

template <class T> void expectLabels(const char *type, const std::vector<Label> &labels) {
  for (const Label &label : labels)
    for (const Kind kind : kKinds) {
      Call call;
      const Extents trailing = label.block == 1 ? Extents{} : Extents{label.block};
      for (mint i = 0; i < label.count; ++i) {
        Extents extents = {2};
        extents.insert(extents.end(), trailing.begin(), trailing.end());
        call.add(newTensor(typeOf<T>(), extents), 1);
        MTensor_initialize(call.tensors.back().get(), 1);
      }
      const std::string name = kind == kList ? "List " : kind == kPlus ? "Plus " : "Times ";
      const std::string expected =
          "MTensor_outer" + name + type + " " + (kind == kList ? label.list : label.sum);
      MTensor *slot = nullptr;
      forgetHookCalls();
      ASSERT_EQ(call.run(kind, &slot, 0), 0);
      MTensor_delete(slot);
      // Once for each combination of all tensors but the last.
      EXPECT_EQ(confirmedAborts(), std::vector<std::string>(size_t{1} << (label.count - 1), expected));
    }
}

TEST_F(OuterPolls, SayTheCaseOfIntegers) {
  expectLabels<mint>("int", {{2, 1, "1 2", "1 2"},
                             {3, 1, "1 loop", "clen = 1"},
                             {5, 1, "1 loop", "clen = 1"},
                             {2, 2, "loop loop", "clen > 1"},
                             {2, 17, "loop loop", "clen > 1"}, // 68 bytes
                             {2, 18, "mem mem", "clen > 1"},
                             {3, 8, "loop loop", "clen > 1"},
                             {3, 9, "loop mem", "clen > 1"},
                             {3, 17, "loop mem", "clen > 1"},
                             {3, 18, "mem mem", "clen > 1"}});
}
TEST_F(OuterPolls, SayTheCaseOfReals) {
  expectLabels<mreal>("real", {{2, 1, "1 2", "1 2"},
                               {4, 1, "1 loop", "clen = 1"},
                               {2, 18, "loop loop", "clen > 1"}, // 144 bytes
                               {2, 19, "mem mem", "clen > 1"},
                               {3, 9, "loop loop", "clen > 1"},
                               {3, 10, "loop mem", "clen > 1"},
                               {3, 19, "mem mem", "clen > 1"}});
}
TEST_F(OuterPolls, SayTheCaseOfComplexNumbers) {
  expectLabels<mcomplex>("complex", {{2, 1, "1 2", "1 2"},
                                     {3, 1, "1 loop", "clen = 1"},
                                     {2, 40, "loop loop", "clen > 1"}, // 640 bytes
                                     {2, 41, "mem mem", "clen > 1"},
                                     {3, 20, "loop loop", "clen > 1"},
                                     {3, 21, "loop mem", "clen > 1"},
                                     {3, 41, "mem mem", "clen > 1"}});
}

// A prefix in bulk beside single elements takes many tensors.
template <class T> void expectManyTensors(const char *type, mint shortest) {
  for (const bool isBulk : {false, true}) {
    Call call;
    for (mint i = 0; i < shortest + (isBulk ? 1 : 0); ++i) {
      call.add(newTensor(typeOf<T>(), {1}), 1);
      MTensor_initialize(call.tensors.back().get(), i);
    }
    MTensor *slot = nullptr;
    forgetHookCalls();
    ASSERT_EQ(call.run(kList, &slot), 0);
    expectTensor(slot, modelExtents(call, kList), modelValues<T>(call, kList));
    MTensor_delete(slot);
    const std::string label = std::string("MTensor_outerList ") + type + (isBulk ? " 1 mem" : " 1 loop");
    EXPECT_EQ(confirmedAborts(), std::vector<std::string>{label});
  }
}
TEST_F(OuterPolls, SayWhenThePrefixOfSingleElementsGoesInBulk) {
  expectManyTensors<mint>("int", 18);         // a prefix of 17 elements, 68 bytes
  expectManyTensors<mreal>("real", 19);       // 18, 144 bytes
  expectManyTensors<mcomplex>("complex", 41); // 40, 640 bytes
}

TEST_F(OuterPolls, AreNotAskedOfAResultWithoutElements) {
  for (const Kind kind : kKinds) {
    Call call;
    call.add(newTensor(TORVANE_TYPE_REAL, {3}), 1).add(newTensor(TORVANE_TYPE_REAL, {0}), 1);
    MTensor_initialize(call.tensors[0].get(), 1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.run(kind, &slot), 0);
    EXPECT_EQ(extentsOf(slot), modelExtents(call, kind));
    MTensor_delete(slot);
  }
  EXPECT_TRUE(confirmedAborts().empty());
}

// The result holds what was done, and zeros.
TEST_F(OuterPolls, EndTheLoopOnceTheyReportAnAbort) {
  Samples samples(36);
  for (const Extents &trailing : {Extents{}, Extents{3}, Extents{30}})
    for (const Kind kind : kKinds)
      for (int64_t polls = 0; polls <= 6; ++polls) {
        Call call;
        for (const mint lead : {2, 3, 4}) {
          Extents extents = {lead};
          extents.insert(extents.end(), trailing.begin(), trailing.end());
          call.add(samples.tensor<mint>(extents), 1);
        }
        std::vector<mint> expected = modelValues<mint>(call, kind);
        std::fill(expected.begin() + ptrdiff_t(expected.size() / 6) * ptrdiff_t(polls), expected.end(), 0);
        const uint32_t used = usedBytesOfThisThread();
        for (const bool isInPlace : {false, true}) {
          const Call once = call.clone();
          MTensor *slot = isInPlace ? once.tensors[1].get() : nullptr;
          confirmAbortAfter(polls);
          ASSERT_EQ(once.run(kind, &slot, 4), 0);
          expectTensor(slot, modelExtents(call, kind), expected);
          if (!isInPlace) MTensor_delete(slot);
        }
        EXPECT_EQ(usedBytesOfThisThread(), used);
      }
}

TEST(Outer, DoesNotAskWhileThePollIsOff) {
  forgetHookCalls();
  Call call;
  call.add(tensorOf<mint>({2}, {1, 2}), 1).add(tensorOf<mint>({2}, {3, 4}), 1);
  MTensor *slot = nullptr;
  EXPECT_EQ(call.run(kPlus, &slot), 0);
  MTensor_delete(slot);
  EXPECT_TRUE(confirmedAborts().empty());
}

} // namespace
