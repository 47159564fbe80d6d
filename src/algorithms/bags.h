// Bags: what compiled code appends to in a loop and reads when the loop is over.
//
// The elements stand in a list of blocks, each one allocation, and never move: an append is one test of
// bounds and one copy. A bag becomes a tensor only when it is read. Compiled code knows a bag by its number
// in the table that its library-data record owns.
//
// Invariant: firstBlock leads through blockCount blocks, all but the last full; the last one's storage ends
// at blockEnd and is filled up to cursor; tailLink is where the next block is to be linked. Nothing here
// takes a lock, and memory that runs short while a bag grows ends the process.
#pragma once

#include "../runtime/types.h"
#include <torvane/tensor.h>

namespace torvane {

inline constexpr mint kBagBlockElements = 1024;

// The storage follows behind.
struct BagBlock {
  char *data; // the storage
  BagBlock *next;
};
static_assert(sizeof(BagBlock) == 2 * sizeof(void *));

struct Bag {
  BagBlock *firstBlock;
  BagBlock **tailLink;
  void *reserved; // null; nothing reads it
  mint blockCount;
  char *cursor; // where the next element goes; null, like its end, before there is a block
  char *blockEnd;
  uint32_t elementSize; // bytes
  uint32_t blockBytes;  // of a block's storage
  mint type;
};

// Numbers count from 0 and are not given twice until the table is cleared.
struct BagTable {
  mint capacity;
  mint lastIndex; // -1 when there is no bag
  Bag **bags;     // null from lastIndex + 1 on
};

#if UINTPTR_MAX > 0xFFFFFFFF
static_assert(offsetof(Bag, blockCount) == 24 && offsetof(Bag, cursor) == 32 &&
              offsetof(Bag, blockEnd) == 40);
static_assert(offsetof(Bag, elementSize) == 48 && offsetof(Bag, type) == 56 && sizeof(Bag) == 64);
#else
static_assert(offsetof(Bag, blockCount) == 12 && offsetof(Bag, cursor) == 16 &&
              offsetof(Bag, blockEnd) == 20);
static_assert(offsetof(Bag, elementSize) == 24 && offsetof(Bag, type) == 32 && sizeof(Bag) == 36);
#endif
static_assert(offsetof(Bag, firstBlock) == 0 && offsetof(Bag, tailLink) == sizeof(void *));
static_assert(offsetof(Bag, reserved) == 2 * sizeof(void *));
static_assert(offsetof(BagTable, lastIndex) == 4 && offsetof(BagTable, bags) == 8);
static_assert(sizeof(BagTable) == 8 + sizeof(void *));

// An empty bag of elements of a tensor's type, 2 to 4.
Bag *Bag_new(mint type);
void Bag_delete(Bag *bag);

int64_t Bag_elementCount(const Bag *bag);

// Copies `count` elements of the bag's type; a count below 1 does nothing.
void Bag_append(Bag *bag, mint count, const void *source);

// All elements as a vector, in the order of their appends, into the tensor of the slot or a new one. Status:
// 403 where memory is short, or where there are more than a tensor holds. A null bag: 0, and nothing happens.
mint Bag_toTensor(MTensor **resultSlot, const Bag *bag);

BagTable *BagTable_new();
void BagTable_delete(BagTable *table); // with its bags; null is ignored

// The number of a new bag.
mint BagTable_add(BagTable *table, mint type);

// The bag of a number; null where there is none, and for a null table.
Bag *BagTable_get(const BagTable *table, mint number);

// Deletes all bags; the next one is number 0.
void BagTable_clear(BagTable *table);

// Whether the bag holds the invariant above.
bool isValidBag(const Bag *bag);

} // namespace torvane
