// Rearranging tensors beside memcpy of as many bytes as the result has, and where a call moves blocks that
// are all alike, beside one memcpy each. Results are reused.
#include "named_call.h"
#include "table.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

using bench::NamedCall;
using bench::newTensor;
using bench::repeated;
using bench::Run;
using bench::Tensor;

namespace {

constexpr mint R = TORVANE_TYPE_REAL, I = TORVANE_TYPE_INTEGER;
using Extents = std::vector<mint>;

Tensor tensorOf(mint type, const Extents &extents) {
  Tensor tensor = newTensor(type, extents);
  MTensor_initialize(tensor.get(), 3);
  return tensor;
}

Tensor vectorOf(const Extents &entries) {
  Tensor vector = newTensor(I, {static_cast<mint>(entries.size())});
  std::copy(entries.begin(), entries.end(), static_cast<mint *>(vector->data));
  return vector;
}

size_t bytesOf(const MTensor *tensor) {
  return static_cast<size_t>(tensor->elementCount) * MTensor_typeSizeTable[tensor->type];
}

struct Blocks {
  size_t count = 0, bytes = 0;
  ptrdiff_t pitch = 0;
};

void copyBlocks(char *to, const char *from, Blocks blocks) {
  for (size_t i = 0; i < blocks.count; ++i)
    std::memcpy(to + i * blocks.bytes, from + static_cast<ptrdiff_t>(i) * blocks.pitch, blocks.bytes);
}

// Asked of calls that move no less than a cache line at once.
constexpr double kAim = 1.2;
constexpr size_t kLine = 64;

void compareMove(const std::string &name, size_t leastBlock, NamedCall &call, Blocks blocks = {}) {
  if (!bench::isWanted(name)) return;
  MTensor *slot = nullptr;
  call.run(&slot);
  const size_t bytes = bytesOf(slot), sourceBytes = std::max(bytes, bytesOf(call.firstTensor()));
  std::vector<char> from(sourceBytes, 1), to(bytes, 2);
  const char *start = blocks.pitch < 0 ? from.data() + sourceBytes - blocks.bytes : from.data();
  Run byBlocks;
  if (blocks.count > 0) byBlocks = repeated([&] { copyBlocks(to.data(), start, blocks); });
  const auto moved = static_cast<double>(bytes);
  bench::compare(
      {name, static_cast<double>(slot->elementCount), {moved, moved}, leastBlock < kLine ? 0 : kAim},
      {{"ours", repeated([&] { call.run(&slot); })},
       {"memcpy", repeated([&] { std::memcpy(to.data(), from.data(), bytes); })},
       {"memcpy by blocks", byBlocks}});
  MTensor_delete(slot);
}

// `rows` rows of `length` reals.
void compareShape(mint rows, mint length) {
  const auto row = [&](const char *what, size_t leastBlock, NamedCall &call, Blocks blocks = {}) {
    compareMove(std::string(what) + ", " + std::to_string(rows) + " x " + std::to_string(length), leastBlock,
                call, blocks);
  };
  const size_t r = static_cast<size_t>(rows), bytes = static_cast<size_t>(length) * sizeof(mreal);
  const auto pitch = static_cast<ptrdiff_t>(bytes);
  const Tensor matrix = tensorOf(R, {rows, length});
  row("copy", bytes, NamedCall("CopyTensor").tensor(matrix));
  row("take every second row", bytes,
      NamedCall("Take").tensor(matrix).integer(1).tensor(vectorOf({1, -1, 2})), {r / 2, bytes, 2 * pitch});
  row("take half of each row", bytes / 2,
      NamedCall("Take").tensor(matrix).integer(1).tensor(vectorOf({1, -1})).integer(0).integer(length / 2),
      {r, bytes / 2, pitch});
  row("drop every second row", bytes,
      NamedCall("Drop").tensor(matrix).integer(1).tensor(vectorOf({1, -1, 2})), {r / 2, bytes, 2 * pitch});
  row("drop the middle of each row", bytes / 2 - sizeof(mreal),
      NamedCall("Drop")
          .tensor(matrix)
          .integer(1)
          .tensor(vectorOf({}))
          .integer(1)
          .tensor(vectorOf({length / 2, length / 2})));
  row("reverse", bytes, NamedCall("Reverse").tensor(matrix), {r, bytes, -pitch});
  row("rotate both dimensions", bytes / 3,
      NamedCall("RotateLeft").tensor(matrix).tensor(vectorOf({rows / 3, length / 3})));
  row("join along rows", bytes,
      NamedCall("JoinAtLevel").tensor(matrix).tensor(tensorOf(R, {rows, length})).integer(2));
  row("partition rows by 3, distance 2", bytes,
      NamedCall("Partition").tensor(matrix).tensor(vectorOf({3})).tensor(vectorOf({2})));
  row("pad both dimensions by 1", bytes,
      NamedCall("PadLeft")
          .tensor(matrix)
          .tensor(vectorOf({rows + 1, length + 1}))
          .tensor(tensorOf(R, {1, 1}))
          .tensor(vectorOf({0, 0})));
}

} // namespace

int main(int argc, char **argv) {
  bench::start("lists", "ns an element of the result", argc, argv, 41);
  InitializeRuntimeLibrary();
  const std::vector<Extents> shapes = {{20, 8}, {1000, 8}, {1000, 64}, {1000, 512}, {100000, 64}};
  for (const Extents &shape : shapes) compareShape(shape[0], shape[1]);
  compareMove("reverse 10000 reals", sizeof(mreal), NamedCall("Reverse").tensor(tensorOf(R, {10000})));
  compareMove("reverse 10000 integers", sizeof(mint), NamedCall("Reverse").tensor(tensorOf(I, {10000})));
  compareMove("take every second of 10000 reals", sizeof(mreal),
              NamedCall("Take").tensor(tensorOf(R, {10000})).integer(1).tensor(vectorOf({1, -1, 2})));
  compareMove("rotate 1000000 reals", kLine, NamedCall("RotateLeft").tensor(tensorOf(R, {1000000})));
  compareMove("flatten 1000 x 1000", kLine,
              NamedCall("Flatten").tensor(tensorOf(R, {1000, 1000})).integer(1));
  compareMove(
      "partition 1000000 by 10 in order", kLine,
      NamedCall("Partition").tensor(tensorOf(R, {1000000})).tensor(vectorOf({10})).tensor(vectorOf({10})));
}
