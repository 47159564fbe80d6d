// The catalogue written out a second time, by hand: which operator tests what for which class of types, and
// what type each entry yields. The other tests walk the rows and so cannot see a wrong one.
#include "typed_call.h"

#include "scalar/operator_traits.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- checks -------------------------------------------------------------------------------------

// A bare number is raised by both forms, c1 and c69 by the checked one.
struct Line {
  const char *operators;
  const char *signedInteger, *unsignedInteger, *real, *complex;
};

const Line kUnaryLines[] = {
    {"square abssquare", "c1", "c1", "c69", "c69"},
    {"minus", "c1", "", "", ""},
    {"abs", "c1", "", "c69", "c69"},
    {"bit_not", "c1", "", "17", "17"},
    {"recip csc sec cot csch sech coth sinc logistic", "17", "17", "c69", "16 c69"},
    {"sqrt rsqrt log log1p acos asin acosh atanh asec acsc acoth asech inversehaversine inversegudermannian",
     "17", "17", "14 c69", "14 16 c69"},
    {"loggamma", "17", "17", "14 c69", "17"},
    {"log2 log10", "14 3", "14 3", "14", "14 c69"},
    {"exp expm1 sinh cosh tan tanh haversine", "17", "17", "c69", "c69"},
    {"atan asinh acot acsch gudermannian", "17", "17", "c69", "14 16 c69"},
    {"sin cos", "17", "17", "", "c69"},
    {"erf erfc cbrt", "17", "17", "", "17"},
    {"gamma", "1", "1", "c69", "17"},
    {"fibonacci lucasl", "1", "1", "c69", "16 c69"},
    {"round floor ceiling intpart", "", "", "1", "17"},
    {"arg", "14", "", "14", ""},
    {"pos neg nneg npos ramp", "", "", "", "17"},
    {"evenq oddq bit_count bit_length", "", "", "17", "17"},
    {"conj copy zero one fracpart mod1 re im sign unitize fpexception", "", "", "", ""},
};

const Line kBinaryLines[] = {
    {"plus subtract times", "c1", "c1", "c69", "c69"},
    {"maxabs", "c1", "", "c69", "c69"},
    {"abserr", "c1", "c1", "c69", "c69"},
    {"bit_and bit_or bit_xor", "c1", "", "17", "17"},
    {"max min", "c1", "", "", "17"},
    {"divide relerr", "17", "17", "c69", "16 c69"},
    {"mod", "14", "14", "14", "14 16 c69 1"}, // 1 is a quotient beyond mint
    {"quotient", "14", "14", "1", "17"},
    {"pow", "14 c1", "14 c1", "14 c69", "14 16 c69"},
    {"intexp intlen", "14 c1", "14", "17", "17"},
    {"bit_shiftleft bit_shiftright", "14 c1", "17", "17", "17"},
    {"atan2", "17", "17", "14", "14 16 c69"},
    {"log", "17", "17", "14 c69", "14 16 c69"},
    {"chop", "17", "17", "14 c69", "17"},
    {"unitize", "14 c1", "14", "14 c69", "17"},
    {"root", "17", "17", "17", "17"},
    {"fpexception", "", "", "c69", "c69"}, // of the operands
};

const Line kTernaryLines[] = {
    {"axpy axmy ymax", "c1", "c1", "c69", "c69"},
    {"adxmy", "17", "17", "c69", "16 c69"},
};

Checks checksOf(const char *words) {
  const std::map<std::string, Checks> all = {{"c1", checks::c1}, {"c69", checks::c69}, {"1", checks::e1},
                                             {"3", checks::e3},  {"14", checks::e14},  {"16", checks::e16},
                                             {"17", checks::e17}};
  std::istringstream text(words);
  Checks cell = checks::none;
  for (std::string word; text >> word;) cell |= all.at(word);
  return cell;
}

template <class Row, size_t rows, size_t lines>
void expectLines(const Row (&table)[rows], const Line (&written)[lines]) {
  std::map<std::string, ClassChecks> expected;
  for (const Line &line : written) {
    std::istringstream names(line.operators);
    for (std::string name; names >> name;)
      EXPECT_TRUE(expected
                      .emplace(name, ClassChecks{checksOf(line.signedInteger), checksOf(line.unsignedInteger),
                                                 checksOf(line.real), checksOf(line.complex)})
                      .second)
          << name;
  }
  EXPECT_EQ(expected.size(), rows);
  for (const Row &row : table) {
    ASSERT_EQ(expected.count(row.typed), 1u) << row.typed;
    const ClassChecks &cells = expected[row.typed];
    EXPECT_EQ(row.checks.signedInteger, cells.signedInteger) << row.typed;
    EXPECT_EQ(row.checks.unsignedInteger, cells.unsignedInteger) << row.typed;
    EXPECT_EQ(row.checks.real, cells.real) << row.typed;
    EXPECT_EQ(row.checks.complex, cells.complex) << row.typed;
  }
}

TEST(Catalogue, TestsWhatItsLinesSayOfEveryOperator) {
  expectLines(table::kUnary, kUnaryLines);
  expectLines(table::kBinary, kBinaryLines);
  expectLines(table::kTernary, kTernaryLines);
}

TEST(Catalogue, HasSeventySixTwentyFiveAndFourOperators) {
  EXPECT_EQ(std::size(table::kUnary), 76u);
  EXPECT_EQ(std::size(table::kBinary), 25u);
  EXPECT_EQ(std::size(table::kTernary), 4u);
}

// ---- types --------------------------------------------------------------------------------------

constexpr bool isOneOf(std::string_view list, std::string_view name) {
  for (size_t at = list.find(name); at != list.npos; at = list.find(name, at + 1)) {
    const size_t end = at + name.size();
    if ((at == 0 || list[at - 1] == ' ') && (end == list.size() || list[end] == ' ')) return true;
  }
  return false;
}

