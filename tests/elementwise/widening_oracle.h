// The loop over elements that the widening drivers stand for, and operands that leave the reals here and
// there.
#pragma once

#include "elementwise/repetition.h"
#include "elementwise/widening.h"
#include "support/kinds.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace torvane::test {

inline constexpr mint kInteger = 2, kReal = 3, kComplex = 4;
inline constexpr mint kSqrt = 57, kPow = 263, kPlus = 257, kSquare = 56, kLog = 34;

using Reals = std::vector<mreal>;
using Complexes = std::vector<mcomplex>;

inline constexpr mcomplex kUnwritten = {-77, -78};

// ---- the loop over elements ---------------------------------------------------------------------------

struct Looped {
  mint outcome;
  Complexes written; // before the failure
};

inline mint outcomeOfKinds(mint kinds) { return kinds == 0 ? -2 : -kinds; }

inline Looped loopUnary(const UnaryPair &pair, const mreal *x, mint first, mint count, mint flags) {
  const mint strides[2] = {1, 1};
  Looped looped = {0, {}};
  mint kinds = 0;
  for (mint k = first; k < count; ++k) {
    mreal value;
    mcomplex wide;
    const mcomplex widened = {x[k], 0};
    if (pair.real(&value, x + k, 1, strides, flags) == 0) {
      looped.written.push_back({value, 0});
      kinds |= 3;
    } else if (pair.complex(&wide, &widened, 1, strides, flags) == 0) {
      looped.written.push_back(wide);
      kinds |= 4;
    } else {
      looped.outcome = k;
      return looped;
    }
  }
  looped.outcome = outcomeOfKinds(kinds);
  return looped;
}

// Element k of the result pairs with element k of the longer operand and k / b of the shorter.
inline Looped loopBinary(const BinaryPair &pair, const MTensor *x, const MTensor *y, mint first, mint flags) {
  const mint strides[3] = {1, 1, 1}, longer = std::max(x->elementCount, y->elementCount),
             shorter = std::min(x->elementCount, y->elementCount), block = longer / shorter;
  Looped looped = {0, {}};
  mint kinds = 0;
  for (mint k = first; k < longer; ++k) {
    const void *a = elementAt(x, x->elementCount == longer ? k : k / block),
               *b = elementAt(y, y->elementCount == longer ? k : k / block);
    mreal value;
    mcomplex wide;
    if (pair.real(&value, a, b, 1, strides, flags | 2) == 0) {
      looped.written.push_back({value, 0});
      kinds |= 3;
      continue;
    }
    const mcomplex widened = {*static_cast<const mreal *>(pair.widensFirst ? a : b), 0};
    (pair.widensFirst ? a : b) = &widened;
    if (pair.complex(&wide, a, b, 1, strides, flags) != 0 || wide.im == 0) {
      looped.outcome = k;
      return looped;
    }
    looped.written.push_back(wide);
    kinds |= 4;
  }
  looped.outcome = outcomeOfKinds(kinds);
  return looped;
}

inline void expectSame(mcomplex x, mcomplex y, size_t k) {
  ASSERT_TRUE(sameReal(x.re, y.re) && sameReal(x.im, y.im))
      << k << ": (" << x.re << ", " << x.im << ") and (" << y.re << ", " << y.im << ")";
}

inline void expectWritten(const mcomplex *result, mint first, const Looped &looped) {
  for (mint k = 0; k < first; ++k) ASSERT_EQ(result[k].im, kUnwritten.im) << "not this call's";
  for (size_t k = 0; k < looped.written.size(); ++k)
    ASSERT_NO_FATAL_FAILURE(expectSame(result[size_t(first) + k], looped.written[k], k));
}

// ---- operands -------------------------------------------------------------------------------------------

enum class Mixture { positive, sparse, alternating, halves, random, anything };
inline constexpr Mixture kMixtures[] = {Mixture::positive, Mixture::sparse, Mixture::alternating,
                                        Mixture::halves,   Mixture::random, Mixture::anything};

inline mreal sample(Mixture mixture, size_t k, size_t count, std::mt19937_64 &random) {
  const mreal magnitude = mreal(random() % 4000 + 1) / 1000;
  switch (mixture) {
  case Mixture::positive:
    return magnitude;
  case Mixture::sparse:
    return random() % 300 == 0 ? -magnitude : magnitude;
  case Mixture::alternating:
    return k % 2 == 0 ? -magnitude : magnitude;
  case Mixture::halves:
    return k < count / 2 ? magnitude : -magnitude;
  case Mixture::random:
    return random() % 2 == 0 ? -magnitude : magnitude;
  case Mixture::anything:
    break;
  }
  return sampleElement(kReal, random).value.re;
}

inline Reals reals(Mixture mixture, size_t count, std::mt19937_64 &random) {
  Reals x(count);
  for (size_t k = 0; k < count; ++k) x[k] = sample(mixture, k, count, random);
  return x;
}

inline Tensor operand(mint kind, const Extents &extents, Mixture mixture, std::mt19937_64 &random) {
  Tensor tensor = newTensor(kind, extents);
  const auto count = size_t(tensor->elementCount);
  for (size_t k = 0; k < count; ++k) {
    const mreal value = sample(mixture, k, count, random);
    if (kind == kReal) elements<mreal>(tensor)[k] = value;
    if (kind == kInteger) elements<mint>(tensor)[k] = std::fabs(value) < 100 ? mint(value * 2) : 3;
  }
  return tensor;
}

inline Tensor unwritten(mint count) {
  Tensor tensor = newTensor(kComplex, {count});
  std::fill_n(elements<mcomplex>(tensor), count, kUnwritten);
  return tensor;
}

} // namespace torvane::test
