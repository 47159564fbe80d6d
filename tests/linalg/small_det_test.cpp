// Determinants of small matrices: known values, and the sum over permutations in exact integers.
#include "algorithms/exact_call.h"

#include "support/exact_integer.h"

#include <algorithm>
#include <numeric>

using namespace torvane;
using namespace torvane::test;

namespace {

class SmallDet : public NamedFunctions {};

Tensor matrixOf(mint n, const std::vector<mreal> &elements) { return tensorOf<mreal>({n, n}, elements); }

mreal determinant(Tensor matrix) {
  NamedCall call("SmallDet");
  call.tensor(std::move(matrix));
  mreal result = 42;
  EXPECT_EQ(call.run(&result), 0);
  return result;
}

void expectRefused(Tensor argument, mint status) {
  NamedCall call("SmallDet");
  call.tensor(std::move(argument));
  mreal result = 42;
  EXPECT_EQ(call.run(&result), status);
  EXPECT_EQ(result, 42);
}

// Leibniz: the signed products over all permutations.
int64_t exactDeterminant(mint n, const std::vector<mreal> &elements) {
  std::vector<mint> columns(static_cast<size_t>(n));
  std::iota(columns.begin(), columns.end(), 0);
  Exact sum(0, false);
  do {
    Exact product(1, false);
    for (mint i = 0; i < n; ++i) {
      product = product * Exact::of(int64_t(elements[size_t(i * n + columns[size_t(i)])]));
      for (mint k = 0; k < i; ++k)
        if (columns[size_t(k)] > columns[size_t(i)]) product = -product;
    }
    sum = sum + product;
  } while (std::next_permutation(columns.begin(), columns.end()));
  EXPECT_TRUE(sum.fits<int64_t>());
  return sum.wrapped<int64_t>();
}

TEST_F(SmallDet, OfTheSmallestMatrices) {
  EXPECT_EQ(determinant(matrixOf(2, {1, 2, 3, 4})), -2.0);
  EXPECT_EQ(determinant(matrixOf(3, {1, 0, 0, 0, 1, 0, 0, 0, 1})), 1.0);
  EXPECT_EQ(determinant(matrixOf(1, {-7.5})), -7.5);
  EXPECT_TRUE(std::signbit(determinant(matrixOf(1, {-0.0}))));
  EXPECT_EQ(determinant(matrixOf(0, {})), 0.0);
  EXPECT_EQ(determinant(matrixOf(3, {1, 2, 3, 4, 5, 6, 7, 8, 9})), 0.0);
}

// All partial sums are integers below 2^53, so that nothing rounds.
TEST_F(SmallDet, OfIntegersIsExact) {
  std::mt19937 random(1);
  for (mint n = 1; n <= 8; ++n)
    for (int time = 0; time < (n < 7 ? 40 : 2); ++time) {
      std::vector<mreal> elements(size_t(n * n), 0);
      for (mreal &x : elements) x = mreal(random() % 19) - 9;
      EXPECT_EQ(determinant(matrixOf(n, elements)), mreal(exactDeterminant(n, elements))) << n;
    }
}

// The sum runs along the first column from 0, each product as (sign element) minor.
TEST_F(SmallDet, RoundsInTheOrderOfTheFirstColumn) {
  std::mt19937 random(2);
  for (int time = 0; time < 200; ++time) {
    std::vector<mreal> m(9, 0);
    for (mreal &x : m) x = std::ldexp(mreal(mint(random())), mint(random() % 20));
    mreal sum = 0;
    for (size_t i = 0; i < 3; ++i) {
      const size_t a = i == 0 ? 1 : 0, b = i == 2 ? 1 : 2;
      volatile mreal ad = m[3 * a + 1] * m[3 * b + 2], bc = m[3 * a + 2] * m[3 * b + 1];
      volatile mreal minor = ad - bc;
      volatile mreal term = (i == 1 ? -m[3 * i] : m[3 * i]) * minor;
      volatile mreal next = sum + term;
      sum = next;
    }
    EXPECT_EQ(determinant(matrixOf(3, m)), sum);
  }
}

TEST_F(SmallDet, OfATriangleIsTheProductOfItsDiagonal) {
  const mint n = 8;
  std::vector<mreal> elements(n * n, 0);
  for (mint i = 0; i < n; ++i)
    for (mint j = i; j < n; ++j) elements[size_t(i * n + j)] = i == j ? 2 : 1000 + j;
  EXPECT_EQ(determinant(matrixOf(n, elements)), 256.0);
}

TEST_F(SmallDet, RefusesByRankThenSquarenessThenType) {
  expectRefused(tensorOf<mint>({}, {1}), 2);
  expectRefused(tensorOf<mint>({4}, {1, 2, 3, 4}), 2);
  expectRefused(tensorOf<mreal>({2, 2, 0}, {}), 2); // nothing behind its first two levels could be read
  expectRefused(tensorOf<mint>({1, 2}, {1, 2}), 3);
  expectRefused(tensorOf<mreal>({2, 1}, {1, 2}), 3);
  expectRefused(tensorOf<mint>({1, 1}, {1}), 1);
  expectRefused(tensorOf<mcomplex>({1, 1}, {{1, 1}}), 1);
}

TEST_F(SmallDet, GivesItsMemoryBack) {
  const uint32_t used = usedBytesOfThisThread();
  {
    const Tensor kept = matrixOf(8, std::vector<mreal>(64, 1));
    const uint32_t before = usedBytesOfThisThread();
    NamedCall call("SmallDet");
    call.tensor(cloneOf(kept.get()));
    mreal result;
    EXPECT_EQ(call.run(&result), 0);
    EXPECT_EQ(result, 0);
    EXPECT_GT(usedBytesOfThisThread(), before);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// So large that its pointers are one request of the process heap, and that nobody could wait for it.
TEST_F(SmallDet, WithoutMemoryForItsMinorsChangesNothing) {
  Tensor matrix = newTensor(TORVANE_TYPE_REAL, {900, 900});
  MTensor_initialize(matrix.get(), 1);
  const uint32_t used = usedBytesOfThisThread();
  NamedCall call("SmallDet");
  call.tensor(std::move(matrix));
  FailingHeap heap;
  heap.failRequest(1);
  mreal result = 42;
  EXPECT_EQ(call.run(&result), 403);
  EXPECT_TRUE(heap.failed());
  EXPECT_EQ(result, 42);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(heap.blocksOut(), 0);
}

} // namespace
