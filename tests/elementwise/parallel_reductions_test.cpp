// Reductions over several workers: what the pieces are, how they are merged, where failures are found, and
// what happens without memory for the accumulators.
#include "parallel/pool_fixture.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/kinds.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>
#include <limits>
#include <torvane/elementwise.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/vectors.h>

using namespace torvane;
using namespace torvane::test;

namespace {

const mint kDense[3] = {1, 1, 1};
constexpr mint kChecks = TORVANE_CHECK_REALS | TORVANE_CHECK_INTEGERS;

// Three workers, reductions parallel from one element on.
class ConcurrentReductions : public PoolTest {
protected:
  ConcurrentReductions() { setThresholds(1); }
  static void setThresholds(mint length) {
    setVectorParallelLengthThreshold(0, length);
    setVectorParallelLengthThreshold(2, length);
  }
  static constexpr mint kNever = INT32_MAX;
};

// Reals of one size, in whose sums nearly every rounding counts: in another order, another sum.
std::vector<mreal> roundingReals(size_t count) {
  std::mt19937_64 random(50);
  std::vector<mreal> data(count);
  for (mreal &x : data) x = mreal(int64_t(random())) * 0x1p-63;
  return data;
}

// The bounds of the even pieces of `count` elements, the last bound being `count`; no piece is empty.
std::vector<mint> boundsOf(mint count, mint workers) {
  std::vector<mint> bounds = {0};
  for (mint left = workers; left > 0 && bounds.back() < count; --left)
    bounds.push_back(bounds.back() + std::max((count - bounds.back()) / left, 1));
  return bounds;
}

template <class A> struct Stored {
  A value[2];
  mint status;
};

template <class A, class T>
Stored<A> run(mint (*routine)(A *, const T *, mint, const mint *, mint), const std::vector<T> &data,
              mint flags) {
  Stored<A> outcome;
  std::memset(static_cast<void *>(&outcome), 0x5A, sizeof outcome);
  outcome.status = routine(outcome.value, data.data(), mint(data.size()), kDense, flags);
  return outcome;
}

TEST_F(ConcurrentReductions, TotalsOfRealsAreSumsOfTheirPiecesInOrder) {
  std::vector<mreal> data = roundingReals(5000);
  for (const mint workers : {2, 3, 5}) {
    setWorkerCount(workers);
    for (const mint count : {1, 2, 3, 4, 100, 4999}) {
      const std::vector<mint> bounds = boundsOf(count, workers);
      volatile mreal total = 0;
      for (size_t piece = 0; piece + 1 < bounds.size(); ++piece) {
        volatile mreal sum = 0;
        for (mint k = bounds[piece]; k < bounds[piece + 1]; ++k) sum = sum + data[size_t(k)];
        total = total + sum;
      }
      for (int round = 0; round < 10; ++round) {
        mreal found = 5;
        ASSERT_EQ(machfunc_d_total(&found, data.data(), count, kDense, 0), 0);
        ASSERT_TRUE(sameReal<double>(found, total)) << count << " on " << workers;
      }
    }
  }
}

// Whatever the pieces are, these do not depend on them.
template <class A, class T>
void expectAsSerial(mint (*routine)(A *, const T *, mint, const mint *, mint), const std::vector<T> &data,
                    mint flags) {
  setVectorParallelLengthThreshold(0, 1);
  const auto pieces = run(routine, data, flags);
  setVectorParallelLengthThreshold(0, INT32_MAX);
  const auto whole = run(routine, data, flags);
  ASSERT_EQ(std::memcmp(&pieces, &whole, sizeof whole), 0) << data.size();
}

TEST_F(ConcurrentReductions, OtherThanRealTotalsAreThoseOfOnePiece) {
  std::mt19937_64 random(51);
  for (const size_t count : std::initializer_list<size_t>{1, 2, 3, 4, 5, 67, 1000, 40000})
    for (const mint flags : {0, kChecks}) {
      std::vector<mint> words(count);
      std::vector<mreal> reals(count);
      std::vector<mcomplex> complexes(count);
      for (size_t k = 0; k < count; ++k) {
        words[k] = mint(random() % 2001) - 1000;
        reals[k] = random() % 5 == 0 ? (random() % 2 == 0 ? 0.0 : -0.0) : -mreal(random() % 1000);
        if (random() % 7 == 0) reals[k] = NAN;
        complexes[k] = {mreal(random() % 100), -mreal(random() % 100)};
      }
      expectAsSerial(machfunc_i_total, words, flags);
      expectAsSerial(machfunc_i_max, words, flags);
      expectAsSerial(machfunc_i_min, words, flags);
      expectAsSerial(machfunc_i_minmax, words, flags);
      expectAsSerial(machfunc_i_maxabs, words, flags);
      expectAsSerial(machfunc_d_max, reals, flags);
      expectAsSerial(machfunc_d_min, reals, flags);
      expectAsSerial(machfunc_d_minmax, reals, flags);
      expectAsSerial(machfunc_d_maxabs, reals, flags);
      expectAsSerial(machfunc_c_maxabs, complexes, flags);
      expectAsSerial(machfunc_d_fpexception, reals, flags);
      expectAsSerial(machfunc_c_fpexception, complexes, flags);
      expectAsSerial(machfunc_c_total, complexes, flags); // small whole numbers: exact
    }
}

TEST_F(ConcurrentReductions, DotProductsAreThoseOfOnePiece) {
  std::mt19937_64 random(52);
  for (const size_t count : std::initializer_list<size_t>{1, 2, 3, 67, 40000})
    for (const mint flags : {0, kChecks}) {
      std::vector<mint> x(count), y(2 * count);
      for (mint &a : x) a = mint(random() % 101) - 50;
      for (mint &a : y) a = mint(random() % 101) - 50;
      const mint strides[3] = {1, 1, 2};
      mint pieces = 7, whole = 8;
      setThresholds(1);
      ASSERT_EQ(machfunc_ii_dot(&pieces, x.data(), y.data(), mint(count), strides, flags), 0);
      setThresholds(kNever);
      ASSERT_EQ(machfunc_ii_dot(&whole, x.data(), y.data(), mint(count), strides, flags), 0);
      ASSERT_EQ(pieces, whole);
    }
}

// Whatever the pieces: fewer than eight products are added and tested in their order, more as a whole.
TEST_F(ConcurrentReductions, CheckedDotProductsOfAFewElementsFailAsInOnePiece) {
  const mint most = std::numeric_limits<mint>::max();
  for (const mint threshold : {mint{1}, mint{8}, kNever}) {
    setThresholds(threshold);
    for (const size_t count : std::initializer_list<size_t>{3, 4, 7, 8, 9, 12, 14, 33}) {
      std::vector<mint> x(count, 0), y(count, 1);
      x[0] = most, x[1] = 1, x[2] = -1;
      mint dot = 7;
      const mint position = machfunc_ii_dot(&dot, x.data(), y.data(), mint(count), kDense, kChecks);
      EXPECT_EQ(position != 0, count < 8) << count << " elements, threshold " << threshold;
      if (count >= 8) EXPECT_EQ(dot, most);
    }
  }
}

// A piece alone would be out of range; what counts is the whole.
TEST_F(ConcurrentReductions, ACheckedDotProductFailsAsInOnePiece) {
  const size_t count = 40000;
  std::vector<mint> x(count, 1 << 20), y(count, 1);
  std::fill(x.begin() + count / 2, x.end(), -(1 << 20));
  mint dot = 7;
  for (const mint threshold : {mint{1}, kNever}) {
    setThresholds(threshold);
    EXPECT_EQ(machfunc_ii_dot(&dot, x.data(), y.data(), mint(count), kDense, kChecks), 0);
    EXPECT_EQ(dot, 0);
    y.back() = -1;
    y.front() = 1 << 11;
    EXPECT_EQ(machfunc_ii_dot(&dot, x.data(), y.data(), mint(count), kDense, kChecks), 1) << "a product";
    y.front() = 1 << 10;
    y[1] = 1 << 10;
    EXPECT_EQ(machfunc_ii_dot(&dot, x.data(), y.data(), mint(count), kDense, kChecks), mint(count))
        << "the sum";
    y.front() = y[1] = y.back() = 1;
  }
}

TEST_F(ConcurrentReductions, ATotalFailsAtTheFirstFailureOfItsFirstFailingPiece) {
  std::vector<mint> data(300, 0);
  data[150] = INT32_MAX;
  data[151] = 1;
  data[260] = INT32_MIN;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 152);
  data[151] = 0;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 261);
  EXPECT_EQ(run(machfunc_i_total, data, 0).status, 0);
  std::vector<mreal> reals(300, 1.0);
  reals[299] = NAN;
  EXPECT_EQ(run(machfunc_d_total, reals, kChecks).status, 300);
}

