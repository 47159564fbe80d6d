// Outer products against a model that walks every combination, by export and by name; polls, failures,
// memory.
#include "dot_models.h"

#include "algorithms/registry.h"
#include "linalg/outer.h"
#include "parallel/four_workers.h"
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/polling.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

using namespace torvane;
using namespace torvane::test;

namespace {

enum Kind { kList, kPlus, kTimes };
constexpr Kind kKinds[] = {kList, kPlus, kTimes};

// Tensors and their levels, which keep themselves.
struct Call {
  std::vector<Tensor> tensors;
  std::vector<mint> levels;

  Call() = default;
  Call(Call &&) = default;
  Call clone() const {
    Call copy;
    copy.levels = levels;
    for (const Tensor &tensor : tensors) {
      copy.tensors.emplace_back(MTensor_new());
      MTensor_copy(copy.tensors.back().get(), tensor.get());
    }
    return copy;
  }
  Call &add(Tensor tensor, mint level) {
    tensors.push_back(std::move(tensor));
    levels.push_back(level);
    return *this;
  }
  std::vector<MTensor *> handles() const {
    std::vector<MTensor *> all;
    for (const Tensor &tensor : tensors) all.push_back(tensor.get());
    return all;
  }
  mint count() const { return mint(tensors.size()); }

  mint run(Kind kind, MTensor **slot, mint flags = 0, bool hasLevels = true) const {
    const auto all = handles();
    const mint *where = hasLevels ? levels.data() : nullptr;
    if (kind == kList) return MTensor_outerList(slot, count(), all.data(), where);
    return (kind == kPlus ? MTensor_outerPlus : MTensor_outerTimes)(slot, count(), all.data(), where, flags);
  }
  mint runByName(Kind kind, MTensor **slot, mint flags = 0) const {
    auto all = handles();
    auto where = levels;
    std::vector<void *> arguments;
    for (MTensor *&handle : all) arguments.push_back(&handle);
    for (mint &level : where) arguments.push_back(&level);
    if (kind != kList) arguments.push_back(&flags);
    const auto handler = kind == kList ? handleOuterList : kind == kPlus ? handleOuterPlus : handleOuterTimes;
    return handler(nullptr, mint(arguments.size()), arguments.data(), slot);
  }
};

mint plus(mint x, mint y) { return mint(uint32_t(x) + uint32_t(y)); }
mint times(mint x, mint y) { return mint(uint32_t(x) * uint32_t(y)); }
mreal plus(mreal x, mreal y) { return x + y; }
mreal times(mreal x, mreal y) { return x * y; }
mcomplex plus(mcomplex x, mcomplex y) { return {x.re + y.re, x.im + y.im}; }
mcomplex times(mcomplex x, mcomplex y) {
  const volatile mreal rr = x.re * y.re, ii = x.im * y.im, ri = x.re * y.im, ir = x.im * y.re;
  return {rr - ii, ri + ir};
}

size_t product(const Extents &extents) {
  size_t count = 1;
  for (const mint extent : extents) count *= size_t(extent);
  return count;
}

struct Shape {
  Extents leading, trailing;
};
Shape shapeOf(const Tensor &tensor, mint level) {
  const Extents all = extentsOf(tensor);
  return {Extents(all.begin(), all.begin() + level), Extents(all.begin() + level, all.end())};
}

Extents modelExtents(const Call &call, Kind kind) {
  Extents extents;
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    const Extents leading = shapeOf(call.tensors[i], call.levels[i]).leading;
    extents.insert(extents.end(), leading.begin(), leading.end());
  }
  if (kind == kList) extents.push_back(call.count());
  const Extents trailing = shapeOf(call.tensors[0], call.levels[0]).trailing;
  extents.insert(extents.end(), trailing.begin(), trailing.end());
  return extents;
}

