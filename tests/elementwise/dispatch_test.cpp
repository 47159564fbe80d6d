// Whole-tensor mathematics: shapes and the repetition rule, results in place and in slots, types that
// have no routine, widening, failures of memory, aborts.
#include "elementwise/dispatch.h"
#include "elementwise/widening.h"
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/kinds.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>
#include <torvane/elementwise.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>

bool operator==(const mcomplex &x, const mcomplex &y) {
  return torvane::test::sameReal(x.re, y.re) && torvane::test::sameReal(x.im, y.im);
}
std::ostream &operator<<(std::ostream &out, const mcomplex &z) {
  return out << "(" << z.re << ", " << z.im << ")";
}

using namespace torvane;
using namespace torvane::test;

namespace {

enum Operator : mint {
  kMinus = 43,
  kRound = 49,
  kSquare = 56,
  kSqrt = 57,
  kPlus = 257,
  kSubtract,
  kTimes,
  kDiv
};
constexpr mint kInteger = 2, kReal = 3, kComplex = 4;

using Reals = std::vector<mreal>;
using Words = std::vector<mint>;
using Complexes = std::vector<mcomplex>;

// The result of a call into an empty slot, and its return value.
struct Called {
  Tensor tensor;
  mint status;
};
Called unary(const Tensor &x, mint op, mint type) {
  MTensor *result = nullptr;
  const mint status = MTensorMathUnary(&result, x.get(), op, type);
  return {Tensor(result), status};
}
Called binary(const Tensor &x, const Tensor &y, mint op, mint type) {
  MTensor *result = nullptr;
  const mint status = MTensorMathBinary(&result, x.get(), y.get(), op, type);
  return {Tensor(result), status};
}

TEST(UnaryDispatch, ComputesEveryElementIntoANewTensor) {
  const Called roots = unary(tensorOf<mreal>({2, 2}, {1, 4, 9, 16}), kSqrt, kReal);
  ASSERT_EQ(roots.status, 0);
  EXPECT_EQ(extentsOf(roots.tensor), (Extents{2, 2}));
  EXPECT_EQ(valuesOf<mreal>(roots.tensor), (Reals{1, 2, 3, 4}));
  const Called rounded = unary(tensorOf<mreal>({3}, {1.5, 2.5, -0.5}), kRound, kInteger);
  ASSERT_EQ(rounded.status, 0);
  EXPECT_EQ(valuesOf<mint>(rounded.tensor), (Words{2, 2, 0}));
  const Called negated = unary(tensorOf<mcomplex>({}, {{1, -2}}), kMinus, kComplex);
  EXPECT_EQ(valuesOf<mcomplex>(negated.tensor), (Complexes{{-1, 2}}));
  EXPECT_EQ(negated.tensor->rank, 0);
}

TEST(UnaryDispatch, EmptyTensorsSucceed) {
  const Called result = unary(tensorOf<mreal>({3, 0}, {}), kSqrt, kReal);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(extentsOf(result.tensor), (Extents{3, 0}));
  EXPECT_EQ(result.tensor->data, nullptr);
  EXPECT_EQ(unary(tensorOf<mreal>({0}, {}), kSqrt, kComplex).status, 0);
}

TEST(UnaryDispatch, ReusesTheTensorOfTheSlot) {
  const Tensor x = tensorOf<mreal>({3}, {1, 4, 9}), target = tensorOf<mreal>({3}, {0, 0, 0});
  MTensor *slot = target.get();
  void *payload = target->data;
  EXPECT_EQ(MTensorMathUnary(&slot, x.get(), kSqrt, kReal), 0);
  EXPECT_EQ(slot, target.get());
  EXPECT_EQ(target->data, payload);
  EXPECT_EQ(valuesOf<mreal>(target), (Reals{1, 2, 3}));
}

TEST(UnaryDispatch, OverwritesItsOperandInPlace) {
  const Tensor x = tensorOf<mreal>({3}, {1, 4, 9});
  MTensor *slot = x.get();
  void *payload = x->data;
  EXPECT_EQ(MTensorMathUnary(&slot, x.get(), kSqrt, kReal), 0);
  EXPECT_EQ(x->data, payload);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{1, 2, 3}));
}

