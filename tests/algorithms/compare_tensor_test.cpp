// CompareTensor against a walk over all pairs of tensors and elements.
#include "algorithms/compare_tensor.h"
#include "exact_call.h"
#include "sort_model.h"

#include <torvane/tolerance.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

class TensorComparisons : public NamedFunctions {};

using Tensors = std::vector<Tensor>;

// ---- model ----

mcomplex numberAt(const Tensor &tensor, mint i) {
  if (tensor->type == TORVANE_TYPE_INTEGER) return {mreal(elements<mint>(tensor)[i]), 0};
  if (tensor->type == TORVANE_TYPE_REAL) return {elements<mreal>(tensor)[i], 0};
  return elements<mcomplex>(tensor)[i];
}

bool isAlike(mreal tolerance, const Tensor &a, const Tensor &b, mint i) {
  const mcomplex x = numberAt(a, i), y = numberAt(b, i);
  const bool integers = a->type == TORVANE_TYPE_INTEGER && b->type == TORVANE_TYPE_INTEGER;
  const auto near = [&](mreal s, mreal t) {
    return tolerance > 0 && !integers ? near1_double(tolerance, s, t) == 1 : s == t;
  };
  if (a->type == TORVANE_TYPE_COMPLEX && b->type == TORVANE_TYPE_COMPLEX)
    return near(x.re, y.re) && near(x.im, y.im);
  return near(x.re, y.re) && x.im == 0 && y.im == 0;
}

bool areModelAlike(mreal tolerance, bool acrossTypes, const Tensor &a, const Tensor &b) {
  if (extentsOf(a) != extentsOf(b)) return false;
  if (a->type != b->type && !acrossTypes) return a->elementCount == 0;
  for (mint i = 0; i < a->elementCount; ++i)
    if (!isAlike(tolerance, a, b, i)) return false;
  return true;
}

mint modelCompare(mint op, mreal tolerance, const Tensors &tensors) {
  if (op != 1 && op != 2 && op != 5 && op != 8) return 0;
  bool onlyIntegers = true;
  for (const Tensor &tensor : tensors) onlyIntegers = onlyIntegers && tensor->type == TORVANE_TYPE_INTEGER;
  for (size_t i = 0; i < tensors.size(); ++i) {
    for (size_t j = i + 1; j < tensors.size(); ++j)
      if (areModelAlike(tolerance, op >= 5, tensors[i], tensors[j]) != (op == 1 || op == 5)) return 0;
    if (onlyIntegers || tolerance == 0) break;
  }
  return 1;
}

mint compared(mint op, mreal tolerance, const Tensors &tensors) {
  NamedCall call("CompareTensor");
  call.integer(op).real(tolerance);
  for (const Tensor &tensor : tensors) call.tensor(cloneOf(tensor.get()));
  mint answer = -77;
  EXPECT_EQ(call.run(&answer), 0);
  return answer;
}

Tensors listOf(std::initializer_list<Tensor (*)()> makers) {
  Tensors tensors;
  for (const auto &make : makers) tensors.push_back(make());
  return tensors;
}
template <mint kValue> Tensor integer() { return tensorOf<mint>({1}, {kValue}); }
template <mint kValue> Tensor real() { return tensorOf<mreal>({1}, {kValue}); }
template <mint kRe, mint kIm> Tensor complex() { return tensorOf<mcomplex>({1}, {{kRe, kIm}}); }

// ---- samples ----

mreal sampleReal(std::mt19937 &random) {
  const mreal one = 1 + mint(random() % 2) * std::numeric_limits<mreal>::epsilon();
  const mreal values[] = {0.0, -0.0, kNaN, HUGE_VAL, -HUGE_VAL, -one};
  return random() % 30 == 0 ? values[random() % 6] : one;
}

Tensor sampleTensor(std::mt19937 &random, mint type, const Extents &extents) {
  Tensor tensor = newTensor(type, extents);
  for (mint i = 0; i < tensor->elementCount; ++i) {
    if (type == TORVANE_TYPE_INTEGER) elements<mint>(tensor)[i] = random() % 30 != 0;
    if (type == TORVANE_TYPE_REAL) elements<mreal>(tensor)[i] = sampleReal(random);
    if (type == TORVANE_TYPE_COMPLEX)
      elements<mcomplex>(tensor)[i] = {sampleReal(random), random() % 30 ? 0.0 : sampleReal(random)};
  }
  return tensor;
}

TEST_F(TensorComparisons, AgreeWithAWalkOverAllPairs) {
  std::mt19937 random(1);
  const mreal tolerances[] = {0, -0.0, -1, 3, 30, kNaN};
  for (int round = 0; round < 3000; ++round) {
    const Extents extents = randomExtents(random, 0, 4);
    const bool oneType = random() % 2 == 0;
    Tensors tensors;
    for (size_t i = random() % 5; i > 0; --i) {
      Extents own = extents;
      if (random() % 8 == 0) own.push_back(1);
      tensors.push_back(sampleTensor(random, oneType ? 2 + round % 3 : 2 + mint(random() % 3), own));
    }
    const mreal tolerance = tolerances[random() % 6];
    for (mint op = 0; op <= 9; ++op)
      ASSERT_EQ(compared(op, tolerance, tensors), modelCompare(op, tolerance, tensors))
          << op << " at " << tolerance << ", round " << round;
  }
}

