// The one pool of the process: made, entered, left, destroyed.
#include "pool.h"

#include "../runtime/memory.h"
#include "../runtime/startup.h"
#include "../runtime/thresholds.h"

#include <algorithm>
#include <new>

namespace torvane {

namespace {

using Guard = LockGuard<Lock>;

// Guards the pool's pointer: nobody makes or destroys the pool while another enters it. The outermost lock.
constinit Lock entryLock;
constinit ParallelPool *thePool = nullptr;
constinit bool forksAreWatched = false;

struct StartHook {
  void (*function)(ParallelWorker *);
  StartHook *next;
};
constinit std::atomic<StartHook *> startHooks{nullptr};

// A forked child has none of the pool's threads: it leaves the pool where it is, and its next loop makes one.
void forgetPool() {
  new (&entryLock) Lock;
  thePool = nullptr;
}

void watchForks() {
  if (!forksAreWatched) runInForkedChildren(forgetPool);
  forksAreWatched = true;
}

// Room for that many bytes at the alignment of a worker; `block` is what is freed.
void *alignedRoom(size_t bytes, void **block) {
  *block = allocate(static_cast<uint32_t>(bytes + kWorkerAlignment), 0, kFatal);
  const auto address = reinterpret_cast<uintptr_t>(*block) + kWorkerAlignment - 1;
  return reinterpret_cast<void *>(address - address % kWorkerAlignment);
}

void makeWorkers(ParallelPool *pool) {
  const auto count = static_cast<size_t>(pool->threadCount);
  void *room = alignedRoom(count * (sizeof(ParallelWorker) + sizeof(mint)), &pool->workersBlock);
  pool->workers = static_cast<ParallelWorker *>(room);
  pool->seats = reinterpret_cast<mint *>(pool->workers + count);
  for (mint k = 0; k < pool->threadCount; ++k) {
    auto *worker = new (&pool->workers[k]) ParallelWorker;
    worker->index = k;
    worker->pool = pool;
    worker->isIdle = 1;
    worker->nextIdle = pool->idleWorkers;
    pool->idleWorkers = worker;
  }
}

void startThread(ParallelWorker *worker) {
  worker->hasThread = startThread(&worker->thread, runWorkerThread, worker, kRaisedPriority) ? 1 : 0;
}

void stopThread(ParallelWorker *worker) {
  {
    const Guard guard(worker->lock);
    worker->running = 0;
  }
  wakeWorker(worker);
}

bool joinThreadOf(const ParallelWorker *worker) {
  return worker->hasThread == 0 || joinThread(worker->thread);
}

// More threads than a machine has serve nobody, and the bytes of their records have 32 bits.
constexpr mint kMostWorkers = 4096;

mint wantedWorkers() { return std::clamp(workerCount(), 1, kMostWorkers); }

// Makes the pool what the next loop needs, while no loop runs.
void renewPool() {
  if (thePool != nullptr && std::max(thePool->threadCount, 1) == wantedWorkers()) return;
  if (thePool != nullptr) destroyPool(thePool);
  watchForks();
  thePool = createPool(wantedWorkers());
}

bool isInUse(ParallelPool *pool) {
  const Guard guard(pool->stateLock);
  return pool->inUse != 0;
}

void takePool(ParallelPool *pool) {
  const Guard guard(pool->stateLock);
  pool->inUse = 1;
  pool->failed = 0;
  pool->failureStatus = 0;
}

} // namespace

ParallelPool *createPool(mint workers) {
  void *block;
  void *room = alignedRoom(sizeof(ParallelPool), &block);
  auto *pool = new (room) ParallelPool;
  pool->block = block;
  pool->workerCount = workers;
  pool->callerWorker.pool = pool;
  if (workers < 2) return pool;
  pool->threadCount = workers;
  pool->watchersAllowed = systemProcessorCount() - 1;
  makeWorkers(pool);
  std::for_each_n(pool->workers, workers, [](ParallelWorker &worker) { startThread(&worker); });
  return pool;
}

// A worker may be in use until the last thread has ended, so that one which cannot be joined keeps them all.
bool destroyPool(ParallelPool *pool) {
  bool allJoined = true;
  for (mint k = 0; k < pool->threadCount; ++k) stopThread(&pool->workers[k]);
  for (mint k = 0; k < pool->threadCount; ++k) allJoined &= joinThreadOf(&pool->workers[k]);
  if (!allJoined) return false;
  free(pool->workersBlock);
  free(pool->block);
  return true;
}

ParallelPool *enterPool(bool existingOnly) {
  const Guard guard(entryLock);
  if (thePool != nullptr && isInUse(thePool)) return nullptr;
  if (!existingOnly) renewPool();
  if (thePool != nullptr) takePool(thePool);
  return thePool;
}

void leavePool(ParallelPool *pool) {
  const Guard guard(pool->stateLock);
  pool->inUse = 0;
}

bool poolExists() {
  const Guard guard(entryLock);
  return thePool != nullptr;
}

bool parallelLoopIsRunning() {
  const Guard guard(entryLock);
  return thePool != nullptr && isInUse(thePool);
}

void addWorkerStartHook(void (*function)(ParallelWorker *)) {
  auto *hook = static_cast<StartHook *>(allocate(sizeof(StartHook), 0, kFatal));
  *hook = {function, startHooks.load(std::memory_order_relaxed)};
  while (!startHooks.compare_exchange_weak(hook->next, hook, std::memory_order_release,
                                           std::memory_order_relaxed)) {
  }
}

void runWorkerStartHooks(ParallelWorker *worker) {
  for (const StartHook *hook = startHooks.load(std::memory_order_acquire); hook != nullptr; hook = hook->next)
    hook->function(worker);
}

// The pool goes before the hooks, which its threads read, and both before the allocator.
void tearDownPool() {
  const Guard guard(entryLock);
  if (thePool != nullptr) destroyPool(thePool);
  thePool = nullptr;
  for (StartHook *hook = startHooks.exchange(nullptr); hook != nullptr;) {
    StartHook *next = hook->next;
    free(hook);
    hook = next;
  }
}

mint ParallelPool_workerCount(const ParallelPool *pool) { return pool->workerCount; }
mint ParallelWorker_index(const ParallelWorker *worker) { return worker->index; }
mint ParallelWorker_first(const ParallelWorker *worker) { return worker->task->first; }
mint ParallelWorker_last(const ParallelWorker *worker) { return worker->task->last; }

void ParallelWorker_fail(ParallelWorker *worker, mint status) {
  ParallelPool *pool = worker->pool;
  const Guard guard(pool->stateLock);
  pool->failed = 1;
  pool->failureStatus = status;
}

} // namespace torvane
