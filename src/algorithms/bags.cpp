// Bags and their table: growing, appending, reading all.
#include "bags.h"

#include "../runtime/memory.h"
#include "../tensor/tensor.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

void appendBlock(Bag *bag) {
  auto *block = static_cast<BagBlock *>(allocate(uint32_t{sizeof(BagBlock)} + bag->blockBytes, 0, kFatal));
  *block = {reinterpret_cast<char *>(block + 1), nullptr};
  *bag->tailLink = block;
  bag->tailLink = &block->next;
  ++bag->blockCount;
  bag->cursor = block->data;
  bag->blockEnd = block->data + bag->blockBytes;
}

void copyBlocks(char *target, const Bag *bag, size_t bytes) {
  for (const BagBlock *block = bag->firstBlock; bytes > 0; block = block->next) {
    const size_t part = std::min<size_t>(bytes, bag->blockBytes);
    memcpy(target, block->data, part);
    target += part;
    bytes -= part;
  }
}

// The places of the bags of a table that is to hold one of this index.
constexpr mint grownCapacity(mint capacity, mint index) {
  int64_t grown = std::max(capacity, 1);
  while (grown <= index) grown *= 2;
  return grown <= INT32_MAX / mint{sizeof(Bag *)} ? static_cast<mint>(grown) : 0;
}

void grow(BagTable *table, mint index) {
  const mint capacity = grownCapacity(table->capacity, index);
  if (capacity == 0) fatalOutOfMemory();
  auto **bags =
      static_cast<Bag **>(allocate(static_cast<uint32_t>(capacity) * uint32_t{sizeof(Bag *)}, 0, kFatal));
  std::fill_n(std::copy_n(table->bags, table->capacity, bags), capacity - table->capacity, nullptr);
  free(table->bags);
  table->bags = bags;
  table->capacity = capacity;
}

} // namespace

Bag *Bag_new(mint type) {
  auto *bag = static_cast<Bag *>(allocate(sizeof(Bag), 0, kFatal));
  const uint32_t width = elementWidth(type);
  *bag = {nullptr, &bag->firstBlock, nullptr, 0, nullptr, nullptr, width, width * kBagBlockElements, type};
  return bag;
}

void Bag_delete(Bag *bag) {
  for (BagBlock *block = bag->firstBlock; block != nullptr;) {
    BagBlock *next = block->next;
    free(block);
    block = next;
  }
  free(bag);
}

int64_t Bag_elementCount(const Bag *bag) {
  return (int64_t{bag->blockCount} * bag->blockBytes - (bag->blockEnd - bag->cursor)) / bag->elementSize;
}

void Bag_append(Bag *bag, mint count, const void *source) {
  const auto *next = static_cast<const char *>(source);
  for (size_t left = static_cast<size_t>(std::max(count, 0)) * bag->elementSize; left > 0;) {
    if (bag->cursor == bag->blockEnd) appendBlock(bag);
    const size_t part = std::min(left, static_cast<size_t>(bag->blockEnd - bag->cursor));
    memcpy(bag->cursor, next, part);
    bag->cursor += part;
    next += part;
    left -= part;
  }
}

mint Bag_toTensor(MTensor **resultSlot, const Bag *bag) {
  if (bag == nullptr) return kSuccess;
  const int64_t count = Bag_elementCount(bag);
  if (count > INT32_MAX) return kSizeFailed;
  const mint extent = static_cast<mint>(count);
  const mint status = MTensor_allocateCommon(resultSlot, bag->type, 1, &extent, kReport);
  if (status != kSuccess) return status;
  copyBlocks(static_cast<char *>((*resultSlot)->data), bag, static_cast<size_t>(extent) * bag->elementSize);
  return kSuccess;
}

BagTable *BagTable_new() {
  auto *table = static_cast<BagTable *>(allocate(sizeof(BagTable), 0, kFatal));
  *table = {0, -1, nullptr};
  return table;
}

void BagTable_delete(BagTable *table) {
  if (table == nullptr) return;
  BagTable_clear(table);
  free(table->bags);
  free(table);
}

mint BagTable_add(BagTable *table, mint type) {
  const mint index = table->lastIndex + 1;
  if (index >= table->capacity) grow(table, index);
  if (table->bags[index] == nullptr) table->bags[index] = Bag_new(type);
  return table->lastIndex = index;
}

Bag *BagTable_get(const BagTable *table, mint number) {
  return table != nullptr && number >= 0 && number <= table->lastIndex ? table->bags[number] : nullptr;
}

void BagTable_clear(BagTable *table) {
  for (mint i = 0; i <= table->lastIndex; ++i) {
    Bag_delete(table->bags[i]);
    table->bags[i] = nullptr;
  }
  table->lastIndex = -1;
}

bool isValidBag(const Bag *bag) {
  const BagBlock *last = nullptr;
  BagBlock *const *link = &bag->firstBlock;
  mint blocks = 0;
  for (; *link != nullptr && blocks < bag->blockCount; ++blocks) {
    last = *link;
    if (last->data != reinterpret_cast<const char *>(last + 1)) return false;
    link = &last->next;
  }
  if (blocks != bag->blockCount || *link != nullptr || bag->tailLink != link) return false;
  if (bag->reserved != nullptr || bag->elementSize != elementWidth(bag->type)) return false;
  if (bag->blockBytes != bag->elementSize * kBagBlockElements) return false;
  if (last == nullptr) return bag->cursor == nullptr && bag->blockEnd == nullptr;
  return bag->blockEnd == last->data + bag->blockBytes && bag->cursor > last->data &&
         bag->cursor <= bag->blockEnd &&
         static_cast<size_t>(bag->cursor - last->data) % bag->elementSize == 0;
}

} // namespace torvane
