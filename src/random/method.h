// The methods: every kind of generator that the library knows, newest first.
//
// A record once made stays until the library is torn down, because generators of threads refer to it. A
// start-up that runs again takes all ids back, and with them the names; a method that is then added as before
// gets its old record, so that threads find their generators again. Invariant: id == 0, or ids fall along the
// list.
#pragma once

#include "../runtime/platform.h"
#include <torvane/random.h>

namespace torvane {

struct RandomGeneratorMethod {
  char *name;
  mint id; // from 1 on; 0 while nobody has added it since the last start-up
  RandomAlloc alloc;
  RandomClone clone;
  RandomFree free;
  RandomGeneratorMethod *next;
  void *reserved[3];
  // The thread's generator of this method. Without a destructor: the thread-exit hook empties the slots, and
  // must find them filled however late in a thread's end it runs.
  ThreadSlot threadSlot;
};

extern RandomGeneratorMethod *methods; // the newest

// The latest of that name; null where there is none.
RandomGeneratorMethod *findMethod(const char *name);

RandomGenerator *generatorOfThread(const RandomGeneratorMethod *method);
void setGeneratorOfThread(const RandomGeneratorMethod *method, RandomGenerator *generator);

// A slot that needs no destructor; no memory for one is fatal.
ThreadSlot newPlainThreadSlot();
void setThreadValue(ThreadSlot slot, void *value);

void forgetMethods();
void destroyMethods();

} // namespace torvane
