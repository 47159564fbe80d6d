// Reductions: a run of elements, or a pair of runs, into one accumulator.
//
// A reduction is a record with an accumulator type, its initial value, `take`, which runs over the elements
// of a piece, and `merge`, which joins two pieces. The routine stores the initial value itself: what the
// accumulator held does not count. The sum of reals runs strictly left to right in its piece, its rounding
// being part of the interface; where the order cannot be told from the result, the loops are dense ones in
// packed registers (folds.h). The error code of a failure is lost; the position is what a routine returns.
#pragma once

#include "../scalar/bodies/arithmetic.h"
#include "../scalar/bodies/parts.h"
#include "../scalar/magnitude.h"
#include "folds.h"
#include "reduction_loops.h"

#include <torvane/operators.h>

namespace torvane {

// Elements a checked integer loop takes at a time before it looks whether one of them may have failed.
inline constexpr mint kCheckedBlock = 1024;

// Whether no prefix of a block can leave the range or reach the reserved value: a running sum moves by no
// more than the sum of the magnitudes.
constexpr bool staysInRange(mint sum, uint64_t magnitudes) {
  return magnitudes + magnitudeBits(sum) <= uint64_t{kMaximum<mint>};
}

template <class T> struct Run {
  const T *data;
  mint stride;
  mint count;
  T at(mint k) const { return data[ptrdiff_t{k} * stride]; }
  bool isDense() const { return stride == 1; }
  Run from(mint k, mint length) const { return {data + ptrdiff_t{k} * stride, stride, length}; }
};

namespace reduction {

// ---- total --------------------------------------------------------------------------------------

// Wraps.
inline uint32_t wrappedSum(const Run<mint> &run) {
  WrappedSum<uint32_t> sum = {0};
  if (run.isDense())
    foldDense(sum, reinterpret_cast<const uint32_t *>(run.data), run.count);
  else
    for (mint k = 0; k < run.count; ++k) sum.take(static_cast<uint32_t>(run.at(k)));
  return sum.value;
}

inline uint64_t sumOfMagnitudes(const Run<mint> &run) {
  uint64_t sum = 0;
  if (run.isDense())
    for (mint k = 0; k < run.count; ++k) sum += magnitudeBits(run.data[k]);
  else
    for (mint k = 0; k < run.count; ++k) sum += magnitudeBits(run.at(k));
  return sum;
}

template <class Form, class T> mint addOneByOne(T &sum, const Run<T> &run) {
  for (mint k = 0; k < run.count; ++k) {
    error code = error::none;
    sum = compute<binary::plus, Form>(code, sum, run.at(k));
    if (code != error::none) [[unlikely]]
      return k + 1;
  }
  return 0;
}

inline mint addChecked(mint &sum, const Run<mint> &run) {
  for (mint start = 0; start < run.count; start += kCheckedBlock) {
    const Run<mint> block =
        run.from(start, run.count - start < kCheckedBlock ? run.count - start : kCheckedBlock);
    if (staysInRange(sum, sumOfMagnitudes(block))) [[likely]]
      sum = static_cast<mint>(static_cast<uint32_t>(sum) + wrappedSum(block));
    else if (const mint failure = addOneByOne<Checked>(sum, block))
      return start + failure;
    if (run.count - start <= kCheckedBlock) break; // the next start may be beyond mint
  }
  return 0;
}

template <class T> void addInOrder(T &sum, const Run<T> &run) {
  if (run.isDense())
    for (mint k = 0; k < run.count; ++k) sum = sum + run.data[k];
  else
    for (mint k = 0; k < run.count; ++k) sum = sum + run.at(k);
}

// A running sum that is infinite or a NaN stays so: only then is the first one looked for.
template <class T> mint addCheckedReals(T &sum, const Run<T> &run) {
  const T before = sum;
  addInOrder(sum, run);
  if (classify(sum) == error::none) [[likely]]
    return 0;
  sum = before;
  return addOneByOne<Checked>(sum, run);
}

// A checked total fails at the first running sum that is out of range, or infinite or a NaN.
struct total {
  template <class T> using Accumulator = T;
  template <class T> static constexpr T initial() { return T{}; }
  template <class Form, class T> static mint take(T &sum, const Run<T> &run) {
    if constexpr (!isInteger<T>) {
      if constexpr (Form::checked) return addCheckedReals(sum, run);
      addInOrder(sum, run);
    } else {
      if constexpr (Form::checked) return addChecked(sum, run);
      sum = static_cast<T>(static_cast<uint32_t>(sum) + wrappedSum(run));
    }
    return 0;
  }
  template <class Form, class T> static bool merge(T &into, const T &from) {
    error code = error::none;
    into = compute<binary::plus, Form>(code, into, from);
    return code == error::none;
  }
};

// ---- extremes -----------------------------------------------------------------------------------

template <class T> inline constexpr T kLowest = static_cast<T>(kReserved<T>);
template <> inline constexpr mreal kLowest<mreal> = -__builtin_inf();
template <class T> inline constexpr T kHighest = kMaximum<T>;
template <> inline constexpr mreal kHighest<mreal> = __builtin_inf();

// The position, from 1, of the first element of that value; 0 for none. Zeros of both signs are equal.
template <class T> mint firstOf(T value, const Run<T> &run) {
  for (mint k = 0; k < run.count; ++k)
    if (run.at(k) == value) return k + 1;
  return 0;
}

// Packed registers forget which of the two zeros came first, which is the one that an extreme keeps.
template <class T> void restoreZero(T &extreme, const Run<T> &run) {
  if constexpr (!isInteger<T>)
    if (extreme == 0) extreme = run.at(firstOf(extreme, run) - 1);
}

template <template <class> class Fold, class T> void takeAll(Fold<T> &state, const Run<T> &run) {
  if (run.isDense())
    foldDense(state, run.data, run.count);
  else
    for (mint k = 0; k < run.count; ++k) state.take(run.at(k));
}

// Only a final value that is the reserved one fails, deliberately: a piece of the same data may have it for
// its largest. The position is that of the first element of that value.
inline mint reservedFails(bool isHeld, const Run<mint> &run) {
  return isHeld ? firstOf(kReserved<mint>, run) : 0;
}

// A piece starts from the initial value, which is neutral, so that its own data alone decide.
template <template <class> class Fold> struct Extreme {
  template <class T> using Accumulator = T;
  template <class Form, class T> static mint take(T &extreme, const Run<T> &run) {
    Fold<T> state = {extreme};
    takeAll(state, run);
    extreme = state.value;
    restoreZero(extreme, run);
    return 0;
  }
  template <class Form, class T> static bool merge(T &into, const T &from) {
    Fold<T> state = {into};
    state.take(from);
    into = state.value;
    return true;
  }
  static mint finish(mint extreme, const Run<mint> &run) { return reservedFails(isReserved(extreme), run); }
};

struct max : Extreme<Largest> {
  template <class T> static constexpr T initial() { return kLowest<T>; }
};
struct min : Extreme<Smallest> {
  template <class T> static constexpr T initial() { return kHighest<T>; }
};

struct minmax {
  template <class T> using Accumulator = Extremes<T>;
  template <class T> static constexpr Extremes<T> initial() { return {kHighest<T>, kLowest<T>}; }
  template <class Form, class T> static mint take(Extremes<T> &extremes, const Run<T> &run) {
    takeAll(extremes, run);
    restoreZero(extremes.low, run);
    restoreZero(extremes.high, run);
    return 0;
  }
  template <class Form, class T> static bool merge(Extremes<T> &into, const Extremes<T> &from) {
    into.merge(from);
    return true;
  }
  static mint finish(const Extremes<mint> &extremes, const Run<mint> &run) {
    return reservedFails(isReserved(extremes.low) || isReserved(extremes.high), run);
  }
};

// The magnitude of the reserved value does not exist: the plain form passes it over, as its negative wraps to
// itself and is below 0; in the checked form it is the final value, and fails.
struct maxabs {
  template <class T> using Accumulator = RealPartOf<T>;
  template <class T> static constexpr RealPartOf<T> initial() { return 0; }

