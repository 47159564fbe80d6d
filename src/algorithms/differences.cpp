// Differences and ratios of neighbours, so many times along each of the first dimensions.
//
// A pass runs along one dimension: row i becomes row i + s less row i, for a negative shift the other way
// about, and the dimension is |s| shorter. Passes go from the tensor through up to two work arrays to the
// result, so that none reads what it writes. Rows are contiguous, and a vector routine takes as many of them
// at a time as stay in the nearest cache; its status is made that of the row that failed.
#include "../runtime/failure.h"
#include "handler.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include "scratch_bytes.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

// What is asked for: `shifts` is null where all are 1.
struct Request {
  const MTensor *tensor;
  mint count;
  const mint *orders, *shifts;
  TorvaneBinaryRoutine combine;
  mint flags;

  int64_t order(mint level) const { return orders[level]; }
  int64_t shift(mint level) const { return shifts == nullptr ? 1 : shifts[level]; }
  int64_t distance(mint level) const { return shift(level) < 0 ? -shift(level) : shift(level); }
};

// An array of `outer` blocks of `length` rows of `inner` elements.
struct Blocks {
  ptrdiff_t outer, length, inner;
};

// Few enough that a routine neither leaves the cache nor goes to the workers; a longer row is one call.
constexpr ptrdiff_t kElementsACall = 4096;

struct Pass {
  const Request &request;
  ptrdiff_t elementBytes;
  char *to;
  const char *from;

  mint combineRows(char *target, const char *source, ptrdiff_t rows, ptrdiff_t inner, int64_t shift) const {
    const mint dense[] = {1, 1, 1};
    const char *const further = source + (shift < 0 ? -shift : shift) * inner * elementBytes;
    const mint failure = request.combine(target, shift < 0 ? source : further, shift < 0 ? further : source,
                                         static_cast<mint>(rows * inner), dense, request.flags);
    return failure == 0 ? kSuccess : (failure - 1) % static_cast<mint>(inner) + 1;
  }

  mint combineBlock(ptrdiff_t block, const Blocks &blocks, int64_t shift, ptrdiff_t shorter) const {
    const ptrdiff_t rowBytes = blocks.inner * elementBytes;
    const ptrdiff_t rowsACall = std::max(kElementsACall / blocks.inner, ptrdiff_t{1});
    char *target = to + block * shorter * rowBytes;
    const char *source = from + block * blocks.length * rowBytes;
    for (ptrdiff_t i = 0; i < shorter; i += rowsACall) {
      const ptrdiff_t rows = std::min(rowsACall, shorter - i);
      const mint status =
          combineRows(target + i * rowBytes, source + i * rowBytes, rows, blocks.inner, shift);
      if (status != kSuccess) return status;
    }
    return kSuccess;
  }

  // Then no further pass changes anything: the length stayed too. Two passes of shift 0 mostly come to that.
  bool changedNothing(const Blocks &blocks) const {
    const ptrdiff_t bytes = blocks.outer * blocks.length * blocks.inner * elementBytes;
    return memcmp(to, from, static_cast<size_t>(bytes)) == 0;
  }

  mint run(const Blocks &blocks, int64_t shift, ptrdiff_t shorter) const {
    mint status = kSuccess;
    for (ptrdiff_t block = 0; block < blocks.outer && status == kSuccess; ++block)
      status = combineBlock(block, blocks, shift, shorter);
    return status;
  }
};

// The number of passes; extents[] are those of the result.
int64_t planPasses(const Request &request, mint *extents) {
  int64_t passes = 0;
  std::copy_n(request.tensor->dimensions, request.tensor->rank, extents);
  for (mint level = 0; level < request.count; ++level) {
    passes += request.order(level);
    extents[level] = static_cast<mint>(
        std::max(extents[level] - request.order(level) * request.distance(level), int64_t{0}));
  }
  return passes;
}

// Levels before `level` are as in the result already, those behind it still as in the tensor.
Blocks blocksAt(const Request &request, const MTensor *result, mint level) {
  Blocks blocks = {1, request.tensor->dimensions[level], 1};
  for (mint i = 0; i < level; ++i) blocks.outer *= result->dimensions[i];
  for (mint i = level + 1; i < request.tensor->rank; ++i) blocks.inner *= request.tensor->dimensions[i];
  return blocks;
}

