// The named functions that draw: arguments, statuses, result slots, what is drawn of the stream.
#include "algorithms/named_call.h"
#include "scripted_draws.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

using namespace torvane;
using namespace torvane::test;

namespace {

class RandomHandlers : public testing::Test {
protected:
  RandomHandlers() { startRandomNumbers(); }
};

RuntimeFunctionHandler handlerOf(const char *name) { return lookupRuntimeFunction(name); }

struct Reach {
  const char *name;
  mint least, most;
};
constexpr Reach kFunctions[] = {
    {"RandomInteger", 1, 2},       {"RandomIntegers", 2, 3},      {"RandomReal", 1, 2},
    {"RandomReals", 2, 3},         {"RandomComplex", 1, 2},       {"RandomComplexes", 2, 3},
    {"RandomChoice", 1, 2},        {"RandomChoiceWeights", 2, 3}, {"RandomSample", 1, 2},
    {"RandomSampleWeights", 2, 3}, {"RandomNormal", 2, 3},        {"RandomBeta", 2, 3}};

TEST_F(RandomHandlers, OtherNumbersOfArgumentsGive12) {
  for (const Reach &function : kFunctions)
    for (const mint count : {-1, 0, 1, 2, 3, 4, 5})
      if (count < function.least || count > function.most)
        EXPECT_EQ(handlerOf(function.name)(nullptr, count, nullptr, nullptr), 12) << function.name << count;
}

TEST_F(RandomHandlers, ThePlainFormGives14) {
  for (const mint count : {0, 1, 7}) EXPECT_EQ(handlerOf("Random")(nullptr, count, nullptr, nullptr), 14);
}

// A tensor of random numbers by model: the reals that a draw gives are k + 1/2, the complexes those of the
// models.
void numberEverything(ScriptedDraws &script) {
  script.integers = [](mint *to, mint count, mint low, mint) {
    for (mint k = 0; k < count; ++k) to[k] = low + k;
    return 0;
  };
  script.reals = [](mreal *to, mint count, mreal a, mreal) {
    for (mint k = 0; k < count; ++k) to[k] = a < 0 ? -3.0 * k : k + a;
    return 0;
  };
}

TEST_F(RandomHandlers, TensorsOfUniformNumbersGoIntoEverySlot) {
  ScriptedDraws script;
  numberEverything(script);
  const Tensor integers = tensorOf<mint>({2}, {0, 9}), reals = tensorOf<mreal>({2}, {0.5, 2}),
               complexes = tensorOf<mcomplex>({2}, {{0.25, -1}, {1, 1}});
  for (const Extents &extents : {Extents{4}, {2, 3}, {0}, {3, 0, 2}, {}}) {
    const ModelTensor expected = numbered(extents, 0);
    expectInEverySlot(NamedCall("RandomIntegers").tensor(cloneOf(integers.get())).vector(extents), 2,
                      expected);
    expectInEverySlot(NamedCall("RandomReals").tensor(cloneOf(reals.get())).vector(extents), 3, expected);
    expectInEverySlot(NamedCall("RandomIntegers").integer(0).integer(9).vector(extents), 2, expected);
    expectInEverySlot(NamedCall("RandomReals").real(0.5).real(1).vector(extents), 3, expected);
  }
  // Complex draws leave their scratch allocated, so that the count of used bytes is not to be held.
  const Tensor dimensions = tensorOf<mint>({2}, {2, 3});
  const MTensor *pair = complexes.get(), *given = dimensions.get();
  const mcomplex low = {0.25, -1}, high = {1, 1};
  const std::vector<std::vector<const void *>> argumentLists = {{&pair, &given}, {&low, &high, &given}};
  for (std::vector<const void *> list : argumentLists) {
    MTensor *slot = nullptr;
    std::vector<void *> arguments;
    for (const void *argument : list) arguments.push_back(const_cast<void *>(argument));
    EXPECT_EQ(handlerOf("RandomComplexes")(nullptr, mint(list.size()), arguments.data(), &slot), 0);
    expectModel(slot, TORVANE_TYPE_COMPLEX, numbered({2, 3}, 0), "complexes");
    MTensor_delete(slot);
  }
}

// The same stream for bounds in a pair and as two values, and as for the exports.
TEST_F(RandomHandlers, ScalarsAreOneDrawFromEitherFormOfBounds) {
  const Tensor integers = tensorOf<mint>({2}, {30, 20}), reals = tensorOf<mreal>({2}, {2, -2}),
               complexes = tensorOf<mcomplex>({2, 1}, {{1, 2}, {3, 4}});
  for (const bool isPair : {false, true}) {
    const BufferedWords words(7);
    const CurrentGenerator current(words.generator);
    BitModel model;
    MTensor *pair = integers.get();
    mint low = 30, high = 20, integer;
    void *pairs[] = {&pair}, *values[] = {&low, &high};
    EXPECT_EQ(handlerOf("RandomInteger")(nullptr, isPair ? 1 : 2, isPair ? pairs : values, &integer), 0);
    uint32_t read;
    do read = model.read(4);
    while (read > 10);
    EXPECT_EQ(integer, 20 + mint(read));
    pair = reals.get();
    mreal a = 2, b = -2, real;
    void *realValues[] = {&a, &b};
    EXPECT_EQ(handlerOf("RandomReal")(nullptr, isPair ? 1 : 2, isPair ? pairs : realValues, &real), 0);
    EXPECT_EQ(real, readReal(model, 2, -2));
    pair = complexes.get();
    mcomplex z0 = {1, 2}, z1 = {3, 4}, complex;
    void *complexValues[] = {&z0, &z1};
    EXPECT_EQ(handlerOf("RandomComplex")(nullptr, isPair ? 1 : 2, isPair ? pairs : complexValues, &complex),
              0);
    EXPECT_EQ(complex.re, readReal(model, 1, 3));
    EXPECT_EQ(complex.im, readReal(model, 2, 4));
    EXPECT_TRUE(words.isAt(model.position));
  }
}

TEST_F(RandomHandlers, PairsOfAnotherShapeOrTypeGive4) {
  const std::pair<const char *, mint> kRows[] = {
      {"Integer", TORVANE_TYPE_INTEGER}, {"Real", TORVANE_TYPE_REAL}, {"Complex", TORVANE_TYPE_COMPLEX}};
  for (const auto &[kind, type] : kRows)
    for (const mint given : kTensorTypes)
      for (const Extents &extents : {Extents{2}, {}, {1}, {3}, {0}, {2, 0}, {1, 2}}) {
        if (given == type && extents == Extents{2}) continue;
        const std::string name = std::string("Random") + kind;
        expectRefused(NamedCall(name.c_str()).tensor(given, numbered(extents)), 4);
        const std::string plural = name + (type == TORVANE_TYPE_COMPLEX ? "es" : "s");
        expectRefused(NamedCall(plural.c_str()).tensor(given, numbered(extents)).vector({2}), 4);
      }
}

// Calls whose last argument is a dimension tensor.
std::vector<NamedCall> callsBeforeDimensions() {
  const ModelTensor list = numbered({3}), pair = numbered({2});
  std::vector<NamedCall> calls;
  calls.push_back(NamedCall("RandomIntegers").integer(1).integer(2));
  calls.push_back(NamedCall("RandomReals").real(1).real(2));
  calls.push_back(NamedCall("RandomComplexes").tensor(TORVANE_TYPE_COMPLEX, pair));
  calls.push_back(NamedCall("RandomNormal").real(0).real(1));
  calls.push_back(NamedCall("RandomBeta").real(0.5).real(0.5));
  calls.push_back(NamedCall("RandomChoice").tensor(TORVANE_TYPE_REAL, list));
  calls.push_back(NamedCall("RandomChoiceWeights")
                      .tensor(TORVANE_TYPE_INTEGER, list)
                      .tensor(tensorOf<mreal>({3}, {1, 2, 3})));
  return calls;
}

TEST_F(RandomHandlers, DimensionsThatAreNoVectorOfIntegersGive4) {
  for (const NamedCall &call : callsBeforeDimensions()) {
    expectRefused(NamedCall(call).tensor(TORVANE_TYPE_REAL, numbered({2})), 4);
    expectRefused(NamedCall(call).tensor(TORVANE_TYPE_INTEGER, numbered({})), 4);
    expectRefused(NamedCall(call).tensor(TORVANE_TYPE_INTEGER, numbered({1, 1})), 4);
  }
}

// Those that allocate the result first tell what its allocation tells.
TEST_F(RandomHandlers, DimensionsThatMakeNoTensorAreRefusedWithoutADraw) {
  const BufferedWords words(7);
  const CurrentGenerator current(words.generator);
  for (const NamedCall &call : callsBeforeDimensions()) {
    const bool isChoice = call.name.starts_with("RandomChoice");
    expectRefused(NamedCall(call).vector({2, -1}), isChoice ? 4 : 402);
    expectRefused(NamedCall(call).vector({65536, 65536}), isChoice ? 4 : 403);
  }
  EXPECT_TRUE(words.isAt(0));
}

TEST_F(RandomHandlers, DimensionsOfLength0AreRank0AndOneDraw) {
  for (const NamedCall &call : callsBeforeDimensions()) {
    MTensor *slot = nullptr;
    EXPECT_EQ(NamedCall(call).vector({}).run(&slot), 0) << call.name;
    ASSERT_NE(slot, nullptr);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(slot->rank, 0) << call.name;
    EXPECT_EQ(slot->elementCount, 1) << call.name;
    MTensor_delete(slot);
  }
}

// Scalar forms tell the draw's status, tensor forms of uniform numbers 4 for all of them.
TEST_F(RandomHandlers, AFailingDrawIsItsStatusForScalarsAnd4ForUniformTensors) {
  ScriptedDraws script;
  for (const mint status : {11, 77, 1001}) {
    script.integers = [=](auto...) { return status; };
    script.reals = [=](auto...) { return status; };
    mcomplex untouched = {-7, -7};
    EXPECT_EQ(NamedCall("RandomInteger").integer(0).integer(9).run(&untouched), status);
    EXPECT_EQ(NamedCall("RandomReal").real(0).real(9).run(&untouched), status);
    EXPECT_EQ(NamedCall("RandomComplex").tensor(TORVANE_TYPE_COMPLEX, numbered({2})).run(&untouched), status);
    EXPECT_EQ(NamedCall("RandomNormal").real(0).real(9).run(&untouched), status);
    for (const mreal a : {0.5, 1.0, 2.0})
      EXPECT_EQ(NamedCall("RandomBeta").real(a).real(0.5).run(&untouched), status);
    EXPECT_EQ(untouched.re, -7);
    expectRefused(NamedCall("RandomIntegers").integer(0).integer(9).vector({3}), 4);
    expectRefused(NamedCall("RandomReals").real(0).real(9).vector({3}), 4);
    expectRefused(NamedCall("RandomComplexes").tensor(TORVANE_TYPE_COMPLEX, numbered({2})).vector({3}), 4);
    for (const mint count : {3, 4})
      expectRefused(NamedCall("RandomNormal").real(0).real(9).vector({count}), status);
    expectRefused(NamedCall("RandomBeta").real(0.5).real(0.5).vector({3}), status);
  }
}

TEST_F(RandomHandlers, SpansAndWidthsOutOfRangeKeepTheirStatus) {
  mreal untouched = -7;
  EXPECT_EQ(NamedCall("RandomInteger").integer(INT32_MIN).integer(0).run(&untouched), 4);
  EXPECT_EQ(NamedCall("RandomReal").real(-DBL_MAX).real(DBL_MAX).run(&untouched), 1001);
  EXPECT_EQ(NamedCall("RandomBeta").real(-1).real(-1).run(&untouched), 1001);
  EXPECT_EQ(untouched, -7);
  expectRefused(NamedCall("RandomIntegers").integer(INT32_MIN).integer(0).vector({2}), 4);
  expectRefused(NamedCall("RandomReals").real(-DBL_MAX).real(DBL_MAX).vector({2}), 4);
}

TEST_F(RandomHandlers, WithoutTheFunctionTheStatusIsTheRows) {
  const CurrentGenerator current;
  current.table()->randomMIntegers = nullptr;
  current.table()->randomMReals = nullptr;
  const Tensor list = tensorOf<mint>({3}, {1, 2, 3});
  mreal result[2];
  const auto weighted = [](const char *name) {
    return NamedCall(name).tensor(tensorOf<mint>({3}, {1, 2, 3})).tensor(tensorOf<mreal>({3}, {1, 2, 3}));
  };
  EXPECT_EQ(NamedCall("RandomInteger").integer(5).integer(5).run(result), 11);
  EXPECT_EQ(NamedCall("RandomReal").real(0).real(9).run(result), 11);
  EXPECT_EQ(NamedCall("RandomNormal").real(0).real(9).run(result), 11);
  EXPECT_EQ(NamedCall("RandomBeta").real(2).real(9).run(result), 11);
  EXPECT_EQ(NamedCall("RandomChoice").tensor(cloneOf(list.get())).run(result), -1);
  EXPECT_EQ(weighted("RandomChoiceWeights").run(result), 11);
  expectRefused(NamedCall("RandomIntegers").integer(5).integer(5).vector({0}), 4);
  expectRefused(NamedCall("RandomReals").real(0).real(9).vector({2}), 4);
  expectRefused(NamedCall("RandomNormal").real(0).real(9).vector({2}), 11);
  expectRefused(NamedCall("RandomChoice").tensor(cloneOf(list.get())).vector({2}), -1);
  expectRefused(weighted("RandomChoiceWeights").vector({2}), 11);
  expectRefused(NamedCall("RandomSample").tensor(cloneOf(list.get())), -1);
  expectRefused(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, numbered({30})).integer(2), -1);
  expectRefused(weighted("RandomSampleWeights"), 11);
}

