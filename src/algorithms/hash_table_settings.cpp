#include "hash_table_settings.h"

#include "../runtime/startup.h"

#include <cstring>

namespace torvane {

const HashSeeds kHashSeeds = {
    .murmur32 = 0x9E3779B9u,
    .murmur128 = 0x7F4A7C15u,
    .sip32 = {0x243F6A88u, 0x85A308D3u},
    .crc32 = 0, // so that both CRCs are the published ones
    .crc64 = 0,
    .fnv32 = 0x13198A2Eu,
    .fnv64 = 0x03707344A4093822u,
    .murmurWide = {0x299F31D0082EFA98u, 0xEC4E6C89452821E6u},
    .sip64 = {0x38D01377BE5466CFu, 0x34E90C6CC0AC29B7u},
};

constinit std::atomic<ByteHash> hashFunction{hashMurmur3};
constinit std::atomic<const HashSeeds *> hashSeeds{&kHashSeeds};
constinit std::atomic<mreal> maxLoadFactor{2.0};
constinit std::atomic<mreal> minLoadFactor{0.5};
constinit std::atomic<mint> hashPrefixLimit{0x7fffffff};
constinit std::atomic<mint> hashPrefixLimitNeighbour{0x7fffffff};
constinit std::atomic<mint> currentKeyWords{0};

namespace {

constexpr auto relaxed = std::memory_order_relaxed;

void setLoadFactors() {
  maxLoadFactor.store(2.0, relaxed);
  minLoadFactor.store(0.5, relaxed);
}

void setLimits() {
  hashPrefixLimit.store(0x7fffffff, relaxed);
  hashPrefixLimitNeighbour.store(0x7fffffff, relaxed);
}

} // namespace

void initializeHashConstants(mint stage) {
  if (stage != 0) return;
  setLoadFactors();
  setLimits();
  setHashFunction("Murmur3");
  hashSeeds.store(&kHashSeeds, relaxed);
  currentKeyWords.store(0, relaxed);
}

void setHashFunction(const char *name) {
  hashFunction.store(strcmp(name, "SIP24") == 0 ? hashSip24 : hashMurmur3, relaxed);
}

uint32_t hashKeyBytes(const void *bytes, uint32_t length) {
  const ByteHash hash = hashFunction.load(relaxed);
  const auto limit = static_cast<uint32_t>(hashPrefixLimit.load(relaxed));
  if (length / 2 <= limit) return hash(bytes, length);
  const auto *last = static_cast<const unsigned char *>(bytes) + (length - limit);
  return hash(bytes, limit) ^ hash(last, limit) ^ hash(&length, sizeof length);
}

} // namespace torvane