// Every combination of leading positions in turn, the last tensor's running fastest.
template <class T> std::vector<T> modelValues(const Call &call, Kind kind) {
  const size_t block = product(shapeOf(call.tensors[0], call.levels[0]).trailing);
  size_t combinations = 1;
  std::vector<size_t> leads;
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    leads.push_back(product(shapeOf(call.tensors[i], call.levels[i]).leading));
    combinations *= leads.back();
  }
  std::vector<T> values;
  for (size_t c = 0; c < combinations; ++c) {
    std::vector<const T *> blocks(leads.size());
    size_t rest = c;
    for (size_t i = leads.size(); i-- > 0; rest /= leads[i])
      blocks[i] = elements<T>(call.tensors[i]) + rest % leads[i] * block;
    if (kind == kList) {
      for (const T *one : blocks) values.insert(values.end(), one, one + block);
      continue;
    }
    for (size_t e = 0; e < block; ++e) {
      T value = blocks[0][e];
      for (size_t i = 1; i < blocks.size(); ++i)
        value = kind == kPlus ? plus(value, blocks[i][e]) : times(value, blocks[i][e]);
      values.push_back(value);
    }
  }
  return values;
}

template <class T>
void expectTensor(const MTensor *tensor, const Extents &extents, const std::vector<T> &values) {
  ASSERT_NE(tensor, nullptr);
  EXPECT_TRUE(isValidTensor(tensor));
  EXPECT_EQ(tensor->type, typeOf<T>());
  ASSERT_EQ(extentsOf(tensor), extents);
  const T *first = static_cast<const T *>(tensor->data);
  ASSERT_EQ(std::vector<T>(first, first + tensor->elementCount), values);
}

template <class T> void expectUntouched(const Call &call, const Call &original, size_t except) {
  for (size_t i = 0; i < call.tensors.size(); ++i)
    if (i != except)
      ASSERT_EQ(valuesOf<T>(call.tensors[i]), valuesOf<T>(original.tensors[i])) << "operand " << i;
}

// With the slot empty, used, and holding each operand.
template <class T> void expectInEverySlot(const Call &call, Kind kind, mint flags) {
  const Extents extents = modelExtents(call, kind);
  const std::vector<T> values = modelValues<T>(call, kind);
  const auto viaName = [&](const Call &one, MTensor **slot) { return one.runByName(kind, slot, flags); };
  const auto direct = [&](const Call &one, MTensor **slot) { return one.run(kind, slot, flags); };
  for (const std::function<mint(const Call &, MTensor **)> &run :
       {std::function<mint(const Call &, MTensor **)>(viaName),
        std::function<mint(const Call &, MTensor **)>(direct)}) {
    MTensor *slot = nullptr;
    ASSERT_EQ(run(call, &slot), 0);
    expectTensor(slot, extents, values);
    MTensor_delete(slot);
    const Tensor used = newTensor(TORVANE_TYPE_COMPLEX, {2, 2});
    slot = used.get();
    ASSERT_EQ(run(call, &slot), 0);
    ASSERT_EQ(slot, used.get());
    expectTensor(slot, extents, values);
  }
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    const Call once = call.clone();
    MTensor *slot = once.tensors[i].get();
    ASSERT_EQ(once.run(kind, &slot, flags), 0);
    ASSERT_EQ(slot, once.tensors[i].get());
    expectTensor(slot, extents, values);
    expectUntouched<T>(once, call, i);
  }
}

template <class T> Call randomCall(Samples &samples) {
  Call call;
  const Extents trailing[] = {{}, {}, {1}, {2}, {3, 2}, {20}, {45}};
  const Extents common = trailing[samples.below(7)];
  const mint count = 1 + samples.below(5);
  for (mint i = 0; i < count; ++i) {
    Extents extents;
    const mint level = samples.below(count < 4 ? 4 : 3);
    for (mint j = 0; j < level; ++j) extents.push_back(samples.below(25) == 0 ? 0 : 1 + samples.below(3));
    extents.insert(extents.end(), common.begin(), common.end());
    call.add(samples.tensor<T>(extents, 6), level);
  }
  return call;
}

// A list of one whose last leading dimension is 0 has a shape of its own.
bool isOneWithoutElements(const Call &call) {
  return call.count() == 1 && call.tensors[0]->elementCount == 0;
}

// A sum of one is a plain copy, in any slot.
template <class T> void expectCopy(const Call &call, Kind kind) {
  MTensor *slot = nullptr;
  ASSERT_EQ(call.runByName(kind, &slot, 6), 0);
  expectTensor(slot, extentsOf(call.tensors[0]), valuesOf<T>(call.tensors[0]));
  MTensor_delete(slot);
}

