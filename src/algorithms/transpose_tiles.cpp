// Tiles of four, eight and sixteen bytes in the vector registers that every supported processor has.
#include "transpose_tiles.h"

#include "transpose_words.h"

#include <algorithm>
#include <emmintrin.h>
#include <string.h>

namespace torvane {

namespace {

constexpr mint kTile = 8;
constexpr mint kSquare = 64;               // elements along the side of a square of tiles
constexpr size_t kSmallBytes = 256 * 1024; // of a matrix that the caches hold with its transpose
constexpr mint kManyColumns = 16384;       // lines that the second cache holds no more

template <class Word> const Word *wordsAt(const char *data, ptrdiff_t offset) {
  return reinterpret_cast<const Word *>(data + offset);
}
template <class Word> Word *wordsAt(char *data, ptrdiff_t offset) {
  return reinterpret_cast<Word *>(data + offset);
}

__m128i load(const char *from) { return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from)); }
void store(char *to, __m128i value) { _mm_storeu_si128(reinterpret_cast<__m128i *>(to), value); }

// Two by two reals, four by four integers: the smallest square that registers hold.
template <class Word> struct Cell;
template <> struct Cell<Word8> {
  static constexpr mint kSide = 2;
  __m128i rows[2];

  void read(const char *from, ptrdiff_t stride) {
    const __m128i a = load(from), b = load(from + stride);
    rows[0] = _mm_unpacklo_epi64(a, b);
    rows[1] = _mm_unpackhi_epi64(a, b);
  }
  void write(char *to, ptrdiff_t stride) const {
    store(to, rows[0]);
    store(to + stride, rows[1]);
  }
};
template <> struct Cell<Word4> {
  static constexpr mint kSide = 4;
  __m128i rows[4];

  void read(const char *from, ptrdiff_t stride) {
    const __m128i a = load(from), b = load(from + stride), c = load(from + 2 * stride),
                  d = load(from + 3 * stride);
    const __m128i ab = _mm_unpacklo_epi32(a, b), cd = _mm_unpacklo_epi32(c, d);
    const __m128i ef = _mm_unpackhi_epi32(a, b), gh = _mm_unpackhi_epi32(c, d);
    rows[0] = _mm_unpacklo_epi64(ab, cd);
    rows[1] = _mm_unpackhi_epi64(ab, cd);
    rows[2] = _mm_unpacklo_epi64(ef, gh);
    rows[3] = _mm_unpackhi_epi64(ef, gh);
  }
  void write(char *to, ptrdiff_t stride) const {
    for (int i = 0; i < 4; ++i) store(to + i * stride, rows[i]);
  }
};
template <> struct Cell<Word16> {
  static constexpr mint kSide = 1;
  __m128i row;

  void read(const char *from, ptrdiff_t) { row = load(from); }
  void write(char *to, ptrdiff_t) const { store(to, row); }
};

template <class Word> void copyTile(const char *from, ptrdiff_t fromStride, char *to, ptrdiff_t toStride) {
  constexpr mint side = Cell<Word>::kSide;
  constexpr auto step = static_cast<ptrdiff_t>(side * sizeof(Word));
  for (mint j = 0; j < kTile / side; ++j)
    for (mint i = 0; i < kTile / side; ++i) {
      Cell<Word> cell;
      cell.read(from + i * side * fromStride + j * step, fromStride);
      cell.write(to + j * side * toStride + i * step, toStride);
    }
}

// Matrices are passed by value: a store of raw bytes might change one that is referred to.
template <class Word> void copySmall(MatrixCopy m) {
  for (mint j = 0; j < m.columns; ++j)
    for (mint i = 0; i < m.rows; ++i)
      wordsAt<Word>(m.to, j * m.toStride)[i] = wordsAt<Word>(m.from, i * m.fromStride)[j];
}

template <class Word> MatrixCopy partOf(MatrixCopy m, mint i, mint j, mint rows, mint columns) {
  constexpr auto bytes = static_cast<ptrdiff_t>(sizeof(Word));
  return {m.from + i * m.fromStride + j * bytes,
          m.to + j * m.toStride + i * bytes,
          m.fromStride,
          m.toStride,
          rows,
          columns};
}

// What tiles leave over, by cells.
template <class Word> void copyEdge(MatrixCopy m) {
  constexpr mint side = Cell<Word>::kSide;
  const mint rows = m.rows / side * side, columns = m.columns / side * side;
  for (mint j = 0; j < columns; j += side)
    for (mint i = 0; i < rows; i += side) {
      const MatrixCopy part = partOf<Word>(m, i, j, side, side);
      Cell<Word> cell;
      cell.read(part.from, part.fromStride);
      cell.write(part.to, part.toStride);
    }
  if (rows < m.rows) copySmall<Word>(partOf<Word>(m, rows, 0, m.rows - rows, m.columns));
  if (columns < m.columns) copySmall<Word>(partOf<Word>(m, 0, columns, rows, m.columns - columns));
}

