// The transposition of two levels and of any, into another tensor and in place; conjugates.
#include "transpose.h"

#include "handler.h"
#include "scratch_bytes.h"
#include "result_tensor.h"
#include "transpose_levels.h"
#include "transpose_rectangle.h"
#include "transpose_tiles.h"

#include <torvane/machfuncs.h>
#include <torvane/transposition.h>

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

constexpr mint kComplexInPlace = -1; // the status of a complex tensor that could not be transposed in place

mint conjugateIfAsked(MTensor *tensor, mint conjugate) {
  return conjugate != 0 ? MTensor_conjugate(tensor, tensor) : kSuccess;
}

mint copyLevel(MTensor **slot, MTensor *tensor, mint conjugate) {
  const mint status = MTensor_makeCopy(slot, tensor);
  return status == kSuccess ? conjugateIfAsked(*slot, conjugate) : status;
}

// A rectangle of blocks in place; the extents are still the old ones.
bool transposeBlocks(MTensor *tensor) {
  const mint rows = tensor->dimensions[0], columns = tensor->dimensions[1];
  if (tensor->elementCount == 0 || rows == 1 || columns == 1) return true;
  const auto block = static_cast<size_t>(tensor->elementCount) / static_cast<size_t>(rows * columns);
  const size_t bytes = block * elementWidth(tensor->type);
  auto *data = static_cast<char *>(tensor->data);
  if (rows != columns) return transposeRectangle(data, rows, columns, bytes);
  transposeSquare(data, rows, bytes);
  return true;
}

mint transpose12InPlace(MTensor *tensor, mint conjugate) {
  if (!transposeBlocks(tensor)) return tensor->type == TORVANE_TYPE_COMPLEX ? kComplexInPlace : kSizeFailed;
  std::swap(tensor->dimensions[0], tensor->dimensions[1]);
  return conjugateIfAsked(tensor, conjugate);
}

struct LevelMap {
  const mint *targets; // of the first `length` levels, 1-based
  mint length, highest, rank, resultRank;

  mint targetOf(mint level) const {
    return (level < length ? targets[level] : highest + 1 + level - length) - 1;
  }
};

// Lengths and strides of the result's levels. 4 where lengths disagree or a level has none.
mint buildLevels(const LevelMap &map, const MTensor *tensor, Level *levels) {
  for (mint k = 0; k < map.resultRank; ++k) levels[k] = {-1, 0, 0, 0};
  ptrdiff_t stride = 1;
  for (mint k = map.rank - 1; k >= 0; --k) {
    Level &level = levels[map.targetOf(k)];
    const mint length = tensor->dimensions[k];
    if (level.length >= 0 && level.length != length) return kValueFailed;
    level.length = length;
    level.fromStride += stride;
    stride *= length;
  }
  stride = 1;
  for (mint k = map.resultRank - 1; k >= 0; --k) {
    if (levels[k].length < 0) return kValueFailed;
    levels[k].toStride = stride;
    stride *= levels[k].length;
  }
  return kSuccess;
}

mint copyMapped(ResultTensor &result, const MTensor *tensor, Level *levels, mint count, mint conjugate) {
  const ScratchBytes extents(static_cast<uint64_t>(count) * sizeof(mint), kReport);
  if (!extents && count > 0) return kSizeFailed;
  for (mint k = 0; k < count; ++k) extents.as<mint>()[k] = levels[k].length;
  mint status = result.allocate(tensor->type, count, extents.as<mint>());
  if (status != kSuccess) return status;
  if (result.get()->elementCount > 0)
    copyLevels(static_cast<const char *>(tensor->data), static_cast<char *>(result.get()->data), levels,
               count, elementWidth(tensor->type));
  status = conjugateIfAsked(result.get(), conjugate);
  return status == kSuccess ? result.commit() : status;
}

mint transposeMapped(ResultTensor &result, const MTensor *tensor, const LevelMap &map, mint conjugate,
                     const mint *expectedRank) {
  const ScratchBytes levels(static_cast<uint64_t>(map.resultRank) * sizeof(Level), kReport);
  if (!levels && map.resultRank > 0) return kSizeFailed;
  const mint status = buildLevels(map, tensor, levels.as<Level>());
  if (status != kSuccess) return status;
  if (expectedRank != nullptr && *expectedRank != map.resultRank) return kWrongRank;
  return copyMapped(result, tensor, levels.as<Level>(), map.resultRank, conjugate);
}

// Of a tensor that the slot does not hold.
mint transpose12Apart(ResultTensor &result, const MTensor *tensor, mint conjugate) {
  const mint swapped[] = {2, 1};
  return transposeMapped(result, tensor, {swapped, 2, 2, tensor->rank, tensor->rank}, conjugate, nullptr);
}

