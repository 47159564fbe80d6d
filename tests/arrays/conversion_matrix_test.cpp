// The whole matrix of conversions against its model: every pair, method, clip and range, at every processor
// level.
#include "conversion_model.h"
#include "conversion_values.h"

#include "elementwise/at_levels.h"
#include "runtime/element_types.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace torvane::test {

namespace {

constexpr unsigned char kUntouched = 0xA5;

MNumericArray arrayOver(mint tag, mint *count, unsigned char *data) {
  return {0, count, 1, 0, 0, tag, *count, data, 1};
}

// A source and what the model makes of each of its elements.
struct Case {
  Asked asked;
  mint from, to;
  const Bytes &source;
  std::vector<Converted> expected;

  Case(const Asked &a, mint fromTag, mint toTag, const Bytes &elements)
      : asked(a), from(fromTag), to(toTag), source(elements) {
    for (size_t i = 0; i < count(); ++i) expected.push_back(modelOf(asked, from, at(i), to));
  }
  size_t count() const { return source.size() / kElementWidths[from]; }
  const unsigned char *at(size_t i) const { return source.data() + i * kElementWidths[from]; }

  testing::AssertionResult differs(size_t i, const std::string &what) const {
    return testing::AssertionFailure() << from << " to " << to << ", " << asked.text() << ", element " << i
                                       << " (" << textOf(from, at(i)) << "): " << what;
  }

  // One call over the elements from `first` on: the status of the first that fails, all before it converted,
  // it and all behind untouched. Where it ended goes into `end`.
  testing::AssertionResult runFrom(size_t first, size_t *end) const {
    const size_t width = kElementWidths[to], bytes = (count() - first) * width;
    Bytes target(bytes + 8, kUntouched);
    const mint status = convert(at(first), mint(count() - first), target.data() + 8);
    size_t i = first;
    for (; i < count() && expected[i].status == 0; ++i)
      if (!isElement(to, target.data() + 8 + (i - first) * width, expected[i].bytes.data()))
        return differs(i, "became " + textOf(to, target.data() + 8 + (i - first) * width) + ", not " +
                              textOf(to, expected[i].bytes.data()));
    *end = i;
    const mint due = i < count() ? expected[i].status : 0;
    if (status != due)
      return differs(std::min(i, count() - 1),
                     "status " + std::to_string(status) + ", not " + std::to_string(due));
    for (size_t k = 8 + (i - first) * width; k < target.size(); ++k)
      if (target[k] != kUntouched) return differs(i, "written behind the failure");
    return testing::AssertionSuccess();
  }

  // All elements that pass, as one array.
  testing::AssertionResult runPassing() const {
    Bytes elements, due;
    for (size_t i = 0; i < count(); ++i) {
      if (expected[i].status != 0) continue;
      elements.insert(elements.end(), at(i), at(i) + kElementWidths[from]);
      due.insert(due.end(), expected[i].bytes.begin(), expected[i].bytes.begin() + kElementWidths[to]);
    }
    mint passing = mint(elements.size() / kElementWidths[from]);
    Bytes target(due.size() + 8, kUntouched);
    const mint status = convert(elements.data(), passing, target.data() + 8);
    if (status != 0) return testing::AssertionFailure() << asked.text() << ": status " << status;
    for (mint i = 0; i < passing; ++i) {
      const size_t place = size_t(i) * kElementWidths[to];
      if (!isElement(to, target.data() + 8 + place, due.data() + place))
        return testing::AssertionFailure()
               << from << " to " << to << ", " << asked.text() << ": "
               << textOf(from, elements.data() + size_t(i) * kElementWidths[from]) << " became "
               << textOf(to, target.data() + 8 + place) << ", not " << textOf(to, due.data() + place);
    }
    return testing::AssertionSuccess();
  }

  // Every element as an array of its own, so that no other one decides how it is converted: many times over
  // where there is time for it, as long as the widest registers.
  testing::AssertionResult runAlone() const {
    const size_t copies = count() < 5000 ? 48 : 1, width = kElementWidths[to];
    Bytes elements(copies * kElementWidths[from]), target(copies * width);
    for (size_t i = 0; i < count(); ++i) {
      for (size_t k = 0; k < copies; ++k)
        std::memcpy(elements.data() + k * kElementWidths[from], at(i), kElementWidths[from]);
      std::fill(target.begin(), target.end(), kUntouched);
      const mint status = convert(elements.data(), mint(copies), target.data());
      if (status != expected[i].status) return differs(i, "status " + std::to_string(status));
      if (status != 0 && std::count(target.begin(), target.end(), kUntouched) != ptrdiff_t(target.size()))
        return differs(i, "written all the same");
      for (size_t k = 0; k < copies && status == 0; ++k)
        if (!isElement(to, target.data() + k * width, expected[i].bytes.data()))
          return differs(i, "alone became " + textOf(to, target.data() + k * width));
    }
    return testing::AssertionSuccess();
  }

  // Passing and failing elements together; goes on behind the first failures, and then further apart.
  testing::AssertionResult runMixed() const {
    constexpr size_t mostRuns = 20;
    size_t runs = 0, start = 0;
    while (start < count()) {
      size_t end = start;
      const testing::AssertionResult result = runFrom(start, &end);
      if (!result) return result;
      start = end + 1;
      if (++runs > mostRuns) start += count() / mostRuns;
    }
    return testing::AssertionSuccess();
  }

