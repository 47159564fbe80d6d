// Columns are independent of each other, so that they fill vector registers without a change to the order in
// which any of them is added up. Several rows are taken at a time: a sum is then read and written once for
// all of these.
#include "columns_loops.h"

#include "../elementwise/folds.h"

namespace torvane {

namespace {

constexpr mint kRowsAtATime = 8;

struct PlainSum {
  template <class T> struct Failures {};
  template <class X, class F> __attribute__((always_inline)) static void add(X &sum, X x, F &) { sum += x; }
};

// In a failure's element the sign bit tells: a sum fails whose sign is that of neither term, or that is the
// most negative word.
struct CheckedSum {
  template <class X> struct Failures { X signs; };
  static uint32_t reservedOnly(uint32_t x) { return x == 0x80000000u ? x : 0; }
  template <class X> __attribute__((always_inline)) static X reservedOnly(X x) {
    return (X)(x == X{} + 0x80000000u) & x;
  }
  template <class X, class F> __attribute__((always_inline)) static void add(X &sum, X x, F &failures) {
    const X before = sum;
    sum += x;
    failures.signs |= ((before ^ sum) & (x ^ sum)) | reservedOnly(sum);
  }
};

// Sixteen bytes, for the columns that fill no whole register.
template <class T> struct NarrowOf { typedef T Type __attribute__((vector_size(16))); };
template <class T> using Narrow = typename NarrowOf<T>::Type;
template <class T> inline constexpr size_t kNarrowLength = 16 / sizeof(T);

template <class X, class T> __attribute__((always_inline)) inline X load(const T *from) {
  X x;
  __builtin_memcpy(&x, from, sizeof x);
  return x;
}

// As many columns as X holds.
template <class Sum, mint kRows, class X, class T, class F>
__attribute__((always_inline)) inline void addTo(T *sums, const T *rows, size_t stride, F &failures) {
  X sum = load<X>(sums);
  for (size_t i = 0; i < kRows; ++i) Sum::add(sum, load<X>(rows + i * stride), failures);
  __builtin_memcpy(sums, &sum, sizeof sum);
}

template <class Sum, class T> struct Failed {
  typename Sum::template Failures<Packed<T>> packed = {};
  typename Sum::template Failures<Narrow<T>> narrow = {};
  typename Sum::template Failures<T> single = {};
};

template <class Sum, mint kRows, class T>
void addRows(T *sums, const T *rows, size_t stride, size_t columns, Failed<Sum, T> &failed) {
  constexpr size_t kLength = kPackedLength<T>;
  Failed<Sum, T> own = failed; // in registers
  size_t j = 0;
  for (; columns - j >= kLength; j += kLength)
    addTo<Sum, kRows, Packed<T>>(sums + j, rows + j, stride, own.packed);
  for (; columns - j >= kNarrowLength<T>; j += kNarrowLength<T>)
    addTo<Sum, kRows, Narrow<T>>(sums + j, rows + j, stride, own.narrow);
  for (; j < columns; ++j) addTo<Sum, kRows, T>(sums + j, rows + j, stride, own.single);
  failed = own;
}

template <class Sum, class T>
void addAll(T *sums, const T *rows, mint count, size_t stride, size_t columns, Failed<Sum, T> &failed) {
  mint i = 0;
  for (; count - i >= kRowsAtATime; i += kRowsAtATime, rows += kRowsAtATime * stride)
    addRows<Sum, kRowsAtATime>(sums, rows, stride, columns, failed);
  for (; i < count; ++i, rows += stride) addRows<Sum, 1>(sums, rows, stride, columns, failed);
}

void addReals(mreal *sums, const mreal *rows, mint count, size_t stride, size_t columns) {
  Failed<PlainSum, mreal> none;
  addAll<PlainSum>(sums, rows, count, stride, columns, none);
}

uint32_t *words(mint *x) { return reinterpret_cast<uint32_t *>(x); }
const uint32_t *words(const mint *x) { return reinterpret_cast<const uint32_t *>(x); }

void addIntegers(mint *sums, const mint *rows, mint count, size_t stride, size_t columns) {
  Failed<PlainSum, uint32_t> none;
  addAll<PlainSum>(words(sums), words(rows), count, stride, columns, none);
}

bool addCheckedIntegers(mint *sums, const mint *rows, mint count, size_t stride, size_t columns) {
  Failed<CheckedSum, uint32_t> failed;
  addAll<CheckedSum>(words(sums), words(rows), count, stride, columns, failed);
  uint32_t signs = failed.single.signs;
  for (mint lane = 0; lane < kPackedLength<uint32_t>; ++lane) signs |= failed.packed.signs[lane];
  for (size_t lane = 0; lane < kNarrowLength<uint32_t>; ++lane) signs |= failed.narrow.signs[lane];
  return signs >> 31 == 0;
}

} // namespace

} // namespace torvane

const torvane_loops::ColumnsLoops torvane_loops::TORVANE_LOOPS_HERE(columns) = {
    .addReals = torvane::addReals,
    .addIntegers = torvane::addIntegers,
    .addCheckedIntegers = torvane::addCheckedIntegers,
};
