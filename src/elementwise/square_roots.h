// Square roots eight at a time, at the level that has registers for them: correctly rounded, like the
// processor's own root, which takes more than twice as long.
//
// From an estimate of 1 / sqrt(x) two steps of Goldschmidt's method give g and h with g = sqrt(x) and
// h = 1 / (2 sqrt(x)) to within 4 units of 2^-53; the remainder d = x - g * g, one operation with one
// rounding, then gives the root as g + h * d, rounded once (P. Markstein, "Software division and square root
// using Goldschmidt's algorithms", RNC 2004). Before its rounding that sum lies within 26 * 2^-106 of the
// root, so that it rounds as the root does unless x lies within 256 units of 2^-106 of the square of a
// midpoint between two neighbours (x from 1 to 4). A test finds all of those, the solutions of a congruence,
// and tries each.
#pragma once

#include <torvane/types.h>

#ifdef __AVX512DQ__

#include <immintrin.h>

namespace torvane {

// The forms with a mask: what GCC's header passes to the plain ones in place of a mask, it warns of itself.
inline constexpr __mmask8 kAllEight = 0xFF;

inline __m512d refinedRoots(__m512d x) {
  const __m512d half = _mm512_set1_pd(0.5), estimate = _mm512_maskz_rsqrt14_pd(kAllEight, x);
  __m512d g = _mm512_mul_pd(x, estimate), h = _mm512_mul_pd(half, estimate);
  for (int step = 0; step < 2; ++step) { // 14 bits, 28, all
    const __m512d lacking = _mm512_fnmadd_pd(g, h, half);
    g = _mm512_fmadd_pd(g, lacking, g);
    h = _mm512_fmadd_pd(h, lacking, h);
  }
  return _mm512_fmadd_pd(h, _mm512_fnmadd_pd(g, g, x), g);
}

// Whether an element is not from 2^-900 to 2^900, where no step leaves the normal numbers: it is negative,
// say, or a NaN. Compares patterns, so that nothing accrues.
inline bool holdsRareOnes(__m512d x) {
  const __m512i low = _mm512_set1_epi64(0x07B0000000000000), range = _mm512_set1_epi64(0x7080000000000000);
  return _mm512_cmpge_epu64_mask(_mm512_sub_epi64(_mm512_castpd_si512(x), low), range) != 0;
}

// The steps are right where sums and products round to the nearest.
inline bool roundsToNearest() { return (_mm_getcsr() & _MM_ROUND_MASK) == _MM_ROUND_NEAREST; }

// Roots of the first elements, in eights: how many these are, and whether one is of a negative number.
struct SquareRoots {
  ptrdiff_t done;
  bool anyNegative;
};
inline SquareRoots squareRoots(mreal *result, const mreal *x, ptrdiff_t count) {
  ptrdiff_t k = 0;
  unsigned negatives = 0;
  for (const ptrdiff_t end = roundsToNearest() ? count : 0; end - k >= 8; k += 8) {
    const __m512d eight = _mm512_loadu_pd(x + k);
    if (!holdsRareOnes(eight)) [[likely]] {
      _mm512_storeu_pd(result + k, refinedRoots(eight));
    } else {
      // The steps would accrue something at an infinity. A NaN must accrue here, as it does by x < 0.
      _mm512_storeu_pd(result + k, _mm512_maskz_sqrt_pd(kAllEight, eight));
      negatives |= _mm512_cmp_pd_mask(eight, _mm512_setzero_pd(), _CMP_LT_OS);
    }
  }
  return {k, negatives != 0};
}

} // namespace torvane

#endif
