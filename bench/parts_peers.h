// Parts of arrays by nested loops, compiled for the machine at hand. The axes but the last come as offsets in
// elements, 0 alone for one that is not there; the last one is contiguous, a step apart, or listed from 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

struct PlainSelection {
  std::vector<ptrdiff_t> outer[3];
  ptrdiff_t first, count, step;  // of the last axis
  std::vector<int32_t> listed{}; // or its positions
};

template <class T> void plainTake(T *to, const T *from, const PlainSelection &selection);
template <class T> void plainPut(T *to, const T *from, const PlainSelection &selection);

// Of a row-major matrix with `columns` columns, by Eigen's index lists, 0-based.
void eigenTake(double *to, const double *from, ptrdiff_t rows, ptrdiff_t columns,
               const std::vector<int> &rowList, const std::vector<int> &columnList);