template <class Word> void copyStrip(MatrixCopy m) {
  constexpr auto step = static_cast<ptrdiff_t>(kTile * sizeof(Word));
  const mint rows = m.rows / kTile * kTile, columns = m.columns / kTile * kTile;
  for (mint j = 0; j < columns; j += kTile) {
    const char *from = partOf<Word>(m, 0, j, 0, 0).from;
    char *to = partOf<Word>(m, 0, j, 0, 0).to;
    for (mint i = 0; i < rows; i += kTile, from += kTile * m.fromStride, to += step)
      copyTile<Word>(from, m.fromStride, to, m.toStride);
    if (rows < m.rows) copyEdge<Word>(partOf<Word>(m, rows, j, m.rows - rows, kTile));
  }
  if (columns < m.columns) copyEdge<Word>(partOf<Word>(m, 0, columns, m.rows, m.columns - columns));
}

// A few rows or columns: every line on the long side is read or written from end to end.
template <class Word, mint kRows> void copyFewRows(MatrixCopy m) {
  for (mint j = 0; j < m.columns; ++j) {
    Word *to = wordsAt<Word>(m.to, j * m.toStride);
    for (mint i = 0; i < kRows; ++i) to[i] = wordsAt<Word>(m.from, i * m.fromStride)[j];
  }
}
template <class Word, mint kColumns> void copyFewColumns(MatrixCopy m) {
  for (mint i = 0; i < m.rows; ++i) {
    const Word *from = wordsAt<Word>(m.from, i * m.fromStride);
    for (mint j = 0; j < kColumns; ++j) wordsAt<Word>(m.to, j * m.toStride)[i] = from[j];
  }
}
template <class Word> using Copy = void (*)(MatrixCopy);
template <class Word> bool copyThin(MatrixCopy m) {
  constexpr Copy<Word> rows[] = {copyFewRows<Word, 1>, copyFewRows<Word, 2>, copyFewRows<Word, 3>,
                                 copyFewRows<Word, 4>, copyFewRows<Word, 5>, copyFewRows<Word, 6>,
                                 copyFewRows<Word, 7>};
  constexpr Copy<Word> columns[] = {copyFewColumns<Word, 1>, copyFewColumns<Word, 2>, copyFewColumns<Word, 3>,
                                    copyFewColumns<Word, 4>, copyFewColumns<Word, 5>, copyFewColumns<Word, 6>,
                                    copyFewColumns<Word, 7>};
  if (m.rows < kTile && m.rows <= m.columns)
    rows[m.rows - 1](m);
  else if (m.columns < kTile)
    columns[m.columns - 1](m);
  else
    return false;
  return true;
}

// A strip of the source: two lines of the result wide where all of them stay in the cache until they are
// full, else a part of it, for lines at a distance of a power of two compete for the same few places.
struct Strip {
  mint rows, columns;
};
template <class Word> Strip stripOf(MatrixCopy m) {
  constexpr auto bytes = static_cast<mint>(sizeof(Word));
  if (static_cast<size_t>(m.rows) * static_cast<size_t>(m.columns) * sizeof(Word) <= kSmallBytes)
    return {m.rows, m.columns};
  if (m.toStride % 2048 == 0 || m.columns > kManyColumns) return {256 / bytes, 2048 / bytes};
  return {128 / bytes, m.columns};
}

// Rows of the source to copy first, so that every tile is stored at the start of a line, or of a register's
// width, in the rows of the result, where these stand alike to it.
template <class Word> mint leadingRows(MatrixCopy m) {
  const ptrdiff_t boundary = m.toStride % 64 == 0 ? 64 : m.toStride % 16 == 0 ? 16 : 1;
  const auto beyond = static_cast<ptrdiff_t>(reinterpret_cast<intptr_t>(m.to) & (boundary - 1));
  const ptrdiff_t missing = (boundary - beyond) % boundary;
  return missing % static_cast<ptrdiff_t>(sizeof(Word)) == 0
             ? static_cast<mint>(missing / ptrdiff_t{sizeof(Word)})
             : 0;
}

template <class Word> void copyStrips(MatrixCopy m) {
  const Strip strip = stripOf<Word>(m);
  for (mint j = 0; j < m.columns; j += strip.columns)
    for (mint i = 0; i < m.rows; i += strip.rows)
      copyStrip<Word>(
          partOf<Word>(m, i, j, std::min(strip.rows, m.rows - i), std::min(strip.columns, m.columns - j)));
}

