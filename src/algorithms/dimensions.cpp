// Dimensions: the extents of a tensor as a vector.
#include "handler.h"
#include "result_tensor.h"

#include <algorithm>

namespace torvane {

mint handleDimensions(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  const mint depth = argumentCount == 2 ? integerArgument(arguments, 1) : tensor->rank;
  if (depth < 0) return kValueFailed;
  const mint count = std::min(depth, tensor->rank);
  ResultTensor extents(tensorResult(result), {tensor});
  if (extents.allocate(TORVANE_TYPE_INTEGER, 1, &count) != kSuccess) return kNoMemory;
  std::copy_n(tensor->dimensions, count, integersOf(extents.get()));
  return extents.commit();
}

} // namespace torvane
