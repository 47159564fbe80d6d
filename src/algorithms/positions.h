// Positions of parts of a tensor: the rows of an integer matrix, sorted, and shared out evenly over the parts
// that they lie in.
//
// A position is a key: the row-major index of the part that holds it, times the slots there, plus its slot.
// With k columns a part has k - 1 coordinates; a slot is an index of dimension k, or for an insertion also
// the place after the last. So keys sort as the rows do.
#pragma once

#include "../tensor/scratch.h"

namespace torvane {

class Positions {
public:
  // Room for the keys of this matrix, which has passed checkPositions.
  explicit Positions(const MTensor *matrix);

  // Reads the keys, sorted. `slotsAfterLast` is 1 for insertions, else 0. kValueFailed for one out of range.
  mint read(const MTensor *matrix, const MTensor *tensor, mint slotsAfterLast);

  void dropDuplicates();

  // Every part has equally many of them: their number, or 0.
  mint countPerPart() const;

  const int64_t *begin() const { return keys; }
  const int64_t *end() const { return keys + count; }
  int64_t partOf(int64_t key) const { return key / slots; }
  int64_t slotOf(int64_t key) const { return key % slots; }

private:
  Scratch<int64_t> storage;
  int64_t *keys;
  mint count, depth;
  int64_t slots = 1, parts = 1;
};

// kWrongType, kWrongRank, or kWrongDimensions for positions deeper than the tensor.
mint checkPositions(const MTensor *matrix, const MTensor *tensor);

} // namespace torvane
