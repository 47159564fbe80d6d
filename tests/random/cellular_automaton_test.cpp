// ExtendedCA against its rule cell by cell, and its initial row against the digits of pi.
#include "plain_method.h"

#include "random/buffer.h"
#include "random/cellular_automaton.h"
#include "runtime/platform_cpu_level.h"

#include <cmath>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

struct Shape {
  mint width = 80, step = 4, offset = 0;
};

// Words, their cells one by one. The row goes on behind its end with its own pairs, each rotated by one bit.
class Model {
public:
  explicit Model(Shape chosen) : row(2 * size_t(chosen.width), 0), shape(chosen) {}

  void seed(const std::vector<uint32_t> &seed) {
    const bool hasRow = shape.width <= 80;
    for (size_t i = 0; i < row.size(); ++i) row[i] = hasRow ? initialCells[i] : 0;
    if (seed == std::vector<uint32_t>{0}) return;
    const size_t count = seed.size();
    for (size_t i = 0; i < count; ++i) row[(i + count % 2) % row.size()] ^= seed[count - 1 - i];
    for (int64_t i = int64_t{shape.width} * 128 / 52; i > 0; --i) advance();
  }

  void advance() {
    std::vector<uint32_t> next(row.size(), 0);
    for (size_t word = 0; word < row.size(); ++word)
      for (unsigned bit = 0; bit < 32; ++bit) {
        const bool any = cell(word + 24, bit) || cell(word + 58, bit) || cell(word + 104, bit);
        const bool sum = any != (cell(word, bit) != cell(word + 10, bit));
        next[word] |= uint32_t{!sum} << bit;
      }
    row = next;
  }

  std::vector<uint32_t> output() const {
    std::vector<uint32_t> words;
    for (mint i = 0; i < (shape.width - shape.offset) / shape.step; ++i)
      for (mint half = 0; half < 2; ++half)
        words.push_back(row[size_t(shape.offset + 2 * shape.step * i + half)]);
    return words;
  }

  std::vector<uint32_t> row;

private:
  // A pair behind the end is the one a row's length before, its 64 cells shifted up by one, around its end.
  bool cell(size_t word, unsigned bit) const {
    if (word < row.size()) return ((row[word] >> bit) & 1) != 0;
    const unsigned place = static_cast<unsigned>(32 * (word % 2) + bit + 63) % 64;
    return cell(word - row.size() - word % 2 + place / 32, place % 32);
  }
  const Shape shape;
};

class ExtendedCA : public testing::TestWithParam<mint> {
protected:
  ExtendedCA() : level(setProcessorLevel(GetParam())) {}
  ~ExtendedCA() override { setProcessorLevel(level); }

  static void expectAsModel(Shape shape, const std::vector<uint32_t> &seed, int fills) {
    RandomGenerator *generator = CA5BufferState_alloc(&shape);
    ASSERT_NE(generator, nullptr);
    Model model(shape);
    generator->seed(generator, seed.data(), mint(seed.size()));
    model.seed(seed);
    for (int fill = 0; fill < fills; ++fill) {
      model.advance();
      for (uint32_t word : model.output())
        ASSERT_EQ(drawBits(generator, 32), word) << "width " << shape.width << ", fill " << fill;
    }
    CA5BufferState_free(generator);
  }

  const mint level;
};

INSTANTIATE_TEST_SUITE_P(Levels, ExtendedCA, testing::Range<mint>(0, kProcessorLevels));

TEST_P(ExtendedCA, GivesTheWordsOfTheRule) {
  for (uint32_t seed : {0u, 1u, 0xFFFFFFFFu, 20261121u}) expectAsModel({}, {seed}, 6);
}

TEST_P(ExtendedCA, LongSeedsGoRoundTheRowInReverse) {
  for (size_t count : {2u, 3u, 159u, 160u, 161u, 400u}) {
    std::vector<uint32_t> seed(count);
    for (size_t i = 0; i < count; ++i) seed[i] = plainWord(4, i);
    expectAsModel({}, seed, 2);
  }
}