// Each piece is in range; what has been merged up to the second or third is not.
TEST_F(ConcurrentReductions, AMergedTotalIsTestedAgain) {
  std::vector<mint> data(300, 0);
  data[10] = data[110] = 1 << 30;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 200) << "the end of the second piece";
  data[110] = (1 << 30) - 1;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 0);
  data[290] = 1;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 300);
  EXPECT_EQ(run(machfunc_i_total, data, 0).value[0], INT32_MIN);
  data = std::vector<mint>(300, 0);
  data[10] = -INT32_MAX;
  data[110] = -1;
  EXPECT_EQ(run(machfunc_i_total, data, kChecks).status, 200) << "the reserved value";
  std::vector<mreal> reals(300, 0);
  reals[0] = reals[150] = 1e308;
  EXPECT_EQ(run(machfunc_d_total, reals, kChecks).status, 200);
  EXPECT_EQ(run(machfunc_d_total, reals, 0).value[0], HUGE_VAL);
  std::vector<mcomplex> complexes(300, mcomplex{0, 0});
  complexes[0].im = complexes[299].im = -1e308;
  EXPECT_EQ(run(machfunc_c_total, complexes, kChecks).status, 300);
}

TEST_F(ConcurrentReductions, AnExtremeOfAPieceMayBeTheReservedValue) {
  std::vector<mint> data(300, INT32_MIN);
  data[299] = 5;
  EXPECT_EQ(run(machfunc_i_max, data, kChecks).status, 0) << "two pieces hold nothing else";
  EXPECT_EQ(run(machfunc_i_max, data, kChecks).value[0], 5);
  EXPECT_EQ(run(machfunc_i_min, data, kChecks).status, 1);
  EXPECT_EQ(run(machfunc_i_maxabs, data, kChecks).status, 1);
  EXPECT_EQ(run(machfunc_i_maxabs, data, 0).value[0], 5);
  std::vector<mint> late(300, 2);
  late[250] = INT32_MIN;
  EXPECT_EQ(run(machfunc_i_minmax, late, kChecks).status, 251);
}

