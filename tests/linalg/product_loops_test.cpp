// The loops of matrix products at every processor level: bits, bounds of the operands, and where integers
// fail.
#include "dot_models.h"

#include "elementwise/at_levels.h"
#include "linalg/matrix_product.h"
#include "support/failing_heap.h"
#include "support/guarded_pages.h"

#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

class ProductLoops : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(EveryLevel, ProductLoops, testing::Range(mint{0}, levelsToTest()));

template <class T> void multiply(T *result, const T *a, const T *b, mint m, mint k, mint n) {
  if constexpr (std::is_same_v<T, mint>)
    EXPECT_TRUE(integerProduct(result, a, b, m, k, n, 4));
  else
    EXPECT_TRUE(sequentialProduct(result, a, b, m, k, n));
}

// Memory that ends, or begins, where it may not be touched.
template <class T> class Guarded {
public:
  T *fill(const std::vector<T> &values, bool isAtEnd) {
    const size_t bytes = values.size() * sizeof(T);
    void *at = isAtEnd ? pages.atEnd(bytes) : pages.begin();
    memcpy(at, static_cast<const void *>(values.data()), bytes);
    return static_cast<T *>(at);
  }

private:
  GuardedPages pages = GuardedPages(48);
};

template <class T> struct GuardedOperands {
  Guarded<T> a, b, result;

  void expectProduct(mint m, mint k, mint n, Samples &samples) {
    const auto x = samples.list<T>(size_t(m * k)), y = samples.list<T>(size_t(k * n));
    const auto expected = modelProduct(x.data(), y.data(), m, k, n);
    for (const bool isAtEnd : {false, true}) {
      T *to = result.fill(std::vector<T>(size_t(m * n), T{}), isAtEnd);
      multiply(to, a.fill(x, isAtEnd), b.fill(y, isAtEnd), m, k, n);
      ASSERT_EQ(std::vector<T>(to, to + m * n), expected) << m << " " << k << " " << n;
    }
  }
};

template <class T> void expectBitsWithinBounds() {
  Samples samples(21);
  GuardedOperands<T> operands;
  for (mint m = 1; m <= 9; ++m)
    for (mint n = 1; n <= 70; n += n < 36 ? 1 : 7)
      for (const mint k : {1, 2, 5}) {
        operands.expectProduct(m, k, n, samples);
        if (testing::Test::HasFatalFailure()) return;
      }
}

// Several tiles of one shape in a row, down the rows and along the columns.
template <class T> void expectBitsOfManyTiles() {
  Samples samples(24);
  GuardedOperands<T> operands;
  for (const mint m : {1, 3, 8, 11, 12, 13, 14, 15, 18, 20, 29, 61})
    for (const mint n : {1, 3, 4, 5, 8, 9, 12, 16, 17, 18, 20, 21, 31, 97, 104, 133, 200})
      for (const mint k : {1, 3}) {
        operands.expectProduct(m, k, n, samples);
        if (testing::Test::HasFatalFailure()) return;
      }
}

TEST_P(ProductLoops, OfRealsHoldTheirOrderAndTheirBounds) { expectBitsWithinBounds<mreal>(); }
TEST_P(ProductLoops, OfComplexNumbersHoldTheirOrderAndTheirBounds) { expectBitsWithinBounds<mcomplex>(); }
TEST_P(ProductLoops, OfIntegersAreExactWithinTheirBounds) { expectBitsWithinBounds<mint>(); }
TEST_P(ProductLoops, OfManyTilesOfRealsHoldTheirOrderAndTheirBounds) { expectBitsOfManyTiles<mreal>(); }
TEST_P(ProductLoops, OfManyTilesOfComplexNumbersHoldThemToo) { expectBitsOfManyTiles<mcomplex>(); }
TEST_P(ProductLoops, OfManyTilesOfIntegersAreExact) { expectBitsOfManyTiles<mint>(); }

