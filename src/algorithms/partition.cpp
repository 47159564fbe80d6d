// Partition: blocks of given sizes at given distances, along the first dimensions.
#include "../tensor/box.h"
#include "handler.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include <torvane/lists.h>

#include <algorithm>

namespace torvane {

namespace {

mint check(const MTensor *tensor, const MTensor *sizes, const MTensor *offsets) {
  if (sizes->type != TORVANE_TYPE_INTEGER || offsets->type != TORVANE_TYPE_INTEGER) return kWrongType;
  if (sizes->rank != 1 || offsets->rank != 1) return kWrongRank;
  if (sizes->elementCount != offsets->elementCount || sizes->elementCount > tensor->rank) return kWrongRank;
  if (tensor->elementCount == 0) return kWrongDimensions;
  const auto allAtLeast = [](const MTensor *vector, mint least) {
    return std::all_of(integersOf(vector), integersOf(vector) + vector->elementCount,
                       [least](mint entry) { return entry >= least; });
  };
  return allAtLeast(sizes, 0) && allAtLeast(offsets, 1) ? kSuccess : kWrongDimensions;
}

// Blocks of `size` indices that begin inside a dimension and end there.
int64_t blockCount(int64_t extent, int64_t size, int64_t offset) {
  return std::max<int64_t>(0, (extent - size + offset) / offset);
}

mint fillExtents(const MTensor *tensor, mint levels, const mint *sizes, const mint *offsets, mint *extents) {
  for (mint j = 0; j < levels; ++j) {
    const int64_t blocks = blockCount(tensor->dimensions[j], sizes[j], offsets[j]);
    if (blocks > INT32_MAX) return kNoMemory;
    extents[j] = static_cast<mint>(blocks);
  }
  std::copy_n(sizes, levels, extents + levels);
  std::copy(tensor->dimensions + levels, tensor->dimensions + tensor->rank, extents + 2 * levels);
  return kSuccess;
}

// Adds to a box one axis a level: `extents` long, with strides from the left, `steps` source indices at a
// time.
ptrdiff_t addLevels(Box &box, const MTensor *source, mint levels, const mint *extents, const mint *steps,
                    ptrdiff_t targetStride) {
  ptrdiff_t sourceStride = static_cast<ptrdiff_t>(elementWidth(source->type)) * source->elementCount;
  for (mint j = 0; j < levels; ++j) {
    targetStride /= extents[j];
    sourceStride /= source->dimensions[j];
    box.add(static_cast<size_t>(extents[j]), targetStride, sourceStride * (steps == nullptr ? 1 : steps[j]));
  }
  return targetStride;
}

void copyParts(const MTensor *target, const MTensor *source, mint levels, const mint *offsets) {
  Box box;
  const ptrdiff_t whole = static_cast<ptrdiff_t>(elementWidth(target->type)) * target->elementCount;
  const ptrdiff_t part = addLevels(box, source, levels, target->dimensions, offsets, whole);
  const ptrdiff_t block = addLevels(box, source, levels, target->dimensions + levels, nullptr, part);
  box.copy(static_cast<char *>(target->data), static_cast<const char *>(source->data),
           static_cast<size_t>(block));
}

// Blocks that follow each other and leave nothing over: the elements stay as they stand.
bool keepsOrder(const MTensor *tensor, mint levels, const mint *offsets, const mint *extents) {
  return levels == 1 && extents[1] == offsets[0] && int64_t{extents[0]} * extents[1] == tensor->dimensions[0];
}

mint noMemoryIfFailed(mint status) { return status == kSuccess ? kSuccess : kNoMemory; }

} // namespace

mint handlePartition(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 3) return kWrongArguments;
  return Runtime_MTensor_Partition(tensorResult(result), tensorArgument(arguments, 0),
                                   tensorArgument(arguments, 1), tensorArgument(arguments, 2));
}

} // namespace torvane

using namespace torvane;

mint Runtime_MTensor_Partition(MTensor **resultSlot, MTensor *tensor, MTensor *sizes, MTensor *offsets) {
  mint status = check(tensor, sizes, offsets);
  if (status != kSuccess) return status;
  const mint levels = sizes->elementCount, rank = tensor->rank + levels;
  Scratch<mint, 16> extents(rank);
  if (extents.status() != kSuccess) return kNoMemory;
  status = fillExtents(tensor, levels, integersOf(sizes), integersOf(offsets), extents.get());
  if (status != kSuccess) return status;
  if (keepsOrder(tensor, levels, integersOf(offsets), extents.get()))
    return noMemoryIfFailed(
        reshapeToSlot(resultSlot, tensor, rank, extents.get(), kReport, {sizes, offsets}));
  ResultTensor part(resultSlot, {tensor, sizes, offsets});
  status = noMemoryIfFailed(part.allocate(tensor->type, rank, extents.get()));
  if (status != kSuccess) return status;
  if (part.get()->elementCount > 0) copyParts(part.get(), tensor, levels, integersOf(offsets));
  return part.commit();
}
