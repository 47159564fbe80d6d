// Sparse arrays from a list of positions.
//
// Lines are checked, then counted by their first coordinate. Lines that do not descend by it stand in place;
// others go to the next free place of their row, coordinates and value at once, which is a stable counting
// sort (D. E. Knuth, The Art of Computer Programming 3, 5.2, algorithm D).
#include "sparse_array.h"

#include "../tensor/scratch.h"
#include "../tensor/tensor.h"

#include <string.h>

namespace torvane {

namespace {

// `count` lines of `rank` coordinates.
struct Lines {
  const mint *first;
  mint count, rank;
  const mint *operator[](mint i) const { return first + ptrdiff_t{i} * rank; }
};

const mint *integersOf(const MTensor *tensor) { return static_cast<const mint *>(tensor->data); }

bool isIntegers(const MTensor *tensor, mint rank) {
  return tensor->type == TORVANE_TYPE_INTEGER && tensor->rank == rank;
}

bool hasType(const MTensor *background, mint type) {
  return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX &&
         (background == nullptr || background->rank == 0);
}

bool areArguments(const MTensor *positions, const MTensor *values, const MTensor *dimensions,
                  const MTensor *background, mint type) {
  if (positions == nullptr || !isIntegers(positions, 2) || positions->dimensions[1] < 1) return false;
  if (!hasType(background, type)) return false;
  if (values != nullptr &&
      (values->rank != 1 || values->type != type || values->elementCount != positions->dimensions[0]))
    return false;
  return dimensions == nullptr ||
         (isIntegers(dimensions, 1) && dimensions->elementCount == positions->dimensions[1]);
}

// Without branches, so that several lines are tested at once; matrices, which are most, by a constant step.
template <mint kRank> bool areWithin(const Lines &lines, const mint *extents) {
  const mint rank = kRank == 0 ? lines.rank : kRank;
  uint32_t outside = 0;
  for (mint i = 0; i < lines.count; ++i)
    for (mint k = 0; k < rank; ++k)
      outside |= static_cast<uint32_t>(lines.first[ptrdiff_t{i} * rank + k]) - 1 >=
                 static_cast<uint32_t>(extents[k]);
  return outside == 0;
}

void largestCoordinates(const Lines &lines, mint *extents) {
  std::fill_n(extents, lines.rank, 0);
  for (mint i = 0; i < lines.count; ++i)
    for (mint k = 0; k < lines.rank; ++k) extents[k] = std::max(extents[k], lines[i][k]);
}

bool findExtents(const Lines &lines, const MTensor *dimensions, mint *extents) {
  if (dimensions == nullptr)
    largestCoordinates(lines, extents);
  else
    std::copy_n(integersOf(dimensions), lines.rank, extents);
  if (*std::min_element(extents, extents + lines.rank) < 0) return false;
  return lines.rank == 2 ? areWithin<2>(lines, extents) : areWithin<0>(lines, extents);
}

// Counts the lines of each row, where the row's end is to stand. Whether the rows do not descend.
bool countRows(const Lines &lines, mint *rowPointers, mint rows) {
  rowPointers[rows] = 0; // a new array has its number of elements here
  mint last = 0, descents = 0;
  for (mint i = 0; i < lines.count; ++i) {
    const mint row = lines[i][0];
    ++rowPointers[row];
    descents |= row < last;
    last = row;
  }
  return descents == 0;
}

void sumRows(mint *rowPointers, mint rows) {
  for (mint row = 1; row <= rows; ++row) rowPointers[row] += rowPointers[row - 1];
}

// A loop, because coordinates are few: the call of memmove costs more than they do.
inline void copyColumn(const mint *line, ptrdiff_t length, mint *columns) {
  for (ptrdiff_t k = 0; k < length; ++k) columns[k] = line[k + 1];
}

template <mint kRank> void copyColumns(const Lines &lines, mint *columns) {
  const ptrdiff_t rank = kRank == 0 ? lines.rank : kRank;
  for (ptrdiff_t i = 0; i < lines.count; ++i)
    copyColumn(lines.first + i * rank, rank - 1, columns + i * (rank - 1));
}

struct NoValue {};

// The value of a line goes with it.
template <class Value> void placeValue(void *target, mint place, const void *source, mint i) {
  static_cast<Value *>(target)[place] = static_cast<const Value *>(source)[i];
}
template <> void placeValue<NoValue>(void *, mint, const void *, mint) {}

// `next` holds the next free place of each row; afterwards, where the row ends.
template <class Value, mint kRank>
void placeLines(const Lines &lines, mint *next, mint *columns, void *target, const void *values) {
  const ptrdiff_t rank = kRank == 0 ? lines.rank : kRank;
  const mint *line = lines.first;
  for (mint i = 0; i < lines.count; ++i, line += rank) {
    const mint place = next[line[0] - 1]++;
    copyColumn(line, rank - 1, columns + place * (rank - 1));
    placeValue<Value>(target, place, values, i);
  }
}

template <class Value>
void placeLinesOf(const Lines &lines, mint *next, mint *columns, void *target, const void *values) {
  if (lines.rank == 2)
    placeLines<Value, 2>(lines, next, columns, target, values);
  else
    placeLines<Value, 0>(lines, next, columns, target, values);
}

void placeByRow(const Lines &lines, MSparseArray *array, const MTensor *values) {
  mint *next = array->rowPointerData, *columns = array->columnIndexData;
  void *target = values == nullptr ? nullptr : array->skeleton->values->data;
  switch (values == nullptr ? mint{TORVANE_TYPE_PATTERN} : values->type) {
  case TORVANE_TYPE_INTEGER:
    placeLinesOf<mint>(lines, next, columns, target, values->data);
    break;
  case TORVANE_TYPE_REAL:
    placeLinesOf<mreal>(lines, next, columns, target, values->data);
    break;
  case TORVANE_TYPE_COMPLEX:
    placeLinesOf<mcomplex>(lines, next, columns, target, values->data);
    break;
  default:
    placeLinesOf<NoValue>(lines, next, columns, nullptr, nullptr);
  }
  // Every place has moved to the end of its row, which is the next row's beginning.
  memmove(next + 1, next, static_cast<size_t>(sparseRowCount(array)) * sizeof(mint));
  next[0] = 0;
}

void keepOrder(const Lines &lines, MSparseArray *array, const MTensor *values) {
  if (lines.rank == 1)
    std::copy_n(lines.first, lines.count, array->columnIndexData);
  else if (lines.rank == 2)
    copyColumns<2>(lines, array->columnIndexData);
  else
    copyColumns<0>(lines, array->columnIndexData);
  if (values != nullptr) MTensor_copyContiguousData(array->skeleton->values, 0, values, 0, lines.count);
}

void fill(const Lines &lines, MSparseArray *array, const MTensor *values) {
  if (lines.count == 0) return;
  if (lines.rank == 1) return keepOrder(lines, array, values);
  const mint rows = sparseRowCount(array);
  const bool inOrder = countRows(lines, array->rowPointerData, rows);
  sumRows(array->rowPointerData, rows);
  inOrder ? keepOrder(lines, array, values) : placeByRow(lines, array, values);
}

// Null for a fault, or when memory is short.
MSparseArray *build(const Lines &lines, const MTensor *values, const MTensor *dimensions,
                    const MTensor *background) {
  Scratch<mint> extents(lines.rank);
  if (extents.status() != kSuccess || !findExtents(lines, dimensions, extents.get())) return nullptr;
  MSparseArray *array = newSparseArray(lines.rank, extents.get(), lines.count, kReport);
  if (array == nullptr) return nullptr;
  if (background != nullptr) setBackgroundValue(array, background);
  if (!allocateValues(array, values == nullptr ? mint{TORVANE_TYPE_PATTERN} : values->type, kReport)) {
    MSparseArray_delete(array);
    return nullptr;
  }
  fill(lines, array, values);
  return array;
}

} // namespace

mint MSparseArray_fromPositions(const MTensor *positions, const MTensor *values, const MTensor *dimensions,
                                const MTensor *background, MSparseArray **result) {
  if (result == nullptr) return kSparseFault;
  MSparseArray *array = nullptr;
  const mint type = background == nullptr ? mint{TORVANE_TYPE_INTEGER} : background->type;
  if (areArguments(positions, values, dimensions, background, type))
    array = build({integersOf(positions), positions->dimensions[0], positions->dimensions[1]}, values,
                  dimensions, background);
  MSparseArray_delete(*result);
  *result = array;
  return array != nullptr ? kSuccess : kSparseFault;
}

} // namespace torvane
