// Searching a tensor for a pattern.
//
// A pattern of rank p stands where a block of the last p dimensions has its type and extents, and all its
// elements within the tolerance (search_match.h). Blocks are found depth() dimensions down, and numbered from
// 0 in row-major order. A pattern without elements stands nowhere.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

struct Search {
  const MTensor *tensor, *pattern;
  mreal tolerance; // in bits, as near1_double takes it; below 0, or a NaN, it is as 0

  mint depth() const { return tensor->rank - pattern->rank; }
  // Whether blocks have the extents of the pattern; depth 0 makes one block of the tensor itself.
  bool hasBlocks() const;
};

// How often the pattern stands in the tensor, a dimension down at least; -1 for a type that has no elements.
mint countMatches(const Search &search);

// 1 where it stands there, else 0; -1 as above. Looks no further than the first match.
mint hasMatch(const Search &search);

// The positions of the pattern in the slot: an integer matrix of a row a match and a column a dimension above
// the blocks, which may be none. The slot may hold either tensor. Status: 1 for blocks of a type that has no
// elements, 403.
mint MTensor_position(MTensor **resultSlot, const MTensor *tensor, const MTensor *pattern, mreal tolerance);

} // namespace torvane
