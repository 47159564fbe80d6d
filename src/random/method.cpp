#include "method.h"

#include "../runtime/memory.h"
#include "name_copy.h"

#include <string.h>

namespace torvane {

constinit RandomGeneratorMethod *methods = nullptr;

namespace {

constinit mint lastId = 0;

void pushFront(RandomGeneratorMethod *method) {
  method->next = methods;
  methods = method;
}

bool isForgotten(const RandomGeneratorMethod *method, const RandomGeneratorMethod &added) {
  return method->id == 0 && method->alloc == added.alloc && method->clone == added.clone &&
         method->free == added.free && strcmp(method->name, added.name) == 0;
}

RandomGeneratorMethod *unlinkForgotten(const RandomGeneratorMethod &added) {
  for (RandomGeneratorMethod **link = &methods; *link != nullptr; link = &(*link)->next)
    if (isForgotten(*link, added)) {
      RandomGeneratorMethod *method = *link;
      *link = method->next;
      return method;
    }
  return nullptr;
}

RandomGeneratorMethod *newMethod(const RandomGeneratorMethod &added) {
  auto *method = static_cast<RandomGeneratorMethod *>(allocate(sizeof added, 0, kFatal));
  *method = added;
  method->name = copyOfName(added.name);
  method->threadSlot = newPlainThreadSlot();
  return method;
}

} // namespace

RandomGeneratorMethod *findMethod(const char *name) {
  for (RandomGeneratorMethod *method = methods; method != nullptr; method = method->next)
    if (method->id != 0 && strcmp(method->name, name) == 0) return method;
  return nullptr;
}

RandomGenerator *generatorOfThread(const RandomGeneratorMethod *method) {
  return static_cast<RandomGenerator *>(threadSlotValue(method->threadSlot));
}

void setGeneratorOfThread(const RandomGeneratorMethod *method, RandomGenerator *generator) {
  setThreadValue(method->threadSlot, generator);
}

ThreadSlot newPlainThreadSlot() {
  ThreadSlot slot;
  if (!createThreadSlot(&slot, nullptr)) fatalOutOfMemory();
  return slot;
}

void setThreadValue(ThreadSlot slot, void *value) {
  if (!setThreadSlotValue(slot, value)) fatalOutOfMemory();
}

void forgetMethods() {
  for (RandomGeneratorMethod *method = methods; method != nullptr; method = method->next) method->id = 0;
  lastId = 0;
}

void destroyMethods() {
  while (RandomGeneratorMethod *method = methods) {
    methods = method->next;
    deleteThreadSlot(method->threadSlot);
    free(method->name);
    free(method);
  }
  lastId = 0;
}

} // namespace torvane

using namespace torvane;

void RandomGeneratorMethod_add(const char *name, RandomAlloc alloc, RandomClone clone, RandomFree free) {
  // The name is copied before it is kept.
  const RandomGeneratorMethod added = {const_cast<char *>(name), 0, alloc, clone, free, nullptr, {}, 0};
  RandomGeneratorMethod *method = unlinkForgotten(added);
  if (method == nullptr) method = newMethod(added);
  method->id = ++lastId;
  pushFront(method);
}
