#include "reduction_driver.h"

#include "../runtime/memory.h"
#include "pieces.h"

#include <algorithm>
#include <string.h>

namespace torvane {

using torvane_loops::kAccumulatorBytes;
using torvane_loops::ReductionForm;
using torvane_loops::ReductionLoop;
using torvane_loops::ReductionOperands;

namespace {

struct Accumulator {
  alignas(mreal) unsigned char bytes[kAccumulatorBytes];
};

struct Partial {
  Accumulator accumulator;
  mint first, last; // the piece; empty for a worker that had none
  mint failure;     // what run returned
};

struct Reduction {
  const ReductionForm *form;
  const ReductionOperands *operands;
  Partial *partials = nullptr; // null: no memory
  mint workers = 0;
};

void preparePartials(void *closure, ParallelPool *pool) {
  auto *reduction = static_cast<Reduction *>(closure);
  reduction->workers = ParallelPool_workerCount(pool);
  const auto bytes = static_cast<uint32_t>(reduction->workers) * uint32_t{sizeof(Partial)};
  reduction->partials = static_cast<Partial *>(allocate(bytes, 0, kQuiet));
  if (reduction->partials != nullptr) memset(static_cast<void *>(reduction->partials), 0, bytes);
}

void reducePiece(void *closure, ParallelWorker *worker) {
  const auto *reduction = static_cast<const Reduction *>(closure);
  if (reduction->partials == nullptr) return;
  Partial *partial = &reduction->partials[ParallelWorker_index(worker)];
  partial->first = ParallelWorker_first(worker);
  partial->last = ParallelWorker_last(worker);
  partial->failure =
      reduction->form->run(&partial->accumulator, *reduction->operands, partial->first, partial->last);
}

// The failure of a piece has its element's position; that of a merge the last one of the piece merged.
mint mergePartials(const Reduction &reduction, Accumulator *accumulator) {
  for (mint k = 0; k < reduction.workers; ++k) {
    const Partial &partial = reduction.partials[k];
    if (partial.first == partial.last) continue;
    if (partial.failure != 0) return partial.first + partial.failure;
    if (!reduction.form->merge(accumulator, &partial.accumulator)) return partial.last;
  }
  return 0;
}

// Without memory for the accumulators it runs as one piece here: slower, and right.
mint runOverWorkers(const ReductionForm &form, Accumulator *accumulator, const ReductionOperands &operands,
                    mint count) {
  Reduction reduction = {&form, &operands};
  parallelLoop(&reduction, preparePartials, reducePiece, 0, count, 1, nullptr);
  if (reduction.partials == nullptr) return form.run(accumulator, operands, 0, count);
  form.run(accumulator, operands, 0, 0);
  const mint position = mergePartials(reduction, accumulator);
  free(reduction.partials);
  return position;
}

mint drive(const ReductionLoop &loop, bool isParallel, void *result, const ReductionOperands &operands,
           mint flags) {
  const ReductionForm &form = (flags & loop.checkFlag) != 0 ? loop.checked : loop.plain;
  const mint count = operands.count;
  Accumulator own;
  mint position =
      isParallel ? runOverWorkers(form, &own, operands, count) : form.run(&own, operands, 0, count);
  if (position == 0 && count > 0 && form.finish != nullptr) position = form.finish(&own, operands, count);
  memcpy(result, &own, loop.accumulatorBytes);
  return position;
}

} // namespace

mint driveReduction(const ReductionLoop &loop, void *accumulator, const void *data, mint count,
                    const mint *strides, mint flags) {
  return drive(loop, goesParallel(kReductions, count), accumulator,
               {{data, nullptr}, {strides[1], 0}, std::max(count, 0)}, flags);
}

// A sum whose order counts is one piece, however low the threshold.
mint drivePairReduction(const ReductionLoop &loop, void *accumulator, const void *x, const void *y,
                        mint count, const mint *strides, mint flags) {
  const bool isParallel = count >= torvane_loops::kFreeOrder && goesParallel(kScalarValued, count);
  return drive(loop, isParallel, accumulator, {{x, y}, {strides[1], strides[2]}, std::max(count, 0)}, flags);
}

} // namespace torvane
