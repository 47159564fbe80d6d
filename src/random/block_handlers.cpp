#include "block_handlers.h"

#include "../algorithms/handler.h"
#include "../runtime/memory.h"
#include <torvane/random.h>

namespace torvane {

namespace {

struct RandomBlock {
  RandomGeneratorSnapshot *snapshot;
  RandomBlock *below;
};

// The cell stays allocated, and unchanged: contexts may have copied the head of their stack, and a copy stays
// good to read. Callers rely on it.
bool endInnermostBlock(RuntimeState *state) {
  const auto *block = static_cast<const RandomBlock *>(state->blockStack);
  if (block == nullptr) return false;
  state->blockStack = block->below;
  RandomGeneratorSnapshot_activate(block->snapshot);
  return true;
}

} // namespace

void endRandomBlocks(TorvaneLibraryData *libraryData) {
  while (endInnermostBlock(runtimeState(libraryData))) {
  }
}

mint handleSeedRandom(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *) {
  if (argumentCount > 2) return kWrongArguments;
  const mint method = argumentCount > 0 ? integerArgument(arguments, 0) : 0;
  const auto *seed = argumentCount > 1 ? static_cast<const uint32_t *>(arguments[1]) : nullptr;
  return Runtime_SeedRandom(seed, method);
}

mint handleBlockRandomBegin(TorvaneLibraryData *libraryData, mint argumentCount, void *const *, void *) {
  if (argumentCount != 0) return kWrongArguments;
  RuntimeState *state = runtimeState(libraryData);
  auto *block = static_cast<RandomBlock *>(allocate(sizeof(RandomBlock), 0, kFatal));
  *block = {RandomGeneratorSnapshot_capture(nullptr, 0), static_cast<RandomBlock *>(state->blockStack)};
  RandomGeneratorSnapshot_pin(block->snapshot);
  state->blockStack = block;
  return kSuccess;
}

mint handleBlockRandomEnd(TorvaneLibraryData *libraryData, mint argumentCount, void *const *, void *) {
  if (argumentCount != 0) return kWrongArguments;
  endInnermostBlock(runtimeState(libraryData));
  return kSuccess;
}

} // namespace torvane
