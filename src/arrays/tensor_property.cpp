// The small shape record of arrays that are not dense.
#include "tensor_property.h"

#include "../runtime/memory.h"
#include "../tensor/tensor.h"

#include <string.h>

namespace torvane {

TensorProperty *newTensorProperty(mint rank, mint errorMode) {
  auto *property = static_cast<TensorProperty *>(allocate(sizeof(TensorProperty), 0, errorMode));
  if (property == nullptr) return nullptr;
  *property = {kIntegerBound, nullptr, rank, TORVANE_TYPE_NONE, 0};
  if (rank < 1) return property;
  const uint32_t bytes = checkedByteCount(sizeof(mint), rank);
  if (bytes == kByteOverflow)
    sizeOverflow(errorMode);
  else
    property->dimensions = static_cast<mint *>(allocate(bytes, 0, errorMode));
  if (property->dimensions != nullptr) return property;
  torvane::free(property);
  return nullptr;
}

} // namespace torvane

using namespace torvane;

TensorProperty *TensorProperty_new(mint rank) { return newTensorProperty(rank, kFatal); }

TensorProperty *TensorProperty_copy(const TensorProperty *property) {
  TensorProperty *copy = TensorProperty_new(property->rank);
  TensorProperty_copyValues(copy, property);
  return copy;
}

void TensorProperty_copyValues(TensorProperty *target, const TensorProperty *source) {
  if (source->rank > 0)
    memmove(target->dimensions, source->dimensions, static_cast<size_t>(source->rank) * sizeof(mint));
  target->type = source->type;
  target->flags = source->flags;
  target->realProperty = source->realProperty;
}

void TensorProperty_delete(TensorProperty *property) {
  torvane::free(property->dimensions);
  torvane::free(property);
}
