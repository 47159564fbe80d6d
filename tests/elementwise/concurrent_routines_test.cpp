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

// The first, a middle and the last element of each piece.
std::vector<mint> piecePositions(mint count) {
  std::vector<mint> positions, ends = pieceStarts(count);
  ends.push_back(count);
  for (size_t k = 0; k + 1 < ends.size(); ++k)
    for (const mint at : {ends[k], ends[k] + (ends[k + 1] - ends[k]) / 2, ends[k + 1] - 1})
      positions.push_back(at);
  return positions;
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
  const bool isBulk = runOne(routine, failing, 0) == 0 && std::max(routine.kinds[1], routine.kinds[2]) != 2;
  if (!isBulk || flags == 4) return at + 1;
  mint start = 0;
  for (const mint candidate : pieceStarts(count))
    if (candidate <= at) start = candidate;
  return start + 1;
}

// Counts the routines that ran, and those that can fail.
struct Tally {
  size_t run = 0, failing = 0;
};

void checkFailures(const Routine &routine, mint flags, mint count, std::mt19937_64 &random, Tally *tally) {
  Operands harmless, failing;
  const bool everFails = findOperands(routine, true, flags, random, &failing);
  const bool everSucceeds = findOperands(routine, false, flags, random, &harmless);
  tally->failing += everFails;
  ++tally->run;
  Data data(routine, everSucceeds ? harmless : failing, count);
  const auto run = [&](std::vector<char> &target) {
    return routine(target.data(), data.x.data(), data.y.data(), count, kDense, flags);
  };
  if (!everSucceeds) {
    ASSERT_EQ(run(data.result), 1) << routine.name;
    return;
  }
  setParallelDisabled(1);
  ASSERT_EQ(run(data.expected), 0) << routine.name;
  setParallelDisabled(0);
  ASSERT_EQ(run(data.result), 0) << routine.name;
  ASSERT_EQ(data.result, data.expected) << routine.name;
  if (!everFails) return;
  for (const mint at : piecePositions(count)) {
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

TEST_F(ConcurrentRoutines, OfOnePieceAWorkerAreSerialOnesOfEveryTableEntry) {
  std::mt19937_64 random(21);
  Tally tally;
  const std::vector<Routine> routines = allRoutines();
  for (const Routine &routine : routines)
    for (const mint flags : {0, 2, 4})
      ASSERT_NO_FATAL_FAILURE(checkFailures(routine, flags, 101, random, &tally));
  EXPECT_EQ(tally.run, 3 * routines.size());
  EXPECT_GT(tally.failing, 300);
}

TEST_F(ConcurrentRoutines, OfManyPiecesAreSerialOnesOfEveryTableEntry) {
  std::mt19937_64 random(22);
  Tally tally;
  const std::vector<Routine> routines = allRoutines();
  for (const Routine &routine : routines)
    ASSERT_NO_FATAL_FAILURE(checkFailures(routine, 6, 2 * kElementsAPiece + 77, random, &tally));
  EXPECT_EQ(tally.run, routines.size());
  EXPECT_GT(tally.failing, 150);
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
