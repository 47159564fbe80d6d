#include "parts_peers.h"

#include <Eigen/Core>

namespace {

// run(offset, first), for every row of the selection: where it stands, and its first element in the packed
// array.
template <class Run> void forPlainRows(const PlainSelection &selection, Run run) {
  ptrdiff_t packed = 0;
  const auto count = selection.listed.empty() ? selection.count : ptrdiff_t(selection.listed.size());
  for (const ptrdiff_t a : selection.outer[0])
    for (const ptrdiff_t b : selection.outer[1])
      for (const ptrdiff_t c : selection.outer[2]) {
        run(a + b + c + selection.first, packed);
        packed += count;
      }
}

} // namespace

template <class T> void plainTake(T *target, const T *source, const PlainSelection &selection) {
  T *__restrict to = target;
  const T *__restrict from = source;
  const ptrdiff_t count = selection.count, step = selection.step;
  if (!selection.listed.empty())
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (const int32_t position : selection.listed) to[packed++] = from[at + position - 1];
    });
  else if (step == 1)
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (ptrdiff_t i = 0; i < count; ++i) to[packed + i] = from[at + i];
    });
  else
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (ptrdiff_t i = 0; i < count; ++i) to[packed + i] = from[at + i * step];
    });
}

template <class T> void plainPut(T *target, const T *source, const PlainSelection &selection) {
  T *__restrict to = target;
  const T *__restrict from = source;
  const ptrdiff_t count = selection.count, step = selection.step;
  if (!selection.listed.empty())
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (const int32_t position : selection.listed) to[at + position - 1] = from[packed++];
    });
  else if (step == 1)
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (ptrdiff_t i = 0; i < count; ++i) to[at + i] = from[packed + i];
    });
  else
    forPlainRows(selection, [&](ptrdiff_t at, ptrdiff_t packed) {
      for (ptrdiff_t i = 0; i < count; ++i) to[at + i * step] = from[packed + i];
    });
}

template void plainTake(int32_t *, const int32_t *, const PlainSelection &);
template void plainTake(double *, const double *, const PlainSelection &);
template void plainPut(int32_t *, const int32_t *, const PlainSelection &);
template void plainPut(double *, const double *, const PlainSelection &);

void eigenTake(double *to, const double *from, ptrdiff_t rows, ptrdiff_t columns,
               const std::vector<int> &rowList, const std::vector<int> &columnList) {
  using Matrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
  Eigen::Map<Matrix>(to, ptrdiff_t(rowList.size()), ptrdiff_t(columnList.size())) =
      Eigen::Map<const Matrix>(from, rows, columns)(rowList, columnList);
}
