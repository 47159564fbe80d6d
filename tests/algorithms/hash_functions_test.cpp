// The hash functions against their published values, and the library's own forms against slow and literal
// models written here.
#include "algorithms/hash_functions.h"
#include "algorithms/hash_table_settings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace torvane;

namespace {

using Bytes = std::vector<unsigned char>;

Bytes counting(uint32_t length) {
  Bytes bytes(length);
  for (uint32_t i = 0; i < length; ++i) bytes[i] = static_cast<unsigned char>(i);
  return bytes;
}

// Bytes of both signs at every position.
Bytes scrambled(uint32_t length) {
  Bytes bytes(length);
  uint32_t state = 0x12345u + length;
  for (auto &byte : bytes) byte = static_cast<unsigned char>((state = state * 1664525u + 1013904223u) >> 24);
  return bytes;
}

// A.  Appleby's verification value: the hashes of {}, {0}, {0, 1}, ... under seeds 256, 255, ..., hashed.
template <size_t resultBytes, class Hash> uint32_t verificationValue(Hash hash) {
  const Bytes key = counting(256);
  Bytes results;
  for (uint32_t i = 0; i < 256; ++i) {
    unsigned char result[resultBytes];
    hash(key.data(), i, 256 - i, result);
    results.insert(results.end(), result, result + resultBytes);
  }
  unsigned char final[resultBytes];
  hash(results.data(), static_cast<uint32_t>(results.size()), 0u, final);
  uint32_t value;
  memcpy(&value, final, sizeof value);
  return value;
}

TEST(HashFunctions, Murmur3OfOneWordHasThePublishedVerificationValue) {
  EXPECT_EQ(
      verificationValue<4>([](const void *bytes, uint32_t length, uint32_t seed, unsigned char *result) {
        const uint32_t hash = murmur3x86_32(bytes, length, seed);
        memcpy(result, &hash, sizeof hash);
      }),
      0xB0F57EE3u);
}

TEST(HashFunctions, Murmur3OfFourNarrowLanesHasThePublishedVerificationValue) {
  EXPECT_EQ(
      verificationValue<16>([](const void *bytes, uint32_t length, uint32_t seed, unsigned char *result) {
        uint32_t words[4];
        murmur3x86_128(bytes, length, seed, words);
        memcpy(result, words, sizeof words);
      }),
      0xB3ECE62Au);
}

TEST(HashFunctions, Murmur3OfTwoWideLanesHasThePublishedVerificationValue) {
  EXPECT_EQ(
      verificationValue<16>([](const void *bytes, uint32_t length, uint32_t seed, unsigned char *result) {
        const uint64_t seeds[2] = {seed, seed};
        uint64_t words[2];
        murmur3x64_128(bytes, length, seeds, words);
        memcpy(result, words, sizeof words);
      }),
      0x6384BA69u);
}

TEST(HashFunctions, WideLanesOfMurmur3AreSeededApart) {
  const uint64_t equal[2] = {1, 1}, apart[2] = {1, 2};
  uint64_t a[2], b[2];
  murmur3x64_128("abc", 3, equal, a);
  murmur3x64_128("abc", 3, apart, b);
  EXPECT_NE(a[0], b[0]);
  EXPECT_NE(a[1], b[1]);
}

TEST(HashFunctions, Murmur3OfOneWordHasKnownValues) {
  EXPECT_EQ(murmur3x86_32("", 0, 0), 0u);
  EXPECT_EQ(murmur3x86_32("", 0, 1), 0x514E28B7u);
  EXPECT_EQ(murmur3x86_32("", 0, 0xFFFFFFFFu), 0x81F16F39u);
  EXPECT_EQ(murmur3x86_32("Hello, world!", 13, 0x9747B28Cu), 0x24884CBAu);
}

TEST(HashFunctions, SipHashHasThePublishedVectors) {
  // The first sixteen vectors of the authors' list, key bytes 0 to 15, input bytes 0, 1, 2, ...
  const uint64_t key[2] = {0x0706050403020100u, 0x0F0E0D0C0B0A0908u};
  const uint64_t expected[16] = {
      0x726FDB47DD0E0E31u, 0x74F839C593DC67FDu, 0x0D6C8009D9A94F5Au, 0x85676696D7FB7E2Du,
      0xCF2794E0277187B7u, 0x18765564CD99A68Du, 0xCBC9466E58FEE3CEu, 0xAB0200F58B01D137u,
      0x93F5F5799A932462u, 0x9E0082DF0BA9E4B0u, 0x7A5DBBC594DDB9F3u, 0xF4B32F46226BADA7u,
      0x751E8FBC860EE5FBu, 0x14EA5627C0843D90u, 0xF723CA908E7AF2EEu, 0xA129CA6149BE45E5u,
  };
  const Bytes input = counting(16);
  for (uint32_t length = 0; length < 16; ++length)
    EXPECT_EQ(sipHash24(input.data(), length, key), expected[length]) << length;
}

TEST(HashFunctions, Crc32HasThePublishedCheckValueAndChains) {
  EXPECT_EQ(crc32("123456789", 9, 0), 0xCBF43926u);
  EXPECT_EQ(crc32("6789", 4, crc32("12345", 5, 0)), 0xCBF43926u);
  EXPECT_EQ(crc32("", 0, 0), 0u);
}

TEST(HashFunctions, Crc64OfEcma182HasThePublishedCheckValueAndChains) {
  EXPECT_EQ(crc64("123456789", 9, 0), 0x6C40DF5F0B497347u);
  EXPECT_EQ(crc64("6789", 4, crc64("12345", 5, 0)), 0x6C40DF5F0B497347u);
}

TEST(HashFunctions, Fnv1aHasThePublishedValues) {
  EXPECT_EQ(fnv1a32("", 0, kFnvBasis32), 0x811C9DC5u);
  EXPECT_EQ(fnv1a32("a", 1, kFnvBasis32), 0xE40C292Cu);
  EXPECT_EQ(fnv1a32("foobar", 6, kFnvBasis32), 0xBF9CF968u);
  EXPECT_EQ(fnv1a64("", 0, kFnvBasis64), 0xCBF29CE484222325u);
  EXPECT_EQ(fnv1a64("a", 1, kFnvBasis64), 0xAF63DC4C8601EC8Cu);
  EXPECT_EQ(fnv1a64("foobar", 6, kFnvBasis64), 0x85944171F73967E8u);
}

// The narrow form of SipHash, written step by step as it is defined, on bytes taken one at a time.
uint32_t turned(uint32_t word, int by) { return (word << by) | (word >> (32 - by)); }

uint32_t narrowSipModel(const Bytes &bytes, uint32_t k0, uint32_t k1) {
  uint32_t s[4] = {k0 ^ 0x736f6d65u, k1 ^ 0x646f7261u, k0 ^ 0x6c796765u, k1 ^ 0x74656462u};
  auto round = [&s] {
    s[0] = s[0] + s[1];
    s[1] = turned(s[1], 7);
    s[1] = s[1] ^ s[0];
    s[0] = turned(s[0], 16);
    s[2] = s[2] + s[3];
    s[3] = turned(s[3], 8);
    s[3] = s[3] ^ s[2];
    s[0] = s[0] + s[3];
    s[3] = turned(s[3], 11);
    s[3] = s[3] ^ s[0];
    s[2] = s[2] + s[1];
    s[1] = turned(s[1], 9);
    s[1] = s[1] ^ s[2];
    s[2] = turned(s[2], 16);
  };
  Bytes padded = bytes;
  while (padded.size() % 4 != 3) padded.push_back(0);
  padded.push_back(static_cast<unsigned char>(bytes.size()));
  for (size_t at = 0; at < padded.size(); at += 4) {
    uint32_t word = 0;
    for (size_t i = 4; i-- > 0;) word = word * 256 + padded[at + i];
    s[3] ^= word;
    round();
    round();
    s[0] ^= word;
  }
  s[2] ^= 0xff;
  for (int i = 0; i < 4; ++i) round();
  return s[0] ^ s[1] ^ s[2] ^ s[3];
}

TEST(HashFunctions, NarrowSipHashEqualsTheLiteralModelForEveryTailAndLengthByte) {
  for (uint32_t length = 0; length < 600; ++length) {
    const Bytes bytes = scrambled(length);
    const uint32_t key[2] = {0x01234567u * (length + 1), 0x89ABCDEFu};
    ASSERT_EQ(sipHash24Narrow(bytes.data(), length, key), narrowSipModel(bytes, key[0], key[1])) << length;
  }
}

TEST(HashFunctions, SeededFnvDiffersFromThePublishedOneInItsThreeSteps) {
  for (uint32_t length : {0u, 1u, 2u, 17u, 300u}) {
    const Bytes bytes = scrambled(length);
    uint32_t narrow = (0x811C9DC5u ^ kHashSeeds.fnv32) * 16777619u;
    uint64_t wide = (0xCBF29CE484222325u ^ kHashSeeds.fnv64) * 0x100000001B3u;
    for (const unsigned char byte : bytes) {
      const int extended = byte < 128 ? byte : byte - 256;
      narrow = (narrow ^ static_cast<uint32_t>(extended)) * 16777619u;
      wide = (wide ^ static_cast<uint64_t>(int64_t{extended})) * 0x100000001B3u;
    }
    EXPECT_EQ(hashFnv32(bytes.data(), length), (narrow ^ length) * 16777619u);
    EXPECT_EQ(hashFnv64(bytes.data(), length), (wide ^ length) * 0x100000001B3u);
  }
}

class SelectedHash : public testing::Test {
protected:
  ~SelectedHash() override {
    setHashFunction("Murmur3");
    hashSeeds = &kHashSeeds;
    hashPrefixLimit = 0x7fffffff;
  }
};

TEST_F(SelectedHash, SeedsOfAllButTheCrcsAreNotZero) {
  EXPECT_NE(kHashSeeds.murmur32, 0u);
  EXPECT_NE(kHashSeeds.murmur128, 0u);
  EXPECT_NE(kHashSeeds.fnv32, 0u);
  EXPECT_NE(kHashSeeds.fnv64, 0u);
  for (int i = 0; i < 2; ++i) {
    EXPECT_NE(kHashSeeds.sip32[i], 0u);
    EXPECT_NE(kHashSeeds.sip64[i], 0u);
    EXPECT_NE(kHashSeeds.murmurWide[i], 0u);
  }
  EXPECT_EQ(kHashSeeds.crc32, 0u);
  EXPECT_EQ(kHashSeeds.crc64, 0u);
}

TEST_F(SelectedHash, Murmur3TakesFourLanesFrom128BytesOn) {
  const Bytes bytes = scrambled(400);
  for (uint32_t length : {0u, 1u, 127u}) {
    EXPECT_EQ(hashMurmur3(bytes.data(), length), murmur3x86_32(bytes.data(), length, kHashSeeds.murmur32));
  }
  for (uint32_t length : {128u, 129u, 400u}) {
    uint32_t lanes[4];
    murmur3x86_128(bytes.data(), length, kHashSeeds.murmur128, lanes);
    EXPECT_EQ(hashMurmur3(bytes.data(), length), lanes[0] ^ lanes[1] ^ lanes[2] ^ lanes[3]);
  }
}

TEST_F(SelectedHash, SeededFunctionsTakeTheSeedsInForce) {
  const HashSeeds seeds = {.murmur32 = 1,
                           .murmur128 = 2,
                           .sip32 = {3, 4},
                           .crc32 = 5,
                           .crc64 = 6,
                           .fnv32 = 0,
                           .fnv64 = 0,
                           .murmurWide = {7, 8},
                           .sip64 = {9, 10}};
  hashSeeds = &seeds;
  uint64_t wide[2], published[2];
  hashMurmurWide("abcdef", 6, wide);
  murmur3x64_128("abcdef", 6, seeds.murmurWide, published);
  EXPECT_EQ(wide[0], published[0]);
  EXPECT_EQ(wide[1], published[1]);
  EXPECT_EQ(hashMurmur3("abc", 3), murmur3x86_32("abc", 3, 1));
  EXPECT_EQ(hashSip24("abc", 3), narrowSipModel({'a', 'b', 'c'}, 3, 4));
  EXPECT_EQ(hashSip64("abc", 3), sipHash24("abc", 3, seeds.sip64));
  EXPECT_EQ(hashCrc32("abc", 3), crc32("abc", 3, 5));
  EXPECT_EQ(hashCrc64("abc", 3), crc64("abc", 3, 6));
}

TEST_F(SelectedHash, CrcsOfTheFamilyAreThePublishedOnes) {
  EXPECT_EQ(hashCrc32("123456789", 9), 0xCBF43926u);
  EXPECT_EQ(hashCrc64("123456789", 9), 0x6C40DF5F0B497347u);
}

TEST_F(SelectedHash, SipIsSelectedByItsNameAndMurmurByAnyOther) {
  for (const char *name : {"Murmur3", "sip24", "SIP24 ", "SIP2", "", "FNV"}) {
    setHashFunction("SIP24");
    ASSERT_EQ(hashFunction.load(), &hashSip24);
    setHashFunction(name);
    EXPECT_EQ(hashFunction.load(), &hashMurmur3) << name;
  }
}

uint32_t rememberedLength[3];
const void *rememberedBytes[3];
int calls;
uint32_t rememberingHash(const void *bytes, uint32_t length) {
  rememberedBytes[calls] = bytes;
  rememberedLength[calls] = length;
  return 1u << (8 * calls++);
}

TEST_F(SelectedHash, KeysOfUpToTwiceTheLimitAndOneByteAreHashedWhole) {
  hashFunction = rememberingHash;
  hashPrefixLimit = 5;
  const Bytes bytes = scrambled(32);
  for (uint32_t length : {0u, 1u, 10u, 11u}) {
    calls = 0;
    EXPECT_EQ(hashKeyBytes(bytes.data(), length), 1u);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(rememberedLength[0], length);
    EXPECT_EQ(rememberedBytes[0], bytes.data());
  }
}

TEST_F(SelectedHash, LongerKeysAreHashedByBothEndsAndTheirLength) {
  hashFunction = rememberingHash;
  hashPrefixLimit = 5;
  const Bytes bytes = scrambled(32);
  for (uint32_t length : {12u, 13u, 32u}) {
    calls = 0;
    EXPECT_EQ(hashKeyBytes(bytes.data(), length), 0x010101u);
    ASSERT_EQ(calls, 3);
    EXPECT_EQ(rememberedLength[0], 5u);
    EXPECT_EQ(rememberedLength[1], 5u);
    EXPECT_EQ(rememberedLength[2], 4u);
    EXPECT_TRUE((rememberedBytes[0] == bytes.data()) != (rememberedBytes[1] == bytes.data()));
    EXPECT_TRUE((rememberedBytes[0] == bytes.data() + length - 5) !=
                (rememberedBytes[1] == bytes.data() + length - 5));
  }
}

TEST_F(SelectedHash, HashOfALongKeyIsTheExclusiveOrOfItsThreeParts) {
  hashPrefixLimit = 8;
  const Bytes bytes = scrambled(100);
  const uint32_t length = 100;
  EXPECT_EQ(hashKeyBytes(bytes.data(), length),
            hashMurmur3(bytes.data(), 8) ^ hashMurmur3(bytes.data() + 92, 8) ^ hashMurmur3(&length, 4));
  Bytes middleChanged = bytes;
  middleChanged[50] ^= 1;
  EXPECT_EQ(hashKeyBytes(middleChanged.data(), length), hashKeyBytes(bytes.data(), length));
  hashPrefixLimit = 0x7fffffff;
  EXPECT_NE(hashKeyBytes(middleChanged.data(), length), hashKeyBytes(bytes.data(), length));
}

} // namespace
