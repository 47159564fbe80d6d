// Names in a hash table that grows and shrinks, against the language's own map; and names that are looked up
// among the functions.
#include "limited_heap.h"
#include "input.h"

#include "algorithms/hash_table.h"
#include "runtime/memory.h"
#include "support/named_rows.h"

#include <map>

using namespace torvane;
using namespace torvane::test;

namespace {

using Model = std::map<std::string, uintptr_t>;

uintptr_t wordOf(const std::string &name) { return reinterpret_cast<uintptr_t>(name.c_str()); }

// Few letters and short, so that names come again; now and then long ones.
std::string takeName(Input &input) {
  const auto raw = input.take<uint8_t>();
  std::string name(raw < 250 ? raw % 4u : raw, ' ');
  for (char &c : name) c = char('a' + input.take<uint8_t>() % 26);
  return name;
}

void store(HashTable *table, Model &model, const std::string &name, uintptr_t value) {
  mint wasInserted;
  HashTable_findOrInsert(table, wordOf(name), &wasInserted)->value = value;
  require((wasInserted != 0) == (model.count(name) == 0));
  model[name] = value;
}

void step(Input &input, HashTable *table, Model &model) {
  const auto choice = input.take<uint8_t>();
  const std::string name = takeName(input);
  if (choice < 140) return store(table, model, name, choice + 1u);
  if (choice < 220) return require(HashTable_remove(table, wordOf(name)) == mint(model.erase(name)));
  if (choice < 222) {
    HashTable_clear(table, 0);
    return model.clear();
  }
  require(HashTable_get(table, wordOf(name)) == (model.count(name) != 0 ? model[name] : 0));
}

void expectSame(const HashTable *table, const Model &model) {
  require(isValidHashTable(table) && table->count == mint(model.size()));
  for (const auto &[name, value] : model) require(HashTable_get(table, wordOf(name)) == value);
}

void expectFunction(const std::string &name) {
  RuntimeFunctionHandler expected = unavailableRuntimeFunction;
  for (const NamedRow &row : kNamedRows)
    if (name == row.name) expected = row.handler;
  require(lookupRuntimeFunction(name.c_str()) == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  startLimited();
  Input input(bytes, count);
  const uint32_t before = usedBytesOfThisThread();
  const auto text = std::string(reinterpret_cast<const char *>(bytes), count);
  expectFunction(text.substr(0, text.find('\0')));
  HashTable *table = HashTable_new(
      input.take<uint8_t>(), hashStringKey, copyStringKey, compareStringKey, [](HashNode *) {},
      releaseStringKey);
  Model model;
  while (!input.isEmpty()) step(input, table, model);
  expectSame(table, model);
  HashTable_clear(table, 1);
  require(usedBytesOfThisThread() == before);
  return 0;
}