TEST_F(ConcurrentReductions, OfFewerElementsThanWorkersLeaveTheOthersOut) {
  setWorkerCount(5);
  EXPECT_EQ(run(machfunc_d_total, std::vector<mreal>{1.5, 2}, kChecks).value[0], 3.5);
  EXPECT_EQ(run(machfunc_i_max, std::vector<mint>{-7}, kChecks).value[0], -7);
  EXPECT_EQ(run(machfunc_i_max, std::vector<mint>{}, kChecks).value[0], INT32_MIN);
}

TEST_F(ConcurrentReductions, InsideALoopRunInOnePiece) {
  const std::vector<mreal> data = roundingReals(1000);
  mreal serial = 0, nested[3] = {};
  setThresholds(kNever);
  machfunc_d_total(&serial, data.data(), 1000, kDense, 0);
  setThresholds(1);
  loopOver(0, 3, 1, [&](ParallelWorker *worker) {
    for (mint k = ParallelWorker_first(worker); k < ParallelWorker_last(worker); ++k)
      machfunc_d_total(&nested[k], data.data(), 1000, kDense, 0);
  });
  for (const mreal total : nested) EXPECT_TRUE(sameReal<double>(total, serial));
}

TEST_F(ConcurrentReductions, AreSerialWhereTheyAreForbiddenToBeParallel) {
  const std::vector<mreal> data = roundingReals(1000);
  const auto total = [&] { return run(machfunc_d_total, data, 0).value[0]; };
  setThresholds(1001);
  const mreal serial = total();
  setThresholds(1000);
  ASSERT_FALSE(sameReal<double>(total(), serial)) << "or the next lines show nothing";
  setParallelDisabled(1);
  EXPECT_TRUE(sameReal<double>(total(), serial));
  setParallelDisabled(0);
  setWorkerCount(1);
  EXPECT_TRUE(sameReal<double>(total(), serial));
}

