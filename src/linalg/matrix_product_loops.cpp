// Loops of matrix products, compiled once a processor level (elementwise/levels.h).
//
// A tile of neighbouring result elements stands in vector registers while the inner index runs: each element
// is still one sum in its own order, so that its bits depend neither on the tile nor on the level. The last
// vector of a row ends with the row and may compute elements of the one before it once more, to the same
// bits.
#include "../elementwise/folds.h"
#include "../elementwise/levels.h"
#include "../scalar/magnitude.h"
#include "matrix_product_loops.h"

#ifdef __AVX512F__
#include <immintrin.h>
#endif

namespace torvane {

using torvane_loops::kExactColumns;
using torvane_loops::kExactRows;

namespace {

// `length` elements side by side.
template <class T, int length> struct VectorOf {
  typedef T Type __attribute__((vector_size(sizeof(T) * length)));
};
template <class T> struct VectorOf<T, 1> { using Type = T; };
template <class T, int length> using Lanes = typename VectorOf<T, length>::Type;

// Vectors of a row at any alignment: whole ones, or one that is longer than the row.
template <class V> struct Whole {
  template <class T> V load(const T *from) const {
    V v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
  }
  template <class T> void store(T *to, V v) const { __builtin_memcpy(to, &v, sizeof v); }
};
#ifdef __AVX512F__
template <class V> struct Leading;
template <> struct Leading<Lanes<mreal, 8>> {
  __mmask8 lanes;
  __m512d load(const mreal *from) const { return _mm512_maskz_loadu_pd(lanes, from); }
  void store(mreal *to, __m512d v) const { _mm512_mask_storeu_pd(to, lanes, v); }
};
template <> struct Leading<Lanes<mreal, 4>> {
  __mmask8 lanes;
  __m256d load(const mreal *from) const { return _mm256_maskz_loadu_pd(lanes, from); }
  void store(mreal *to, __m256d v) const { _mm256_mask_storeu_pd(to, lanes, v); }
};
#endif

// Vectors side by side, of the longest length; of a shorter one a row has fewer.
#if defined __AVX512F__
constexpr int kMostVectors = 4;
#elif defined __AVX2__
constexpr int kMostVectors = 3;
#else
constexpr int kMostVectors = 2;
#endif

// Rows of a tile of reals: as many as the registers hold beside the operands, since the ends of a tile cost
// as much as several steps of its sums.
constexpr int kMostRows = 14;
constexpr int kMostNarrowRows = 8; // of one short vector: the addresses of more of them fill the registers
constexpr int mostRows(int vectors) {
  constexpr int kRegisters = kMostVectors == 4 ? 32 : 16;
  const int rows = (kRegisters - 2) / vectors - 1;
  return rows > kMostRows ? kMostRows : rows;
}

// Words and their products, by vectors of one length, of which `most` stand side by side.
template <class T, int length, int most, template <class> class RowVector = Whole> struct Plain {
  using Word = T;
  using Vector = Lanes<T, length>;
  using Row = RowVector<Vector>;
  static constexpr int kLength = length, kWords = 1, kMost = most;
  static constexpr int rowsBeside(int vectors) {
    if (!isSame<T, mreal>) return 4;
    return isSame<Row, Whole<Vector>> ? mostRows(vectors) : kMostNarrowRows;
  }
  struct Factor {
    T word;
    explicit Factor(const T *from) : word(*from) {}
    Vector times(Vector row) const { return row * word; }
  };
};

// Complex numbers, as pairs of words: x.re * y, plus (-x.im, x.im) * the swapped y, is the product with both
// parts rounded as ever, since a sign costs no rounding.
template <int length, int most> struct Pairs {
  using Word = mreal;
  using Vector = Lanes<mreal, 2 * length>;
  using Row = Whole<Vector>;
  static constexpr int kLength = length, kWords = 2, kMost = most;
  static constexpr int rowsBeside(int) { return 4; }
  struct Factor {
    mreal re;
    Vector im;
    explicit Factor(const mreal *from) : re(from[0]), im(signs() * from[1]) {}
    static Vector signs() {
      if constexpr (length == 1)
        return Vector{-1, 1};
      else if constexpr (length == 2)
        return Vector{-1, 1, -1, 1};
      else
        return Vector{-1, 1, -1, 1, -1, 1, -1, 1};
    }
    static Vector swapped(Vector row) {
      if constexpr (length == 1)
        return __builtin_shufflevector(row, row, 1, 0);
      else if constexpr (length == 2)
        return __builtin_shufflevector(row, row, 1, 0, 3, 2);
      else
        return __builtin_shufflevector(row, row, 1, 0, 3, 2, 5, 4, 7, 6);
    }
    Vector times(Vector row) const { return row * re + swapped(row) * im; }
  };
};

template <class Kind> struct Matrices {
  using Word = typename Kind::Word;
  using Vector = typename Kind::Vector;
  Word *result;
  const Word *a, *b;
  ptrdiff_t k, n; // in words of a row
  typename Kind::Row row = {};
};

// Whether the sum of the lanes is finite: then every lane is, and every element of a sum of such vectors.
// Where it is not, they may all be finite and large.
template <class T, class Vector> bool isSumFinite(Vector lanes) {
  constexpr int kCount = sizeof lanes / sizeof(T);
  T words[kCount];
  __builtin_memcpy(words, &lanes, sizeof words);
  for (int half = kCount / 2; half > 0; half /= 2)
    for (int i = 0; i < half; ++i) words[i] += words[half + i];
  return words[0] - words[0] == 0;
}

// body(0) ... body(count - 1), each with a constant: what it indexes then stands in registers from the start,
// where a loop would begin in memory and unroll too late.
template <int value> struct Constant {
  constexpr operator int() const { return value; }
};
template <int count, int first = 0, class Body>
__attribute__((always_inline)) inline void unrolled(const Body &body) {
  if constexpr (first < count) {
    body(Constant<first>());
    unrolled<count, first + 1>(body);
  }
}

// The elements of one tile, from a row and a column on, in words. From one vector to the next it is a
// vector's length, and `last` from the first to the last one. Adds its elements to those of `all`, lane by
// lane.
template <class Kind, int rows, int vectors>
inline __attribute__((always_inline)) typename Kind::Vector runTile(const Matrices<Kind> &at, ptrdiff_t row,
                                                                    ptrdiff_t column, ptrdiff_t last) {
  using Vector = typename Kind::Vector;
  constexpr int kStep = Kind::kLength * Kind::kWords;
  const ptrdiff_t k = at.k, n = at.n;
  const typename Kind::Row vector = at.row; // its lanes would be read again behind each store
  const typename Kind::Word *a = at.a + row * k, *b = at.b + column;
  typename Kind::Word *to = at.result + row * n + column;
  asm(""
      : "+r"(a), "+r"(b), "+r"(to)); // else the addresses of all rows are made ahead of the walk, and spilled
  const auto offset = [last](int v) { return v > 0 && v == vectors - 1 ? last : ptrdiff_t{v} * kStep; };
  Vector sums[rows][vectors], of[vectors], all[4] = {};
  unrolled<vectors>([&](auto v) { unrolled<rows>([&](auto r) { sums[r][v] = Vector{}; }); });
  ptrdiff_t p = 0;
  do {
    unrolled<vectors>([&](auto v) { of[v] = vector.load(b + offset(v)); });
    b += n;
    unrolled<rows>([&](auto r) {
      const typename Kind::Factor factor(a + r * k + p);
      unrolled<vectors>([&](auto v) { sums[r][v] += factor.times(of[v]); });
    });
  } while ((p += Kind::kWords) < k);
  unrolled<rows>([&](auto r) {
    unrolled<vectors>([&](auto v) {
      vector.store(to + offset(v), sums[r][v]);
      all[(r * vectors + v) % 4] += sums[r][v]; // one sum would wait for itself
    });
    to += n;
  });
  return (all[0] + all[1]) + (all[2] + all[3]);
}

// Tiles of one shape, `count` of them down the rows or along the columns. Yields the sum of their elements,
// lane by lane.
template <class Kind, int rows, int vectors>
typename Kind::Vector runTiles(const Matrices<Kind> &at, ptrdiff_t row, ptrdiff_t column, ptrdiff_t last,
                               ptrdiff_t count, bool isDown) {
  typename Kind::Vector all = {};
  for (;;) {
    asm("" : "+m"(all)); // the registers are the tile's
    all += runTile<Kind, rows, vectors>(at, row, column, last);
    if (--count == 0) return all;
    (isDown ? row : column) += isDown ? rows : vectors * Kind::kLength * Kind::kWords;
  }
}

// Tiles by vectors and rows, up to as many as the registers hold.
template <class Kind>
using Tiles = typename Kind::Vector (*)(const Matrices<Kind> &at, ptrdiff_t row, ptrdiff_t column,
                                        ptrdiff_t last, ptrdiff_t count, bool isDown);
template <class Kind> struct TilesOf {
  ptrdiff_t mostRows;
  Tiles<Kind> byRows[kMostRows];
};

template <class Kind, int rows, int vectors> constexpr Tiles<Kind> tilesOf() {
  if constexpr (vectors <= Kind::kMost && rows <= Kind::rowsBeside(vectors))
    return runTiles<Kind, rows, vectors>;
  else
    return nullptr;
}
template <class Kind, int vectors>
constexpr TilesOf<Kind> kTilesOf = {
    Kind::rowsBeside(vectors),
    {tilesOf<Kind, 1, vectors>(), tilesOf<Kind, 2, vectors>(), tilesOf<Kind, 3, vectors>(),
     tilesOf<Kind, 4, vectors>(), tilesOf<Kind, 5, vectors>(), tilesOf<Kind, 6, vectors>(),
     tilesOf<Kind, 7, vectors>(), tilesOf<Kind, 8, vectors>(), tilesOf<Kind, 9, vectors>(),
     tilesOf<Kind, 10, vectors>(), tilesOf<Kind, 11, vectors>(), tilesOf<Kind, 12, vectors>(),
     tilesOf<Kind, 13, vectors>(), tilesOf<Kind, 14, vectors>()}};
template <class Kind>
constexpr TilesOf<Kind> kTiles[] = {kTilesOf<Kind, 1>, kTilesOf<Kind, 2>, kTilesOf<Kind, 3>,
                                    kTilesOf<Kind, 4>};

// How many of so many rows or vectors that are left make a tile: what fits, or about a half, because a rest
// of one would wait for its own sums; and how many tiles of that size come in a row.
struct Share {
  ptrdiff_t size, count;
};
inline Share shareOf(ptrdiff_t left, ptrdiff_t most) {
  if (left <= most) return {left, 1};
  if (left < 2 * most) return {left / 2, 1};
  return {most, left / most - 1};
}

// All rows of `groups` groups of vectors side by side, the first one at a column. The sum of the elements,
// lane by lane.
template <class Kind>
inline typename Kind::Vector runColumns(const Matrices<Kind> &at, ptrdiff_t m, ptrdiff_t vectors,
                                        ptrdiff_t column, ptrdiff_t last, ptrdiff_t groups) {
  const TilesOf<Kind> &tiles = kTiles<Kind>[vectors - 1];
  if (m <= tiles.mostRows) return tiles.byRows[m - 1](at, 0, column, last, groups, false);
  typename Kind::Vector sum = {};
  for (; groups > 0; --groups, column += vectors * Kind::kLength * Kind::kWords)
    for (ptrdiff_t row = 0; row < m;) {
      const Share rows = shareOf(m - row, tiles.mostRows);
      sum += tiles.byRows[rows.size - 1](at, row, column, last, rows.count, true);
      row += rows.size * rows.count;
    }
  return sum;
}

// All columns, by groups of vectors. Whether the sum of the elements is finite.
template <class Kind> bool run(const Matrices<Kind> &at, ptrdiff_t m) {
  constexpr ptrdiff_t kStep = ptrdiff_t{Kind::kLength} * Kind::kWords;
  typename Kind::Vector sum = {};
  const ptrdiff_t all = (at.n + kStep - 1) / kStep;
  for (ptrdiff_t done = 0; done < all;) {
    const Share group = shareOf(all - done, Kind::kMost);
    const ptrdiff_t start = done * kStep, end = start + group.size * kStep;
    const ptrdiff_t last = (end <= at.n ? end : at.n) - kStep, first = group.size == 1 ? last : start;
    sum += runColumns(at, m, group.size, first, last - first, group.count);
    done += group.size * group.count;
  }
  return isSumFinite<typename Kind::Word>(sum);
}

// Rows that one vector is longer than.
template <class Kind> bool runNarrow(const Matrices<Kind> &at, ptrdiff_t m) {
  return isSumFinite<typename Kind::Word>(runColumns(at, m, 1, 0, 0, 1));
}

#ifdef __AVX512F__
// Rows of one or two whole vectors and up to half of another one: two rows share the last vector, which ends
// with them, and fewer of its lanes are spent on elements that are there already.
namespace shared {

using Vector = Lanes<mreal, 8>;
using Whole512 = Plain<mreal, 8, kMostVectors>;

// Two rows at a time from `row` on. Yields the sum of their elements, lane by lane.
template <int pairs, int vectors> Vector runTile(const Matrices<Whole512> &at, ptrdiff_t row) {
  const ptrdiff_t k = at.k, n = at.n;
  const mreal *a = at.a + row * k, *b = at.b;
  Vector sums[2 * pairs][vectors], lasts[pairs], of[vectors], all[4] = {};
  unrolled<pairs>([&](auto r) {
    lasts[r] = Vector{};
    unrolled<vectors>([&](auto v) { sums[2 * r][v] = sums[2 * r + 1][v] = Vector{}; });
  });
  ptrdiff_t p = 0;
  do {
    unrolled<vectors>([&](auto v) { of[v] = _mm512_loadu_pd(b + 8 * v); });
    // Masked by all lanes: GCC 12 takes what the plain form leaves undefined for a fault.
    const Vector last = _mm512_maskz_broadcast_f64x4(0xFF, _mm256_loadu_pd(b + n - 4));
    unrolled<pairs>([&](auto r) {
      const Vector x = _mm512_set1_pd(a[2 * r * k + p]), y = _mm512_set1_pd(a[(2 * r + 1) * k + p]);
      unrolled<vectors>([&](auto v) {
        sums[2 * r][v] += x * of[v];
        sums[2 * r + 1][v] += y * of[v];
      });
      lasts[r] += _mm512_mask_blend_pd(0xF0, x, y) * last;
    });
    b += n;
  } while (++p < k);
  mreal *to = at.result + row * n;
  unrolled<pairs>([&](auto r) {
    for (int half = 0; half < 2; ++half, to += n)
      unrolled<vectors>([&](auto v) {
        _mm512_storeu_pd(to + 8 * v, sums[2 * r + half][v]);
        all[(2 * r + half) % 4] += sums[2 * r + half][v];
      });
    _mm256_storeu_pd(to - n - 4, __builtin_shufflevector(lasts[r], lasts[r], 0, 1, 2, 3));
    _mm256_storeu_pd(to - 4, __builtin_shufflevector(lasts[r], lasts[r], 4, 5, 6, 7));
    all[r % 4] += lasts[r];
  });
  return (all[0] + all[1]) + (all[2] + all[3]);
}

using Tile = Vector (*)(const Matrices<Whole512> &at, ptrdiff_t row);
constexpr int kMostPairs[] = {8, 5};
constexpr Tile kTiles[][8] = {{runTile<1, 1>, runTile<2, 1>, runTile<3, 1>, runTile<4, 1>, runTile<5, 1>,
                               runTile<6, 1>, runTile<7, 1>, runTile<8, 1>},
                              {runTile<1, 2>, runTile<2, 2>, runTile<3, 2>, runTile<4, 2>, runTile<5, 2>}};

// An odd number of rows takes two tiles and more, which few rows are not worth.
inline bool areFor(mint m, mint n) {
  return (m % 2 == 0 || m >= 13) && n > 8 && n <= 20 && n % 8 != 0 && n % 8 <= 4;
}

// Of an odd number of rows the last tile, which is not the only one, computes one once more.
bool run(const Matrices<Whole512> &at, ptrdiff_t m) {
  const ptrdiff_t vectors = at.n / 8, all = (m + 1) / 2, most = kMostPairs[vectors - 1];
  Vector sum = {};
  for (ptrdiff_t done = 0, pairs; done < all; done += pairs) {
    const ptrdiff_t left = all - done;
    const bool isRest = left <= most && (done > 0 || m % 2 == 0);
    pairs = isRest ? left : left < 2 * most ? (left + 1) / 2 : most;
    sum += kTiles[vectors - 1][pairs - 1](at, isRest ? m - 2 * pairs : 2 * done);
  }
  return isSumFinite<mreal>(sum);
}

} // namespace shared
#endif

// A length below the longest serves rows of fewer than two vectors of the next longer one.
template <class T, int length>
constexpr int kMostOf = kPackedBytes == length *static_cast<int>(sizeof(T)) ? kMostVectors : 2;

bool runReals(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
#ifdef __AVX512F__
  const auto lanes = static_cast<__mmask8>((1 << n) - 1);
  if (shared::areFor(m, n)) return shared::run({result, a, b, k, n}, m);
  if (n >= 8) return run<Plain<mreal, 8, kMostVectors>>({result, a, b, k, n}, m);
  if (n > 4) return runNarrow<Plain<mreal, 8, 1, Leading>>({result, a, b, k, n, {lanes}}, m);
  if (n > 2) return runNarrow<Plain<mreal, 4, 1, Leading>>({result, a, b, k, n, {lanes}}, m);
#elif defined __AVX2__
  if (n >= 4) return run<Plain<mreal, 4, kMostVectors>>({result, a, b, k, n}, m);
#endif
  if (n >= 2) return run<Plain<mreal, 2, kMostOf<mreal, 2>>>({result, a, b, k, n}, m);
  return run<Plain<mreal, 1, 1>>({result, a, b, k, n}, m);
}

bool runComplexes(mcomplex *to, const mcomplex *x, const mcomplex *y, mint m, mint k, mint n) {
  auto *result = reinterpret_cast<mreal *>(to);
  const auto *a = reinterpret_cast<const mreal *>(x), *b = reinterpret_cast<const mreal *>(y);
  const ptrdiff_t width = ptrdiff_t{2} * n, depth = ptrdiff_t{2} * k;
  if constexpr (kPackedLength<mreal> >= 8)
    if (n >= 4) return run<Pairs<4, kMostVectors>>({result, a, b, depth, width}, m);
  if constexpr (kPackedLength<mreal> >= 4)
    if (n >= 2) return run<Pairs<2, kMostOf<mcomplex, 2>>>({result, a, b, depth, width}, m);
  return run<Pairs<1, kMostOf<mcomplex, 1>>>({result, a, b, depth, width}, m);
}

void multiplyIntegers(mint *to, const mint *x, const mint *y, mint m, mint k, mint n) {
  auto *result = reinterpret_cast<uint32_t *>(to);
  const auto *a = reinterpret_cast<const uint32_t *>(x), *b = reinterpret_cast<const uint32_t *>(y);
  if constexpr (kPackedLength<mint> >= 16)
    if (n >= 16) return static_cast<void>(run<Plain<uint32_t, 16, kMostVectors>>({result, a, b, k, n}, m));
  if constexpr (kPackedLength<mint> >= 8)
    if (n >= 8)
      return static_cast<void>(run<Plain<uint32_t, 8, kMostOf<uint32_t, 8>>>({result, a, b, k, n}, m));
  if (n >= 4)
    return static_cast<void>(run<Plain<uint32_t, 4, kMostOf<uint32_t, 4>>>({result, a, b, k, n}, m));
  run<Plain<uint32_t, 1, 3>>({result, a, b, k, n}, m);
}

void largestOfRows(uint32_t *magnitudes, const mint *b, mint k, mint n) {
  for (mint p = 0; p < k; ++p) {
    LargestMagnitude<uint32_t> largest = {0};
    foldDense(largest, reinterpret_cast<const uint32_t *>(b) + ptrdiff_t{p} * n, n);
    magnitudes[p] = largest.value;
  }
}

// Stores sums up to the first one out of range, and yields how many.
mint storeInRange(mint *result, const int64_t *sums, mint count) {
  for (mint j = 0; j < count; ++j) {
    if (sums[j] > kMaximum<mint> || sums[j] < -int64_t{kMaximum<mint>}) return j;
    result[j] = static_cast<mint>(sums[j]);
  }
  return count;
}

// Sums in 64 bits, few enough to stay in the nearest cache while b is read row by row. Products in range need
// 32, which multiply in half the time.
template <mint rows> struct ExactBlock {
  int64_t sums[rows][kExactColumns];

  void run(const mint *a, const mint *b, mint k, mint n, mint start, mint length) {
    __builtin_memset(sums, 0, sizeof sums);
    for (mint j = 0; j < length; j += kChunk)
      addColumns(a, b + start + j, k, n, j, length - j < kChunk ? length - j : kChunk);
  }

private:
  static constexpr mint kChunk = 64;

  void addColumns(const mint *a, const mint *columns, mint k, mint n, mint at, mint length) {
    for (ptrdiff_t p = 0; p < k; ++p) {
      const mint *row = columns + p * n;
      for (mint r = 0; r < rows; ++r) {
        const auto x = static_cast<uint32_t>(a[ptrdiff_t{r} * k + p]);
        int64_t *to = sums[r] + at;
        for (mint j = 0; j < length; ++j) to[j] += static_cast<mint>(x * static_cast<uint32_t>(row[j]));
      }
    }
  }
};

// A row of any length, block by block.
mint multiplyExactRow(mint *result, const mint *a, const mint *b, mint k, mint n) {
  ExactBlock<1> block;
  for (mint start = 0; start < n; start += kExactColumns) {
    const mint length = n - start < kExactColumns ? n - start : kExactColumns;
    block.run(a, b, k, n, start, length);
    const mint stored = storeInRange(result + start, block.sums[0], length);
    if (stored < length) return start + stored;
    if (n - start <= kExactColumns) break; // the next start may be beyond mint
  }
  return n;
}

// Rows of one block, which read b once.
mint multiplyExactRows(mint *result, const mint *a, const mint *b, mint k, mint n) {
  ExactBlock<kExactRows> block;
  block.run(a, b, k, n, 0, n);
  for (mint r = 0; r < kExactRows; ++r) {
    const mint stored = storeInRange(result + ptrdiff_t{r} * n, block.sums[r], n);
    if (stored < n) return r * n + stored;
  }
  return kExactRows * n;
}

template <class X> struct Sum {
  X value;
  void take(X x) { value += x; }
  void merge(Sum other) { take(other.value); }
};

// Whether the fold of all elements is finite. The first and the last vector lie where the data do, those
// between begin at a line of the cache: one element looked at twice counts for nothing, and a vector across
// two lines costs two.
template <template <class> class Fold> bool isFoldFinite(const mreal *x, mint count) {
  constexpr mint kOne = kPackedLength<mreal>, kFour = 4 * kOne;
  if (count < kOne) {
    Fold<mreal> all = {0};
    for (mint k = 0; k < count; ++k) all.take(x[k]);
    return isSumFinite<mreal>(all.value);
  }
  Fold<Packed<mreal>> a = {{}}, b = a, c = a, d = a;
  a.take(loadPacked(x));
  b.take(loadPacked(x + count - kOne));
  mint k = static_cast<mint>(reinterpret_cast<uintptr_t>(x) / sizeof(mreal) % kOne);
  k = k == 0 ? 0 : kOne - k;
  for (; count - k >= kFour; k += kFour) {
    a.take(loadPacked(x + k));
    b.take(loadPacked(x + k + kOne));
    c.take(loadPacked(x + k + 2 * kOne));
    d.take(loadPacked(x + k + 3 * kOne));
  }
  for (; count - k >= kOne; k += kOne) c.take(loadPacked(x + k));
  a.merge(b);
  c.merge(d);
  a.merge(c);
  return isSumFinite<mreal>(a.value);
}

// A sum takes half the operations, and where it is not finite the elements may be all the same.
bool areAllFinite(const mreal *x, mint count) {
  return isFoldFinite<Sum>(x, count) || isFoldFinite<Finiteness>(x, count);
}

// What the sums suspect is looked at: large finite elements may have an infinite sum.
bool multiplyReals(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  return runReals(result, a, b, m, k, n) || areAllFinite(result, m * n);
}
bool multiplyComplexes(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  return runComplexes(result, a, b, m, k, n) || areAllFinite(reinterpret_cast<mreal *>(result), 2 * m * n);
}

} // namespace

} // namespace torvane

const torvane_loops::ProductLoops torvane_loops::TORVANE_LOOPS_HERE(product) = {
    .reals = torvane::multiplyReals,
    .complexes = torvane::multiplyComplexes,
    .integers = torvane::multiplyIntegers,
    .rowMagnitudes = torvane::largestOfRows,
    .exactRow = torvane::multiplyExactRow,
    .exactRows = torvane::multiplyExactRows,
    .areFinite = torvane::areAllFinite,
};
