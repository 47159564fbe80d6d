// Free cells and the links between them. A link is one word that holds the address of a free cell and, beside
// it, how many cells the list has from there to its end:
//     count(link) = 0 if the link is null, else 1 + count(link.cell()->next).
// A list that grows and shrinks at its front alone keeps that by itself, so that a slab needs no counter of
// its free cells, which would cost a load, an addition and a store with every cell that goes or comes.
//
// The narrow target has 32 bits for each of the two; the wide one gives the address the 48 bits that the
// system hands out. An area above them is treated as memory that is not there.
#pragma once

#include <cstdint>

namespace torvane {

struct FreeCell;

class CellLink {
public:
  constexpr CellLink() = default;
  CellLink(const FreeCell *cell, uint32_t count) : word(addressOf(cell) << kCountBits | count) {}

  bool isNull() const { return word == 0; }
  uint32_t count() const { return static_cast<uint32_t>(word & ((uint64_t{1} << kCountBits) - 1)); }
  FreeCell *cell() const { return reinterpret_cast<FreeCell *>(static_cast<uintptr_t>(word >> kCountBits)); }

  // Whether all addresses of an area fit into links.
  static bool reaches(const void *memory, uint32_t bytes) {
    return (addressOf(memory) + bytes) >> (64 - kCountBits) == 0;
  }

private:
  static constexpr unsigned kCountBits = sizeof(void *) == 4 ? 32 : 16;
  static uint64_t addressOf(const void *cell) { return reinterpret_cast<uintptr_t>(cell); }

  uint64_t word = 0;
};
static_assert(sizeof(CellLink) == 8); // the smallest cell has room for it

struct FreeCell {
  CellLink next;
};

} // namespace torvane
