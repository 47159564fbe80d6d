// Tally: distinct elements of an integer vector and their counts, in order of first appearance.
//
// Values in a range not much longer than the vector are counted in a table over it. Others are sorted, as
// positions, and the length of each run of equal ones is kept at the position of its first, so that a walk
// over the positions meets the values as they appear. The abort poll is asked once for each value where
// the range is longer than a tenth of the vector, whichever way is taken: callers rely on where it is asked.
#include "tally.h"

#include "../runtime/failure.h"
#include "../tensor/scratch.h"
#include "handler.h"
#include "order.h"
#include "result_tensor.h"

#include <torvane/machfuncs.h>

#include <algorithm>

namespace torvane {

namespace {

// A range is short up to this part of the vector's length, and counted up to so many lengths: the table is
// smaller than a sort's scratch then.
constexpr mint kShareOfLength = 10;
constexpr int64_t kLengthsToCount = 4;

// ---- the range ----

struct Range {
  mint least, greatest;
  int64_t extent() const { return int64_t{greatest} - least; }
};

Range rangeOf(const mint *x, mint count) {
  const mint dense[] = {1, 1};
  mint ends[2];
  machfunc_i_minmax(ends, x, count, dense, 0);
  return {ends[0], ends[1]};
}

// Of the vector, or of so much of it as shows that the range is too long. Cut so that it is looked through on
// this thread.
Range rangeUpTo(const mint *x, mint count, int64_t longest) {
  constexpr mint kCut = 4096;
  Range range = {x[0], x[0]};
  for (mint k = 0; k < count && range.extent() <= longest; k += std::min(kCut, count - k)) {
    const Range next = rangeOf(x + k, std::min(kCut, count - k));
    range = {std::min(range.least, next.least), std::max(range.greatest, next.greatest)};
  }
  return range;
}

mint allocateRows(ResultTensor &result, mint count) {
  const mint extents[] = {count, 2};
  return result.allocate(TORVANE_TYPE_INTEGER, 2, extents);
}

// Once for each of so many values. kSuccess or kAborted.
mint pollFor(mint values) {
  for (mint k = 0; k < values; ++k)
    if (abortQ("RuntimeLibrary") != 0) return kAborted;
  return kSuccess;
}

// ---- by counting ----

// Counts of values from `least` on. Neighbours in the vector are counted in tables of their own, where these
// are small, so that a value that repeats does not wait for its own count.
class ValueCounts {
public:
  ValueCounts(mint leastValue, mint tableSize, mint errorMode)
      : least(leastValue), size(tableSize), tables(tableSize <= kSmallTable ? kLanes : 1),
        counts(tables * tableSize, errorMode) {}

  mint status() const { return counts.status(); }
  mint &of(mint value) { return counts[value - least]; }

  void count(const mint *x, mint length) {
    std::fill_n(counts.get(), tables * size, 0);
    if (size == 1) {
      counts[0] = length; // one value, whose turns would wait for one another
      return;
    }
    tables == 1 ? countOneByOne(x, length) : countInLanes(x, length);
  }
  mint distinct() { return size - static_cast<mint>(std::count(counts.get(), counts.get() + size, 0)); }

private:
  static constexpr mint kLanes = 4, kSmallTable = 2048;
  mint least, size, tables;
  Scratch<mint> counts;

