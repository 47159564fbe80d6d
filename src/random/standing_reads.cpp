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

StandingReads standingReads(const BufferData *data, uint32_t bits, mint wanted) {
  constexpr uint32_t kMostWords = 1 << 20; // so that bits are counted in 32 bits
  const uint32_t loaded = bits > 32 ? 3 : 2;
  const uint32_t words = data->index < data->count ? std::min(data->count - data->index, kMostWords) : 0;
  if (words < loaded) return {nullptr, 0, 0, 0};
  const uint32_t first = 32 - data->bitsLeft, end = 32 * (words - loaded + 1);
  const auto count = static_cast<mint>((end - first + bits - 1) / bits);
  return {data->words + data->index, words, first, std::min(count, wanted)};
}

void moveOver(BufferData *data, const StandingReads &reads, uint32_t bits) {
  const uint32_t end = reads.first + static_cast<uint32_t>(reads.count) * bits;
  data->index += end / 32;
  data->bitsLeft = 32 - end % 32;
  data->words[data->index] &= 0xFFFFFFFF >> (end % 32);
}

namespace {

uint64_t pairAt(const uint32_t *word) { return uint64_t{word[0]} << 32 | word[1]; }

uint32_t bitsAt(const uint32_t *words, uint32_t begin, uint32_t bits) {
  return static_cast<uint32_t>(pairAt(words + begin / 32) << begin % 32 >> (64 - bits));
}

uint64_t fractionAt(const uint32_t *words, uint32_t begin) {
  const uint32_t *word = words + begin / 32, up = begin % 32;
  return (pairAt(word) << up | word[2] >> 1 >> (31 - up)) >> (64 - kFractionBits);
}

#define TORVANE_AVX2 [[gnu::target("avx2")]]

TORVANE_AVX2 __m256i loaded(const uint32_t *from) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
}

// Eight at a time, which lie in nine words. How many were taken.
TORVANE_AVX2 mint readEights(const StandingReads &reads, uint32_t bits, uint32_t *to) {
  constexpr uint32_t kWords = 9;
  if (reads.wordCount < kWords) return 0;
  const __m256i lanes = _mm256_mullo_epi32(_mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7),
                                           _mm256_set1_epi32(static_cast<mint>(bits)));
  const __m128i unwanted = _mm_cvtsi32_si128(static_cast<mint>(32 - bits));
  uint32_t begin = reads.first;
  mint k = 0;
  for (; reads.count - k >= 8; k += 8, begin += 8 * bits) {
    const uint32_t base = std::min(begin / 32, reads.wordCount - kWords);
    const __m256i at = _mm256_add_epi32(_mm256_set1_epi32(static_cast<mint>(begin - 32 * base)), lanes);
    const __m256i word = _mm256_srli_epi32(at, 5), up = _mm256_and_si256(at, _mm256_set1_epi32(31));
    const __m256i down = _mm256_sub_epi32(_mm256_set1_epi32(32), up);
    const __m256i high = _mm256_permutevar8x32_epi32(loaded(reads.words + base), word);
    const __m256i low = _mm256_permutevar8x32_epi32(loaded(reads.words + base + 1), word);
    const __m256i read = _mm256_or_si256(_mm256_sllv_epi32(high, up), _mm256_srlv_epi32(low, down));
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to + k), _mm256_srl_epi32(read, unwanted));
  }
  return k;
}

// Four at a time, which lie in eight words. Each lane's first two words are a pair; the third word stands in
// the high half of a lane whose low half is shifted out.
TORVANE_AVX2 mint readRealsInFours(const StandingReads &reads, const RealInterval &interval, mreal *to) {
  constexpr uint32_t kWords = 8;
  if (reads.wordCount < kWords) return 0;
  const __m256i lanes = _mm256_setr_epi32(0, 0, 52, 52, 104, 104, 156, 156);
  const __m256i second = _mm256_setr_epi32(1, 0, 1, 0, 1, 0, 1, 0), half = _mm256_set1_epi64x(kHalfBits);
  const __m256d d = _mm256_set1_pd(interval.d), c = _mm256_set1_pd(interval.c);
  uint32_t begin = reads.first;
  mint k = 0;
  for (; reads.count - k >= 4; k += 4, begin += 4 * kFractionBits) {
    const uint32_t base = std::min(begin / 32, reads.wordCount - kWords);
    const __m256i at = _mm256_add_epi32(_mm256_set1_epi32(static_cast<mint>(begin - 32 * base)), lanes);
    const __m256i word = _mm256_add_epi32(_mm256_srli_epi32(at, 5), second);
    const __m256i up = _mm256_and_si256(at, _mm256_set1_epi64x(31));
    const __m256i words = loaded(reads.words + base);
    const __m256i pair = _mm256_permutevar8x32_epi32(words, word);
    const __m256i third = _mm256_permutevar8x32_epi32(words, _mm256_add_epi32(word, _mm256_set1_epi32(2)));
    const __m256i bits = _mm256_or_si256(
        _mm256_sllv_epi64(pair, up), _mm256_srlv_epi64(third, _mm256_sub_epi64(_mm256_set1_epi64x(64), up)));
    const __m256i x = _mm256_or_si256(_mm256_srli_epi64(bits, 64 - kFractionBits), half);
    _mm256_storeu_pd(to + k, _mm256_add_pd(_mm256_mul_pd(_mm256_castsi256_pd(x), d), c));
  }
  return k;
}

} // namespace

void readAll(const StandingReads &reads, uint32_t bits, uint32_t *to) {
  mint k = processorLevel() >= kAvx2Level ? readEights(reads, bits, to) : 0;
  uint32_t begin = reads.first + static_cast<uint32_t>(k) * bits;
  for (; k < reads.count; ++k, begin += bits) to[k] = bitsAt(reads.words, begin, bits);
}

void readReals(const StandingReads &reads, const RealInterval &interval, mreal *to) {
  mint k = processorLevel() >= kAvx2Level ? readRealsInFours(reads, interval, to) : 0;
  uint32_t begin = reads.first + static_cast<uint32_t>(k) * kFractionBits;
  for (; k < reads.count; ++k, begin += kFractionBits)
    to[k] = interval.ofFraction(fractionAt(reads.words, begin));
}

} // namespace torvane
