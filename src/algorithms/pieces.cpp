// Every choice of one piece a dimension is a box. A dimension of one piece continues the box at hand; only
// those of several branch, and a tensor has at most 31 dimensions that can.
#include "pieces.h"

#include "box.h"

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

struct PieceCopy {
  const mint *targetExtents, *sourceExtents;
  const AxisPieces *axes;
  mint axisCount;

  void from(mint axis, Box box, Place at) const {
    for (; axis < axisCount; ++axis) {
      at.targetStride /= targetExtents[axis];
      at.sourceStride /= sourceExtents[axis];
      const AxisPieces &pieces = axes[axis];
      for (const Piece *piece = pieces.begin(); piece + 1 < pieces.end(); ++piece)
        branch(axis, *piece, box, at);
      enter(pieces.end()[-1], box, at);
    }
    box.copy(at.target, at.source, static_cast<size_t>(at.targetStride));
  }

  void branch(mint axis, const Piece &piece, Box box, Place at) const {
    enter(piece, box, at);
    from(axis + 1, box, at);
  }
};

ptrdiff_t bytesOf(const MTensor *tensor) {
  return static_cast<ptrdiff_t>(elementWidth(tensor->type)) * tensor->elementCount;
}

} // namespace

void copyPieces(MTensor *target, const MTensor *source, const AxisPieces *axes, mint axisCount) {
  if (target->elementCount == 0 || source->elementCount == 0) return;
  const PieceCopy copy = {target->dimensions, source->dimensions, axes, axisCount};
  copy.from(0, Box(),
            {static_cast<char *>(target->data), static_cast<const char *>(source->data), bytesOf(target),
             bytesOf(source)});
}

} // namespace torvane
