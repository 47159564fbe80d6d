// Vector routines in parallel pieces: the same elements and positions as in one run, for every routine of the
// tables, and the conditions under which a routine stays on its caller's thread.
#include "elementwise/drivers.h"
#include "parallel/parallel.h"
#include "parallel/pool.h"
#include "routine_walk.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"

#include <gtest/gtest.h>
#include <torvane/elementwise.h>
#include <torvane/machfuncs.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kDense[3] = {1, 1, 1};

class ConcurrentRoutines : public testing::Test {
protected:
  ConcurrentRoutines() {
    tearDownPool();
    setWorkerCount(2);
    setThresholds(1);
  }
  ~ConcurrentRoutines() override {
    tearDownPool();
    initializeThresholds(0);
    initializeThresholds(1);
  }
  static void setThresholds(mint length) {
    for (mint index = 0; index < kVectorParallelThresholds; ++index)
      setVectorParallelLengthThreshold(index, length);
  }
  template <class Run> static mint serially(Run run) {
    const mint before = setParallelDisabled(1);
    const mint position = run();
    setParallelDisabled(before);
    return position;
  }
};

// Where the pieces of a loop over `count` elements begin.
std::vector<mint> pieceStarts(mint count) {
  const mint workers = workerCount();
  const ParallelPartition ofLength = {kOfSize, 1, 0};
  const bool byLength = (count - 1) / kElementsAPiece + 1 > workers;
  PieceCutter cutter;
  EXPECT_TRUE(cutByPartition(&cutter, {0, count}, byLength ? kElementsAPiece : 1,
                             byLength ? &ofLength : nullptr, workers));
  std::vector<mint> starts;
  while (!cutter.isEmpty()) starts.push_back(cutter.cut().first);
  return starts;
}

struct Data {
  std::vector<char> x, y, result, expected;

  Data(const Routine &routine, const Operands &harmless, mint count)
      : x(size_t(count) * widthOf(routine.kinds[1])), y(size_t(count) * widthOf(harmless.y.kind)),
        result(size_t(count) * widthOf(routine.kinds[0])), expected(result) {
    for (mint k = 0; k < count; ++k) put(k, harmless);
  }
  void put(mint at, const Operands &operands) {
    operands.x.store(x.data() + size_t(at) * widthOf(operands.x.kind));
    operands.y.store(y.data() + size_t(at) * widthOf(operands.y.kind));
  }
};

// A bulk test tells the piece that failed, anything else the element.
mint expectedPosition(const Routine &routine, const Operands &failing, mint flags, mint at, mint count) {
  const bool isBulk = runOne(routine, failing, 0) == 0 && routine.kinds[1] != 2;
  if (!isBulk || flags == 4) return at + 1;
  mint start = 0;
  for (const mint candidate : pieceStarts(count))
    if (candidate <= at) start = candidate;
  return start + 1;
}

void checkFailures(const Routine &routine, mint flags, mint count, std::mt19937_64 &random) {
  Operands harmless, failing;
  if (!findOperands(routine, false, flags, random, &harmless)) return;
  Data data(routine, harmless, count);
  const auto run = [&](std::vector<char> &target) {
    return routine(target.data(), data.x.data(), data.y.data(), count, kDense, flags);
  };
  setParallelDisabled(1);
  ASSERT_EQ(run(data.expected), 0) << routine.name;
  setParallelDisabled(0);
  ASSERT_EQ(run(data.result), 0) << routine.name;
  ASSERT_EQ(data.result, data.expected) << routine.name;
  if (!findOperands(routine, true, flags, random, &failing)) return;
  std::vector<mint> positions = {count - 1};
  for (const mint start : pieceStarts(count))
    for (const mint at : {start - 1, start, start + 3})
      if (at >= 0 && at < count) positions.push_back(at);
  for (const mint at : positions) {
    data.put(at, failing);
    const mint position = run(data.result);
    ASSERT_EQ(position, expectedPosition(routine, failing, flags, at, count))
        << routine.name << " flags " << flags << " at " << at;
    ASSERT_EQ(std::memcmp(data.result.data(), data.expected.data(),
                          size_t(position - 1) * widthOf(routine.kinds[0])),
              0);
    data.put(at, harmless);
  }
}

bool mixesIntegers(const Routine &routine) { return routine.kinds[1] == 2 && routine.kinds[2] > 2; }

TEST_F(ConcurrentRoutines, OfOnePieceAWorkerAreSerialOnesOfEveryTableEntry) {
  std::mt19937_64 random(21);
  for (const Routine &routine : allRoutines())
    if (!mixesIntegers(routine))
      for (const mint flags : {0, 2, 4}) ASSERT_NO_FATAL_FAILURE(checkFailures(routine, flags, 101, random));
}

TEST_F(ConcurrentRoutines, OfManyPiecesAreSerialOnesOfEveryTableEntry) {
  std::mt19937_64 random(22);
  const std::vector<Routine> routines = allRoutines();
  for (size_t k = 0; k < routines.size(); k += 7) // each costs a hundred thousand elements and more
    if (!mixesIntegers(routines[k]))
      ASSERT_NO_FATAL_FAILURE(checkFailures(routines[k], 6, 4 * kElementsAPiece + 77, random));
}

