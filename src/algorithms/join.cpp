// Join and JoinAtLevel: tensors one after another along one dimension.
#include "../tensor/box.h"
#include "handler.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"

#include <algorithm>

namespace torvane {

namespace {

struct Operands {
  Scratch<const MTensor *> tensors;
  mint count;
  Operands(mint howMany, void *const *arguments, mint errorMode)
      : tensors(howMany, errorMode), count(howMany) {
    for (mint i = 0; i < count && tensors.status() == kSuccess; ++i)
      tensors[i] = tensorArgument(arguments, i);
  }
  const MTensor *operator[](mint i) { return tensors[i]; }
};

// Extents agree but for dimension `level`, counted from 0.
bool agreeElsewhere(const MTensor *a, const MTensor *b, mint level) {
  for (mint i = 0; i < a->rank; ++i)
    if (i != level && a->dimensions[i] != b->dimensions[i]) return false;
  return true;
}

mint check(Operands &operands, mint level) {
  for (mint i = 1; i < operands.count; ++i) {
    if (operands[i]->type != operands[0]->type) return kValueFailed;
    if (operands[i]->rank != operands[0]->rank || !agreeElsewhere(operands[0], operands[i], level))
      return kWrongDimensions;
  }
  return kSuccess;
}

// The new extent in 64 bits.
int64_t sumOfExtents(Operands &operands, mint level) {
  int64_t sum = 0;
  for (mint i = 0; i < operands.count; ++i) sum += operands[i]->dimensions[level];
  return sum;
}

ptrdiff_t runBytes(const MTensor *tensor, mint level) {
  ptrdiff_t bytes = static_cast<ptrdiff_t>(elementWidth(tensor->type));
  for (mint i = level; i < tensor->rank; ++i) bytes *= tensor->dimensions[i];
  return bytes;
}

// Copies `count` runs of one tensor from the run `first` on. Yields the bytes of a run.
ptrdiff_t copyRunsOf(const MTensor *tensor, mint level, size_t first, size_t count, char *to,
                     ptrdiff_t pitch) {
  const ptrdiff_t run = tensor->elementCount == 0 ? 0 : runBytes(tensor, level);
  if (run == 0) return 0;
  Box box;
  box.add(count, pitch, run);
  box.copy(to, static_cast<const char *>(tensor->data) + static_cast<ptrdiff_t>(first) * run,
           static_cast<size_t>(run));
  return run;
}

constexpr size_t kCutBytes = 65536; // of the result

// For each position before the level, the run of each tensor in turn. The tensors take turns after as many
// positions as the cache holds, because their runs share its lines.
void copyRuns(const MTensor *target, Operands &operands, mint level) {
  if (target->elementCount == 0) return;
  const ptrdiff_t pitch = runBytes(target, level);
  const size_t outer =
      static_cast<size_t>(target->elementCount) * elementWidth(target->type) / static_cast<size_t>(pitch);
  const size_t cut = std::max<size_t>(1, kCutBytes / static_cast<size_t>(pitch));
  for (size_t done = 0; done < outer; done += cut) {
    const size_t count = std::min(cut, outer - done);
    auto *to = static_cast<char *>(target->data) + static_cast<ptrdiff_t>(done) * pitch;
    for (mint i = 0; i < operands.count; ++i) to += copyRunsOf(operands[i], level, done, count, to, pitch);
  }
}

mint joinAt(MTensor **slot, Operands &operands, mint level, int64_t length, mint errorMode) {
  const MTensor *first = operands[0];
  if (length > INT32_MAX) return sizeOverflow(errorMode);
  Scratch<mint> extents(first->rank, errorMode);
  if (extents.status() != kSuccess) return extents.status();
  std::copy_n(first->dimensions, first->rank, extents.get());
  extents[level] = static_cast<mint>(length);
  ResultTensor result(slot);
  for (mint i = 0; i < operands.count; ++i) result.avoid(operands[i]);
  const mint status = result.allocate(first->type, first->rank, extents.get(), errorMode);
  if (status != kSuccess) return status;
  copyRuns(result.get(), operands, level);
  return result.commit();
}

// An oddity that callers rely on: when a Join fails for want of memory, its first tensor's first extent tells
// the length that the result would have had. Such a tensor is good for deletion only.
void noteLength(MTensor *first, int64_t length) {
  if (length <= INT32_MAX) first->dimensions[0] = static_cast<mint>(length);
}

} // namespace

mint handleJoin(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 1) return kWrongArguments;
  Operands operands(argumentCount, arguments, kReport);
  if (operands.tensors.status() != kSuccess) return operands.tensors.status();
  const mint status = check(operands, 0);
  if (status != kSuccess) return status;
  if (operands[0]->rank < 1) return kWrongDimensions;
  const int64_t length = sumOfExtents(operands, 0);
  const mint joined = joinAt(tensorResult(result), operands, 0, length, kReport);
  if (joined != kSuccess) noteLength(tensorArgument(arguments, 0), length);
  return joined;
}

// The last argument is the level. Memory that runs out ends the process, here as in every plain copy.
mint handleJoinAtLevel(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 2) return kWrongArguments;
  Operands operands(argumentCount - 1, arguments, kFatal);
  const mint level = integerArgument(arguments, argumentCount - 1);
  if (level < 1 || level > operands[0]->rank) return kWrongRank;
  const mint status = check(operands, level - 1);
  if (status != kSuccess) return status;
  return joinAt(tensorResult(result), operands, level - 1, sumOfExtents(operands, level - 1), kFatal);
}

} // namespace torvane
