// Insert and Delete: parts put in and taken out at positions. The data between two neighbouring positions
// move as one run.
#include "handler.h"
#include "positions.h"
#include "result_tensor.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

bool hasPositions(const MTensor *matrix) { return matrix->elementCount > 0; }

// Bytes of the block below `depth` dimensions; those of an empty tensor do not matter.
size_t blockBytes(const MTensor *tensor, mint depth) {
  size_t bytes = elementWidth(tensor->type);
  for (mint i = depth; i < tensor->rank && tensor->elementCount > 0; ++i)
    bytes *= static_cast<size_t>(tensor->dimensions[i]);
  return bytes;
}

// The result, shaped like the tensor but for dimension `depth`, which changes by so much.
mint allocateChanged(ResultTensor &result, const MTensor *tensor, mint depth, int64_t change) {
  const int64_t length = tensor->dimensions[depth - 1] + change;
  if (length > INT32_MAX) return sizeOverflow(kReport);
  Scratch<mint> extents(tensor->rank);
  if (extents.status() != kSuccess) return extents.status();
  std::copy_n(tensor->dimensions, tensor->rank, extents.get());
  extents[depth - 1] = static_cast<mint>(length);
  return result.allocate(tensor->type, tensor->rank, extents.get());
}

// Writes a result from its start to its end.
class Writer {
public:
  Writer(const MTensor *target, const MTensor *source)
      : to(static_cast<char *>(target->data)), first(static_cast<const char *>(source->data)), from(first) {}
  void copyUpTo(size_t offset) {
    put(from, static_cast<size_t>(first + offset - from));
    from = first + offset;
  }
  void put(const void *bytes, size_t count) {
    if (count > 0) memcpy(to, bytes, count);
    to += count;
  }
  void skip(size_t count) { from += count; }

private:
  char *to;
  const char *first, *from;
};

size_t payloadBytes(const MTensor *tensor) {
  return static_cast<size_t>(tensor->elementCount) * elementWidth(tensor->type);
}

mint deleteAt(MTensor **slot, const MTensor *tensor, const MTensor *matrix) {
  const mint depth = matrix->dimensions[1];
  Positions positions(matrix);
  mint status = positions.read(matrix, tensor, 0);
  if (status != kSuccess) return status;
  positions.dropDuplicates();
  const mint each = positions.countPerPart();
  if (each == 0) return kWrongDimensions;
  ResultTensor result(slot, {tensor, matrix});
  status = allocateChanged(result, tensor, depth, -int64_t{each});
  if (status != kSuccess) return status;
  if (result.get()->elementCount > 0) {
    const size_t block = blockBytes(tensor, depth);
    Writer writer(result.get(), tensor);
    for (const int64_t key : positions) {
      writer.copyUpTo(static_cast<size_t>(key) * block);
      writer.skip(block);
    }
    writer.copyUpTo(payloadBytes(tensor));
  }
  return result.commit();
}

bool fitsBelow(const MTensor *item, const MTensor *tensor, mint depth) {
  return item->rank == tensor->rank - depth &&
         std::equal(item->dimensions, item->dimensions + item->rank, tensor->dimensions + depth);
}

mint insertAt(MTensor **slot, const MTensor *tensor, const MTensor *item, const MTensor *matrix) {
  const mint depth = matrix->dimensions[1];
  Positions positions(matrix);
  mint status = positions.read(matrix, tensor, 1);
  if (status != kSuccess) return status;
  const mint each = positions.countPerPart();
  if (each == 0) return kWrongDimensions;
  ResultTensor result(slot, {tensor, item, matrix});
  status = allocateChanged(result, tensor, depth, each);
  if (status != kSuccess) return status;
  if (result.get()->elementCount > 0) {
    const size_t block = payloadBytes(item);
    Writer writer(result.get(), tensor);
    for (const int64_t key : positions) {
      const int64_t index = positions.partOf(key) * tensor->dimensions[depth - 1] + positions.slotOf(key);
      writer.copyUpTo(static_cast<size_t>(index) * block);
      writer.put(item->data, block);
    }
    writer.copyUpTo(payloadBytes(tensor));
  }
  return result.commit();
}

} // namespace

mint handleDelete(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0), *matrix = tensorArgument(arguments, 1);
  const mint status = checkPositions(matrix, tensor);
  if (status != kSuccess) return status;
  if (!hasPositions(matrix)) return copyToSlot(tensorResult(result), tensor, {matrix});
  return deleteAt(tensorResult(result), tensor, matrix);
}

mint handleInsert(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 3) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0), *item = tensorArgument(arguments, 1),
                *matrix = tensorArgument(arguments, 2);
  if (item->type != tensor->type) return kWrongType;
  const mint status = checkPositions(matrix, tensor);
  if (status != kSuccess) return status;
  if (!hasPositions(matrix)) return copyToSlot(tensorResult(result), tensor, {matrix, item});
  if (!fitsBelow(item, tensor, matrix->dimensions[1])) return kWrongDimensions;
  return insertAt(tensorResult(result), tensor, item, matrix);
}

} // namespace torvane
