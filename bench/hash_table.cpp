// The hash table beside std::unordered_map, the chained peer, and the hash functions by length. Both tables
// hash 4-byte keys with the same function and grow at two keys a bucket.
#include "algorithms/hash_functions.h"
#include "algorithms/hash_table.h"
#include "table.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

using bench::repeated;
using bench::Run;
using torvane::HashNode;
using torvane::KeyedHashTable;

namespace {

using Keys = std::vector<uint32_t>;

struct SameHash {
  size_t operator()(uint32_t key) const { return torvane::hashMurmur3(&key, 4); }
};
using Map = std::unordered_map<uint32_t, uintptr_t, SameHash>;

struct Delete {
  void operator()(KeyedHashTable *table) const { torvane::KeyedHashTable_delete(table); }
};
using Table = std::unique_ptr<KeyedHashTable, Delete>;
using Peer = std::unique_ptr<Map>;

void make(Table *table, const Keys &keys) {
  table->reset(torvane::KeyedHashTable_new(1, 7, 0, nullptr));
  for (const uint32_t key : keys)
    torvane::KeyedHashTable_findOrInsert(table->get(), &key, nullptr)->value = key;
}

void make(Peer *peer, const Keys &keys) {
  *peer = std::make_unique<Map>();
  (*peer)->max_load_factor(2.0f);
  for (const uint32_t key : keys) (*peer)->try_emplace(key, key);
}

volatile uintptr_t sink;

void findAll(const Table &table, const Keys &keys) {
  uintptr_t sum = 0;
  for (const uint32_t key : keys)
    if (const HashNode *node = torvane::KeyedHashTable_find(table.get(), &key)) sum += node->value;
  sink = sum;
}

void findAll(const Peer &peer, const Keys &keys) {
  uintptr_t sum = 0;
  for (const uint32_t key : keys)
    if (const auto found = peer->find(key); found != peer->end()) sum += found->second;
  sink = sum;
}

// Tables of the same keys: one for each call of a round, made and cleared by it or around it.
template <class Each> class Tables {
public:
  explicit Tables(const Keys &all) : keys(all) {}
  void makeAll(int calls) {
    tables.resize(size_t(calls));
    for (Each &each : tables) make(&each, keys);
  }

  bench::Candidate filling(const char *name) {
    return {name, [this](int calls) { makeAll(calls); }, [this](int) { tables.clear(); }};
  }
  bench::Candidate clearing(const char *name) {
    return {name, [this](int) { tables.clear(); }, [this](int calls) { makeAll(calls); }};
  }
  bench::Candidate finding(const char *name, const Keys &wanted) {
    return {name, repeated([this, &wanted] { findAll(tables[0], wanted); }), [this](int) {
              if (tables.empty()) makeAll(1);
            }};
  }

private:
  const Keys &keys;
  std::vector<Each> tables;
};

Keys someKeys(size_t count) {
  std::mt19937 random(17);
  Keys keys(count);
  std::generate(keys.begin(), keys.end(), [&] { return uint32_t(random()); });
  return keys;
}

void compareTables(size_t count) {
  const Keys all = someKeys(2 * count);
  const auto middle = all.begin() + static_cast<ptrdiff_t>(count);
  const Keys keys(all.begin(), middle), absent(middle, all.end());
  Keys shuffled = keys;
  std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(3));
  Tables<Table> ours(keys);
  Tables<Peer> peer(keys);
  constexpr const char *kPeer = "unordered_map";
  const double n = double(count);
  bench::compare({"fill", n}, {ours.filling("ours"), peer.filling(kPeer)});
  bench::compare({"clear", n}, {ours.clearing("ours"), peer.clearing(kPeer)});
  bench::compare({"find", n}, {ours.finding("ours", shuffled), peer.finding(kPeer, shuffled)});
  bench::compare({"miss", n}, {ours.finding("ours", absent), peer.finding(kPeer, absent)});
}

void timeFunction(const char *name, torvane::ByteHash hash, uint32_t length) {
  const std::vector<unsigned char> bytes(length, 'x');
  const bench::Work work = {length >= 1024 ? double(length) : 0};
  bench::compare({std::string(name) + " of " + std::to_string(length) + " bytes, a call", 1, work},
                 {{"ours", repeated([&] { sink = hash(bytes.data(), length); })}});
}

} // namespace

int main(int argc, char **argv) {
  bench::start("hash_table", "ns a key", argc, argv, 21);
  for (const size_t count : {100u, 10000u, 1000000u}) compareTables(count);
  for (const uint32_t length : {4u, 64u, 65536u}) {
    timeFunction("Murmur3", torvane::hashMurmur3, length);
    timeFunction("SIP24", torvane::hashSip24, length);
    timeFunction("CRC-32", torvane::hashCrc32, length);
    timeFunction("FNV-1a", torvane::hashFnv32, length);
  }
}
