// Random numbers: seeds, methods, snapshots and nested blocks in any order, where the end of a block brings
// back the stream that a clone goes on with; and draws from a buffer of any size against the row of its bits.
#include "limited_heap.h"
#include "tensors.h"

#include "algorithms/registry.h"
#include "random/generator.h"
#include "random/words.h"
#include "runtime/library_data.h"
#include "runtime/memory.h"

using namespace torvane;
using namespace torvane::test;

namespace {

uint32_t bitsOf(RandomGenerator *generator, mint bits) {
  return generator->functions->getBits(bits, generator);
}
mint takeBits(Input &input) { return 1 + below(input, 32); }

// ---- the generators of a thread ----

class Blocks {
public:
  ~Blocks() {
    while (!clones.empty()) end();
  }

  void begin() {
    require(handleBlockRandomBegin(record(), 0, nullptr, nullptr) == 0);
    clones.push_back(cloneGenerator(Runtime_GetCurrentRandomGenerator()));
    retain(clones.back());
  }

  void end() {
    void *cell = state.blockStack; // stays when its block ends, so that it is counted here
    require(handleBlockRandomEnd(record(), 0, nullptr, nullptr) == 0);
    torvane::free(cell);
    if (clones.empty()) return;
    RandomGenerator *back = Runtime_GetCurrentRandomGenerator(), *clone = clones.back();
    require(methodOf(back) == methodOf(clone));
    for (const mint bits : {32, 7, 32, 1}) require(bitsOf(back, bits) == bitsOf(clone, bits));
    release(clone);
    clones.pop_back();
  }

