// Numeric arrays that are deleted at the end of their scope.
#pragma once

#include "arrays/numeric_array.h"

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

template <class T> Array arrayOf(mint tag, const std::vector<T> &values) {
  Array array = newArray(tag, {mint(values.size())});
  if (!values.empty()) std::memcpy(array->data, values.data(), values.size() * sizeof(T));
  return array;
}

template <class T> std::vector<T> valuesOf(const MNumericArray *array) {
  const auto *first = static_cast<const T *>(array->data);
  return array->elementCount == 0 ? std::vector<T>() : std::vector<T>(first, first + array->elementCount);
}

} // namespace torvane::test
