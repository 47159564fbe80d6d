// Reductions against plain loops in exact or wider arithmetic: initial values, every length up to 67 and
// around the blocks of checked loops, strides, checks, what a NaN and a signed zero do.
#include "support/exact_integer.h"
#include "support/kinds.h"

#include <gtest/gtest.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>

#include <algorithm>
#include <memory>

using namespace torvane::test;

namespace {

const mint kDense[3] = {1, 1, 1};
constexpr mreal kInfinity = HUGE_VAL, kNaN = NAN;
constexpr mint kAllLengths = 68;

// ---- helpers ------------------------------------------------------------------------------------

// Exactly as many elements as are walked, so that the address sanitizer sees any other.
template <class T> class Data {
public:
  Data(mint count, mint stride)
      : size(count == 0 ? 0 : size_t(count - 1) * size_t(std::abs(stride)) + 1), elements(new T[size]),
        first(stride < 0 && size != 0 ? elements.get() + size - 1 : elements.get()) {}

  T *begin() { return elements.get(); }
  T *end() { return elements.get() + size; }
  const T *start() const { return first; } // the element pointed at
private:
  size_t size;
  std::unique_ptr<T[]> elements;
  T *first;
};

template <class T> std::vector<T> walked(const T *start, mint stride, mint count) {
  std::vector<T> list;
  for (mint k = 0; k < count; ++k) list.push_back(start[ptrdiff_t(k) * stride]);
  return list;
}

template <class T> T randomElement(std::mt19937_64 &random);
template <> mint randomElement(std::mt19937_64 &random) {
  return sampleElement(2, random).value.re == INT32_MIN ? 5 : mint(random() % 2000001) - 1000000;
}
template <> mreal randomElement(std::mt19937_64 &random) { return sampleElement(3, random).value.re; }
template <> mcomplex randomElement(std::mt19937_64 &random) { return sampleElement(4, random).value; }

// Calls `check(data as walked, pointer, stride, count)` for every length and several strides.
template <class T, class Check> void overShapes(Check check) {
  std::mt19937_64 random(77);
  for (const mint stride : {1, 2, 5, 0, -1, -3})
    for (mint count = 0; count < kAllLengths; ++count) {
      Data<T> data(count, stride);
      std::generate(data.begin(), data.end(), [&] { return randomElement<T>(random); });
      check(walked(data.start(), stride, count), data.start(), stride, count);
    }
}

// An accumulator between red zones, holding what must not count.
template <class A> struct Guarded {
  A before, value[2], after;
  Guarded() { std::memset(static_cast<void *>(this), 0x5A, sizeof *this); }
  bool zonesHold(int used) const {
    Guarded pristine;
    return std::memcmp(&before, &pristine.before, sizeof before) == 0 &&
           std::memcmp(&after, &pristine.after, sizeof after) == 0 &&
           (used == 2 || std::memcmp(&value[1], &pristine.value[1], sizeof after) == 0);
  }
};

// What a reduction stores and returns.
template <class A> struct Reduced {
  A value[2] = {};
  mint status = 0;
};

template <int used = 1, class A, class T>
Reduced<A> reduceBy(mint (*routine)(A *, const T *, mint, const mint *, mint), const T *data, mint stride,
                    mint count, mint flags) {
  Guarded<A> guarded;
  const mint strides[2] = {99, stride};
  Reduced<A> reduced;
  reduced.status = routine(guarded.value, data, count, strides, flags);
  EXPECT_TRUE(guarded.zonesHold(used));
  std::copy(guarded.value, guarded.value + used, reduced.value);
  return reduced;
}

template <class A, class T>
Reduced<A> reduceList(mint (*routine)(A *, const T *, mint, const mint *, mint), const std::vector<T> &list,
                      mint flags = 0) {
  return reduceBy(routine, list.data(), 1, mint(list.size()), flags);
}
template <class A, class T>
Reduced<A> reduceTwo(mint (*routine)(A *, const T *, mint, const mint *, mint), const std::vector<T> &list,
                     mint flags = 0) {
  return reduceBy<2>(routine, list.data(), 1, mint(list.size()), flags);
}

bool sameBits(mreal x, mreal y) { return std::memcmp(&x, &y, sizeof x) == 0; }

// ---- total --------------------------------------------------------------------------------------

TEST(Total, OfNoElementsIsZeroWhateverTheAccumulatorHeld) {
  for (const mint count : {0, -5}) {
    mreal real = 42;
    mint word = 42;
    mcomplex complex = {42, 42};
    EXPECT_EQ(machfunc_d_total(&real, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(machfunc_i_total(&word, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(machfunc_c_total(&complex, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(real, 0);
    EXPECT_EQ(word, 0);
    EXPECT_EQ(complex.re, 0);
    EXPECT_EQ(complex.im, 0);
  }
}

// Rounding is part of the interface: left to right, nothing reassociated.
TEST(Total, OfRealsRunsLeftToRight) {
  const std::vector<double> data = randomReals<double>(1000, 3);
  for (const mint count : {1, 2, 7, 63, 1000}) {
    volatile double expected = 0;
    for (mint k = 0; k < count; ++k) expected = expected + data[size_t(k)];
    mreal total = 1;
    EXPECT_EQ(machfunc_d_total(&total, data.data(), count, kDense, 0), 0);
    EXPECT_TRUE(sameReal<double>(total, expected)) << count;
  }
  const mreal cancelling[4] = {1e16, 1, -1e16, 1};
  mreal total;
  machfunc_d_total(&total, cancelling, 4, kDense, 0);
  EXPECT_EQ(total, 1); // 1e16 + 1 rounds the 1 away
}

TEST(Total, WalksAnyStride) {
  const mreal data[7] = {1, 2, 4, 8, 16, 32, 64};
  const auto at = [&](mint start, mint stride, mint count) {
    return reduceBy(machfunc_d_total, data + start, stride, count, 0).value[0];
  };
  EXPECT_EQ(at(0, 2, 4), 85);
  EXPECT_EQ(at(6, -3, 3), 73);
  EXPECT_EQ(at(5, 0, 4), 128);
}

TEST(Total, OfComplexesSumsBothParts) {
  const mcomplex data[3] = {{1, 2}, {3, 4}, {-5, 0.5}};
  mcomplex total;
  EXPECT_EQ(machfunc_c_total(&total, data, 3, kDense, TORVANE_CHECK_REALS), 0);
  EXPECT_EQ(total.re, -1);
  EXPECT_EQ(total.im, 6.5);
}

// The status and the sum that a checked total has at its end, one exact running sum after the other.
Reduced<mint> exactTotal(const std::vector<int64_t> &steps) {
  int64_t sum = 0;
  for (size_t k = 0; k < steps.size(); ++k) {
    sum += steps[k];
    if (sum > INT32_MAX || sum <= INT32_MIN) return {{}, mint(k + 1)};
  }
  return {{mint(sum)}, 0};
}

TEST(Total, OfIntegersIsExactAtEveryLengthAndStride) {
  overShapes<mint>([](const std::vector<mint> &list, const mint *start, mint stride, mint count) {
    const Reduced<mint> expected = exactTotal({list.begin(), list.end()});
    ASSERT_EQ(expected.status, 0);
    for (const mint flags : {0, 2, 4, 6}) {
      const Reduced<mint> reduced = reduceBy(machfunc_i_total, start, stride, count, flags);
      ASSERT_EQ(reduced.status, 0);
      ASSERT_EQ(reduced.value[0], expected.value[0]) << count << " at " << stride;
    }
  });
}

TEST(Total, OfIntegersWrapsUncheckedAndFailsAtTheFirstBadRunningSum) {
  const mint data[4] = {2147483647, 1, -5, 3};
  mint total;
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, 0), 0);
  EXPECT_EQ(total, static_cast<mint>(2147483647u + 1u - 5u + 3u));
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, TORVANE_CHECK_REALS), 0) << "the flag of another kind";
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, TORVANE_CHECK_INTEGERS), 2);
  const mint reserved[2] = {-2147483647, -1};
  EXPECT_EQ(machfunc_i_total(&total, reserved, 2, kDense, TORVANE_CHECK_INTEGERS), 2);
  EXPECT_EQ(machfunc_i_total(&total, reserved, 2, kDense, 0), 0);
  EXPECT_EQ(total, INT32_MIN);
}

// Blocks are tested at once and taken one by one only where a prefix might fail: none may slip through, and
// one that comes back into range has failed all the same.
TEST(Total, OfIntegersFindsAFailureAnywhereInLongData) {
  for (const mint stride : {1, 3})
    for (const mint size : {1023, 1024, 1025, 2048, 5000})
      for (const mint at : {0, 1, 500, 1022, 1023, 1024, 1025, 2047, 2048, 4999}) {
        if (at + 1 >= size) continue;
        Data<mint> data(size, stride);
        std::fill(data.begin(), data.end(), 0);
        data.begin()[at * stride] = INT32_MAX - 7;
        data.begin()[(at + 1) * stride] = 7;
        const auto status = [&] {
          return reduceBy(machfunc_i_total, data.start(), stride, size, TORVANE_CHECK_INTEGERS).status;
        };
        EXPECT_EQ(status(), 0) << "the largest word is in range";
        data.begin()[(at + 1) * stride] = 8;
        EXPECT_EQ(status(), at + 2);
        if (at + 2 < size) {
          data.begin()[(at + 2) * stride] = -100;
          EXPECT_EQ(status(), at + 2) << "back in range too late";
        }
        data.begin()[at * stride] = INT32_MIN;
        EXPECT_EQ(status(), at + 1) << "the reserved value";
      }
}

TEST(Total, OfRandomLongIntegersAgreesWithExactSums) {
  std::mt19937_64 random(5);
  for (int round = 0; round < 300; ++round) {
    const mint size = mint(random() % 4000), bits = mint(random() % 31);
    std::vector<mint> list(size_t(size), 0);
    for (mint &x : list) x = mint(int64_t(random() >> 32) - (int64_t(1) << 31)) >> bits;
    const Reduced<mint> expected = exactTotal({list.begin(), list.end()});
    const Reduced<mint> checked = reduceList(machfunc_i_total, list, TORVANE_CHECK_INTEGERS);
    ASSERT_EQ(checked.status, expected.status);
    if (expected.status == 0) ASSERT_EQ(checked.value[0], expected.value[0]);
    uint32_t wrapped = 0;
    for (const mint x : list) wrapped += uint32_t(x);
    ASSERT_EQ(uint32_t(reduceList(machfunc_i_total, list).value[0]), wrapped);
  }
}

TEST(Total, OfRealsFailsWhereTheRunningSumOverflowsOrIsNaN) {
  const std::vector<mreal> overflowing = {1e308, 1e308, -1e308}, invalid = {1, kInfinity, 2, -kInfinity};
  EXPECT_EQ(reduceList(machfunc_d_total, overflowing).value[0], kInfinity);
  EXPECT_EQ(reduceList(machfunc_d_total, overflowing).status, 0);
  EXPECT_EQ(reduceList(machfunc_d_total, overflowing, TORVANE_CHECK_REALS).status, 2);
  EXPECT_EQ(reduceList(machfunc_d_total, overflowing, TORVANE_CHECK_INTEGERS).status, 0);
  EXPECT_EQ(reduceList(machfunc_d_total, invalid, TORVANE_CHECK_REALS).status, 2);
  EXPECT_EQ(reduceList(machfunc_d_total, {1, 2, kNaN}, TORVANE_CHECK_REALS).status, 3);
  EXPECT_EQ(reduceList(machfunc_d_total, {kNaN}, TORVANE_CHECK_REALS).status, 1);
}

TEST(Total, OfComplexesFailsWhereEitherPartDoes) {
  const std::vector<mcomplex> data = {{1, 1}, {2, 1e308}, {3, 1e308}, {kNaN, 0}};
  EXPECT_EQ(reduceList(machfunc_c_total, data, TORVANE_CHECK_REALS).status, 3);
  EXPECT_EQ(reduceList(machfunc_c_total, data).status, 0);
  EXPECT_EQ(reduceList(machfunc_c_total, {{1, 2}, {kNaN, 0}}, TORVANE_CHECK_REALS).status, 2);
}

TEST(Total, CheckedOrNotHasTheSameBits) {
  overShapes<mcomplex>([](const std::vector<mcomplex> &list, const mcomplex *start, mint stride, mint count) {
    mcomplex expected = {0, 0};
    mint failure = 0;
    for (size_t k = 0; k < list.size(); ++k) {
      expected = {expected.re + list[k].re, expected.im + list[k].im};
      if (failure == 0 && !(std::isfinite(expected.re) && std::isfinite(expected.im))) failure = mint(k + 1);
    }
    const Reduced<mcomplex> plain = reduceBy(machfunc_c_total, start, stride, count, 0);
    const Reduced<mcomplex> checked = reduceBy(machfunc_c_total, start, stride, count, TORVANE_CHECK_REALS);
    ASSERT_EQ(plain.status, 0);
    ASSERT_TRUE(sameReal(plain.value[0].re, expected.re) && sameReal(plain.value[0].im, expected.im));
    ASSERT_EQ(checked.status, failure);
    if (failure == 0)
      ASSERT_TRUE(sameReal(checked.value[0].re, expected.re) && sameReal(checked.value[0].im, expected.im));
  });
}

// ---- extremes -----------------------------------------------------------------------------------

TEST(Extremes, OfNoElementsAreTheInitialValues) {
  for (const mint count : {0, -3}) {
    const auto word = [&](auto *routine) {
      return reduceBy(routine, static_cast<const mint *>(nullptr), 1, count, 6);
    };
    const auto real = [&](auto *routine) {
      return reduceBy(routine, static_cast<const mreal *>(nullptr), 1, count, 6);
    };
    EXPECT_EQ(word(machfunc_i_max).value[0], INT32_MIN);
    EXPECT_EQ(word(machfunc_i_max).status, 0) << "no element, no failure";
    EXPECT_EQ(word(machfunc_i_min).value[0], INT32_MAX);
    EXPECT_EQ(word(machfunc_i_maxabs).value[0], 0);
    EXPECT_EQ(real(machfunc_d_max).value[0], -kInfinity);
    EXPECT_EQ(real(machfunc_d_min).value[0], kInfinity);
    EXPECT_EQ(real(machfunc_d_maxabs).value[0], 0);
    const Reduced<mint> words =
        reduceBy<2>(machfunc_i_minmax, static_cast<const mint *>(nullptr), 1, count, 6);
    EXPECT_EQ(words.value[0], INT32_MAX);
    EXPECT_EQ(words.value[1], INT32_MIN);
    EXPECT_EQ(words.status, 0);
    const Reduced<mreal> reals =
        reduceBy<2>(machfunc_d_minmax, static_cast<const mreal *>(nullptr), 1, count, 6);
    EXPECT_EQ(reals.value[0], kInfinity);
    EXPECT_EQ(reals.value[1], -kInfinity);
  }
}

TEST(Extremes, OfIntegersAreRightAtEveryLengthAndStride) {
  overShapes<mint>([](const std::vector<mint> &list, const mint *start, mint stride, mint count) {
    if (count == 0) return;
    const auto [low, high] = std::minmax_element(list.begin(), list.end());
    for (const mint flags : {0, 4}) {
      ASSERT_EQ(reduceBy(machfunc_i_max, start, stride, count, flags).value[0], *high);
      ASSERT_EQ(reduceBy(machfunc_i_min, start, stride, count, flags).value[0], *low);
      ASSERT_EQ(reduceBy(machfunc_i_maxabs, start, stride, count, flags).value[0], std::max(*high, -*low));
      const Reduced<mint> both = reduceBy<2>(machfunc_i_minmax, start, stride, count, flags);
      ASSERT_EQ(both.value[0], *low);
      ASSERT_EQ(both.value[1], *high);
      ASSERT_EQ(both.status, 0);
    }
  });
}

// One by one: what differs from it only in the sign of a zero differs.
struct OneByOne {
  mreal low = kInfinity, high = -kInfinity, magnitude = 0;
  explicit OneByOne(const std::vector<mreal> &list) {
    for (const mreal x : list) {
      if (x < low) low = x;
      if (x > high) high = x;
      if (std::fabs(x) > magnitude) magnitude = std::fabs(x);
    }
  }
};

void expectExtremes(const std::vector<mreal> &list, const mreal *start, mint stride, mint count) {
  const OneByOne expected(list);
  for (const mint flags : {0, 2, 6}) {
    const Reduced<mreal> high = reduceBy(machfunc_d_max, start, stride, count, flags);
    const Reduced<mreal> low = reduceBy(machfunc_d_min, start, stride, count, flags);
    const Reduced<mreal> both = reduceBy<2>(machfunc_d_minmax, start, stride, count, flags);
    const Reduced<mreal> magnitude = reduceBy(machfunc_d_maxabs, start, stride, count, flags);
    ASSERT_TRUE(sameBits(high.value[0], expected.high)) << count << " at " << stride;
    ASSERT_TRUE(sameBits(low.value[0], expected.low));
    ASSERT_TRUE(sameBits(both.value[0], expected.low));
    ASSERT_TRUE(sameBits(both.value[1], expected.high));
    ASSERT_TRUE(sameBits(magnitude.value[0], expected.magnitude));
    ASSERT_EQ(high.status | low.status | both.status | magnitude.status, 0) << "reals never fail";
  }
}

TEST(Extremes, OfRealsWithInfinitiesAndNaNsAreThoseOfAPlainWalk) { overShapes<mreal>(expectExtremes); }

TEST(Extremes, OfRealsKeepTheFirstOfTwoZeros) {
  std::mt19937_64 random(8);
  for (int round = 0; round < 2000; ++round) {
    std::vector<mreal> list(1 + size_t(random() % 200));
    const mreal sign = random() % 2 == 0 ? 1 : -1; // so that the zero is the smallest or the largest
    for (mreal &x : list) {
      const uint64_t kind = random() % 12;
      x = kind == 0 ? 0.0 : kind == 1 ? -0.0 : kind == 2 ? kNaN : sign * mreal(1 + random() % 9);
    }
    expectExtremes(list, list.data(), 1, mint(list.size()));
  }
}

TEST(Extremes, OfNothingButNaNsAreTheInitialValues) {
  for (const size_t count : std::initializer_list<size_t>{1, 3, 64, 65}) {
    const std::vector<mreal> list(count, kNaN);
    EXPECT_EQ(reduceList(machfunc_d_max, list, 6).value[0], -kInfinity);
    EXPECT_EQ(reduceList(machfunc_d_min, list, 6).value[0], kInfinity);
    EXPECT_TRUE(sameBits(reduceList(machfunc_d_maxabs, list, 6).value[0], 0.0));
  }
}

// Only a final value may fail, and does so at the first element that has it.
TEST(Extremes, FailWhereTheFinalValueIsTheReservedOne) {
  const mint reserved = INT32_MIN;
  for (const mint count : {1, 2, 17, 200}) {
    for (const mint at : {0, count / 2, count - 1}) {
      std::vector<mint> list(size_t(count), 3);
      list[size_t(at)] = reserved;
      EXPECT_EQ(reduceList(machfunc_i_min, list, 4).status, at + 1);
      EXPECT_EQ(reduceTwo(machfunc_i_minmax, list, 4).status, at + 1);
      EXPECT_EQ(reduceList(machfunc_i_maxabs, list, 4).status, at + 1);
      EXPECT_EQ(reduceList(machfunc_i_max, list, 4).status, count == 1 ? 1 : 0);
      EXPECT_EQ(reduceList(machfunc_i_min, list, 2).status, 0) << "the flag of another kind";
      EXPECT_EQ(reduceList(machfunc_i_min, list, 0).value[0], reserved);
      EXPECT_EQ(reduceList(machfunc_i_maxabs, list, 0).value[0], count == 1 ? 0 : 3) << "it has no magnitude";
    }
    const std::vector<mint> all(size_t(count), reserved);
    EXPECT_EQ(reduceList(machfunc_i_max, all, 4).status, 1);
    EXPECT_EQ(reduceList(machfunc_i_max, all, 0).value[0], reserved);
    EXPECT_EQ(reduceList(machfunc_i_maxabs, all, 0).value[0], 0);
  }
}

TEST(Extremes, OfComplexMagnitudesAreModuli) {
  EXPECT_EQ(reduceList(machfunc_c_maxabs, {{3, -4}, {0, 4.5}, {kNaN, 1}, {-1, -1}}).value[0], 5);
  EXPECT_EQ(reduceList(machfunc_c_maxabs, {{1e308, 1e308}}, 2).value[0], std::hypot(1e308, 1e308));
  EXPECT_EQ(reduceList(machfunc_c_maxabs, {{1.5e308, 1.5e308}}, 2).status, 0) << "reals never fail";
  EXPECT_EQ(reduceList(machfunc_c_maxabs, {{kNaN, kInfinity}}).value[0], kInfinity);
  EXPECT_EQ(reduceList(machfunc_c_maxabs, std::vector<mcomplex>()).value[0], 0);
  const mcomplex data[5] = {{6, 8}, {1, 0}, {3, 4}, {0, 2}, {0, 100}};
  EXPECT_EQ(reduceBy(machfunc_c_maxabs, data, 2, 2, 0).value[0], 10);
  EXPECT_EQ(reduceBy(machfunc_c_maxabs, data + 3, -2, 2, 0).value[0], 2);
}

// ---- fpexception --------------------------------------------------------------------------------

TEST(Fpexception, FindsOneInfinityOrNaNAnywhere) {
  for (const mreal odd : {kInfinity, -kInfinity, kNaN})
    for (const mint stride : {1, 3, -2})
      for (mint count = 1; count < kAllLengths; ++count)
        for (mint at = 0; at < count; ++at) {
          Data<mreal> data(count, stride);
          std::fill(data.begin(), data.end(), 1e308);
          Data<mcomplex> complexes(count, stride);
          std::fill(complexes.begin(), complexes.end(), mcomplex{-1e308, 5e-324});
          ASSERT_EQ(reduceBy(machfunc_d_fpexception, data.start(), stride, count, 2).value[0], 0);
          ASSERT_EQ(reduceBy(machfunc_c_fpexception, complexes.start(), stride, count, 2).value[0], 0);
          const_cast<mreal *>(data.start())[ptrdiff_t(at) * stride] = odd;
          auto &part = const_cast<mcomplex *>(complexes.start())[ptrdiff_t(at) * stride];
          (at % 2 == 0 ? part.re : part.im) = odd;
          const Reduced<mint> real = reduceBy(machfunc_d_fpexception, data.start(), stride, count, 2);
          const Reduced<mint> complex = reduceBy(machfunc_c_fpexception, complexes.start(), stride, count, 0);
          ASSERT_EQ(real.value[0], 1);
          ASSERT_EQ(complex.value[0], 1);
          ASSERT_EQ(real.status | complex.status, 0) << "to find one is no failure";
        }
}

TEST(Fpexception, OfNoElementsIsNone) {
  EXPECT_EQ(reduceList(machfunc_d_fpexception, std::vector<mreal>(), 2).value[0], 0);
  const mreal infinity = kInfinity;
  EXPECT_EQ(reduceBy(machfunc_d_fpexception, &infinity, 1, -1, 2).value[0], 0);
  EXPECT_EQ(reduceBy(machfunc_d_fpexception, &infinity, 0, 40, 2).value[0], 1);
}

// ---- dot ----------------------------------------------------------------------------------------

Reduced<mint> dotOf(const std::vector<mint> &x, const std::vector<mint> &y, mint flags) {
  Reduced<mint> reduced = {{77, 77}, 0};
  reduced.status = machfunc_ii_dot(reduced.value, x.data(), y.data(), mint(x.size()), kDense, flags);
  return reduced;
}

TEST(IntegerDot, OfNoElementsIsZero) {
  EXPECT_EQ(dotOf({}, {}, 4).value[0], 0);
  EXPECT_EQ(dotOf({}, {}, 4).status, 0);
}

TEST(IntegerDot, WalksBothStrides) {
  const mint x[6] = {1, 2, 3, 4, 5, 6}, y[6] = {10, 100, 1000, 10000, 100000, 1000000};
  const auto at = [&](const mint *a, mint sx, const mint *b, mint sy, mint count, mint flags) {
    const mint strides[3] = {99, sx, sy};
    mint dot = 5;
    EXPECT_EQ(machfunc_ii_dot(&dot, a, b, count, strides, flags), 0);
    return dot;
  };
  for (const mint flags : {0, 4}) {
    EXPECT_EQ(at(x, 1, y, 1, 6, flags), 6543210);
    EXPECT_EQ(at(x, 2, y, 1, 3, flags), 5310);
    EXPECT_EQ(at(x + 5, -1, y, 2, 3, flags), 405060);
    EXPECT_EQ(at(x + 2, 0, y, 1, 3, flags), 3330);
    EXPECT_EQ(at(x, 1, y + 1, 0, 4, flags), 1000);
  }
}

TEST(IntegerDot, ACheckedOneTestsEveryProduct) {
  EXPECT_EQ(dotOf({2147483647, 65536}, {1, 65536}, 4).status, 2);
  EXPECT_EQ(dotOf({5, 2}, {1, -1073741826}, 4).status, 2) << "the product alone is out of range";
  EXPECT_EQ(dotOf({0, 2}, {1, -1073741824}, 4).status, 2) << "the reserved value";
  EXPECT_EQ(dotOf({5, 2}, {1, -1073741824}, 4).status, 2) << "the reserved value, with a sum in range";
  EXPECT_EQ(dotOf({0, 2}, {1, -1073741824}, 0).value[0], INT32_MIN);
  EXPECT_EQ(dotOf({0, 2}, {1, -1073741824}, 2).status, 0) << "the flag of another kind";
  EXPECT_EQ(dotOf({INT32_MIN, 1}, {INT32_MIN, 1}, 0).value[0], 1);
  EXPECT_EQ(dotOf({1, INT32_MIN, 1}, {1, INT32_MIN, 1}, 4).status, 2);
}

TEST(IntegerDot, ACheckedOneTestsPartialSumsOfUpToSevenElements) {
  const mint most = 2147483647;
  EXPECT_EQ(dotOf({most, 1, -1}, {1, 1, 1}, 4).status, 2) << "the whole would fit";
  EXPECT_EQ(dotOf({-most, -1, 1}, {1, 1, 1}, 4).status, 2) << "the reserved value";
  for (size_t count = 3; count <= 20; ++count) {
    std::vector<mint> x(count), ones(count, 1);
    x[0] = most;
    x[1] = 1;
    x[count - 1] = -1;
    EXPECT_EQ(dotOf(x, ones, 4).status, count < 8 ? 2 : 0) << count;
    if (count >= 8) EXPECT_EQ(dotOf(x, ones, 4).value[0], most);
    x[count - 1] = 1;
    EXPECT_EQ(dotOf(x, ones, 4).status, count < 8 ? 2 : mint(count)) << "a whole that does not fit";
    x = std::vector<mint>(count);
    x[0] = -most;
    x[count - 1] = -1;
    EXPECT_EQ(dotOf(x, ones, 4).status, mint(count)) << "the reserved value";
  }
}

// A product of 2 to the 32 or 33 wraps to nothing: it may not be taken for a small one.
TEST(IntegerDot, ACheckedOneIsNotDeceivedByProductsThatWrap) {
  for (const mint sign : {1, -1})
    for (int bits = 31; bits <= 34; ++bits)
      for (int bit = bits - 30; bit <= 30; ++bit) {
        const mint x = 1 << bit, y = sign * (1 << (bits - bit));
        for (const size_t count : std::initializer_list<size_t>{1, 3, 7, 8, 9, 40, 1025, 3000})
          for (const size_t at : {size_t{0}, count / 2, count - 1}) {
            std::vector<mint> a(count, -1), b(count, 1);
            a[at] = x;
            b[at] = y;
            ASSERT_EQ(dotOf(a, b, 4).status, at + 1) << x << " times " << y << " of " << count;
          }
      }
}

// Products first, then sums; where both fail, whichever comes first in the order of the tests.
Reduced<mint> exactDot(const std::vector<int64_t> &products) {
  const auto fits = [](int64_t x) { return x <= INT32_MAX && x > INT32_MIN; };
  const bool testsPartials = products.size() < 8;
  int64_t sum = 0;
  for (size_t k = 0; k < products.size(); ++k) {
    sum += products[k];
    if (!fits(products[k]) || (testsPartials && !fits(sum))) return {{}, mint(k + 1)};
  }
  if (!fits(sum)) return {{}, mint(products.size())};
  return {{mint(sum)}, 0};
}

TEST(IntegerDot, AgreesWithExactSumsAtEveryLengthAndMagnitude) {
  std::mt19937_64 random(6);
  mint failures = 0;
  for (int round = 0; round < 6000; ++round) {
    const size_t size = round < 5000 ? size_t(round) % kAllLengths : size_t(random() % 4000);
    const mint bitsX = mint(random() % 31), bitsY = mint(random() % 31);
    std::vector<mint> x(size), y(size);
    std::vector<int64_t> products;
    uint32_t wrapped = 0;
    for (size_t k = 0; k < size; ++k) {
      x[k] = mint(uint32_t(random())) >> bitsX;
      y[k] = mint(uint32_t(random())) >> bitsY;
      products.push_back(int64_t(x[k]) * y[k]);
      wrapped += uint32_t(x[k]) * uint32_t(y[k]);
    }
    const Reduced<mint> expected = exactDot(products), checked = dotOf(x, y, 4);
    ASSERT_EQ(checked.status, expected.status);
    failures += expected.status != 0;
    if (expected.status == 0) ASSERT_EQ(checked.value[0], expected.value[0]);
    ASSERT_EQ(uint32_t(dotOf(x, y, 0).value[0]), wrapped);
  }
  EXPECT_GT(failures, 1000);
  EXPECT_LT(failures, 5000);
}

} // namespace
