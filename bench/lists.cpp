// Rearranging tensors beside memcpy of as many bytes as the result has, both in this process: rounds
// alternate and the best round of each counts. Prints nanoseconds for a KiB of the result, and our ratio to
// memcpy.
//
//   bench_lists [rounds]
#include "algorithms/registry.h"
#include <torvane/lists.h>
#include <torvane/startup.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

using namespace torvane;

namespace {

using Clock = std::chrono::steady_clock;
using Extents = std::vector<mint>;

double nanoseconds(const std::function<void()> &run, int count) {
  const auto start = Clock::now();
  for (int i = 0; i < count; ++i) {
    run();
    asm volatile("" : : : "memory");
  }
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / count;
}

MTensor *newTensor(mint type, const Extents &extents) {
  MTensor *tensor = CreatePackedArray(type, static_cast<mint>(extents.size()), extents.data());
  MTensor_initialize(tensor, 3);
  return tensor;
}

MTensor *newVector(const Extents &entries) {
  MTensor *vector = newTensor(TORVANE_TYPE_INTEGER, {static_cast<mint>(entries.size())});
  std::copy(entries.begin(), entries.end(), static_cast<mint *>(vector->data));
  return vector;
}

// The arguments of a named function: tensors, and integers, which are kept apart.
struct Call {
  explicit Call(const char *name) : function(lookupRuntimeFunction(name)) {}
  RuntimeFunctionHandler function;
  std::vector<MTensor *> tensors;
  std::vector<mint> integers;
  std::string order; // T and i
  MTensor *slot = nullptr;

  Call &tensor(MTensor *argument) { return tensors.push_back(argument), order += 'T', *this; }
  Call &integer(mint argument) { return integers.push_back(argument), order += 'i', *this; }

