// Copying a box: a walk over the outer axes, and one loop over the rows of the innermost, chosen by the size
// of a block before the walk begins. Blocks of a few registers are moved by them: the call of memcpy would
// cost more.
#include "box.h"

#include <string.h>

namespace torvane {

namespace {

template <size_t kBlock> void moveFixed(char *target, const char *source) {
  char held[kBlock];
  memcpy(held, source, kBlock);
  memcpy(target, held, kBlock);
}

// Any number of bytes from kStep on: whole steps, then one that ends where the block ends.
template <size_t kStep> void moveSteps(char *target, const char *source, size_t bytes) {
  size_t done = 0;
  for (; done + kStep <= bytes; done += kStep) moveFixed<kStep>(target + done, source + done);
  if (done < bytes) moveFixed<kStep>(target + bytes - kStep, source + bytes - kStep);
}

// Four at a time: of short moves the counting would take as long as they do.
template <class Move> void forRowsByFour(char *target, const char *source, const BoxAxis &rows, Move move) {
  const ptrdiff_t toThird = 3 * rows.target, fromThird = 3 * rows.source;
  size_t left = rows.count;
  for (; left >= 4; left -= 4, target += 4 * rows.target, source += 4 * rows.source) {
    move(target, source);
    move(target + rows.target, source + rows.source);
    move(target + 2 * rows.target, source + 2 * rows.source);
    move(target + toThird, source + fromThird);
  }
  for (; left > 0; --left, target += rows.target, source += rows.source) move(target, source);
}

template <class Move> void forRows(char *target, const char *source, const BoxAxis &rows, Move move) {
  for (size_t i = 0; i < rows.count; ++i, target += rows.target, source += rows.source) move(target, source);
}

// The lines of a block, so far ahead that they are there when its turn comes. What a processor fetches of its
// own accord is what follows, and the next block does not follow.
constexpr size_t kLine = 64, kAheadBytes = 2048;
void fetchBlock(const char *target, const char *source, size_t block) {
  for (size_t at = 0; at < block; at += kLine) {
    __builtin_prefetch(source + at);
    __builtin_prefetch(target + at, 1);
  }
}

// Blocks of a line and more, each fetched before its turn.
template <class Move>
void forRowsAhead(char *target, const char *source, size_t block, const BoxAxis &rows, Move move) {
  const size_t ahead = std::min(rows.count, 1 + kAheadBytes / block), fetched = rows.count - ahead;
  const auto rowsAhead = static_cast<ptrdiff_t>(ahead);
  forRows(target, source, {fetched, rows.target, rows.source}, [&](char *to, const char *from) {
    fetchBlock(to + rowsAhead * rows.target, from + rowsAhead * rows.source, block);
    move(to, from);
  });
  const auto done = static_cast<ptrdiff_t>(fetched);
  forRows(target + done * rows.target, source + done * rows.source, {ahead, rows.target, rows.source}, move);
}

// Blocks of one element or two. A run that stands backwards on one side has a loop with constant strides,
// which the compiler vectorises.
template <size_t kBlock> void copyFixed(char *target, const char *source, size_t, const BoxAxis &rows) {
  constexpr auto kBytes = static_cast<ptrdiff_t>(kBlock);
  const auto move = [](char *to, const char *from) { moveFixed<kBlock>(to, from); };
  if (rows.target == kBytes && rows.source == -kBytes)
    forRows(target, source, {rows.count, kBytes, -kBytes}, move);
  else if (rows.target == -kBytes && rows.source == kBytes)
    forRows(target, source, {rows.count, -kBytes, kBytes}, move);
  else
    forRowsByFour(target, source, rows, move);
}

template <size_t kStep> void copySteps(char *target, const char *source, size_t block, const BoxAxis &rows) {
  forRows(target, source, rows, [block](char *to, const char *from) { moveSteps<kStep>(to, from, block); });
}

void copyBlocks(char *target, const char *source, size_t block, const BoxAxis &rows) {
  forRowsAhead(target, source, block, rows, [block](char *to, const char *from) { memcpy(to, from, block); });
}

void copyLines(char *target, const char *source, size_t block, const BoxAxis &rows) {
  forRowsAhead(target, source, block, rows,
               [block](char *to, const char *from) { moveSteps<16>(to, from, block); });
}

template <size_t kBlock> void copyFixedLines(char *target, const char *source, size_t, const BoxAxis &rows) {
  forRowsAhead(target, source, kBlock, rows, [](char *to, const char *from) { moveFixed<kBlock>(to, from); });
}

void copyLongBlocks(char *target, const char *source, size_t block, const BoxAxis &rows) {
  forRows(target, source, rows, [block](char *to, const char *from) { memcpy(to, from, block); });
}

// From these on memcpy is worth its call, and what the processor fetches of its own accord is enough.
constexpr size_t kCalledBlock = 256, kLongBlock = 2048;

using Rows = void (*)(char *, const char *, size_t, const BoxAxis &);

Rows rowsFor(size_t block) {
  switch (block) {
  case 1:
    return copyFixed<1>;
  case 2:
    return copyFixed<2>;
  case sizeof(mint):
    return copyFixed<sizeof(mint)>;
  case sizeof(mreal):
    return copyFixed<sizeof(mreal)>;
  case sizeof(mcomplex):
    return copyFixed<sizeof(mcomplex)>;
  case 2 * sizeof(mcomplex):
    return copyFixed<2 * sizeof(mcomplex)>;
  case kLine:
    return copyFixedLines<kLine>;
  case 2 * kLine:
    return copyFixedLines<2 * kLine>;
  default:
    return block < 4              ? copySteps<2>
           : block < 8            ? copySteps<4>
           : block < 16           ? copySteps<8>
           : block < kLine        ? copySteps<16>
           : block < kCalledBlock ? copyLines
           : block < kLongBlock   ? copyBlocks
                                  : copyLongBlocks;
  }
}

} // namespace

void Box::add(size_t count, ptrdiff_t target, ptrdiff_t source) {
  if (count == 1) return;
  const auto steps = static_cast<ptrdiff_t>(count);
  if (rank > 0 && axes[rank - 1].target == steps * target && axes[rank - 1].source == steps * source)
    axes[rank - 1] = {axes[rank - 1].count * count, target, source};
  else
    axes[rank++] = {count, target, source};
}

void Box::walk(mint axis, char *target, const char *source, size_t block, Rows copyRows) const {
  const BoxAxis &here = axes[axis];
  if (axis == rank - 1) return copyRows(target, source, block, here);
  forRows(target, source, here,
          [&](char *to, const char *from) { walk(axis + 1, to, from, block, copyRows); });
}

void Box::copy(char *target, const char *source, size_t block) {
  const auto bytes = static_cast<ptrdiff_t>(block);
  if (rank > 0 && axes[rank - 1].target == bytes && axes[rank - 1].source == bytes)
    block *= axes[--rank].count;
  if (rank == 0) {
    memcpy(target, source, block);
    return;
  }
  walk(0, target, source, block, rowsFor(block));
}

} // namespace torvane
