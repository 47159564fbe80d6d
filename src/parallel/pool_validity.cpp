// The invariants of a pool that no loop uses, walked by the tests.
#include "pool.h"

#include <algorithm>

namespace torvane {

namespace {

using Guard = LockGuard<Lock>;

// Workers on the list of idle ones, or -1 when it holds one twice or one that does not know of it.
mint idleCount(const ParallelPool *pool) {
  mint count = 0;
  for (const ParallelWorker *worker = pool->idleWorkers; worker != nullptr; worker = worker->nextIdle)
    if (worker->isIdle == 0 || ++count > pool->threadCount) return -1;
  return count;
}

mint markedIdle(const ParallelPool *pool) {
  return static_cast<mint>(std::count_if(pool->workers, pool->workers + pool->threadCount,
                                         [](const ParallelWorker &worker) { return worker.isIdle != 0; }));
}

bool workersAreNumbered(const ParallelPool *pool) {
  for (mint k = 0; k < pool->threadCount; ++k)
    if (pool->workers[k].index != k || pool->workers[k].pool != pool) return false;
  return true;
}

} // namespace

bool isValidPool(ParallelPool *pool) {
  const Guard guard(pool->idleLock);
  return pool->busyWorkers == 0 && pool->remaining.isEmpty() && workersAreNumbered(pool) &&
         idleCount(pool) == markedIdle(pool) && pool->awakeThreads == pool->threadCount - markedIdle(pool);
}

} // namespace torvane