  template <class Form> static mint take(mint &largest, const Run<mint> &run) {
    LargestMagnitude<uint32_t> state = {magnitudeBits(largest)};
    if (run.isDense())
      foldDense(state, reinterpret_cast<const uint32_t *>(run.data), run.count);
    else
      for (mint k = 0; k < run.count; ++k) state.take(static_cast<uint32_t>(run.at(k)));
    largest = static_cast<mint>(state.value);
    if (isReserved(largest) && !Form::checked) largest = largestOfOthers(run);
    return 0;
  }
  template <class Form> static mint take(mreal &largest, const Run<mreal> &run) {
    LargestMagnitude<mreal> state = {largest};
    takeAll(state, run);
    largest = state.value;
    return 0;
  }
  template <class Form> static mint take(mreal &largest, const Run<ComplexReal64> &run) {
    Largest<mreal> state = {largest};
    for (mint k = 0; k < run.count; ++k) state.take(modulusOf(run.at(k)));
    largest = state.value;
    return 0;
  }
  template <class Form, class T, class R> static bool merge(R &into, const R &from) {
    if constexpr (isInteger<T>)
      into = magnitudeBits(from) > magnitudeBits(into) ? from : into;
    else
      into = from > into ? from : into;
    return true;
  }
  static mint finish(mint largest, const Run<mint> &run) { return reservedFails(isReserved(largest), run); }

private:
  static mint largestOfOthers(const Run<mint> &run) {
    Largest<mint> state = {0};
    for (mint k = 0; k < run.count; ++k)
      if (!isReserved(run.at(k))) state.take(static_cast<mint>(magnitudeBits(run.at(k))));
    return state.value;
  }
};

// ---- tests and products -------------------------------------------------------------------------

// 1 if any element is infinite or a NaN, a part of it for complexes. Never fails, whatever the flags.
struct fpexception {
  template <class T> using Accumulator = mint;
  template <class T> static constexpr mint initial() { return 0; }
  template <class Form, class T> static mint take(mint &found, const Run<T> &run) {
    Finiteness<mreal> state = {0};
    if constexpr (isReal<T>)
      takeAll(state, run);
    else if (run.isDense())
      takeParts(state, run);
    else
      for (mint k = 0; k < run.count; ++k) takeParts(state, run.from(k, 1));
    found |= state.value != 0;
    return 0;
  }
  template <class Form, class T> static bool merge(mint &into, const mint &from) {
    into |= from;
    return true;
  }

private:
  static void takeParts(Finiteness<mreal> &state, const Run<ComplexReal64> &run) {
    const auto *parts = reinterpret_cast<const mreal *>(run.data); // of no elements there may be no data
    foldDense(state, parts, run.count);
    foldDense(state, parts + run.count, run.count);
  }
};

// Dense runs have a loop of their own, which needs no multiplication by a stride and can be vectorised.
template <class Body>
__attribute__((always_inline)) inline void walkBoth(const Run<mint> &x, const Run<mint> &y, Body body) {
  if (x.isDense() && y.isDense())
    for (mint k = 0; k < x.count; ++k) body(x.data[k], y.data[k]);
  else
    for (mint k = 0; k < x.count; ++k) body(x.at(k), y.at(k));
}

// The products' sum, kept whole in 64 bits: 2^31 products of 32 bits each do not leave them.
struct ProductSum {
  int64_t value;
};

// A checked sum of products fails at the first product out of range. A sum of fewer than kFreeOrder elements
// is tested at each of them, in their order and so in one piece; a longer one as a whole only: it then does
// not matter how it is cut, into packed registers or pieces of any length.
struct dot {
  template <class T> using Accumulator = ProductSum;
  template <class T> using Stored = T;
  template <class T> static constexpr ProductSum initial() { return {0}; }
  template <class Form>
  static mint take(ProductSum &sum, const Run<mint> &x, const Run<mint> &y, mint wholeCount) {
    if constexpr (Form::checked)
      return wholeCount < torvane_loops::kFreeOrder ? addOneByOne(sum, x, y) : addBlocks(sum, x, y);
    sum.value += int64_t{wrappedProducts(x, y)};
    return 0;
  }
  template <class Form, class T> static bool merge(ProductSum &into, const ProductSum &from) {
    into.value += from.value;
    return true;
  }
  // A whole that does not fit fails at the last element.
  static mint finish(const ProductSum &sum, const Run<mint> &x) { return isInRange(sum.value) ? 0 : x.count; }

private:
  static bool isInRange(int64_t x) { return x <= kMaximum<mint> && x >= -int64_t{kMaximum<mint>}; }

  static uint32_t wrappedProducts(const Run<mint> &x, const Run<mint> &y) {
    uint32_t sum = 0;
    walkBoth(x, y, [&sum](mint a, mint b) { sum += static_cast<uint32_t>(a) * static_cast<uint32_t>(b); });
    return sum;
  }

  static mint addOneByOne(ProductSum &sum, const Run<mint> &x, const Run<mint> &y) {
    for (mint k = 0; k < x.count; ++k) {
      const int64_t product = int64_t{x.at(k)} * y.at(k);
      sum.value += product;
      if (!isInRange(product) || !isInRange(sum.value)) [[unlikely]]
        return k + 1;
    }
    return 0;
  }

  // Either distance to a bound is negative where a product is out of range; the sum may then have wrapped.
  static bool addProducts(ProductSum &sum, const Run<mint> &x, const Run<mint> &y) {
    auto whole = static_cast<uint64_t>(sum.value);
    int64_t distances = 0;
    walkBoth(x, y, [&](mint a, mint b) {
      const int64_t product = int64_t{a} * b;
      whole += static_cast<uint64_t>(product);
      distances |= (kMaximum<mint> - product) | (kMaximum<mint> + product);
    });
    sum.value = static_cast<int64_t>(whole);
    return distances >= 0;
  }

  static mint firstOutOfRange(const Run<mint> &x, const Run<mint> &y) {
    mint k = 0;
    while (isInRange(int64_t{x.at(k)} * y.at(k))) ++k;
    return k + 1;
  }

  static mint addBlocks(ProductSum &sum, const Run<mint> &x, const Run<mint> &y) {
    for (mint start = 0; start < x.count; start += kCheckedBlock) {
      const mint length = x.count - start < kCheckedBlock ? x.count - start : kCheckedBlock;
      const Run<mint> a = x.from(start, length), b = y.from(start, length);
      if (!addProducts(sum, a, b)) [[unlikely]]
        return start + firstOutOfRange(a, b);
      if (x.count - start <= kCheckedBlock) break; // the next start may be beyond mint
    }
    return 0;
  }
};

} // namespace reduction

// ---- loops --------------------------------------------------------------------------------------

// What the routine stores: the first bytes of its accumulator, the low ones of a sum that is kept wider.
template <class Op, class T> struct StoredBy { using Type = typename Op::template Accumulator<T>; };
template <class Op, class T>
requires requires { typename Op::template Stored<T>; }
struct StoredBy<Op, T> {
  using Type = typename Op::template Stored<T>;
};

// A reduction in the form that its driver knows.
template <class Op, class Form, class T, bool isPair> struct ErasedReduction {
  using Accumulator = typename Op::template Accumulator<T>;
  using Operands = torvane_loops::ReductionOperands;
  static_assert(sizeof(Accumulator) <= torvane_loops::kAccumulatorBytes);

  static Run<T> operand(const Operands &operands, mint which, mint first, mint last) {
    const Run<T> all = {static_cast<const T *>(operands.data[which]), operands.strides[which], last};
    return all.from(first, last - first);
  }
  static mint run(void *accumulator, const Operands &operands, mint first, mint last) {
    auto &own = *static_cast<Accumulator *>(accumulator);
    own = Op::template initial<T>();
    const Run<T> x = operand(operands, 0, first, last);
    if constexpr (isPair)
      return Op::template take<Form>(own, x, operand(operands, 1, first, last), operands.count);
    else
      return Op::template take<Form>(own, x);
  }
  static bool merge(void *into, const void *from) {
    return Op::template merge<Form, T>(*static_cast<Accumulator *>(into),
                                       *static_cast<const Accumulator *>(from));
  }
  static mint finish(const void *accumulator, const Operands &operands, mint count) {
    return Op::finish(*static_cast<const Accumulator *>(accumulator), operand(operands, 0, 0, count));
  }
  static constexpr torvane_loops::ReductionForm form() {
    if constexpr (Form::checked && isInteger<T> && requires { &Op::finish; })
      return {run, merge, finish};
    else
      return {run, merge, nullptr};
  }
};

template <class Op, class T, bool isPair>
inline constexpr torvane_loops::ReductionLoop kLoopOf = {
    ErasedReduction<Op, Plain, T, isPair>::form(), ErasedReduction<Op, Checked, T, isPair>::form(),
    isInteger<T> ? TORVANE_CHECK_INTEGERS : TORVANE_CHECK_REALS, sizeof(typename StoredBy<Op, T>::Type)};

template <class Op, class T>
inline constexpr const torvane_loops::ReductionLoop &kReductionLoop = kLoopOf<Op, T, false>;
template <class Op, class T>
inline constexpr const torvane_loops::PairReductionLoop &kPairReductionLoop = kLoopOf<Op, T, true>;

} // namespace torvane
