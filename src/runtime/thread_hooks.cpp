// The lists of functions that threads run when they begin and end. They come from the process heap and not
// from the allocator, because the last exit hook takes the thread's own heap away.
#include "memory.h"
#include "platform.h"
#include "startup.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr size_t kFirstCapacity = 8;

// Invariant: count <= capacity, and slots has capacity places; no hook stands in it twice.
struct HookList {
  ThreadHook *slots;
  size_t count;
  size_t capacity;
};

constinit HookList startHooks{nullptr, 0, 0};
constinit HookList exitHooks{nullptr, 0, 0};

void growTo(HookList *list, size_t capacity) {
  const ProcessHeap *heap = processHeap.load();
  auto *slots = static_cast<ThreadHook *>(heap->take(capacity * sizeof(ThreadHook)));
  if (slots == nullptr) fatalOutOfMemory();
  std::copy_n(list->slots, list->count, slots);
  heap->give(list->slots);
  *list = {slots, list->count, capacity};
}

void create(HookList *list) {
  if (list->slots == nullptr) growTo(list, kFirstCapacity);
}

void add(HookList *list, ThreadHook hook) {
  if (std::find(list->slots, list->slots + list->count, hook) != list->slots + list->count) return;
  create(list);
  if (list->count == list->capacity) growTo(list, 2 * list->capacity);
  list->slots[list->count++] = hook;
}

void discard(HookList *list) {
  processHeap.load()->give(list->slots);
  *list = {nullptr, 0, 0};
}

} // namespace

void createThreadHookLists() {
  create(&startHooks);
  create(&exitHooks);
}

void addThreadStartHook(ThreadHook hook) { add(&startHooks, hook); }
void addThreadExitHook(ThreadHook hook) { add(&exitHooks, hook); }

// By index: a hook may add another one, and so move the list.
void runThreadStartHooks() {
  for (size_t i = 0; i < startHooks.count; ++i) startHooks.slots[i]();
}

void runThreadExitHooks() {
  for (size_t i = exitHooks.count; i > 0; --i) exitHooks.slots[i - 1]();
}

void tearDownThreadHookLists() {
  discard(&startHooks);
  discard(&exitHooks);
}

} // namespace torvane