TEST_F(ConcurrentRoutines, WalkEveryStride) {
  std::vector<mreal> x(4000), y(4000), expected(4000, -1), result(4000, -1);
  for (size_t k = 0; k < x.size(); ++k) x[k] = double(k), y[k] = 3.0 * double(k);
  const mint shapes[][3] = {{1, 2, -3}, {-1, 1, 0}, {3, 0, 1}, {2, -1, -1}};
  for (const auto &strides : shapes) {
    const auto run = [&](std::vector<mreal> &target) {
      return machfunc_dd_subtract(&target[2000], &x[2000], &y[2000], 600, strides, 0);
    };
    EXPECT_EQ(serially([&] { return run(expected); }), 0);
    EXPECT_EQ(run(result), 0);
    ASSERT_EQ(result, expected);
  }
  const mint quadruple[4] = {-2, 0, 1, -1};
  const auto axpy = [&](std::vector<mreal> &target) {
    return machfunc_ddd_axpy(&target[2000], &x[5], &x[1000], &y[2000], 600, quadruple, 0);
  };
  EXPECT_EQ(serially([&] { return axpy(expected); }), 0);
  EXPECT_EQ(axpy(result), 0);
  EXPECT_EQ(result, expected);
}

// Whichever piece ends first, the smallest position is told and all before it is written.
TEST_F(ConcurrentRoutines, TellTheSmallestOfManyFailures) {
  setWorkerCount(4);
  constexpr mint kCount = 9 * kElementsAPiece;
  std::vector<mreal> x(kCount, 4), result(kCount);
  for (mint round = 0; round < 40; ++round) {
    const mint first = (round * 3701) % kCount;
    for (mint at = first; at < kCount; at += 1000) x[size_t(at)] = -1;
    std::fill(result.begin(), result.end(), 0);
    ASSERT_EQ(machfunc_d_sqrt(result.data(), x.data(), kCount, kDense, 0), first + 1);
    for (mint k = 0; k < first; ++k) ASSERT_EQ(result[size_t(k)], 2) << k;
    std::fill(x.begin(), x.end(), 4);
  }
}

// ---- on the caller's thread ------------------------------------------------------------------------

using SerialThread = ConcurrentRoutines;

mint squareOf(std::vector<mreal> &result, const std::vector<mreal> &x, mint count) {
  return machfunc_d_square(result.data(), x.data(), count, kDense, 0);
}

TEST_F(SerialThread, MakesNoPoolBelowTheThresholdOfItsArity) {
  setThresholds(kDefaultParallelLength);
  std::vector<mreal> x(kDefaultParallelLength, 2), result(x.size());
  EXPECT_EQ(squareOf(result, x, kDefaultParallelLength - 1), 0);
  EXPECT_FALSE(poolExists());
  setVectorParallelLengthThreshold(kBinary, 5);
  EXPECT_EQ(squareOf(result, x, 100), 0);
  EXPECT_FALSE(poolExists());
  EXPECT_EQ(machfunc_dd_plus(result.data(), x.data(), x.data(), 4, kDense, 0), 0);
  EXPECT_FALSE(poolExists());
  EXPECT_EQ(machfunc_dd_plus(result.data(), x.data(), x.data(), 5, kDense, 0), 0);
  EXPECT_TRUE(poolExists());
}

TEST_F(SerialThread, MakesAPoolAtTheThreshold) {
  setThresholds(kDefaultParallelLength);
  std::vector<mreal> x(kDefaultParallelLength, 2), result(x.size());
  EXPECT_EQ(squareOf(result, x, kDefaultParallelLength), 0);
  EXPECT_TRUE(poolExists());
  EXPECT_EQ(result.back(), 4);
}

TEST_F(SerialThread, ServesOneWorkerAndTheDisabledFlag) {
  std::vector<mreal> x(1000, 2), result(1000);
  setParallelDisabled(1);
  EXPECT_EQ(squareOf(result, x, 1000), 0);
  setParallelDisabled(0);
  setWorkerCount(1);
  EXPECT_EQ(squareOf(result, x, 1000), 0);
  EXPECT_FALSE(poolExists());
}

TEST_F(SerialThread, ServesSharedStorageOfEverySize) {
  std::vector<mreal> x(1000, 2);
  EXPECT_EQ(squareOf(x, x, 1000), 0);
  EXPECT_EQ(machfunc_dd_plus(x.data() + 500, x.data(), x.data(), 500, kDense, 0), 0); // apart
  EXPECT_TRUE(poolExists());
  tearDownPool();
  const mint scalarSecond[3] = {1, 1, 0}, fixed[3] = {0, 1, 1}, down[3] = {-1, 1, 1};
  EXPECT_EQ(machfunc_dd_plus(x.data(), x.data() + 500, x.data() + 499, 500, scalarSecond, 0), 0);
  EXPECT_EQ(machfunc_dd_plus(x.data(), x.data() + 100, x.data() + 600, 100, fixed, 0), 0);
  EXPECT_EQ(machfunc_dd_plus(x.data() + 600, x.data(), x.data() + 501, 100, down, 0), 0);
  EXPECT_EQ(machfunc_d_floor(x.data(), x.data(), 1000, kDense, 0), 0); // words onto reals
  EXPECT_EQ(machfunc_dd_plus(x.data() + 1, x.data(), x.data() + 600, 300, kDense, 0), 0);
  EXPECT_FALSE(poolExists());
}

} // namespace
