// Numeric arrays that are deleted at the end of their scope.
#pragma once

#include "arrays/numeric_array.h"
#include "runtime/element_types.h"

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

template <class T> std::vector<T> valuesOf(const MNumericArray *array) {
  const auto *first = static_cast<const T *>(array->data);
  return std::vector<T>(first, first + MNumericArray_byteCount(array) / sizeof(T));
}

} // namespace torvane::test
