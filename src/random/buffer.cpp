#include "buffer.h"

#include "../runtime/memory.h"
#include "bit_cursor.h"
#include "draws.h"

#include <algorithm>

namespace torvane {

namespace {

// Zeros from a buffer of no words.
uint32_t bufferedBits(mint bits, RandomGenerator *generator) {
  if (bufferOf(generator)->data == nullptr) [[unlikely]]
    return 0;
  return BitCursor(bufferOf(generator)).read(static_cast<uint32_t>(bits));
}

// Whole words are not to be had past the bit cursor.
mint refuseWords(uint32_t *, mint, RandomGenerator *) { return kNoFunction; }

// No word of the old sequence survives a seed.
mint bufferedSeed(RandomGenerator *generator, const uint32_t *words, mint count) {
  RandomBuffer *buffer = bufferOf(generator);
  buffer->source->seed(buffer->source, words, count);
  if (buffer->data != nullptr) BufferData_clear(buffer->data);
  return 0;
}

RandomBuffer *newBuffer(BufferData *data, RandomFill fill) {
  auto *buffer = static_cast<RandomBuffer *>(allocate(sizeof(RandomBuffer), 0, kFatal));
  *buffer = {data, fill, nullptr};
  return buffer;
}

// Zeros, so that a cursor set on words that no fill has made reads something that is defined.
uint32_t *newWords(uint32_t count) {
  if (count > UINT32_MAX / sizeof(uint32_t)) fatalOutOfMemory();
  auto *words = static_cast<uint32_t *>(allocate(count * uint32_t{sizeof(uint32_t)}, 0, kFatal));
  return std::fill_n(words, count, 0u) - count;
}

} // namespace

RandomGenerator *newSource(RandomSeed seed, void *state) {
  RandomGenerator *source = RandomGenerator_newGeneric();
  source->seed = seed;
  source->state = state;
  return source;
}

void deleteWithSource(RandomGenerator *outer) {
  RandomGenerator_deleteGeneric(bufferOf(outer)->source);
  RandomBuffer_delete(outer);
}

} // namespace torvane

using namespace torvane;

BufferData *BufferData_new(uint32_t words) {
  auto *data = static_cast<BufferData *>(allocate(sizeof(BufferData), 0, kFatal));
  *data = {newWords(words), words, words, 0, words};
  return data;
}

BufferData *BufferData_copy(const BufferData *data) {
  if (data == nullptr) return nullptr;
  BufferData *copy = BufferData_new(data->capacity);
  std::copy_n(data->words, data->capacity, copy->words);
  copy->count = data->count;
  copy->index = data->index;
  copy->bitsLeft = data->bitsLeft;
  return copy;
}

void BufferData_delete(BufferData *data) {
  if (data == nullptr) return;
  torvane::free(data->words);
  torvane::free(data);
}

uint32_t BufferData_clear(BufferData *data) {
  data->index = data->count;
  data->bitsLeft = 0;
  return data->count;
}

RandomGenerator *RandomBuffer_new(RandomFill fill, uint32_t wordCount) {
  RandomGenerator *generator = RandomGenerator_newGeneric();
  *generator->functions = {bufferedBits, refuseWords, bufferedMIntegers, bufferedMReals, {}};
  generator->seed = bufferedSeed;
  generator->state = newBuffer(wordCount != 0 ? BufferData_new(wordCount) : nullptr, fill);
  return generator;
}

RandomGenerator *RandomBuffer_copy(RandomGenerator *generator) {
  RandomGenerator *copy = RandomGenerator_copyGeneric(generator);
  const RandomBuffer *buffer = bufferOf(generator);
  copy->state = newBuffer(BufferData_copy(buffer->data), buffer->fill);
  return copy;
}

void RandomBuffer_delete(RandomGenerator *generator) {
  RandomBuffer *buffer = bufferOf(generator);
  BufferData_delete(buffer->data);
  torvane::free(buffer);
  RandomGenerator_deleteGeneric(generator);
}
