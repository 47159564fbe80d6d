// Walks a thread heap and checks everything that heap_thread.h, heap_slab.h and heap_area.h promise of it.
// The owner may call this at any time, also while other threads hand blocks back; for another thread's heap,
// only when its owner is at rest.
#pragma once

#include "runtime/heap_thread.h"

#include <gtest/gtest.h>

namespace torvane::test {

// `externalBytes` is what adjustExternalBytes has added to the heap.
testing::AssertionResult isValidHeap(ThreadHeap *heap, uint32_t externalBytes = 0);

// The calling thread's heap; valid when it has none.
testing::AssertionResult isValidHere(uint32_t externalBytes = 0);

// Every heap of the process, and that the page map holds their slabs and nothing else. All threads at rest.
testing::AssertionResult isValidState();

// Tables of the page map below its top: blocks of the process heap that stay for good once an address has
// asked for them.
int64_t pageMapTables();

} // namespace torvane::test