// Runs at the default threshold of one entry, all other entries allowing anything or nothing.
template <class Run> void expectParallelFrom32768(mint entry, Run runOver) {
  for (const mint others : {1, INT32_MAX})
    for (const mint count : {32767, 32768}) {
      tearDownPool();
      for (mint index = 0; index < 5; ++index)
        setVectorParallelLengthThreshold(index, index == entry ? 32768 : others);
      runOver(count);
      EXPECT_EQ(poolExists(), count == 32768) << "entry " << entry << ", others " << others;
    }
}

TEST_F(ConcurrentReductions, MakeAPoolFromTheThresholdOfTheirOwnEntryOn) {
  const std::vector<mint> words(32768, 1);
  std::vector<mint> copies(32768);
  const std::vector<mcomplex> complexes(32768, mcomplex{1, 2});
  const std::vector<uint8_t> bytes(32768, 1);
  std::vector<uint8_t> mixed(32768);
  mint word;
  mcomplex complex;
  expectParallelFrom32768(0, [&](mint n) { machfunc_i_total(&word, words.data(), n, kDense, 0); });
  expectParallelFrom32768(0, [&](mint n) { machfunc_c_total(&complex, complexes.data(), n, kDense, 2); });
  expectParallelFrom32768(0, [&](mint n) { machfunc_c_fpexception(&word, complexes.data(), n, kDense, 2); });
  expectParallelFrom32768(2,
                          [&](mint n) { machfunc_ii_dot(&word, words.data(), words.data(), n, kDense, 4); });
  expectParallelFrom32768(1, [&](mint n) { machfunc_i_copy(copies.data(), words.data(), n, kDense, 0); });
  expectParallelFrom32768(1, [&](mint n) { machfunc_i_zero(copies.data(), nullptr, n, kDense, 0); });
  expectParallelFrom32768(
      3, [&](mint n) { machfunc_bb_bitxor(mixed.data(), bytes.data(), bytes.data(), n, kDense, 0); });
}

// Memory is short on a thread whose heap has nothing yet; the pool has been made before.
TEST_F(ConcurrentReductions, WithoutMemoryForTheAccumulatorsRunInOnePiece) {
  const std::vector<mreal> data = roundingReals(1000);
  setThresholds(kNever);
  const mreal serial = run(machfunc_d_total, data, 0).value[0];
  setThresholds(1);
  const mreal pieces = run(machfunc_d_total, data, 0).value[0];
  ASSERT_FALSE(sameReal<double>(pieces, serial)) << "or the rest shows nothing";
  FailingHeap heap;
  onThread([&] {
    heap.failFrom(1);
    const auto outcome = run(machfunc_d_total, data, kChecks);
    const bool failed = heap.failed();
    heap.succeed();
    EXPECT_TRUE(failed);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(sameReal<double>(outcome.value[0], serial));
    EXPECT_TRUE(sameReal<double>(run(machfunc_d_total, data, kChecks).value[0], pieces));
  });
}

TEST_F(ConcurrentReductions, GiveBackTheirAccumulators) {
  run(machfunc_i_total, std::vector<mint>(1000, 1), 0);
  const uint32_t before = usedBytesOfThisThread();
  for (int round = 0; round < 50; ++round) run(machfunc_i_total, std::vector<mint>(1000, round), kChecks);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

} // namespace