// How a value of T travels in, and how it comes back.
template <class T> struct Travels { template <class... Rest> using Entry = T(Rest...); };
template <> struct Travels<Real16> {
  template <class... Rest> using Entry = uint16_t *(uint16_t *, Rest...);
};
template <class R> struct Travels<Complex<R>> {
  template <class... Rest> using Entry = R *(R *, R *, Rest...);
};

template <class Result, class... Parts> auto entryType(std::tuple<Parts...>) {
  return static_cast<typename Travels<Result>::template Entry<Parts...> *>(nullptr);
}
template <class Result, class... T>
using EntryOf = decltype(entryType<Result>(std::tuple_cat(partsOf(T{})...)));

template <class T> using PartOf = typename RealPart<T>::Type;

// What the entries of one type yield, by name.
template <class T, class Given, class... Operands>
constexpr bool yields(std::string_view name, bool isUnary) {
  const auto is = [&]<class Result>(Result *) { return std::is_same_v<Given, EntryOf<Result, Operands...>>; };
  constexpr mint *word = nullptr;
  constexpr T *same = nullptr;
  constexpr PartOf<T> *part = nullptr;
  if (isOneOf("pos neg nneg npos unitize evenq oddq fpexception bit_count bit_length", name)) return is(word);
  if (isUnary && name == "sign") return isComplex<T> ? is(same) : is(word);
  if (isOneOf("abs abssquare arg re im", name)) return is(part);
  if (isOneOf("round floor ceiling intpart quotient", name)) return isReal<T> ? is(word) : is(same);
  return is(same);
}

// Data, since a thousand assertions in one function take the compiler minutes.
struct TypeCell {
  const char *name, *type;
  bool isRight, isSameInBothForms;
};
template <size_t count> void expectTypes(const TypeCell (&cells)[count]) {
  for (const TypeCell &cell : cells) {
    EXPECT_TRUE(cell.isRight) << cell.name << " of " << cell.type;
    EXPECT_TRUE(cell.isSameInBothForms) << cell.name << " of " << cell.type;
  }
}

#define TYPE_CELL(T, typed, entry, isUnary, ...)                                                             \
  {#typed, #T, yields<T, decltype(&entry), __VA_ARGS__>(#typed, isUnary),                                    \
   std::is_same_v<decltype(entry), decltype(checked_##entry)>},

constexpr TypeCell kUnaryTypes[] = {
#define ONE(T, typed) TYPE_CELL(T, typed, unary_##typed##_##T, true, T)
#define TORVANE_UNARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
};

// Powers have a rule of their own.
constexpr TypeCell kBinaryTypes[] = {
#define ONE(T, typed) TYPE_CELL(T, typed, binary_##typed##_##T##_##T, false, T, T)
#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, pairs, ...) ROWS_OF_##pairs(typed)
#define ROWS_OF_diagonal(typed) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#define ROWS_OF_all(typed)
#include "scalar/operators.def"
#undef ONE
#undef ROWS_OF_diagonal
#undef ROWS_OF_all
};

constexpr TypeCell kTernaryTypes[] = {
#define ONE(T, typed) TYPE_CELL(T, typed, ternary_##typed##_##T##_##T##_##T, false, T, T, T)
#define TORVANE_TERNARY(family, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
};

TEST(Catalogue, EntriesYieldTheTypesOfTheirLines) {
  EXPECT_EQ(std::size(kUnaryTypes) + std::size(kBinaryTypes) + std::size(kTernaryTypes), (76 + 24 + 4) * 13u);
  expectTypes(kUnaryTypes);
  expectTypes(kBinaryTypes);
  expectTypes(kTernaryTypes);
}

// ---- types of powers ----------------------------------------------------------------------------

// Real16, Real32, Real64 count 1, 2, 3 as a width, the complexes 2, 3, integers none.
template <class T> constexpr int floatWidth() {
  return isHalf<T> ? 1 : isInteger<T> ? 0 : sizeof(PartOf<T>) == 4 ? 2 : 3;
}
template <class X, class Y, class Entry> constexpr bool isPower() {
  const auto is = [&]<class Result>(Result *) {
    return std::is_same_v<Entry, std::remove_pointer_t<EntryOf<Result, X, Y>>>;
  };
  if (floatWidth<Y>() == 0) return is(static_cast<X *>(nullptr));
  const int width = std::max(floatWidth<X>(), floatWidth<Y>());
  if (isComplex<X> || isComplex<Y>)
    return width == 3 ? is(static_cast<ComplexReal64 *>(nullptr)) : is(static_cast<ComplexReal32 *>(nullptr));
  return width == 1   ? is(static_cast<Real16 *>(nullptr))
         : width == 2 ? is(static_cast<Real32 *>(nullptr))
                      : is(static_cast<Real64 *>(nullptr));
}

constexpr TypeCell kPowerTypes[] = {
#define PAIR(X, Y)                                                                                           \
  {#X, #Y, isPower<X, Y, decltype(binary_pow_##X##_##Y)>(),                                                  \
   std::is_same_v<decltype(binary_pow_##X##_##Y), decltype(checked_binary_pow_##X##_##Y)>},
#define ROW(X) TORVANE_FOR_EACH_SECOND_SCALAR(PAIR, X)
    TORVANE_FOR_EACH_SCALAR(ROW)
#undef ROW
#undef PAIR
};

TEST(Catalogue, PowersOfTwoTypesAreOfTheWiderFloatingOneAndComplexIfEitherIs) {
  EXPECT_EQ(std::size(kPowerTypes), 169u);
  expectTypes(kPowerTypes);
}

} // namespace
