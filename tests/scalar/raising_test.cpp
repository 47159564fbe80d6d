// A typed entry that raises does nothing else: in every style, for every cell and code, with result pointers
// that lead nowhere. (That it leaves good ones alone is held on every call of the walk over the checks.)
//
// Each cell is walked over its samples; the first operands that bring a code about, in either form, are then
// raised with in all three styles.
#include "typed_call.h"

#include "scalar/operator_traits.h"

#include <csetjmp>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <torvane/exception.hpp>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

enum Style : mint { kThrow = 0, kPending = 1, kJump = 2 };

// Each with the style set; what is pending stays as it was in the styles that do not write it.
template <class Call> mint thrownBy(const Call &call) {
  setExceptionStyle(kThrow);
  mint code = 0;
  try {
    call();
  } catch (const TorvaneRuntimeException &raised) {
    code = raised.code;
  }
  setExceptionStyle(kPending);
  return code;
}

template <class Call> mint jumpedBy(const Call &call) {
  setExceptionStyle(kJump);
  const mint code = _setjmp(static_cast<__jmp_buf_tag *>(SetJumpStack_Push()));
  if (code == 0) call();
  SetJumpStack_Pop();
  setExceptionStyle(kPending);
  return code;
}

template <class R, class... A, class... T> void expectRaised(mint code, R (*entry)(A...), T... x) {
  const auto nowhere = [&] { return callInto<R>(nullptr, entry, x...); };
  R value{};
  ASSERT_EQ(codeBesidePending([&] { value = nowhere(); }), code);
  if constexpr (std::is_pointer_v<R>) ASSERT_EQ(value, nullptr);
  const mint outer = getExceptionActive();
  ASSERT_EQ(thrownBy(nowhere), code);
  ASSERT_EQ(jumpedBy(nowhere), code);
  ASSERT_EQ(getExceptionActive(), outer);
}

// The codes that one form of one cell has been raised with.
struct Met {
  const char *name;
  std::set<mint> codes = {};
};

template <class Entry, class... T> void meet(Met &met, Entry *entry, T... x) {
  const mint code = call(entry, x...).code;
  if (code == 0 || !met.codes.insert(code).second) return;
  ASSERT_NO_FATAL_FAILURE(expectRaised(code, entry, x...)) << met.name;
}

// A cell without a meaning looks at no operand: the same code for all of them, and no other.
template <class Op, class... T> void expectUndefined(const Met &met) {
  const bool isMet = met.codes == std::set<mint>{TORVANE_ERROR_UNDEFINED_FOR_TYPE};
  EXPECT_EQ(isMet, (!isDefined<Op, T...>)) << met.name;
}

template <class T> bool isTrap(const std::string &name, T x, T y) {
  return isSigned<T> && x == kReserved<T> && y == static_cast<T>(-1) &&
         (name.find("_mod_") != name.npos || name.find("_quotient_") != name.npos);
}

template <class Op, class T, class Entry> void raiseUnary(const char *name, Entry *entry) {
  Met met = {name};
  for (const T x : samples<T>()) ASSERT_NO_FATAL_FAILURE(meet(met, entry, x)) << name;
  expectUndefined<Op, T>(met);
}

template <class Op, class X, class Y, class Entry> void raiseBinary(const char *name, Entry *entry) {
  Met met = {name};
  size_t turn = 0;
  for (const X x : samples<X>())
    for (const Y y : secondSamples<Y>(++turn)) {
      if constexpr (isSame<X, Y> && isInteger<X>)
        if (isTrap(name, x, y)) continue;
      ASSERT_NO_FATAL_FAILURE(meet(met, entry, x, y)) << name;
    }
  expectUndefined<Op, X, Y>(met);
}

template <class Op, class T, class Entry> void raiseTernary(const char *name, Entry *entry) {
  Met met = {name};
  const std::vector<T> all = samples<T>();
  for (size_t k = 0; k < 4000; ++k) {
    const T a = all[k % all.size()], x = all[k * 7 / 3 % all.size()], y = all[k * 11 / 5 % all.size()];
    ASSERT_NO_FATAL_FAILURE(meet(met, entry, a, x, y)) << name;
  }
  expectUndefined<Op, T, T, T>(met);
}

TEST(Raising, OfUnaryEntriesStoresNothingInAnyStyle) {
#define ONE(T, typed)                                                                                        \
  raiseUnary<unary::typed, T>("unary_" #typed "_" #T, unary_##typed##_##T);                                  \
  raiseUnary<unary::typed, T>("checked_unary_" #typed "_" #T, checked_unary_##typed##_##T);
#define TORVANE_UNARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfBinaryEntriesStoresNothingInAnyStyle) {
#define ONE(T, typed)                                                                                        \
  raiseBinary<binary::typed, T, T>("binary_" #typed "_" #T, binary_##typed##_##T##_##T);                     \
  raiseBinary<binary::typed, T, T>("checked_binary_" #typed "_" #T, checked_binary_##typed##_##T##_##T);
#define TORVANE_BINARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfPowersOfTwoTypesStoresNothingInAnyStyle) {
#define PAIR(X, Y)                                                                                           \
  raiseBinary<binary::pow, X, Y>("binary_pow_" #X "_" #Y, binary_pow_##X##_##Y);                             \
  raiseBinary<binary::pow, X, Y>("checked_binary_pow_" #X "_" #Y, checked_binary_pow_##X##_##Y);
#define ROW(X) TORVANE_FOR_EACH_SECOND_SCALAR(PAIR, X)
  TORVANE_FOR_EACH_SCALAR(ROW)
#undef ROW
#undef PAIR
}

TEST(Raising, OfTernaryEntriesStoresNothingInAnyStyle) {
#define ONE(T, typed)                                                                                        \
  raiseTernary<ternary::typed, T>("ternary_" #typed "_" #T, ternary_##typed##_##T##_##T##_##T);              \
  raiseTernary<ternary::typed, T>("checked_ternary_" #typed "_" #T,                                          \
                                  checked_ternary_##typed##_##T##_##T##_##T);
#define TORVANE_TERNARY(family, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfCastsIsTheSameInEveryStyle) {
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, integer_safe_cast_Integer32_Integer8, Integer32{-128});
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, integer_safe_cast_Integer64_UnsignedInteger64, Integer64{-1});
}

} // namespace
