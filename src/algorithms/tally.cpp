// Tally: distinct elements of an integer vector and their counts, in order of first appearance.
//
// Values in a short range are counted in a table over it. Others are sorted, as positions, and the length of
// each run of equal ones is kept at the position of its first, so that a walk over the positions meets the
// values as they appear.
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

constexpr mint kShareOfLength = 10; // a range is short up to this part of the vector's length

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

// ---- by counting ----

// Counts of values from `least` on. Neighbours in the vector are counted in tables of their own, where these
// are small, so that a value that repeats does not wait for its own count.
class ValueCounts {
public:
  ValueCounts(mint leastValue, mint tableSize)
      : least(leastValue), size(tableSize), tables(tableSize <= kSmallTable ? kLanes : 1),
        counts(tables * tableSize) {}

  mint status() const { return counts.status(); }
  mint &of(mint value) { return counts[value - least]; }

  void count(const mint *x, mint length) {
    std::fill_n(counts.get(), tables * size, 0);
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

mint countInto(ResultTensor &result, const MTensor *vector, mint least, mint range) {
  ValueCounts counts(least, range + 1);
  if (counts.status() != kSuccess) return counts.status();
  counts.count(integersOf(vector), vector->elementCount);
  const mint distinct = counts.distinct();
  const mint status = allocateRows(result, distinct);
  if (status != kSuccess) return status;
  writeByAppearance(integersOf(result.get()), distinct, integersOf(vector), counts);
  return kSuccess;
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
  ResultTensor result(resultSlot, {vector});
  const mint status = countInto(result, vector, least, range);
  return status == kSuccess ? result.commit() : status;
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
  const Range range = rangeUpTo(integersOf(vector), count, count / kShareOfLength);
  if (range.extent() > count / kShareOfLength) return tallyBySorting(resultSlot, vector);
  return tallyByCounting(resultSlot, vector, range.least, static_cast<mint>(range.extent()));
}

mint handleTally(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *vector = tensorArgument(arguments, 0);
  return vector == nullptr ? kWrongArguments : MTensor_tally(tensorResult(result), vector);
}

} // namespace torvane
