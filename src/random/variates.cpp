#include "variates.h"

#include "../algorithms/handler.h"
#include "../algorithms/result_tensor.h"
#include "dimension_argument.h"

namespace torvane {

namespace {

mint variatesTensor(DrawVariates draw, void *const *arguments, MTensor **slot) {
  GivenExtents given;
  const MTensor *dimensions = tensorArgument(arguments, 2);
  if (const mint status = readExtents(dimensions, &given)) return status;
  ResultTensor drawn(slot, {dimensions});
  if (const mint status = drawn.allocate(TORVANE_TYPE_REAL, given.rank, given.extents)) return status;
  const MTensor *tensor = drawn.get();
  const mint status = draw(static_cast<mreal *>(tensor->data), tensor->elementCount,
                           realArgument(arguments, 0), realArgument(arguments, 1));
  return status == kSuccess ? drawn.commit() : status;
}

} // namespace

mint handleVariates(DrawVariates draw, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount == 3) return variatesTensor(draw, arguments, tensorResult(result));
  if (argumentCount != 2) return kWrongArguments;
  mreal value;
  const mint status = draw(&value, 1, realArgument(arguments, 0), realArgument(arguments, 1));
  if (status == kSuccess) storeResult(result, value);
  return status;
}

mint handleRandomNormal(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return handleVariates(drawNormal, argumentCount, arguments, result);
}
mint handleRandomBeta(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return handleVariates(drawBeta, argumentCount, arguments, result);
}

} // namespace torvane
