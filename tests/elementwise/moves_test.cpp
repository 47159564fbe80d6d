// Copies, zeros, exclusive or and pair sums: every length up to 67, strides, what lies beside and between the
// elements, parallel pieces.
#include "parallel/pool_fixture.h"
#include "support/kinds.h"

#include <gtest/gtest.h>
#include <numeric>
#include <torvane/elementwise.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/vectors.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kKinds[] = {2, 3, 4};
const mint kStridePairs[][2] = {{1, 1}, {1, 0}, {0, 1}, {2, 1}, {1, 3}, {-1, 1}, {1, -2}, {-3, -2}};

TorvaneUnaryRoutine copyOf(mint kind) {
  return kind == 2 ? machfunc_i_copy : kind == 3 ? machfunc_d_copy : machfunc_c_copy;
}
mint zeroAt(mint kind, void *result, mint count, const mint *strides) {
  if (kind == 2) return machfunc_i_zero(static_cast<mint *>(result), nullptr, count, strides, 6);
  if (kind == 3) return machfunc_d_zero(static_cast<mreal *>(result), nullptr, count, strides, 6);
  return machfunc_c_zero(static_cast<mcomplex *>(result), nullptr, count, strides, 6);
}

// Room for a walk of `count` elements, and the index at which it starts.
size_t room(mint stride, mint count) {
  return count <= 0 ? 1 : size_t(std::abs(stride)) * size_t(count - 1) + 1;
}
mint startOf(mint stride, mint count) { return stride < 0 && count > 0 ? -stride * (count - 1) : 0; }

void fillRandom(Buffer &buffer, std::mt19937_64 &random) {
  for (size_t k = 0; k < buffer.count(); ++k) buffer.set(ptrdiff_t(k), sampleElement(buffer.kind, random));
}

// What `run` makes of a random target must be `value(k)` at each element of the walk, the last one that is
// stored there, and leave all else alone.
template <class Run, class Value>
void expectWalk(Buffer &target, mint stride, mint count, Run run, Value value) {
  target.snapshot();
  ASSERT_EQ(run(), 0);
  ASSERT_TRUE(target.zonesHold());
  const mint start = startOf(stride, count);
  for (mint index = 0; index < mint(target.count()); ++index) {
    mint last = -1;
    for (mint k = 0; k < count; ++k)
      if (start + k * stride == index) last = k;
    if (last < 0)
      ASSERT_TRUE(target.isUntouched(index)) << index;
    else
      ASSERT_EQ(target.get(index), value(last)) << index;
  }
}

TEST(Copy, StoresEveryElementAtItsPlaceAndNothingElse) {
  std::mt19937_64 random(41);
  for (const mint kind : kKinds)
    for (const auto &strides : kStridePairs)
      for (mint count = -1; count < 68; ++count) {
        Buffer target(kind, room(strides[0], count)), source(kind, room(strides[1], count));
        fillRandom(target, random);
        fillRandom(source, random);
        const mint from = startOf(strides[1], count);
        expectWalk(
            target, strides[0], count,
            [&] {
              return copyOf(kind)(target.at(startOf(strides[0], count)), source.at(from), count, strides, 6);
            },
            [&](mint k) { return source.get(from + k * strides[1]); });
      }
}

TEST(Copy, KeepsTheBitsOfANaN) {
  uint64_t bits[2] = {0x7FF0000000000001, 0xFFF8123456789ABC}, copied[2] = {};
  const mint strides[2] = {1, 1}, apart[2] = {-1, 1};
  EXPECT_EQ(machfunc_d_copy(copied, bits, 2, strides, 2), 0) << "nothing is tested";
  EXPECT_EQ(copied[0], bits[0]);
  EXPECT_EQ(copied[1], bits[1]);
  EXPECT_EQ(machfunc_d_copy(copied + 1, bits, 2, apart, 2), 0);
  EXPECT_EQ(copied[1], bits[0]);
}

TEST(Zero, IsStoredAtEveryElementAndNothingElse) {
  std::mt19937_64 random(42);
  for (const mint kind : kKinds)
    for (const auto &strides : kStridePairs)
      for (mint count = -1; count < 68; ++count) {
        Buffer target(kind, room(strides[0], count));
        fillRandom(target, random);
        expectWalk(
            target, strides[0], count,
            [&] { return zeroAt(kind, target.at(startOf(strides[0], count)), count, strides); },
            [&](mint) {
              return Element{kind, {0, 0}};
            });
      }
}

