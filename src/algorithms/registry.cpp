// The table is filled once in the order of its rows, under the hash function that is selected then. Stage 0
// takes it out of sight and stage 1 puts it back: a restart builds it anew only under another hash function,
// and frees nothing, because the memory may be of another allocator state by then.
#include "registry.h"

#include "../runtime/memory.h"
#include "../runtime/startup.h"
#include "hash_table.h"
#include "hash_table_settings.h"

#include <atomic>

namespace torvane {

constexpr RuntimeFunctionRow kRuntimeFunctions[kRuntimeFunctionCount] = {
#define TORVANE_FUNCTION(name, handler, kind, counts, ...) {#name, {handler, kind}, counts},
#include "functions.def"
#undef TORVANE_FUNCTION
};
static_assert(kRuntimeFunctions[kRuntimeFunctionCount - 1].name != nullptr);

namespace {

constexpr mint kSizeHint = 31;

constinit HashTable *table = nullptr;
constinit ByteHash hashOfTable = nullptr;
constinit std::atomic<HashTable *> visibleTable{nullptr};

uintptr_t wordOf(const void *pointer) { return reinterpret_cast<uintptr_t>(pointer); }

void insert(HashTable *into, const char *name, const RuntimeFunctionEntry &entry) {
  auto *copy = static_cast<RuntimeFunctionEntry *>(allocate(sizeof entry, 0, kFatal));
  *copy = entry;
  HashTable_insertValue(into, wordOf(name), wordOf(copy));
}

// The entry goes with its node.
void releaseNamedEntry(HashNode *node) {
  free(reinterpret_cast<void *>(node->value));
  releaseStringKey(node);
}

HashTable *newTable() {
  HashTable *made = HashTable_new(
      kSizeHint, hashStringKey, copyStringKey, compareStringKey, [](HashNode *) {}, releaseNamedEntry);
  for (const RuntimeFunctionRow &row : kRuntimeFunctions) insert(made, row.name, row.entry);
  return made;
}

const RuntimeFunctionEntry *entryOf(const char *name) {
  const HashTable *names = visibleTable.load(std::memory_order_relaxed);
  if (name == nullptr || names == nullptr) return nullptr;
  return reinterpret_cast<const RuntimeFunctionEntry *>(HashTable_get(names, wordOf(name)));
}

} // namespace

void initializeRuntimeFunctionTable(mint stage) {
  if (stage == 0) visibleTable.store(nullptr, std::memory_order_relaxed);
  if (stage != 1) return;
  const ByteHash selected = hashFunction.load(std::memory_order_relaxed);
  if (table == nullptr || hashOfTable != selected) table = newTable();
  hashOfTable = selected;
  visibleTable.store(table, std::memory_order_relaxed);
}

void tearDownRuntimeFunctionTable() {
  visibleTable.store(nullptr, std::memory_order_relaxed);
  if (table != nullptr) HashTable_clear(table, 1);
  table = nullptr;
}

RuntimeFunctionHandler lookupRuntimeFunction(const char *name) {
  const RuntimeFunctionEntry *entry = entryOf(name);
  return entry != nullptr ? entry->function : unavailableRuntimeFunction;
}

mint lookupRuntimeFunctionKind(const char *name) {
  const RuntimeFunctionEntry *entry = entryOf(name);
  return entry != nullptr ? entry->kind : 0;
}

void registerRuntimeFunction(const char *name, RuntimeFunctionHandler function, mint kind) {
  if (table != nullptr) insert(table, name, {function, kind});
}

mint unavailableRuntimeFunction(TorvaneLibraryData *, mint, void *const *, void *) { return kWrongArguments; }

// The plain random function, which this library has only in its typed forms.
mint handleRandom(TorvaneLibraryData *, mint, void *const *, void *) { return kNotInThisForm; }

} // namespace torvane
