// Which operator checks what: every cell of the table, for all thirteen types, both forms, over samples that
// reach the edges of each type.
//
// Of every call: the plain form raises only what both forms raise; the checked form raises what the plain one
// does, else what the cell adds for the value; without a code both forms agree to the bit. Of every cell:
// each of its codes is met, and so is success.
#include "scalar/half.h"
#include "scalar/operator_traits.h"
#include "support/raised.h"

#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <torvane/scalars.h>
#include <tuple>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- samples --------------------------------------------------------------------------------------

template <class R> std::vector<R> realSamples() {
  using Limits = std::numeric_limits<R>;
  std::vector<R> values;
  for (const R x :
       {R(0), R(0.3), R(0.5), R(1), R(1.5), R(2), R(3), R(8), R(100), R(1000), R(3e9), Limits::denorm_min(),
        Limits::min(), Limits::max(), Limits::infinity(), Limits::quiet_NaN()})
    values.insert(values.end(), {x, -x});
  return values;
}

template <class T> std::vector<T> samples() {
  std::vector<T> values;
  if constexpr (isComplex<T>) {
    const std::vector<RealPartOf<T>> parts = realSamples<RealPartOf<T>>();
    for (const auto re : parts)
      for (const auto im : parts) values.push_back({re, im});
  } else if constexpr (isHalf<T>) {
    for (const float x :
         {0.0f, 0.3f, 0.5f, 1.0f, 1.5f, 2.0f, 3.0f, 8.0f, 100.0f, 60000.0f, 1e-7f, HUGE_VALF, NAN})
      values.insert(values.end(), {narrow(x), Real16{static_cast<uint16_t>(narrow(x).bits | 0x8000)}});
  } else if constexpr (isReal<T>) {
    values = realSamples<T>();
  } else {
    using Limits = std::numeric_limits<T>;
    for (const T x :
         {T(0), T(1), T(2), T(3), T(4), T(5), T(7), T(8), T(10), T(16), T(48), T(100), T(127), Limits::max(),
          T(Limits::max() - 1), T(Limits::max() / 2 + 1), T(Limits::max() / 2), T(Limits::max() / 16)})
      values.insert(values.end(), {x, static_cast<T>(0 - x), static_cast<T>(~x)});
    values.push_back(Limits::min());
  }
  return values;
}

// Complex pairs of all samples are too many; a stride through them meets every value.
template <class T> std::vector<T> secondSamples(size_t turn) {
  const std::vector<T> all = samples<T>();
  if (!isComplex<T>) return all;
  std::vector<T> some;
  for (size_t k = turn % 31; k < all.size(); k += 31) some.push_back(all[k]);
  for (const T z : {T{}, all[2], all[10], all.back()}) some.push_back(z);
  return some;
}

// ---- calls ----------------------------------------------------------------------------------------

template <class T> auto partsOf(T x) {
  if constexpr (isComplex<T>)
    return std::tuple(x.re, x.im);
  else if constexpr (isHalf<T>)
    return std::tuple(x.bits);
  else
    return std::tuple(x);
}

struct Called {
  mint code = 0;
  mint valueCode = 0; // 6 or 9 for an infinite or NaN value
  std::array<unsigned char, 16> bytes = {};
};

mint valueCodeOf(double x) { return std::isnan(x) ? 9 : std::isinf(x) ? 6 : 0; }

template <class P> void note(Called &called, const P *parts, size_t count) {
  for (size_t k = 0; k < count; ++k) {
    double value = 0;
    if constexpr (std::is_same_v<P, uint16_t>)
      value = double(widen(Real16{parts[k]}));
    else if constexpr (std::is_floating_point_v<P>)
      value = double(parts[k]);
    if (called.valueCode == 0) called.valueCode = valueCodeOf(value);
  }
  std::memcpy(called.bytes.data(), parts, count * sizeof(P));
}

template <class R, class... A, class... T> Called call(R (*entry)(A...), T... x) {
  const auto arguments = std::tuple_cat(partsOf(x)...);
  Called called;
  if constexpr (std::is_pointer_v<R>) {
    using Part = std::remove_pointer_t<R>;
    Part parts[2] = {};
    constexpr bool isPair = sizeof...(A) == std::tuple_size_v<decltype(arguments)> + 2;
    called.code = raisedBy([&] {
      if constexpr (isPair)
        std::apply(entry, std::tuple_cat(std::tuple(parts, parts + 1), arguments));
      else
        std::apply(entry, std::tuple_cat(std::tuple(parts), arguments));
    });
    note(called, parts, isPair ? 2 : 1);
  } else {
    R value = 0;
    called.code = raisedBy([&] { value = std::apply(entry, arguments); });
    if constexpr (!std::is_same_v<R, uint16_t>) {
      note(called, &value, 1);
    } else {
      std::memcpy(called.bytes.data(), &value, sizeof value);
    }
  }
  return called;
}

