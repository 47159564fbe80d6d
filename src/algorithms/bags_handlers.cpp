// Bags by name: a bag is its number in the table that the caller's record owns. Elements are taken as they
// are, bytes of the bag's type.
#include "../runtime/library_data.h"
#include "../tensor/parts.h"
#include "bags.h"
#include "handler.h"
#include "result_tensor.h"

#include <string.h>

namespace torvane {

namespace {

// Null where there is no such bag; the number is argument 0.
Bag *bagOfCall(const TorvaneLibraryData *libraryData, void *const *arguments) {
  if (libraryData == nullptr) return nullptr;
  return BagTable_get(runtimeState(libraryData)->bagTable, integerArgument(arguments, 0));
}

// Of 4, 8 or 16 bytes: what the compiler knows it copies without a call.
void copyElement(void *target, const void *source, uint32_t elementSize) {
  switch (elementSize) {
  case sizeof(mint):
    memcpy(target, source, sizeof(mint));
    return;
  case sizeof(mreal):
    memcpy(target, source, sizeof(mreal));
    return;
  default:
    memcpy(target, source, sizeof(mcomplex));
    return;
  }
}

void appendElement(Bag *bag, const void *source) {
  if (bag->cursor >= bag->blockEnd) return Bag_append(bag, 1, source);
  copyElement(bag->cursor, source, bag->elementSize);
  bag->cursor += bag->elementSize;
}

// The element at 0-based `index`.
const char *elementAt(const Bag *bag, int64_t index) {
  const BagBlock *block = bag->firstBlock;
  for (int64_t i = index / kBagBlockElements; i > 0; --i) block = block->next;
  return block->data + static_cast<size_t>(index % kBagBlockElements) * bag->elementSize;
}

constexpr mint kNoSuchPart = -1;

mint partAtPosition(const Bag *bag, mint position, void *result) {
  const int64_t count = Bag_elementCount(bag);
  const int64_t index = position < 0 ? position + count : int64_t{position} - 1;
  if (index < 0 || index >= count) return kNoSuchPart;
  copyElement(result, elementAt(bag, index), bag->elementSize);
  return kSuccess;
}

// The elements of a checked selection into a slot that may hold the vector which selects them.
mint extract(MTensor **slot, const Bag *bag, const MTensor *selector, const PartSpec *part) {
  MTensor *all = nullptr;
  mint status = Bag_toTensor(&all, bag);
  ResultTensor result(slot, {selector});
  const mint count = static_cast<mint>(part->count);
  if (status == kSuccess) status = result.allocate(bag->type, 1, &count);
  if (status == kSuccess) {
    MTensor_copyParts(all, result.get(), 1, part, kExtract);
    result.commit();
  }
  MTensor_delete(all);
  return status;
}

mint partOfVector(const Bag *bag, mint kind, void *selector, void *result) {
  const int64_t count = Bag_elementCount(bag);
  if (count > INT32_MAX) return kSizeFailed;
  const mint extent = static_cast<mint>(count);
  PartSelectors selectors(1, &kind, &selector);
  mint rank;
  if (!MTensor_checkPartSpecs(1, &extent, 1, selectors.get(), &rank, nullptr)) return kValueFailed;
  return extract(tensorResult(result), bag, *static_cast<MTensor *const *>(selector), selectors.get());
}

mint partOfBag(const Bag *bag, mint kind, void *const *arguments, void *result) {
  switch (kind) {
  case TORVANE_PART_POSITION:
    return partAtPosition(bag, integerArgument(arguments, 2), result);
  case TORVANE_PART_LIST:
  case TORVANE_PART_SPAN:
    return partOfVector(bag, kind, arguments[2], result);
  case TORVANE_PART_ALL:
    return Bag_toTensor(tensorResult(result), bag);
  default:
    return kNoSuchPart;
  }
}

} // namespace

mint handleBag(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 || libraryData == nullptr) return kWrongArguments;
  const mint type = integerArgument(arguments, 0);
  if (type < TORVANE_TYPE_INTEGER || type > TORVANE_TYPE_COMPLEX) return kWrongType;
  BagTable *&table = runtimeState(libraryData)->bagTable;
  if (table == nullptr) table = BagTable_new();
  storeResult(result, BagTable_add(table, type));
  return kSuccess;
}

mint handleStuffBagScalar(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments,
                          void *) {
  if (argumentCount < 2 || argumentCount > 3) return kWrongArguments;
  if (argumentCount == 3 && integerArgument(arguments, 2) < 0) return kWrongRank;
  Bag *bag = bagOfCall(libraryData, arguments);
  if (bag == nullptr) return kWrongArguments;
  appendElement(bag, arguments[1]);
  return kSuccess;
}

mint handleStuffBag(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments, void *) {
  if (argumentCount < 2 || argumentCount > 3) return kWrongArguments;
  const mint maxRank = argumentCount == 3 ? integerArgument(arguments, 2) : INT32_MAX;
  const MTensor *tensor = tensorArgument(arguments, 1);
  if (tensor->rank > maxRank) return kWrongRank;
  Bag *bag = bagOfCall(libraryData, arguments);
  if (bag == nullptr) return kWrongArguments;
  if (tensor->elementCount > 0 && elementWidth(tensor->type) < bag->elementSize) return kWrongType;
  Bag_append(bag, tensor->elementCount, tensor->data);
  return kSuccess;
}

mint handleBagPart(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments,
                   void *result) {
  if (argumentCount < 2 || argumentCount > 3) return kWrongArguments;
  const mint kind = integerArgument(arguments, 1);
  if (argumentCount != 3 && kind != TORVANE_PART_ALL) return kWrongArguments;
  const Bag *bag = bagOfCall(libraryData, arguments);
  return bag != nullptr ? partOfBag(bag, kind, arguments, result) : mint{kWrongArguments};
}

} // namespace torvane