template <class T> void expectModel(uint64_t seed) {
  Samples samples(seed);
  const uint32_t used = usedBytesOfThisThread();
  for (int round = 0; round < 250; ++round) {
    const Call call = randomCall<T>(samples);
    for (const Kind kind : kKinds) {
      if (!isOneWithoutElements(call)) expectInEverySlot<T>(call, kind, round % 2 == 0 ? 0 : 2);
      if (call.count() == 1 && kind != kList) expectCopy<T>(call, kind);
      if (testing::Test::HasFatalFailure()) {
        ADD_FAILURE() << "kind " << kind << ", round " << round;
        return;
      }
    }
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(Outer, OfIntegersOfMixedRanksAndLevelsIsItsModel) { expectModel<mint>(31); }
TEST(Outer, OfRealsOfMixedRanksAndLevelsIsItsModel) { expectModel<mreal>(32); }
TEST(Outer, OfComplexNumbersOfMixedRanksAndLevelsIsItsModel) { expectModel<mcomplex>(33); }

TEST(Outer, WithoutLevelsLeadsWithEveryDimension) {
  Samples samples(34);
  for (const Kind kind : kKinds) {
    Call call;
    call.add(samples.tensor<mint>({2, 3}), 2)
        .add(samples.tensor<mint>({4}), 1)
        .add(samples.tensor<mint>({}), 0);
    MTensor *slot = nullptr;
    ASSERT_EQ(call.run(kind, &slot, 4, false), 0);
    expectTensor(slot, modelExtents(call, kind), modelValues<mint>(call, kind));
    MTensor_delete(slot);
  }
}

TEST(Outer, OfSmallVectorsIsWhatOneWritesDown) {
  Call call;
  call.add(tensorOf<mint>({2}, {1, 2}), 1).add(tensorOf<mint>({2}, {3, 4}), 1);
  MTensor *slot = nullptr;
  ASSERT_EQ(call.runByName(kTimes, &slot, 4), 0);
  expectTensor<mint>(slot, {2, 2}, {3, 4, 6, 8});
  ASSERT_EQ(call.runByName(kPlus, &slot, 4), 0);
  expectTensor<mint>(slot, {2, 2}, {4, 5, 5, 6});
  ASSERT_EQ(call.runByName(kList, &slot), 0);
  expectTensor<mint>(slot, {2, 2, 2}, {1, 3, 1, 4, 2, 3, 2, 4});
  MTensor_delete(slot);
}

TEST(Outer, TakesOneTensorManyTimes) {
  Tensor x = tensorOf<mint>({2}, {2, 3});
  MTensor *handles[] = {x.get(), x.get(), x.get()}, *slot = x.get();
  ASSERT_EQ(MTensor_outerTimes(&slot, 3, handles, nullptr, 4), 0);
  expectTensor<mint>(slot, {2, 2, 2}, {8, 12, 12, 18, 12, 18, 18, 27});
}

// ---- one tensor -------------------------------------------------------------------------------------

struct ListOfOne {
  Extents extents;
  mint level;
  Extents result;
};
const ListOfOne kListsOfOne[] = {
    {{2, 3}, 1, {2, 1, 3}}, {{2, 3}, 2, {2, 3, 1}}, {{2, 3}, 0, {1, 2, 3}}, {{}, 0, {1}},
    {{4}, 1, {4, 1}},       {{0, 3}, 1, {0, 1}}, // the last leading dimension is 0: the rank stays
    {{2, 0}, 2, {2, 0}},    {{0}, 1, {0}},          {{0, 3}, 2, {0, 3, 1}}, {{0, 3}, 0, {1, 0, 3}},
    {{2, 0}, 1, {2, 1, 0}},
};

TEST(OuterList, OfOneTensorHasADimensionOfOneBehindTheLeadingOnes) {
  for (const ListOfOne &one : kListsOfOne)
    for (const bool isInPlace : {false, true}) {
      Call call;
      call.add(Samples(35).tensor<mreal>(one.extents), one.level);
      const auto values = valuesOf<mreal>(call.tensors[0]);
      MTensor *slot = isInPlace ? call.tensors[0].get() : nullptr;
      ASSERT_EQ(call.runByName(kList, &slot), 0);
      expectTensor(slot, one.result, values);
      if (!isInPlace) MTensor_delete(slot);
    }
}

TEST(Outer, SumOfOneTensorInItsOwnSlotIsTheTensor) {
  for (const Kind kind : {kPlus, kTimes}) {
    Call call;
    call.add(tensorOf<mint>({2}, {7, 8}), 1);
    MTensor *slot = call.tensors[0].get();
    ASSERT_EQ(call.runByName(kind, &slot, 4), 0);
    expectTensor<mint>(slot, {2}, {7, 8});
  }
}

// ---- polls ------------------------------------------------------------------------------------------

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

// ---- refusals ---------------------------------------------------------------------------------------

struct Refusal {
  const char *what;
  std::function<Call()> call;
  mint status;
};

Call pairOf(const Extents &first, mint level1, const Extents &second, mint level2,
            mint typeOfSecond = TORVANE_TYPE_REAL) {
  Call call;
  call.add(newTensor(TORVANE_TYPE_REAL, first), level1).add(newTensor(typeOfSecond, second), level2);
  for (const Tensor &tensor : call.tensors) MTensor_initialize(tensor.get(), 1);
  return call;
}

const Refusal kRefusals[] = {
    {"trailing ranks",
     [] {
       return pairOf({2, 3}, 1, {4}, 1);
     },
     3},
    {"trailing dimensions",
     [] {
       return pairOf({2, 3}, 1, {4, 2}, 1);
     },
     3},
    {"trailing dimensions, of no elements",
     [] {
       return pairOf({2, 0}, 1, {4, 2}, 1);
     },
     3},
    {"types", [] { return pairOf({2}, 1, {2}, 1, TORVANE_TYPE_INTEGER); }, 4},
    {"trailing dimensions before types",
     [] {
       return pairOf({2, 3}, 1, {2, 2}, 1, TORVANE_TYPE_INTEGER);
     },
     3},
    {"a negative level of the first", [] { return pairOf({2}, -1, {2}, 1); }, 4},
    {"a level above the rank of the first", [] { return pairOf({2}, 2, {2}, 1); }, 4},
    {"a negative level of the second", [] { return pairOf({2}, 1, {2}, -1); }, 4},
    {"a level above the rank of the second", [] { return pairOf({2}, 1, {2}, 2); }, 4},
    {"a level above the rank of the only one",
     [] {
       Call call;
       call.add(newTensor(TORVANE_TYPE_REAL, {2}), 2);
       MTensor_initialize(call.tensors[0].get(), 1);
       return call;
     },
     4},
    {"the third after two that fit",
     [] {
       Call call = pairOf({2}, 1, {3}, 1);
       call.add(tensorOf<mint>({2}, {1, 2}), 1);
       return call;
     },
     4},
    {"more elements than can be counted", [] { return pairOf({65536}, 1, {32768}, 1); }, 403},
};

TEST(Outer, RefusesAndLeavesEverythingAsItWas) {
  for (const Refusal &refusal : kRefusals)
    for (const Kind kind : kKinds) {
      const Call call = refusal.call();
      const uint32_t used = usedBytesOfThisThread();
      MTensor *slot = nullptr;
      EXPECT_EQ(call.runByName(kind, &slot), refusal.status) << refusal.what << ", kind " << kind;
      EXPECT_EQ(slot, nullptr) << refusal.what;
      EXPECT_EQ(usedBytesOfThisThread(), used) << refusal.what;
      for (const Tensor &tensor : call.tensors) {
        const Extents before = extentsOf(tensor);
        slot = tensor.get();
        EXPECT_EQ(call.runByName(kind, &slot), refusal.status) << refusal.what;
        EXPECT_EQ(extentsOf(tensor), before) << refusal.what;
        EXPECT_TRUE(isValidTensor(tensor.get())) << refusal.what;
      }
    }
}

TEST(Outer, GivesTwelveForAWrongCountBeforeAnArgumentIsTouched) {
  MTensor *slot = nullptr;
  for (const mint count : {-1, 0, 1, 3, 5})
    EXPECT_EQ(handleOuterList(nullptr, count, nullptr, &slot), 12) << count;
  for (const mint count : {-1, 0, 1, 2, 4, 6}) {
    EXPECT_EQ(handleOuterPlus(nullptr, count, nullptr, &slot), 12) << count;
    EXPECT_EQ(handleOuterTimes(nullptr, count, nullptr, &slot), 12) << count;
  }
  EXPECT_EQ(slot, nullptr);
}

// Such a tensor is no good, but it is what the allocation refuses.
TEST(OuterList, GivesElevenForANegativeExtent) {
  Call call = pairOf({2}, 1, {3}, 1);
  call.tensors[1]->dimensions[0] = -3;
  MTensor *slot = nullptr;
  EXPECT_EQ(call.run(kList, &slot), 11);
  EXPECT_EQ(call.run(kPlus, &slot), 402);
  EXPECT_EQ(slot, nullptr);
  call.tensors[1]->dimensions[0] = 3;
}

TEST(Outer, RefusesTensorsWithoutNumbers) {
  Call call = pairOf({2}, 1, {3}, 1);
  for (const Tensor &tensor : call.tensors) tensor->type = 1;
  MTensor *slot = nullptr;
  for (const Kind kind : kKinds) EXPECT_EQ(call.run(kind, &slot), 4);
  EXPECT_EQ(slot, nullptr);
  for (const Tensor &tensor : call.tensors) tensor->type = TORVANE_TYPE_REAL;
}

// ---- failing elements -------------------------------------------------------------------------------

struct Overflow {
  const char *what;
  Extents trailing;
  std::vector<std::vector<mint>> values; // of each tensor, with `trailing` behind one leading dimension
  size_t written;                        // elements before the run that fails
};
const Overflow kOverflows[] = {
    {"two vectors", {}, {{1, INT32_MAX, 2}, {0, 1}}, 2},
    {"two vectors, the reserved value", {}, {{1, -INT32_MAX, 2}, {0, -1}}, 2},
    {"three vectors, in the last", {}, {{1, 2}, {INT32_MAX - 2, INT32_MAX - 3}, {0, 1}}, 2},
    {"three vectors, in a partial result", {}, {{0, 1}, {INT32_MAX}, {0, 0, 0}}, 3},
    {"blocks", {2}, {{1, 1, 1, INT32_MAX}, {1, 0, 0, 1, 0, 0}}, 8},
};

TEST(Outer, GivesFourForAnOverflowUnderItsFlagAndWrapsWithoutIt) {
  for (const Overflow &overflow : kOverflows) {
    Call call;
    for (const auto &values : overflow.values) {
      Extents extents = {mint(values.size() / product(overflow.trailing))};
      extents.insert(extents.end(), overflow.trailing.begin(), overflow.trailing.end());
      call.add(tensorOf<mint>(extents, values), 1);
    }
    const auto expected = modelValues<mint>(call, kPlus);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4) << overflow.what;
    EXPECT_EQ(slot, nullptr);
    const Tensor used = newTensor(TORVANE_TYPE_INTEGER, modelExtents(call, kPlus));
    MTensor_initialize(used.get(), 7777);
    slot = used.get();
    EXPECT_EQ(call.runByName(kPlus, &slot, 6), 4) << overflow.what;
    const auto held = valuesOf<mint>(used);
    for (size_t k = 0; k < overflow.written; ++k)
      EXPECT_EQ(held[k], expected[k]) << overflow.what << " at " << k;
    EXPECT_EQ(held.back(), 7777) << overflow.what;
    for (const mint flags : {0, 2}) {
      ASSERT_EQ(call.runByName(kPlus, &slot, flags), 0) << overflow.what;
      EXPECT_EQ(valuesOf<mint>(used), expected) << overflow.what;
    }
    for (const Tensor &tensor : call.tensors) { // an operand in the slot is whole
      const auto before = valuesOf<mint>(tensor);
      slot = tensor.get();
      EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4);
      EXPECT_EQ(valuesOf<mint>(tensor), before);
    }
  }
}

