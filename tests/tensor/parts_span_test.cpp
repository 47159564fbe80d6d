// Spans against a dimension: every small case by walking, and the edges of an integer.
#include "tensor/parts_span.h"

#include <gtest/gtest.h>

#include <vector>

using namespace torvane;

namespace {

struct Resolved {
  mint status, start, end, step, count;
  bool operator==(const Resolved &) const = default;
};

Resolved resolve(mint extent, mint flags, mint start, mint end, mint step) {
  mint count = -5;
  const mint status = MTensor_resolveSpan(extent, flags, &start, &end, &step, &count);
  return {status, start, end, step, count};
}

// The positions from start by steps as long as the end is not passed.
std::vector<mint> walk(mint start, mint end, mint step) {
  std::vector<mint> positions;
  for (mint p = start; step > 0 ? p <= end : p >= end; p += step) positions.push_back(p);
  return positions;
}

mint placed(mint extent, bool clips, mint position, mint fromTheEnd) {
  if (position <= fromTheEnd) return position + extent + 1;
  return clips && position > extent ? extent : position;
}

// An empty span stands between two neighbours, or one past an end of the dimension.
bool fits(mint extent, mint start, mint end, mint step) {
  if (step == 0) return false;
  const std::vector<mint> positions = walk(start, end, step);
  const mint low = step > 0 ? start : end, high = step > 0 ? end : start;
  if (positions.empty()) return low == high + 1 && low >= 1 && high <= extent;
  return low >= 1 && high <= extent;
}

TEST(Span, OfASmallDimensionIsWhatWalkingFinds) {
  for (mint extent = 0; extent <= 5; ++extent)
    for (mint flags = 0; flags < 4; ++flags)
      for (mint start = -7; start <= 7; ++start)
        for (mint end = -7; end <= 7; ++end)
          for (mint step = -3; step <= 3; ++step) {
            const mint s = placed(extent, flags & kClipStart, start, 0);
            const mint e = placed(extent, flags & kClipEnd, end, -1);
            const Resolved found = resolve(extent, flags, start, end, step);
            if (fits(extent, s, e, step))
              ASSERT_EQ(found, (Resolved{1, s, e, step, mint(walk(s, e, step).size())}))
                  << extent << ' ' << flags << ' ' << start << ' ' << end << ' ' << step;
            else
              ASSERT_EQ(found, (Resolved{0, start, end, step, -5}))
                  << extent << ' ' << flags << ' ' << start << ' ' << end << ' ' << step;
          }
}

TEST(Span, WithoutAStepGoesTowardsItsEnd) {
  EXPECT_EQ(resolve(9, 0, 5, 1, kAutomaticStep), (Resolved{1, 5, 1, -1, 5}));
  EXPECT_EQ(resolve(9, 0, 1, 5, kAutomaticStep), (Resolved{1, 1, 5, 1, 5}));
  EXPECT_EQ(resolve(9, 0, 4, 4, kAutomaticStep), (Resolved{1, 4, 4, 1, 1}));
}

TEST(Span, StartsOnePastTheEndWhereItStartsAtZeroClippedOrNot) {
  EXPECT_EQ(resolve(4, 0, 0, 4, 1), (Resolved{1, 5, 4, 1, 0}));
  EXPECT_EQ(resolve(4, kClipStart, 0, 4, 1), (Resolved{1, 5, 4, 1, 0}));
  EXPECT_EQ(resolve(4, kClipStart, 7, 4, 1), (Resolved{1, 4, 4, 1, 1}));
}

TEST(Span, OfTheLongestDimensionDoesNotOverflow) {
  constexpr mint most = INT32_MAX;
  EXPECT_EQ(resolve(most, 0, 1, most, 1), (Resolved{1, 1, most, 1, most}));
  EXPECT_EQ(resolve(most, 0, -1, 1, -1), (Resolved{1, most, 1, -1, most}));
  EXPECT_EQ(resolve(most, 0, 1, most, most), (Resolved{1, 1, most, most, 1}));
  EXPECT_EQ(resolve(most, 0, 0, most, 1), (Resolved{0, 0, most, 1, -5})) << "no integer is one past the end";
  EXPECT_EQ(resolve(5, 0, INT32_MIN, 3, 1), (Resolved{0, INT32_MIN, 3, 1, -5}));
  EXPECT_EQ(resolve(5, 0, 1, INT32_MIN, -1), (Resolved{0, 1, INT32_MIN, -1, -5}));
  EXPECT_EQ(resolve(5, 0, 3, 1, -most), (Resolved{1, 3, 1, -most, 1}));
}

} // namespace
