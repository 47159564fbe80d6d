// What moves elements without an operator: copies, zeros, exclusive or of booleans, compensated sums of
// pairs.
#include "exceptions.h"
#include "pieces.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/vectors.h>

#include <string.h>

using namespace torvane;

namespace torvane {

namespace {

// A run of elements: where it starts and how it is walked.
template <class T> struct Target {
  T *data;
  mint stride;
  T *at(mint k) const { return data + ptrdiff_t{k} * stride; }
  ByteRange bytes(mint count) const { return ByteRange(data, stride, sizeof(T), count); }
};

template <class T> struct Copy {
  Target<T> result;
  Target<const T> x;

  void run(mint first, mint last) const {
    if (result.stride == 1 && x.stride == 1)
      memmove(result.at(first), x.at(first), static_cast<size_t>(last - first) * sizeof(T));
    else
      for (mint k = first; k < last; ++k) *result.at(k) = *x.at(k);
  }
  bool isApart(mint count) const { return !result.bytes(count).meets(x.bytes(count)); }
};

template <class T> struct Zero {
  Target<T> result;

  void run(mint first, mint last) const {
    if (result.stride == 1)
      memset(static_cast<void *>(result.at(first)), 0, static_cast<size_t>(last - first) * sizeof(T));
    else
      for (mint k = first; k < last; ++k) *result.at(k) = T{};
  }
  bool isApart(mint) const { return true; }
};

struct ExclusiveOr {
  Target<uint8_t> result;
  Target<const uint8_t> x, y;

  void run(mint first, mint last) const {
    if (result.stride == 1 && x.stride == 1 && y.stride == 1)
      runDense(result.at(first), x.at(first), y.at(first), last - first);
    else
      for (mint k = first; k < last; ++k) *result.at(k) = static_cast<uint8_t>(*x.at(k) ^ *y.at(k));
  }
  bool isApart(mint count) const {
    const ByteRange written = result.bytes(count);
    return !written.meets(x.bytes(count)) && !written.meets(y.bytes(count));
  }

private:
  static void runDense(uint8_t *to, const uint8_t *a, const uint8_t *b, mint count) {
    for (mint k = 0; k < count; ++k) to[k] = static_cast<uint8_t>(a[k] ^ b[k]);
  }
};

template <class Move> void runPiece(void *closure, ParallelWorker *worker) {
  static_cast<const Move *>(closure)->run(ParallelWorker_first(worker), ParallelWorker_last(worker));
}

// One target for all elements is a race, and so is one that another piece reads: these run serially.
template <class Move> mint runMove(Move move, RoutineArity arity, mint count) {
  if (count <= 0) return 0;
  if (goesParallel(arity, count) && move.result.stride != 0 && move.isApart(count))
    return runElementPieces(&move, runPiece<Move>, count);
  move.run(0, count);
  return 0;
}

template <class T> mint copyRun(void *result, const void *x, mint count, const mint *strides) {
  const Copy<T> copy = {{static_cast<T *>(result), strides[0]}, {static_cast<const T *>(x), strides[1]}};
  return runMove(copy, kUnary, count);
}
template <class T> mint zeroRun(T *result, mint count, const mint *strides) {
  return runMove(Zero<T>{{result, strides[0]}}, kUnary, count);
}

// The rounding error of one sum, added back to it, rounds away again: s + e rounds to s wherever s = x + y
// rounded and e = x + y - s (D. E. Knuth, The Art of Computer Programming 2, 4.2.2). So the compensated sum
// of a pair has the bits of the plain one, which is what runs here. What differs is the test, which is in
// bulk in place too, deliberately.
mint addPairs(TorvaneBinaryRoutine plus, void *result, const void *x, const void *y, mint count,
              const mint *strides, mint flags) {
  if (result != x || (flags & TORVANE_CHECK_REALS) == 0) return plus(result, x, y, count, strides, flags);
  clearFailingExceptions();
  plus(result, x, y, count, strides, flags & ~TORVANE_CHECK_REALS);
  return hasFailingExceptions() ? 1 : 0;
}

} // namespace

} // namespace torvane

mint machfunc_i_copy(void *result, const void *x, mint count, const mint *strides, mint) {
  return copyRun<mint>(result, x, count, strides);
}
mint machfunc_d_copy(void *result, const void *x, mint count, const mint *strides, mint) {
  return copyRun<int64_t>(result, x, count, strides); // as bits: a register may change a NaN's
}
mint machfunc_c_copy(void *result, const void *x, mint count, const mint *strides, mint) {
  return copyRun<mcomplex>(result, x, count, strides);
}

mint machfunc_i_zero(mint *result, const mint *, mint count, const mint *strides, mint) {
  return zeroRun(result, count, strides);
}
mint machfunc_d_zero(mreal *result, const mreal *, mint count, const mint *strides, mint) {
  return zeroRun(result, count, strides);
}
mint machfunc_c_zero(mcomplex *result, const mcomplex *, mint count, const mint *strides, mint) {
  return zeroRun(result, count, strides);
}

mint machfunc_ddd_compplus(void *result, const void *x, const void *y, mint count, const mint *strides,
                           mint flags) {
  return addPairs(machfunc_dd_plus, result, x, y, count, strides, flags);
}
mint machfunc_ccc_compplus(void *result, const void *x, const void *y, mint count, const mint *strides,
                           mint flags) {
  return addPairs(machfunc_cc_plus, result, x, y, count, strides, flags);
}

mint machfunc_bb_bitxor(uint8_t *result, const uint8_t *x, const uint8_t *y, mint count, const mint *strides,
                        mint) {
  return runMove(ExclusiveOr{{result, strides[0]}, {x, strides[1]}, {y, strides[2]}}, kBinary, count);
}