// The operand is read while the result is written, so the result first grows apart.
TEST(UnaryDispatch, ChangesTheTypeOfItsOperandInPlace) {
  const Tensor narrowing = tensorOf<mreal>({4}, {1.4, -2.6, 3.5, 1e9});
  MTensor *slot = narrowing.get();
  EXPECT_EQ(MTensorMathUnary(&slot, slot, kRound, kInteger), 0);
  EXPECT_EQ(narrowing->type, kInteger);
  EXPECT_EQ(narrowing->elementType, 5);
  EXPECT_EQ(narrowing->flags, uint32_t{TORVANE_FLAG_TYPED});
  EXPECT_EQ(narrowing->numericBound, kIntegerBound);
  EXPECT_EQ(valuesOf<mint>(narrowing), (Words{1, -3, 4, 1000000000}));
  const Tensor widening = tensorOf<mreal>({3}, {4, -4, -9});
  slot = widening.get();
  EXPECT_EQ(MTensorMathUnary(&slot, slot, kSqrt, kComplex), 0);
  EXPECT_EQ(widening->type, kComplex);
  EXPECT_EQ(valuesOf<mcomplex>(widening), (Complexes{{2, 0}, {0, 2}, {0, 3}}));
}

TEST(UnaryDispatch, KeepsTheOperandWhenChangingItsTypeFails) {
  const Tensor x = tensorOf<mreal>({2}, {1.5, 1e300});
  MTensor *slot = x.get();
  EXPECT_EQ(MTensorMathUnary(&slot, slot, kRound, kInteger), 1);
  EXPECT_EQ(slot, x.get());
  EXPECT_EQ(x->type, kReal);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{1.5, 1e300}));
}

TEST(UnaryDispatch, FailureLeavesTheElementsBeforeIt) {
  const Called result = unary(tensorOf<mreal>({4}, {4, 9, -1, 16}), kSqrt, kReal);
  EXPECT_EQ(result.status, 1);
  ASSERT_EQ(extentsOf(result.tensor), (Extents{4}));
  EXPECT_EQ(elements<mreal>(result.tensor)[0], 2);
  EXPECT_EQ(elements<mreal>(result.tensor)[1], 3);
}

TEST(UnaryDispatch, StatusTellsAFailureFromAMissingRoutineFromMemory) {
  const Tensor x = tensorOf<mreal>({2}, {4, -4}), words = tensorOf<mint>({2}, {1, 2});
  const auto statusOf = [](const Tensor &operand, mint op, mint type) {
    MTensor *result = nullptr;
    const mint status = tensorMathUnary(&result, operand.get(), op, type, 0);
    MTensor_delete(result);
    return status;
  };
  EXPECT_EQ(statusOf(x, kSqrt, kReal), 4);
  EXPECT_EQ(statusOf(x, kSqrt, kComplex), 0);
  EXPECT_EQ(statusOf(words, kSqrt, kInteger), 4) << "no routine for integers";
  EXPECT_EQ(statusOf(words, kSquare, kReal), 4) << "the table has no entry from integer to real";
  EXPECT_EQ(statusOf(x, kSquare, kInteger), 4) << "the routine stores reals";
  EXPECT_EQ(statusOf(x, kRound, kReal), 4) << "the routine stores integers";
  EXPECT_EQ(statusOf(x, kRound, kComplex), 4) << "there is no complex routine to widen with";
  for (const mint op : {0, 4, 61, 85, -1, 257, INT32_MAX, INT32_MIN})
    EXPECT_EQ(statusOf(x, op, kReal), 4) << op;
  EXPECT_EQ(statusOf(x, kSquare, 0), 5) << "a result without a type has no payload";
  EXPECT_EQ(statusOf(x, kSquare, 1), 4);
}

TEST(UnaryDispatch, FlagsReachTheRoutine) {
  const Tensor x = tensorOf<mreal>({2}, {1, 1e200});
  MTensor *result = nullptr;
  EXPECT_EQ(tensorMathUnary(&result, x.get(), kSquare, kReal, 0), 0);
  EXPECT_EQ(tensorMathUnary(&result, x.get(), kSquare, kReal, TORVANE_CHECK_REALS), 4);
  MTensor_delete(result);
}