  void countOneByOne(const mint *x, mint length) {
    for (mint k = 0; k < length; ++k) ++of(x[k]);
  }
  void countInLanes(const mint *x, mint length) {
    mint *const first = counts.get(), *const second = first + size, *const third = second + size,
                *const fourth = third + size;
    mint k = 0;
    for (; k + kLanes <= length; k += kLanes) {
      ++first[x[k] - least];
      ++second[x[k + 1] - least];
      ++third[x[k + 2] - least];
      ++fourth[x[k + 3] - least];
    }
    countOneByOne(x + k, length - k);
    for (mint i = 0; i < size; ++i) first[i] += second[i] + third[i] + fourth[i];
  }
};

// Each value at its first appearance: its count is spent then. Written without a branch, which would be
// guessed wrong at every new value, and ends at the last of `distinct` values.
void writeByAppearance(mint *rows, mint distinct, const mint *x, ValueCounts &counts) {
  for (mint written = 0; written < distinct; ++x) {
    mint &count = counts.of(*x);
    rows[2 * ptrdiff_t{written}] = *x;
    rows[2 * ptrdiff_t{written} + 1] = count;
    written += count != 0;
    count = 0;
  }
}

bool isShort(const MTensor *vector, int64_t range) { return range <= vector->elementCount / kShareOfLength; }

mint countInto(ResultTensor &result, const MTensor *vector, ValueCounts &counts, bool isPolled) {
  counts.count(integersOf(vector), vector->elementCount);
  const mint distinct = counts.distinct();
  mint status = isPolled ? pollFor(distinct) : kSuccess;
  if (status == kSuccess) status = allocateRows(result, distinct);
  if (status != kSuccess) return status;
  writeByAppearance(integersOf(result.get()), distinct, integersOf(vector), counts);
  return result.commit();
}

// ---- by sorting ----

// The vector's positions, from 1, in the order of its elements. Writes the length of each run of equal ones
// at its first position, from 0; the others keep their 0. kSuccess or kAborted.
mint measureRuns(const mint *x, const mint *order, mint count, mint *runs, mint *distinct) {
  for (mint start = 0, stop; start < count; start = stop) {
    if (abortQ("RuntimeLibrary") != 0) return kAborted;
    const mint first = order[start] - 1; // the sort is stable
    for (stop = start + 1; stop < count && x[order[stop] - 1] == x[first]; ++stop) {
    }
    runs[first] = stop - start;
    ++*distinct;
  }
  return kSuccess;
}

void writeRuns(mint *row, const mint *x, const mint *runs, mint count) {
  for (mint k = 0; k < count; ++k) {
    if (runs[k] == 0) continue;
    *row++ = x[k];
    *row++ = runs[k];
  }
}

mint sortInto(ResultTensor &result, const MTensor *vector) {
  const mint count = vector->elementCount;
  Scratch<mint> order(count), runs(count);
  if (order.status() != kSuccess || runs.status() != kSuccess) return kSizeFailed;
  bool wereInOrder;
  mint status = orderRows(order.get(), vector, &wereInOrder), distinct = 0;
  if (status != kSuccess) return status;
  std::fill_n(runs.get(), count, 0);
  status = measureRuns(integersOf(vector), order.get(), count, runs.get(), &distinct);
  if (status == kSuccess) status = allocateRows(result, distinct);
  if (status != kSuccess) return status;
  writeRuns(integersOf(result.get()), integersOf(vector), runs.get(), count);
  return kSuccess;
}

} // namespace

mint tallyByCounting(MTensor **resultSlot, const MTensor *vector, mint least, mint range) {
  const bool isPolled = !isShort(vector, range);
  ValueCounts counts(least, range + 1, isPolled ? kQuiet : kReport);
  if (counts.status() != kSuccess)
    return isPolled ? tallyBySorting(resultSlot, vector) : counts.status(); // which may do with less
  ResultTensor result(resultSlot, {vector});
  return countInto(result, vector, counts, isPolled);
}

mint tallyBySorting(MTensor **resultSlot, const MTensor *vector) {
  ResultTensor result(resultSlot, {vector});
  const mint status = sortInto(result, vector);
  return status == kSuccess ? result.commit() : status;
}

mint MTensor_tally(MTensor **resultSlot, const MTensor *vector) {
  const mint status = checkIntegerVector(vector), count = vector->elementCount;
  if (status != kSuccess) return status;
  if (count == 0) return kWrongDimensions;
  const int64_t longest = std::min<int64_t>(kLengthsToCount * count, INT32_MAX - 1);
  const Range range = rangeUpTo(integersOf(vector), count, longest);
  if (range.extent() > longest) return tallyBySorting(resultSlot, vector);
  return tallyByCounting(resultSlot, vector, range.least, static_cast<mint>(range.extent()));
}

mint handleTally(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *vector = tensorArgument(arguments, 0);
  return vector == nullptr ? kWrongArguments : MTensor_tally(tensorResult(result), vector);
}

} // namespace torvane
