// Numeric arrays that are deleted at the end of their scope.
#pragma once

#include "arrays/numeric_array.h"
#include "runtime/element_types.h"
#include "runtime/memory.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace torvane::test {

struct ArrayDeleter {
  void operator()(MNumericArray *array) const { MNumericArray_delete(array); }
};
using Array = std::unique_ptr<MNumericArray, ArrayDeleter>;

inline Array newArray(mint tag, const std::vector<mint> &extents) {
  return Array(Runtime_CreateNumericArray(tag, mint(extents.size()), extents.data()));
}

// `values` may be the parts of complexes.
template <class T> Array arrayOf(mint tag, const std::vector<T> &values) {
  Array array = newArray(tag, {mint(values.size() * sizeof(T) / kElementWidths[tag])});
  if (!values.empty()) std::memcpy(array->data, values.data(), values.size() * sizeof(T));
  return array;
}

// Extents that do not tell how many elements there are.
inline Array resetTo(Array array, const std::vector<mint> &extents) {
  MNumericArray_resetDimensions(array.get(), mint(extents.size()), extents.data());
  return array;
}

// An array over extents that nobody looks at one by one.
inline Array adoptedArray(mint tag, const std::vector<mint> &extents) {
  const auto bytes = uint32_t(extents.size() * sizeof(mint));
  auto *block = static_cast<mint *>(torvane::allocate(bytes, 0, kFatal));
  std::copy(extents.begin(), extents.end(), block);
  return Array(MNumericArray_newWithData(tag, mint(extents.size()), block, nullptr, 0));
}

inline std::vector<mint> extentsOf(const MNumericArray *array) {
  return std::vector<mint>(array->dimensions, array->dimensions + array->rank);
}

template <class T> std::vector<T> valuesOf(const MNumericArray *array) {
  const auto *first = static_cast<const T *>(array->data);
  return std::vector<T>(first, first + MNumericArray_byteCount(array) / sizeof(T));
}

} // namespace torvane::test