TEST_P(ExtendedCA, OtherWidthsStepsAndOffsets) {
  for (Shape shape : {Shape{52, 1, 0}, Shape{53, 3, 1}, Shape{80, 4, 7}, Shape{79, 78, 0}, Shape{81, 4, 0},
                      Shape{200, 5, 2}})
    expectAsModel(shape, {9, 8}, 3);
}

// Narrower than its halo, which the parameter check refuses and the generator takes as it comes.
TEST_P(ExtendedCA, RowsNarrowerThanTheHalo) {
  for (mint width : {1, 2, 5, 17, 26, 51}) expectAsModel({width, 1, 0}, {width == 1 ? 3u : 9u}, 3);
}

TEST(ExtendedCASeeds, SeedZeroIsTheInitialRow) {
  RandomGenerator *generator = CA5BufferState_alloc(nullptr);
  const uint32_t zero = 0;
  generator->seed(generator, &zero, 1);
  Model model({});
  for (size_t i = 0; i < 160; ++i) model.row[i] = initialCells[i];
  model.advance();
  EXPECT_EQ(drawBits(generator, 32), model.row[0]);
  EXPECT_EQ(drawBits(generator, 32), model.row[1]);
  EXPECT_EQ(drawBits(generator, 32), model.row[8]);
  CA5BufferState_free(generator);
}

TEST(ExtendedCASeeds, SeedsZeroAndOneDifferAtOnce) {
  RandomGenerator *generator = CA5BufferState_alloc(nullptr);
  uint32_t words[2];
  for (uint32_t seed : {0u, 1u}) {
    generator->seed(generator, &seed, 1);
    words[seed] = drawBits(generator, 32);
  }
  EXPECT_NE(words[0], words[1]);
  CA5BufferState_free(generator);
}

TEST(ExtendedCASeeds, TwoZeroWordsAreNotSeedZero) {
  RandomGenerator *generator = CA5BufferState_alloc(nullptr);
  const uint32_t zeros[2] = {0, 0};
  generator->seed(generator, zeros, 1);
  const uint32_t first = drawBits(generator, 32);
  generator->seed(generator, zeros, 2);
  EXPECT_NE(drawBits(generator, 32), first);
  CA5BufferState_free(generator);
}

TEST(ExtendedCABuffer, HoldsFortyWordsByDefault) {
  RandomGenerator *generator = CA5BufferState_alloc(nullptr);
  EXPECT_EQ(bufferOf(generator)->data->capacity, 40u);
  CA5BufferState_free(generator);
}

TEST(ExtendedCABuffer, CloneGoesOnAtTheSameBitByItself) {
  RandomGenerator *generator = CA5BufferState_alloc(nullptr);
  const uint32_t seed = 3;
  generator->seed(generator, &seed, 1);
  for (int i = 0; i < 90; ++i) drawBits(generator, 19);
  RandomGenerator *clone = CA5BufferState_clone(generator);
  std::vector<uint32_t> expected;
  for (int i = 0; i < 500; ++i) expected.push_back(drawBits(generator, 21));
  for (uint32_t bits : expected) ASSERT_EQ(drawBits(clone, 21), bits);
  clone->seed(clone, &seed, 1);
  CA5BufferState_free(clone);
  CA5BufferState_free(generator);
}

TEST(ExtendedCABuffer, CloneOfAnotherShapeGoesOnAtTheSameBitForManyFills) {
  for (Shape shape : {Shape{200, 5, 2}, Shape{53, 1, 0}, Shape{53, 3, 1}}) {
    RandomGenerator *generator = CA5BufferState_alloc(&shape);
    const uint32_t seed[] = {3, 4};
    generator->seed(generator, seed, 2);
    for (int i = 0; i < 50; ++i) drawBits(generator, 19);
    EXPECT_NE(bufferOf(generator)->data->bitsLeft, 32u);
    RandomGenerator *clone = CA5BufferState_clone(generator);
    const int reads = 4 * 32 * mint(bufferOf(generator)->data->count) / 21;
    std::vector<uint32_t> expected;
    for (int i = 0; i < reads; ++i) expected.push_back(drawBits(generator, 21));
    for (uint32_t bits : expected) ASSERT_EQ(drawBits(clone, 21), bits) << shape.width;
    CA5BufferState_free(clone);
    CA5BufferState_free(generator);
  }
}

