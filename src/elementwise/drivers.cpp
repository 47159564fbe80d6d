#include "drivers.h"

#include "../parallel/first_failure.h"

namespace torvane {

namespace {

template <int arity> struct Call {
  const torvane_loops::Loop<arity> &loop;
  void *result;
  const void *operands[arity];
  const mint *strides;
  mint flags;

  ptrdiff_t offset(int place, mint start) const {
    return ptrdiff_t{strides[place]} * loop.bytes[place] * start;
  }
  const void *operand(int k, mint start) const {
    return static_cast<const char *>(operands[k]) + offset(k + 1, start);
  }

  mint run(mint start, mint count) const {
    void *target = static_cast<char *>(result) + offset(0, start);
    if constexpr (arity == 1)
      return loop.run(target, operand(0, start), count, strides, flags);
    else if constexpr (arity == 2)
      return loop.run(target, operand(0, start), operand(1, start), count, strides, flags);
    else
      return loop.run(target, operand(0, start), operand(1, start), operand(2, start), count, strides, flags);
  }

  // Whether a piece could write what another reads or writes.
  bool sharesStorage(mint count) const {
    if (strides[0] == 0) return true;
    const ByteRange written(result, strides[0], loop.bytes[0], count);
    for (int k = 0; k < arity; ++k)
      if (written.meets(ByteRange(operands[k], strides[k + 1], loop.bytes[k + 1], count))) return true;
    return false;
  }
};

template <int arity> struct LongRun {
  const Call<arity> &call;
  FirstFailure failure = {};

  // A piece may be dropped only if it begins after a known failure: what lies before one is always written.
  static void runPiece(void *closure, ParallelWorker *worker) {
    auto *self = static_cast<LongRun *>(closure);
    const mint start = ParallelWorker_first(worker), end = ParallelWorker_last(worker);
    if (self->failure.isBefore(start)) return;
    const mint position = self->call.run(start, end - start);
    if (position != 0) self->failure.at(start + position - 1);
  }
};

template <int arity> mint runInPieces(const Call<arity> &call, mint count) {
  LongRun<arity> run = {call};
  runElementPieces(&run, LongRun<arity>::runPiece, count);
  return run.failure.outcome();
}

template <int arity> mint runLong(const Call<arity> &call, mint count) {
  if (count < 2 || call.sharesStorage(count)) return call.run(0, count);
  return runInPieces(call, count);
}

} // namespace

mint runLongUnary(const UnaryLoop &loop, void *result, const void *x, mint count, const mint *strides,
                  mint flags) {
  return runLong(Call<1>{loop, result, {x}, strides, flags}, count);
}

mint runLongBinary(const BinaryLoop &loop, void *result, const void *x, const void *y, mint count,
                   const mint *strides, mint flags) {
  return runLong(Call<2>{loop, result, {x, y}, strides, flags}, count);
}

mint runLongTernary(const TernaryLoop &loop, void *result, const void *a, const void *x, const void *y,
                    mint count, const mint *strides, mint flags) {
  return runLong(Call<3>{loop, result, {a, x, y}, strides, flags}, count);
}

} // namespace torvane