// Normal and beta.

TEST_F(RandomHandlers, NormalScalarsDropTheSine) {
  const BufferedWords words(40);
  const CurrentGenerator current(words.generator);
  BitModel model;
  mreal drawn;
  EXPECT_EQ(NamedCall("RandomNormal").real(5).real(2).run(&drawn), 0);
  const mreal u1 = readReal(model), u2 = readReal(model);
  EXPECT_DOUBLE_EQ(drawn, 5 + 2 * std::sqrt(-2 * std::log(u1)) * std::cos(2 * M_PI * u2));
  EXPECT_TRUE(words.isAt(104));
}

TEST_F(RandomHandlers, NormalTensorsRoundTheirUniformsUpToPairs) {
  for (const auto &[count, uniforms] : {std::pair{1, 2}, {2, 2}, {5, 6}, {0, 0}}) {
    const BufferedWords words(40);
    const CurrentGenerator current(words.generator);
    MTensor *slot = nullptr;
    EXPECT_EQ(NamedCall("RandomNormal").real(5).real(2).vector({count}).run(&slot), 0);
    EXPECT_EQ(slot->type, TORVANE_TYPE_REAL);
    EXPECT_EQ(slot->elementCount, count);
    EXPECT_TRUE(words.isAt(52 * uint64_t(uniforms)));
    MTensor_delete(slot);
  }
}

