// Which pieces a range is cut into, against a slow model of each rule.
#include "parallel/partition.h"
#include "runtime/memory.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <utility>
#include <vector>

using namespace torvane;

namespace {

using Pieces = std::vector<std::pair<int64_t, int64_t>>;

// Counts in steps of one where the library divides.
int64_t multipleAtLeast(int64_t value, int64_t grain) {
  while (value % grain != 0) ++value;
  return value;
}

// The rule in words: while chunks and indices are left, a chunk is its share of the rest, at least one index,
// and whole grains. Empty for the serial path.
Pieces modelPieces(int64_t first, int64_t last, int64_t grain, const ParallelPartition *partition,
                   int64_t workers) {
  int64_t size = 0, chunks = workers;
  const mint kind = partition != nullptr ? partition->kind : 0;
  if (partition != nullptr) {
    size = partition->size;
    if ((last - first) / grain <= size) return {};
    if (size < grain) size = grain;
    while (size % grain != 0) --size;
    if (kind == 2) chunks = (last - first) / size > 1 ? (last - first) / size : 1;
    if (kind == 3) chunks = size;
    if (kind == 4) chunks = 2;
    if (kind < 1 || kind > 4) chunks = 1;
  }
  Pieces pieces;
  while (chunks > 0 && first < last) {
    const int64_t parts = kind == 4 ? workers : chunks;
    int64_t chunk = (last - first) / parts;
    if (chunk < 1) chunk = 1;
    chunk = multipleAtLeast(chunk, grain);
    if ((kind == 1 || kind == 4) && chunk < size) chunk = size;
    const int64_t end = first + chunk < last ? first + chunk : last;
    pieces.emplace_back(first, end);
    first = end;
    if (kind != 4) --chunks;
  }
  return pieces;
}

Pieces cutAll(PieceCutter cutter) {
  Pieces pieces;
  while (!cutter.isEmpty()) {
    const Piece piece = cutter.cut();
    pieces.emplace_back(piece.first, piece.last);
  }
  return pieces;
}

Pieces cutPieces(mint first, mint last, mint grain, const ParallelPartition *partition, mint workers) {
  PieceCutter cutter;
  if (!cutByPartition(&cutter, {first, last}, grain, partition, workers)) return {};
  return cutAll(cutter);
}

TEST(Partition, PiecesAreThoseOfTheModel) {
  std::mt19937 random(1);
  const auto below = [&](uint32_t limit) { return static_cast<mint>(random() % limit); };
  for (int round = 0; round < 20000; ++round) {
    const mint first = below(50) - 25, last = first + 1 + below(400), grain = 1 + below(20),
               workers = 2 + below(7);
    const ParallelPartition partition = {below(6), 1 + below(40), 0};
    const ParallelPartition *chosen = round % 5 == 0 ? nullptr : &partition;
    ASSERT_EQ(cutPieces(first, last, grain, chosen, workers),
              modelPieces(first, last, grain, chosen, workers))
        << first << " " << last << " " << grain << " " << partition.kind << " " << partition.size << " "
        << workers;
  }
}

TEST(Partition, PiecesFollowEachOtherAndCoverTheRange) {
  std::mt19937 random(2);
  for (int round = 0; round < 5000; ++round) {
    const auto last = static_cast<mint>(1 + random() % 3000), grain = static_cast<mint>(1 + random() % 20);
    const ParallelPartition partition = {static_cast<mint>(1 + random() % 4),
                                         static_cast<mint>(1 + random() % 9), 0};
    const Pieces pieces = cutPieces(0, last, grain, &partition, 3);
    int64_t at = 0;
    for (const auto &[first, end] : pieces) {
      ASSERT_EQ(first, at);
      ASSERT_LT(first, end);
      ASSERT_TRUE(end == last || (end - first) % grain == 0);
      at = end;
    }
    if (!pieces.empty()) ASSERT_EQ(at, last);
  }
}

TEST(Partition, NoPartitionGivesEachWorkerAnEvenPiece) {
  EXPECT_EQ(cutPieces(0, 32768, 1, nullptr, 2), (Pieces{{0, 16384}, {16384, 32768}}));
  EXPECT_EQ(cutPieces(-5, 5, 1, nullptr, 3), (Pieces{{-5, -2}, {-2, 1}, {1, 5}}));
  EXPECT_EQ(cutPieces(7, 9, 1, nullptr, 4), (Pieces{{7, 8}, {8, 9}}));
  EXPECT_EQ(cutPieces(0, 10, 4, nullptr, 2), (Pieces{{0, 8}, {8, 10}}));
}

TEST(Partition, SharesAreRaisedToWholeGrainsFromTheFirstPieceOn) {
  const ParallelPartition grains = {kOfSize, 1, 0};
  EXPECT_EQ(cutPieces(0, 49152, 16384, &grains, 2), (Pieces{{0, 16384}, {16384, 32768}, {32768, 49152}}));
  // A third of 50000 is more than a grain: the first piece is two, and the last one what is left.
  EXPECT_EQ(cutPieces(0, 50000, 16384, &grains, 2), (Pieces{{0, 32768}, {32768, 49152}, {49152, 50000}}));
  EXPECT_TRUE(cutPieces(0, 16384 + 16383, 16384, &grains, 2).empty()) << "one grain and a rest run serially";
}

TEST(Partition, ShrinkingPiecesTakeTheShareOfOneWorkerInWhatIsLeft) {
  const ParallelPartition shrinking = {kShrinking, 10, 0};
  EXPECT_EQ(cutPieces(0, 100, 1, &shrinking, 2), (Pieces{{0, 50}, {50, 75}, {75, 87}, {87, 97}, {97, 100}}));
}

TEST(Partition, RangeOfAllIntegersIsCutWithoutOverflow) {
  const Pieces halves = {{INT_MIN, -1}, {-1, INT_MAX}};
  EXPECT_EQ(cutPieces(INT_MIN, INT_MAX, 1, nullptr, 2), halves);
  EXPECT_EQ(cutPieces(INT_MIN, INT_MAX, INT_MAX, nullptr, 2),
            (Pieces{{INT_MIN, INT_MIN + int64_t{INT_MAX}}, {-1, INT_MAX}}));
  const ParallelPartition wide = {kAtLeast, INT_MAX, 0};
  EXPECT_EQ(cutPieces(INT_MIN, INT_MAX, 1, &wide, 4),
            (Pieces{{INT_MIN, -1}, {-1, INT_MAX - 1}, {INT_MAX - 1, INT_MAX}}));
  PieceCutter many;
  const ParallelPartition count = {kCount, INT_MAX, 0};
  ASSERT_TRUE(cutByPartition(&many, {INT_MIN, INT_MAX}, 1, &count, 4));
  EXPECT_EQ(many.piecesLeft, INT_MAX);
  EXPECT_EQ(many.cut().last, INT_MIN + 2);
}

// By index: piece k is [k * size, (k + 1) * size), the last one ends at the range's end.
Pieces cutIndexed(mint first, mint last, mint grain, mint workers) {
  PieceCutter cutter;
  cutByIndex(&cutter, {first, last}, grain, workers);
  return cutAll(cutter);
}

TEST(Partition, PiecesByIndexStartAtMultiplesOfTheirLength) {
  EXPECT_EQ(cutIndexed(0, 103, 10, 4), (Pieces{{0, 30}, {30, 60}, {60, 90}, {90, 103}}));
  EXPECT_EQ(cutIndexed(0, 100, 1, 3), (Pieces{{0, 33}, {33, 66}, {66, 100}}));
  EXPECT_EQ(cutIndexed(100, 200, 1, 2), (Pieces{{0, 50}, {50, 200}})) << "not from the range's first index";
}

TEST(Partition, PiecesByIndexNeverPassTheEndOfTheRange) {
  // 199 / 10 is 19, and 9 more: seven pieces of 28 and what is left use the range up.
  const Pieces pieces = cutIndexed(0, 199, 10, 10);
  ASSERT_EQ(pieces.size(), 8u);
  EXPECT_EQ(pieces.back(), std::make_pair(int64_t{196}, int64_t{199}));
  EXPECT_EQ(cutIndexed(0, INT_MAX, INT_MAX / 2, 2).back().second, INT_MAX);
}

struct Owned {
  ParallelPartition *partition;
  ~Owned() { torvane::free(partition); }
};

TEST(Partition, NewPartitionHasASizeOfAtLeastOne) {
  for (const mint size : {INT_MIN, -1, 0, 1}) {
    const Owned owned{ParallelPartition_new(kCount, size)};
    EXPECT_EQ(owned.partition->kind, 3);
    EXPECT_EQ(owned.partition->size, 1);
    EXPECT_EQ(owned.partition->forceSerial, 0);
  }
  const Owned large{ParallelPartition_new(kOfSize, INT_MAX)};
  EXPECT_EQ(large.partition->size, INT_MAX);
}

TEST(Partition, SerialPartitionIsThreeOnes) {
  const Owned owned{ParallelPartition_serial()};
  EXPECT_EQ(owned.partition->kind, 1);
  EXPECT_EQ(owned.partition->size, 1);
  EXPECT_EQ(owned.partition->forceSerial, 1);
}

TEST(Partition, KindsAndRecordAreThoseThatCallersHold) {
  EXPECT_EQ(sizeof(ParallelPartition), 12u);
  EXPECT_EQ(kAtLeast, 1);
  EXPECT_EQ(kOfSize, 2);
  EXPECT_EQ(kCount, 3);
  EXPECT_EQ(kShrinking, 4);
}

} // namespace
