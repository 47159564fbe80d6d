// Outer lists: at each combination of positions, the blocks of all tensors one after another. Those of all
// tensors but the last are kept side by side as a prefix, and a combination refreshes only those that have
// moved; each block of the last tensor then gives a copy of the prefix and itself.
#include "../algorithms/scratch_bytes.h"
#include "../runtime/failure.h"
#include "outer.h"
#include "outer_operands.h"

#include <string.h>

namespace torvane {

namespace {

// Where a poll asks. The prefix is never shorter than the block, so that of the two kinds of copy only three
// pairs occur; the mixed one names the block's first, deliberately.
struct ListLabels {
  const char *two, *oneLoop, *oneBulk, *loops, *mixed, *bulks;
};
#define TORVANE_LIST_LABELS(type)                                                                            \
  {                                                                                                          \
    "MTensor_outerList " type " 1 2", "MTensor_outerList " type " 1 loop",                                   \
        "MTensor_outerList " type " 1 mem", "MTensor_outerList " type " loop loop",                          \
        "MTensor_outerList " type " loop mem", "MTensor_outerList " type " mem mem"                          \
  }
// By element type, with the bytes from which a copy in bulk costs less than a loop over elements.
template <class T> struct ListOf;
template <> struct ListOf<mint> {
  static constexpr size_t kBulkBytes = 69;
  static constexpr ListLabels kLabels = TORVANE_LIST_LABELS("int");
};
template <> struct ListOf<mreal> {
  static constexpr size_t kBulkBytes = 145;
  static constexpr ListLabels kLabels = TORVANE_LIST_LABELS("real");
};
template <> struct ListOf<mcomplex> {
  static constexpr size_t kBulkBytes = 641;
  static constexpr ListLabels kLabels = TORVANE_LIST_LABELS("complex");
};
#undef TORVANE_LIST_LABELS

template <class T> struct Copy {
  mint count;
  bool isBulk;

  explicit Copy(mint elements)
      : count(elements), isBulk(static_cast<size_t>(elements) * sizeof(T) >= ListOf<T>::kBulkBytes) {}
  void run(T *to, const T *from) const {
    if (isBulk)
      memcpy(static_cast<void *>(to), from, bytes());
    else
      for (mint k = 0; k < count; ++k) to[k] = from[k];
  }
  size_t bytes() const { return static_cast<size_t>(count) * sizeof(T); }
};

template <class T> class OuterList {
public:
  explicit OuterList(const OuterOperands &of)
      : operands(of), block(of.blockLength()), prefix((of.count - 1) * block.count),
        odometer(of, block.count), kept(uint64_t{prefix.bytes()}, kReport) {}

  mint run(OuterOutput output) {
    if (odometer.status() != kSuccess) return odometer.status();
    if (!kept) return kSizeFailed;
    const bool arePairs = operands.count == 2 && block.count == 1;
    for (mint changed = odometer.next(); changed >= 0; changed = odometer.next()) {
      if (abortQ(label()) != 0) {
        output.clearRest();
        return kSuccess;
      }
      refreshFrom(changed);
      if (arePairs)
        writePairs(output);
      else
        writeBlocks(output);
    }
    return kSuccess;
  }

private:
  const char *label() const {
    const ListLabels &labels = ListOf<T>::kLabels;
    if (block.count == 1) {
      if (operands.count == 2) return labels.two;
      return prefix.isBulk ? labels.oneBulk : labels.oneLoop;
    }
    if (block.isBulk) return labels.bulks;
    return prefix.isBulk ? labels.mixed : labels.loops;
  }

  const T *blockOf(mint i, mint position) const {
    return reinterpret_cast<const T *>(operands.block(i, position, block.bytes()));
  }
  void refreshFrom(mint changed) {
    for (mint i = changed; i < operands.count - 1; ++i)
      block.run(kept.as<T>() + ptrdiff_t{i} * block.count, blockOf(i, odometer.position(i)));
  }

  void writePairs(OuterOutput &output) {
    const T first = kept.as<T>()[0];
    const T *second = blockOf(1, 0);
    const mint count = operands.last()->elementCount;
    T *to = output.at<T>();
    for (ptrdiff_t k = 0; k < count; ++k) {
      to[2 * k] = first;
      to[2 * k + 1] = second[k];
    }
    output.advance(2 * sizeof(T) * static_cast<size_t>(count));
  }

  void writeBlocks(OuterOutput &output) {
    const mint blocks = operands.last()->elementCount / block.count;
    for (mint k = 0; k < blocks; ++k) {
      prefix.run(output.at<T>(), kept.as<T>());
      output.advance(prefix.bytes());
      block.run(output.at<T>(), blockOf(operands.count - 1, k));
      output.advance(block.bytes());
    }
  }

  const OuterOperands &operands;
  const Copy<T> block, prefix;
  Odometer odometer;
  ScratchBytes kept;
};

mint writeList(const OuterOperands &operands, MTensor *result) {
  switch (operands.first()->type) {
  case TORVANE_TYPE_INTEGER:
    return OuterList<mint>(operands).run(OuterOutput(result));
  case TORVANE_TYPE_REAL:
    return OuterList<mreal>(operands).run(OuterOutput(result));
  default:
    return OuterList<mcomplex>(operands).run(OuterOutput(result));
  }
}

// A 1 behind the leading dimensions. Where the last leading dimension is 0 the rank stays and the last
// dimension falls away: an oddity that callers rely on.
mint listOfOne(MTensor **slot, const OuterOperands &operands) {
  MTensor *tensor = operands.tensors[0];
  const mint level = operands.level(0);
  Scratch<mint> extents(tensor->rank + 1, kReport);
  if (extents.status() != kSuccess) return extents.status();
  for (mint i = 0; i < tensor->rank; ++i) extents[i < level ? i : i + 1] = tensor->dimensions[i];
  extents[level] = 1;
  const bool keepsRank = level > 0 && tensor->dimensions[level - 1] == 0;
  return reshapeToSlot(slot, tensor, tensor->rank + (keepsRank ? 0 : 1), extents.get(), kReport);
}

} // namespace

mint MTensor_outerList(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels) {
  const OuterOperands operands = {count, tensors, levels};
  mint status = operands.check();
  if (status != kSuccess) return status;
  if (count == 1) return listOfOne(resultSlot, operands);
  ResultTensor result(resultSlot);
  status = operands.allocate(result, true);
  if (status == kSuccess && result.get()->elementCount > 0) status = writeList(operands, result.get());
  if (status == kSuccess) return result.commit();
  return status == kNegativeExtent ? kListRefused : status;
}

} // namespace torvane