TEST_F(RandomHandlers, BetaOf1And1GivesTheUniformsThemselves) {
  const BufferedWords words(40);
  const CurrentGenerator current(words.generator);
  BitModel model;
  mreal drawn;
  EXPECT_EQ(NamedCall("RandomBeta").real(1).real(1).run(&drawn), 0);
  EXPECT_EQ(drawn, readReal(model));
  MTensor *slot = nullptr;
  EXPECT_EQ(NamedCall("RandomBeta").real(1).real(1).vector({2, 5}).run(&slot), 0);
  EXPECT_EQ(extentsOf(slot), (Extents{2, 5}));
  for (mint k = 0; k < 10; ++k) EXPECT_EQ(static_cast<mreal *>(slot->data)[k], readReal(model));
  MTensor_delete(slot);
}

// Tensors of variates as models: uniforms of 1/2 make every normal one mean + radius cos(pi), every beta of
// (1, 1) 1/2.
TEST_F(RandomHandlers, TensorsOfVariatesGoIntoEverySlot) {
  ScriptedDraws script;
  script.reals = [](mreal *to, mint count, mreal, mreal) { return std::fill_n(to, count, 0.5), 0; };
  for (const Extents &extents : {Extents{4}, {1, 3}, {0}, {}}) {
    const ModelTensor halves = modelOf(extents, [](const Extents &) { return 0; });
    expectInEverySlot(NamedCall("RandomNormal").real(0.5).real(0).vector(extents), 3, halves);
    expectInEverySlot(NamedCall("RandomBeta").real(1).real(1).vector(extents), 3, halves);
  }
}

