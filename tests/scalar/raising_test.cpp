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

// A call with its operands, its results behind null pointers.
struct Call {
  const void *(*run)(const void *operands);
  const void *operands;
};

void expectRaised(mint code, const Call &call, const char *name) {
  const void *returned = name;
  ASSERT_EQ(codeBesidePending([&] { returned = call.run(call.operands); }), code) << name;
  ASSERT_EQ(returned, nullptr) << name; // the first pointer
  const auto again = [&] { call.run(call.operands); };
  const mint outer = getExceptionActive();
  ASSERT_EQ(thrownBy(again), code) << name;
  ASSERT_EQ(jumpedBy(again), code) << name;
  ASSERT_EQ(getExceptionActive(), outer) << name;
}

template <class R, class... A, class... T>
void expectRaised(mint code, const char *name, R (*entry)(A...), T... x) {
  const std::tuple operands(entry, x...);
  const auto run = [](const void *at) -> const void * {
    const auto call = [](auto called, T... y) { return callInto<R>(nullptr, called, y...); };
    const R result = std::apply(call, *static_cast<const std::tuple<R (*)(A...), T...> *>(at));
    if constexpr (std::is_pointer_v<R>) return result;
    return nullptr;
  };
  expectRaised(code, {run, &operands}, name);
}

// The codes that one form of one cell has been raised with.
struct Met {
  const char *name;
  std::set<mint> codes = {};
};

template <class Entry, class... T> [[gnu::noinline]] void meet(Met &met, Entry *entry, T... x) {
  const mint code = call(entry, x...).code;
  if (code != 0 && met.codes.insert(code).second) expectRaised(code, met.name, entry, x...);
}

// A cell without a meaning looks at no operand: the same code for all of them, and no other.
void expectUndefined(const Met &met, bool isUndefined) {
  EXPECT_EQ(met.codes == std::set<mint>{TORVANE_ERROR_UNDEFINED_FOR_TYPE}, isUndefined) << met.name;
}

template <class T> bool isTrap(const std::string &name, T x, T y) {
  return isSigned<T> && x == kReserved<T> && y == static_cast<T>(-1) &&
         (name.find("_mod_") != name.npos || name.find("_quotient_") != name.npos);
}

template <class T, class Entry> [[gnu::noinline]] void raiseUnary(const char *name, bool isUndefined, Entry *entry) {
  Met met = {name};
  for (const T x : samples<T>()) meet(met, entry, x);
  expectUndefined(met, isUndefined);
}

template <class X, class Y, class Entry> [[gnu::noinline]] void raiseBinary(const char *name, bool isUndefined, Entry *entry) {
  Met met = {name};
  size_t turn = 0;
  for (const X x : samples<X>())
    for (const Y y : secondSamples<Y>(++turn)) {
      if constexpr (isSame<X, Y> && isInteger<X>)
        if (isTrap(name, x, y)) continue;
      meet(met, entry, x, y);
    }
  expectUndefined(met, isUndefined);
}

template <class T, class Entry> [[gnu::noinline]] void raiseTernary(const char *name, bool isUndefined, Entry *entry) {
  Met met = {name};
  const std::vector<T> all = samples<T>();
  for (size_t k = 0; k < 4000; ++k) {
    const T a = all[k % all.size()], x = all[k * 7 / 3 % all.size()], y = all[k * 11 / 5 % all.size()];
    meet(met, entry, a, x, y);
  }
  expectUndefined(met, isUndefined);
}

#define BOTH(raise, functor, entry, ...)                                                                     \
  raise(#entry, !isDefined<functor, __VA_ARGS__>, entry);                                                    \
  raise("checked_" #entry, !isDefined<functor, __VA_ARGS__>, checked_##entry);

TEST(Raising, OfUnaryEntriesStoresNothingInAnyStyle){
#define ONE(T, typed) BOTH(raiseUnary<T>, unary::typed, unary_##typed##_##T, T)
#define TORVANE_UNARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfBinaryEntriesStoresNothingInAnyStyle){
#define ONE(T, typed) BOTH(RAISE_PAIR(T, T), binary::typed, binary_##typed##_##T##_##T, T, T)
#define RAISE_PAIR(X, Y) raiseBinary<X, Y>
#define TORVANE_BINARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfPowersOfTwoTypesStoresNothingInAnyStyle){
#define PAIR(X, Y) BOTH(RAISE_PAIR(X, Y), binary::pow, binary_pow_##X##_##Y, X, Y)
#define ROW(X) TORVANE_FOR_EACH_SECOND_SCALAR(PAIR, X)
    TORVANE_FOR_EACH_SCALAR(ROW)
#undef ROW
#undef PAIR
#undef RAISE_PAIR
}

TEST(Raising, OfTernaryEntriesStoresNothingInAnyStyle){
#define ONE(T, typed) BOTH(raiseTernary<T>, ternary::typed, ternary_##typed##_##T##_##T##_##T, T, T, T)
#define TORVANE_TERNARY(family, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
}

TEST(Raising, OfCastsIsTheSameInEveryStyle) {
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, "to a narrower type", integer_safe_cast_Integer32_Integer8,
               Integer32{-128});
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, "to an unsigned type",
               integer_safe_cast_Integer64_UnsignedInteger64, Integer64{-1});
}

} // namespace
