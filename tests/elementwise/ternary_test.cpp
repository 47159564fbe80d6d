// Vector routines of three operands against their typed entries, bit for bit: all shapes of strides, lengths
// 0 to 67, onto any of the operands and apart, every setting of the flags, red zones around each buffer;
// failing elements at every position; pieces on several workers.
#include "parallel/pool_fixture.h"
#include "support/kinds.h"

#include <fenv.h>
#include <gtest/gtest.h>
#include <torvane/elementwise.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

using Operands = std::array<Element, 3>;
using Typed = std::function<Outcome(const Operands &)>;
using Function = mint (*)(void *, const void *, const void *, const void *, mint, const mint *, mint);

struct Routine {
  const char *name;
  mint kind;
  Function run;
  Typed plain, checked;
};

template <mint kind, class Entry> Typed wrap(Entry *entry) {
  return [entry](const Operands &o) {
    return callEntry(
        entry, std::tuple_cat(argumentsOf<kind>(o[0]), argumentsOf<kind>(o[1]), argumentsOf<kind>(o[2])));
  };
}

const std::vector<Routine> &routines() {
#define ROUTINE(kind, letters, T, op)                                                                        \
  {                                                                                                          \
#letters "_" #op, kind, machfunc_##letters##_##op, wrap < kind>(ternary_##op##_##T##_##T##_##T),         \
        wrap < kind>(checked_ternary_##op##_##T##_##T##_##T)                                                 \
  }
#define ROUTINES(op) ROUTINE(3, ddd, Real64, op), ROUTINE(4, ccc, ComplexReal64, op)
#define ALL_ROUTINES(op) ROUTINE(2, iii, Integer32, op), ROUTINES(op)
  static const std::vector<Routine> all = {ALL_ROUTINES(axpy), ALL_ROUTINES(axmy), ALL_ROUTINES(ymax),
                                           ROUTINES(adxmy)};
#undef ROUTINE
#undef ROUTINES
#undef ALL_ROUTINES
  return all;
}

// A run of elements at a stride of either sign, with room for no others.
class Operand {
public:
  Operand(mint kind, mint count, mint strideOfWalk)
      : stride(strideOfWalk), first(stride < 0 && count > 0 ? ptrdiff_t{count - 1} * -stride : 0),
        buffer(kind, count <= 0 ? 1 : size_t(count - 1) * size_t(std::abs(stride)) + 1) {}

  void fill(std::mt19937_64 &random) {
    for (size_t k = 0; k < buffer.count(); ++k) buffer.set(ptrdiff_t(k), sampleElement(buffer.kind, random));
    buffer.snapshot();
  }
  ptrdiff_t indexOf(mint k) const { return first + ptrdiff_t{k} * stride; }
  Element at(mint k) const { return buffer.get(indexOf(k)); }
  void put(mint k, const Element &element) { buffer.set(indexOf(k), element); }
  void *start() { return buffer.at(first); }

  mint stride;
  ptrdiff_t first;
  Buffer buffer;
};

// Where the result goes: apart from the operands or onto one of them. Onto the first is what counts as in
// place.
enum Place : int { apart = -1, onA = 0, onX = 1, onY = 2 };

struct Setting {
  mint count, flags;
  Place place;
};

bool isByElement(const Routine &routine, const Setting &setting) {
  return routine.kind == 2 ? (setting.flags & 4) != 0 : (setting.flags & 2) != 0 && setting.place == onA;
}
bool isInBulk(const Routine &routine, const Setting &setting) {
  return routine.kind != 2 && (setting.flags & 2) != 0 && setting.place != onA;
}

constexpr int kFailing = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

// What the routine must return and store, from one typed call an element.
struct Expectation {
  std::vector<Element> elements; // those before the failure
  mint position = 0;
};
Expectation expectation(const Routine &routine, const Setting &setting,
                        const std::array<Operand, 3> &operands) {
  const Typed &entry = isByElement(routine, setting) ? routine.checked : routine.plain;
  Expectation expected;
  feclearexcept(kFailing);
  for (mint k = 0; k < setting.count; ++k) {
    const Outcome outcome = entry({operands[0].at(k), operands[1].at(k), operands[2].at(k)});
    if (outcome.code != 0) {
      expected.position = k + 1;
      return expected;
    }
    expected.elements.push_back(outcome.element);
  }
  if (isInBulk(routine, setting) && fetestexcept(kFailing) != 0) expected.position = 1;
  return expected;
}

// Elements before the failure are stored, all of them where there is none; in place the failing one and the
// later ones are as they were; what the stride passes over always is.
void expectStored(const Operand &result, const Expectation &expected, const Setting &setting) {
  std::vector<bool> mayChange(result.buffer.count());
  const auto stored = mint(expected.elements.size());
  for (mint k = 0; k < (setting.place == onA ? stored : setting.count); ++k)
    mayChange[size_t(result.indexOf(k))] = true;
  for (mint k = 0; k < stored; ++k)
    if (result.stride != 0 || k + 1 == stored)
      ASSERT_EQ(result.at(k), expected.elements[size_t(k)]) << "element " << k;
  for (size_t k = 0; k < mayChange.size(); ++k)
    ASSERT_TRUE(mayChange[k] || result.buffer.isUntouched(ptrdiff_t(k))) << k;
  ASSERT_TRUE(result.buffer.zonesHold());
}

testing::Message describe(const Routine &routine, const Setting &setting, const mint *strides) {
  testing::Message text;
  text << routine.name << " count " << setting.count << " flags " << setting.flags << " place "
       << setting.place << " strides";
  for (int k = 0; k < 4; ++k) text << " " << strides[k];
  return text;
}

mint call(const Routine &routine, void *result, std::array<Operand, 3> &operands, const Setting &setting,
          const mint *strides) {
  return routine.run(result, operands[0].start(), operands[1].start(), operands[2].start(), setting.count,
                     strides, setting.flags);
}

void check(const Routine &routine, const Setting &setting, const mint (&strides)[4],
           std::mt19937_64 &random) {
  std::array<Operand, 3> operands = {Operand(routine.kind, setting.count, strides[1]),
                                     Operand(routine.kind, setting.count, strides[2]),
                                     Operand(routine.kind, setting.count, strides[3])};
  for (Operand &operand : operands) operand.fill(random);
  const Expectation expected = expectation(routine, setting, operands);
  Operand own(routine.kind, setting.count, strides[0]);
  Operand &result = setting.place == apart ? own : operands[size_t(setting.place)];
  SCOPED_TRACE(describe(routine, setting, strides));
  const mint pending = setExceptionActive(77);
  ASSERT_EQ(call(routine, result.start(), operands, setting, strides), expected.position);
  ASSERT_EQ(setExceptionActive(pending), 77) << "a routine raises nothing";
  expectStored(result, expected, setting);
  for (const Operand &operand : operands)
    if (&operand != &result)
      for (size_t k = 0; k < operand.buffer.count(); ++k)
        ASSERT_TRUE(operand.buffer.isUntouched(ptrdiff_t(k)));
}

TEST(TernaryRoutines, AreTheirTypedEntriesAtEveryShapeLengthAndFlag) {
  std::mt19937_64 random(61);
  const mint shapes[][4] = {{1, 1, 1, 1},  {1, 0, 1, 1},  {1, 1, 0, 1}, {1, 1, 1, 0}, {1, 0, 0, 1},
                            {1, 0, 1, 0},  {1, 1, 0, 0},  {1, 0, 0, 0}, {2, 1, 3, 1}, {-1, 1, -2, 1},
                            {3, -1, 0, 2}, {1, -1, 1, 1}, {0, 1, 1, 1}};
  for (const Routine &routine : routines())
    for (const mint flags : {0, 2, 4, 6})
      for (mint count = -1; count <= 67; ++count)
        for (const auto &strides : shapes)
          ASSERT_NO_FATAL_FAILURE(check(routine, {count, flags, apart}, strides, random));
}

TEST(TernaryRoutines, MayStoreOntoAnyOperand) {
  std::mt19937_64 random(62);
  const mint shapes[][4] = {{1, 1, 1, 1}, {2, 2, 2, 2}, {-1, -1, -1, -1}};
  for (const Routine &routine : routines())
    for (const mint flags : {0, 2, 4, 6})
      for (mint count = 0; count <= 67; ++count)
        for (const Place place : {onA, onX, onY}) {
          for (const auto &strides : shapes)
            ASSERT_NO_FATAL_FAILURE(check(routine, {count, flags, place}, strides, random));
          const mint others[3][4] = {
              {1, 1, 0, 1}, {1, 0, 1, 1}, {1, 0, 1, 1}}; // the other operands may be scalars
          ASSERT_NO_FATAL_FAILURE(check(routine, {count, flags, place}, others[place], random));
        }
}

// ---- failures -----------------------------------------------------------------------------------

// Operands that succeed in both forms, and such that fail the checked form only.
Operands harmless(mint kind) { return {Element{kind, {3, 0}}, Element{kind, {5, 0}}, Element{kind, {2, 0}}}; }
Operands failing(const Routine &routine) {
  const mreal large = routine.kind == 2 ? 2e9 : 1e308;
  const bool divides = std::strstr(routine.name, "adxmy") != nullptr;
  return {Element{routine.kind, {large, 0}}, Element{routine.kind, {divides ? 1e-5 : large, 0}},
          Element{routine.kind, {0, 0}}};
}

struct Vectors {
  std::array<Operand, 3> operands;
  Vectors(const Routine &routine, mint count)
      : operands{Operand(routine.kind, count, 1), Operand(routine.kind, count, 1),
                 Operand(routine.kind, count, 1)} {
    for (mint k = 0; k < count; ++k) put(k, harmless(routine.kind));
    for (Operand &operand : operands) operand.buffer.snapshot();
  }
  void put(mint at, const Operands &elements) {
    for (size_t k = 0; k < 3; ++k) operands[k].put(at, elements[k]);
  }
};

constexpr mint kDense[4] = {1, 1, 1, 1};

TEST(TernaryRoutines, TellTheFailingElementOrOneForABulkTest) {
  for (const Routine &routine : routines())
    for (const mint count : {1, 2, 8, 31, 67})
      for (mint at = 0; at < count; ++at)
        for (const Place place : {apart, onA, onX, onY})
          for (const mint flags : {0, 2, 4, 6}) {
            Vectors vectors(routine, count);
            vectors.put(at, failing(routine));
            Operand own(routine.kind, count, 1);
            const Setting setting = {count, flags, place};
            const mint expected = isByElement(routine, setting) ? at + 1 : isInBulk(routine, setting) ? 1 : 0;
            void *result = place == apart ? own.start() : vectors.operands[size_t(place)].start();
            ASSERT_EQ(call(routine, result, vectors.operands, setting, kDense), expected)
                << describe(routine, setting, kDense);
          }
}

// A division by a zero that is the difference of two complexes is an error of the domain, whatever the flags,
// and one inside a loop under a bulk test has a position.
TEST(TernaryRoutines, DivisionByAComplexZeroFailsAtItsElementWithoutFlagsToo) {
  const Routine &adxmy = routines().back();
  ASSERT_STREQ(adxmy.name, "ccc_adxmy");
  for (const mint flags : {0, 2, 4, 6})
    for (const mint at : {0, 3, 8}) {
      Vectors vectors(adxmy, 9);
      vectors.put(at, {Element{4, {1, 1}}, Element{4, {2, 5}}, Element{4, {2, 5}}});
      Operand own(4, 9, 1);
      EXPECT_EQ(call(adxmy, own.start(), vectors.operands, {9, flags, apart}, kDense), at + 1);
      for (mint k = 0; k < at; ++k) EXPECT_EQ(own.at(k), (Element{4, {1, 0}}));
    }
}

TEST(TernaryRoutines, OfKnownValues) {
  const mint a = 3, x[4] = {1, -2, 5, 7}, y[4] = {10, 20, 30, 40}, strides[4] = {1, 0, 1, 1};
  mint result[4];
  EXPECT_EQ(machfunc_iii_axmy(result, &a, x, y, 4, strides, 4), 0);
  EXPECT_EQ(std::vector<mint>(result, result + 4), (std::vector<mint>{-7, -26, -15, -19}));
  EXPECT_EQ(machfunc_iii_ymax(result, &a, x, y, 4, strides, 4), 0);
  EXPECT_EQ(std::vector<mint>(result, result + 4), (std::vector<mint>{7, 26, 15, 19}));
  const mreal b = 6, u[2] = {5, 1}, v[2] = {2, 3};
  mreal quotients[2];
  EXPECT_EQ(machfunc_ddd_adxmy(quotients, &b, u, v, 2, strides, 2), 0);
  EXPECT_EQ(std::vector<mreal>(quotients, quotients + 2), (std::vector<mreal>{2, -3}));
  EXPECT_EQ(machfunc_ddd_adxmy(quotients, &b, u, u, 2, strides, 0), 0);
  EXPECT_EQ(quotients[0], HUGE_VAL) << "no test without the flag";
  EXPECT_EQ(machfunc_ddd_adxmy(quotients, &b, u, u, 2, strides, 2), 1);
}

// The reserved value fails, and what fits only in the exact sum does not.
TEST(TernaryRoutines, OfIntegersAreTestedByTheExactResult) {
  const mint two = 2, x[2] = {-1073741824, -1073741826}, y[2] = {0, -5};
  mint result;
  EXPECT_EQ(machfunc_iii_axmy(&result, &two, x, y, 1, kDense, 4), 1) << "the reserved value";
  EXPECT_EQ(machfunc_iii_axmy(&result, &two, x, y, 1, kDense, 2), 0);
  EXPECT_EQ(result, INT32_MIN);
  EXPECT_EQ(machfunc_iii_axmy(&result, &two, x + 1, y + 1, 1, kDense, 4), 0)
      << "the product alone is out of range";
  EXPECT_EQ(result, -INT32_MAX);
}

// ---- pieces -------------------------------------------------------------------------------------

// Three workers, ternary routines parallel from one element on, no other ones.
class ConcurrentTernaries : public PoolTest {
protected:
  ConcurrentTernaries() {
    for (mint index = 0; index < 5; ++index)
      setVectorParallelLengthThreshold(index, index == 4 ? 1 : INT32_MAX);
  }
};

// Fewer pieces of 16384 than workers, and more.
const mint kLongCounts[] = {1, 2, 3, 4, 100, 16384, 49152, 49153, 70000};

TEST_F(ConcurrentTernaries, InPiecesAreTheirTypedEntries) {
  std::mt19937_64 random(63);
  const mint shapes[][4] = {{1, 1, 1, 1}, {1, 0, 1, 1}, {2, 1, -1, 0}, {-1, 2, 1, 1}, {0, 1, 1, 1}};
  for (const Routine &routine : routines())
    for (const mint count : {1, 2, 3, 4, 100})
      for (const auto &strides : shapes)
        for (const Place place : {apart, onA})
          if (place == apart || strides[0] == strides[1])
            ASSERT_NO_FATAL_FAILURE(check(routine, {count, 0, place}, strides, random));
}

// Integers only: a bulk test tells no element.
TEST_F(ConcurrentTernaries, FailAtTheSmallestPositionWithEverythingBeforeItStored) {
  for (const Routine &routine : routines())
    for (const mint count : kLongCounts) {
      if (routine.kind != 2) continue;
      Vectors vectors(routine, count);
      const Element stored = routine.plain(harmless(2)).element;
      for (const mint at :
           {count - 1, count / 2, count / 3, std::min(count - 1, 16384), std::min(count - 1, 16383), 0}) {
        vectors.put(at, failing(routine)); // the later ones fail as well from now on
        Operand own(2, count, 1);
        mint smallest = 0;
        while (vectors.operands[0].at(smallest).value.re != 2e9) ++smallest;
        ASSERT_EQ(call(routine, own.start(), vectors.operands, {count, 4, apart}, kDense), smallest + 1)
            << routine.name;
        for (mint k = 0; k < smallest; ++k) ASSERT_EQ(own.at(k), stored) << k;
      }
    }
}

// 101 elements on three workers: pieces start at 0, 33 and 67.
TEST_F(ConcurrentTernaries, ABulkTestTellsTheStartOfTheFirstPieceThatFails) {
  for (const Routine &routine : routines())
    for (const auto &[at, start] : {std::pair{100, 67}, {67, 67}, {66, 33}, {33, 33}, {32, 0}, {0, 0}}) {
      if (routine.kind == 2) continue;
      Vectors vectors(routine, 101);
      vectors.put(at, failing(routine));
      vectors.put(100, failing(routine));
      Operand own(routine.kind, 101, 1);
      ASSERT_EQ(call(routine, own.start(), vectors.operands, {101, 2, apart}, kDense), start + 1)
          << routine.name;
      ASSERT_EQ(call(routine, vectors.operands[0].start(), vectors.operands, {101, 2, onA}, kDense), at + 1)
          << routine.name;
    }
}

TEST_F(ConcurrentTernaries, DivisionByAComplexZeroIsFoundAtItsElementInEveryPiece) {
  const Routine &adxmy = routines().back();
  for (const mint flags : {0, 2})
    for (const mint at : {100, 67, 66, 33, 32, 0}) {
      Vectors vectors(adxmy, 101);
      vectors.put(at, {Element{4, {1, 1}}, Element{4, {2, 5}}, Element{4, {2, 5}}});
      Operand own(4, 101, 1);
      EXPECT_EQ(call(adxmy, own.start(), vectors.operands, {101, flags, apart}, kDense), at + 1);
    }
}

TEST_F(ConcurrentTernaries, MakeAPoolFromTheThresholdOfTheirEntryOnUnlessTheyStoreOntoAnOperand) {
  setVectorParallelLengthThreshold(4, 32768);
  for (const Routine &routine : routines()) {
    Vectors vectors(routine, 32768);
    Operand own(routine.kind, 32768, 1);
    const auto makesAPool = [&](mint count, void *result, const mint *strides) {
      tearDownPool();
      EXPECT_EQ(call(routine, result, vectors.operands, {count, 0, apart}, strides), 0);
      return poolExists();
    };
    const mint oneResult[4] = {0, 1, 1, 1};
    EXPECT_TRUE(makesAPool(32768, own.start(), kDense)) << routine.name;
    EXPECT_FALSE(makesAPool(32767, own.start(), kDense)) << routine.name;
    EXPECT_FALSE(makesAPool(32768, own.start(), oneResult)) << "one result for all";
    for (Operand &operand : vectors.operands)
      EXPECT_FALSE(makesAPool(32768, operand.start(), kDense)) << routine.name;
  }
}

} // namespace
