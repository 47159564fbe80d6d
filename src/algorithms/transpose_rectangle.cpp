// In-place transposition as permutations of single rows and single columns.
//
// An array of R rows and C columns, C the longer side, c their greatest common divisor, a = R / c, b = C / c.
// Three passes put element l of the transpose of an R by C matrix at place l:
//   1. column j is turned by j / b:           new (i, j) = old ((i + j / b) mod R, j);  nothing to do for c =
//   1
//   2. row i:                                 new (i, (j R + (i + j / b) mod R) mod C) = old (i, j)
//   3. column j:                              new (i, j) = old ((j + i C - i / a) mod R, j)
// Their inverses in opposite order transpose a matrix of C by R. Rows go through a copy of one, columns
// through a copy of a strip of them, so that memory is walked a few times from end to end, where the cycles
// of the whole permutation would jump through it once for every element. (B. Catanzaro, A. Keller, M.
// Garland, "A decomposition for in-place matrix transposition", PPoPP 2014.) All products stay below 2^31,
// the bound of an element count.
#include "transpose_rectangle.h"

#include "scratch_bytes.h"
#include "transpose_words.h"

#include <algorithm>
#include <numeric>
#include <string.h>

namespace torvane {

namespace {

constexpr uint64_t kStripBytes = 256 * 1024;
constexpr uint32_t kNarrowest = 8, kWidest = 64; // columns of a strip

struct Shape {
  uint32_t rows, columns, a, b;

