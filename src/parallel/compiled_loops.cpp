// The exported loops over a compiled function.
#include "../runtime/failure.h"
#include "../runtime/memory.h"
#include "../runtime/platform_thread.h"
#include "task_scheduler.h"
#include <torvane/exception.hpp>
#include <torvane/parallel.h>

#include <algorithm>
#include <atomic>

namespace torvane {

namespace {

constexpr mint kNegativeLength = 18;
constexpr mint kFirstParallelCount = 4096;
constexpr mint kTaskUnit = 64; // tasks begin at multiples: 512 bytes, so that no two write one cache line
constexpr mint kJumpStyle = 2;

struct Mapping {
  const int64_t *source;
  int64_t *target;
  int64_t (*function)(int64_t);
  int64_t count;
  int64_t taskSize;
  mint *codes; // one a task
};

// The code that ended the run, or 0. The code of an exception may be 0 too, and then counts as none.
mint mapRun(const Mapping &map, int64_t first, int64_t last) {
  const int64_t *source = map.source;
  int64_t *target = map.target;
  int64_t (*const function)(int64_t) = map.function;
  try {
    for (int64_t i = first; i < last; ++i) target[i] = function(source[i]);
  } catch (const TorvaneRuntimeException &raised) {
    return raised.code;
  }
  return 0;
}

void mapTask(void *closure, mint k) {
  const auto &map = *static_cast<const Mapping *>(closure);
  const int64_t first = k * map.taskSize;
  map.codes[k] = mapRun(map, first, std::min(first + map.taskSize, map.count));
}

// Words of the allocator, given back however the loop is left.
class Codes {
public:
  explicit Codes(mint count)
      : words(static_cast<mint *>(allocate(static_cast<uint32_t>(count) * sizeof(mint), 0, kFatal))) {
    std::fill_n(words, count, 0);
  }
  ~Codes() { free(words); }
  Codes(const Codes &) = delete;
  Codes &operator=(const Codes &) = delete;
  mint *const words;
};

mint mapInTasks(Mapping map) {
  const mint tasks = systemProcessorCount();
  map.taskSize = ((map.count - 1) / tasks + kTaskUnit) & ~int64_t{kTaskUnit - 1};
  const Codes codes(tasks);
  map.codes = codes.words;
  runTasks(&map, mapTask, tasks);
  const mint *failed = std::find_if(codes.words, codes.words + tasks, [](mint code) { return code != 0; });
  return failed == codes.words + tasks ? 0 : *failed;
}

// A raise in style 2 goes to a frame on the stack of the calling thread, where no other thread can return to.
bool raisesJump() {
  return std::atomic_ref(RTL_exceptionStyle).load(std::memory_order_relaxed) == kJumpStyle;
}

template <class Call> mint countInclusive(mint first, mint last, Call call) {
  for (int64_t i = first; i <= last; ++i) call(static_cast<mint>(i)); // wide: `last` may be the largest mint
  return 0;
}

} // namespace

} // namespace torvane

using namespace torvane;

mint NonParallelDo(void (*function)(mint), mint first, mint last) {
  return countInclusive(first, last, function);
}

mint NonParallelDo_Closure(void *closure, void (*function)(void *, mint), mint first, mint last) {
  return countInclusive(first, last, [&](mint i) { function(closure, i); });
}

mint parallel_for_Integer64_Integer64(const int64_t *source, int64_t count, int64_t *target,
                                      int64_t (*function)(int64_t)) {
  const auto length = static_cast<mint>(count);
  if (length < 0) return kNegativeLength;
  const Mapping map = {source, target, function, length, length, nullptr};
  return length < kFirstParallelCount || raisesJump() ? mapRun(map, 0, length) : mapInTasks(map);
}