// One infinity in one of many tiles.
TEST_P(ProductLoops, OfManyTilesFindOneInfinityWhereverItStands) {
  const mint m = 30, n = 104;
  const std::vector<mreal> a(m, 1.0), b(n, 1.0);
  std::vector<mreal> result(size_t(m * n));
  EXPECT_TRUE(sequentialProduct(result.data(), a.data(), b.data(), m, 1, n));
  for (mint i = 0; i < m; ++i) {
    std::vector<mreal> other = a;
    other[size_t(i)] = std::numeric_limits<mreal>::infinity();
    EXPECT_FALSE(sequentialProduct(result.data(), other.data(), b.data(), m, 1, n)) << i;
    EXPECT_FALSE(sequentialProduct(result.data(), other.data(), b.data(), m, 1, 3)) << i;
  }
  for (const mint columns : {10, 12, 17, 20, n})
    for (mint j = 0; j < columns; ++j)
      for (const mint rows : {1, 2, 3, 11, m}) {
        std::vector<mreal> other = b;
        other[size_t(j)] = -std::numeric_limits<mreal>::infinity();
        EXPECT_FALSE(sequentialProduct(result.data(), a.data(), other.data(), rows, 1, columns)) << j;
      }
}

// Of two rows that share a vector too, one infinite.
TEST_P(ProductLoops, OfOneInfiniteRowAreNotFinite) {
  for (const mint n : {9, 12, 18, 20})
    for (const mint m : {2, 11, 12, 20, 23})
      for (mint i = 0; i < m; ++i) {
        std::vector<mreal> a(size_t(m), 1.0), b(size_t(n), 0.0), result(size_t(m * n));
        b.back() = 1;
        EXPECT_TRUE(sequentialProduct(result.data(), a.data(), b.data(), m, 1, n));
        a[size_t(i)] = std::numeric_limits<mreal>::infinity();
        EXPECT_FALSE(sequentialProduct(result.data(), a.data(), b.data(), m, 1, n)) << i << " of " << m;
        EXPECT_EQ(result[size_t(i * n + n - 1)], std::numeric_limits<mreal>::infinity());
      }
}

// Their sum is not finite, though each of them is.
TEST_P(ProductLoops, OfLargeFiniteRealsAreNotTakenForInfinities) {
  const std::vector<mreal> a(6, 1), b(12, 1.5e308);
  std::vector<mreal> result(72);
  EXPECT_TRUE(sequentialProduct(result.data(), a.data(), b.data(), 6, 1, 12));
  EXPECT_EQ(result, std::vector<mreal>(72, 1.5e308));
  const std::vector<mcomplex> c(3, {1, 0}), d(5, {-1.5e308, 1.5e308});
  std::vector<mcomplex> products(15);
  EXPECT_TRUE(sequentialProduct(products.data(), c.data(), d.data(), 3, 1, 5));
  EXPECT_EQ(products, std::vector<mcomplex>(15, {-1.5e308, 1.5e308}));
}

TEST_P(ProductLoops, FindOneInfinityAmongFiniteRealsWhereverItStands) {
  GuardedPages pages;
  for (mint count = 0; count <= 100; ++count)
    for (const bool isAtEnd : {false, true}) {
      const size_t bytes = size_t(count) * sizeof(mreal);
      auto *x = static_cast<mreal *>(isAtEnd ? pages.atEnd(bytes) : pages.begin());
      std::fill(x, x + count, 1.7e308);
      ASSERT_TRUE(areFinite(x, count)) << count;
      for (mint at = 0; at < count; ++at) {
        x[at] =
            at % 2 == 0 ? -std::numeric_limits<mreal>::infinity() : std::numeric_limits<mreal>::quiet_NaN();
        ASSERT_FALSE(areFinite(x, count)) << at << " of " << count;
        x[at] = 1.7e308;
      }
    }
}

TEST_P(ProductLoops, OfUncheckedIntegersWrap) {
  Samples samples(22);
  for (int round = 0; round < 400; ++round) {
    const mint m = 1 + samples.below(12), k = 1 + samples.below(40), n = 1 + samples.below(80);
    const auto a = samples.list<mint>(size_t(m * k), 32), b = samples.list<mint>(size_t(k * n), 32);
    std::vector<mint> result(size_t(m * n));
    ASSERT_TRUE(integerProduct(result.data(), a.data(), b.data(), m, k, n, 2));
    ASSERT_EQ(result, modelProduct(a.data(), b.data(), m, k, n));
  }
}

// Element by element in row-major order: what stands before the first that fails, and nothing behind it.
struct Described {
  std::vector<mint> values;
  bool succeeds = true;
};
Described describedProduct(const std::vector<mint> &a, const std::vector<mint> &b, mint m, mint k, mint n,
                           mint old) {
  Described described = {std::vector<mint>(size_t(m * n), old)};
  for (mint e = 0; e < m * n; ++e) {
    std::vector<mint> row, column;
    for (mint p = 0; p < k; ++p) {
      row.push_back(a[size_t(e / n * k + p)]);
      column.push_back(b[size_t(p * n + e % n)]);
    }
    const CheckedSum sum = modelChecked(row, column);
    if (sum.fails) {
      described.succeeds = false;
      return described;
    }
    described.values[size_t(e)] = sum.value;
  }
  return described;
}

