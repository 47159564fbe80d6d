// The pool: workers with a thread each, made at the first loop and kept until the worker count changes.
//
// A loop in progress is `remaining`, what is left to cut, and whoever is free takes from it: first of all the
// loop's caller, who has nothing else to do and need not be woken, then the threads, which wake each other
// one by one as long as there is more. A loop thus never waits for a thread that has not begun, which on a
// busy machine may take milliseconds; it waits only for pieces that somebody is at work on.
//
// idleLock guards remaining, busyWorkers, the seats and the list of idle threads; stateLock guards inUse and
// the failure; each worker's lock its wake, running and ownTask. No two of them are ever held at once.
//
// Invariants under idleLock: busyWorkers is the number of seats out; a worker is on idleWorkers at most once;
// awakeThreads is the number of threads that are not on it.
#pragma once

#include "parallel.h"
#include "../runtime/platform_thread.h"

namespace torvane {

struct ParallelTask {
  mint first;
  mint last; // exclusive
  mint grain;
  ParallelBody body;
  void *closure;
};

inline constexpr size_t kWorkerAlignment = 64; // a cache line: threads watch the signal of their own

struct alignas(kWorkerAlignment) ParallelWorker {
  mint index = 0;
  mint running = 1; // until shut down
  mint wake = 0;
  Lock lock;
  Signal signal;
  ParallelPool *pool = nullptr;
  ParallelTask *task = nullptr; // what the body that holds this seat is at work on
  ThreadHandle thread = 0;
  uint32_t ownerThreadId = 0;
  ParallelWorker *nextIdle = nullptr;

  ParallelTask seatTask = {}; // what `task` points to
  uint64_t takenAt = 0;       // timeStamp
  mint ownTask = 0;           // seatTask is for this worker's own thread
  mint hasThread = 0;         // the system may have refused one: the loop's caller stands in
  mint isIdle = 0;            // on idleWorkers
};

struct ParallelPool {
  mint busyWorkers = 0;
  mint inUse = 0;
  Lock stateLock;
  Lock furtherLock; // guards nothing
  Lock idleLock;
  Signal idleSignal; // the last piece has been done
  mint workerCount = 1;
  ParallelWorker callerWorker;       // without a thread, for the serial path
  ParallelWorker *workers = nullptr; // null for one worker
  ParallelWorker *idleWorkers = nullptr;
  mint failed = 0;
  mint failureStatus = 0;

  PieceCutter remaining;
  ParallelTask pattern = {}; // of the loop in progress: its pieces are copies
  mint threadCount = 0;      // of workers; workerCount is what callers see, and not always the truth
  mint awakeThreads = 0;
  double ticksPerIndex = 1e9;          // of the latest piece, of whichever loop
  mint *seats = nullptr;               // a ring of indices: seats leave in order and return at the end
  mint nextSeat = 0, nextReturned = 0; // places in it
  std::atomic<mint> watching{0};       // threads that spin for work
  mint watchersAllowed = 0;
  void *block = nullptr;        // where this record stands
  void *workersBlock = nullptr; // where workers and seats stand
};

// The pool of this process, for the caller alone: made anew if the worker count has changed, with nothing
// failed. Null while another loop runs. `existingOnly`: the pool as it stands, null also where there is none.
ParallelPool *enterPool(bool existingOnly);
void leavePool(ParallelPool *pool);
bool poolExists();

ParallelPool *createPool(mint workers);
bool destroyPool(ParallelPool *pool); // false: a thread could not be joined, and everything stays

// Whether the invariants hold while no loop runs.
bool isValidPool(ParallelPool *pool);

// What a pool's threads run. The worker's thread is started after it has been listed as idle.
void runWorkerThread(void *worker);
void wakeWorker(ParallelWorker *worker);
void runWorkerStartHooks(ParallelWorker *worker);

// Calls the task's body with the worker.
void runTask(ParallelWorker *worker) noexcept;

// Offers the pieces of a loop to everybody who is free.
void offerPieces(ParallelPool *pool, const PieceCutter &pieces, const ParallelTask &pattern);

// Carries pieces of what remains until nobody is at work on one.
void carryAndWait(ParallelPool *pool);
void waitForBusyWorkers(ParallelPool *pool);
void finishTask(ParallelPool *pool); // one of busyWorkers is done

// About 50 microseconds, which is what a sleeper may need to come. To watch for longer costs more than it
// saves, and so does waking somebody when less is left to do: the call alone takes the waker 2 to 6
// microseconds. How long the rest of a loop will take is guessed from the latest piece.
inline constexpr uint64_t kWatchTicks = uint64_t{1} << 17;

} // namespace torvane
