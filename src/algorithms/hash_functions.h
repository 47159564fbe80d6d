// Hash functions of byte strings. The published ones take their seed and give the published values; the
// selectable ones (ByteHash) take their seeds from the process-wide settings. Input is read as little-endian
// words from any address; a length of 0 reads nothing. All are pure and free of allocation.
#pragma once

#include "../runtime/types.h"

namespace torvane {

using ByteHash = uint32_t (*)(const void *bytes, uint32_t length);

// One fixed seed for each function, of its own width. They have no meaning outside the library.
struct HashSeeds {
  uint32_t murmur32;
  uint32_t murmur128;
  uint32_t sip32[2];
  uint32_t crc32;
  uint64_t crc64;
  uint32_t fnv32;
  uint64_t fnv64;
  uint64_t murmurWide[2];
  uint64_t sip64[2];
};
extern const HashSeeds kHashSeeds;

// The two selectable functions.
uint32_t hashMurmur3(const void *bytes, uint32_t length);
uint32_t hashSip24(const void *bytes, uint32_t length);

// The further members of the family, seeded alike. Nothing in the library selects them.
uint32_t hashCrc32(const void *bytes, uint32_t length);
uint64_t hashCrc64(const void *bytes, uint32_t length);
uint32_t hashFnv32(const void *bytes, uint32_t length);
uint64_t hashFnv64(const void *bytes, uint32_t length);
void hashMurmurWide(const void *bytes, uint32_t length, uint64_t result[2]);
uint64_t hashSip64(const void *bytes, uint32_t length);

// MurmurHash3 of A. Appleby. The wide form for 64-bit processors seeds its two lanes apart; equal seeds give
// the published function.
uint32_t murmur3x86_32(const void *bytes, uint32_t length, uint32_t seed);
void murmur3x86_128(const void *bytes, uint32_t length, uint32_t seed, uint32_t result[4]);
void murmur3x64_128(const void *bytes, uint32_t length, const uint64_t seeds[2], uint64_t result[2]);

// SipHash-2-4 of J.-P. Aumasson and D. J. Bernstein (2012), and a form of it on 32-bit words with its own
// rotations, whose result is the exclusive or of the whole state.
uint64_t sipHash24(const void *bytes, uint32_t length, const uint64_t key[2]);
uint32_t sipHash24Narrow(const void *bytes, uint32_t length, const uint32_t key[2]);

// CRC-32 of IEEE 802.3, reflected. The seed is the CRC of what went before: 0 at the beginning.
uint32_t crc32(const void *bytes, uint32_t length, uint32_t seed);
// CRC-64 of ECMA-182, most significant bit first, not inverted at the end.
uint64_t crc64(const void *bytes, uint32_t length, uint64_t seed);

// FNV-1a of G. Fowler, L. C. Noll and K.-P. Vo, from any state; the published functions start at the basis.
inline constexpr uint32_t kFnvBasis32 = 0x811C9DC5u, kFnvPrime32 = 16777619u;
inline constexpr uint64_t kFnvBasis64 = 0xCBF29CE484222325u, kFnvPrime64 = 0x100000001B3u;
uint32_t fnv1a32(const void *bytes, uint32_t length, uint32_t state);
uint64_t fnv1a64(const void *bytes, uint32_t length, uint64_t state);

} // namespace torvane
