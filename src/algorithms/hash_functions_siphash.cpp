// SipHash-2-4 on 64-bit words (J.-P. Aumasson, D. J. Bernstein, "SipHash: a fast short-input PRF", 2012), and
// a form on 32-bit words with rotations of its own. Both absorb each word with two rounds, then a last word
// of the tail bytes below the length's low byte, and finish with four rounds. They differ from each other in
// the rotations, and the narrow one is not the published half-width form.
#include "hash_functions.h"

#include "hash_functions_bytes.h"
#include "hash_table_settings.h"

namespace torvane {

namespace {

struct WideState {
  using Word = uint64_t;
  uint64_t s0, s1, s2, s3;

  void round() {
    s0 += s1, s1 = std::rotl(s1, 13) ^ s0, s0 = std::rotl(s0, 32);
    s2 += s3, s3 = std::rotl(s3, 16) ^ s2;
    s0 += s3, s3 = std::rotl(s3, 21) ^ s0;
    s2 += s1, s1 = std::rotl(s1, 17) ^ s2, s2 = std::rotl(s2, 32);
  }
};

struct NarrowState {
  using Word = uint32_t;
  uint32_t s0, s1, s2, s3;

  void round() {
    s0 += s1, s1 = std::rotl(s1, 7) ^ s0, s0 = std::rotl(s0, 16);
    s2 += s3, s3 = std::rotl(s3, 8) ^ s2;
    s0 += s3, s3 = std::rotl(s3, 11) ^ s0;
    s2 += s1, s1 = std::rotl(s1, 9) ^ s2, s2 = std::rotl(s2, 16);
  }
};

template <class State> void absorb(State &state, typename State::Word word) {
  state.s3 ^= word;
  state.round();
  state.round();
  state.s0 ^= word;
}

template <class State> typename State::Word hashWith(State state, const void *bytes, uint32_t length) {
  using Word = typename State::Word;
  constexpr auto width = uint32_t{sizeof(Word)};
  const auto *at = static_cast<const unsigned char *>(bytes);
  uint32_t left = length;
  for (; left >= width; left -= width, at += width) absorb(state, loadWord<Word>(at));
  absorb(state, static_cast<Word>(loadTail<Word>(at, left) | Word{length & 0xFF} << (8 * width - 8)));
  state.s2 ^= 0xFF;
  for (int i = 0; i < 4; ++i) state.round();
  return state.s0 ^ state.s1 ^ state.s2 ^ state.s3;
}

} // namespace

uint64_t sipHash24(const void *bytes, uint32_t length, const uint64_t key[2]) {
  const WideState start = {key[0] ^ 0x736F6D6570736575u, key[1] ^ 0x646F72616E646F6Du,
                           key[0] ^ 0x6C7967656E657261u, key[1] ^ 0x7465646279746573u};
  return hashWith(start, bytes, length);
}

uint32_t sipHash24Narrow(const void *bytes, uint32_t length, const uint32_t key[2]) {
  const NarrowState start = {key[0] ^ 0x736F6D65u, key[1] ^ 0x646F7261u, key[0] ^ 0x6C796765u,
                             key[1] ^ 0x74656462u};
  return hashWith(start, bytes, length);
}

uint32_t hashSip24(const void *bytes, uint32_t length) {
  return sipHash24Narrow(bytes, length, hashSeeds.load(std::memory_order_relaxed)->sip32);
}

uint64_t hashSip64(const void *bytes, uint32_t length) {
  return sipHash24(bytes, length, hashSeeds.load(std::memory_order_relaxed)->sip64);
}

} // namespace torvane
