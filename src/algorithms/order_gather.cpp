// Rows of a tensor collected by number.
#include "order.h"
#include "scratch_bytes.h"
#include "result_tensor.h"

#include <string.h>

namespace torvane {

namespace {

// Only the upper bound: whoever collects rows counts them from 1.
bool areWithin(const mint *indices, mint count, mint bound) {
  mint beyond = 0;
  for (mint k = 0; k < count; ++k) beyond |= indices[k] > bound;
  return beyond == 0;
}

template <class Element> void gatherSingle(void *to, const void *from, const mint *indices, mint count) {
  auto *target = static_cast<Element *>(to);
  const auto *source = static_cast<const Element *>(from);
  for (mint k = 0; k < count; ++k) target[k] = source[ptrdiff_t{indices[k]} - 1];
}

void gatherBytes(void *to, const void *from, const mint *indices, mint count, size_t bytes) {
  auto *target = static_cast<char *>(to);
  const auto *source = static_cast<const char *>(from);
  for (mint k = 0; k < count; ++k, target += bytes)
    memcpy(target, source + (static_cast<size_t>(indices[k]) - 1) * bytes, bytes);
}

struct Element16 {
  uint64_t words[2];
};
struct Element24 {
  uint64_t words[3];
};

} // namespace

// Rows of a few bytes are moved as what they are: a copy of a length known only at run time costs a call.
void gatherRows(void *to, const void *from, const mint *indices, mint count, size_t bytes) {
  switch (bytes) {
  case 4:
    return gatherSingle<uint32_t>(to, from, indices, count);
  case 8:
    return gatherSingle<uint64_t>(to, from, indices, count);
  case 16:
    return gatherSingle<Element16>(to, from, indices, count);
  case 24:
    return gatherSingle<Element24>(to, from, indices, count);
  default:
    return gatherBytes(to, from, indices, count, bytes);
  }
}

mint MTensor_gatherRows(MTensor **resultSlot, MTensor *tensor, const MTensor *indices) {
  const mint count = indices->elementCount;
  const auto *rows = static_cast<const mint *>(indices->data);
  if (!areWithin(rows, count, rowCountOf(tensor))) return kWrongDimensions;
  const ScratchBytes extents(sizeof(mint) * static_cast<uint64_t>(tensor->rank), kReport);
  if (!extents) return kSizeFailed;
  auto *dimensions = extents.as<mint>();
  memcpy(dimensions, tensor->dimensions, sizeof(mint) * static_cast<size_t>(tensor->rank));
  dimensions[0] = count;
  ResultTensor result(resultSlot, {tensor, indices});
  const mint status = result.allocate(tensor->type, tensor->rank, dimensions);
  if (status != kSuccess) return status;
  if (const auto bytes = static_cast<size_t>(rowLengthOf(tensor)) * elementWidth(tensor->type); bytes > 0)
    gatherRows(result.get()->data, tensor->data, rows, count, bytes);
  return result.commit();
}

} // namespace torvane