// ---- cells ----------------------------------------------------------------------------------------

std::set<mint> codesOfBoth(Checks cell) {
  std::set<mint> codes;
  if (cell & checks::e1) codes.insert(1);
  if (cell & checks::e3) codes.insert(3);
  if (cell & checks::e14) codes.insert(14);
  if (cell & checks::e16) codes.insert(16);
  if (cell & checks::e17) codes.insert(17);
  return codes;
}

class Cell {
public:
  Cell(std::string entryName, Checks cell)
      : name(std::move(entryName)), checks(cell), both(codesOfBoth(cell)) {}

  void meet(const Called &plain, const Called &checked) {
    seen.insert({plain.code, checked.code});
    ASSERT_TRUE(plain.code == 0 || both.count(plain.code)) << name << " plain raises " << plain.code;
    if (plain.code != 0) {
      ASSERT_EQ(checked.code, plain.code) << name;
    } else if (checked.code != 0) {
      const bool overflow = checked.code == 1 && (checks & torvane::checks::c1);
      const bool value =
          (checks & torvane::checks::c69) && (checked.code == plain.valueCode || plain.valueCode == 0);
      ASSERT_TRUE(overflow || value) << name << " checked raises " << checked.code;
    } else {
      ASSERT_TRUE(plain.bytes == checked.bytes || plain.valueCode == 9 || formsDiffer()) << name;
      ASSERT_TRUE((checks & torvane::checks::c69) == 0 || plain.valueCode == 0)
          << name << " passes a bad value";
    }
  }

  // Which of the cell's codes no sample has met.
  std::set<mint> missing() const {
    std::set<mint> codes = both;
    if (checks & torvane::checks::c1) codes.insert(1);
    if (checks & torvane::checks::c69) codes.insert({6, 9});
    if ((checks & torvane::checks::e17) == 0) codes.insert(0);
    for (const auto &[plain, checked] : seen) codes.erase(checked);
    return codes;
  }

  std::string name;

private:
  // The test of a value tells in its checked form what its plain form does not look at.
  bool formsDiffer() const { return name.starts_with("unary_fpexception_"); }

  Checks checks;
  std::set<mint> both;
  std::set<std::pair<mint, mint>> seen;
};

// The most negative integer divided by -1 traps.
template <class T> bool traps(const std::string &typed, T x, T y) {
  if constexpr (isSigned<T>)
    return (typed == "mod" || typed == "quotient") && isReserved(x) && y == T(-1);
  else
    return false;
}

// Codes that a cell lists and no value of the type brings about, with the reason.
bool isOutOfReach(const std::string &name, mint code);

void expectMet(const Cell &cell) {
  for (const mint code : cell.missing())
    EXPECT_TRUE(isOutOfReach(cell.name, code)) << cell.name << " never gives " << code;
}

template <class T, class Entry>
void checkUnary(const char *typed, const char *type, const ClassChecks &cells, Entry *plain, Entry *checked) {
  Cell cell(std::string("unary_") + typed + "_" + type, checksFor<T>(cells));
  for (const T x : samples<T>()) ASSERT_NO_FATAL_FAILURE(cell.meet(call(plain, x), call(checked, x)));
  expectMet(cell);
}

template <class T, class Entry>
void checkBinary(const char *typed, const char *type, const ClassChecks &cells, Entry *plain,
                 Entry *checked) {
  Cell cell(std::string("binary_") + typed + "_" + type, checksFor<T>(cells));
  size_t turn = 0;
  for (const T x : samples<T>())
    for (const T y : secondSamples<T>(++turn))
      if (!traps(typed, x, y)) ASSERT_NO_FATAL_FAILURE(cell.meet(call(plain, x, y), call(checked, x, y)));
  expectMet(cell);
}

template <class T, class Entry>
void checkTernary(const char *typed, const char *type, const ClassChecks &cells, Entry *plain,
                  Entry *checked) {
  Cell cell(std::string("ternary_") + typed + "_" + type, checksFor<T>(cells));
  const std::vector<T> all = samples<T>();
  for (size_t k = 0; k < 40000; ++k) {
    const T a = all[k % all.size()], x = all[k * 7 / 3 % all.size()], y = all[k * 11 / 5 % all.size()];
    ASSERT_NO_FATAL_FAILURE(cell.meet(call(plain, a, x, y), call(checked, a, x, y)));
  }
  expectMet(cell);
}

