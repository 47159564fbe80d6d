// Parallel loops on the library's own threads, as the other rooms call them. A loop offers a body and a
// range; the caller waits until every index has been covered.
//
// A body is called with a piece of the range and a worker, ParallelWorker_first to ParallelWorker_last
// exclusive. The worker is a seat: no two bodies that run at the same time have the same one, and its index,
// below the number of workers, tells a body which accumulator is its own. Which thread runs a body is not
// promised, nor that two pieces run at the same time: no body waits for another piece. A loop in which no
// worker has two pieces (no partition) gives piece k to worker k, so that a merge in the order of workers
// has the same rounding every time.
#pragma once

#include "partition.h"

namespace torvane {

struct ParallelPool;
struct ParallelWorker;

// A body reports a failure through ParallelWorker_fail and does not raise. A TorvaneRuntimeException that
// leaves it all the same is reported as its code; any other exception ends the process.
using ParallelBody = void (*)(void *closure, ParallelWorker *worker);

// Called once, before the first piece, to make what the bodies need for each worker.
using ParallelPrepare = void (*)(void *closure, ParallelPool *pool);

// Runs the body over the pieces of the range. The result is 0, 4 for a grain below 1, or the status of the
// last failure reported; the other pieces run nevertheless. Lengths of pieces are multiples of the grain but
// for the last. A loop started while another one runs, by a body or by another thread, covers its range in
// one call of the body on its own thread. `prepare` and `partition` may be null.
mint parallelLoop(void *closure, ParallelPrepare prepare, ParallelBody body, mint first, mint last,
                  mint grain, const ParallelPartition *partition);

// The same with one piece a worker, as cutByIndex cuts; `first` is 0. `prepare` sees one worker when the loop
// is going to run serially: when there is less than one grain a worker.
mint parallelLoopEven(void *closure, ParallelPrepare prepare, ParallelBody body, mint first, mint last,
                      mint grain);

// Calls the body once for every worker, each on that worker's own thread; with one worker, on the caller's.
// Inside another loop it does nothing and returns 0.
enum EveryWorkerFlags : mint {
  kExistingPoolOnly = 1, // 4 when there is no pool; its size is not asked
  kNotForOneWorker = 2,  // nothing to do when there is only one
};
mint parallelOnEveryWorker(void *closure, ParallelBody body, mint flags);

mint ParallelPool_workerCount(const ParallelPool *pool);
mint ParallelWorker_index(const ParallelWorker *worker);
mint ParallelWorker_first(const ParallelWorker *worker);
mint ParallelWorker_last(const ParallelWorker *worker);

// Makes `status` the loop's result. The last caller wins.
void ParallelWorker_fail(ParallelWorker *worker, mint status);

// Whether a parallel loop is running, so that another one would run serially.
bool parallelLoopIsRunning();

// Adds a function to those that each new thread of the pool calls with its own worker, the latest first.
// Before any parallel loop.
void addWorkerStartHook(void (*function)(ParallelWorker *worker));

} // namespace torvane
