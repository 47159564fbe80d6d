// Rotate: cyclic shifts of the first dimensions. A shift by k moves index k to the start: two pieces a
// dimension.
#include "handler.h"
#include "pieces.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include <torvane/lists.h>

namespace torvane {

namespace {

AxisPieces piecesOf(mint length, int64_t shift) {
  const auto first = static_cast<mint>(((shift % length) + length) % length);
  AxisPieces pieces;
  pieces.add(runOf(length - first, 0, first));
  pieces.add(runOf(first, length - first, 0));
  return pieces;
}

// By the shifts times `sign`.
mint rotate(ResultTensor &result, const MTensor *tensor, mint count, const mint *shifts, int64_t sign) {
  if (count < 0 || count > tensor->rank) return kWrongDimensions;
  Scratch<AxisPieces> axes(count);
  if (axes.status() != kSuccess) return axes.status();
  for (mint i = 0; i < count && tensor->elementCount > 0; ++i)
    axes[i] = piecesOf(tensor->dimensions[i], sign * shifts[i]);
  const mint status = result.allocateLike(tensor->type, tensor);
  if (status != kSuccess) return status;
  copyPieces(result.get(), tensor, axes.get(), count);
  return result.commit();
}

// A vector of shifts is only read: it may be shared with other threads meanwhile.
mint rotateByName(mint argumentCount, void *const *arguments, void *result, int64_t sign) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  const mint one = 1;
  ResultTensor rotated(tensorResult(result), {tensor});
  if (argumentCount == 1) return rotate(rotated, tensor, 1, &one, sign);
  const MTensor *shifts = tensorArgument(arguments, 1);
  const mint status = checkIntegerVector(shifts);
  if (status != kSuccess) return status;
  rotated.avoid(shifts);
  return rotate(rotated, tensor, shifts->elementCount, integersOf(shifts), sign);
}

} // namespace

mint handleRotateLeft(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return rotateByName(argumentCount, arguments, result, 1);
}

mint handleRotateRight(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return rotateByName(argumentCount, arguments, result, -1);
}

} // namespace torvane

using namespace torvane;

mint Runtime_MTensor_Rotate(MTensor **resultSlot, MTensor *tensor, mint count, const mint *shifts) {
  ResultTensor rotated(resultSlot, {tensor});
  return rotate(rotated, tensor, count, shifts, 1);
}