TEST(Outer, OfRealsGivesFourForAnOverflowUnderItsFlag) {
  for (const mint tensors : {2, 3}) {
    Call call;
    call.add(tensorOf<mreal>({2}, {1, 1e300}), 1).add(tensorOf<mreal>({1}, {1e300}), 1);
    if (tensors == 3) call.add(tensorOf<mreal>({1}, {1e-300}), 1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(kTimes, &slot, 2), 4);
    EXPECT_EQ(slot, nullptr);
    ASSERT_EQ(call.runByName(kTimes, &slot, 4), 0);
    EXPECT_EQ(static_cast<mreal *>(slot->data)[1], std::numeric_limits<mreal>::infinity());
    MTensor_delete(slot);
  }
}

TEST(Outer, OfComplexNumbersGivesFourForAnOverflowUnderItsFlag) {
  struct Row {
    Kind kind;
    mcomplex x;
  };
  for (const Row &row : {Row{kTimes, {1e300, 0}}, Row{kPlus, {1e308, 0}}}) {
    Call call;
    for (int i = 0; i < 2; ++i) call.add(tensorOf<mcomplex>({1}, {row.x}), 1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(row.kind, &slot, 2), 4) << row.kind;
    EXPECT_EQ(slot, nullptr);
    ASSERT_EQ(call.runByName(row.kind, &slot, 4), 0) << row.kind;
    EXPECT_EQ(static_cast<mcomplex *>(slot->data)->re, std::numeric_limits<mreal>::infinity());
    MTensor_delete(slot);
  }
}