// ---- binary ---------------------------------------------------------------------------------------

// The repetition rule by its definition: element k of the shorter operand pairs with block k of the longer.
Reals repeated(const Reals &x, const Reals &y, mreal (*op)(mreal, mreal)) {
  const size_t n1 = x.size(), n2 = y.size(), longer = std::max(n1, n2), shorter = std::min(n1, n2);
  Reals result;
  for (size_t k = 0; shorter != 0 && k < longer; ++k) {
    const size_t of = k / (longer / shorter);
    result.push_back(op(n1 == longer ? x[k] : x[of], n2 == longer ? y[k] : y[of]));
  }
  return result;
}

Reals ramp(size_t count, mreal start) {
  Reals values;
  for (size_t k = 0; k < count; ++k) values.push_back(start + mreal(k) * 0.75);
  return values;
}

TEST(BinaryDispatch, ShorterOperandPairsWithBlocksOfTheLonger) {
  const Extents shapes[] = {{}, {3}, {3, 4}, {3, 4, 2}, {3, 1}, {1}, {3, 0}, {0}};
  for (const Extents &a : shapes)
    for (const Extents &b : shapes) {
      const auto count = [](const Extents &extents) {
        mint n = 1;
        for (const mint extent : extents) n *= extent;
        return size_t(n);
      };
      const bool fits = std::equal(a.begin(), a.begin() + ptrdiff_t(std::min(a.size(), b.size())), b.begin());
      const Reals x = ramp(count(a), 1), y = ramp(count(b), -5);
      const Called result = binary(tensorOf<mreal>(a, x), tensorOf<mreal>(b, y), kSubtract, kReal);
      ASSERT_EQ(result.status, fits ? 0 : 1);
      if (!fits) {
        ASSERT_EQ(result.tensor, nullptr);
        continue;
      }
      ASSERT_EQ(extentsOf(result.tensor), b.size() > a.size() ? b : a);
      ASSERT_EQ(valuesOf<mreal>(result.tensor), repeated(x, y, [](mreal u, mreal v) { return u - v; }));
    }
}

TEST(BinaryDispatch, RejectsShapesOfWhichNoneIsAPrefix) {
  const Tensor x = tensorOf<mreal>({3, 4}, ramp(12, 0)), y = tensorOf<mreal>({4}, ramp(4, 0));
  MTensor *result = nullptr;
  EXPECT_EQ(tensorMathBinary(&result, x.get(), y.get(), kPlus, kReal, 0), -1);
  EXPECT_EQ(result, nullptr);
}

TEST(BinaryDispatch, MixesTypes) {
  const Tensor words = tensorOf<mint>({2}, {1, 2}), reals = tensorOf<mreal>({2}, {0.5, 0.25}),
               complexes = tensorOf<mcomplex>({2}, {{0, 1}, {2, -1}});
  EXPECT_EQ(valuesOf<mint>(binary(words, words, kTimes, kInteger).tensor), (Words{1, 4}));
  EXPECT_EQ(valuesOf<mreal>(binary(words, reals, kPlus, kReal).tensor), (Reals{1.5, 2.25}));
  EXPECT_EQ(valuesOf<mreal>(binary(reals, words, kSubtract, kReal).tensor), (Reals{-0.5, -1.75}));
  EXPECT_EQ(valuesOf<mcomplex>(binary(words, complexes, kTimes, kComplex).tensor),
            (Complexes{{0, 1}, {4, -2}}));
  EXPECT_EQ(valuesOf<mcomplex>(binary(complexes, reals, kDiv, kComplex).tensor),
            (Complexes{{0, 2}, {8, -4}}));
}