  Shape(uint32_t shorter, uint32_t longer) : rows(shorter), columns(longer) {
    const uint32_t common = std::gcd(shorter, longer);
    a = shorter / common;
    b = longer / common;
  }
  uint32_t stripWidth(size_t bytes) const {
    const uint64_t wanted = kStripBytes / (uint64_t{rows} * bytes);
    return std::min(columns, static_cast<uint32_t>(std::clamp<uint64_t>(wanted, kNarrowest, kWidest)));
  }
};

template <class Word> class RectangleTransposer {
public:
  // `space` holds a strip or a row of words, `numbers` a number a column.
  RectangleTransposer(Word *words, const Shape &itsShape, Word *space, uint32_t *numbers)
      : data(words), shape(itsShape), scratch(space), places(numbers),
        width(itsShape.stripWidth(sizeof(Word))) {
    for (uint32_t j = 0, place = 0; j < shape.columns; ++j) {
      places[j] = place;
      place += shape.rows;
      if (place >= shape.columns) place -= shape.columns;
    }
  }

  void fromShortRows() {
    turnColumns(false);
    for (uint32_t i = 0; i < shape.rows; ++i) dealRow(i);
    forEachStrip([this](uint32_t first, uint32_t count) { gatherColumns(first, count); });
  }
  void fromLongRows() {
    forEachStrip([this](uint32_t first, uint32_t count) { dealColumns(first, count); });
    for (uint32_t i = 0; i < shape.rows; ++i) gatherRow(i);
    turnColumns(true);
  }

private:
  Word *data;
  Shape shape;
  Word *scratch;
  uint32_t *places; // j R mod C
  uint32_t width;

  Word *at(uint32_t row, uint32_t column) { return data + size_t{row} * shape.columns + column; }
  uint32_t wrap(uint32_t row) const { return row >= shape.rows ? row - shape.rows : row; }

  template <class Pass> void forEachStrip(const Pass &pass) {
    for (uint32_t first = 0; first < shape.columns; first += width)
      pass(first, std::min(width, shape.columns - first));
  }

  void readStrip(uint32_t first, uint32_t count) {
    for (uint32_t i = 0; i < shape.rows; ++i) std::copy_n(at(i, first), count, scratch + size_t{i} * count);
  }

  // Pass 2 and its inverse. b columns at a time share j / b, and the place of their first is the row it adds.
  template <class Move> void forEachPlace(uint32_t i, const Move &move) {
    uint32_t row = i;
    for (uint32_t first = 0; first < shape.columns; first += shape.b, row = wrap(row + 1))
      for (uint32_t k = 0; k < shape.b; ++k) {
        const uint32_t place = places[k] + row;
        move(first + k, place >= shape.columns ? place - shape.columns : place);
      }
  }
  void dealRow(uint32_t i) {
    Word *const row = at(i, 0), *const to = scratch;
    forEachPlace(i, [=](uint32_t j, uint32_t place) { to[place] = row[j]; });
    std::copy_n(to, shape.columns, row);
  }
  void gatherRow(uint32_t i) {
    Word *const row = at(i, 0), *const from = scratch;
    std::copy_n(row, shape.columns, from);
    forEachPlace(i, [=](uint32_t j, uint32_t place) { row[j] = from[place]; });
  }

  // Pass 3 and its inverse. Neighbours in a row come from neighbouring rows of their columns.
  uint32_t rowOf(uint32_t i, uint32_t column) const {
    return static_cast<uint32_t>(
        (uint64_t{i} * shape.columns + shape.rows - i / shape.a % shape.rows + column) % shape.rows);
  }
  template <class Move> void forEachOfRow(uint32_t i, uint32_t first, uint32_t count, const Move &move) {
    uint32_t row = rowOf(i, first);
    for (uint32_t k = 0; k < count; ++k, row = wrap(row + 1)) move(k, scratch + size_t{row} * count + k);
  }
  void gatherColumns(uint32_t first, uint32_t count) {
    readStrip(first, count);
    for (uint32_t i = 0; i < shape.rows; ++i)
      forEachOfRow(i, first, count, [to = at(i, first)](uint32_t k, const Word *from) { to[k] = *from; });
  }
  void dealColumns(uint32_t first, uint32_t count) {
    for (uint32_t i = 0; i < shape.rows; ++i)
      forEachOfRow(i, first, count, [from = at(i, first)](uint32_t k, Word *to) { *to = from[k]; });
    for (uint32_t i = 0; i < shape.rows; ++i) std::copy_n(scratch + size_t{i} * count, count, at(i, first));
  }

  // Pass 1 and its inverse. All columns of a block of b turn alike.
  void turnColumns(bool back) {
    for (uint32_t block = 0, first = 0; first < shape.columns; ++block, first += shape.b)
      for (uint32_t from = first; from < first + shape.b; from += width)
        turnStrip(from, std::min(width, first + shape.b - from),
                  back ? shape.rows - block % shape.rows : block);
  }
  void turnStrip(uint32_t first, uint32_t count, uint32_t by) {
    if (by % shape.rows == 0) return;
    readStrip(first, count);
    for (uint32_t i = 0, row = by % shape.rows; i < shape.rows; ++i, row = wrap(row + 1))
      std::copy_n(scratch + size_t{row} * count, count, at(i, first));
  }
};

template <class Word> bool transposeWords(char *data, uint32_t rows, uint32_t columns) {
  const Shape shape(std::min(rows, columns), std::max(rows, columns));
  const uint64_t strip = uint64_t{shape.stripWidth(sizeof(Word))} * shape.rows;
  const ScratchBytes scratch(std::max<uint64_t>(strip, shape.columns) * sizeof(Word), kQuiet);
  const ScratchBytes places(uint64_t{shape.columns} * sizeof(uint32_t), kQuiet);
  if (!scratch || !places) return false;
  RectangleTransposer<Word> transposer(reinterpret_cast<Word *>(data), shape, scratch.as<Word>(),
                                       places.as<uint32_t>());
  if (rows < columns)
    transposer.fromShortRows();
  else
    transposer.fromLongRows();
  return true;
}

// One bit a place: whether the cycle through it has been walked.
class Marks {
public:
  explicit Marks(uint32_t count) : words((uint64_t{count} / 32 + 1) * sizeof(uint32_t), kReport) {
    if (words) memset(words.as<uint32_t>(), 0, (size_t{count} / 32 + 1) * sizeof(uint32_t));
  }
  explicit operator bool() const { return static_cast<bool>(words); }
  bool has(uint32_t place) const { return (words.as<uint32_t>()[place / 32] >> place % 32 & 1) != 0; }
  void set(uint32_t place) { words.as<uint32_t>()[place / 32] |= 1u << place % 32; }

private:
  ScratchBytes words;
};

} // namespace

bool transposeByCycles(char *data, mint rows, mint columns, size_t bytes) {
  const auto a = static_cast<uint32_t>(rows), b = static_cast<uint32_t>(columns);
  Marks marks(a * b);
  const ScratchBytes held(bytes, kReport);
  if (!marks || !held) return false;
  const auto at = [=](uint32_t place) { return data + size_t{place} * bytes; };
  for (uint32_t start = 1; start + 1 < a * b; ++start) {
    if (marks.has(start)) continue;
    memcpy(held.as<char>(), at(start), bytes);
    uint32_t place = start;
    for (uint32_t source; (source = place % a * b + place / a) != start; place = source) {
      memcpy(at(place), at(source), bytes);
      marks.set(source);
    }
    memcpy(at(place), held.as<char>(), bytes);
  }
  return true;
}

bool transposeRectangle(char *data, mint rows, mint columns, size_t bytes) {
  const auto a = static_cast<uint32_t>(rows), b = static_cast<uint32_t>(columns);
  const bool isDone = bytes == 4    ? transposeWords<Word4>(data, a, b)
                      : bytes == 8  ? transposeWords<Word8>(data, a, b)
                      : bytes == 16 ? transposeWords<Word16>(data, a, b)
                                    : false;
  return isDone || transposeByCycles(data, rows, columns, bytes);
}

} // namespace torvane
