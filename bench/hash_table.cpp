// The hash table beside std::unordered_map, the chained peer, and the hash functions by length. Both tables
// hash 4-byte keys with the same function; rounds alternate between them and the median round counts. Prints
// nanoseconds for one operation and our ratio to the peer.
//
//   bench_hash_table [rounds]
#include "algorithms/hash_functions.h"
#include "algorithms/hash_table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <unordered_map>
#include <vector>

using namespace torvane;

namespace {

struct SameHash {
  size_t operator()(uint32_t key) const { return hashMurmur3(&key, 4); }
};
using Peer = std::unordered_map<uint32_t, uintptr_t, SameHash>;

volatile uintptr_t sink;

template <class Body> double nanoseconds(size_t operations, Body body) {
  const auto start = std::chrono::steady_clock::now();
  sink = body();
  const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
  return spent.count() / double(operations);
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

std::vector<uint32_t> someKeys(size_t count) {
  std::mt19937 random(17);
  std::vector<uint32_t> keys(count);
  for (auto &key : keys) key = static_cast<uint32_t>(random());
  return keys;
}

struct Row {
  const char *name;
  std::vector<double> ours, peer;
};

KeyedHashTable *filled(const std::vector<uint32_t> &keys) {
  KeyedHashTable *table = KeyedHashTable_new(1, 7, 0, nullptr);
  for (const uint32_t key : keys) KeyedHashTable_findOrInsert(table, &key, nullptr)->value = key;
  return table;
}

uintptr_t findAll(const KeyedHashTable *table, const std::vector<uint32_t> &keys) {
  uintptr_t sum = 0;
  for (const uint32_t key : keys)
    if (const HashNode *node = KeyedHashTable_find(table, &key)) sum += node->value;
  return sum;
}

uintptr_t findAll(const Peer &table, const std::vector<uint32_t> &keys) {
  uintptr_t sum = 0;
  for (const uint32_t key : keys)
    if (const auto found = table.find(key); found != table.end()) sum += found->second;
  return sum;
}

void fillPeer(Peer *table, const std::vector<uint32_t> &keys) {
  table->max_load_factor(2.0f); // as ours
  for (const uint32_t key : keys) table->try_emplace(key, key);
}

void runTables(size_t count, int rounds) {
  const std::vector<uint32_t> all = someKeys(2 * count);
  const std::vector<uint32_t> keys(all.begin(), all.begin() + static_cast<ptrdiff_t>(count));
  std::vector<uint32_t> shuffled = keys;
  std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(3));
  const std::vector<uint32_t> absent(all.begin() + static_cast<ptrdiff_t>(count), all.end());
  Row rows[4] = {{"fill", {}, {}}, {"find", {}, {}}, {"miss", {}, {}}, {"clear", {}, {}}};
  for (int round = 0; round < rounds; ++round) {
    KeyedHashTable *ours = nullptr;
    Peer *peer = nullptr;
    rows[0].ours.push_back(nanoseconds(count, [&] { return ours = filled(keys), uintptr_t{0}; }));
    rows[0].peer.push_back(nanoseconds(count, [&] { return fillPeer(peer = new Peer, keys), uintptr_t{0}; }));
    rows[1].ours.push_back(nanoseconds(count, [&] { return findAll(ours, shuffled); }));
    rows[1].peer.push_back(nanoseconds(count, [&] { return findAll(*peer, shuffled); }));
    rows[2].ours.push_back(nanoseconds(count, [&] { return findAll(ours, absent); }));
    rows[2].peer.push_back(nanoseconds(count, [&] { return findAll(*peer, absent); }));
    rows[3].ours.push_back(nanoseconds(count, [&] { return KeyedHashTable_delete(ours), uintptr_t{0}; }));
    rows[3].peer.push_back(nanoseconds(count, [&] { return delete peer, uintptr_t{0}; }));
  }
  for (const Row &row : rows)
    std::printf("%8zu keys  %-6s ours %7.1f ns   std::unordered_map %7.1f ns   ratio %.2f\n", count, row.name,
                median(row.ours), median(row.peer), median(row.ours) / median(row.peer));
}

void runFunctions(int rounds) {
  const std::vector<unsigned char> bytes(1 << 16, 'x');
  struct {
    const char *name;
    ByteHash hash;
  } functions[] = {
      {"Murmur3", hashMurmur3}, {"SIP24", hashSip24}, {"CRC-32", hashCrc32}, {"FNV-1a", hashFnv32}};
  for (const auto &function : functions)
    for (const uint32_t length : {4u, 16u, 64u, 1024u, 65536u}) {
      const uint32_t calls = 4000000 / (length + 40);
      std::vector<double> times;
      for (int round = 0; round < rounds; ++round)
        times.push_back(nanoseconds(calls, [&] {
          uintptr_t sum = 0;
          for (uint32_t i = 0; i < calls; ++i) sum += function.hash(bytes.data(), length);
          return sum;
        }));
      std::printf("%-8s %6u bytes %9.1f ns  %6.2f bytes/ns\n", function.name, length, median(times),
                  length / median(times));
    }
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 11;
  for (const size_t count : {100u, 10000u, 1000000u})
    runTables(count, count > 100000 ? std::min(rounds, 5) : rounds);
  runFunctions(rounds);
}
