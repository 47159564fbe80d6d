// The whole matrix of typed entries: an entry raises code 17 if, and only if, its row says that the operator
// has no meaning for the type.
#include "scalar/operator_table.h"
#include "scalar/operator_traits.h"
#include "support/raised.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>
#include <type_traits>

using namespace torvane;
using namespace torvane::test;

namespace {

// An operand that is in the domain of most operators, and room for results behind leading pointers.
template <class A> A operand(double *room) {
  if constexpr (std::is_pointer_v<A>)
    return reinterpret_cast<A>(room);
  else
    return static_cast<A>(1);
}

template <class R, class... A> mint codeOfOnes(R (*entry)(A...)) {
  double room[2];
  return raisedBy([&] { entry(operand<A>(room)...); });
}

template <class T, class Entry>
void expectDefined(const char *name, const ClassChecks &cells, Entry plain, Entry checked) {
  const bool isMissing = (checksFor<T>(cells) & checks::e17) != 0;
  for (const mint code : {codeOfOnes(plain), codeOfOnes(checked)})
    EXPECT_EQ(code == 17, isMissing) << name << ", class " << static_cast<int>(kClass<T>);
}

using namespace torvane::checks;

#define EACH_TYPE(X, op, ...)                                                                                \
  X(op, Integer8, __VA_ARGS__)                                                                               \
  X(op, UnsignedInteger8, __VA_ARGS__)                                                                       \
  X(op, Integer16, __VA_ARGS__)                                                                              \
  X(op, UnsignedInteger16, __VA_ARGS__)                                                                      \
  X(op, Integer32, __VA_ARGS__)                                                                              \
  X(op, UnsignedInteger32, __VA_ARGS__)                                                                      \
  X(op, Integer64, __VA_ARGS__)                                                                              \
  X(op, UnsignedInteger64, __VA_ARGS__)                                                                      \
  X(op, Real16, __VA_ARGS__)                                                                                 \
  X(op, Real32, __VA_ARGS__)                                                                                 \
  X(op, Real64, __VA_ARGS__) X(op, ComplexReal32, __VA_ARGS__) X(op, ComplexReal64, __VA_ARGS__)

TEST(Matrix, UnaryEntriesWithoutAMeaningRaise17AndNoOthersDo) {
#define ENTRY(op, T, ...) expectDefined<T>(#op, {__VA_ARGS__}, unary_##op##_##T, checked_unary_##op##_##T);
#define TORVANE_UNARY(family, number, typed, vector, kinds, group, range, result, i, u, r, c, ...)           \
  EACH_TYPE(ENTRY, typed, i, u, r, c)
#include "scalar/operators.def"
#undef ENTRY
}

TEST(Matrix, BinaryEntriesWithoutAMeaningRaise17AndNoOthersDo) {
#define ENTRY(op, T, ...)                                                                                    \
  expectDefined<T>(#op, {__VA_ARGS__}, binary_##op##_##T##_##T, checked_binary_##op##_##T##_##T);
#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, operands, result, i, u, r, c, ...)        \
  EACH_TYPE(ENTRY, typed, i, u, r, c)
#include "scalar/operators.def"
#undef ENTRY
}

TEST(Matrix, TernaryEntriesWithoutAMeaningRaise17AndNoOthersDo) {
#define ENTRY(op, T, ...)                                                                                    \
  expectDefined<T>(#op, {__VA_ARGS__}, ternary_##op##_##T##_##T##_##T,                                       \
                   checked_ternary_##op##_##T##_##T##_##T);
#define TORVANE_TERNARY(family, typed, kinds, result, i, u, r, c, ...) EACH_TYPE(ENTRY, typed, i, u, r, c)
#include "scalar/operators.def"
#undef ENTRY
}

} // namespace
