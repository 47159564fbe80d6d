// Sequences of allocations, reallocations and frees against a shadow: no two blocks overlap, each is as large
// as asked for, contents stay, a block moves when it must and only then, and at every step the thread's count
// of used bytes is that of the blocks that are out.
#include "input.h"

#include "runtime/memory.h"

#include <cstring>
#include <vector>

using namespace torvane;

namespace {

struct Block {
  uint8_t *bytes;
  uint32_t size;
  uint8_t fill;
};

// The blocks that are out, and the bytes that they and their headers take.
struct Shadow {
  std::vector<Block> blocks;
  uint32_t bytes = 0;
};

uint32_t bytesOut(const Block &block) {
  if (block.bytes == nullptr) return 0;
  uint32_t size, overhead;
  blockSizeAndOverhead(block.bytes, &size, &overhead);
  require(size - overhead == blockUsableBytes(block.bytes));
  return size;
}

// By all that may be used of each.
bool areApart(const Block &a, const Block &b) {
  return a.bytes + blockUsableBytes(a.bytes) <= b.bytes || b.bytes + blockUsableBytes(b.bytes) <= a.bytes;
}

// A new block or one that has moved.
void requirePlaced(const Shadow &shadow, const Block &block) {
  require((block.bytes == nullptr) == (block.size == 0));
  if (block.bytes == nullptr) return;
  require(reinterpret_cast<uintptr_t>(block.bytes) % 8 == 0);
  require(blockUsableBytes(block.bytes) >= block.size);
  for (const Block &other : shadow.blocks)
    require(&other == &block || other.bytes == nullptr || areApart(block, other));
}

void expectFilled(const Block &block, uint32_t count) {
  for (uint32_t k = 0; k < count; ++k) require(block.bytes[k] == block.fill);
}

uint32_t takeSize(Input &input) {
  const auto raw = input.take<uint32_t>();
  switch (raw & 3) {
  case 0:
    return raw >> 2 & 0x7F;
  case 1:
    return raw >> 2 & 0xFFF;
  case 2:
    return 65400 + (raw >> 2 & 0x1FF); // around the largest cell
  default:
    return raw >> 2 & 0x3FFFF;
  }
}

void fillBlock(Block &block, uint8_t fill) {
  block.fill = fill;
  if (block.size != 0) std::memset(block.bytes, fill, block.size);
}

void allocateOne(Shadow &shadow, Input &input) {
  Block block = {nullptr, takeSize(input), 0};
  block.bytes = static_cast<uint8_t *>(allocate(block.size, 0, kQuiet));
  requirePlaced(shadow, block);
  fillBlock(block, input.take<uint8_t>());
  shadow.blocks.push_back(block);
  shadow.bytes += bytesOut(block);
}

// A block that would shrink by no more than half stays where it is.
bool mayStay(const Block &block, uint32_t size) {
  const uint32_t usable = block.bytes != nullptr ? blockUsableBytes(block.bytes) : 0;
  return usable >= size && usable - size <= size;
}

void reallocateOne(Shadow &shadow, Block &block, Input &input) {
  const uint32_t size = takeSize(input), kept = size < block.size ? size : block.size;
  const bool stays = mayStay(block, size);
  const uint8_t *const before = block.bytes;
  shadow.bytes -= bytesOut(block);
  block.bytes = static_cast<uint8_t *>(reallocate(block.bytes, size, 0, kQuiet));
  require((block.bytes == before) == stays);
  expectFilled(block, kept);
  block.size = size;
  requirePlaced(shadow, block);
  fillBlock(block, input.take<uint8_t>());
  shadow.bytes += bytesOut(block);
}

void freeOne(Shadow &shadow, size_t which) {
  Block &block = shadow.blocks[which];
  expectFilled(block, block.size);
  shadow.bytes -= bytesOut(block);
  torvane::free(block.bytes);
  block = shadow.blocks.back();
  shadow.blocks.pop_back();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  Input input(bytes, count);
  torvane::free(allocate(8, 0, kFatal)); // the heap's own bookkeeping is in the count from here on
  const uint32_t before = usedBytesOfThisThread();
  Shadow shadow;
  std::vector<Block> &blocks = shadow.blocks;
  while (!input.isEmpty()) {
    const auto choice = input.take<uint8_t>();
    if (blocks.empty() || choice < 110)
      allocateOne(shadow, input);
    else if (choice < 150)
      reallocateOne(shadow, blocks[choice % blocks.size()], input);
    else
      freeOne(shadow, choice % blocks.size());
    require(usedBytesOfThisThread() == before + shadow.bytes);
  }
  while (!blocks.empty()) freeOne(shadow, blocks.size() - 1);
  require(usedBytesOfThisThread() == before);
  return 0;
}
