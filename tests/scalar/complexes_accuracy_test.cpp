// Every complex operator stays below the error bound in its row, and the page of errors has the rows' bounds.
#include "complex_accuracy.h"
#include "scalar/complexes/power.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>

#if __has_include(<mpc.h>) && defined(__LP64__)
#include <mpc.h>
#endif

using namespace torvane;
using namespace torvane::test;

namespace {

#if __has_include(<mpc.h>) && defined(__LP64__)

const std::vector<ComplexAccuracy> &measured() {
  static const std::vector<ComplexAccuracy> all = measureComplexOperators(200);
  return all;
}

TEST(ComplexAccuracy, EveryOperatorStaysBelowTheBoundInItsRow) {
  for (const ComplexAccuracy &row : measured()) {
    std::printf(
        "%-20s bound %-4g ComplexReal64 %6.3f at (%.17g, %.17g), ComplexReal32 %6.3f at (%.9g, %.9g)\n",
        row.name.c_str(), row.bound, row.wide.cleared, row.wide.x.real(), row.wide.x.imag(),
        row.narrow.cleared, row.narrow.x.real(), row.narrow.x.imag());
    EXPECT_GT(row.points, 1000) << row.name;
    EXPECT_LE(row.wide.cleared, row.bound) << row.name << row.wide.x << row.wide.y;
    EXPECT_LE(row.narrow.cleared, row.bound) << row.name << row.narrow.x << row.narrow.y;
  }
}

template <class TableRow, size_t n> void expectOracles(const TableRow (&rows)[n], bool isPair) {
  for (const TableRow &row : rows) {
    if (row.accuracy.complex == 0 || (row.checks.complex & checks::e17) != 0) continue;
    bool isMeasured = false;
    for (const ComplexAccuracy &one : measured())
      isMeasured = isMeasured || (one.isPair == isPair && one.name == row.typed);
    EXPECT_TRUE(isMeasured) << row.typed << " has a bound and no oracle";
  }
}

TEST(ComplexAccuracy, EveryRowWithABoundIsMeasured) {
  expectOracles(table::kUnary, false);
  expectOracles(table::kBinary, true);
}

// A circle's point, turned away from 0, so that no power leaves binary32.
template <class R> Complex<R> besideOne(std::mt19937_64 &random) {
  std::uniform_real_distribution<double> angle(0, 2 * M_PI), exponent(-11, -1);
  const double radius = std::exp2(exponent(random)), turn = angle(random);
  const double centre = (random() & 1) != 0 ? 1 : -1;
  return {R(centre + radius * std::cos(turn)), R(radius * std::sin(turn))};
}

// The distance to z^n in ulp of its modulus.
template <class R> double powerError(Complex<R> z, int n) {
  error code = error::none;
  const Complex<R> got = complexes::pow(code, z, n);
  mpc_t exact, difference;
  mpfr_t distance, modulus;
  mpc_init2(exact, 200);
  mpc_init2(difference, 200);
  mpfr_inits2(200, distance, modulus, static_cast<mpfr_ptr>(nullptr));
  mpc_set_d_d(exact, double(z.re), double(z.im), MPC_RNDNN);
  mpc_pow_si(exact, exact, n, MPC_RNDNN);
  mpc_set_d_d(difference, double(got.re), double(got.im), MPC_RNDNN);
  mpc_sub(difference, difference, exact, MPC_RNDNN);
  mpc_abs(distance, difference, MPFR_RNDN);
  mpc_abs(modulus, exact, MPFR_RNDN);
  mpfr_div(distance, distance, modulus, MPFR_RNDN);
  const double ulps = std::ldexp(mpfr_get_d(distance, MPFR_RNDU), std::numeric_limits<R>::digits - 1);
  mpfr_clears(distance, modulus, static_cast<mpfr_ptr>(nullptr));
  mpc_clear(difference);
  mpc_clear(exact);
  return code == error::none ? ulps : HUGE_VAL;
}

// Each of the |n| - 1 products that a power stands for adds its rounding.
template <class R> void expectPowers() {
  std::mt19937_64 random(70);
  double worst = 0;
  for (int k = 0; k < 4000; ++k) {
    const int n = k % 201 - 100;
    const Complex<R> z = besideOne<R>(random);
    if (std::abs(n * std::log(std::hypot(double(z.re), double(z.im)))) > 80) continue;
    worst = std::max(worst, powerError(z, n) / (1 + std::abs(n)));
  }
  std::printf("worst %.3f ulp a factor\n", worst);
  EXPECT_LE(worst, 1);
}

TEST(ComplexAccuracy, IntegerPowersLoseAtMostOneUlpAFactor) {
  expectPowers<double>();
  expectPowers<float>();
}

#endif

// The cells of the page's second table, by operator.
std::map<std::string, std::vector<std::string>> pageRows() {
  std::ifstream page(TORVANE_DOCUMENTS "/accuracy.md");
  std::map<std::string, std::vector<std::string>> rows;
  bool isComplex = false;
  for (std::string line; std::getline(page, line);) {
    isComplex = isComplex || line == "## Complex operators";
    if (!isComplex || line.rfind("| ", 0) != 0) continue;
    std::vector<std::string> cells;
    for (size_t from = 2, to; (to = line.find(" |", from)) != std::string::npos; from = to + 3)
      cells.push_back(line.substr(from, to - from));
    rows[cells[0]] = cells;
  }
  return rows;
}

template <class TableRow, size_t n>
size_t expectPageRows(const TableRow (&rows)[n], const std::string &prefix) {
  const auto page = pageRows();
  size_t expected = 0;
  for (const TableRow &row : rows) {
    if (row.accuracy.complex == 0 || (row.checks.complex & checks::e17) != 0) continue;
    const auto found = page.find(prefix + row.typed);
    EXPECT_NE(found, page.end()) << row.typed << " is not on the page";
    if (found == page.end()) continue;
    EXPECT_EQ(found->second.size(), 9u) << row.typed;
    EXPECT_EQ(std::stod(found->second[1]), row.accuracy.complex) << row.typed;
    EXPECT_LE(std::stod(found->second[3]), row.accuracy.complex) << row.typed;
    EXPECT_LE(std::stod(found->second[6]), row.accuracy.complex) << row.typed;
    ++expected;
  }
  return expected;
}

TEST(ComplexAccuracy, PageHasTheBoundsOfTheRowsAndErrorsBelowThem) {
  const size_t expected = expectPageRows(table::kUnary, "") + expectPageRows(table::kBinary, "binary ");
  EXPECT_EQ(pageRows().size(), expected + 1); // and the heading
}

} // namespace
