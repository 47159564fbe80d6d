// "ExtendedCA", the default method: a one-dimensional cellular automaton with a rule of five cells as a
// buffered generator. A row is `width` pairs of 32-bit words, and each bit of a pair is a cell of a lane of
// its own:
//     next[i] = NOT ((c[i+12] OR c[i+29] OR c[i+52]) XOR c[i] XOR c[i+5]),  i in pairs,
// so that one operation on a vector moves hundreds of cells. Behind the row stands its halo, the 52 pairs
// that the rule reads past the end: the row's own beginning, each pair rotated left by one bit. So lanes run
// into each other, and the row closes on itself as a helix. Invariant: the halo of `current` is that of its
// row.
#include "../runtime/memory.h"
#include "../runtime/types.h"
#include "buffer.h"
#include "by_level.h"
#include "cellular_automaton.h"

#include <algorithm>
#include <string.h>
#include <utility>

namespace torvane {

namespace {

constexpr mint kHaloPairs = 52;

// The rows begin at cache lines, of which the rule's loads would otherwise cross twice as many.
struct CA5State {
  uint64_t *current; // the low word of a pair first, as in memory
  uint64_t *next;
  mint width;  // in pairs
  mint step;   // pairs from one that is put out to the next
  mint offset; // words before the first that is put out
  void *rows;  // the block of both
};

struct CA5Parameters {
  mint width, step, offset;
};
constexpr CA5Parameters kDefaults = {80, 4, 0};

// In order, because the halo of a row narrower than itself begins its own continuation.
[[gnu::always_inline]] inline void closeRow(uint64_t *row, mint width) {
  for (mint i = 0; i < kHaloPairs; ++i) row[width + i] = (row[i] << 1) | (row[i] >> 63);
}

[[gnu::always_inline]] inline void runRuleOver(uint64_t *__restrict next, const uint64_t *__restrict c,
                                               mint width) {
  for (mint i = 0; i < width; ++i) next[i] = ~((c[i + 12] | c[i + 29] | c[i + 52]) ^ c[i] ^ c[i + 5]);
  closeRow(next, width);
}

// The default width is the one that must be fast: known, its loops have no remainders and no tests for
// overlap.
[[gnu::always_inline]] inline void runRuleHere(uint64_t *next, const uint64_t *current, mint width) {
  if (width == kDefaults.width) return runRuleOver(next, current, kDefaults.width);
  runRuleOver(next, current, width);
}

TORVANE_BY_LEVEL(runRule, runRuleHere, (uint64_t * next, const uint64_t *current, mint width),
                 (next, current, width))

void advance(CA5State *automaton) {
  runRule(automaton->next, automaton->current, automaton->width);
  std::swap(automaton->current, automaton->next);
}

[[gnu::always_inline]] inline void putOut(uint32_t *words, uint32_t count, const char *pair, mint step) {
  for (uint32_t i = 0; i + 1 < count; i += 2, pair += 8 * step) memcpy(words + i, pair, 8);
}

mint fill(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *source) {
  auto *automaton = static_cast<CA5State *>(source->state);
  advance(automaton);
  const char *first = reinterpret_cast<const char *>(automaton->current) + 4 * automaton->offset;
  if (automaton->step == kDefaults.step)
    putOut(words, *count, first, kDefaults.step);
  else
    putOut(words, *count, first, automaton->step);
  *bitsLeft = 32;
  return kSuccess;
}

uint32_t rowBytes(mint width) { return static_cast<uint32_t>(width) * 8; }

// Rows wider than the initial one start from zeros.
void loadRow(CA5State *automaton) {
  memset(automaton->current, 0, rowBytes(automaton->width));
  if (rowBytes(automaton->width) <= sizeof initialCells)
    memcpy(automaton->current, initialCells, rowBytes(automaton->width));
}

void addToWord(uint64_t *row, mint i, uint32_t seed) { row[i / 2] ^= uint64_t{seed} << (32 * (i % 2)); }

// Last word first; an odd number of them from the row's second word on.
void addSeed(CA5State *automaton, const uint32_t *seed, mint count) {
  const int64_t words = int64_t{2} * automaton->width;
  for (int64_t i = 0; i < count; ++i)
    addToWord(automaton->current, static_cast<mint>((i + count % 2) % words), seed[count - 1 - i]);
}

// Seed 0 is the initial row itself. Any other is spread over the row by steps without output.
mint seedState(RandomGenerator *source, const uint32_t *seed, mint count) {
  auto *automaton = static_cast<CA5State *>(source->state);
  const bool isInitialRow = count == 1 && seed[0] == 0;
  loadRow(automaton);
  if (!isInitialRow) addSeed(automaton, seed, count);
  closeRow(automaton->current, automaton->width);
  const int64_t steps = isInitialRow ? 0 : int64_t{automaton->width} * 128 / kHaloPairs;
  for (int64_t i = 0; i < steps; ++i) advance(automaton);
  return kSuccess;
}

constexpr uint32_t kLineBytes = 64;

// Each row takes whole lines, and the block one more for the first to begin at one.
CA5State *newState(const CA5Parameters &parameters) {
  const uint32_t bytes = (rowBytes(parameters.width + kHaloPairs) + kLineBytes - 1) & ~(kLineBytes - 1);
  auto *state = static_cast<CA5State *>(allocate(sizeof(CA5State), 0, kFatal));
  char *rows =
      static_cast<char *>(memset(allocate(2 * bytes + kLineBytes, 0, kFatal), 0, 2 * bytes + kLineBytes));
  char *first = rows + (kLineBytes - reinterpret_cast<uintptr_t>(rows) % kLineBytes);
  *state = {reinterpret_cast<uint64_t *>(first),
            reinterpret_cast<uint64_t *>(first + bytes),
            parameters.width,
            parameters.step,
            parameters.offset,
            rows};
  return state;
}

// Words of a fill; 0 where there would be none, or rows past what can be addressed.
uint32_t outputWords(const CA5Parameters &parameters) {
  constexpr mint kWidest = INT32_MAX / 16 - 2 * kHaloPairs;
  if (parameters.width < 1 || parameters.width > kWidest || parameters.step < 1 || parameters.offset < 0)
    return 0;
  const mint pairs = (parameters.width - parameters.offset) / parameters.step;
  return pairs > 0 ? 2 * static_cast<uint32_t>(pairs) : 0;
}

} // namespace

} // namespace torvane

