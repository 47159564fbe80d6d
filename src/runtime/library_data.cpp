// Making and freeing the record that a compiled library receives.
//
// A record owns its private state, and at version 1 its runtime table, which is a word shorter than everybody
// else's; all other tables are constants. The first record of a process starts the library, and after a
// record was freed the next one starts it again: hosts rely on it. What lives survives that.
#include "../algorithms/bags.h"
#include "../random/block_handlers.h"
#include "library_data_tables.h"
#include "memory.h"
#include "startup.h"
#include <torvane/startup.h>

#include <atomic>
#include <string.h>

namespace torvane {

namespace {

// Compiled libraries go by position alone.
#define TORVANE_WORD(Record, name, number)                                                                   \
  static_assert(offsetof(Record, name) == (number - 1) * sizeof(void *))
TORVANE_WORD(TorvaneLibraryData, freeBlock, 1);
TORVANE_WORD(TorvaneLibraryData, setInteger, 8);
TORVANE_WORD(TorvaneLibraryData, getSubTensor, 15);
TORVANE_WORD(TorvaneLibraryData, integerData, 20);
TORVANE_WORD(TorvaneLibraryData, abortQ, 24);
TORVANE_WORD(TorvaneLibraryData, runtimeState, 28);
TORVANE_WORD(TorvaneLibraryData, runtime, 29);
TORVANE_WORD(TorvaneLibraryData, version, 30);
TORVANE_WORD(TorvaneLibraryData, hostServices, 35);
TORVANE_WORD(TorvaneLibraryData, sparse, 37);
TORVANE_WORD(TorvaneLibraryData, pixels, 38);
TORVANE_WORD(TorvaneLibraryData, numericSecond, 48);
TORVANE_WORD(TorvaneLibraryData, numeric, 49);
TORVANE_WORD(TorvaneRuntimeTable, resetState, 3);
TORVANE_WORD(TorvaneRuntimeTable, getParts, 9);
TORVANE_WORD(TorvaneRuntimeTable, unary, 14);
TORVANE_WORD(TorvaneRuntimeTable, compareReals, 19);
TORVANE_WORD(TorvaneRuntimeTable, lookupRuntimeFunction, 25);
TORVANE_WORD(TorvaneRuntimeTable, fromTable, 28);
TORVANE_WORD(TorvaneSparseTable, properties, 11);
TORVANE_WORD(TorvanePixelTable, rank, 8);
TORVANE_WORD(TorvanePixelTable, interleaved, 15);
TORVANE_WORD(TorvanePixelTable, bits, 20);
TORVANE_WORD(TorvanePixelTable, getBit, 25);
TORVANE_WORD(TorvanePixelTable, setBit, 30);
TORVANE_WORD(TorvaneNumericTable, refCount, 6);
#undef TORVANE_WORD
static_assert(sizeof(TorvaneLibraryData) == 49 * sizeof(void *));
static_assert(sizeof(TorvaneRuntimeTable) == 28 * sizeof(void *));
static_assert(sizeof(TorvaneHostServiceTable) == 38 * sizeof(void *));
static_assert(sizeof(TorvaneSparseTable) == 16 * sizeof(void *));
static_assert(sizeof(TorvanePixelTable) == 34 * sizeof(void *));
static_assert(sizeof(TorvaneNumericTable) == 12 * sizeof(void *));

constexpr mint kLatestVersion = 5;
constexpr mint kVersionOfShortTable = 1;
constexpr uint32_t kShortTableBytes = offsetof(TorvaneRuntimeTable, fromTable);

// Whether the next record starts the library.
constinit std::atomic<mint> libraryDataFresh{1};

template <class Content> Content *newCopy(const Content *content, uint32_t bytes = sizeof(Content)) {
  return static_cast<Content *>(memcpy(allocate(bytes, 0, kFatal), content, bytes));
}

const TorvaneRuntimeTable *runtimeTableOf(mint version) {
  return version == kVersionOfShortTable ? newCopy(&kRuntimeTable, kShortTableBytes) : &kRuntimeTable;
}

void freeRuntimeTable(const TorvaneLibraryData *record) {
  if (record->runtime != &kRuntimeTable) torvane::free(const_cast<TorvaneRuntimeTable *>(record->runtime));
}

void setTables(TorvaneLibraryData *record, mint version) {
  const RuntimeState empty = {};
  record->runtimeState = newCopy(&empty);
  record->runtime = runtimeTableOf(version);
  record->hostServices = &kHostServiceTable;
  record->sparse = &kSparseTable;
  record->pixels = &kPixelTable;
  record->numeric = &kNumericTable;
  record->numericSecond = &kNumericSecondTable;
}

} // namespace

void resetRuntimeState(TorvaneLibraryData *record) {
  RuntimeState *state = runtimeState(record);
  endRandomBlocks(record);
  BagTable_delete(state->bagTable);
  state->bagTable = nullptr;
  state->arithmeticFlags = 0;
}

} // namespace torvane

using namespace torvane;

// There is nothing below version 0 to leave out: a negative one has the functions of version 0.
TorvaneLibraryData *TorvaneLibraryData_new(mint version) {
  if (libraryDataFresh.exchange(0, std::memory_order_relaxed) != 0) InitializeRuntimeLibrary();
  const TorvaneLibraryData noFunctions = {};
  TorvaneLibraryData *record = newCopy(version > kLatestVersion ? &noFunctions : &kLibraryDataFunctions);
  record->version = version;
  setTables(record, version);
  return record;
}

void TorvaneLibraryData_free(TorvaneLibraryData *record) {
  if (record == nullptr) return;
  resetRuntimeState(record);
  torvane::free(record->runtimeState);
  freeRuntimeTable(record);
  torvane::free(record);
  libraryDataFresh.store(1, std::memory_order_relaxed);
}
