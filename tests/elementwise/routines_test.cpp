// Every vector routine of the operator tables against its typed entries, bit for bit: all shapes of
// strides, lengths 0 to 67, in place and apart, every setting of the flags, red zones around each buffer, at
// each processor level that the machine has.
#include "at_levels.h"
#include "elementwise/result_types.h"
#include "scalar/operator_table.h"
#include "support/kinds.h"

#include <fenv.h>
#include <gtest/gtest.h>
#include <string_view>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

template <class Entry> struct Forms { Entry plain, checked; };

// An operator's typed entries by kind, 2 to 4.
template <class Row, class Entry> struct Operator {
  Row row;
  Forms<Entry> byKind[3];
};

constexpr const char *kKindNames[] = {"i", "d", "c"};

std::vector<Operator<UnaryRow, TypedUnary>> unaryOperators() {
  std::vector<Operator<UnaryRow, TypedUnary>> all;
  size_t next = 0;
#define FORMS(kind, T, typed)                                                                                \
  { wrapUnary<kind>(unary_##typed##_##T), wrapUnary<kind>(checked_unary_##typed##_##T) }
#define TORVANE_UNARY(family, number, typed, ...)                                                            \
  all.push_back({table::kUnary[next++],                                                                      \
                 {FORMS(2, Integer32, typed), FORMS(3, Real64, typed), FORMS(4, ComplexReal64, typed)}});
#include "scalar/operators.def"
#undef FORMS
  return all;
}

std::vector<Operator<BinaryRow, TypedBinary>> binaryOperators() {
  std::vector<Operator<BinaryRow, TypedBinary>> all;
  size_t next = 0;
#define FORMS(kind, T, typed)                                                                                \
  {                                                                                                          \
    wrapBinary<kind, kind>(binary_##typed##_##T##_##T),                                                      \
        wrapBinary<kind, kind>(checked_binary_##typed##_##T##_##T)                                           \
  }
#define TORVANE_BINARY(family, number, typed, ...)                                                           \
  all.push_back({table::kBinary[next++],                                                                     \
                 {FORMS(2, Integer32, typed), FORMS(3, Real64, typed), FORMS(4, ComplexReal64, typed)}});
#include "scalar/operators.def"
#undef FORMS
  return all;
}

enum class Testing { none, byElement, inBulk };

// Sine and cosine of reals have no checked typed form of their own; their routines test all the same.
template <class Row> bool testsWithoutATypedTest(const Row &row, mint kind) {
  const std::string_view typed = row.typed;
  return kind == TORVANE_TYPE_REAL && (typed == "sin" || typed == "cos");
}

template <class Row> Checks cellOf(const Row &row, mint kind) {
  if (testsWithoutATypedTest(row, kind)) return checks::c69;
  const ClassChecks &cells = row.checks;
  return kind == TORVANE_TYPE_INTEGER ? cells.signedInteger
         : kind == TORVANE_TYPE_REAL  ? cells.real
                                      : cells.complex;
}

template <class Row> Testing testingOf(const Row &row, mint kind, mint flags, bool inPlace) {
  const Checks cell = cellOf(row, kind);
  if (kind == TORVANE_TYPE_INTEGER)
    return (flags & 4) && (cell & checks::c1) ? Testing::byElement : Testing::none;
  if ((flags & 2) == 0 || (cell & checks::c69) == 0) return Testing::none;
  return inPlace ? Testing::byElement : Testing::inBulk;
}

constexpr int kFailing = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

// What a routine must return and store, from one typed call an element.
struct Expectation {
  std::vector<Element> elements; // those before the failure
  mint position = 0;
};

template <class Row, class Entry, class Apply>
Expectation expectation(const Operator<Row, Entry> &op, mint kind, mint storedKind, Testing testing,
                        mint count, Apply apply) {
  const Forms<Entry> &forms = op.byKind[kind - 2];
  const bool classifies = testing == Testing::byElement && testsWithoutATypedTest(op.row, kind);
  Expectation expected;
  feclearexcept(kFailing);
  for (mint k = 0; k < count; ++k) {
    const Outcome outcome = apply(testing == Testing::byElement ? forms.checked : forms.plain, k);
    if (outcome.code != 0 || (classifies && !std::isfinite(outcome.element.value.re))) {
      expected.position = k + 1;
      return expected;
    }
    expected.elements.push_back(outcome.element.as(storedKind));
  }
  if (testing == Testing::inBulk && fetestexcept(kFailing) != 0) expected.position = 1;
  return expected;
}

// Room for `count` elements at a stride of either sign, and the index of the first.
ptrdiff_t firstIndex(mint count, mint stride) { return stride < 0 ? ptrdiff_t{count - 1} * -stride : 0; }
size_t extent(mint count, mint stride) {
  return count == 0 ? 1 : size_t(count - 1) * size_t(std::abs(stride)) + 1;
}

Buffer filled(mint kind, mint count, mint stride, std::mt19937_64 &random) {
  Buffer buffer(kind, extent(count, stride));
  for (size_t k = 0; k < buffer.count(); ++k) buffer.set(ptrdiff_t(k), sampleElement(kind, random));
  buffer.snapshot();
  return buffer;
}

// Stored elements agree; the failing one and what a stride skips are untouched where that is promised.
void expectStored(const Buffer &result, const Expectation &expected, mint count, mint stride, bool inPlace) {
  std::vector<bool> mayChange(result.count());
  const ptrdiff_t first = firstIndex(count, stride);
  for (size_t k = 0; k < expected.elements.size(); ++k) {
    const ptrdiff_t index = first + ptrdiff_t(k) * stride;
    mayChange[size_t(index)] = true;
    if (stride != 0 || k + 1 == expected.elements.size())
      ASSERT_EQ(result.get(index), expected.elements[k]) << "element " << k << " of " << count;
  }
  const bool laterOnesMayChange = !inPlace;
  for (mint k = 0; laterOnesMayChange && k < count; ++k)
    mayChange[size_t(first + ptrdiff_t{k} * stride)] = true;
  for (size_t k = 0; k < result.count(); ++k)
    ASSERT_TRUE(mayChange[k] || result.isUntouched(ptrdiff_t(k))) << k;
  ASSERT_TRUE(result.zonesHold());
}

constexpr mint kFlagSettings[] = {0, 2, 4, 6};

using UnaryOperator = Operator<UnaryRow, TypedUnary>;
void checkUnary(const UnaryOperator &op, mint kind, mint count, const mint (&strides)[2], mint flags,
                bool inPlace, std::mt19937_64 &random) {
  const TorvaneUnaryRoutine routine = machfunsarray_1[3 * op.row.number + kind - 2];
  const Testing testing = testingOf(op.row, kind, flags, inPlace);
  const mint resultKind = storedKind1(op.row.number, kind);
  Buffer x = filled(kind, count, strides[1], random);
  const ptrdiff_t firstX = firstIndex(count, strides[1]);
  const auto apply = [&](const TypedUnary &entry, mint k) {
    return entry(x.get(firstX + ptrdiff_t{k} * strides[1]));
  };
  const Expectation expected = expectation(op, kind, resultKind, testing, count, apply);
  Buffer apart(resultKind, extent(count, strides[0]));
  Buffer &result = inPlace ? x : apart;
  SCOPED_TRACE(testing::Message() << kKindNames[kind - 2] << "_" << op.row.vector << " count " << count
                                  << " strides " << strides[0] << " " << strides[1] << " flags " << flags
                                  << " in place " << inPlace);
  const mint pending = setExceptionActive(77);
  ASSERT_EQ(routine(result.at(firstIndex(count, strides[0])), x.at(firstX), count, strides, flags),
            expected.position);
  ASSERT_EQ(setExceptionActive(pending), 77) << "a routine raises nothing";
  expectStored(result, expected, count, strides[0], inPlace);
}

using TypedRoutines = AtLevel;
INSTANTIATE_TEST_SUITE_P(AtLevel, TypedRoutines, testing::Range(mint{0}, levelsToTest()));

TEST_P(TypedRoutines, OfOneOperandAreTheirTypedEntriesAtEveryShapeLengthAndFlag) {
  std::mt19937_64 random(1);
  const mint shapes[][2] = {{1, 1}, {1, 0}, {2, 1}, {1, 3}, {-1, 1}, {1, -2}, {3, -1}, {0, 1}};
  for (const UnaryOperator &op : unaryOperators())
    for (mint kind = 2; kind <= 4; ++kind) {
      if (op.row.number == 0 || (op.row.columns >> (kind - 2) & 1) == 0) continue;
      for (const mint flags : kFlagSettings)
        for (mint count = 0; count <= 67; ++count) {
          for (const auto &strides : shapes)
            ASSERT_NO_FATAL_FAILURE(checkUnary(op, kind, count, strides, flags, false, random));
          const bool sameWidth = storedKind1(op.row.number, kind) == kind;
          if (sameWidth) ASSERT_NO_FATAL_FAILURE(checkUnary(op, kind, count, {1, 1}, flags, true, random));
          if (sameWidth) ASSERT_NO_FATAL_FAILURE(checkUnary(op, kind, count, {2, 2}, flags, true, random));
        }
    }
}

using BinaryOperator = Operator<BinaryRow, TypedBinary>;

// Where the result goes: onto an operand, or apart from both.
enum class Place { apart, first, second };

// The processor traps on the most negative integer divided by -1.
bool dividesIntegers(const BinaryRow &row, mint kind) {
  const std::string_view typed = row.typed;
  return kind == TORVANE_TYPE_INTEGER && (typed == "mod" || typed == "quotient");
}
void replaceMinusOne(Buffer &buffer) {
  for (size_t k = 0; k < buffer.count(); ++k)
    if (buffer.get(ptrdiff_t(k)).value.re == -1) buffer.set(ptrdiff_t(k), {buffer.kind, {5, 0}});
  buffer.snapshot();
}

// Operators whose second operand keeps its kind have typed entries of their own for mixed pairs, or none.
bool widensMixedPairs(const BinaryRow &row) {
  return row.rule != PairRule::power && row.rule != PairRule::shift && row.rule != PairRule::chop &&
         row.rule != PairRule::integer;
}

void checkBinary(const BinaryOperator &op, mint kind1, mint kind2, mint count, const mint (&strides)[3],
                 mint flags, Place place, std::mt19937_64 &random) {
  const bool inPlace = place == Place::first;
  const TorvaneBinaryRoutine routine =
      machfunsarray_2[9 * (op.row.number - 256) + 3 * (kind1 - 2) + kind2 - 2];
  const mint kind = std::max(kind1, kind2); // both operands widen to the wider kind
  const Testing testing = testingOf(op.row, kind, flags, inPlace);
  const mint resultKind = storedKind2(op.row.number, kind1, kind2);
  Buffer x = filled(kind1, count, strides[1], random), y = filled(kind2, count, strides[2], random);
  const ptrdiff_t firstX = firstIndex(count, strides[1]), firstY = firstIndex(count, strides[2]);
  if (dividesIntegers(op.row, kind)) replaceMinusOne(y);
  const auto apply = [&](const TypedBinary &entry, mint k) {
    return entry(x.get(firstX + ptrdiff_t{k} * strides[1]).as(kind),
                 y.get(firstY + ptrdiff_t{k} * strides[2]).as(kind));
  };
  const Expectation expected = expectation(op, kind, resultKind, testing, count, apply);
  Buffer apart(resultKind, extent(count, strides[0]));
  Buffer &result = place == Place::first ? x : place == Place::second ? y : apart;
  SCOPED_TRACE(testing::Message() << kKindNames[kind1 - 2] << kKindNames[kind2 - 2] << "_" << op.row.vector
                                  << " count " << count << " strides " << strides[0] << " " << strides[1]
                                  << " " << strides[2] << " flags " << flags << " place " << int(place));
  const mint pending = setExceptionActive(77);
  ASSERT_EQ(
      routine(result.at(firstIndex(count, strides[0])), x.at(firstX), y.at(firstY), count, strides, flags),
      expected.position);
  ASSERT_EQ(setExceptionActive(pending), 77) << "a routine raises nothing";
  expectStored(result, expected, count, strides[0], inPlace);
  ASSERT_TRUE(y.zonesHold());
}

TEST_P(TypedRoutines, OfTwoOperandsAreTheirTypedEntriesAtEveryShapeLengthAndFlag) {
  std::mt19937_64 random(2);
  const mint shapes[][3] = {{1, 1, 1}, {1, 0, 1},   {1, 1, 0},  {1, 0, 0},
                            {2, 1, 3}, {-1, 1, -2}, {3, -1, 0}, {0, 1, 1}};
  for (const BinaryOperator &op : binaryOperators())
    for (mint column = 0; column < 9; ++column) {
      const mint kind1 = column / 3 + 2, kind2 = column % 3 + 2;
      if (op.row.number == 0 || (op.row.columns >> column & 1) == 0) continue;
      if (kind1 != kind2 && !widensMixedPairs(op.row)) continue;
      for (const mint flags : kFlagSettings)
        for (mint count = 0; count <= 67; ++count) {
          for (const auto &strides : shapes)
            ASSERT_NO_FATAL_FAILURE(
                checkBinary(op, kind1, kind2, count, strides, flags, Place::apart, random));
          const bool sameWidth = storedKind2(op.row.number, kind1, kind2) == kind1;
          if (sameWidth)
            ASSERT_NO_FATAL_FAILURE(
                checkBinary(op, kind1, kind2, count, {1, 1, 1}, flags, Place::first, random));
          if (sameWidth)
            ASSERT_NO_FATAL_FAILURE(
                checkBinary(op, kind1, kind2, count, {1, 1, 0}, flags, Place::first, random));
          if (storedKind2(op.row.number, kind1, kind2) == kind2)
            ASSERT_NO_FATAL_FAILURE(
                checkBinary(op, kind1, kind2, count, {1, 1, 1}, flags, Place::second, random));
        }
    }
}

// One element, alone and filling a run of registers, so that no neighbour hides what it accrues. `call` runs
// the routine on so many copies of what `sample` has drawn.
constexpr mint kCopies = 37;
template <class Op, class Apply, class Sample, class Call>
void checkAccrual(const Op &op, mint kind, mint storedKind, Apply apply, Sample sample, Call call) {
  const Testing testing = testingOf(op.row, kind, TORVANE_CHECK_REALS, false);
  if (testing != Testing::inBulk) return;
  for (int k = 0; k < 1000; ++k) {
    sample();
    const Expectation expected = expectation(op, kind, storedKind, testing, 1, apply);
    ASSERT_EQ(call(1), expected.position) << op.row.vector << " sample " << k;
    ASSERT_EQ(call(kCopies), expected.position) << op.row.vector << " sample " << k;
  }
}

void fill(Buffer &buffer, const Element &element) {
  for (size_t k = 0; k < buffer.count(); ++k) buffer.set(ptrdiff_t(k), element);
}

TEST_P(TypedRoutines, OfOneOperandAccrueWhatTheirTypedEntriesAccrue) {
  std::mt19937_64 random(3);
  const mint dense[2] = {1, 1};
  for (const UnaryOperator &op : unaryOperators())
    for (mint kind = 3; kind <= 4; ++kind) {
      if (op.row.number == 0 || (op.row.columns >> (kind - 2) & 1) == 0) continue;
      const TorvaneUnaryRoutine routine = machfunsarray_1[3 * op.row.number + kind - 2];
      Buffer x(kind, kCopies), result(storedKind1(op.row.number, kind), kCopies);
      SCOPED_TRACE(kKindNames[kind - 2]);
      ASSERT_NO_FATAL_FAILURE(checkAccrual(
          op, kind, result.kind, [&](const TypedUnary &entry, mint k) { return entry(x.get(k)); },
          [&] { fill(x, sampleElement(kind, random)); },
          [&](mint count) { return routine(result.data(), x.data(), count, dense, TORVANE_CHECK_REALS); }));
    }
}

TEST_P(TypedRoutines, OfTwoOperandsAccrueWhatTheirTypedEntriesAccrue) {
  std::mt19937_64 random(4);
  const mint dense[3] = {1, 1, 1};
  for (const BinaryOperator &op : binaryOperators())
    for (mint column = 0; column < 9; ++column) {
      const mint kind1 = column / 3 + 2, kind2 = column % 3 + 2, kind = std::max(kind1, kind2);
      if (op.row.number == 0 || (op.row.columns >> column & 1) == 0) continue;
      if (kind1 != kind2 && !widensMixedPairs(op.row)) continue;
      const TorvaneBinaryRoutine routine = machfunsarray_2[9 * (op.row.number - 256) + column];
      Buffer x(kind1, kCopies), y(kind2, kCopies), result(storedKind2(op.row.number, kind1, kind2), kCopies);
      SCOPED_TRACE(column);
      ASSERT_NO_FATAL_FAILURE(checkAccrual(
          op, kind, result.kind,
          [&](const TypedBinary &entry, mint k) { return entry(x.get(k).as(kind), y.get(k).as(kind)); },
          [&] {
            fill(x, sampleElement(kind1, random));
            fill(y, sampleElement(kind2, random));
          },
          [&](mint count) {
            return routine(result.data(), x.data(), y.data(), count, dense, TORVANE_CHECK_REALS);
          }));
    }
}

// A table entry stands exactly where the row has a column, and reserved numbers are null throughout.
TEST(OperatorTables, HoldTheRowsAndNothingElse) {
  bool present[85][3] = {};
  const auto enter = [&](mint number, Columns columns) {
    for (int k = 0; number != 0 && k < 3; ++k) present[number][k] = columns >> k & 1;
  };
  for (const UnaryRow &row : table::kUnary) enter(row.number, row.columns);
  for (const AliasRow &row : table::kAliases) enter(row.number, row.columns);
  for (const BoundRow &row : table::kBound) enter(row.number, columns::i);
  for (int number = 0; number < 85; ++number)
    for (int k = 0; k < 3; ++k)
      EXPECT_EQ(machfunsarray_1[3 * number + k] != nullptr, present[number][k]) << number;
  bool presentPair[22][9] = {};
  for (const BinaryRow &row : table::kBinary)
    for (int k = 0; row.number != 0 && k < 9; ++k) presentPair[row.number - 256][k] = row.columns >> k & 1;
  for (int number = 0; number < 22; ++number)
    for (int k = 0; k < 9; ++k)
      EXPECT_EQ(machfunsarray_2[9 * number + k] != nullptr, presentPair[number][k]) << number;
  EXPECT_EQ(machfunsarray_1[3 * 57 + 1], machfunc_d_sqrt);
  EXPECT_EQ(machfunsarray_2[9 * 4 + 5], machfunc_dc_div);
}

TEST(RoutineShapes, ScalarOperandFillsTheResult) {
  const mreal x = 9;
  mreal result[5] = {};
  const mint strides[2] = {1, 0};
  EXPECT_EQ(machfunc_d_sqrt(result, &x, 5, strides, 0), 0);
  for (const mreal element : result) EXPECT_EQ(element, 3);
}

TEST(RoutineShapes, NegativeCountDoesNothing) {
  const mint strides[2] = {1, 1};
  EXPECT_EQ(machfunc_d_sqrt(nullptr, nullptr, -3, strides, 6), 0);
  EXPECT_EQ(machfunc_i_minus(nullptr, nullptr, INT32_MIN, strides, 6), 0);
}

// Bulk and in place tell a failure differently: 1, or the position of the element.
TEST(CheckedRoutines, TellThePositionInPlaceAndOneElsewhere) {
  mreal x[4] = {1, 2, 1e200, 4}, result[4];
  const mint strides[2] = {1, 1};
  EXPECT_EQ(machfunc_d_square(result, x, 4, strides, TORVANE_CHECK_REALS), 1);
  EXPECT_EQ(result[3], 16); // the loop has written everything
  EXPECT_EQ(machfunc_d_square(x, x, 4, strides, TORVANE_CHECK_REALS), 3);
  EXPECT_EQ(x[2], 1e200); // an element that failed in place is still there for a retry
  EXPECT_EQ(x[3], 4);
}

// The bulk test reads the accrued exceptions: an infinity that was there before fails nothing.
TEST(CheckedRoutines, BulkTestPassesAnInfinityThatWasThereBefore) {
  const mreal x[2] = {HUGE_VAL, 1}, one = 1;
  mreal result[2];
  const mint strides[3] = {1, 1, 0};
  EXPECT_EQ(machfunc_dd_plus(result, x, &one, 2, strides, TORVANE_CHECK_REALS), 0);
  EXPECT_EQ(result[0], HUGE_VAL);
  feraiseexcept(FE_OVERFLOW); // nor does what the caller had accrued
  EXPECT_EQ(machfunc_dd_plus(result, x, &one, 2, strides, TORVANE_CHECK_REALS), 0);
}

TEST(TernaryRoutines, AxpyIsItsTypedEntry) {
  const mint a = 3, x[4] = {1, -2, 5, 1000000000}, y[4] = {10, 20, 30, 40};
  mint result[4];
  const mint strides[4] = {1, 0, 1, 1};
  EXPECT_EQ(machfunc_iii_axpy(result, &a, x, y, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(result[k], ternary_axpy_Integer32_Integer32_Integer32(a, x[k], y[k]));
  EXPECT_EQ(machfunc_iii_axpy(result, &a, x, y, 4, strides, TORVANE_CHECK_INTEGERS), 4);
  const mreal b[3] = {1, 2, 3};
  mreal sums[3];
  const mint dense[4] = {1, 1, 1, 1};
  EXPECT_EQ(machfunc_ddd_axpy(sums, b, b, b, 3, dense, TORVANE_CHECK_REALS), 0);
  EXPECT_EQ(sums[2], 12);
  const mcomplex z = {0, 1};
  mcomplex product;
  EXPECT_EQ(machfunc_ccc_axpy(&product, &z, &z, &z, 1, dense, 0), 0);
  EXPECT_EQ(product.re, -1);
  EXPECT_EQ(product.im, 1);
}

} // namespace
