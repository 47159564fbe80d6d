// Positions: reading, sorting, and the test that they leave a rectangle.
#include "positions.h"

#include "handler.h"

#include <algorithm>

namespace torvane {

mint checkPositions(const MTensor *matrix, const MTensor *tensor) {
  if (matrix->type != TORVANE_TYPE_INTEGER) return kWrongType;
  if (matrix->rank != 2) return kWrongRank;
  return matrix->dimensions[1] > tensor->rank ? kWrongDimensions : kSuccess;
}

Positions::Positions(const MTensor *matrix)
    : storage(matrix->dimensions[0]), keys(storage.get()), count(matrix->dimensions[0]),
      depth(matrix->dimensions[1]) {}

namespace {

// The index from 0 of a position in a dimension with so many slots, or -1.
int64_t slotOfPosition(int64_t position, int64_t slots) {
  const int64_t index = position < 0 ? position + slots : position - 1;
  return index < slots ? index : -1;
}

} // namespace

mint Positions::read(const MTensor *matrix, const MTensor *tensor, mint slotsAfterLast) {
  if (storage.status() != kSuccess) return storage.status();
  const mint *row = integersOf(matrix);
  slots = int64_t{tensor->dimensions[depth - 1]} + slotsAfterLast;
  for (mint j = 0; j + 1 < depth; ++j) parts *= tensor->dimensions[j];
  for (mint i = 0; i < count; ++i) {
    int64_t key = 0;
    for (mint j = 0; j < depth; ++j, ++row) {
      const int64_t extent = j + 1 < depth ? tensor->dimensions[j] : slots;
      const int64_t slot = slotOfPosition(*row, extent);
      if (slot < 0) return kValueFailed;
      key = key * extent + slot;
    }
    keys[i] = key;
  }
  std::sort(keys, keys + count);
  return kSuccess;
}

void Positions::dropDuplicates() { count = static_cast<mint>(std::unique(keys, keys + count) - keys); }

mint Positions::countPerPart() const {
  const mint each =
      static_cast<mint>(std::count_if(keys, keys + count, [this](int64_t key) { return partOf(key) == 0; }));
  if (int64_t{each} * parts != count) return 0;
  for (mint i = 0; i < count; ++i)
    if (partOf(keys[i]) != i / each) return 0;
  return each;
}

} // namespace torvane