TEST(Outer, OfBlocksOfRealsGivesFourForAnOverflowUnderItsFlag) {
  Call call;
  for (int i = 0; i < 2; ++i) call.add(tensorOf<mreal>({1, 2}, {1, 1e308}), 1);
  MTensor *slot = nullptr;
  EXPECT_EQ(call.runByName(kPlus, &slot, 2), 4);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ(call.runByName(kPlus, &slot, 4), 0);
  expectTensor<mreal>(slot, {1, 1, 2}, {2, std::numeric_limits<mreal>::infinity()});
  MTensor_delete(slot);
}

// ---- rows that the workers share --------------------------------------------------------------------

class ConcurrentOuter : public testing::Test {
protected:
  const FourWorkers workers;
};

TEST_F(ConcurrentOuter, OfLongVectorsIsItsModel) {
  Samples samples(36);
  for (const Kind kind : kKinds) {
    Call integers, reals;
    integers.add(samples.tensor<mint>({3}), 1).add(samples.tensor<mint>({50000}), 1);
    reals.add(samples.tensor<mreal>({3}), 1).add(samples.tensor<mreal>({50000}), 1);
    expectInEverySlot<mint>(integers, kind, 4);
    expectInEverySlot<mreal>(reals, kind, 2);
  }
}

TEST_F(ConcurrentOuter, GivesFourForAnOverflowInOneWorkersPiece) {
  Call call;
  call.add(tensorOf<mint>({3}, {0, 1, 2}), 1).add(newTensor(TORVANE_TYPE_INTEGER, {50000}), 1);
  MTensor_initialize(call.tensors[1].get(), 5);
  elements<mint>(call.tensors[1])[40000] = INT32_MAX - 1; // + 2, in the last row
  const auto expected = modelValues<mint>(call, kPlus);
  MTensor *slot = nullptr;
  EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ(call.runByName(kPlus, &slot, 2), 0);
  expectTensor(slot, {3, 50000}, expected);
  EXPECT_EQ(static_cast<mint *>(slot->data)[2 * 50000 + 40000], INT32_MIN);
  elements<mint>(call.tensors[1])[40000] = INT32_MAX - 2;
  EXPECT_EQ(call.runByName(kPlus, &slot, 4), 0);
  MTensor_delete(slot);
}

// ---- memory -----------------------------------------------------------------------------------------

// Blocks of this many elements are one request of the process heap each.
constexpr mint kWide = 300000;

TEST(Outer, ReportsEveryMissingBlockAndLeavesNothingBehind) {
  for (const Kind kind : kKinds)
    for (const mint tensors :
         {2, 3, 12}) { // 12: handles and levels no longer fit where there is room for a few
      Call call;
      for (mint i = 0; i < tensors; ++i) call.add(newTensor(TORVANE_TYPE_REAL, {1, kWide}), 1);
      for (const Tensor &tensor : call.tensors) MTensor_initialize(tensor.get(), 1);
      FailingHeap heap;
      const uint32_t used = usedBytesOfThisThread();
      const int64_t failed = failEveryRequest(heap, [&] {
        MTensor *slot = nullptr;
        const mint status = call.runByName(kind, &slot);
        EXPECT_EQ(status, heap.failed() ? 403 : 0);
        EXPECT_EQ(slot == nullptr, heap.failed());
        MTensor_delete(slot);
        EXPECT_EQ(usedBytesOfThisThread(), used);
      });
      EXPECT_GE(failed, 2) << "the result and the working memory";
    }
}

} // namespace
