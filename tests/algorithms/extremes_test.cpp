// Smallest and largest of scalars, tensors and tagged mixtures, against the rule one value at a time.
#include "exact_call.h"

#include <cmath>
#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();
constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();
constexpr mreal kLargest = 1.7976931348623157e308;
constexpr mint kMost = INT32_MAX, kLeast = INT32_MIN;

class Extremes : public NamedFunctions {};

// The handlers read what they are given and write one scalar.
template <class T> struct Outcome {
  mint status;
  T value;
};
template <class T> Outcome<T> outcomeOf(NamedCall &call) {
  Outcome<T> outcome = {-1, T(42)};
  outcome.status = call.run(&outcome.value);
  return outcome;
}
template <class T> void expectValue(NamedCall call, T value) {
  const Outcome<T> outcome = outcomeOf<T>(call);
  EXPECT_EQ(outcome.status, 0) << call.name;
  EXPECT_EQ(std::memcmp(&outcome.value, &value, sizeof value), 0) << call.name << ": " << outcome.value;
}
template <class T> void expectStatus(NamedCall call, mint status) {
  const Outcome<T> outcome = outcomeOf<T>(call);
  EXPECT_EQ(outcome.status, status) << call.name;
  EXPECT_EQ(outcome.value, T(42)) << call.name << " wrote its result";
}

Tensor integers(const std::vector<mint> &values) { return tensorOf<mint>({mint(values.size())}, values); }
Tensor reals(const std::vector<mreal> &values) { return tensorOf<mreal>({mint(values.size())}, values); }

template <class T> T fold(bool isMax, T start, const std::vector<T> &values) {
  T current = start;
  for (T x : values)
    if (isMax ? x > current : x < current) current = x;
  return current;
}

TEST_F(Extremes, OfScalarsTheFirstOfEqualOnesIsKept) {
  expectValue<mint>(NamedCall("MinI").integer(3).integer(-7).integer(5), -7);
  expectValue<mint>(NamedCall("MaxI").integer(3).integer(-7).integer(5), 5);
  expectValue<mint>(NamedCall("MaxI").integer(kLeast), kLeast);
  expectValue<mreal>(NamedCall("MinR").real(0.0).real(-0.0), 0.0);
  expectValue<mreal>(NamedCall("MaxR").real(-0.0).real(0.0), -0.0);
  expectValue<mreal>(NamedCall("MaxR").real(2.5).real(kInfinity).real(-kInfinity), kInfinity);
  expectValue<mreal>(NamedCall("MinR").real(kInfinity), kInfinity);
}

TEST_F(Extremes, OfScalarsANaNIsPassedOverUnlessItIsTheFirst) {
  for (const char *name : {"MinR", "MaxR"}) {
    expectValue<mreal>(NamedCall(name).real(1.5).real(kNaN).real(1.5), 1.5);
    NamedCall first(name);
    const mreal kept = outcomeOf<mreal>(first.real(kNaN).real(1).real(-1)).value;
    EXPECT_NE(kept, kept) << name;
  }
}

TEST_F(Extremes, OfNoScalarsAreRefused) {
  for (const char *name : {"MinI", "MaxI"}) expectStatus<mint>(NamedCall(name), 12);
  for (const char *name : {"MinR", "MaxR"}) expectStatus<mreal>(NamedCall(name), 12);
}

TEST_F(Extremes, OfNothingAreTheStartValues) {
  for (const char *name : {"MinIT", "MinIG"}) expectValue<mint>(NamedCall(name), kMost);
  for (const char *name : {"MaxIT", "MaxIG"}) expectValue<mint>(NamedCall(name), kLeast);
  for (const char *name : {"MinRT", "MinRG"}) expectValue<mreal>(NamedCall(name), kLargest);
  for (const char *name : {"MaxRT", "MaxRG"}) expectValue<mreal>(NamedCall(name), -kLargest);
}

TEST_F(Extremes, TensorsWithoutElementsAreRefusedUnlessOneHasSome) {
  for (const char *name : {"MinIT", "MaxIT"}) {
    expectStatus<mint>(NamedCall(name).tensor(integers({})), 4);
    expectStatus<mint>(NamedCall(name).tensor(integers({})).tensor(integers({})), 4);
    expectValue<mint>(NamedCall(name).tensor(integers({})).tensor(integers({6})), 6);
    expectValue<mint>(NamedCall(name).tensor(integers({6})).tensor(integers({})), 6);
  }
  for (const char *name : {"MinRT", "MaxRT"}) {
    expectStatus<mreal>(NamedCall(name).tensor(reals({})), 4);
    expectStatus<mreal>(NamedCall(name).tensor(newTensor(TORVANE_TYPE_REAL, {3, 0})).tensor(integers({})), 4);
    expectValue<mreal>(NamedCall(name).tensor(reals({})).tensor(reals({6.5})), 6.5);
    expectValue<mreal>(NamedCall(name).tensor(integers({6})).tensor(reals({})), 6.0);
  }
}