  size_t open() const { return clones.size(); }

private:
  RuntimeState state = {};
  void *words[49] = {};
  std::vector<RandomGenerator *> clones;
  TorvaneLibraryData *record() {
    words[27] = &state;
    return reinterpret_cast<TorvaneLibraryData *>(words);
  }
};

// One seed, one stream.
void seed(Input &input) {
  const uint32_t word = input.take<uint8_t>();
  const mint code = oneIn(input, 8) ? takeInteger(input) : 1 + 2 * below(input, 2);
  const mint status = Runtime_SeedRandom(&word, code);
  require(status == (code > 4 ? 12 : 0));
  if (status != 0) return;
  if (code == 2 || code == 4) return; // of methods that are not there
  const uint32_t first = bitsOf(Runtime_GetCurrentRandomGenerator(), 32);
  Runtime_SeedRandom(&word, code);
  require(bitsOf(Runtime_GetCurrentRandomGenerator(), 32) == first);
}

void activate(Input &input) {
  constexpr const char *kNames[] = {"ExtendedCA", "MersenneTwister", "ParallelMersenneTwister",
                                    "Default",    nullptr,           "none such"};
  uint32_t words[5];
  for (uint32_t &word : words) word = input.take<uint8_t>();
  const char *name = kNames[below(input, std::size(kNames))];
  const mint count = below(input, 6);
  RandomGeneratorSnapshot *snapshot =
      oneIn(input, 4) ? RandomGeneratorSnapshot_capture(count == 0 ? nullptr : words, count)
                      : RandomGenerator_create(name, nullptr, words, count);
  if (snapshot != nullptr && oneIn(input, 4)) RandomGeneratorSnapshot_pin(snapshot);
  RandomGeneratorSnapshot_activate(snapshot);
}

// Elements with room behind them that no draw may touch.
template <class Element, class Draw>
void drawInto(mint count, mint *status, std::vector<Element> &drawn, Draw draw) {
  constexpr size_t kRoom = 4;
  drawn.assign(size_t(std::max(count, 0)) + kRoom, Element(77));
  *status = draw(drawn.data(), count);
  for (size_t i = 0; i < kRoom; ++i) {
    require(drawn.back() == Element(77));
    drawn.pop_back();
  }
}

mint takeCount(Input &input) { return oneIn(input, 16) ? takeInteger(input) % 3000 : below(input, 50); }

void drawIntegers(Input &input) {
  const mint a = takeInteger(input), b = takeInteger(input), count = takeCount(input);
  std::vector<mint> drawn;
  mint status;
  drawInto(count, &status, drawn, [a, b](mint *to, mint n) { return UniformRandomMIntegers(to, n, a, b); });
  require(status == (std::abs(int64_t{a} - b) > INT32_MAX ? 4 : 0));
  if (status == 0)
    for (const mint x : drawn) require(x >= std::min(a, b) && x <= std::max(a, b));
}

void drawReals(Input &input) {
  const mreal a = takeReal(input), b = takeReal(input);
  std::vector<mreal> drawn;
  mint status;
  drawInto(takeCount(input), &status, drawn,
           [a, b](mreal *to, mint n) { return UniformRandomMReals(to, n, a, b); });
  require(status == (std::isfinite((b - a) * 2) ? 0 : 1001));
  const mreal slack = 4 * DBL_EPSILON * (std::fabs(a) + std::fabs(b));
  if (status == 0)
    for (const mreal x : drawn) require(x >= std::min(a, b) - slack && x <= std::max(a, b) + slack);
}

// A draw of complexes leaves its scratch allocated, whatever comes of it.
uint32_t drawComplexes(Input &input) {
  const mcomplex low = takeComplex(input), high = takeComplex(input);
  const mint count = below(input, 20);
  std::vector<mcomplex> drawn(size_t(count) + 1, mcomplex{77, 77});
  const mint status = UniformRandomMComplexes(drawn.data(), count, low.re, low.im, high.re, high.im);
  require(status == 0 || status == 1001);
  require(drawn.back().re == 77 && drawn.back().im == 77);
  return count == 0 ? 0 : allocatedBytesFor(uint32_t(count) * sizeof(mreal));
}

void step(Input &input, Blocks &blocks, uint32_t &keptBytes) {
  switch (below(input, 9)) {
  case 0:
    return seed(input);
  case 1:
    return activate(input);
  case 2:
    return blocks.open() < 5 ? blocks.begin() : blocks.end();
  case 3:
    return blocks.end();
  case 4:
    return drawIntegers(input);
  case 5:
    return drawReals(input);
  case 6:
    keptBytes += drawComplexes(input);
    return;
  default:
    bitsOf(Runtime_GetCurrentRandomGenerator(), takeBits(input));
  }
}

uint32_t useThread(Input &input) {
  uint32_t keptBytes = 0;
  Blocks blocks;
  for (int steps = 0; steps < 60 && !input.isEmpty(); ++steps) step(input, blocks, keptBytes);
  return keptBytes;
}

// ---- a buffer and the row of its bits ----

void expectIntegers(Input &input, BufferedWords &words, BitModel &model) {
  const mint low = takeInteger(input);
  const auto range = uint32_t(std::abs(int64_t{takeInteger(input)})) & INT32_MAX;
  const mint high = mint(std::min<int64_t>(int64_t{low} + range, INT32_MAX));
  const uint32_t span = uint32_t(high) - uint32_t(low);
  std::vector<mint> drawn(size_t(below(input, 40)));
  const mint status = words.generator->functions->randomMIntegers(drawn.data(), mint(drawn.size()), low, high,
                                                                  words.generator);
  if (span > INT32_MAX) return require(status == 4);
  require(status == 0);
  const mint bits = span == 0 ? 0 : 32 - mint(__builtin_clz(span));
  for (const mint x : drawn) {
    uint32_t read = model.read(bits);
    while (read > span) read = model.read(bits);
    require(x == mint(uint32_t(low) + read));
  }
}

void expectReals(Input &input, BufferedWords &words, BitModel &model) {
  std::vector<mreal> drawn(size_t(below(input, 40)));
  require(words.generator->functions->randomMReals(drawn.data(), mint(drawn.size()), -1, 3,
                                                   words.generator) == 0);
  for (const mreal x : drawn) require(x == readReal(model, -1, 3));
}

uint32_t useBuffer(Input &input) {
  BufferedWords words(1 + uint32_t(below(input, 9)));
  BitModel model;
  for (int steps = 0; steps < 60 && !input.isEmpty(); ++steps) {
    const mint bits = takeBits(input);
    if (bits == 32)
      expectIntegers(input, words, model);
    else if (bits == 31)
      expectReals(input, words, model);
    else
      require(words.getBits(bits) == model.read(bits));
    require(words.isAt(model.position));
  }
  return 0;
}

// What a thread keeps once it has used all methods.
void warmUp() {
  startLimited();
  for (const char *name : {"ExtendedCA", "MersenneTwister", "ParallelMersenneTwister"}) {
    const uint32_t word = 1;
    RandomGeneratorSnapshot_activate(RandomGenerator_create(name, nullptr, &word, 1));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  warmUp();
  Input input(bytes, count);
  const uint32_t before = usedBytesOfThisThread();
  const uint32_t kept = oneIn(input, 3) ? useBuffer(input) : useThread(input);
  require(usedBytesOfThisThread() == before + kept);
  return 0;
}