  testing::AssertionResult run() const {
    const mint levels = from <= 10 ? levelsToTest() : 1; // complexes have one
    for (mint level = 0; level < levels; ++level) {
      const mint previous = setProcessorLevel(level);
      testing::AssertionResult result = runPassing();
      if (result) result = runAlone();
      if (result) result = runMixed();
      setProcessorLevel(previous);
      if (!result) return result << " at level " << level;
    }
    return testing::AssertionSuccess();
  }

private:
  mint convert(const unsigned char *elements, mint length, unsigned char *target) const {
    MNumericArray input = arrayOver(from, &length, const_cast<unsigned char *>(elements));
    MNumericArray output = arrayOver(to, &length, target), *slot = &output;
    const ConversionMethod method = asked.record();
    return MNumericArray_convert(&slot, &input, to, &method);
  }
};

// Pairs of one type are copied, but for Round on reals: the core never asks a loop for them.
bool isCopy(mint from, mint to, mint method) { return from == to && (method != kRound || from <= 8); }

template <class Visit>
void forEachAsked(mint from, mint to, const std::vector<int> &tolerances, Visit visit) {
  for (const mint method : {kCheck, kCoerce, kRound, kScale})
    for (const bool clips : {false, true})
      for (const bool isSymmetric : {false, true})
        for (const int tolerance : tolerances)
          if (!isCopy(from, to, method)) visit(Asked{method, clips, isSymmetric, tolerance});
}

class Sources : public testing::TestWithParam<mint> {};

TEST_P(Sources, ConvertSpecialElementsAsTheModelDoes) {
  const mint from = GetParam();
  const Bytes elements = specialElements(from);
  const std::vector<int> tolerances =
      from <= 8 ? std::vector<int>{0} : std::vector<int>{0, 1, 30, 52, 53, -1};
  for (mint to = 1; to <= kTags; ++to)
    forEachAsked(from, to, tolerances,
                 [&](const Asked &asked) { ASSERT_TRUE(Case(asked, from, to, elements).run()); });
}

INSTANTIATE_TEST_SUITE_P(EveryTag, Sources, testing::Range(mint{1}, mint{13}));

class SmallSources : public testing::TestWithParam<mint> {};

TEST_P(SmallSources, ConvertEveryElementAsTheModelDoes) {
  const mint from = GetParam();
  const Bytes elements = everyElement(from);
  for (mint to = 1; to <= kTags; ++to)
    forEachAsked(from, to, {0}, [&](const Asked &asked) {
      if (asked.isSymmetric && (to > 8 || asked.method != kCheck)) return; // alike
      ASSERT_TRUE(Case(asked, from, to, elements).run());
    });
}

INSTANTIATE_TEST_SUITE_P(Integers, SmallSources, testing::Range(mint{1}, mint{5}));

// What passes by itself, and one element that fails, at every place where a group may begin or end, and in
// the groups that overlap: the last one, and the first one of arrays that are long enough to look for a line.
TEST(Positions, FailureIsFoundWhereItIsInLongArrays) {
  struct Pair {
    mint from, to;
    Asked asked;
    double good, bad;
  };
  const Pair pairs[] = {{10, 5, {kRound, false, false, 1}, 3.5, 1e10},
                        {10, 5, {kCheck, false, false, 0}, 3, 3.5},
                        {10, 2, {kCoerce, true, false, 1}, 300, 0.5},
                        {9, 1, {kRound, false, false, 1}, -128, 127.5},
                        {9, 6, {kRound, false, false, 1}, 4e9, -1},
                        {10, 9, {kCoerce, false, false, 1}, 0.1, 1e39},
                        {10, 9, {kCheck, false, false, 0}, 0.5, 0.1},
                        {10, 11, {kRound, false, false, 1}, 0.5, NAN},
                        {5, 2, {kCheck, false, false, 0}, 255, 256},
                        {5, 9, {kCheck, false, false, 0}, 16777216, 16777217},
                        {7, 10, {kCheck, false, false, 0}, -4096, 9007199254740993.0}};
  for (const Pair &pair : pairs)
    for (const mint count : {1, 63, 127, 128, 129, 255, 256, 257, 300, 1000, 1025, 2048, 4100, 17000})
      for (const mint at : {-1,  0,   1,   7,   8,   63,  64,  127, 128, 171,  172,  173,
                            254, 255, 256, 299, 743, 744, 871, 872, 999, 1024, 4099, 16999}) {
        if (at >= count) continue;
        const mint width = mint(kElementWidths[pair.from]);
        Bytes elements(size_t(count * width));
        for (mint i = 0; i < count; ++i) {
          const double x = i == at ? pair.bad : pair.good;
          const auto narrow = static_cast<float>(x);
          const auto word =
              pair.from <= 8 ? (x == 9007199254740992.0 ? int64_t{9007199254740993} : int64_t(x)) : 0;
          std::memcpy(elements.data() + i * width,
                      pair.from == 10  ? static_cast<const void *>(&x)
                      : pair.from == 9 ? static_cast<const void *>(&narrow)
                                       : &word,
                      size_t(width));
        }
        const Case one(pair.asked, pair.from, pair.to, elements);
        ASSERT_EQ(at >= 0, std::any_of(one.expected.begin(), one.expected.end(),
                                       [](const Converted &c) { return c.status != 0; }));
        ASSERT_TRUE(one.run());
      }
}

} // namespace

} // namespace torvane::test