// Choice.

TEST_F(RandomHandlers, AChoiceOfAVectorIsANumber) {
  ScriptedDraws script;
  script.integers = [](mint *to, mint count, mint low, mint high) {
    EXPECT_EQ(count, 1);
    EXPECT_EQ(low, 1);
    return *to = high - 1, 0;
  };
  mint integer;
  EXPECT_EQ(NamedCall("RandomChoice").vector({5, 6, 7}).run(&integer), 0);
  EXPECT_EQ(integer, 6);
  mreal real;
  EXPECT_EQ(NamedCall("RandomChoice").tensor(tensorOf<mreal>({2}, {1.5, 2.5})).run(&real), 0);
  EXPECT_EQ(real, 1.5);
  mcomplex z;
  EXPECT_EQ(NamedCall("RandomChoice").tensor(tensorOf<mcomplex>({3}, {{1, 2}, {3, 4}, {5, 6}})).run(&z), 0);
  EXPECT_EQ(z.re, 3);
  EXPECT_EQ(z.im, 4);
}

ModelTensor rowsOf(const ModelTensor &list, const std::vector<mint> &positions, const Extents &leading) {
  const size_t row = list.values.size() / size_t(list.extents[0]);
  ModelTensor model = {leading, {}};
  model.extents.insert(model.extents.end(), list.extents.begin() + 1, list.extents.end());
  for (const mint position : positions)
    model.values.insert(model.values.end(), list.values.begin() + ptrdiff_t((position - 1) * mint(row)),
                        list.values.begin() + ptrdiff_t(position * mint(row)));
  return model;
}