  mint run() {
    void *arguments[16];
    size_t t = 0, n = 0;
    for (size_t i = 0; i < order.size(); ++i)
      arguments[i] = order[i] == 'T' ? static_cast<void *>(&tensors[t++]) : &integers[n++];
    return function(nullptr, static_cast<mint>(order.size()), arguments, &slot);
  }
};

size_t bytesOf(const MTensor *tensor) {
  return static_cast<size_t>(tensor->elementCount) * MTensor_typeSizeTable[tensor->type];
}

// The blocks that a call moves, for a loop with one memcpy each; none where they are not all alike.
struct Blocks {
  size_t count = 0, bytes = 0;
  ptrdiff_t pitch = 0;
};

double leastTime(int rounds, int count, const std::function<void()> &run) {
  double least = 1e300;
  for (int i = 0; i < rounds; ++i) least = std::min(least, nanoseconds(run, count));
  return least;
}

void measure(const char *what, Call call, int rounds, Blocks blocks = {}) {
  if (call.run() != 0) {
    std::printf("%-44s FAILED\n", what);
    return;
  }
  const size_t bytes = bytesOf(call.slot), sourceBytes = std::max(bytes, bytesOf(call.tensors[0]));
  std::vector<char> from(sourceBytes, 1), to(bytes, 2);
  const char *start = blocks.pitch < 0 ? from.data() + sourceBytes - blocks.bytes : from.data();
  const auto copyBlocks = [&] {
    for (size_t i = 0; i < blocks.count; ++i)
      std::memcpy(to.data() + i * blocks.bytes, start + static_cast<ptrdiff_t>(i) * blocks.pitch,
                  blocks.bytes);
  };
  const int count = static_cast<int>(std::max<size_t>(1, 1000000 / bytes));
  double ours = 1e300, whole = 1e300, loop = 1e300;
  for (int i = 0; i < rounds; ++i) {
    ours = std::min(ours, leastTime(3, count, [&] { call.run(); }));
    whole = std::min(whole, leastTime(3, count, [&] { std::memcpy(to.data(), from.data(), bytes); }));
    if (blocks.count > 0) loop = std::min(loop, leastTime(3, count, copyBlocks));
  }
  const double kib = static_cast<double>(bytes) / 1024;
  std::printf("%-44s %7.0f KiB %7.1f ns/KiB  memcpy %7.1f ratio %5.2f", what, kib, ours / kib, whole / kib,
              ours / whole);
  if (blocks.count > 0) std::printf("  by blocks %7.1f ratio %5.2f", loop / kib, ours / loop);
  std::printf("\n");
  MTensor_delete(call.slot);
  for (MTensor *tensor : call.tensors) MTensor_delete(tensor);
}

constexpr mint R = TORVANE_TYPE_REAL, I = TORVANE_TYPE_INTEGER;

// `rows` rows of `length` reals.
void measureShape(const std::string &name, mint rows, mint length, int rounds) {
  const auto row = [&](const char *what, Call call, Blocks blocks = {}) {
    measure((std::string(what) + ", " + name).c_str(), std::move(call), rounds, blocks);
  };
  const size_t r = static_cast<size_t>(rows), bytes = static_cast<size_t>(length) * sizeof(mreal);
  const auto pitch = static_cast<ptrdiff_t>(bytes);
  const auto matrix = [&] { return newTensor(R, {rows, length}); };
  row("copy", Call("CopyTensor").tensor(matrix()));
  row("take every second row", Call("Take").tensor(matrix()).integer(1).tensor(newVector({1, -1, 2})),
      {r / 2, bytes, 2 * pitch});
  row("take half of each row",
      Call("Take").tensor(matrix()).integer(1).tensor(newVector({1, -1})).integer(0).integer(length / 2),
      {r, bytes / 2, pitch});
  row("drop every second row", Call("Drop").tensor(matrix()).integer(1).tensor(newVector({1, -1, 2})),
      {r / 2, bytes, 2 * pitch});
  row("drop the middle of each row", Call("Drop")
                                         .tensor(matrix())
                                         .integer(1)
                                         .tensor(newVector({}))
                                         .integer(1)
                                         .tensor(newVector({length / 2, length / 2})));
  row("reverse", Call("Reverse").tensor(matrix()), {r, bytes, -pitch});
  row("rotate both dimensions",
      Call("RotateLeft").tensor(matrix()).tensor(newVector({rows / 3, length / 3})));
  row("join along rows", Call("JoinAtLevel").tensor(matrix()).tensor(matrix()).integer(2));
  row("partition rows by 3, distance 2",
      Call("Partition").tensor(matrix()).tensor(newVector({3})).tensor(newVector({2})));
  row("pad each row by 1 and the rows by 1", Call("PadLeft")
                                                 .tensor(matrix())
                                                 .tensor(newVector({rows + 1, length + 1}))
                                                 .tensor(newTensor(R, {1, 1}))
                                                 .tensor(newVector({0, 0})));
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
  InitializeRuntimeLibrary();
  for (const mint rows : {20, 1000, 100000})
    for (const mint length : {8, 16, 64, 512})
      if (rows * length <= 8000000)
        measureShape(std::to_string(rows) + " x " + std::to_string(length), rows, length, rounds);
  measure("reverse 1e4 reals", Call("Reverse").tensor(newTensor(R, {10000})), rounds);
  measure("reverse 1e4 integers", Call("Reverse").tensor(newTensor(I, {10000})), rounds);
  measure("take every second of 1e4 reals",
          Call("Take").tensor(newTensor(R, {10000})).integer(1).tensor(newVector({1, -1, 2})), rounds);
  measure("rotate 1e6 reals", Call("RotateLeft").tensor(newTensor(R, {1000000})), rounds);
  measure("flatten 1000 x 1000", Call("Flatten").tensor(newTensor(R, {1000, 1000})).integer(1), rounds);
  measure("partition 1e6 by 10 in order",
          Call("Partition").tensor(newTensor(R, {1000000})).tensor(newVector({10})).tensor(newVector({10})),
          rounds);
  return 0;
}
