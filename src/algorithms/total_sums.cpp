// Columns are independent of each other, so that they fill vector registers without a change to the order in
// which any of them is added up. A strip of columns takes several rows at a time: its sums, which stay in the
// nearest cache, are then read and written once for all of these, and the rows stream past.
#include "total_sums.h"

#include "../elementwise/reduction.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

constexpr size_t kStrip = 2048; // columns
constexpr mint kRowsAtATime = 8;

struct PlainSum {
  struct Failures {
    static bool any() { return false; }
  };
  template <class T> static void add(T &sum, T x, Failures &) { sum += x; }
};

struct CheckedSum {
  struct Failures {
    uint32_t bits = 0; // the sign bit tells
    bool any() const { return bits >> 31 != 0; }
  };
  // A sum fails whose sign is that of neither term, and so does the most negative word.
  static void add(uint32_t &sum, uint32_t x, Failures &failures) {
    const uint32_t before = sum;
    sum += x;
    failures.bits |= ((before ^ sum) & (x ^ sum)) | (sum == 0x80000000u ? sum : 0);
  }
};

// The columns are the loop that a compiler turns into vector code; the rows of a column are unrolled in it.
template <class Sum, mint kRows, class T>
void addRows(T *__restrict sums, const T *__restrict rows, size_t stride, size_t columns,
             typename Sum::Failures &failures) {
  typename Sum::Failures own;
  for (size_t j = 0; j < columns; ++j) {
    T sum = sums[j];
    for (size_t i = 0; i < kRows; ++i) Sum::add(sum, rows[i * stride + j], own);
    sums[j] = sum;
  }
  if (own.any()) failures = own;
}

template <class Sum, class T>
void sumStrip(T *sums, const T *rows, mint count, size_t stride, size_t columns,
              typename Sum::Failures &failures) {
  mint i = 0;
  for (; count - i >= kRowsAtATime; i += kRowsAtATime)
    addRows<Sum, kRowsAtATime>(sums, rows + static_cast<size_t>(i) * stride, stride, columns, failures);
  for (; i < count; ++i)
    addRows<Sum, 1>(sums, rows + static_cast<size_t>(i) * stride, stride, columns, failures);
}

// Whether no sum failed; a strip that did ends it.
template <class Sum, class T> bool sumStrips(T *sums, const T *rows, mint count, size_t width) {
  typename Sum::Failures failures;
  if (width > 0) memset(sums, 0, width * sizeof *sums);
  for (size_t j = 0; j < width && !failures.any(); j += kStrip)
    sumStrip<Sum>(sums + j, rows + j, count, width, std::min(kStrip, width - j), failures);
  return !failures.any();
}

const uint32_t *words(const mint *x) { return reinterpret_cast<const uint32_t *>(x); }
uint32_t *words(mint *x) { return reinterpret_cast<uint32_t *>(x); }

// A partial sum that is infinite or a NaN leaves no finite one behind it.
bool areFinite(const mreal *sums, size_t count) {
  Finiteness<mreal> state = {0};
  foldDense(state, sums, static_cast<mint>(count));
  return state.value == 0;
}

template <class T> bool sumRun(T *sum, const T *data, mint count, bool isChecked) {
  using reduction::total;
  const Run<T> all = {data, 1, count};
  *sum = {};
  return (isChecked ? total::take<Checked>(*sum, all) : total::take<Plain>(*sum, all)) == 0;
}

} // namespace

bool sumRows(mint *sums, const mint *rows, mint count, size_t width, bool isChecked) {
  return isChecked ? sumStrips<CheckedSum>(words(sums), words(rows), count, width)
                   : sumStrips<PlainSum>(words(sums), words(rows), count, width);
}

bool sumRows(mreal *sums, const mreal *rows, mint count, size_t width, bool isChecked) {
  sumStrips<PlainSum>(sums, rows, count, width);
  return !isChecked || areFinite(sums, width);
}

bool sumAll(mint *sum, const mint *data, mint count, bool isChecked) {
  return sumRun(sum, data, count, isChecked);
}
bool sumAll(mreal *sum, const mreal *data, mint count, bool isChecked) {
  return sumRun(sum, data, count, isChecked);
}
bool sumAll(mcomplex *sum, const mcomplex *data, mint count, bool isChecked) {
  ComplexReal64 own;
  const bool fits = sumRun(&own, reinterpret_cast<const ComplexReal64 *>(data), count, isChecked);
  *sum = {own.re, own.im};
  return fits;
}

} // namespace torvane
