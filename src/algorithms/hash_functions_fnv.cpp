// FNV-1a: published (G. Fowler, L. C. Noll, K.-P. Vo), and the seeded form of the family, which differs in
// three ways: the basis takes the seed and one multiplication before the first byte, bytes are read as signed
// and so extended, and the length is mixed in as if it were one byte more.
#include "hash_functions.h"

#include "hash_table_settings.h"

namespace torvane {

namespace {

// Byte is unsigned char for the published function, signed char for the seeded form.
template <class Byte, class Word> Word mixBytes(const void *bytes, uint32_t length, Word state, Word prime) {
  const auto *at = static_cast<const Byte *>(bytes);
  for (uint32_t i = 0; i < length; ++i) state = (state ^ static_cast<Word>(at[i])) * prime;
  return state;
}

template <class Word> Word seededHash(const void *bytes, uint32_t length, Word basis, Word seed, Word prime) {
  const Word start = (basis ^ seed) * prime;
  return (mixBytes<signed char>(bytes, length, start, prime) ^ length) * prime;
}

} // namespace

uint32_t fnv1a32(const void *bytes, uint32_t length, uint32_t state) {
  return mixBytes<unsigned char>(bytes, length, state, kFnvPrime32);
}

uint64_t fnv1a64(const void *bytes, uint32_t length, uint64_t state) {
  return mixBytes<unsigned char>(bytes, length, state, kFnvPrime64);
}

uint32_t hashFnv32(const void *bytes, uint32_t length) {
  return seededHash(bytes, length, kFnvBasis32, hashSeeds.load(std::memory_order_relaxed)->fnv32,
                    kFnvPrime32);
}

uint64_t hashFnv64(const void *bytes, uint32_t length) {
  return seededHash(bytes, length, kFnvBasis64, hashSeeds.load(std::memory_order_relaxed)->fnv64,
                    kFnvPrime64);
}

} // namespace torvane
