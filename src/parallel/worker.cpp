// What the threads of the pool do: wait, carry pieces, wait again.
#include "pool.h"

#include "../runtime/startup.h"
#include <torvane/exception.hpp>

namespace torvane {

namespace {

using Guard = LockGuard<Lock>;

// The place of the ring, which moves on by one.
mint &placeInRing(const ParallelPool *pool, mint *place) {
  mint &seat = pool->seats[*place];
  if (++*place == pool->threadCount) *place = 0;
  return seat;
}

ParallelWorker *takeSeat(ParallelPool *pool) {
  ParallelWorker *seat = &pool->workers[placeInRing(pool, &pool->nextSeat)];
  const Piece piece = pool->remaining.cut();
  seat->seatTask = pool->pattern;
  seat->seatTask.first = piece.first;
  seat->seatTask.last = piece.last;
  seat->task = &seat->seatTask;
  seat->takenAt = timeStamp();
  ++pool->busyWorkers;
  return seat;
}

void returnSeat(ParallelPool *pool, const ParallelWorker *seat) {
  const ParallelTask &done = seat->seatTask;
  pool->ticksPerIndex =
      static_cast<double>(timeStamp() - seat->takenAt) / (static_cast<double>(done.last) - done.first);
  placeInRing(pool, &pool->nextReturned) = seat->index;
  --pool->busyWorkers;
}

bool isWorthWaking(const ParallelPool *pool, const ParallelWorker *helper) {
  if (!helper->signal.hasSleeper()) return true;
  const auto indicesLeft = static_cast<double>(pool->remaining.last - pool->remaining.next);
  return indicesLeft * pool->ticksPerIndex >= static_cast<double>(kWatchTicks);
}

// A thread for the next piece, the one that went idle last: it may still be watching. The caller carries
// pieces too, so that one thread may always stay idle.
ParallelWorker *takeHelper(ParallelPool *pool) {
  ParallelWorker *helper = pool->idleWorkers;
  if (helper == nullptr || pool->remaining.isEmpty() || pool->awakeThreads >= pool->threadCount - 1 ||
      !isWorthWaking(pool, helper))
    return nullptr;
  pool->idleWorkers = helper->nextIdle;
  helper->isIdle = 0;
  ++pool->awakeThreads;
  return helper;
}

void listAsIdle(ParallelPool *pool, ParallelWorker *worker) {
  if (worker->isIdle != 0) return;
  worker->isIdle = 1;
  worker->nextIdle = pool->idleWorkers;
  pool->idleWorkers = worker;
  --pool->awakeThreads;
}

// Hands back the seat that is held, if any, and takes one for the next piece; null when nothing is left to
// cut. A thread of the pool that finds nothing is idle from then on.
ParallelWorker *nextSeat(ParallelPool *pool, const ParallelWorker *held, ParallelWorker *self) {
  ParallelWorker *seat = nullptr, *helper = nullptr;
  bool isLast = false;
  {
    const Guard guard(pool->idleLock);
    if (held != nullptr) returnSeat(pool, held);
    if (!pool->remaining.isEmpty()) {
      seat = takeSeat(pool);
      helper = takeHelper(pool);
    } else {
      isLast = held != nullptr && self != nullptr && pool->busyWorkers == 0;
      if (self != nullptr) listAsIdle(pool, self);
    }
  }
  if (helper != nullptr) wakeWorker(helper);
  if (isLast) pool->idleSignal.set();
  return seat;
}

void carryPieces(ParallelPool *pool, ParallelWorker *self) {
  ParallelWorker *seat = nullptr;
  while ((seat = nextSeat(pool, seat, self)) != nullptr) runTask(seat);
}

// Watching pays only as long as a processor is left for the thread that will bring the work.
void waitForSignal(ParallelWorker *worker) {
  ParallelPool *pool = worker->pool;
  const bool watches = pool->watching.fetch_add(1, std::memory_order_relaxed) < pool->watchersAllowed;
  worker->signal.wait(worker->lock, watches ? kWatchTicks : 0);
  pool->watching.fetch_sub(1, std::memory_order_relaxed);
}

// Whether to go on.
bool waitForWake(ParallelWorker *worker, bool *hasOwnTask) {
  const Guard guard(worker->lock);
  while (worker->wake == 0) waitForSignal(worker);
  worker->wake = 0;
  *hasOwnTask = worker->ownTask != 0;
  worker->ownTask = 0;
  return worker->running != 0;
}

void storeThreadId(ParallelWorker *worker) {
  const Guard guard(worker->lock);
  worker->ownerThreadId = currentThreadId();
}

} // namespace

void wakeWorker(ParallelWorker *worker) {
  {
    const Guard guard(worker->lock);
    worker->wake = 1;
  }
  worker->signal.set();
}

void runTask(ParallelWorker *worker) noexcept {
  const ParallelTask *task = worker->task;
  try {
    task->body(task->closure, worker);
  } catch (const TorvaneRuntimeException &raised) {
    ParallelWorker_fail(worker, raised.code);
  }
}

void finishTask(ParallelPool *pool) {
  bool isLast;
  {
    const Guard guard(pool->idleLock);
    isLast = --pool->busyWorkers == 0;
  }
  if (isLast) pool->idleSignal.set();
}

void waitForBusyWorkers(ParallelPool *pool) {
  const Guard guard(pool->idleLock);
  while (pool->busyWorkers > 0) pool->idleSignal.wait(pool->idleLock, kWatchTicks);
}

void offerPieces(ParallelPool *pool, const PieceCutter &pieces, const ParallelTask &pattern) {
  const Guard guard(pool->idleLock);
  pool->remaining = pieces;
  pool->pattern = pattern;
  pool->nextSeat = pool->nextReturned = 0;
  for (mint k = 0; k < pool->threadCount; ++k) pool->seats[k] = k;
}

void carryAndWait(ParallelPool *pool) {
  carryPieces(pool, nullptr);
  waitForBusyWorkers(pool);
}

void runWorkerThread(void *argument) {
  auto *worker = static_cast<ParallelWorker *>(argument);
  storeThreadId(worker);
  runThreadStartHooks();
  runWorkerStartHooks(worker);
  for (bool hasOwnTask; waitForWake(worker, &hasOwnTask);) {
    if (hasOwnTask) {
      runTask(worker);
      finishTask(worker->pool);
    }
    carryPieces(worker->pool, worker);
  }
  runThreadExitHooks();
}

} // namespace torvane
