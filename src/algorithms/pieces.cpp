// Every choice of one piece a dimension is a box. A dimension of one piece continues the box at hand; only
// those of several branch, and a tensor has at most 31 dimensions that can.
//
// Boxes that interleave would pass over the same cache lines one box after another: dimensions before the
// last that branches are cut, so that all boxes of a cut find their lines in the cache.
#include "pieces.h"

#include "../tensor/box.h"

namespace torvane {

namespace {

struct Place {
  char *target;
  const char *source;
  ptrdiff_t targetStride, sourceStride; // bytes of one index of the dimension reached
};

void enter(const Piece &piece, Box &box, Place &at) {
  at.target += piece.target * at.targetStride;
  at.source += piece.source * at.sourceStride;
  box.add(static_cast<size_t>(piece.groups), piece.targetPitch * at.targetStride,
          piece.sourcePitch * at.sourceStride);
  box.add(static_cast<size_t>(piece.length), at.targetStride, at.sourceStride);
}

constexpr ptrdiff_t kCutBytes = 65536; // of the result

bool isDivisible(const Piece &piece) { return piece.groups > 1 || piece.length > 1; }

struct Halves {
  Piece first, second;
};

Halves halvesOf(const Piece &piece) {
  Halves halves = {piece, piece};
  if (piece.groups > 1) {
    halves.first.groups = piece.groups / 2;
    halves.second.groups -= halves.first.groups;
    halves.second.target += halves.first.groups * piece.targetPitch;
    halves.second.source += halves.first.groups * piece.sourcePitch;
  } else {
    halves.first.length = piece.length / 2;
    halves.second.length -= halves.first.length;
    halves.second.target += halves.first.length;
    halves.second.source += halves.first.length;
  }
  return halves;
}

struct PieceCopy {
  const mint *targetExtents, *sourceExtents;
  const AxisPieces *axes;
  mint axisCount, lastBranch;

  bool isToCut(mint axis, const Piece &piece, const Place &at) const {
    return axis < lastBranch && isDivisible(piece) &&
           piece.groups * (piece.length * at.targetStride) > kCutBytes;
  }

  void from(mint axis, Box box, Place at) const {
    for (; axis < axisCount; ++axis) {
      at.targetStride /= targetExtents[axis];
      at.sourceStride /= sourceExtents[axis];
      const AxisPieces &pieces = axes[axis];
      if (pieces.end() - pieces.begin() > 1 || isToCut(axis, *pieces.begin(), at)) {
        for (const Piece &piece : pieces) branch(axis, piece, box, at);
        return;
      }
      enter(*pieces.begin(), box, at);
    }
    box.copy(at.target, at.source, static_cast<size_t>(at.targetStride));
  }

  void branch(mint axis, const Piece &piece, Box box, Place at) const {
    if (isToCut(axis, piece, at)) {
      const Halves halves = halvesOf(piece);
      branch(axis, halves.first, box, at);
      branch(axis, halves.second, box, at);
    } else {
      enter(piece, box, at);
      from(axis + 1, box, at);
    }
  }
};

mint lastBranchOf(const AxisPieces *axes, mint axisCount) {
  mint axis = axisCount - 1;
  while (axis >= 0 && axes[axis].end() - axes[axis].begin() < 2) --axis;
  return axis;
}

ptrdiff_t bytesOf(const MTensor *tensor) {
  return static_cast<ptrdiff_t>(elementWidth(tensor->type)) * tensor->elementCount;
}

} // namespace

void copyPieces(MTensor *target, const MTensor *source, const AxisPieces *axes, mint axisCount) {
  if (target->elementCount == 0 || source->elementCount == 0) return;
  const PieceCopy copy = {target->dimensions, source->dimensions, axes, axisCount,
                          lastBranchOf(axes, axisCount)};
  copy.from(0, Box(),
            {static_cast<char *>(target->data), static_cast<const char *>(source->data), bytesOf(target),
             bytesOf(source)});
}

} // namespace torvane
