#include "task_scheduler.h"

#if defined(TORVANE_TBB)
#include <oneapi/tbb/parallel_for.h>
#else
#include <future>
#include <system_error>
#include <vector>
#endif

namespace torvane {

#if defined(TORVANE_TBB)

void runTasks(void *closure, void (*task)(void *, mint), mint count) {
  oneapi::tbb::parallel_for(
      mint{0}, count, mint{1}, [=](mint k) { task(closure, k); }, oneapi::tbb::simple_partitioner());
}

#else

namespace {

std::future<void> schedule(void *closure, void (*task)(void *, mint), mint k) {
  try {
    return std::async(std::launch::async, task, closure, k);
  } catch (const std::system_error &refused) {
    throw std::system_error(refused.code(), "Fail to schedule the chore!");
  }
}

} // namespace

// The futures of an exception's way out wait for their tasks, which still use the closure.
void runTasks(void *closure, void (*task)(void *, mint), mint count) {
  std::vector<std::future<void>> chores;
  for (mint k = 0; k < count; ++k) chores.push_back(schedule(closure, task, k));
  for (std::future<void> &chore : chores) chore.get();
}

#endif

} // namespace torvane