#define ENTRIES(name) name, checked_##name

TEST(Checks, OfEveryUnaryCellAreMetAndNoOthers) {
  size_t next = 0;
#define ONE(T, typed) checkUnary<T>(#typed, #T, row.checks, ENTRIES(unary_##typed##_##T));
#define TORVANE_UNARY(family, number, typed, ...)                                                            \
  {                                                                                                          \
    const UnaryRow &row = table::kUnary[next++];                                                             \
    TORVANE_FOR_EACH_SCALAR(ONE, typed)                                                                      \
  }
#include "scalar/operators.def"
#undef ONE
}

TEST(Checks, OfEveryBinaryCellAreMetAndNoOthers) {
  size_t next = 0;
#define ONE(T, typed) checkBinary<T>(#typed, #T, row.checks, ENTRIES(binary_##typed##_##T##_##T));
#define TORVANE_BINARY(family, number, typed, ...)                                                           \
  {                                                                                                          \
    const BinaryRow &row = table::kBinary[next++];                                                           \
    TORVANE_FOR_EACH_SCALAR(ONE, typed)                                                                      \
  }
#include "scalar/operators.def"
#undef ONE
}

TEST(Checks, OfEveryTernaryCellAreMetAndNoOthers) {
  size_t next = 0;
#define ONE(T, typed) checkTernary<T>(#typed, #T, row.checks, ENTRIES(ternary_##typed##_##T##_##T##_##T));
#define TORVANE_TERNARY(family, typed, ...)                                                                  \
  {                                                                                                          \
    const TernaryRow &row = table::kTernary[next++];                                                         \
    TORVANE_FOR_EACH_SCALAR(ONE, typed)                                                                      \
  }
#include "scalar/operators.def"
#undef ONE
}

// One row of the table of checks stands for a group of functions. Not each of them has a point outside its
// domain, divides by what can be exactly zero, or can leave a bounded range; the codes that a function cannot
// bring about are listed, so that every other one must be met.
struct OutOfReach {
  const char *typeClass;
  mint code;
  std::set<std::string> names;
};

const std::vector<OutOfReach> kOutOfReach = {
    // No point of the plane is refused: every root, arc and area function but those with poles is entire
    // there.
    {"_ComplexReal",
     14,
     {"unary_sqrt", "unary_acos", "unary_acosh", "unary_acsc", "unary_acsch", "unary_asec", "unary_asech",
      "unary_asin", "unary_asinh", "unary_gudermannian", "unary_inversegudermannian",
      "unary_inversehaversine"}},
    // Nothing is divided by, or nothing that a representable number makes exactly zero.
    {"_ComplexReal",
     16,
     {"unary_sqrt",
      "unary_acos",
      "unary_acosh",
      "unary_asin",
      "unary_asinh",
      "unary_atan",
      "unary_atanh",
      "unary_fibonacci",
      "unary_lucasl",
      "unary_gudermannian",
      "unary_inversegudermannian",
      "unary_inversehaversine",
      "unary_log",
      "unary_log1p",
      "unary_logistic",
      "unary_rsqrt",
      "unary_sec",
      "unary_sech",
      "unary_sinc",
      "binary_pow",
      "binary_mod"}},
    // The poles are no representable numbers, or are refused before a value is made.
    {"_ComplexReal",
     6,
     {"unary_acot", "unary_acoth", "unary_atan", "unary_atanh", "unary_gudermannian",
      "unary_inversegudermannian", "unary_logistic", "unary_rsqrt", "unary_sec", "unary_sech", "unary_tan",
      "unary_tanh", "binary_atan2", "binary_mod"}},
    // Bounded, or with poles that are no representable numbers.
    {"_Real",
     6,
     {"unary_acos", "unary_acot", "unary_acsc", "unary_asec", "unary_asech", "unary_asin", "unary_atan",
      "unary_gudermannian", "unary_haversine", "unary_inversegudermannian", "unary_inversehaversine",
      "unary_logistic", "unary_sec", "unary_sech", "unary_sinc", "unary_tan", "unary_tanh"}},
};

bool isOutOfReach(const std::string &name, mint code) {
  for (const OutOfReach &group : kOutOfReach) {
    const size_t type = name.find(group.typeClass);
    if (type != std::string::npos && group.code == code && group.names.count(name.substr(0, type)) != 0)
      return true;
  }
  return false;
}

} // namespace
