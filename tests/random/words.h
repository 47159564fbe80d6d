// Generators whose stream a test knows: words that follow from their number alone, and the same stream as a
// row of bits for the models.
#pragma once

#include <torvane/torvane.h>

#include <cstdint>
#include <vector>

namespace torvane::test {

// S. Vigna's splitmix64, the high half of its output number i + 1.
inline uint32_t wordAt(uint64_t i) {
  uint64_t z = (i + 1) * 0x9E3779B97F4A7C15;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
  return uint32_t((z ^ (z >> 31)) >> 32);
}

// The stream, bit by bit, from each word's high bit to its low bit.
class BitModel {
public:
  uint32_t read(mint bits) {
    uint32_t value = 0;
    for (; bits > 0; --bits, ++position)
      value = value << 1 | (wordAt(position / 32) >> (31 - position % 32) & 1);
    return value;
  }
  uint64_t position = 0;
};

// A fraction of 52 bits as a number of [1/2, 1), on the interval from a towards b.
inline mreal realOf(uint64_t fraction, mreal a, mreal b) {
  const mreal x = mreal((uint64_t{1} << 52) + fraction) / 9007199254740992.0;
  const mreal d = (b - a) * 2, product = x * d;
  return product + (b - d);
}

// As a buffered generator draws it.
inline mreal readReal(BitModel &model, mreal a = 0, mreal b = 1) {
  const uint64_t high = model.read(20);
  return realOf(high << 32 | model.read(32), a, b);
}

// A buffered generator on the stream, with so many words. Fill number `failingFill` gives kFillFailed, and
// its words all the same.
class BufferedWords {
public:
  static constexpr mint kFillFailed = 77;

  explicit BufferedWords(uint32_t capacity)
      : generator(RandomBuffer_new(fill, capacity)), source{nullptr, nullptr, nullptr, this} {
    buffer()->source = &source;
  }
  ~BufferedWords() { RandomBuffer_delete(generator); }
  BufferedWords(const BufferedWords &) = delete;
  BufferedWords &operator=(const BufferedWords &) = delete;

  RandomBuffer *buffer() const { return static_cast<RandomBuffer *>(generator->state); }
  BufferData *data() const { return buffer()->data; }
  uint32_t getBits(mint bits) { return generator->functions->getBits(bits, generator); }

  // Whether buffer and fills are as after so many bits, read one by one.
  bool isAt(uint64_t position) const {
    const uint32_t count = data()->count;
    if (position == 0) return fills == 0 && data()->index == count && data()->bitsLeft == 0;
    const uint64_t word = position / 32;
    const uint32_t mask = uint32_t(0xFFFFFFFF) >> (position % 32);
    return uint64_t(fills) == word / count + 1 && data()->index == word % count &&
           data()->bitsLeft == 32 - position % 32 && data()->words[data()->index] == (wordAt(word) & mask);
  }

  RandomGenerator *const generator;
  int64_t fills = 0, failingFill = 0;

private:
  static mint fill(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *inner) {
    auto &self = *static_cast<BufferedWords *>(inner->state);
    for (uint32_t k = 0; k < *count; ++k) words[k] = wordAt(uint64_t(self.fills) * *count + k);
    *bitsLeft = 32;
    return ++self.fills == self.failingFill ? kFillFailed : 0;
  }
  RandomGenerator source;
};

// A generator that has bits alone, on the same stream; it keeps the sizes of the reads.
class GenericWords {
public:
  GenericWords() : generator(RandomGenerator_newGeneric()) {
    generator->functions->getBits = [](mint bits, RandomGenerator *self) {
      auto &words = *static_cast<GenericWords *>(self->state);
      words.reads.push_back(bits);
      return words.stream.read(bits);
    };
    generator->state = this;
  }
  ~GenericWords() { RandomGenerator_deleteGeneric(generator); }
  GenericWords(const GenericWords &) = delete;
  GenericWords &operator=(const GenericWords &) = delete;

  RandomGenerator *const generator;
  BitModel stream;
  std::vector<mint> reads;
};

// While one lives, the calling thread's generator draws as another one does, or by what a test puts into its
// table.
class CurrentGenerator {
public:
  CurrentGenerator()
      : generator(Runtime_GetCurrentRandomGenerator()), functions(*generator->functions),
        state(generator->state) {}
  explicit CurrentGenerator(const RandomGenerator *other) : CurrentGenerator() {
    *generator->functions = *other->functions;
    generator->state = other->state;
  }
  ~CurrentGenerator() {
    *generator->functions = functions;
    generator->state = state;
  }
  CurrentGenerator(const CurrentGenerator &) = delete;
  CurrentGenerator &operator=(const CurrentGenerator &) = delete;

  RandomGeneratorFunctions *table() const { return generator->functions; }
  RandomGenerator *const generator;

private:
  const RandomGeneratorFunctions functions;
  void *const state;
};

// A started library.
inline void startRandomNumbers() {
  static const bool started = (InitializeRuntimeLibrary(), true);
  (void)started;
}

} // namespace torvane::test
