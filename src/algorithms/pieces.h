// Results that take a selection of the indices of each dimension of their source.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// `groups` runs of `length` consecutive indices, the first at these two indices (0-based), the next ones a
// pitch further on.
struct Piece {
  mint groups, length;
  mint target, targetPitch;
  mint source, sourcePitch;
};

inline Piece runOf(mint length, mint target, mint source) { return {1, length, target, 0, source, 0}; }

// One dimension: pieces that cover all of the target's indices. Empty ones are left out.
class AxisPieces {
public:
  void add(const Piece &piece) {
    if (piece.groups > 0 && piece.length > 0) pieces[count++] = piece;
  }
  const Piece *begin() const { return pieces; }
  const Piece *end() const { return pieces + count; }

private:
  mint count = 0;
  Piece pieces[3];
};

// Copies by the pieces of the first `axisCount` dimensions; the dimensions after them are the same in both
// tensors and copied whole. Both tensors are allocated, of one type, apart, and nothing happens when either
// is empty.
void copyPieces(MTensor *target, const MTensor *source, const AxisPieces *axes, mint axisCount);

} // namespace torvane
