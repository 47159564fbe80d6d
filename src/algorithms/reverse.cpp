// Reverse: the rows along the first dimension in opposite order.
#include "handler.h"
#include "pieces.h"
#include "result_tensor.h"
#include <torvane/lists.h>

using namespace torvane;

mint Runtime_MTensor_Reverse(MTensor **resultSlot, MTensor *tensor) {
  if (tensor->rank < 1) return kWrongRank;
  ResultTensor reversed(resultSlot, {tensor});
  const mint status = reversed.allocateLike(tensor->type, tensor);
  if (status != kSuccess) return status;
  const mint length = tensor->dimensions[0];
  AxisPieces rows;
  rows.add({length, 1, 0, 1, length - 1, -1});
  copyPieces(reversed.get(), tensor, &rows, 1);
  return reversed.commit();
}

mint torvane::handleReverse(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  return Runtime_MTensor_Reverse(tensorResult(result), tensorArgument(arguments, 0));
}
