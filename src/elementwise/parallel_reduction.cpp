#include "parallel_reduction.h"

#include "../runtime/memory.h"

namespace torvane {

namespace {

struct Partial {
  alignas(mreal) unsigned char accumulator[kAccumulatorBytes];
  mint first, last; // the piece; empty for a worker that had none
  mint failure;     // what run returned
};

struct Reduction {
  const ReductionLoops *loops;
  const ReductionOperands *operands;
  Partial *partials = nullptr; // null: no memory
  mint workers = 0;
};

void preparePartials(void *closure, ParallelPool *pool) {
  auto *reduction = static_cast<Reduction *>(closure);
  reduction->workers = ParallelPool_workerCount(pool);
  const uint32_t bytes = static_cast<uint32_t>(reduction->workers) * uint32_t{sizeof(Partial)};
  reduction->partials = static_cast<Partial *>(allocate(bytes, 0, kQuiet));
  for (mint k = 0; reduction->partials != nullptr && k < reduction->workers; ++k) {
    reduction->partials[k] = {};
    reduction->loops->start(reduction->partials[k].accumulator);
  }
}

void reducePiece(void *closure, ParallelWorker *worker) {
  const auto *reduction = static_cast<const Reduction *>(closure);
  if (reduction->partials == nullptr) return;
  Partial *partial = &reduction->partials[ParallelWorker_index(worker)];
  partial->first = ParallelWorker_first(worker);
  partial->last = ParallelWorker_last(worker);
  partial->failure =
      reduction->loops->run(partial->accumulator, *reduction->operands, partial->first, partial->last);
}

mint mergePartials(const Reduction &reduction, void *accumulator) {
  for (mint k = 0; k < reduction.workers; ++k) {
    const Partial &partial = reduction.partials[k];
    if (partial.first == partial.last) continue;
    if (partial.failure != 0) return partial.first + partial.failure;
    if (!reduction.loops->merge(accumulator, partial.accumulator)) return partial.last;
  }
  return 0;
}

} // namespace

mint reduceInParallel(const ReductionLoops &loops, void *accumulator, const ReductionOperands &operands,
                      mint count) {
  Reduction reduction = {&loops, &operands};
  parallelLoop(&reduction, preparePartials, reducePiece, 0, count, 1, nullptr);
  loops.start(accumulator);
  if (reduction.partials == nullptr) return loops.run(accumulator, operands, 0, count);
  const mint position = mergePartials(reduction, accumulator);
  free(reduction.partials);
  return position;
}

} // namespace torvane
