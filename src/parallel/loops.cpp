// The three forms of a parallel loop.
#include "pool.h"

namespace torvane {

namespace {

using Guard = LockGuard<Lock>;

// What a loop runs on: the pool while nobody else has it, else a record of its own without threads, so that
// loops which are refused the pool disturb neither it nor each other.
class Lease {
public:
  explicit Lease(bool existingOnly = false) : entered(enterPool(existingOnly)) {
    own.callerWorker.pool = &own;
  }
  ~Lease() {
    if (entered != nullptr) leavePool(entered);
  }
  Lease(const Lease &) = delete;
  Lease &operator=(const Lease &) = delete;

  ParallelPool *pool() { return entered != nullptr ? entered : &own; }
  bool isRefused() const { return entered == nullptr; }

private:
  ParallelPool *const entered;
  ParallelPool own;
};

mint resultOf(ParallelPool *pool) {
  const Guard guard(pool->stateLock);
  return pool->failed != 0 ? pool->failureStatus : 0;
}

mint runSerially(ParallelPool *pool, const ParallelTask &task) {
  pool->callerWorker.seatTask = task;
  pool->callerWorker.task = &pool->callerWorker.seatTask;
  runTask(&pool->callerWorker);
  return resultOf(pool);
}

mint runInPieces(ParallelPool *pool, const PieceCutter &pieces, const ParallelTask &task) {
  offerPieces(pool, pieces, task);
  carryAndWait(pool);
  return resultOf(pool);
}

// Deliberate: what prepare sees while a loop is going to run serially is a pool of one worker.
void prepareEven(ParallelPool *pool, void *closure, ParallelPrepare prepare, bool isSerial) {
  const mint workers = pool->workerCount;
  if (isSerial) pool->workerCount = 1;
  prepare(closure, pool);
  pool->workerCount = workers;
}

void giveOwnTask(ParallelWorker *worker, const ParallelTask &task) {
  const Guard guard(worker->lock);
  worker->seatTask = task;
  worker->task = &worker->seatTask;
  worker->ownTask = 1;
}

// A worker that got no thread from the system is served by the caller.
void runOwnTask(ParallelPool *pool, ParallelWorker *worker, const ParallelTask &task) {
  giveOwnTask(worker, task);
  if (worker->hasThread != 0) {
    wakeWorker(worker);
  } else {
    runTask(worker);
    finishTask(pool);
  }
}

void setBusy(ParallelPool *pool, mint workers) {
  const Guard guard(pool->idleLock);
  pool->busyWorkers = workers;
}

mint runOnEveryThread(ParallelPool *pool, const ParallelTask &task) {
  setBusy(pool, pool->threadCount);
  for (mint k = 0; k < pool->threadCount; ++k) runOwnTask(pool, &pool->workers[k], task);
  waitForBusyWorkers(pool);
  return resultOf(pool);
}

} // namespace

mint parallelLoop(void *closure, ParallelPrepare prepare, ParallelBody body, mint first, mint last,
                  mint grain, const ParallelPartition *partition) {
  if (last <= first) return kSuccess;
  if (grain < 1) return kValueFailed;
  Lease lease;
  ParallelPool *pool = lease.pool();
  if (prepare != nullptr) prepare(closure, pool);
  const ParallelTask task = {first, last, grain, body, closure};
  PieceCutter pieces;
  const bool isSerial = pool->threadCount < 2 || (partition != nullptr && partition->forceSerial != 0) ||
                        !cutByPartition(&pieces, {first, last}, grain, partition, pool->threadCount);
  return isSerial ? runSerially(pool, task) : runInPieces(pool, pieces, task);
}

mint parallelLoopEven(void *closure, ParallelPrepare prepare, ParallelBody body, mint first, mint last,
                      mint grain) {
  if (last <= first) return kSuccess;
  if (grain < 1) return kValueFailed;
  Lease lease;
  ParallelPool *pool = lease.pool();
  const bool isSerial = pool->threadCount < 2 || (int64_t{last} - first) / grain < pool->threadCount;
  if (prepare != nullptr) prepareEven(pool, closure, prepare, isSerial);
  const ParallelTask task = {first, last, grain, body, closure};
  if (isSerial) return runSerially(pool, task);
  PieceCutter pieces;
  cutByIndex(&pieces, {first, last}, grain, pool->threadCount);
  return runInPieces(pool, pieces, task);
}

mint parallelOnEveryWorker(void *closure, ParallelBody body, mint flags) {
  const bool existingOnly = (flags & kExistingPoolOnly) != 0;
  if (existingOnly && !poolExists()) return kValueFailed;
  Lease lease(existingOnly);
  if (lease.isRefused()) return kSuccess;
  const ParallelTask task = {0, 0, 1, body, closure};
  if (lease.pool()->threadCount >= 2) return runOnEveryThread(lease.pool(), task);
  return (flags & kNotForOneWorker) != 0 ? kSuccess : runSerially(lease.pool(), task);
}

} // namespace torvane
