// What the compiler needs of a row: the functor's checks and the result type of its typed entries.
#pragma once

#include "operator_table.h"
#include "scalar_types.h"

namespace torvane {

// The functors that bodies/<family>.h define, one per row and arity.
#define TORVANE_UNARY(family, number, typed, ...) struct typed;
namespace unary {
#include "operators.def"
}
#define TORVANE_BINARY(family, number, typed, ...) struct typed;
namespace binary {
#include "operators.def"
}
#define TORVANE_TERNARY(family, typed, ...) struct typed;
namespace ternary {
#include "operators.def"
}

template <class Op> struct RowOf;
namespace checks {
#define TORVANE_ROW(functor, typedResult, i, u, r, c)                                                        \
  template <> struct RowOf<functor> {                                                                        \
    static constexpr ClassChecks checks = {i, u, r, c};                                                      \
    static constexpr TypedResult result = TypedResult::typedResult;                                          \
  };
} // namespace checks
using namespace checks;
#define TORVANE_UNARY(family, number, typed, vector, kinds, group, range, result, i, u, r, c, ...)           \
  TORVANE_ROW(unary::typed, result, i, u, r, c)
#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, pairs, result, i, u, r, c, ...)           \
  TORVANE_ROW(binary::typed, result, i, u, r, c)
#define TORVANE_TERNARY(family, typed, kinds, result, i, u, r, c, ...)                                       \
  TORVANE_ROW(ternary::typed, result, i, u, r, c)
#include "operators.def"
#undef TORVANE_ROW

template <class T> constexpr Checks checksFor(const ClassChecks &all) {
  switch (kClass<T>) {
  case TypeClass::signedInteger:
    return all.signedInteger;
  case TypeClass::unsignedInteger:
    return all.unsignedInteger;
  case TypeClass::real:
    return all.real;
  case TypeClass::complex:
    break;
  }
  return all.complex;
}

// Checks of operator Op on operand type T, the first operand's where there are several.
template <class Op, class T> inline constexpr Checks kChecks = checksFor<T>(RowOf<Op>::checks);
template <class Op, class T> inline constexpr bool isDefined = (kChecks<Op, T> & checks::e17) == 0;

template <TypedResult rule, class T> struct TypedResultOf {
  static constexpr bool isWord = rule == TypedResult::word ||
                                 (rule == TypedResult::wordOfReal && isReal<T>) ||
                                 (rule == TypedResult::wordUnlessComplex && !isComplex<T>);
  using Type = ChooseOf<isWord, mint, ChooseOf<rule == TypedResult::realPart, RealPartOf<T>, T>>;
};
template <class Op, class T> using ResultOf = typename TypedResultOf<RowOf<Op>::result, T>::Type;

} // namespace torvane
