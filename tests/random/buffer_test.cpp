// The word buffer and its bit cursor, against the stream by its definition: the words in order, each from its
// high bit to its low bit.
#include "plain_method.h"

#include "random/bit_cursor.h"
#include "support/child_process.h"

#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

// The first fills of a buffer: how many were made, and what they return.
struct Source {
  uint64_t next = 0;
  int fills = 0;
  mint status = 0;
};

mint countingFill(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *inner) {
  auto *source = static_cast<Source *>(inner->state);
  ++source->fills;
  for (uint32_t i = 0; i < *count; ++i) words[i] = plainWord(1, source->next++);
  *bitsLeft = 32;
  return source->status;
}

class Buffer : public testing::Test {
protected:
  explicit Buffer(uint32_t words = 40) { make(words); }
  ~Buffer() override { drop(); }
  void make(uint32_t words) {
    source = {};
    generator = RandomBuffer_new(countingFill, words);
    buffer()->source = newSource(nullptr, &source);
  }
  void drop() {
    RandomGenerator_deleteGeneric(buffer()->source);
    RandomBuffer_delete(generator);
  }
  RandomBuffer *buffer() { return bufferOf(generator); }
  uint32_t read(mint bits) { return drawBits(generator, bits); }

  Source source;
  RandomGenerator *generator;
};

uint32_t streamBits(uint64_t position, uint32_t bits) {
  uint64_t value = 0;
  for (uint64_t i = position; i < position + bits; ++i)
    value = (value << 1) | ((plainWord(1, i / 32) >> (31 - i % 32)) & 1);
  return static_cast<uint32_t>(value);
}

// Where the cursor stands after `position` bits: at a bit, never behind the last of a word.
void expectCursorAt(const BufferData *data, uint64_t position) {
  EXPECT_EQ(data->index, position / 32 % data->count);
  EXPECT_EQ(data->bitsLeft, 32 - position % 32);
  const uint32_t word = plainWord(1, position / 32);
  EXPECT_EQ(data->words[data->index], data->bitsLeft == 32 ? word : word & ((1u << data->bitsLeft) - 1));
}

TEST_F(Buffer, FiveBitsAtATimeAreTheWordsInOrder) {
  for (uint64_t position = 0; position < 40 * 32 * 4; position += 5) {
    ASSERT_EQ(read(5), streamBits(position, 5)) << position;
    expectCursorAt(buffer()->data, position + 5);
  }
}

TEST_F(Buffer, EveryReadOfEveryWidthIsTheNextBitsOfTheStream) {
  for (uint32_t words : {1u, 2u, 3u, 40u}) {
    drop();
    make(words);
    Choices choose(words);
    uint64_t position = 0;
    for (int i = 0; i < 3000; ++i) {
      const uint32_t bits = 1 + choose() % 32;
      ASSERT_EQ(read(mint(bits)), streamBits(position, bits)) << words << " words, " << bits << " bits";
      position += bits;
      expectCursorAt(buffer()->data, position);
    }
  }
}

TEST_F(Buffer, FillComesWithTheLastBitAndNotBefore) {
  EXPECT_EQ(source.fills, 0);
  read(31);
  EXPECT_EQ(source.fills, 1);
  for (int i = 1; i < 40; ++i) read(32);
  EXPECT_EQ(source.fills, 1);
  read(1);
  EXPECT_EQ(source.fills, 2);
  EXPECT_EQ(buffer()->data->index, 0u);
  EXPECT_EQ(buffer()->data->bitsLeft, 32u);
}

TEST_F(Buffer, WholeWordOfTheLastOneOfAnEmptyBufferFillsTwice) {
  drop();
  make(1);
  EXPECT_EQ(read(32), plainWord(1, 0));
  EXPECT_EQ(source.fills, 2);
  expectCursorAt(buffer()->data, 32);
}

