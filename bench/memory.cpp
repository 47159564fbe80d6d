// The allocator beside its peers: the C library's, and mimalloc and jemalloc if they are installed. All live
// in this one process and are called through function pointers; rounds alternate between them and the median
// round counts, as two threads are as often luckier than usual as unluckier.
#include "table.h"

#include <torvane/memory.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <functional>
#include <pthread.h>
#include <random>
#include <sched.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

struct Allocator {
  const char *name;
  void *(*take)(size_t);
  void (*give)(void *);
};

// A peer is reached through one more jump, as ours is, so that the calls cost the same.
struct Peer {
  void *(*take)(size_t);
  void (*give)(void *);
};
Peer libc = {std::malloc, std::free}, mimalloc, jemalloc;

template <Peer &peer> void *takePeer(size_t bytes) { return peer.take(bytes); }
template <Peer &peer> void givePeer(void *block) { peer.give(block); }
void *takeOurs(size_t bytes) { return Malloc_fun(static_cast<uint32_t>(bytes)); }
void giveOurs(void *block) { Free_fun(block); }

// Loads a peer's shared library, its names kept apart from everybody else's.
bool loadPeer(Peer &peer, const char *library, const char *take, const char *give) {
  void *handle = dlopen(library, RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  if (handle == nullptr) {
    std::fprintf(stderr, "%s left out: %s\n", library, dlerror());
    return false;
  }
  peer = {reinterpret_cast<void *(*)(size_t)>(dlsym(handle, take)),
          reinterpret_cast<void (*)(void *)>(dlsym(handle, give))};
  return peer.take != nullptr && peer.give != nullptr;
}

std::vector<Allocator> allocators() {
  std::vector<Allocator> all = {{"ours", takeOurs, giveOurs}, {"glibc", takePeer<libc>, givePeer<libc>}};
  if (loadPeer(mimalloc, "libmimalloc.so.2", "mi_malloc", "mi_free"))
    all.push_back({"mimalloc", takePeer<mimalloc>, givePeer<mimalloc>});
  if (loadPeer(jemalloc, "libjemalloc.so.2", "malloc", "free"))
    all.push_back({"jemalloc", takePeer<jemalloc>, givePeer<jemalloc>});
  return all;
}

using Clock = std::chrono::steady_clock;

double nanosecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

void touch(void *block) { *static_cast<volatile uint64_t *>(block) = 1; }

double pairs(const Allocator &a, size_t bytes) {
  constexpr int kPairs = 100000;
  const auto start = Clock::now();
  for (int i = 0; i < kPairs; ++i) {
    void *block = a.take(bytes);
    touch(block);
    a.give(block);
  }
  return nanosecondsSince(start) / kPairs;
}

// Nanoseconds for an allocation and its release.
double bursts(const Allocator &a, size_t bytes) {
  constexpr int kBursts = 800;
  std::array<void *, 64> blocks;
  const auto start = Clock::now();
  for (int i = 0; i < kBursts; ++i) {
    for (void *&block : blocks) touch(block = a.take(bytes));
    for (void *block : blocks) a.give(block);
  }
  return nanosecondsSince(start) / (kBursts * blocks.size());
}

// Puts the calling thread on one processor: two threads that the scheduler happens to keep on the same one
// measure the scheduler.
void pinTo(int processor) {
  cpu_set_t set;
  CPU_ZERO(&set);
  CPU_SET(processor, &set);
  pthread_setaffinity_np(pthread_self(), sizeof set, &set);
}

void unpin() {
  cpu_set_t set;
  std::memset(&set, 0xFF, sizeof set);
  pthread_setaffinity_np(pthread_self(), sizeof set, &set);
}

constexpr int kReplacements = 400000;

// Blocks of 16 to 1024 bytes, small ones more often, replaced at random.
double replaceAtRandom(const Allocator &a, uint32_t seed) {
  std::mt19937 random(seed);
  std::vector<std::pair<uint32_t, uint32_t>> plan(kReplacements);
  for (auto &[slot, bytes] : plan) {
    slot = static_cast<uint32_t>(random() % 10000);
    bytes = 16u << (random() % 6);
    bytes += static_cast<uint32_t>(random() % bytes);
  }
  std::vector<void *> blocks(10000);
  for (void *&block : blocks) block = a.take(16 + random() % 512);
  const auto start = Clock::now();
  for (auto [slot, bytes] : plan) {
    a.give(blocks[slot]);
    touch(blocks[slot] = a.take(bytes));
  }
  const double elapsed = nanosecondsSince(start);
  for (void *block : blocks) a.give(block);
  return elapsed / kReplacements;
}

// Both threads' replacements count, so that perfect scaling halves the figure of one thread.
double replaceOnTwoThreads(const Allocator &a) {
  double first = 0, second = 0;
  pinTo(0);
  std::thread other([&] {
    pinTo(1);
    second = replaceAtRandom(a, 1);
  });
  first = replaceAtRandom(a, 2);
  other.join();
  unpin();
  return (first + second) / 4;
}

// Spins a little, then lets others run: the machine may have fewer processors free than the figure needs.
template <class Condition> void waitUntil(Condition holds) {
  for (int spins = 0; !holds(); ++spins) spins < 2000 ? __builtin_ia32_pause() : std::this_thread::yield();
}

// One thread allocates, the other releases; blocks travel in batches of 64 through a ring.
double handOver(const Allocator &a, size_t bytes) {
  constexpr uint64_t kBlocks = 400000, kRing = 4096, kBatch = 64;
  static std::array<void *, kRing> ring;
  alignas(64) std::atomic<uint64_t> written{0};
  alignas(64) std::atomic<uint64_t> read{0};
  const auto start = Clock::now();
  pinTo(0);
  std::thread consumer([&] {
    pinTo(1);
    for (uint64_t i = 0; i < kBlocks; i += kBatch) {
      waitUntil([&] { return written.load(std::memory_order_acquire) >= i + kBatch; });
      for (uint64_t j = i; j < i + kBatch; ++j) a.give(ring[j % kRing]);
      read.store(i + kBatch, std::memory_order_release);
    }
  });
  for (uint64_t i = 0; i < kBlocks; i += kBatch) {
    waitUntil([&] { return i + kBatch - read.load(std::memory_order_acquire) <= kRing; });
    for (uint64_t j = i; j < i + kBatch; ++j) touch(ring[j % kRing] = a.take(bytes));
    written.store(i + kBatch, std::memory_order_release);
  }
  consumer.join();
  unpin();
  return nanosecondsSince(start) / kBlocks;
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

using Measure = std::function<double(const Allocator &)>;

void compare(const std::string &what, double aim, const std::vector<Allocator> &all, const Measure &measure) {
  if (!bench::isWanted(what)) return;
  std::vector<std::vector<double>> times(all.size());
  for (int round = 0; round < bench::rounds(); ++round)
    for (size_t i = 0; i < all.size(); ++i) times[i].push_back(measure(all[i]));
  std::vector<bench::Time> medians;
  for (size_t i = 0; i < all.size(); ++i) medians.push_back({all[i].name, median(times[i])});
  bench::print({what, 1, {}, aim}, medians);
}

} // namespace

// jemalloc wants thread-local storage that the loader must set aside at start.
void restartWithStaticStorage(char **argv) {
  if (std::getenv("GLIBC_TUNABLES") != nullptr) return;
  setenv("GLIBC_TUNABLES", "glibc.rtld.optional_static_tls=8192", 1);
  execv("/proc/self/exe", argv);
}

constexpr size_t kSizes[] = {16, 64, 256, 1024, 4096, 16384, 65520, 65536};
constexpr size_t kHandedSizes[] = {16, 64, 256, 1024};

int main(int argc, char **argv) {
  restartWithStaticStorage(argv);
  bench::start("memory", "ns an allocation and its release", argc, argv, 9);
  const auto all = allocators();
  for (const size_t bytes : kSizes)
    compare("pairs, " + std::to_string(bytes) + " bytes", 0.9, all, [&](auto &a) { return pairs(a, bytes); });
  for (const size_t bytes : kSizes)
    compare("bursts of 64, " + std::to_string(bytes) + " bytes", 0.9, all,
            [&](auto &a) { return bursts(a, bytes); });
  compare("10,000 blocks at random", 0, all, [&](auto &a) { return replaceAtRandom(a, 7); });
  compare("10,000 blocks at random, two threads", 0, all, [&](auto &a) { return replaceOnTwoThreads(a); });
  for (const size_t bytes : kHandedSizes)
    compare("handed over, " + std::to_string(bytes) + " bytes", 0.9, all,
            [&](auto &a) { return handOver(a, bytes); });
}