// Positions 2, 3, 4, 1, 2, ...; reals in the middle of their positions' equal shares.
void countPositions(ScriptedDraws &script) {
  script.integers = [](mint *to, mint count, mint low, mint high) {
    for (mint k = 0; k < count; ++k) to[k] = low + (k + 1) % (high - low + 1);
    return 0;
  };
  script.reals = [](mreal *to, mint count, mreal a, mreal b) {
    for (mint k = 0; k < count; ++k) to[k] = a + (b - a) * ((k + 1) % 4 + 0.5) / 4;
    return 0;
  };
}

TEST_F(RandomHandlers, ChoicesOfRowsGoIntoEverySlot) {
  ScriptedDraws script;
  countPositions(script);
  const std::vector<mint> six = {2, 3, 4, 1, 2, 3};
  for (const mint type : kTensorTypes)
    for (const Extents &extents : {Extents{4, 1}, {4, 3}, {4, 2, 2}, {4, 5, 0}}) {
      const ModelTensor list = numbered(extents);
      const Tensor weights = tensorOf<mreal>({4}, {1, 1, 1, 1});
      expectInEverySlot(NamedCall("RandomChoice").tensor(type, list), type, rowsOf(list, {2}, {}));
      expectInEverySlot(NamedCall("RandomChoice").tensor(type, list).vector({2, 3}), type,
                        rowsOf(list, six, {2, 3}));
      expectInEverySlot(NamedCall("RandomChoice").tensor(type, list).vector({0, 3}), type,
                        rowsOf(list, {}, {0, 3}));
      expectInEverySlot(NamedCall("RandomChoiceWeights").tensor(type, list).tensor(cloneOf(weights.get())),
                        type, rowsOf(list, {2}, {}));
      expectInEverySlot(
          NamedCall("RandomChoiceWeights").tensor(type, list).tensor(cloneOf(weights.get())).vector({6}),
          type, rowsOf(list, six, {6}));
    }
  const ModelTensor vector = numbered({4});
  expectInEverySlot(NamedCall("RandomChoice").tensor(3, vector).vector({6}), 3, rowsOf(vector, six, {6}));
  expectInEverySlot(NamedCall("RandomChoice").tensor(3, vector).vector({}), 3, rowsOf(vector, {2}, {}));
}

TEST_F(RandomHandlers, ChoicesFromNothingGive4) {
  for (const Extents &extents : {Extents{0}, {0, 3}, {}}) {
    expectRefused(NamedCall("RandomChoice").tensor(TORVANE_TYPE_REAL, numbered(extents)), 4);
    expectRefused(NamedCall("RandomChoice").tensor(TORVANE_TYPE_REAL, numbered(extents)).vector({2}), 4);
    expectRefused(NamedCall("RandomChoiceWeights")
                      .tensor(TORVANE_TYPE_REAL, numbered(extents))
                      .tensor(tensorOf<mreal>({1}, {1})),
                  4);
  }
}

TEST_F(RandomHandlers, AListWithoutATypeGives4) {
  for (const char *name : {"RandomChoice", "RandomSample"}) {
    MTensor *slot = nullptr;
    EXPECT_EQ(NamedCall(name).tensor(Tensor(MTensor_new())).run(&slot), 4);
    EXPECT_EQ(slot, nullptr);
  }
}