TEST_F(Buffer, CursorInRegistersLeavesWhatSingleReadsLeave) {
  Choices choose(5);
  uint64_t position = 0;
  for (int run = 0; run < 200; ++run) {
    {
      BitCursor cursor(buffer());
      for (unsigned i = choose() % 20; i > 0; --i) {
        const uint32_t bits = 1 + choose() % 32;
        ASSERT_EQ(cursor.read(bits), streamBits(position, bits));
        position += bits;
      }
    }
    if (position > 0) expectCursorAt(buffer()->data, position);
  }
}

TEST_F(Buffer, CursorTellsTheFirstStatusOfAFill) {
  BitCursor cursor(buffer());
  for (int i = 0; i < 39; ++i) cursor.read(32);
  EXPECT_EQ(cursor.fillStatus(), 0);
  source.status = 403;
  cursor.read(32);
  EXPECT_EQ(cursor.fillStatus(), 403);
  source.status = 0;
  for (int i = 0; i < 40; ++i) cursor.read(32);
  EXPECT_EQ(cursor.fillStatus(), 403);
}

TEST_F(Buffer, SingleReadIgnoresTheStatusOfAFill) {
  source.status = 9;
  EXPECT_EQ(read(8), streamBits(0, 8));
}

mint fillHalf(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *inner) {
  *count = 2;
  return countingFill(words, count, bitsLeft, inner);
}

TEST_F(Buffer, FillMayMakeFewerWordsThanTheBufferHolds) {
  buffer()->fill = fillHalf;
  uint64_t position = 0;
  for (uint32_t i = 0; i < 50; ++i, position += 13) ASSERT_EQ(read(13), streamBits(position, 13));
  EXPECT_EQ(buffer()->data->count, 2u);
  EXPECT_EQ(buffer()->data->capacity, 40u);
}

mint fillAndFail(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *inner) {
  const uint32_t before = *bitsLeft;
  countingFill(words, count, bitsLeft, inner);
  *bitsLeft = before;
  return 5;
}

TEST_F(Buffer, WordsOfAFillThatFailsToSayHowManyBitsAreWhole) {
  buffer()->fill = fillAndFail;
  for (uint64_t position = 0; position < 3 * 40 * 32; position += 24)
    ASSERT_EQ(read(24), streamBits(position, 24));
}

TEST_F(Buffer, GivesNoWholeWords) {
  uint32_t words[2] = {7, 7};
  EXPECT_EQ(generator->functions->getWords(words, 2, generator), 11);
  EXPECT_EQ(words[0], 7u);
  EXPECT_EQ(source.fills, 0);
}

TEST_F(Buffer, CopyHasTheCursorAndTheWordsButNoSource) {
  read(13);
  RandomGenerator *copy = RandomBuffer_copy(generator);
  EXPECT_EQ(bufferOf(copy)->source, nullptr);
  EXPECT_EQ(bufferOf(copy)->fill, countingFill);
  Source later = source;
  bufferOf(copy)->source = newSource(nullptr, &later);
  for (uint64_t position = 13; position < 4000; position += 11) {
    ASSERT_EQ(drawBits(copy, 11), streamBits(position, 11));
    ASSERT_EQ(read(11), streamBits(position, 11));
  }
  RandomGenerator_deleteGeneric(bufferOf(copy)->source);
  RandomBuffer_delete(copy);
}

mint restart(RandomGenerator *inner, const uint32_t *words, mint) {
  static_cast<Source *>(inner->state)->next = words[0];
  return 1;
}

TEST_F(Buffer, SeedDropsWhatIsUnread) {
  buffer()->source->seed = restart;
  read(13);
  const uint32_t first = 20;
  generator->seed(generator, &first, 1);
  EXPECT_EQ(buffer()->data->index, 40u);
  EXPECT_EQ(buffer()->data->bitsLeft, 0u);
  EXPECT_EQ(read(32), plainWord(1, 20));
  EXPECT_EQ(source.fills, 2);
}

