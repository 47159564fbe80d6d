// Every function of reals stays below the error bound in its row, and the page of errors has the rows'
// bounds.
#include "real_accuracy.h"
#include "support/raised.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

using namespace torvane::test;

namespace {

#if __has_include(<mpfr.h>) && defined(__LP64__)

// The bounds of cos, tan, sec and cot make room for one double.
bool hasRoomForTheHardest(const std::string &name) {
  return name == "cos" || name == "tan" || name == "sec" || name == "cot";
}

TEST(Accuracy, EveryFunctionOfRealsStaysBelowTheBoundInItsRow) {
  for (const Accuracy &row : measureRealFunctions(1500)) {
    std::printf("%-20s bound %-4g Real64 %6.3f at %.17g %.17g, Real32 %5.3f at %.9g %.9g\n", row.name.c_str(),
                row.bound, row.real64.ulps, row.real64.x, row.real64.y, row.real32.ulps, row.real32.x,
                row.real32.y);
    EXPECT_GT(row.points, 3000) << row.name << " has no oracle";
    EXPECT_LE(row.real64.ulps, row.bound) << row.name << " of " << row.real64.x << " " << row.real64.y;
    EXPECT_LE(row.elsewhere.ulps, hasRoomForTheHardest(row.name) ? 2 : row.bound) << row.name;
    EXPECT_GT(row.real32.ulps, 0) << row.name;
    EXPECT_LE(row.real32.beyond, row.bound) << row.name << " of " << row.real32.x << " " << row.real32.y;
  }
}

#endif

// The cells of the page's table, by function.
std::map<std::string, std::vector<std::string>> pageRows() {
  std::ifstream page(TORVANE_DOCUMENTS "/accuracy.md");
  std::map<std::string, std::vector<std::string>> rows;
  for (std::string line; std::getline(page, line);) {
    if (line == "## Complex operators") break; // they have a table of their own
    if (line.rfind("| ", 0) != 0) continue;
    std::vector<std::string> cells;
    std::istringstream parts(line.substr(2));
    for (std::string word, cell; parts >> word;) {
      if (word != "|") {
        cell.append(cell.empty() ? "" : " ").append(word);
      } else {
        cells.push_back(cell);
        cell.clear();
      }
    }
    rows[cells[0]] = cells;
  }
  return rows;
}

TEST(Accuracy, PageHasTheBoundsOfTheRowsAndErrorsBelowThem) {
  const auto page = pageRows();
  const auto hold = [&](const std::string &name, double bound) {
    const auto row = page.find(name);
    ASSERT_NE(row, page.end()) << name << " is not on the page";
    ASSERT_EQ(row->second.size(), 7u) << name;
    EXPECT_EQ(std::stod(row->second[1]), bound) << name;
    EXPECT_LE(std::stod(row->second[3]), bound) << name;
  };
  for (const RealFunction &function : realFunctions()) hold(function.name, function.bound);
  for (const RealPairFunction &function : realPairFunctions())
    hold(std::string("binary ") + function.name, function.bound);
  EXPECT_EQ(page.size(), realFunctions().size() + realPairFunctions().size() + 1); // and the heading
}

} // namespace