template <class Word> void copyWords(MatrixCopy m) {
  if (copyThin<Word>(m)) return;
  const mint lead = std::min(m.rows, leadingRows<Word>(m));
  copySmall<Word>(partOf<Word>(m, 0, 0, lead, m.columns));
  copyStrips<Word>(partOf<Word>(m, lead, 0, m.rows - lead, m.columns));
}

// Short blocks are moved by the word: a copy of a length known only at run time costs a call.
constexpr size_t kShortBlock = 64;
void copyBlock(char *to, const char *from, size_t bytes) {
  if (bytes > kShortBlock) {
    memcpy(to, from, bytes);
    return;
  }
  const auto size = static_cast<ptrdiff_t>(bytes);
  ptrdiff_t at = 0;
  for (; at + 8 <= size; at += 8) *wordsAt<Word8>(to, at) = *wordsAt<Word8>(from, at);
  if (at < size) *wordsAt<Word4>(to, at) = *wordsAt<Word4>(from, at);
}

void copyBlocks(MatrixCopy m, size_t bytes) {
  const auto step = static_cast<ptrdiff_t>(bytes);
  for (mint first = 0; first < m.columns; first += kSquare) {
    const mint last = std::min(m.columns, first + kSquare);
    for (mint i = 0; i < m.rows; ++i)
      for (mint j = first; j < last; ++j)
        copyBlock(m.to + j * m.toStride + i * step, m.from + i * m.fromStride + j * step, bytes);
  }
}

template <class Word> void exchangeTiles(char *a, char *b, ptrdiff_t stride) {
  constexpr mint side = Cell<Word>::kSide;
  constexpr auto step = static_cast<ptrdiff_t>(side * sizeof(Word));
  for (mint i = 0; i < kTile / side; ++i)
    for (mint j = 0; j < kTile / side; ++j) {
      char *const upper = a + i * side * stride + j * step, *const lower = b + j * side * stride + i * step;
      Cell<Word> first, second;
      first.read(upper, stride);
      second.read(lower, stride);
      first.write(lower, stride);
      second.write(upper, stride);
    }
}

void exchangeBlocks(char *a, char *b, size_t bytes) { std::swap_ranges(a, a + bytes, b); }

// The part of the matrix right of column `column` and above the diagonal is exchanged with its mirror image.
template <class Word> void exchangeSmall(char *data, mint size, ptrdiff_t stride, mint fromRow, mint column) {
  for (mint j = column; j < size; ++j)
    for (mint i = fromRow; i < j; ++i)
      std::swap(wordsAt<Word>(data, i * stride)[j], wordsAt<Word>(data, j * stride)[i]);
}

template <class Word>
void exchangeSquares(char *data, mint tiles, ptrdiff_t stride, mint rowTile, mint columnTile) {
  constexpr mint perSquare = kSquare / kTile;
  constexpr auto step = static_cast<ptrdiff_t>(kTile * sizeof(Word));
  for (mint i = rowTile; i < std::min(tiles, rowTile + perSquare); ++i)
    for (mint j = std::max(columnTile, i + 1); j < std::min(tiles, columnTile + perSquare); ++j)
      exchangeTiles<Word>(data + i * kTile * stride + j * step, data + j * kTile * stride + i * step, stride);
}

template <class Word> void exchangeWords(char *data, mint size) {
  const auto stride = static_cast<ptrdiff_t>(sizeof(Word)) * size;
  const mint tiles = size / kTile;
  for (mint i = 0; i < tiles; i += kSquare / kTile)
    for (mint j = i; j < tiles; j += kSquare / kTile) exchangeSquares<Word>(data, tiles, stride, i, j);
  for (mint tile = 0; tile < tiles; ++tile)
    exchangeSmall<Word>(data, (tile + 1) * kTile, stride, tile * kTile, tile * kTile);
  exchangeSmall<Word>(data, size, stride, 0, tiles * kTile);
}

} // namespace

void copyTransposed(const MatrixCopy &matrix, size_t bytes) {
  if (matrix.rows < 1 || matrix.columns < 1) return;
  switch (bytes) {
  case 4:
    return copyWords<Word4>(matrix);
  case 8:
    return copyWords<Word8>(matrix);
  case 16:
    return copyWords<Word16>(matrix);
  default:
    return copyBlocks(matrix, bytes);
  }
}

void transposeSquare(char *data, mint size, size_t bytes) {
  switch (bytes) {
  case 4:
    return exchangeWords<Word4>(data, size);
  case 8:
    return exchangeWords<Word8>(data, size);
  case 16:
    return exchangeWords<Word16>(data, size);
  default:
    const auto step = static_cast<ptrdiff_t>(bytes);
    for (mint i = 0; i < size; ++i)
      for (mint j = i + 1; j < size; ++j)
        exchangeBlocks(data + (ptrdiff_t{i} * size + j) * step, data + (ptrdiff_t{j} * size + i) * step,
                       bytes);
  }
}

} // namespace torvane
