// Taking reads where they stand: several at a time where the processor can shift each by its own count.
//
// The words of a group of reads are loaded as they are and permuted, so that every lane has the words that
// its read lies in; the bits of its first word are shifted up, those of the last one down. Near the end the
// loads begin earlier, so that they never leave the words.
#include "standing_reads.h"

#include "../runtime/platform_cpu_level.h"

#include <algorithm>
#include <immintrin.h>

namespace torvane {

namespace {

uint64_t pairAt(const uint32_t *word) { return uint64_t{word[0]} << 32 | word[1]; }

uint32_t bitsAt(const uint32_t *words, uint32_t begin, uint32_t bits) {
  return static_cast<uint32_t>(pairAt(words + begin / 32) << begin % 32 >> (64 - bits));
}

// The third word is loaded where a fraction reaches into it, and only there: it may be the one after the
// last.
uint64_t fractionAt(const uint32_t *words, uint32_t begin) {
  const uint32_t *word = words + begin / 32, up = begin % 32;
  const uint32_t third = up + kFractionBits > 64 ? word[2] >> (32 - up) : 0;
  return (pairAt(word) << up | third) >> (64 - kFractionBits);
}

#define TORVANE_AVX2 [[gnu::target("avx2")]]

TORVANE_AVX2 __m256i loaded(const uint32_t *from) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
}

// A group of reads and the words that are loaded for it; near the end of all words these begin earlier.
struct Group {
  const uint32_t *words;
  mint begin; // bits from its first word to its first read
};

Group groupAt(const StandingReads &reads, uint32_t begin, uint32_t wordCount) {
  const uint32_t base = std::min(begin / 32, reads.wordCount - wordCount);
  return {reads.words + base, static_cast<mint>(begin - 32 * base)};
}

// Eight reads lie in nine words. `lanes` are their distances in bits.
TORVANE_AVX2 __m256i readEight(const Group &group, __m256i lanes) {
  const __m256i at = _mm256_add_epi32(_mm256_set1_epi32(group.begin), lanes);
  const __m256i word = _mm256_srli_epi32(at, 5), up = _mm256_and_si256(at, _mm256_set1_epi32(31));
  const __m256i down = _mm256_sub_epi32(_mm256_set1_epi32(32), up);
  const __m256i high = _mm256_permutevar8x32_epi32(loaded(group.words), word);
  const __m256i low = _mm256_permutevar8x32_epi32(loaded(group.words + 1), word);
  return _mm256_or_si256(_mm256_sllv_epi32(high, up), _mm256_srlv_epi32(low, down));
}

// How many were taken.
TORVANE_AVX2 mint readEights(const StandingReads &reads, uint32_t bits, uint32_t *to) {
  constexpr uint32_t kWords = 9;
  if (reads.wordCount < kWords) return 0;
  const __m256i lanes = _mm256_mullo_epi32(_mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7),
                                           _mm256_set1_epi32(static_cast<mint>(bits)));
  const __m128i unwanted = _mm_cvtsi32_si128(static_cast<mint>(32 - bits));
  uint32_t begin = reads.first;
  mint k = 0;
  for (; reads.count - k >= 8; k += 8, begin += 8 * bits) {
    const __m256i read = readEight(groupAt(reads, begin, kWords), lanes);
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to + k), _mm256_srl_epi32(read, unwanted));
  }
  return k;
}

// Four fractions lie in eight words. Each lane's first two words are a pair; its third word stands in the
// high half of a lane whose low half is shifted out. Where there is no third word, what stands for it leaves
// with the bits below the fraction.
TORVANE_AVX2 __m256i readFourFractions(const Group &group) {
  const __m256i lanes = _mm256_setr_epi32(0, 0, 52, 52, 104, 104, 156, 156);
  const __m256i second = _mm256_setr_epi32(1, 0, 1, 0, 1, 0, 1, 0);
  const __m256i at = _mm256_add_epi32(_mm256_set1_epi32(group.begin), lanes);
  const __m256i word = _mm256_add_epi32(_mm256_srli_epi32(at, 5), second), words = loaded(group.words);
  const __m256i up = _mm256_and_si256(at, _mm256_set1_epi64x(31));
  const __m256i down = _mm256_sub_epi64(_mm256_set1_epi64x(64), up);
  const __m256i pair = _mm256_permutevar8x32_epi32(words, word);
  const __m256i third = _mm256_permutevar8x32_epi32(words, _mm256_add_epi32(word, _mm256_set1_epi32(2)));
  const __m256i bits = _mm256_or_si256(_mm256_sllv_epi64(pair, up), _mm256_srlv_epi64(third, down));
  return _mm256_srli_epi64(bits, 64 - kFractionBits);
}

// All of them, where there are four and their words are enough: the last group overlaps the one before.
TORVANE_AVX2 bool readRealsInFours(const StandingReads &reads, const RealInterval &interval, mreal *to) {
  constexpr uint32_t kWords = 8;
  if (reads.wordCount < kWords || reads.count < 4) return false;
  const __m256i half = _mm256_set1_epi64x(kHalfBits);
  const __m256d d = _mm256_set1_pd(interval.d), c = _mm256_set1_pd(interval.c);
  for (mint k = 0; k < reads.count; k += 4) {
    const mint first = std::min(k, reads.count - 4);
    const uint32_t begin = reads.first + static_cast<uint32_t>(first) * kFractionBits;
    const __m256i x = _mm256_or_si256(readFourFractions(groupAt(reads, begin, kWords)), half);
    _mm256_storeu_pd(to + first, _mm256_add_pd(_mm256_mul_pd(_mm256_castsi256_pd(x), d), c));
  }
  return true;
}

} // namespace

void readAll(const StandingReads &reads, uint32_t bits, uint32_t *to) {
  mint k = processorLevel() >= kAvx2Level ? readEights(reads, bits, to) : 0;
  uint32_t begin = reads.first + static_cast<uint32_t>(k) * bits;
  for (; k < reads.count; ++k, begin += bits) to[k] = bitsAt(reads.words, begin, bits);
}

void readReals(const StandingReads &reads, const RealInterval &interval, mreal *to) {
  if (processorLevel() >= kAvx2Level && readRealsInFours(reads, interval, to)) return;
  uint32_t begin = reads.first;
  for (mint k = 0; k < reads.count; ++k, begin += kFractionBits)
    to[k] = interval.ofFraction(fractionAt(reads.words, begin));
}

} // namespace torvane
