// Folds: reductions over elements that stand in vector registers, for results that do not depend on the
// order.
//
// A fold is a record that takes elements and merges with its like; the same record serves one element and a
// register of them. Packed<T> is as wide as the registers of the instruction set that the unit is compiled
// for, so that a unit of another processor level has other types here and must give them another namespace.
#pragma once

#include "../scalar/scalar_types.h"

namespace torvane {

#if defined __AVX512F__
inline constexpr mint kPackedBytes = 64;
#elif defined __AVX2__
inline constexpr mint kPackedBytes = 32;
#else
inline constexpr mint kPackedBytes = 16;
#endif

template <class T> struct PackedOf { typedef T Type __attribute__((vector_size(kPackedBytes))); };
template <class T> using Packed = typename PackedOf<T>::Type;
template <class T> inline constexpr mint kPackedLength = kPackedBytes / static_cast<mint>(sizeof(T));

template <class T> __attribute__((always_inline)) inline Packed<T> loadPacked(const T *from) {
  Packed<T> x;
  __builtin_memcpy(&x, from, sizeof x); // any alignment
  return x;
}
template <class T> __attribute__((always_inline)) inline Packed<T> everyLane(T value) {
  return Packed<T>{} + value;
}

// The sum modulo the width; T is unsigned.
template <class X> struct WrappedSum {
  X value;
  void take(X x) { value += x; }
  void merge(WrappedSum other) { take(other.value); }
};

// Of equal values the earlier one; a NaN is passed over, since no comparison with it holds.
template <class X> struct Largest {
  X value;
  void take(X x) { value = x > value ? x : value; }
  void merge(Largest other) { take(other.value); }
};
template <class X> struct Smallest {
  X value;
  void take(X x) { value = x < value ? x : value; }
  void merge(Smallest other) { take(other.value); }
};
template <class X> struct Extremes {
  X low, high;
  void take(X x) {
    low = x < low ? x : low;
    high = x > high ? x : high;
  }
  void merge(Extremes other) {
    low = other.low < low ? other.low : low;
    high = other.high > high ? other.high : high;
  }
};

// Magnitudes of the bits of signed words, so that the reserved value has one: the largest of all.
inline uint32_t magnitudeIn(uint32_t x) { return (x ^ (0 - (x >> 31))) - (0 - (x >> 31)); }
inline Packed<uint32_t> magnitudeIn(Packed<uint32_t> x) {
  const Packed<uint32_t> sign = Packed<uint32_t>{} - (x >> 31);
  return (x ^ sign) - sign;
}
inline mreal magnitudeIn(mreal x) { return __builtin_fabs(x); }
inline Packed<mreal> magnitudeIn(Packed<mreal> x) {
  constexpr uint64_t kAllButSign = ~uint64_t{0} >> 1;
  return (Packed<mreal>)((Packed<uint64_t>)x & everyLane(kAllButSign));
}
template <class X> struct LargestMagnitude {
  X value;
  void take(X x) { merge({magnitudeIn(x)}); }
  void merge(LargestMagnitude other) { value = other.value > value ? other.value : value; }
};

// A NaN stays: nothing compares with it.
template <class X> struct LargestMagnitudeOrNaN {
  X value;
  void take(X x) { merge({magnitudeIn(x)}); }
  void merge(LargestMagnitudeOrNaN other) {
    value = ((other.value > value) | (other.value != other.value)) ? other.value : value;
  }
};

// 0 while all elements are finite, then a NaN: a finite number less itself is 0, anything else is not.
template <class X> struct Finiteness {
  X value;
  void take(X x) { value += x - x; }
  void merge(Finiteness other) { value += other.value; }
};

template <template <class> class Fold, class T> Fold<Packed<T>> everyLaneOf(Fold<T> state) {
  return {everyLane(state.value)};
}
template <class T> Extremes<Packed<T>> everyLaneOf(Extremes<T> state) {
  return {everyLane(state.low), everyLane(state.high)};
}
template <class T, template <class> class Fold, class X> Fold<T> laneOf(const Fold<X> &state, mint k) {
  return {state.value[k]};
}
template <class T, class X> Extremes<T> laneOf(const Extremes<X> &state, mint k) {
  return {state.low[k], state.high[k]};
}

// Four vectors at a time, then one, then elements. Every lane starts from `state`, which therefore must be
// neutral: taken twice it counts for nothing.
template <template <class> class Fold, class T> void foldDense(Fold<T> &state, const T *data, mint count) {
  constexpr mint kOne = kPackedLength<T>, kFour = 4 * kOne;
  mint k = 0;
  if (count >= kOne) {
    Fold<Packed<T>> a = everyLaneOf(state), b = a, c = a, d = a;
    for (; count - k >= kFour; k += kFour) {
      a.take(loadPacked(data + k));
      b.take(loadPacked(data + k + kOne));
      c.take(loadPacked(data + k + 2 * kOne));
      d.take(loadPacked(data + k + 3 * kOne));
    }
    for (; count - k >= kOne; k += kOne) a.take(loadPacked(data + k));
    a.merge(b);
    c.merge(d);
    a.merge(c);
    for (mint lane = 0; lane < kOne; ++lane) state.merge(laneOf<T>(a, lane));
  }
  for (; k < count; ++k) state.take(data[k]);
}

} // namespace torvane
