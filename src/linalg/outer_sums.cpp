// Outer sums and products. A block of the result is x1 op x2 op ... of blocks of the operands, associated to
// the left. The partial results of all tensors but the last are kept, so that a combination computes only
// those from the tensor on whose position has changed.
#include "../algorithms/scratch_bytes.h"
#include "../runtime/failure.h"
#include "outer.h"
#include "outer_operands.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

// Where a poll asks: two tensors of single elements, more of them, blocks.
struct SumLabels {
  const char *two, *single, *blocks;
};
#define TORVANE_SUM_LABELS(name, type)                                                                       \
  { name " " type " 1 2", name " " type " clen = 1", name " " type " clen > 1" }

struct OuterOperator {
  TorvaneBinaryRoutine routines[3]; // integers, reals, complex numbers
  SumLabels labels[3];
};
constexpr OuterOperator kPlus = {{machfunc_ii_plus, machfunc_dd_plus, machfunc_cc_plus},
                                 {TORVANE_SUM_LABELS("MTensor_outerPlus", "int"),
                                  TORVANE_SUM_LABELS("MTensor_outerPlus", "real"),
                                  TORVANE_SUM_LABELS("MTensor_outerPlus", "complex")}};
constexpr OuterOperator kTimes = {{machfunc_ii_times, machfunc_dd_times, machfunc_cc_times},
                                  {TORVANE_SUM_LABELS("MTensor_outerTimes", "int"),
                                   TORVANE_SUM_LABELS("MTensor_outerTimes", "real"),
                                   TORVANE_SUM_LABELS("MTensor_outerTimes", "complex")}};
#undef TORVANE_SUM_LABELS

const char *labelFor(const SumLabels &labels, mint count, mint blockLength) {
  if (blockLength > 1) return labels.blocks;
  return count == 2 ? labels.two : labels.single;
}

class OuterSum {
public:
  OuterSum(const OuterOperator &by, const OuterOperands &of, mint checks)
      : routine(by.routines[of.first()->type - TORVANE_TYPE_INTEGER]), operands(of), length(of.blockLength()),
        flags(checks), bytes(static_cast<size_t>(length) * elementWidth(of.first()->type)),
        label(labelFor(by.labels[of.first()->type - TORVANE_TYPE_INTEGER], of.count, length)),
        odometer(of, length), partials(uint64_t{bytes} * static_cast<uint32_t>(of.count - 1), kReport) {}

  mint run(OuterOutput output) {
    if (odometer.status() != kSuccess) return odometer.status();
    if (!partials) return kSizeFailed;
    for (mint changed = odometer.next(); changed >= 0; changed = odometer.next()) {
      if (abortQ(label) != 0) {
        output.clearRest();
        return kSuccess;
      }
      if (!combineFrom(changed) || !writeBlocks(output)) return kValueFailed;
    }
    return kSuccess;
  }

private:
  bool combine(void *to, const void *x, const void *y, mint count, const mint *strides) {
    return routine(to, x, y, count, strides, flags) == 0;
  }

  // Partial j is the one before it combined with tensor j's block; the first one is the block itself.
  char *partial(mint j) { return partials.as<char>(static_cast<size_t>(j) * bytes); }
  bool combineFrom(mint changed) {
    static constexpr mint kDense[] = {1, 1, 1};
    for (mint j = changed; j < operands.count - 1; ++j) {
      const char *block = operands.block(j, odometer.position(j), bytes);
      if (j == 0)
        __builtin_memcpy(partial(0), block, bytes);
      else if (!combine(partial(j), partial(j - 1), block, length, kDense))
        return false;
    }
    return true;
  }

  // With every block of the last tensor; single elements are one run, against a scalar.
  bool writeBlocks(OuterOutput &output) {
    static constexpr mint kDense[] = {1, 1, 1}, kScalar[] = {1, 0, 1};
    const char *factor = partial(operands.count - 2);
    const mint blocks = length == 1 ? 1 : operands.last()->elementCount / length;
    const mint run = length == 1 ? operands.last()->elementCount : length;
    const size_t runBytes = length == 1 ? static_cast<size_t>(run) * bytes : bytes;
    for (mint k = 0; k < blocks; ++k, output.advance(runBytes))
      if (!combine(output.at(), factor, operands.block(operands.count - 1, k, runBytes), run,
                   length == 1 ? kScalar : kDense))
        return false;
    return true;
  }

  const TorvaneBinaryRoutine routine;
  const OuterOperands &operands;
  const mint length, flags;
  const size_t bytes; // of a block
  const char *const label;
  Odometer odometer;
  ScratchBytes partials;
};

mint outerSum(const OuterOperator &by, MTensor **slot, const OuterOperands &operands, mint flags) {
  mint status = operands.check();
  if (status != kSuccess) return status;
  if (operands.count == 1) return MTensor_makeCopy(slot, operands.first());
  ResultTensor result(slot);
  status = operands.allocate(result, false);
  if (status == kSuccess && result.get()->elementCount > 0)
    status = OuterSum(by, operands, flags).run(OuterOutput(result.get()));
  return status == kSuccess ? result.commit() : status;
}

} // namespace

mint MTensor_outerPlus(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels,
                       mint flags) {
  return outerSum(kPlus, resultSlot, {count, tensors, levels}, flags);
}

mint MTensor_outerTimes(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels,
                        mint flags) {
  return outerSum(kTimes, resultSlot, {count, tensors, levels}, flags);
}

} // namespace torvane
