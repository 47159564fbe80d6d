// CopyTensor and CoerceTensor: the tensor core's copies, by name.
#include "handler.h"
#include "result_tensor.h"

namespace torvane {

mint handleCopyTensor(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *source = tensorArgument(arguments, 0);
  ResultTensor copy(tensorResult(result));
  if (copy.isIn(source)) return kSuccess;
  const mint status = copy.allocateLike(source->type, source);
  if (status != kSuccess) return status;
  MTensor_copyContiguousData(copy.get(), 0, source, 0, source->elementCount);
  return copy.commit();
}

namespace {

bool isTensorType(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

} // namespace

// What rounds raises where it does not fit, as in every coercion; the status stays 0.
mint handleCoerceTensor(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  const mint type = integerArgument(arguments, 0);
  const MTensor *source = tensorArgument(arguments, 1);
  if (!isTensorType(type)) return kWrongType;
  ResultTensor coerced(tensorResult(result), {source});
  const mint status = coerced.allocateLike(type, source);
  if (status != kSuccess) return status;
  MTensor_copySomeDataCoerce(coerced.get(), 0, 1, source, 0, 1, source->elementCount);
  return coerced.commit();
}

} // namespace torvane
