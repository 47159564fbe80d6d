// What every hash table and hash function of the process shares: the selected hash of byte strings, its
// seeds, the load factors and the limit for long keys. Stage 0 of start-up sets them all; they hold the same
// values when the library is loaded, so that a table made before start-up behaves alike.
#pragma once

#include "hash_functions.h"

#include <atomic>

namespace torvane {

extern std::atomic<ByteHash> hashFunction;
extern std::atomic<const HashSeeds *> hashSeeds;
extern std::atomic<mreal> maxLoadFactor; // nodes a bucket above which a table grows
extern std::atomic<mreal> minLoadFactor; // nodes a bucket below which a grown table shrinks

// Longest run of bytes hashed at either end of a long key, and its neighbour, which nothing reads.
extern std::atomic<mint> hashPrefixLimit;
extern std::atomic<mint> hashPrefixLimitNeighbour;

// Words of the array keys that are being hashed and compared; 0 outside the operations of keyed tables.
extern std::atomic<mint> currentKeyWords;

// Selects "Murmur3" or "SIP24"; any other name selects Murmur3. Tables that have nodes keep the hashes of the
// function they were made under, so select before filling one.
void setHashFunction(const char *name);

// The hash of a key's bytes under the limit: with L = hashPrefixLimit, keys of up to 2 L + 1 bytes are hashed
// whole, longer ones by their first L bytes, their last L bytes and their length.
uint32_t hashKeyBytes(const void *bytes, uint32_t length);

} // namespace torvane