TEST(BinaryDispatch, StatusTellsAMissingRoutine) {
  const Tensor words = tensorOf<mint>({2}, {1, 2}), reals = tensorOf<mreal>({2}, {0.5, 0.25}),
               complexes = tensorOf<mcomplex>({2}, {{0, 1}, {2, -1}});
  EXPECT_EQ(binary(words, words, kDiv, kInteger).status, 1);
  EXPECT_EQ(binary(words, words, kPlus, kReal).status, 1);
  EXPECT_EQ(binary(words, words, kPlus, kComplex).status, 1);
  EXPECT_EQ(binary(reals, reals, kPlus, kInteger).status, 1);
  EXPECT_EQ(binary(complexes, reals, kPlus, kReal).status, 1);
  EXPECT_EQ(binary(complexes, reals, kPlus, kInteger).status, 1);
  for (const mint op : {0, 57, 256, 278, INT32_MAX, INT32_MIN})
    EXPECT_EQ(binary(reals, reals, op, kReal).status, 1);
}

TEST(BinaryDispatch, OverwritesEitherOperandInPlace) {
  const Tensor x = tensorOf<mreal>({2, 2}, {1, 2, 3, 4}), y = tensorOf<mreal>({2}, {10, 20});
  MTensor *slot = x.get();
  EXPECT_EQ(MTensorMathBinary(&slot, x.get(), y.get(), kPlus, kReal), 0);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{11, 12, 23, 24}));
  EXPECT_EQ(MTensorMathBinary(&slot, y.get(), x.get(), kSubtract, kReal), 0);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{-1, -2, -3, -4}));
  EXPECT_EQ(MTensorMathBinary(&slot, x.get(), x.get(), kTimes, kReal), 0);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{1, 4, 9, 16}));
}

TEST(BinaryDispatch, InPlaceIgnoresTheAskedTypeAndKeepsTheTensors) {
  const Tensor x = tensorOf<mreal>({2}, {1, 2}), words = tensorOf<mint>({2}, {10, 20});
  MTensor *slot = x.get();
  EXPECT_EQ(MTensorMathBinary(&slot, x.get(), words.get(), kPlus, kComplex), 0);
  EXPECT_EQ(x->type, kReal);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{11, 22}));
  slot = words.get();
  EXPECT_EQ(MTensorMathBinary(&slot, x.get(), words.get(), kPlus, kInteger), 1) << "the routine stores reals";
  EXPECT_EQ(valuesOf<mint>(words), (Words{10, 20}));
}

// The smaller operand has no room for the larger one's elements.
TEST(BinaryDispatch, RefusesAnInPlaceResultThatIsTooSmall) {
  const Tensor x = tensorOf<mreal>({2}, {1, 2}), y = tensorOf<mreal>({2, 3}, ramp(6, 0));
  MTensor *slot = x.get();
  EXPECT_EQ(MTensorMathBinary(&slot, x.get(), y.get(), kPlus, kReal), 1);
  EXPECT_EQ(valuesOf<mreal>(x), (Reals{1, 2}));
}

TEST(BinaryDispatch, FailurePositionCountsThroughTheBlocks) {
  const Tensor x = tensorOf<mcomplex>({2, 3}, {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}}),
               y = tensorOf<mcomplex>({2}, {{1, 0}, {0, 0}});
  const Called result = binary(x, y, kDiv, kComplex);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(elements<mcomplex>(result.tensor)[2], (mcomplex{3, 0})) << "the first block is written";
}

// ---- widening -------------------------------------------------------------------------------------

TEST(Widening, ComputesOnlyElementsThatLeaveTheRealsAsComplex) {
  const Called roots = unary(tensorOf<mreal>({4}, {4, -4, 0, -0.0}), kSqrt, kComplex);
  ASSERT_EQ(roots.status, 0);
  EXPECT_EQ(valuesOf<mcomplex>(roots.tensor), (Complexes{{2, 0}, {0, 2}, {0, 0}, {-0.0, 0}}));
}

// The real routine has no forced check here, so an infinity is a value like any other.
TEST(Widening, OfAUnaryOperatorStoresInfinities) {
  const Called squares = unary(tensorOf<mreal>({2}, {1e200, 2}), kSquare, kComplex);
  ASSERT_EQ(squares.status, 0);
  EXPECT_EQ(valuesOf<mcomplex>(squares.tensor), (Complexes{{HUGE_VAL, 0}, {4, 0}}));
}

