// Cyclic redundancy checks, a byte at a time by tables that the compiler computes: CRC-32 of IEEE 802.3,
// reflected (polynomial 0xEDB88320), and CRC-64 of ECMA-182, most significant bit first.
#include "hash_functions.h"

#include "hash_table_settings.h"

#include <array>

namespace torvane {

namespace {

constexpr uint32_t kReflectedPolynomial32 = 0xEDB88320u;
constexpr uint64_t kPolynomial64 = 0x42F0E1EBA9EA3693u;

constexpr std::array<uint32_t, 256> kTable32 = [] {
  std::array<uint32_t, 256> table{};
  for (uint32_t byte = 0; byte < 256; ++byte) {
    uint32_t rest = byte;
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ (kReflectedPolynomial32 & (0u - (rest & 1)));
    table[byte] = rest;
  }
  return table;
}();

constexpr std::array<uint64_t, 256> kTable64 = [] {
  std::array<uint64_t, 256> table{};
  for (uint32_t byte = 0; byte < 256; ++byte) {
    uint64_t rest = uint64_t{byte} << 56;
    for (int bit = 0; bit < 8; ++bit) rest = (rest << 1) ^ (kPolynomial64 & (uint64_t{0} - (rest >> 63)));
    table[byte] = rest;
  }
  return table;
}();

} // namespace

uint32_t crc32(const void *bytes, uint32_t length, uint32_t seed) {
  const auto *at = static_cast<const unsigned char *>(bytes);
  uint32_t rest = ~seed;
  for (uint32_t i = 0; i < length; ++i) rest = (rest >> 8) ^ kTable32[(rest ^ at[i]) & 0xFF];
  return ~rest;
}

uint64_t crc64(const void *bytes, uint32_t length, uint64_t seed) {
  const auto *at = static_cast<const unsigned char *>(bytes);
  uint64_t rest = seed;
  for (uint32_t i = 0; i < length; ++i)
    rest = (rest << 8) ^ kTable64[static_cast<uint32_t>(rest >> 56) ^ at[i]];
  return rest;
}

uint32_t hashCrc32(const void *bytes, uint32_t length) {
  return crc32(bytes, length, hashSeeds.load(std::memory_order_relaxed)->crc32);
}

uint64_t hashCrc64(const void *bytes, uint32_t length) {
  return crc64(bytes, length, hashSeeds.load(std::memory_order_relaxed)->crc64);
}

} // namespace torvane