TEST_F(Extremes, OfTaggedArgumentsAnEmptyTensorAddsNothing) {
  expectValue<mint>(NamedCall("MaxIG").integer(0).tensor(integers({})), kLeast);
  expectValue<mreal>(NamedCall("MinRG").integer(0).tensor(reals({})), kLargest);
  expectValue<mint>(NamedCall("MinIG").integer(2).integer(4).integer(0).tensor(integers({})), 4);
}

TEST_F(Extremes, OfTaggedArgumentsMixTensorsAndNumbers) {
  NamedCall mixed("MaxRG");
  mixed.integer(0).tensor(reals({1.5, -8})).integer(2).integer(7).integer(3).real(6.75);
  expectValue<mreal>(mixed, 7.0);
  NamedCall lowest("MinRG");
  lowest.integer(0).tensor(integers({4, -9})).integer(3).real(-8.75).integer(0).tensor(reals({0}));
  expectValue<mreal>(lowest, -9.0);
  expectValue<mint>(NamedCall("MinIG").integer(2).integer(-3).integer(0).tensor(integers({8, -2})), -3);
  expectValue<mint>(NamedCall("MaxIG").integer(0).tensor(integers({8, -2})).integer(2).integer(-3), 8);
}

TEST_F(Extremes, OfTensorsAndPairsStartFromFiniteValues) {
  expectValue<mreal>(NamedCall("MinRT").tensor(reals({kInfinity})), kLargest);
  expectValue<mreal>(NamedCall("MaxRT").tensor(reals({-kInfinity})), -kLargest);
  expectValue<mreal>(NamedCall("MinRG").integer(3).real(kInfinity), kLargest);
  expectValue<mreal>(NamedCall("MaxRT").tensor(reals({kNaN, kNaN})), -kLargest);
  expectValue<mreal>(NamedCall("MinRG").integer(3).real(kNaN), kLargest);
  expectValue<mreal>(NamedCall("MinRT").tensor(reals({-kInfinity, kNaN})), -kInfinity);
}

TEST_F(Extremes, OfZerosTheFirstIsKeptAcrossTensors) {
  for (const char *name : {"MinRT", "MaxRT"}) {
    expectValue<mreal>(NamedCall(name).tensor(reals({-0.0, 0.0})).tensor(reals({0.0})), -0.0);
    expectValue<mreal>(NamedCall(name).tensor(reals({0.0, -0.0})).tensor(reals({-0.0})), 0.0);
    expectValue<mreal>(NamedCall(name).tensor(reals({-0.0})).tensor(integers({0})), -0.0);
    expectValue<mreal>(NamedCall(name).tensor(integers({0})).tensor(reals({-0.0})), 0.0);
  }
}

TEST_F(Extremes, OtherTypesAreRefused) {
  const auto complexes = [] { return tensorOf<mcomplex>({1}, {{1, 2}}); };
  for (const char *name : {"MinIT", "MaxIT"}) {
    expectStatus<mint>(NamedCall(name).tensor(reals({1})), 1);
    expectStatus<mint>(NamedCall(name).tensor(integers({1})).tensor(reals({})), 1);
    expectStatus<mint>(NamedCall(name).tensor(complexes()), 1);
  }
  for (const char *name : {"MinRT", "MaxRT"}) expectStatus<mreal>(NamedCall(name).tensor(complexes()), 1);
  for (const char *name : {"MinIG", "MaxIG"})
    expectStatus<mint>(NamedCall(name).integer(0).tensor(reals({1})), 1);
  for (const char *name : {"MinRG", "MaxRG"})
    expectStatus<mreal>(NamedCall(name).integer(2).integer(1).integer(0).tensor(complexes()), 1);
}

