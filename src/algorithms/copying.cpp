// CopyTensor and CoerceTensor: the tensor core's copies, by name.
#include "handler.h"
#include "result_tensor.h"

namespace torvane {

mint handleCopyTensor(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  return copyToSlot(tensorResult(result), tensorArgument(arguments, 0));
}

namespace {

bool isTensorType(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

} // namespace

// A value that no integer holds is unspecified in the result, as in every coercion: the status stays 0.
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