TEST(Widening, OfABinaryOperatorStoresRealsAndFailsWhereTheComplexStaysReal) {
  const Tensor x = tensorOf<mreal>({2, 2}, {1, 2, 3, 4}), words = tensorOf<mint>({2}, {2, 4});
  const Called quotients = binary(x, words, kDiv, kComplex);
  ASSERT_EQ(quotients.status, 0);
  EXPECT_EQ(valuesOf<mcomplex>(quotients.tensor), (Complexes{{0.5, 0}, {1, 0}, {0.75, 0}, {1, 0}}));
  const Called mirrored = binary(words, x, kSubtract, kComplex);
  EXPECT_EQ(valuesOf<mcomplex>(mirrored.tensor), (Complexes{{1, 0}, {0, 0}, {1, 0}, {0, 0}}));
  // 1e308 + 1e308 overflows the reals; the complex sum is (inf, 0), which is no departure from them.
  const Tensor large = tensorOf<mreal>({2}, {1, 1e308});
  const Called sums = binary(large, large, kPlus, kComplex);
  EXPECT_EQ(sums.status, 1);
  EXPECT_EQ(elements<mcomplex>(sums.tensor)[0], (mcomplex{2, 0}));
}

TEST(Widening, OutcomeIsTheUnionOfTheKinds) {
  const auto outcome = [](const Reals &values) {
    Complexes result(values.size() + 1);
    return widenUnary({machfunc_d_sqrt, machfunc_c_sqrt}, result.data(), values.data(), 0,
                      mint(values.size()), 0);
  };
  EXPECT_EQ(outcome({1, 2}), -3);
  EXPECT_EQ(outcome({-1, -2}), -4);
  EXPECT_EQ(outcome({-1, 2}), -7);
  EXPECT_EQ(outcome({}), -2);
}

mint refusing(void *, const void *, mint, const mint *, mint) { return 1; }

TEST(Widening, ReportsThePositionWhereTheComplexRoutineFailsToo) {
  const Reals values = {1, 4, -1, 9};
  Complexes result(4);
  EXPECT_EQ(widenUnary({machfunc_d_sqrt, refusing}, result.data(), values.data(), 0, 4, 0), 2);
  EXPECT_EQ(result[1], (mcomplex{2, 0}));
}

// ---- aborts and memory ----------------------------------------------------------------------------

mint abortWanted = 0, testsAsked = 0;
mint confirm(const char *) {
  ++testsAsked;
  return 1;
}

TEST(Widening, StopsWhereTheHostAsksForAnAbort) {
  const Tensor x = tensorOf<mreal>({5000}, Reals(5000, 4.0));
  setAbortWatch(&abortWanted, confirm);
  abortWanted = 1;
  EXPECT_EQ(unary(x, kSqrt, kComplex).status, 1);
  EXPECT_EQ(testsAsked, 1);
  EXPECT_EQ(unary(x, kSqrt, kReal).status, 0) << "plain entries do not poll";
  EXPECT_EQ(testsAsked, 1);
  abortWanted = 0;
  EXPECT_EQ(unary(x, kSqrt, kComplex).status, 0);
}

// Large enough for its payload to come from the process heap at once.
TEST(Dispatch, ReportsExhaustedMemoryAndLosesNothing) {
  const Tensor x = tensorOf<mreal>({40000}, Reals(40000, 4.0));
  FailingHeap heap;
  const int64_t before = heap.blocksOut();
  heap.failFrom(1);
  MTensor *result = nullptr;
  EXPECT_EQ(tensorMathUnary(&result, x.get(), kSqrt, kReal, 0), 5);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(tensorMathBinary(&result, x.get(), x.get(), kPlus, kReal, 0), 5);
  EXPECT_EQ(result, nullptr);
  MTensor *slot = x.get();
  EXPECT_EQ(tensorMathUnary(&slot, x.get(), kSqrt, kComplex, 0), 5);
  EXPECT_EQ(x->type, kReal);
  EXPECT_EQ(valuesOf<mreal>(x), Reals(40000, 4.0));
  EXPECT_TRUE(heap.failed());
  heap.succeed();
  EXPECT_EQ(MTensorMathUnary(&slot, x.get(), kSqrt, kReal), 0);
  EXPECT_EQ(heap.blocksOut(), before);
}

} // namespace
