// Flatten: the first level + 1 dimensions as one. The elements stay as they stand.
#include "handler.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include <torvane/lists.h>

#include <algorithm>

using namespace torvane;

// One rule for every level from -1 on: the product of no dimensions is 1, so that a scalar, whose highest
// level is -1, becomes a vector of one element. Memory that runs out ends the process, here as in every plain
// copy.
mint Runtime_MTensor_Flatten(MTensor **resultSlot, MTensor *tensor, mint level) {
  const mint joined = std::clamp(level, -1, tensor->rank - 1) + 1, kept = tensor->rank - joined;
  Scratch<mint> extents(kept + 1, kFatal);
  extents[0] = NumberOfElements_common(joined, tensor->dimensions, kFatal);
  std::copy_n(tensor->dimensions + joined, kept, extents.get() + 1);
  return reshapeToSlot(resultSlot, tensor, kept + 1, extents.get(), kFatal);
}

mint torvane::handleFlatten(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  return Runtime_MTensor_Flatten(tensorResult(result), tensorArgument(arguments, 0),
                                 integerArgument(arguments, 1));
}
