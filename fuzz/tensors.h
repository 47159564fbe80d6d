// Tensors from a fuzzer's bytes: small, of any type and rank to 4, extents of 0 now and then, and elements at
// the edges of their type among small ones.
#pragma once

#include "input.h"
#include "support/tensor_builders.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

inline constexpr mint kMostElements = 512; // of one tensor

inline bool oneIn(Input &input, uint8_t n) { return input.take<uint8_t>() % n == n - 1; }
inline mint below(Input &input, mint bound) { return input.take<uint8_t>() % bound; }

inline mint takeInteger(Input &input) {
  constexpr mint kEdges[] = {INT32_MIN, INT32_MIN + 1, INT32_MAX, INT32_MAX - 1, 46341,   65536,
                             -65536,    1 << 30,       1000,      100000,        1 << 24, -(1 << 30)};
  const auto raw = input.take<uint8_t>();
  return raw < 232 ? raw % 11 - 3 : kEdges[raw % std::size(kEdges)];
}

inline mreal takeReal(Input &input) {
  constexpr mreal kEdges[] = {NAN,      INFINITY, -INFINITY,     -0.0,       DBL_MAX,
                              -DBL_MAX, DBL_MIN,  5e-324,        2147483647, -2147483648.,
                              1e16,     1e-9,     4294967296.25, 0.1,        1 + 1e-9};
  const auto raw = input.take<uint8_t>();
  if (raw < 150) return raw % 9 - 3;
  return raw < 210 ? (raw - 180) / 8.0 : kEdges[raw % std::size(kEdges)];
}

inline mcomplex takeComplex(Input &input) {
  const mreal re = takeReal(input);
  return {re, takeReal(input)};
}

inline mint takeType(Input &input) { return TORVANE_TYPE_INTEGER + below(input, 3); }

inline torvane::test::Extents takeExtents(Input &input) {
  constexpr uint8_t kRanks[] = {0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 4};
  torvane::test::Extents extents(kRanks[below(input, std::size(kRanks))]);
  mint count = 1;
  for (mint &extent : extents) {
    const auto raw = input.take<uint8_t>();
    extent = raw < 236 ? raw % 6 : raw < 250 ? raw % 70 : 400;
    if (count * extent > kMostElements) extent = 1;
    count *= std::max(extent, 1);
  }
  return extents;
}

inline void takeElement(Input &input, MTensor *tensor, mint i) {
  if (tensor->type == TORVANE_TYPE_INTEGER) static_cast<mint *>(tensor->data)[i] = takeInteger(input);
  if (tensor->type == TORVANE_TYPE_REAL) static_cast<mreal *>(tensor->data)[i] = takeReal(input);
  if (tensor->type == TORVANE_TYPE_COMPLEX) static_cast<mcomplex *>(tensor->data)[i] = takeComplex(input);
}

// Elements by the bytes of the input, or as a few bytes repeated, where there are many.
inline torvane::test::Tensor takeTensorOf(Input &input, mint type, const torvane::test::Extents &extents) {
  torvane::test::Tensor tensor = torvane::test::newTensor(type, extents);
  const mint period = oneIn(input, 4) ? INT32_MAX : 1 + below(input, 12);
  for (mint i = 0; i < tensor->elementCount; ++i) {
    const auto width = torvane::elementWidth(type);
    auto *bytes = static_cast<char *>(tensor->data);
    if (i < period)
      takeElement(input, tensor.get(), i);
    else
      std::memcpy(bytes + size_t(i) * width, bytes + size_t(i - period) * width, width);
  }
  return tensor;
}

inline torvane::test::Tensor takeTensor(Input &input) {
  const mint type = takeType(input);
  return takeTensorOf(input, type, takeExtents(input));
}

inline torvane::test::Tensor takeIntegerVector(Input &input) {
  return takeTensorOf(input, TORVANE_TYPE_INTEGER, {below(input, 5)});
}

inline torvane::test::Tensor cloneOf(const MTensor *tensor) {
  torvane::test::Tensor copy(MTensor_new());
  MTensor_copy(copy.get(), tensor);
  return copy;
}

// Bit for bit, but any NaN for a NaN.
inline bool isSameReal(mreal a, mreal b) {
  return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}
inline bool isSameTensor(const MTensor *a, const MTensor *b) {
  if (a->type != b->type || torvane::test::extentsOf(a) != torvane::test::extentsOf(b)) return false;
  if (a->elementCount != b->elementCount || a->elementCount == 0) return a->elementCount == b->elementCount;
  if (a->type == TORVANE_TYPE_INTEGER)
    return std::memcmp(a->data, b->data, size_t(a->elementCount) * sizeof(mint)) == 0;
  const mint reals = a->type == TORVANE_TYPE_COMPLEX ? 2 * a->elementCount : a->elementCount;
  return std::equal(static_cast<mreal *>(a->data), static_cast<mreal *>(a->data) + reals,
                    static_cast<mreal *>(b->data), isSameReal);
}
