// Sequences of allocations, reallocations and frees against a shadow: no two blocks overlap, contents stay,
// and the thread's count of used bytes returns to where it was.
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

void allocateOne(std::vector<Block> &blocks, Input &input) {
  Block block = {nullptr, takeSize(input), 0};
  block.bytes = static_cast<uint8_t *>(allocate(block.size, 0, kQuiet));
  require((block.bytes == nullptr) == (block.size == 0));
  require(reinterpret_cast<uintptr_t>(block.bytes) % 8 == 0);
  if (block.bytes != nullptr) require(blockUsableBytes(block.bytes) >= block.size);
  fillBlock(block, input.take<uint8_t>());
  blocks.push_back(block);
}

void reallocateOne(Block &block, Input &input) {
  const uint32_t size = takeSize(input);
  block.bytes = static_cast<uint8_t *>(reallocate(block.bytes, size, 0, kQuiet));
  require((block.bytes == nullptr) == (size == 0));
  expectFilled(block, size < block.size ? size : block.size);
  block.size = size;
  fillBlock(block, input.take<uint8_t>());
}

void freeOne(std::vector<Block> &blocks, size_t which) {
  expectFilled(blocks[which], blocks[which].size);
  torvane::free(blocks[which].bytes);
  blocks[which] = blocks.back();
  blocks.pop_back();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  Input input(bytes, count);
  torvane::free(allocate(8, 0, kFatal)); // the heap's own bookkeeping is in the count from here on
  const uint32_t before = usedBytesOfThisThread();
  std::vector<Block> blocks;
  while (!input.isEmpty()) {
    const auto choice = input.take<uint8_t>();
    if (blocks.empty() || choice < 110)
      allocateOne(blocks, input);
    else if (choice < 150)
      reallocateOne(blocks[choice % blocks.size()], input);
    else
      freeOne(blocks, choice % blocks.size());
  }
  while (!blocks.empty()) freeOne(blocks, blocks.size() - 1);
  require(usedBytesOfThisThread() == before);
  return 0;
}
