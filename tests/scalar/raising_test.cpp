// A typed entry that raises does nothing else: in every style, for every cell and code, with result pointers
// that lead nowhere. (That it leaves good ones alone is held on every call of the walk over the checks.)
//
// Each cell is walked over its samples; the first operands that bring a code about, in either form, are then
// raised with in all three styles.
#include "typed_cells.h"

#include <csetjmp>
#include <gtest/gtest.h>
#include <set>
#include <torvane/exception.hpp>
#include <torvane/failure.h>
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

void expectRaised(mint code, const std::function<const void *()> &call, const char *name) {
  const void *returned = name;
  ASSERT_EQ(codeBesidePending([&] { returned = call(); }), code) << name;
  ASSERT_EQ(returned, nullptr) << name; // the first pointer
  const mint outer = getExceptionActive();
  ASSERT_EQ(thrownBy(call), code) << name;
  ASSERT_EQ(jumpedBy(call), code) << name;
  ASSERT_EQ(getExceptionActive(), outer) << name;
}

// Raises once with each code that the entry brings about: these codes.
std::set<mint> raiseEach(const TypedCell &cell, const TypedEntry &entry) {
  std::set<mint> codes;
  forEachSample(cell, [&](const Operands &operands) {
    const mint code = call(entry, operands).code;
    if (code != 0 && codes.insert(code).second)
      expectRaised(
          code, [&] { return callWithoutPlaces(entry, operands); }, entry.name);
  });
  return codes;
}

// A cell without a meaning looks at no operand: the same code for all of them, and no other.
void raiseAll(std::span<const TypedCell> cells) {
  for (const TypedCell &cell : cells)
    for (const TypedEntry &entry : {cell.plain, cell.checked})
      EXPECT_EQ(raiseEach(cell, entry) == std::set<mint>{TORVANE_ERROR_UNDEFINED_FOR_TYPE},
                (cell.checks & checks::e17) != 0)
          << entry.name;
}

TEST(Raising, OfUnaryEntriesStoresNothingInAnyStyle) { raiseAll(unaryCells()); }
TEST(Raising, OfBinaryEntriesStoresNothingInAnyStyle) { raiseAll(binaryCells()); }
TEST(Raising, OfPowersOfTwoTypesStoresNothingInAnyStyle) { raiseAll(powerCells()); }
TEST(Raising, OfTernaryEntriesStoresNothingInAnyStyle) { raiseAll(ternaryCells()); }

TEST(Raising, OfCastsIsTheSameInEveryStyle) {
  const auto narrowing = [] {
    integer_safe_cast_Integer32_Integer8(-128);
    return static_cast<const void *>(nullptr);
  };
  const auto losingTheSign = [] {
    integer_safe_cast_Integer64_UnsignedInteger64(-1);
    return static_cast<const void *>(nullptr);
  };
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, narrowing, "to a narrower type");
  expectRaised(TORVANE_ERROR_CONVERSION_RANGE, losingTheSign, "to an unsigned type");
}

} // namespace
