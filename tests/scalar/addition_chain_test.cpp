// The power tree: right exponents, and chains no longer than the shortest there are.
#include "scalar/addition_chain.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

using namespace torvane;

namespace {

struct Counted {
  uint64_t exponent;
};

// Lengths of shortest addition chains by exhaustive deepening over star chains, which suffice below 12509.
bool reaches(std::vector<unsigned> &chain, unsigned n, unsigned left) {
  if (chain.back() == n) return true;
  if (left == 0 || chain.back() << left < n) return false;
  for (size_t k = chain.size(); k-- > 0;) {
    chain.push_back(chain.back() + chain[k]);
    const bool found = chain.back() <= n && reaches(chain, n, left - 1);
    chain.pop_back();
    if (found) return true;
  }
  return false;
}
unsigned shortestChain(unsigned n) {
  for (unsigned length = 0;; ++length) {
    std::vector<unsigned> chain = {1};
    if (reaches(chain, n, length)) return length;
  }
}

TEST(AdditionChain, GivesTheExponentAskedFor) {
  const auto add = [](Counted a, Counted b) { return Counted{a.exponent + b.exponent}; };
  for (uint64_t n = 1; n < 5000; ++n) ASSERT_EQ(powerByChain(Counted{1}, n, add).exponent, n);
  for (const uint64_t n : {uint64_t{1} << 63, UINT64_MAX, uint64_t{1} << 32, uint64_t{0x123456789ABCDEF}})
    EXPECT_EQ(powerByChain(Counted{1}, n, add).exponent, n);
}

TEST(AdditionChain, TakesTheFewestProductsUpToSixtyFour) {
  for (unsigned n = 1; n <= kLongestChain; ++n) {
    unsigned products = 0;
    powerByChain(Counted{1}, n, [&](Counted a, Counted b) {
      ++products;
      return Counted{a.exponent + b.exponent};
    });
    EXPECT_EQ(products, shortestChain(n)) << n;
    EXPECT_LE(products, 8u);
  }
}

} // namespace