void expectDescribed(const std::vector<mint> &a, const std::vector<mint> &b, mint m, mint k, mint n) {
  const Described expected = describedProduct(a, b, m, k, n, 7777);
  std::vector<mint> result(size_t(m * n), 7777);
  ASSERT_EQ(integerProduct(result.data(), a.data(), b.data(), m, k, n, 4), expected.succeeds);
  ASSERT_EQ(result, expected.values) << m << " " << k << " " << n;
}

TEST_P(ProductLoops, OfCheckedIntegersFailAtTheElementThatADotProductFailsAt) {
  Samples samples(23);
  int failures = 0;
  for (int round = 0; round < 3000; ++round) {
    const mint m = 1 + samples.below(9), k = 1 + samples.below(round % 2 == 0 ? 9 : 30),
               n = 1 + samples.below(40);
    const mint bits = 2 + samples.below(30), other = std::max(1, 33 - bits - samples.below(8));
    const auto a = samples.list<mint>(size_t(m * k), bits), b = samples.list<mint>(size_t(k * n), other);
    expectDescribed(a, b, m, k, n);
    if (HasFatalFailure()) return;
    failures += !describedProduct(a, b, m, k, n, 0).succeeds;
  }
  EXPECT_GT(failures, 300);
  EXPECT_LT(failures, 2700);
}

// One factor that fails, among small ones, at each place in turn.
TEST_P(ProductLoops, OfCheckedIntegersFindOneFailureWhereverItStands) {
  const mint m = 5, n = 37;
  for (const mint k : {2, 7, 8, 20})
    for (mint at = 0; at < k * n; at += 3)
      for (const mint bad : {INT32_MIN, INT32_MAX}) {
        std::vector<mint> a(size_t(m * k), 1), b(size_t(k * n), 1);
        b[size_t(at)] = bad;
        expectDescribed(a, b, m, k, n);
        for (mint p = 0; p < k; ++p) a[size_t(p)] = 0; // the first row is safe
        expectDescribed(a, b, m, k, n);
        a[size_t(3 * k + at / n)] = -1;
        expectDescribed(a, b, m, k, n);
        if (HasFatalFailure()) return;
      }
}

// Sums that pass through what they cannot hold, and end at each bound.
TEST_P(ProductLoops, OfCheckedIntegersTestTheWholeFromEightProductsOn) {
  for (mint k = 2; k <= 12; ++k)
    for (const mint last : {-2, -1, 0, 1}) {
      std::vector<mint> a(size_t(k), 0), b(size_t(k * 20), 1);
      a[0] = INT32_MAX;
      a[1] += 1;
      a[size_t(k - 1)] += last;
      expectDescribed(a, b, 1, k, 20);
      for (mint &x : a) x = -x;
      expectDescribed(a, b, 1, k, 20);
    }
}

// A row longer than the block of exact sums.
TEST_P(ProductLoops, OfCheckedIntegersKeepTheirOrderAcrossBlocks) {
  const mint k = 9, n = 700;
  std::vector<mint> a(size_t(k), 1 << 16), b(size_t(k * n));
  for (size_t p = 0; p < b.size(); ++p)
    b[p] = p % 2 == 0 ? 30000 : -30000; // the bound says that a sum might fail
  expectDescribed(a, b, 1, k, n);
  for (const mint at : {0, 255, 256, 257, 511, 512, 600, 699}) {
    auto worse = b;
    for (mint p = 0; p < k; ++p) worse[size_t(p * n + at)] = 30000;
    expectDescribed(a, worse, 1, k, n);
  }
}

TEST_P(ProductLoops, OfCheckedIntegersNeedNoMemoryToBeRight) {
  const mint m = 2, k = 400000, n = 2;
  std::vector<mint> a(size_t(m * k), 1), b(size_t(k * n), 1), result(size_t(m * n), 7777);
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_TRUE(integerProduct(result.data(), a.data(), b.data(), m, k, n, 4));
  EXPECT_TRUE(heap.failed()) << "it asked for some";
  EXPECT_EQ(result, std::vector<mint>(4, k));
  b[1] = INT32_MIN;
  EXPECT_FALSE(integerProduct(result.data(), a.data(), b.data(), m, k, n, 4));
  heap.succeed();
}

} // namespace