TEST(ExtendedCAParameters, OfWhichThereIsNoOutputAreRefused) {
  for (Shape shape :
       {Shape{80, 0, 0}, Shape{80, -1, 0}, Shape{80, 4, -1}, Shape{80, 4, 80}, Shape{80, 81, 0},
        Shape{0, 1, 0}, Shape{-5, 1, 0}, Shape{INT32_MIN, 1, 0}, Shape{INT32_MAX, 1, 0},
        Shape{INT32_MAX / 8, 1, 0}, Shape{80, INT32_MIN, INT32_MAX}, Shape{INT32_MIN, 1, INT32_MAX}})
    EXPECT_EQ(CA5BufferState_alloc(&shape), nullptr)
        << shape.width << " " << shape.step << " " << shape.offset;
}

TEST(ExtendedCAParameters, CheckTellsGoodFromBad) {
  EXPECT_EQ(CA5State_checkParameters(52, 1, 0), 1);
  EXPECT_EQ(CA5State_checkParameters(80, 4, 0), 1);
  EXPECT_EQ(CA5State_checkParameters(80, 79, 0), 1);
  EXPECT_EQ(CA5State_checkParameters(51, 1, 0), 0);
  EXPECT_EQ(CA5State_checkParameters(80, 0, 0), 0);
  EXPECT_EQ(CA5State_checkParameters(80, 4, -1), 0);
  EXPECT_EQ(CA5State_checkParameters(80, 80, 0), 0);
  EXPECT_EQ(CA5State_checkParameters(80, 79, 1), 0);
  EXPECT_EQ(CA5State_checkParameters(INT32_MIN, INT32_MIN, INT32_MAX), 0);
  EXPECT_EQ(CA5State_checkParameters(INT32_MAX, INT32_MAX, INT32_MAX), 0);
}

TEST(ExtendedCACells, BeginAndEndAsEver) {
  const uint32_t first[] = {0xA888F710, 0x22E181BD, 0x2385A85E, 0x36087989};
  const uint32_t last[] = {0xB5EF628E, 0x14E82102, 0x76047FFA};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(initialCells[i], first[i]);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(initialCells[157 + i], last[i]);
}

uint64_t powerModulo(uint64_t exponent, uint64_t modulus) {
  uint64_t result = 1 % modulus;
  for (uint64_t base = 16 % modulus; exponent > 0; exponent >>= 1, base = base * base % modulus)
    if (exponent % 2 == 1) result = result * base % modulus;
  return result;
}

// The fraction of 16^n pi, by the formula of Bailey, Borwein and Plouffe, which needs no digit before.
double fractionOfPiAt(uint64_t n) {
  const auto series = [n](uint64_t j) {
    double sum = 0;
    for (uint64_t k = 0; k <= n; ++k)
      sum = std::fmod(sum + double(powerModulo(n - k, 8 * k + j)) / double(8 * k + j), 1.0);
    for (uint64_t k = n + 1; k < n + 20; ++k)
      sum += std::pow(16.0, double(n) - double(k)) / double(8 * k + j);
    return sum;
  };
  const double value = 4 * series(1) - 2 * series(4) - series(5) - series(6);
  return value - std::floor(value);
}

// Digits two words at a time would be past a double's precision; a word's first 24 bits are far from it.
TEST(ExtendedCACells, BetweenAreTheDigitsOfPi) {
  for (uint32_t i = 0; i < 153; ++i) {
    const auto high = static_cast<uint32_t>(fractionOfPiAt(8 * i) * 0x1p24);
    const auto low = static_cast<uint32_t>(fractionOfPiAt(8 * i + 2) * 0x1p24);
    EXPECT_EQ(initialCells[4 + i] >> 8, high) << i;
    EXPECT_EQ(initialCells[4 + i] & 0xFFFFFF, low) << i;
  }
}

} // namespace