// 0 where the entries may name levels; their extents are not looked at yet.
mint checkPermutation(const MTensor *tensor, const MTensor *permutation) {
  if (permutation->rank != 1) return kValueFailed;
  const mint length = permutation->elementCount;
  if (length > 0 && permutation->type != TORVANE_TYPE_INTEGER) return kValueFailed;
  if (length > tensor->rank) return kWrongDimensions;
  const mint *entries = integersOf(permutation);
  if (length == 1 && entries[0] != 1) return kValueFailed;
  if (std::any_of(entries, entries + length, [](mint entry) { return entry < 1; })) return kValueFailed;
  return std::any_of(entries, entries + length, [=](mint entry) { return entry > length; }) ? kWrongRank
                                                                                            : kSuccess;
}

// Whether the levels from the `first` on stay where they are.
bool isIdentityFrom(const mint *entries, mint length, mint first) {
  for (mint k = first; k < length; ++k)
    if (entries[k] != k + 1) return false;
  return true;
}
bool swapsFirstTwo(const mint *entries, mint length) {
  return length >= 2 && entries[0] == 2 && entries[1] == 1 && isIdentityFrom(entries, length, 2);
}

} // namespace

mint MTensor_conjugate(MTensor *result, const MTensor *tensor) {
  if (tensor->type != TORVANE_TYPE_COMPLEX) {
    if (result != tensor) MTensor_copyContiguousData(result, 0, tensor, 0, tensor->elementCount);
    return kSuccess;
  }
  const mint strides[] = {1, 1};
  return machfunc_c_conj(result->data, tensor->data, tensor->elementCount, strides, 0) == 0 ? kSuccess
                                                                                            : kValueFailed;
}

mint MTensor_transpose12(MTensor **resultSlot, MTensor *tensor, mint conjugate) {
  if (tensor->rank < 2) return kWrongRank;
  if (*resultSlot == tensor) return transpose12InPlace(tensor, conjugate);
  ResultTensor result(resultSlot);
  return transpose12Apart(result, tensor, conjugate);
}

mint MTensor_transposeLevels(MTensor **resultSlot, MTensor *tensor, const MTensor *permutation,
                             mint conjugate, const mint *expectedRank) {
  if (const mint status = checkPermutation(tensor, permutation)) return status;
  const mint length = permutation->elementCount, *entries = integersOf(permutation);
  const mint highest = length > 0 ? *std::max_element(entries, entries + length) : 0;
  const LevelMap map = {entries, length, highest, tensor->rank, highest - length + tensor->rank};
  const bool isIdentity = isIdentityFrom(entries, length, 0), isSwap = swapsFirstTwo(entries, length);
  ResultTensor result(resultSlot, {tensor, permutation});
  if (!isIdentity && !isSwap) return transposeMapped(result, tensor, map, conjugate, expectedRank);
  if (expectedRank != nullptr && *expectedRank != tensor->rank) return kWrongRank;
  if (isIdentity) return copyLevel(resultSlot, tensor, conjugate);
  return result.isIn(tensor) ? transpose12InPlace(tensor, conjugate)
                             : transpose12Apart(result, tensor, conjugate);
}

namespace {

mint transposeByName(mint argumentCount, void *const *arguments, void *result, mint conjugate) {
  if (argumentCount != 1 && argumentCount != 3) return kWrongArguments;
  MTensor *tensor = tensorArgument(arguments, 0);
  if (argumentCount == 1) return MTensor_transpose12(tensorResult(result), tensor, conjugate);
  return MTensor_transposeLevels(tensorResult(result), tensor, tensorArgument(arguments, 1), conjugate,
                                 &argument<mint>(arguments, 2));
}

} // namespace

mint handleTranspose(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return transposeByName(argumentCount, arguments, result, 0);
}
mint handleConjugateTranspose(TorvaneLibraryData *, mint argumentCount, void *const *arguments,
                              void *result) {
  return transposeByName(argumentCount, arguments, result, 1);
}

} // namespace torvane

using namespace torvane;

mint Runtime_MTensor_12TransposeConjugate(MTensor **resultSlot, MTensor *tensor, mint conjugate) {
  return MTensor_transpose12(resultSlot, tensor, conjugate);
}

mint Runtime_MTensor_ndimTransposeConjugate(MTensor **resultSlot, MTensor *tensor, MTensor *permutation) {
  return MTensor_transposeLevels(resultSlot, tensor, permutation, 1);
}