using namespace torvane;

RandomGenerator *CA5BufferState_alloc(void *parameters) {
  const auto *chosen = parameters != nullptr ? static_cast<const CA5Parameters *>(parameters) : &kDefaults;
  const uint32_t words = outputWords(*chosen);
  if (words == 0) return nullptr;
  RandomGenerator *generator = RandomBuffer_new(fill, words);
  bufferOf(generator)->source = newSource(seedState, newState(*chosen));
  return generator;
}

RandomGenerator *CA5BufferState_clone(RandomGenerator *generator) {
  const auto *state = sourceState<CA5State>(generator);
  CA5State *copy = newState({state->width, state->step, state->offset});
  std::copy_n(state->current, state->width + kHaloPairs, copy->current);
  RandomGenerator *clone = RandomBuffer_copy(generator);
  bufferOf(clone)->source = RandomGenerator_copyGeneric(bufferOf(generator)->source);
  bufferOf(clone)->source->state = copy;
  return clone;
}

void CA5BufferState_free(RandomGenerator *generator) {
  auto *state = sourceState<CA5State>(generator);
  torvane::free(state->rows);
  torvane::free(state);
  deleteWithSource(generator);
}

mint CA5State_checkParameters(mint width, mint step, mint offset) {
  return width >= kHaloPairs && step >= 1 && offset >= 0 && step < width - offset ? 1 : 0;
}
