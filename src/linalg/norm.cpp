// Norm: a norm of a real or complex vector, by the vector routines.
#include "../algorithms/handler.h"

#include <torvane/vectors.h>

namespace torvane {

namespace {

mint norm(mreal *result, const MTensor *vector, mint p, mint flags) {
  if (vector->rank != 1) return kWrongRank;
  mint failure;
  if (vector->type == TORVANE_TYPE_REAL)
    failure = machfunc_d_vectornorm(result, p, static_cast<const mreal *>(vector->data), vector->elementCount,
                                    1, flags);
  else if (vector->type == TORVANE_TYPE_COMPLEX)
    failure = machfunc_c_vectornorm(result, p, static_cast<const mcomplex *>(vector->data),
                                    vector->elementCount, 1, flags);
  else
    return kWrongType;
  return failure == 0 ? kSuccess : kValueFailed;
}

} // namespace

mint handleNorm(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const mint p = argumentCount == 3 ? integerArgument(arguments, 1) : 2;
  return norm(static_cast<mreal *>(result), tensorArgument(arguments, 0), p,
              integerArgument(arguments, argumentCount - 1));
}

} // namespace torvane