TEST_F(TensorComparisons, FindADifferenceWhereverItStands) {
  for (const mint type : kTensorTypes)
    for (const mint place : {0, 63, 64, 127, 128, 200}) {
      Tensors tensors;
      tensors.push_back(tensorOfModel(type, numbered({201})));
      tensors.push_back(cloneOf(tensors[0].get()));
      EXPECT_EQ(compared(1, 0, tensors), 1);
      EXPECT_EQ(compared(8, 20, tensors), 0);
      storeNumber(tensors[1].get(), size_t(place), -5);
      EXPECT_EQ(compared(1, 0, tensors), 0);
      EXPECT_EQ(compared(8, 20, tensors), 1);
    }
}

TEST_F(TensorComparisons, OfDifferenceLookAtTheFirstTensorAloneAtTolerance0AndOfIntegers) {
  EXPECT_EQ(compared(2, 0, listOf({integer<1>, integer<2>, integer<2>})), 1);
  EXPECT_EQ(compared(2, 5, listOf({integer<1>, integer<2>, integer<2>})), 1);
  EXPECT_EQ(compared(8, kNaN, listOf({integer<1>, integer<2>, integer<2>})), 1);
  EXPECT_EQ(compared(2, 0, listOf({real<1>, real<2>, real<2>})), 1);
  EXPECT_EQ(compared(8, -0.0, listOf({integer<1>, real<2>, real<2>})), 1);
  for (const mreal tolerance : {5.0, -5.0, kNaN}) {
    EXPECT_EQ(compared(2, tolerance, listOf({real<1>, real<2>, real<2>})), 0);
    EXPECT_EQ(compared(8, tolerance, listOf({real<1>, integer<2>, integer<2>})), 0);
  }
}

TEST_F(TensorComparisons, OfTypesThatDifferAreAlikeAcrossTypesAlone) {
  EXPECT_EQ(compared(1, 0, listOf({integer<1>, real<1>})), 0);
  EXPECT_EQ(compared(2, 0, listOf({integer<1>, real<1>})), 1);
  EXPECT_EQ(compared(5, 0, listOf({integer<1>, real<1>, complex<1, 0>})), 1);
  EXPECT_EQ(compared(5, 0, listOf({complex<1, 0>, integer<1>, real<1>})), 1);
  EXPECT_EQ(compared(8, 0, listOf({integer<1>, real<1>})), 0);
  EXPECT_EQ(compared(5, 0, listOf({integer<1>, complex<1, 1>})), 0);
  EXPECT_EQ(compared(5, 50, listOf({complex<1, 1>, integer<1>})), 0);
  EXPECT_EQ(compared(5, 50, listOf({real<1>, complex<1, 1>})), 0);
}

TEST_F(TensorComparisons, OfNoElementsAreAlikeWhateverTheirTypes) {
  Tensors tensors;
  for (const mint type : kTensorTypes) tensors.push_back(newTensor(type, {2, 0}));
  for (const mint op : {1, 5}) EXPECT_EQ(compared(op, 0, tensors), 1);
  for (const mint op : {2, 8}) EXPECT_EQ(compared(op, 0, tensors), 0);
  tensors.push_back(newTensor(TORVANE_TYPE_REAL, {0, 2}));
  EXPECT_EQ(compared(5, 0, tensors), 0);
}

TEST_F(TensorComparisons, OfFewerThanTwoTensorsHoldForEveryOperatorThereIs) {
  for (mint op = -1; op <= 10; ++op) {
    const mint expected = op == 1 || op == 2 || op == 5 || op == 8;
    EXPECT_EQ(compared(op, 0, listOf({real<1>})), expected) << op;
    EXPECT_EQ(compared(op, 0, {}), expected) << op;
  }
}

TEST_F(TensorComparisons, TakeTheElementOfTheHigherTypeFirst) {
  Tensors tensors = listOf({integer<2>, real<0>});
  elements<mreal>(tensors[1])[0] = kNaN;
  EXPECT_EQ(compared(5, 60, tensors), near1_double(60, kNaN, 2));
  EXPECT_EQ(compared(5, 0, tensors), 0);
}

TEST_F(TensorComparisons, WithTooFewArgumentsOrAMissingTensorAreRefused) {
  const RuntimeFunctionHandler handler = lookupRuntimeFunction("CompareTensor");
  mint answer = -77, op = 1;
  mreal tolerance = 0;
  const Tensor one = integer<1>();
  MTensor *handles[] = {one.get(), nullptr};
  void *arguments[] = {&op, &tolerance, &handles[0], &handles[1]};
  for (const mint count : {-1, 0, 1, 4}) EXPECT_EQ(handler(nullptr, count, arguments, &answer), 12);
  EXPECT_EQ(answer, -77);
}

TEST_F(TensorComparisons, OfManyTensorsNeedMemoryForTheirHandles) {
  constexpr mint kMany = 300000;
  mint answer = -77, op = 1;
  mreal tolerance = 0;
  const Tensor one = integer<1>();
  MTensor *handle = one.get();
  std::vector<void *> arguments(kMany, &handle);
  arguments[0] = &op;
  arguments[1] = &tolerance;
  const auto run = [&] {
    return lookupRuntimeFunction("CompareTensor")(nullptr, kMany, arguments.data(), &answer);
  };
  const uint32_t used = usedBytesOfThisThread();
  {
    FailingHeap heap;
    heap.failRequest(1);
    EXPECT_EQ(run(), 403);
    heap.succeed();
  }
  EXPECT_EQ(answer, -77);
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(answer, 1);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace
