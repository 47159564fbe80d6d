#include "widening.h"

#include "repetition.h"
#include "result_types.h"
#include <torvane/failure.h>
#include <torvane/machfuncs.h>

#include <algorithm>
#include <array>
#include <bit>
#include <emmintrin.h>
#include <stdint.h>

namespace torvane {

namespace {

// Elements between two looks at the host's abort flag, and the room of the buffers on the stack.
constexpr mint kBlock = 256;

// The kinds seen so far, as the bits of their numbers.
mint outcomeOfKinds(mint kinds) { return kinds == 0 ? kDone : -kinds; }

void storeReals(mcomplex *result, const mreal *values, mint count) {
  for (mint k = 0; k < count; ++k) result[k] = {values[k], 0.0};
}

struct Range {
  mint first, end;
};

// Runs `attempt(values, k, count)`, the real routine from element k on, over a range of at most a block, and
// `widen(k)` on each element that it refuses. Yields the range's end, or the position that `widen` refused
// too. A routine that tests its results in bulk tells no position, so that what it refuses is attempted
// again one by one.
template <class Attempt, class Widen>
mint widenRange(mcomplex *result, Range range, mint flags, mint *kinds, Attempt attempt, Widen widen) {
  mreal values[kBlock];
  const bool tellsPosition = (flags & TORVANE_CHECK_REALS) == 0;
  mint k = range.first, step = kBlock;
  while (k < range.end) {
    const mint count = std::min(step, range.end - k), answer = attempt(values, k, count);
    if (answer != 0 && count > 1 && !tellsPosition) {
      step = 1;
      continue;
    }
    const mint stayed = answer == 0 ? count : answer - 1;
    storeReals(result + k, values, stayed);
    if (stayed > 0) *kinds |= TORVANE_TYPE_REAL;
    k += stayed;
    if (answer == 0) continue;
    if (!widen(k)) return k;
    *kinds |= TORVANE_TYPE_COMPLEX;
    ++k;
  }
  return k;
}

// ---- unary ------------------------------------------------------------------------------------------

constexpr mint kDense2[2] = {1, 1};

mint widenByAttempt(const UnaryPair &pair, mcomplex *result, const mreal *x, Range range, mint flags,
                    mint *kinds) {
  return widenRange(
      result, range, flags, kinds,
      [&](mreal *values, mint k, mint count) { return pair.real(values, x + k, count, kDense2, flags); },
      [&](mint k) {
        const mcomplex widened = {x[k], 0.0};
        return pair.complex(result + k, &widened, 1, kDense2, flags) == 0;
      });
}

// The elements of a block, told apart: those that leave the domain and those that stay, each in their order.
struct Division {
  int64_t leaves[kBlock]; // all ones where the element leaves, else 0
  mcomplex leaving[kBlock];
  mreal staying[kBlock];
  mint left, stayed;
};

// Fills `leaves`; false when no element leaves. A NaN stays. In SSE2 by name: what compilers make of the
// choice between two words is a third of the block's time.
bool compareAll(RealDomain domain, const mreal *x, mint count, int64_t *leaves) {
  const __m128d low = _mm_set1_pd(domain.low), high = _mm_set1_pd(domain.high);
  __m128d any = _mm_setzero_pd();
  mint k = 0;
  for (; count - k >= 2; k += 2) {
    const __m128d pair = _mm_loadu_pd(x + k);
    const __m128d outside = _mm_or_pd(_mm_cmplt_pd(pair, low), _mm_cmpgt_pd(pair, high));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(leaves + k), _mm_castpd_si128(outside));
    any = _mm_or_pd(any, outside);
  }
  if (k == count) return _mm_movemask_pd(any) != 0;
  leaves[k] = x[k] < domain.low || x[k] > domain.high ? -1 : 0;
  return _mm_movemask_pd(any) != 0 || leaves[k] != 0;
}

// First all comparisons, then the copies, both for each element: no branch depends on an element, since which
// of them leave is anybody's guess. False when none does.
bool tellApart(RealDomain domain, const mreal *x, mint count, Division *division) {
  if (!compareAll(domain, x, count, division->leaves)) return false;
  mint left = 0;
  for (mint k = 0; k < count; ++k) {
    division->leaving[left] = {x[k], 0.0};
    division->staying[k - left] = x[k];
    left -= static_cast<mint>(division->leaves[k]);
  }
  division->left = left;
  division->stayed = count - left;
  return true;
}

// The values of either side in the order of the elements, without a branch again. The value that would come
// after a side's last is read and not used.
void storeMerged(mcomplex *result, const Division &division, const mreal *stayed, const mcomplex *left) {
  const mint count = division.left + division.stayed;
  mint next = 0;
  for (mint k = 0; k < count; ++k) {
    const int64_t leaves = division.leaves[k], real = std::bit_cast<int64_t>(stayed[k - next]);
    const auto wide = std::bit_cast<std::array<int64_t, 2>>(left[next]);
    result[k] = {std::bit_cast<mreal>((wide[0] & leaves) | (real & ~leaves)),
                 std::bit_cast<mreal>(wide[1] & leaves)};
    next -= static_cast<mint>(leaves);
  }
}

// False when either routine refuses something.
bool widenDivided(const UnaryPair &pair, mcomplex *result, const Division &division, mint flags) {
  mreal stayed[kBlock + 1];
  mcomplex left[kBlock + 1];
  if (pair.real(stayed, division.staying, division.stayed, kDense2, flags) != 0) return false;
  if (pair.complex(left, division.leaving, division.left, kDense2, flags) != 0) return false;
  stayed[division.stayed] = 0;
  left[division.left] = {};
  storeMerged(result, division, stayed, left);
  return true;
}

bool isKnown(RealDomain domain) { return domain.low > kUnknownDomain.low; }

// The complex root of a negative real is the root of its magnitude, on the imaginary axis: the real routine
// alone serves both sides.
bool isSquareRoot(const UnaryPair &pair) { return pair.complex == machfunc_c_sqrt; }

// Where the pair is negative; a NaN is not.
__m128d negativeOf(__m128d pair) { return _mm_cmplt_pd(pair, _mm_setzero_pd()); }

// A block's results are a page, where the processor would begin anew to fetch ahead. Each of the two loops
// over a block therefore asks for what the next loop works on: the lines of the result, then the next block's
// operands.
constexpr mint kComplexesALine = 4, kRealsALine = 8;

// Negative elements become their magnitudes; whatever else keeps its bits. Yields the kinds of the results.
mint takeMagnitudes(const mreal *x, mint count, mreal *magnitudes, const mcomplex *result) {
  __m128d any = _mm_setzero_pd(), all = _mm_cmpeq_pd(any, any);
  const auto take = [&](__m128d pair) {
    const __m128d leaves = negativeOf(pair);
    any = _mm_or_pd(any, leaves);
    all = _mm_and_pd(all, leaves);
    return _mm_xor_pd(pair, _mm_and_pd(leaves, _mm_set1_pd(-0.0)));
  };
  mint k = 0;
  for (; count - k >= 2; k += 2) {
    if (k % kComplexesALine == 0) __builtin_prefetch(result + k, 1);
    _mm_storeu_pd(magnitudes + k, take(_mm_loadu_pd(x + k)));
  }
  if (k < count) _mm_store_sd(magnitudes + k, take(_mm_load1_pd(x + k)));
  return (_mm_movemask_pd(all) != 3 ? TORVANE_TYPE_REAL : 0) |
         (_mm_movemask_pd(any) != 0 ? TORVANE_TYPE_COMPLEX : 0);
}

void storeRoots(mcomplex *result, const mreal *x, const mreal *roots, mint count) {
  mint k = 0;
  for (; count - k >= 2; k += 2) {
    if (k % kRealsALine == 0) __builtin_prefetch(x + k + kBlock);
    const __m128d leaves = negativeOf(_mm_loadu_pd(x + k)), root = _mm_loadu_pd(roots + k);
    const __m128d re = _mm_andnot_pd(leaves, root), im = _mm_and_pd(leaves, root);
    _mm_storeu_pd(&result[k].re, _mm_unpacklo_pd(re, im));
    _mm_storeu_pd(&result[k + 1].re, _mm_unpackhi_pd(re, im));
  }
  if (k < count) result[k] = x[k] < 0 ? mcomplex{0, roots[k]} : mcomplex{roots[k], 0};
}

// False when the real routine refuses something.
bool widenRoots(const UnaryPair &pair, mcomplex *result, const mreal *x, mint count, mint flags,
                mint *kinds) {
  mreal magnitudes[kBlock], roots[kBlock];
  const mint seen = takeMagnitudes(x, count, magnitudes, result);
  if (pair.real(roots, magnitudes, count, kDense2, flags) != 0) return false;
  storeRoots(result, x, roots, count);
  *kinds |= seen;
  return true;
}

// Each routine once over what is its own. When one refuses something, nothing is certain, and the attempts
// find out.
mint widenBlock(const UnaryPair &pair, mcomplex *result, const mreal *x, Range range, mint flags,
                mint *kinds) {
  const mreal *from = x + range.first;
  if (isSquareRoot(pair) &&
      widenRoots(pair, result + range.first, from, range.end - range.first, flags, kinds))
    return range.end;
  Division division;
  if (!isKnown(pair.domain) || !tellApart(pair.domain, from, range.end - range.first, &division) ||
      !widenDivided(pair, result + range.first, division, flags))
    return widenByAttempt(pair, result, x, range, flags, kinds);
  *kinds |= TORVANE_TYPE_COMPLEX | (division.stayed > 0 ? TORVANE_TYPE_REAL : 0);
  return range.end;
}

// Held against the routines themselves by a test: whatever lies outside is refused.
RealDomain realDomainOf(mint op) {
  constexpr mreal infinity = __builtin_inf();
  switch (op) {
  case 57: // sqrt
  case 59: // rsqrt
  case 34: // log
  case 36: // log2
  case 37: // log10
    return {0.0, infinity};
  case 35: // log1p
    return {-1.0, infinity};
  case 17: // asin
  case 18: // acos
  case 27: // atanh
    return {-1.0, 1.0};
  case 26: // acosh
    return {1.0, infinity};
  default:
    return kUnknownDomain;
  }
}

} // namespace

bool wideningPair(mint op, UnaryPair *pair) {
  constexpr mint real = TORVANE_TYPE_REAL, complex = TORVANE_TYPE_COMPLEX;
  if (storedKind1(op, real) != real || storedKind1(op, complex) != complex) return false;
  *pair = {machfunsarray_1[3 * op + 1], machfunsarray_1[3 * op + 2], realDomainOf(op)};
  return pair->real != nullptr && pair->complex != nullptr;
}

mint widenUnary(const UnaryPair &pair, mcomplex *result, const mreal *x, mint first, mint count, mint flags) {
  mint kinds = 0;
  for (mint k = first; k < count;) {
    if (checkAbortWatch() != 0) return k;
    const Range range = {k, std::min(count, k + kBlock)};
    k = widenBlock(pair, result, x, range, flags, &kinds);
    if (k < range.end) return k;
  }
  return outcomeOfKinds(kinds);
}

// ---- binary -----------------------------------------------------------------------------------------

namespace {

struct Operands {
  const MTensor *x, *y;
  const PairRun &run;
  const void *first(mint k) const { return elementAt(x, run.start1 + k * run.strides[1]); }
  const void *second(mint k) const { return elementAt(y, run.start2 + k * run.strides[2]); }
};

// If the complex routine stays on the real axis, the refusal of the real one was no true departure from the
// reals, and the element fails.
bool widenElement(const BinaryPair &pair, mcomplex *target, const void *first, const void *second,
                  mint flags) {
  static constexpr mint kDense3[3] = {1, 1, 1};
  const mcomplex widened = {*static_cast<const mreal *>(pair.widensFirst ? first : second), 0.0};
  (pair.widensFirst ? first : second) = &widened;
  mcomplex wide;
  if (pair.complex(&wide, first, second, 1, kDense3, flags) != 0 || wide.im == 0.0) return false;
  *target = wide;
  return true;
}

// The real routine is told to refuse infinities and NaNs.
mint widenBlock(const BinaryPair &pair, mcomplex *result, const Operands &operands, Range range, mint flags,
                mint *kinds) {
  const mint real = flags | TORVANE_CHECK_REALS;
  const mint strides[3] = {1, operands.run.strides[1], operands.run.strides[2]};
  return widenRange(
      result, range, real, kinds,
      [&](mreal *values, mint k, mint count) {
        return pair.real(values, operands.first(k), operands.second(k), count, strides, real);
      },
      [&](mint k) { return widenElement(pair, result + k, operands.first(k), operands.second(k), flags); });
}

} // namespace

// The real operand that becomes complex is the second, unless only the first is real.
bool wideningPair(mint op, mint kind1, mint kind2, BinaryPair *pair) {
  constexpr mint complex = TORVANE_TYPE_COMPLEX;
  const bool widensFirst = kind2 == TORVANE_TYPE_INTEGER;
  const mint wide1 = widensFirst ? complex : kind1, wide2 = widensFirst ? kind2 : complex;
  if (storedKind2(op, kind1, kind2) != TORVANE_TYPE_REAL || storedKind2(op, wide1, wide2) != complex)
    return false;
  *pair = {binaryRoutineOf(op, kind1, kind2), binaryRoutineOf(op, wide1, wide2), widensFirst};
  return pair->real != nullptr && pair->complex != nullptr;
}

mint widenBinary(const BinaryPair &pair, MTensor *result, const MTensor *x, const MTensor *y, mint first,
                 mint flags) {
  mint nextPoll = first; // short runs share a block
  return overBlocks({x->elementCount, y->elementCount}, [&](const PairRun &run) {
    auto *target = static_cast<mcomplex *>(result->data) + run.resultStart;
    mint kinds = 0;
    for (mint k = std::max(first - run.resultStart, 0); k < run.count;) {
      if (run.resultStart + k == nextPoll) {
        if (checkAbortWatch() != 0) return k;
        nextPoll += kBlock;
      }
      const Range range = {k, std::min(run.count, nextPoll - run.resultStart)};
      k = widenBlock(pair, target, {x, y, run}, range, flags, &kinds);
      if (k < range.end) return k;
    }
    return outcomeOfKinds(kinds);
  });
}

} // namespace torvane