TEST(ByteXor, IsTakenAtEveryElementAndNothingElse) {
  std::mt19937_64 random(43);
  const mint strides[][3] = {{1, 1, 1}, {1, 0, 1}, {1, 1, 0}, {2, 1, 3}, {-1, 1, -2}, {0, 1, 1}};
  for (const auto &s : strides)
    for (mint count = -1; count < 68; ++count) {
      std::vector<uint8_t> target(room(s[0], count) + 2), x(room(s[1], count)), y(room(s[2], count));
      for (auto *list : {&target, &x, &y})
        for (uint8_t &byte : *list) byte = uint8_t(random());
      std::vector<uint8_t> expected = target;
      const mint to = 1 + startOf(s[0], count), a = startOf(s[1], count), b = startOf(s[2], count);
      for (mint k = 0; k < count; ++k)
        expected[size_t(to + k * s[0])] = x[size_t(a + k * s[1])] ^ y[size_t(b + k * s[2])];
      EXPECT_EQ(machfunc_bb_bitxor(target.data() + to, x.data() + a, y.data() + b, count, s, 6), 0);
      EXPECT_EQ(target, expected) << count;
    }
}

TEST(ByteXor, WorksInPlace) {
  const mint dense[3] = {1, 1, 1};
  uint8_t x[4] = {0, 1, 1, 0}, y[4] = {1, 1, 0, 0};
  EXPECT_EQ(machfunc_bb_bitxor(x, x, y, 4, dense, 0), 0);
  EXPECT_EQ(std::vector<uint8_t>(x, x + 4), (std::vector<uint8_t>{1, 0, 1, 0}));
}

// ---- compensated sums of pairs ------------------------------------------------------------------

// The two-sum: s + e is x + y exactly, and rounds to s.
TEST(CompensatedPlus, OfAPairIsItsRoundedSumWithTheErrorAddedBack) {
  std::mt19937_64 random(44);
  const mint strides[3] = {1, 1, 1};
  for (int round = 0; round < 20000; ++round) {
    volatile mreal x = std::ldexp(mreal(int64_t(random())), int(random() % 80) - 40);
    volatile mreal y = std::ldexp(mreal(int64_t(random())), int(random() % 80) - 40);
    volatile mreal s = x + y, seen = s - x, rest = s - seen, e = (x - rest) + (y - seen), compensated = s + e;
    const mreal a = x, b = y;
    mreal sum;
    ASSERT_EQ(machfunc_ddd_compplus(&sum, &a, &b, 1, strides, round % 2 * TORVANE_CHECK_REALS), 0);
    ASSERT_EQ(sum, compensated);
    const mcomplex z = {a, b}, w = {b, a};
    mcomplex both;
    ASSERT_EQ(machfunc_ccc_compplus(&both, &z, &w, 1, strides, 0), 0);
    ASSERT_EQ(both.re, compensated);
    ASSERT_EQ(both.im, compensated);
  }
}

TEST(CompensatedPlus, WalksItsStrides) {
  const mreal x[3] = {1, 2, 3}, y[2] = {10, 20};
  mreal sum[4] = {0, 0, 0, 0};
  const mint strides[3] = {2, 1, -1};
  EXPECT_EQ(machfunc_ddd_compplus(sum, x, y + 1, 2, strides, 2), 0);
  EXPECT_EQ(std::vector<mreal>(sum, sum + 4), (std::vector<mreal>{21, 0, 12, 0}));
  EXPECT_EQ(machfunc_ddd_compplus(sum, x, y, -2, strides, 2), 0);
}

TEST(CompensatedPlus, TestsInBulkInPlaceToo) {
  const mint strides[3] = {1, 1, 1};
  const mreal y[3] = {1, 1e308, 1};
  for (const bool inPlace : {false, true}) {
    mreal x[3] = {1, 1.5e308, 3}, apart[3] = {};
    mreal *result = inPlace ? x : apart;
    EXPECT_EQ(machfunc_ddd_compplus(result, x, y, 3, strides, TORVANE_CHECK_REALS), 1);
    EXPECT_EQ(std::vector<mreal>(result, result + 3), (std::vector<mreal>{2, HUGE_VAL, 4}))
        << "all are written";
  }
  for (const bool inPlace : {false, true}) {
    mcomplex x[2] = {{1, 1}, {1, -1.5e308}}, y2[2] = {{1, 1}, {1, -1e308}}, apart[2] = {};
    EXPECT_EQ(machfunc_ccc_compplus(inPlace ? x : apart, x, y2, 2, strides, TORVANE_CHECK_REALS), 1);
  }
  mreal infinite[1] = {HUGE_VAL};
  EXPECT_EQ(machfunc_ddd_compplus(infinite, infinite, y, 1, strides, TORVANE_CHECK_REALS), 0)
      << "an infinity that was there raises no exception";
  mreal overflowing[1] = {1.5e308};
  EXPECT_EQ(machfunc_ddd_compplus(overflowing, overflowing, y + 1, 1, strides, 0), 0);
  EXPECT_EQ(overflowing[0], HUGE_VAL);
}

// ---- pieces -------------------------------------------------------------------------------------

class ConcurrentMoves : public PoolTest {
protected:
  ConcurrentMoves() {
    for (mint index = 0; index < 5; ++index) setVectorParallelLengthThreshold(index, 1);
  }
};

// Fewer pieces of 16384 than workers, and more.
const mint kLongCounts[] = {1, 2, 3, 100, 16384, 49152, 49153, 200000};