NamedCall weighted(const char *name, mint listLength, const std::vector<mreal> &weights) {
  return NamedCall(name)
      .tensor(TORVANE_TYPE_INTEGER, numbered({listLength, 2}))
      .tensor(tensorOf<mreal>({mint(weights.size())}, weights));
}

TEST_F(RandomHandlers, BadWeightsHaveTheirStatusAndTakeNoBits) {
  const BufferedWords words(7);
  const CurrentGenerator current(words.generator);
  const std::pair<std::vector<mreal>, mint> kRows[] = {
      {{0, 0, 0}, -1}, {{1, -1, 1}, -1},         {{1, std::nan(""), 1}, -1},
      {{}, -1},        {{1, HUGE_VAL, 1}, 1001}, {{1e308, 1e308, 1}, 1001}};
  for (const auto &[weights, status] : kRows) {
    expectRefused(weighted("RandomChoiceWeights", 3, weights), status);
    expectRefused(weighted("RandomChoiceWeights", 3, weights).vector({2}), status);
    expectRefused(weighted("RandomSampleWeights", 3, weights), status);
    expectRefused(weighted("RandomSampleWeights", 3, weights).integer(1), status);
  }
  for (const char *name : {"RandomChoiceWeights", "RandomSampleWeights"})
    expectRefused(NamedCall(name).tensor(TORVANE_TYPE_REAL, numbered({3, 1})).vector({1, 1, 1}), 4);
  for (const std::vector<mreal> &weights : {std::vector<mreal>{1, 1}, {1, 1, 1, 1}})
    expectRefused(weighted("RandomChoiceWeights", 3, weights), 3);
  // Twice the total is out of range, which the draw tells.
  expectRefused(weighted("RandomChoiceWeights", 1, {1e308}), 1001);
  EXPECT_TRUE(words.isAt(0));
}

TEST_F(RandomHandlers, ChoicesTakeOneDrawOfAllTheirPositions) {
  const BufferedWords words(7);
  const CurrentGenerator current(words.generator);
  BitModel model;
  MTensor *slot = nullptr;
  EXPECT_EQ(NamedCall("RandomChoice").tensor(2, numbered({8})).vector({50}).run(&slot), 0);
  for (mint k = 0; k < 50; ++k) EXPECT_EQ(static_cast<mint *>(slot->data)[k], 1 + mint(model.read(3)));
  EXPECT_EQ(weighted("RandomChoiceWeights", 4, {1, 1, 1, 1}).vector({50}).run(&slot), 0);
  for (mint k = 0; k < 50; ++k) {
    const mreal u = readReal(model, 0, 4);
    EXPECT_EQ(static_cast<mint *>(slot->data)[2 * k], 2 * std::max(mint(std::ceil(u)), 1) - 1);
  }
  EXPECT_TRUE(words.isAt(model.position));
  MTensor_delete(slot);
}

// Sample.

TEST_F(RandomHandlers, SamplesGoIntoEverySlot) {
  ScriptedDraws script;
  script.integers = [](mint *to, mint, mint low, mint) { return *to = low, 0; }; // 1, 4, 3, 2
  script.reals = [](mreal *to, mint count, mreal, mreal) { return std::fill_n(to, count, 0.5), 0; };
  for (const mint type : kTensorTypes)
    for (const Extents &extents : {Extents{4}, {4, 3}, {4, 0}, {4, 2, 2}}) {
      const ModelTensor list = numbered(extents);
      const Tensor weights = tensorOf<mreal>({4}, {1, 1, 1, 1}); // 2, 3, 1, 4
      expectInEverySlot(NamedCall("RandomSample").tensor(type, list), type, rowsOf(list, {1, 4, 3, 2}, {4}));
      expectInEverySlot(NamedCall("RandomSample").tensor(type, list).integer(2), type,
                        rowsOf(list, {1, 4}, {2}));
      expectInEverySlot(NamedCall("RandomSampleWeights").tensor(type, list).tensor(cloneOf(weights.get())),
                        type, rowsOf(list, {2, 3, 1, 4}, {4}));
      expectInEverySlot(
          NamedCall("RandomSampleWeights").tensor(type, list).tensor(cloneOf(weights.get())).integer(3), type,
          rowsOf(list, {2, 3, 1}, {3}));
    }
}

