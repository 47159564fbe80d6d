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
#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, operands, result, i, u, r, c, ...)        \
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

template <TypedResult rule, class T> struct TypedResultOf {
  static constexpr bool isWord = rule == TypedResult::word ||
                                 (rule == TypedResult::wordOfReal && isReal<T>) ||
                                 (rule == TypedResult::wordUnlessComplex && !isComplex<T>);
  using Type = ChooseOf<isWord, mint, ChooseOf<rule == TypedResult::realPart, RealPartOf<T>, T>>;
};

// The type of a power: the base's for an integer exponent, else of the wider floating operand's width, and
// complex if either operand is.
template <class X, class Y> struct PowerType {
  using WiderPart = ChooseOf<!isInteger<X> && (sizeof(RealPartOf<X>) > sizeof(RealPartOf<Y>)), RealPartOf<X>,
                             RealPartOf<Y>>;
  using Type =
      ChooseOf<isInteger<Y>, X, ChooseOf<isComplex<X> || isComplex<Y>, Complex<WiderPart>, WiderPart>>;
};

template <TypedResult rule, class... T> struct OperatorResult;
template <TypedResult rule, class T, class... Rest> struct OperatorResult<rule, T, Rest...> {
  using Type = typename TypedResultOf<rule, T>::Type;
};
template <class X, class Y> struct OperatorResult<TypedResult::power, X, Y> {
  using Type = typename PowerType<X, Y>::Type;
};
template <class Op, class... T> using ResultOf = typename OperatorResult<RowOf<Op>::result, T...>::Type;

// The type whose class picks the row's cell: the first operand's, and a power's own.
template <class Op, class T, class... Rest> struct CellType {
  using Type = ChooseOf<RowOf<Op>::result == TypedResult::power, ResultOf<Op, T, Rest...>, T>;
};
template <class Op, class... T> using CellTypeOf = typename CellType<Op, T...>::Type;

template <class Op, class... T>
inline constexpr Checks kChecks = checksFor<CellTypeOf<Op, T...>>(RowOf<Op>::checks);
template <class Op, class... T> inline constexpr bool isDefined = (kChecks<Op, T...> & checks::e17) == 0;

} // namespace torvane