TEST_F(ConcurrentMoves, InPiecesStoreWhatOneLoopStores) {
  std::mt19937_64 random(45);
  const mint strides[][3] = {{1, 1, 1}, {2, 1, 0}, {-1, 2, 1}, {0, 1, 1}};
  for (const mint count : kLongCounts)
    for (const auto &s : strides) {
      const size_t size = 2 * size_t(count);
      std::vector<mint> source(size), target(size, 7), expected(size, 7), zeroed(size, 7), cleared(size, 7);
      std::vector<uint8_t> x(size), y(size), mixed(size, 9), both(size, 9);
      for (size_t k = 0; k < size; ++k) {
        source[k] = mint(random());
        x[k] = uint8_t(random());
        y[k] = uint8_t(random());
      }
      const size_t start = size_t(startOf(s[0], count));
      for (mint k = 0; k < count; ++k) {
        const size_t at = start + size_t(ptrdiff_t(k) * s[0]);
        expected[at] = source[size_t(k) * size_t(s[1])];
        cleared[at] = 0;
        both[at] = x[size_t(k) * size_t(s[1])] ^ y[size_t(k) * size_t(s[2])];
      }
      ASSERT_EQ(machfunc_i_copy(target.data() + start, source.data(), count, s, 0), 0);
      ASSERT_EQ(machfunc_i_zero(zeroed.data() + start, nullptr, count, s, 0), 0);
      ASSERT_EQ(machfunc_bb_bitxor(mixed.data() + start, x.data(), y.data(), count, s, 0), 0);
      ASSERT_EQ(target, expected) << count;
      ASSERT_EQ(zeroed, cleared) << count;
      ASSERT_EQ(mixed, both) << count;
    }
}

// In one loop, since a piece would read what another has written.
TEST_F(ConcurrentMoves, OntoAnOperandMakeNoPool) {
  constexpr mint kCount = 60000;
  std::vector<mint> compacted(2 * kCount);
  std::iota(compacted.begin(), compacted.end(), 0);
  const mint everySecond[2] = {1, 2};
  EXPECT_EQ(machfunc_i_copy(compacted.data(), compacted.data(), kCount, everySecond, 0), 0);
  EXPECT_FALSE(poolExists());
  for (mint k = 0; k < kCount; ++k) ASSERT_EQ(compacted[size_t(k)], 2 * k);
  const mint dense[3] = {1, 1, 1};
  std::vector<uint8_t> x(kCount, 5), y(kCount, 3);
  EXPECT_EQ(machfunc_bb_bitxor(x.data(), x.data(), y.data(), kCount, dense, 0), 0);
  EXPECT_EQ(machfunc_bb_bitxor(y.data(), x.data(), y.data(), kCount, dense, 0), 0);
  EXPECT_FALSE(poolExists());
  EXPECT_EQ(x, std::vector<uint8_t>(kCount, 6));
  EXPECT_EQ(y, std::vector<uint8_t>(kCount, 5));
}

// A compensated sum is one of the routines of two operands: its bulk test tells the piece.
TEST_F(ConcurrentMoves, CompensatedPlusInPiecesStoresWhatOneLoopStores) {
  std::mt19937_64 random(46);
  const mint dense[3] = {1, 1, 1};
  for (const mint count : kLongCounts) {
    std::vector<mreal> x(static_cast<size_t>(count)), y(x.size()), pieces(x.size()), whole(x.size());
    for (size_t k = 0; k < x.size(); ++k) {
      x[k] = std::ldexp(mreal(int64_t(random())), int(random() % 80) - 40);
      y[k] = std::ldexp(mreal(int64_t(random())), int(random() % 80) - 40);
    }
    ASSERT_EQ(machfunc_ddd_compplus(pieces.data(), x.data(), y.data(), count, dense, 2), 0);
    const mint before = setParallelDisabled(1);
    ASSERT_EQ(machfunc_ddd_compplus(whole.data(), x.data(), y.data(), count, dense, 2), 0);
    setParallelDisabled(before);
    ASSERT_EQ(pieces, whole);
  }
}

// Ranges that meet are a race as well, whichever of them begins first; ranges that only touch are none.
TEST_F(ConcurrentMoves, BetweenRangesThatMeetMakeNoPool) {
  constexpr mint kCount = 60000;
  const mint dense[2] = {1, 1}, down[2] = {-1, -1};
  std::vector<mreal> list(2 * kCount, 1.0);
  mreal *const data = list.data();
  machfunc_d_copy(data + 1, data, kCount, dense, 0);
  machfunc_d_copy(data, data + kCount - 1, kCount, dense, 0);
  machfunc_d_copy(data + kCount, data + kCount - 1, kCount, down, 0);
  EXPECT_FALSE(poolExists());
  machfunc_d_copy(data, data + kCount, kCount, dense, 0);
  EXPECT_TRUE(poolExists());
}

} // namespace
