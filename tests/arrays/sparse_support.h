// Sparse arrays for tests: built from lists, owned, and read back as rows of (position, value).
#pragma once

#include "arrays/sparse_array.h"
#include "support/tensor_builders.h"

#include <memory>
#include <vector>

namespace torvane::test {

struct SparseDeleter {
  void operator()(MSparseArray *array) const { MSparseArray_delete(array); }
};
using Sparse = std::unique_ptr<MSparseArray, SparseDeleter>;

// One line of coordinates an entry.
using Lines = std::vector<std::vector<mint>>;

inline Tensor matrixOf(const Lines &lines, mint rank) {
  std::vector<mint> flat;
  for (const std::vector<mint> &line : lines) flat.insert(flat.end(), line.begin(), line.end());
  return tensorOf<mint>({mint(lines.size()), rank}, flat);
}

template <class Element> Tensor vectorOf(const std::vector<Element> &values) {
  return tensorOf<Element>({mint(values.size())}, values);
}
template <class Element> Tensor scalarTensor(Element value) { return tensorOf<Element>({}, {value}); }

// Null where it is refused.
inline Sparse fromPositions(const Tensor &positions, const Tensor &values, const Tensor &dimensions,
                            const Tensor &background) {
  MSparseArray *slot = nullptr;
  MSparseArray_fromPositions(positions.get(), values.get(), dimensions.get(), background.get(), &slot);
  return Sparse(slot);
}

// All positions with their first coordinate, in the order of storage.
inline Lines linesOf(const MSparseArray *array) {
  Lines lines;
  const mint rank = sparseRank(array), length = coordinatesOfALine(rank);
  for (mint row = 1, entry = 0; row <= sparseRowCount(array); ++row)
    for (; entry < array->rowPointerData[row]; ++entry) {
      std::vector<mint> line;
      if (rank > 1) line.push_back(row);
      const mint *coordinates = array->columnIndexData + ptrdiff_t{entry} * length;
      line.insert(line.end(), coordinates, coordinates + length);
      lines.push_back(line);
    }
  return lines;
}

template <class Element> std::vector<Element> sparseValuesOf(const MSparseArray *array) {
  const MTensor *values = array->skeleton->values;
  if (values == nullptr || values->elementCount == 0) return {};
  const auto *first = static_cast<const Element *>(values->data);
  return std::vector<Element>(first, first + values->elementCount);
}

template <class Element> Element backgroundOf(const MSparseArray *array) {
  return *static_cast<const Element *>(array->skeleton->background->data);
}

inline std::vector<mint> rowPointersOf(const MSparseArray *array) {
  return std::vector<mint>(array->rowPointerData, array->rowPointerData + sparseRowCount(array) + 1);
}

inline Extents extentsOf(const MSparseArray *array) {
  return Extents(array->property->dimensions, array->property->dimensions + sparseRank(array));
}

} // namespace torvane::test
