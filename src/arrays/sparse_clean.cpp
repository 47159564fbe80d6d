// Sparse arrays with fewer elements: without repetitions, without those that equal the background; and other
// backgrounds.
//
// Repetitions are found by numbers of the coordinates after the first: lines are sorted, and equal ones,
// which are neighbours then, get one number. A mark at each number says in which row it was last seen.
#include "sparse_background.h"

#include "../algorithms/order.h"
#include "../algorithms/scratch_bytes.h"
#include "../tensor/tensor.h"

#include <string.h>

namespace torvane {

namespace {

// At rank 0 there are no lines, whatever the count says, and so nothing to drop.
bool hasNoLines(const MSparseArray *array) { return array->elementCount == 0 || sparseRank(array) < 1; }

// The numbers, from 1, of the entries that stay, ascending.
struct Kept {
  mint *entries, count;
};

// How many of them are among the first entries, for the end of each row.
void countKept(const Kept &kept, const MSparseArray *array, mint *rowPointers) {
  const mint rows = sparseRowCount(array);
  for (mint row = 1, k = 0; row <= rows; ++row) {
    while (k < kept.count && kept.entries[k] <= array->rowPointerData[row]) ++k;
    rowPointers[row] = k;
  }
}

void gather(MTensor *target, const MTensor *source, const Kept &kept, size_t bytes) {
  gatherRows(target->data, source->data, kept.entries, kept.count, bytes);
}

bool takeValues(MSparseArray *target, const MSparseArray *source, const Kept &kept) {
  const mint type = source->property->type;
  if (type == TORVANE_TYPE_PATTERN || !allocateValues(target, type, kReport)) return false;
  gather(target->skeleton->values, source->skeleton->values, kept, elementWidth(type));
  return true;
}

// A new array of the entries that stay; null when memory is short, or values are asked for that there are
// not.
MSparseArray *keepEntries(const MSparseArray *array, const Kept &kept, bool withValues) {
  const mint rank = sparseRank(array);
  MSparseArray *made = newSparseArray(rank, array->property->dimensions, kept.count, kReport);
  if (made == nullptr) return nullptr;
  countKept(kept, array, made->rowPointerData);
  if (kept.count > 0)
    gather(made->skeleton->columnIndices, array->skeleton->columnIndices, kept,
           sizeof(mint) * static_cast<size_t>(coordinatesOfALine(rank)));
  setBackgroundValue(made, array->skeleton->background);
  if (withValues ? takeValues(made, array, kept) : allocateValues(made, TORVANE_TYPE_PATTERN, kReport))
    return made;
  MSparseArray_delete(made);
  return nullptr;
}

uint64_t bytesOf(mint count) { return sizeof(mint) * static_cast<uint64_t>(count); }

// Numbers the lines from 0, equal ones alike, by their order; `numbers` becomes an entry a line. How many
// there are.
mint numberInOrder(const MTensor *lines, const mint *order, mint *numbers) {
  const auto *coordinates = static_cast<const mint *>(lines->data);
  const auto length = static_cast<size_t>(lines->dimensions[1]);
  const mint *last = nullptr;
  mint number = -1;
  for (mint k = 0; k < lines->dimensions[0]; ++k) {
    const mint *line = coordinates + (static_cast<size_t>(order[k]) - 1) * length;
    if (last == nullptr || memcmp(last, line, length * sizeof(mint)) != 0) ++number;
    numbers[order[k] - 1] = number;
    last = line;
  }
  return number + 1;
}

// False when memory is short.
bool numberLines(const MTensor *lines, mint *numbers, mint *count) {
  const ScratchBytes order(bytesOf(lines->dimensions[0]), kReport);
  bool wereInOrder;
  if (!order || orderRows(order.as<mint>(), lines, &wereInOrder) != kSuccess) return false;
  *count = numberInOrder(lines, order.as<mint>(), numbers);
  return true;
}

// Entries over the numbers of their lines, in place; `seen` is all zero, and holds row numbers.
Kept keepFirst(const MSparseArray *array, mint *numbers, mint *seen) {
  Kept kept = {numbers, 0};
  const mint rows = sparseRowCount(array);
  for (mint row = 1, entry = 0; row <= rows; ++row)
    for (; entry < array->rowPointerData[row]; ++entry) {
      mint &mark = seen[numbers[entry]];
      if (mark != row) kept.entries[kept.count++] = entry + 1;
      mark = row;
    }
  return kept;
}

template <class Element> Kept keepOthers(const MSparseArray *array, mint *entries) {
  const auto background = scalarOf<Element>(array->skeleton->background);
  const auto *values = static_cast<const Element *>(array->skeleton->values->data);
  Kept kept = {entries, 0};
  for (mint entry = 0; entry < array->elementCount; ++entry)
    if (!equalsBackground(values[entry], background)) kept.entries[kept.count++] = entry + 1;
  return kept;
}

// The slot's own array goes, but never the one that the slot is to hold. Where the slot held `array`, a new
// one takes its place and `array` goes after it.
mint store(MSparseArray *array, MSparseArray **slot) {
  if (array == nullptr) return kSparseFault;
  MSparseArray *old = *slot;
  *slot = array;
  if (old != array) MSparseArray_delete(old);
  return kSuccess;
}

bool equalsBackground(const MSparseArray *array, const MTensor *background) {
  return withElement(background->type, [&](auto element) {
    using Element = decltype(element);
    return torvane::equalsBackground(scalarOf<Element>(background),
                                     scalarOf<Element>(array->skeleton->background));
  });
}

mint rebuild(const MSparseArray *array, const MTensor *background, MSparseArray **result) {
  MTensor *dense = nullptr;
  mint status = MSparseArray_toTensor(array, &dense);
  if (status == kSuccess) status = MSparseArray_fromTensor(dense, background, result);
  MTensor_delete(dense);
  return status;
}

} // namespace

mint MSparseArray_dropDuplicates(MSparseArray *array, mint withValues, MSparseArray **result) {
  *result = array;
  if (hasNoLines(array)) return kSuccess;
  *result = nullptr;
  const ScratchBytes numbers(bytesOf(array->elementCount), kReport);
  mint distinct;
  if (!numbers || !numberLines(array->skeleton->columnIndices, numbers.as<mint>(), &distinct))
    return kSparseFault;
  const ScratchBytes seen(bytesOf(distinct), kReport);
  if (!seen) return kSparseFault;
  std::fill_n(seen.as<mint>(), distinct, 0);
  const Kept kept = keepFirst(array, numbers.as<mint>(), seen.as<mint>());
  *result = kept.count == array->elementCount ? array : keepEntries(array, kept, withValues != 0);
  return *result != nullptr ? kSuccess : kSparseFault;
}

MSparseArray *MSparseArray_dropBackground(MSparseArray *array) {
  if (hasNoLines(array)) return array;
  const ScratchBytes entries(bytesOf(array->elementCount), kReport);
  if (!entries) return nullptr;
  const Kept kept = withElement(array->property->type, [&](auto element) {
    return keepOthers<decltype(element)>(array, entries.as<mint>());
  });
  return kept.count == array->elementCount ? array : keepEntries(array, kept, true);
}

mint MSparseArray_setBackground(MSparseArray *array, const MTensor *background, MSparseArray **result) {
  const mint type = array->property->type;
  if (type == TORVANE_TYPE_PATTERN || (background != nullptr && background->type != type)) return kWrongType;
  if (background != nullptr && background->rank > 0) return kWrongRank;
  if (result == nullptr) return kSparseFault;
  if (background == nullptr || equalsBackground(array, background))
    return store(MSparseArray_dropBackground(array), result);
  return rebuild(array, background, result);
}

} // namespace torvane