mint runPasses(const Request &request, MTensor *result, int64_t passes) {
  const auto width = static_cast<ptrdiff_t>(elementWidth(request.tensor->type));
  const uint64_t bytes = static_cast<uint64_t>(width) * static_cast<uint32_t>(request.tensor->elementCount);
  const ScratchBytes even(passes > 1 ? bytes : 0, kReport), odd(passes > 2 ? bytes : 0, kReport);
  if ((passes > 1 && !even) || (passes > 2 && !odd)) return kSizeFailed;
  Pass pass = {request, width, nullptr, static_cast<const char *>(request.tensor->data)};
  for (mint level = 0; level < request.count; ++level) {
    Blocks blocks = blocksAt(request, result, level);
    const auto distance = static_cast<ptrdiff_t>(request.distance(level));
    for (int64_t left = request.order(level); left > 0; --left, --passes, blocks.length -= distance) {
      if (abortQ("RuntimeLibrary") != 0) return kAborted;
      pass.to = passes == 1 ? static_cast<char *>(result->data) : (passes % 2 != 0 ? odd : even).as<char>();
      const mint status = pass.run(blocks, request.shift(level), blocks.length - distance);
      if (status != kSuccess) return status;
      if (distance == 0 && left > 3 && pass.changedNothing(blocks)) {
        const int64_t inVain = (left - 2) / 2 * 2; // an even number: each array keeps its turn
        left -= inVain;
        passes -= inVain;
      }
      pass.from = pass.to;
    }
  }
  return kSuccess;
}

mint combineNeighbours(ResultTensor &result, const Request &request) {
  const MTensor *tensor = request.tensor;
  Scratch<mint> extents(tensor->rank);
  if (extents.status() != kSuccess) return extents.status();
  const int64_t passes = planPasses(request, extents.get());
  mint status = result.allocate(tensor->type, tensor->rank, extents.get());
  if (status != kSuccess) return status;
  if (passes == 0)
    MTensor_copyContiguousData(result.get(), 0, tensor, 0, tensor->elementCount);
  else if (result.get()->elementCount > 0)
    status = runPasses(request, result.get(), passes);
  return status == kSuccess ? result.commit() : status;
}

mint checkVector(const MTensor *vector) {
  if (vector->rank != 1) return kWrongRank;
  return vector->type == TORVANE_TYPE_INTEGER ? kSuccess : kWrongType;
}

// The routine for each of integers, reals and complexes; null where there is none.
using Routines = TorvaneBinaryRoutine[3];

mint ofNeighbours(MTensor **slot, const MTensor *tensor, const MTensor *orders, const MTensor *shifts,
                  const Routines &routines, mint flags) {
  mint status = checkVector(orders);
  if (status == kSuccess && shifts != nullptr) status = checkVector(shifts);
  if (status != kSuccess) return status;
  const mint count = orders->elementCount;
  if (count > tensor->rank || (shifts != nullptr && shifts->elementCount < count)) return kWrongDimensions;
  if (elementWidth(tensor->type) == 0) return kWrongType;
  const TorvaneBinaryRoutine combine = routines[tensor->type - TORVANE_TYPE_INTEGER];
  const mint *first = integersOf(orders);
  if (combine == nullptr || std::any_of(first, first + count, [](mint order) { return order < 0; }))
    return kValueFailed;
  ResultTensor result(slot, {tensor, orders});
  if (shifts != nullptr) result.avoid(shifts);
  return combineNeighbours(
      result, {tensor, count, first, shifts != nullptr ? integersOf(shifts) : nullptr, combine, flags});
}

} // namespace

mint handleDifferences(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  static constexpr Routines kSubtract = {machfunc_ii_subtract, machfunc_dd_subtract, machfunc_cc_subtract};
  if (argumentCount != 3 && argumentCount != 4) return kWrongArguments;
  const MTensor *shifts = argumentCount == 4 ? tensorArgument(arguments, 2) : nullptr;
  return ofNeighbours(tensorResult(result), tensorArgument(arguments, 0), tensorArgument(arguments, 1),
                      shifts, kSubtract, integerArgument(arguments, argumentCount - 1));
}

// Integers have no ratios that are integers.
mint handleRatios(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  static constexpr Routines kDivide = {nullptr, machfunc_dd_div, machfunc_cc_div};
  if (argumentCount != 3) return kWrongArguments;
  return ofNeighbours(tensorResult(result), tensorArgument(arguments, 0), tensorArgument(arguments, 1),
                      nullptr, kDivide, integerArgument(arguments, 2));
}

} // namespace torvane