TEST_F(RandomHandlers, ASampleOfTheWholeListIsAPermutation) {
  for (const mint length : {1, 2, 9, 10, 11, 500}) {
    MTensor *slot = nullptr;
    EXPECT_EQ(NamedCall("RandomSample").tensor(2, numbered({length})).run(&slot), 0);
    std::vector<mint> drawn = modelOfTensor(slot).values;
    std::sort(drawn.begin(), drawn.end());
    EXPECT_EQ(drawn, numbered({length}).values);
    MTensor_delete(slot);
  }
}

TEST_F(RandomHandlers, SamplesOfNoneAreEmptyVectorsOfTheListsType) {
  const BufferedWords words(7);
  const CurrentGenerator current(words.generator);
  for (const mint type : kTensorTypes) {
    expectInEverySlot(NamedCall("RandomSample").tensor(type, numbered({5, 2})).integer(0), type,
                      numbered({0}));
    expectInEverySlot(NamedCall("RandomSample").tensor(type, numbered({0})), type, numbered({0}));
    expectInEverySlot(NamedCall("RandomSample").tensor(type, numbered({0, 4})), type, numbered({0}));
    expectInEverySlot(NamedCall("RandomSampleWeights")
                          .tensor(type, numbered({5}))
                          .tensor(tensorOf<mreal>({1}, {-1}))
                          .integer(0),
                      type, numbered({0}));
  }
  EXPECT_TRUE(words.isAt(0));
}

TEST_F(RandomHandlers, CountsBeyondTheListOrBelow0Give4) {
  for (const mint count : {-1, 6, INT32_MIN, INT32_MAX}) {
    expectRefused(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, numbered({5})).integer(count), 4);
    expectRefused(weighted("RandomSampleWeights", 5, {1, 1, 1, 1, 1}).integer(count), 4);
  }
  expectRefused(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, numbered({})).integer(0), 4);
  expectRefused(NamedCall("RandomSampleWeights").tensor(2, numbered({})).tensor(tensorOf<mreal>({1}, {1})),
                4);
}

// Whichever method would draw them: both leave no place unset.
TEST_F(RandomHandlers, FewerPositiveWeightsThanPicksGive4WithoutADraw) {
  const BufferedWords words(7);
  const CurrentGenerator current(words.generator);
  expectRefused(weighted("RandomSampleWeights", 3, {1, 0, 1}), 4);
  expectRefused(weighted("RandomSampleWeights", 3, {1, 1}), 4);
  std::vector<mreal> one(40);
  one[7] = 1;
  expectRefused(weighted("RandomSampleWeights", 40, one).integer(2), 4);
  expectRefused(weighted("RandomSampleWeights", 40, one).integer(5), 4);
  EXPECT_TRUE(words.isAt(0));
}

TEST_F(RandomHandlers, WeightsBeyondTheListAreRefusedWhereTheyAreDrawn) {
  for (const size_t length : {4u, 40u}) {
    std::vector<mreal> weights(length);
    weights[0] = 1;
    MTensor *slot = nullptr;
    EXPECT_EQ(weighted("RandomSampleWeights", 3, weights).integer(1).run(&slot), 0);
    expectModel(slot, TORVANE_TYPE_INTEGER, {{1, 2}, {1, 2}}, "first row");
    MTensor_delete(slot);
    std::swap(weights[0], weights[3]);
    expectRefused(weighted("RandomSampleWeights", 3, weights).integer(1), 4);
  }
}

TEST_F(RandomHandlers, AFailingDrawIsTheSamplesStatus) {
  ScriptedDraws script;
  script.integers = [](auto...) { return 77; };
  script.reals = [](auto...) { return 77; };
  expectRefused(NamedCall("RandomChoice").tensor(2, numbered({5, 2})), 77);
  expectRefused(NamedCall("RandomChoice").tensor(2, numbered({5, 2})).vector({9}), 77);
  expectRefused(NamedCall("RandomSample").tensor(2, numbered({5, 2})), 77);
  expectRefused(NamedCall("RandomSample").tensor(2, numbered({50, 2})).integer(3), 77);
  expectRefused(weighted("RandomChoiceWeights", 3, {1, 1, 1}), 77);
  expectRefused(weighted("RandomSampleWeights", 3, {1, 1, 1}), 77);
  expectRefused(weighted("RandomSampleWeights", 30, std::vector<mreal>(30, 1)).integer(2), 77);
}

} // namespace