TEST(BufferWithoutWords, CanBeSeededCopiedAndDeleted) {
  Source source;
  RandomGenerator *generator = RandomBuffer_new(countingFill, 0);
  EXPECT_EQ(bufferOf(generator)->data, nullptr);
  bufferOf(generator)->source = newSource(restart, &source);
  const uint32_t seed = 4;
  generator->seed(generator, &seed, 1);
  EXPECT_EQ(source.next, 4u);
  RandomGenerator *copy = RandomBuffer_copy(generator);
  EXPECT_EQ(bufferOf(copy)->data, nullptr);
  RandomBuffer_delete(copy);
  RandomGenerator_deleteGeneric(bufferOf(generator)->source);
  RandomBuffer_delete(generator);
}

TEST(BufferWithoutWords, GivesZeroBitsAndDrawsNothing) {
  RandomGenerator *generator = RandomBuffer_new(countingFill, 0);
  for (mint bits : {1, 19, 32}) EXPECT_EQ(drawBits(generator, bits), 0u);
  for (mint count : {0, 1, 100}) {
    std::vector<mint> integers(101, -7);
    std::vector<mreal> reals(101, -7);
    EXPECT_EQ(generator->functions->randomMIntegers(integers.data(), count, 0, 99, generator), 11);
    EXPECT_EQ(generator->functions->randomMIntegers(integers.data(), count, 5, 5, generator), 11);
    EXPECT_EQ(generator->functions->randomMReals(reals.data(), count, 0, 1, generator), 11);
    EXPECT_EQ(integers, std::vector<mint>(101, -7));
    EXPECT_EQ(reals, std::vector<mreal>(101, -7));
  }
  RandomBuffer_delete(generator);
}

TEST(BufferDataRecord, NewOneIsEmpty) {
  BufferData *data = BufferData_new(6);
  EXPECT_EQ(data->count, 6u);
  EXPECT_EQ(data->capacity, 6u);
  EXPECT_EQ(data->index, 6u);
  EXPECT_EQ(data->bitsLeft, 0u);
  BufferData_delete(data);
}

TEST(BufferDataRecord, WordsPastWhatCanBeAddressedTakeTheFatalPath) {
  const ChildOutcome child = runInChild([] { BufferData_new(UINT32_MAX / 4 + 1); });
  EXPECT_EQ(child.status, 1);
  EXPECT_NE(child.output.find("No more memory available"), std::string::npos) << child.output;
}

TEST(BufferDataRecord, ClearDropsWhatIsUnreadAndReturnsTheCount) {
  BufferData *data = BufferData_new(6);
  data->index = 2;
  data->bitsLeft = 9;
  data->count = 4;
  EXPECT_EQ(BufferData_clear(data), 4u);
  EXPECT_EQ(data->index, 4u);
  EXPECT_EQ(data->bitsLeft, 0u);
  BufferData_delete(data);
}

TEST(BufferDataRecord, CopyHasAllWordsOfTheCapacity) {
  BufferData *data = BufferData_new(6);
  for (uint32_t i = 0; i < 6; ++i) data->words[i] = 100 + i;
  data->count = 3;
  data->index = 1;
  data->bitsLeft = 7;
  BufferData *copy = BufferData_copy(data);
  data->words[5] = 0;
  for (uint32_t i = 0; i < 6; ++i) EXPECT_EQ(copy->words[i], 100 + i);
  EXPECT_EQ(copy->count, 3u);
  EXPECT_EQ(copy->index, 1u);
  EXPECT_EQ(copy->bitsLeft, 7u);
  EXPECT_EQ(copy->capacity, 6u);
  BufferData_delete(copy);
  BufferData_delete(data);
}

TEST(BufferDataRecord, NullIsCopiedToNullAndIgnoredByDelete) {
  EXPECT_EQ(BufferData_copy(nullptr), nullptr);
  BufferData_delete(nullptr);
}

} // namespace
