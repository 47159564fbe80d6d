// Tensors for tests: built from lists, read back as vectors, deleted at the end of their scope.
#pragma once

#include "tensor/tensor.h"

#include <memory>
#include <vector>

namespace torvane::test {

struct TensorDeleter {
  void operator()(MTensor *tensor) const { MTensor_delete(tensor); }
};
using Tensor = std::unique_ptr<MTensor, TensorDeleter>;

using Extents = std::vector<mint>;

template <class Element> constexpr mint typeOf() {
  if constexpr (sizeof(Element) == sizeof(mint))
    return TORVANE_TYPE_INTEGER;
  else if constexpr (sizeof(Element) == sizeof(mreal))
    return TORVANE_TYPE_REAL;
  else
    return TORVANE_TYPE_COMPLEX;
}

inline Tensor newTensor(mint type, const Extents &extents) {
  return Tensor(MTensor_newAllocatedCommon(type, static_cast<mint>(extents.size()), extents.data(), kQuiet));
}

template <class Element> Element *elements(const Tensor &tensor) {
  return static_cast<Element *>(tensor->data);
}

template <class Element> Tensor tensorOf(const Extents &extents, const std::vector<Element> &values) {
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  for (size_t i = 0; i < values.size(); ++i) elements<Element>(tensor)[i] = values[i];
  return tensor;
}

template <class Element> std::vector<Element> valuesOf(const Tensor &tensor) {
  const Element *first = elements<Element>(tensor);
  return tensor->elementCount > 0 ? std::vector<Element>(first, first + tensor->elementCount)
                                  : std::vector<Element>();
}

inline Extents extentsOf(const MTensor *tensor) {
  return tensor->rank > 0 ? Extents(tensor->dimensions, tensor->dimensions + tensor->rank) : Extents();
}
inline Extents extentsOf(const Tensor &tensor) { return extentsOf(tensor.get()); }

// Allocates by a list of extents instead of rank and pointer.
inline mint allocateAs(const Tensor &tensor, mint type, const Extents &extents, mint errorMode = kQuiet) {
  return MTensor_allocateMemoryCommon(tensor.get(), type, static_cast<mint>(extents.size()), extents.data(),
                                      errorMode);
}

} // namespace torvane::test