TEST_F(Extremes, OtherTagsAndHalfPairsAreRefused) {
  for (mint tag : {-1, 1, 3, 4, 5}) {
    expectStatus<mint>(NamedCall("MinIG").integer(tag).integer(1), 12);
    expectStatus<mint>(NamedCall("MaxIG").integer(2).integer(1).integer(tag).integer(1), 12);
  }
  for (mint tag : {-1, 1, 4, 5}) {
    expectStatus<mreal>(NamedCall("MinRG").integer(tag).integer(1), 12);
    expectStatus<mreal>(NamedCall("MaxRG").integer(2).integer(1).integer(tag).integer(1), 12);
  }
  for (const char *name : {"MinIG", "MaxIG", "MinRG", "MaxRG"})
    for (mint count : {1, 3, -1, -2})
      EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, count, nullptr, nullptr), 12) << name;
}

// Lengths around every width of registers, and around the one from which runs begin at a cache line.
std::vector<mint> lengths() {
  std::vector<mint> all(68);
  std::iota(all.begin(), all.end(), 1);
  for (mint length : {255, 1000, 1023, 1024, 1031, 40000}) all.push_back(length);
  return all;
}

TEST_F(Extremes, OfIntegerTensorsAreThoseOfOneValueAtATime) {
  std::mt19937 random(3);
  const auto expectBoth = [&random](mint length) {
    std::vector<mint> values(size_t(length), 0);
    const bool isWide = random() % 2 == 0;
    for (mint &x : values) x = isWide ? mint(random()) : mint(random() % 7) - 3;
    if (random() % 8 == 0) values[random() % values.size()] = kLeast;
    for (const bool isMax : {false, true}) {
      const mint expected = fold(isMax, isMax ? kLeast : kMost, values);
      expectValue<mint>(NamedCall(isMax ? "MaxIT" : "MinIT").tensor(integers(values)), expected);
      expectValue<mreal>(NamedCall(isMax ? "MaxRT" : "MinRT").tensor(integers(values)), mreal(expected));
    }
  };
  atEveryLevel([&] {
    for (mint length : lengths()) expectBoth(length);
  });
}

mreal drawReal(std::mt19937 &random) {
  static const std::vector<mreal> special = {0.0,      -0.0,      kNaN,   -kNaN,   kInfinity, -kInfinity,
                                             kLargest, -kLargest, 5e-324, -5e-324, 1.0,       -1.0};
  if (random() % 4 == 0) return special[random() % special.size()];
  return mreal(mint(random())) * 1e-3;
}

// Of either sign, or of one sign and zeros of both, so that a zero is the extreme.
enum class Signs { both, positive, negative };
std::vector<mreal> drawReals(std::mt19937 &random, mint length, Signs signs) {
  std::vector<mreal> values(size_t(length), 0);
  for (mreal &x : values) {
    x = drawReal(random);
    if (x != 0 && signs != Signs::both) x = std::copysign(x, signs == Signs::positive ? 1.0 : -1.0);
  }
  return values;
}

TEST_F(Extremes, OfRealTensorsAreThoseOfOneValueAtATime) {
  std::mt19937 random(5);
  atEveryLevel([&random] {
    for (mint length : lengths())
      for (Signs signs : {Signs::both, Signs::positive, Signs::negative})
        for (const bool isMax : {false, true}) {
          const std::vector<mreal> values = drawReals(random, length, signs);
          expectValue<mreal>(NamedCall(isMax ? "MaxRT" : "MinRT").tensor(reals(values)),
                             fold(isMax, isMax ? -kLargest : kLargest, values));
        }
  });
}

TEST_F(Extremes, OfSeveralTensorsAreThoseOfAllTheirElementsInOrder) {
  std::mt19937 random(8);
  for (int time = 0; time < 300; ++time) {
    std::vector<mreal> all;
    NamedCall least("MinRT"), most("MaxRG");
    for (size_t k = 1 + random() % 4; k-- > 0;) {
      std::vector<mreal> values(random() % 5);
      for (mreal &x : values) x = drawReal(random);
      least.tensor(reals(values));
      most.integer(0).tensor(reals(values));
      all.insert(all.end(), values.begin(), values.end());
    }
    if (!all.empty()) expectValue<mreal>(least, fold(false, kLargest, all));
    expectValue<mreal>(most, fold(true, -kLargest, all));
  }
}

TEST_F(Extremes, TakeTensorsOfAnyRank) {
  expectValue<mint>(NamedCall("MaxIT").tensor(tensorOf<mint>({}, {-4})), -4);
  expectValue<mreal>(NamedCall("MinRT").tensor(tensorOf<mreal>({2, 1, 2}, {4, 3, 2.5, 8})), 2.5);
}

} // namespace
