// The loops behind a vector routine.
//
// A routine runs one functor over runs of elements of one kind; operands of two kinds are widened to the
// wider one element by element, so that every element has the bits of the typed entry on the widened
// operands. Three ways of checking:
//   unchecked   the flag of the operand kind is not set, or the row asks no test: only what both forms
//               raise stops the loop;
//   by element  integers, and reals and complexes in place: the test comes before the store, so that the
//               failing element and all later ones keep what an operand held;
//   in bulk     reals and complexes elsewhere: one look at the accrued exceptions after the plain loop,
//               which gives 1 and no position.
// The error code is lost; the position, counted from 1, is what a routine returns. Where an operator has
// lanes (lanes.h), a dense loop runs in blocks of them and goes back to single elements in a block that may
// hold a failure.
#pragma once

#include "../scalar/evaluate.h"
#include "exceptions.h"
#include "lanes.h"
#include "loops.h"
#include <torvane/operators.h>

namespace torvane {

// The kind an operand pair is computed in.
template <class T> constexpr T convertTo(T x) { return x; }
template <class T> constexpr T convertTo(mint x) requires(!isInteger<T>) {
  if constexpr (isComplex<T>)
    return {static_cast<mreal>(x), 0.0};
  else
    return static_cast<T>(x);
}
template <class T> constexpr T convertTo(mreal x) requires(isComplex<T>) { return {x, 0.0}; }

template <class T> inline constexpr int kRank = isInteger<T> ? 0 : isReal<T> ? 1 : 2;
template <class X, class Y> using WiderOf = ChooseOf<(kRank<X> < kRank<Y>), Y, X>;

template <class T, class... Rest> struct First { using Type = T; };
template <class... T> using FirstOf = typename First<T...>::Type;

inline constexpr mint kLineBytes = 64;

// A processor fetches ahead within a page and stops at its end. Where the run is long, and so one page after
// another may be new, the first lines of the next piece are asked for before each piece. A worker's share
// of a run counts as long.
inline constexpr mint kLongRun = 16384, kPiece = 512, kLinesAhead = 4;
template <int forWriting> void fetch(const void *data) {
  for (mint line = 0; line < kLinesAhead; ++line)
    __builtin_prefetch(static_cast<const char *>(data) + line * kLineBytes, forWriting);
}

// Element k of an operand: dense, at a stride, or one value for all of them, which is read once.
template <class X> struct Dense {
  const X *data;
  X at(ptrdiff_t k) const { return data[k]; }
  Dense from(ptrdiff_t k) const { return {data + k}; }
  void fetch(ptrdiff_t k) const { torvane::fetch<0>(data + k); }
};
template <class X> struct Strided {
  const X *data;
  ptrdiff_t stride;
  X at(ptrdiff_t k) const { return data[k * stride]; }
};
template <class X> struct Constant {
  explicit Constant(const X *data) : value(*data) {}
  X at(ptrdiff_t) const { return value; }
  Constant from(ptrdiff_t) const { return *this; }
  void fetch(ptrdiff_t) const {}

  X value;
};
// Complex operators branch on their operands, and of one that does not change a compiler computes ahead what
// only one branch asks for, exceptions and all: there the loops do not show that a stride is 0.
template <class... T> inline constexpr bool mayBeConstant = !(isComplex<T> || ...);

template <class T> constexpr T classified(error &code, T value) {
  if (code == error::none) code = classify(value);
  return value;
}

// Operators whose second operand keeps its own kind: powers, shifts, tolerances.
template <class Op> inline constexpr bool hasSeparateOperands = requires { requires Op::separateOperands; };

// Sine and cosine of reals, which are checked here although their typed entries are not.
template <class Op, class T>
inline constexpr bool testsOnlyHere = isReal<T> && (isSame<Op, unary::sin> || isSame<Op, unary::cos>);

// One element as the loops compute it. A functor's `element` is the routine's own form, where it does what
// the typed entry of the kind does not.
template <class Op, class Form, class T, class... X> constexpr auto computeElement(error &code, X... x) {
  if constexpr (requires { Op::template element<Form>(code, x...); })
    return Op::template element<Form>(code, x...);
  else if constexpr (hasSeparateOperands<Op>)
    return compute<Op, Form>(code, x...);
  else if constexpr (isComplex<T> && requires { requires Op::storesRealPart; })
    return compute<Op, Form>(code, convertTo<T>(x)...).re;
  else if constexpr (testsOnlyHere<Op, T> && Form::checked)
    return classified(code, compute<Op, Form>(code, convertTo<T>(x)...));
  else
    return compute<Op, Form>(code, convertTo<T>(x)...);
}

// One by one, up to the first failure.
template <class Form, class Op, class T, class Result, class... X>
inline __attribute__((always_inline)) mint runLoop(Result *result, ptrdiff_t step, mint count,
                                                   X... operands) {
  for (ptrdiff_t k = 0; k < count; ++k) {
    error code = error::none;
    const Result value = computeElement<Op, Form, T>(code, operands.at(k)...);
    if (code != error::none) [[unlikely]]
      return static_cast<mint>(k + 1);
    result[k * step] = value;
  }
  return 0;
}

// Elements before the first that begins a cache line: a wide access that crosses two lines costs as much as
// two. Of the result, or of the first operand where its elements are wider and its lines so more. None where
// the run is too short to gain, or where no element ever begins a line.
inline constexpr mint kWorthAligning = 128;
template <class T> mint elementsBeforeLine(const T *data, mint count) {
  const uintptr_t past = reinterpret_cast<uintptr_t>(data) % kLineBytes;
  if (count < kWorthAligning || past == 0 || past % sizeof(T) != 0) return 0;
  return static_cast<mint>((kLineBytes - past) / sizeof(T));
}
template <class Result, class First, class... Rest>
mint elementsBeforeLine(const Result *result, mint count, const First &first, const Rest &...) {
  if constexpr (requires { requires sizeof(*first.data) > sizeof(Result); })
    return elementsBeforeLine(first.data, count);
  else
    return elementsBeforeLine(result, count);
}

// Runs `run(result, count, operands...)` up to the first line and from there on, in pieces of at most `most`,
// or fewer where the run is long; the position of the first failure.
template <class Run, class Result, class... X>
inline __attribute__((always_inline)) mint inPieces(mint most, Run run, Result *result, mint count,
                                                    X... operands) {
  const bool isLong = count >= kLongRun;
  const mint head = elementsBeforeLine(result, count, operands...), piece = isLong ? kPiece : most;
  for (mint start = 0, length = head == 0 ? piece : head; start < count; start += length, length = piece) {
    if (count - start < length) length = count - start;
    if (isLong) {
      fetch<1>(result + start + length);
      (operands.fetch(start + length), ...);
    }
    const mint position = run(result + start, length, operands.from(start)...);
    if (position != 0) return start + position;
  }
  return 0;
}

// ---- blocks of lanes -------------------------------------------------------------------------------

// Elements between two looks at what the lanes suspect: few enough that a block to be run again is in the
// nearest cache, and many enough that the looks cost nothing.
inline constexpr mint kLaneBlock = 4096;

// Whether a block may be run again after it has been stored, or must be tested first because the result is
// an operand; where they overlap in part, each element may depend on the one before.
enum class Sharing { none, same, partly };

template <class Result, class X> Sharing sharingOf(const Result *result, mint count, Dense<X> operand) {
  if (static_cast<const void *>(result) == operand.data && sizeof(Result) == sizeof(X)) return Sharing::same;
  const auto written = reinterpret_cast<uintptr_t>(result), read = reinterpret_cast<uintptr_t>(operand.data);
  const auto elements = static_cast<uintptr_t>(count);
  const bool meet = written < read + elements * sizeof(X) && read < written + elements * sizeof(Result);
  return meet ? Sharing::partly : Sharing::none;
}
template <class Result, class X> Sharing sharingOf(const Result *, mint, Constant<X>) {
  return Sharing::none;
}

// Stores a block, or only tests it; tells whether an element may have failed.
template <bool stores, class Lanes, class T, class Result, class... X>
bool runLanes(Result *result, mint count, X... operands) {
  typename Lanes::Suspicion suspicion = {};
  ptrdiff_t k = 0;
  if constexpr (stores && requires { Lanes::first(suspicion, result, count, operands.data...); })
    k = Lanes::first(suspicion, result, count, operands.data...);
  for (; k < count; ++k) {
    const Result value = Lanes::lane(suspicion, convertTo<T>(operands.at(k))...);
    if constexpr (stores) result[k] = value;
  }
  return suspicion.any();
}

template <class Form, class Op, class T, class Result, class... X>
mint runBlock(Result *result, mint count, bool inPlace, X... operands) {
  using Lanes = LanesOf<Op, Form, T>;
  const bool isSuspect = inPlace ? runLanes<false, Lanes, T>(result, count, operands...)
                                 : runLanes<true, Lanes, T>(result, count, operands...);
  if (isSuspect) [[unlikely]]
    return runLoop<Form, Op, T>(result, 1, count, operands...);
  if (inPlace) runLanes<true, Lanes, T>(result, count, operands...);
  return 0;
}

template <class Form, class Op, class T, class Result, class... X>
mint runDense(Result *result, mint count, X... operands) {
  if constexpr (requires { typename LanesOf<Op, Form, T>::Suspicion; }) {
    const bool overlaps = ((sharingOf(result, count, operands) == Sharing::partly) || ...);
    const bool inPlace = ((sharingOf(result, count, operands) == Sharing::same) || ...);
    const auto block = [inPlace](Result *target, mint length, X... x) {
      return runBlock<Form, Op, T>(target, length, inPlace, x...);
    };
    if (!overlaps) return inPieces(kLaneBlock, block, result, count, operands...);
  }
  const auto oneByOne = [](Result *target, mint length, X... x) {
    return runLoop<Form, Op, T>(target, 1, length, x...);
  };
  return inPieces(count, oneByOne, result, count, operands...);
}

// ---- shapes ----------------------------------------------------------------------------------------

// The shapes with a loop of their own: dense, and dense with one operand at stride 0.
template <class Form, class Op, class T, class Result, class X>
mint runShape(Result *result, mint count, const mint *strides, const X *x) {
  if (count <= 0) return 0;
  if (strides[0] == 1 && strides[1] == 1) return runDense<Form, Op, T>(result, count, Dense<X>{x});
  return runLoop<Form, Op, T>(result, strides[0], count, Strided<X>{x, strides[1]});
}

template <class Form, class Op, class T, class Result, class X, class Y>
mint runShape(Result *result, mint count, const mint *strides, const X *x, const Y *y) {
  if (count <= 0) return 0;
  const mint sx = strides[1], sy = strides[2];
  if (strides[0] == 1) {
    if (sx == 1 && sy == 1) return runDense<Form, Op, T>(result, count, Dense<X>{x}, Dense<Y>{y});
    if constexpr (mayBeConstant<T, X, Y>) {
      if (sx == 1 && sy == 0) return runDense<Form, Op, T>(result, count, Dense<X>{x}, Constant<Y>{y});
      if (sx == 0 && sy == 1) return runDense<Form, Op, T>(result, count, Constant<X>{x}, Dense<Y>{y});
    }
  }
  return runLoop<Form, Op, T>(result, strides[0], count, Strided<X>{x, sx}, Strided<Y>{y, sy});
}

template <class Form, class Op, class T, class Result, class A, class X, class Y>
mint runShape(Result *result, mint count, const mint *strides, const A *a, const X *x, const Y *y) {
  if (count <= 0) return 0;
  if (strides[0] == 1 && strides[2] == 1 && strides[3] == 1) {
    if constexpr (mayBeConstant<T>)
      if (strides[1] == 0)
        return runDense<Form, Op, T>(result, count, Constant<A>{a}, Dense<X>{x}, Dense<Y>{y});
    if (strides[1] == 1) return runDense<Form, Op, T>(result, count, Dense<A>{a}, Dense<X>{x}, Dense<Y>{y});
  }
  return runLoop<Form, Op, T>(result, strides[0], count, Strided<A>{a, strides[1]}, Strided<X>{x, strides[2]},
                              Strided<Y>{y, strides[3]});
}

template <class Op, class... T> constexpr bool isTestedBy(mint flags) {
  constexpr bool ofIntegers = isInteger<CellTypeOf<Op, T...>>;
  return (flags & (ofIntegers ? TORVANE_CHECK_INTEGERS : TORVANE_CHECK_REALS)) != 0 &&
         ((kChecks<Op, T...> & (checks::c1 | checks::c69)) != 0 || testsOnlyHere<Op, FirstOf<T...>>);
}

// T... are the types that the operator computes with.
template <class Op, class... T, class Head, class... X>
mint runRoutine(void *result, mint count, const mint *strides, mint flags, const Head *first,
                const X *...rest) {
  using T1 = FirstOf<T...>;
  error ignored;
  using Result = decltype(computeElement<Op, Plain, T1>(ignored, Head{}, X{}...));
  auto *target = static_cast<Result *>(result);
  if (!isTestedBy<Op, T...>(flags)) return runShape<Plain, Op, T1>(target, count, strides, first, rest...);
  if (isInteger<CellTypeOf<Op, T...>> || result == static_cast<const void *>(first))
    return runShape<Checked, Op, T1>(target, count, strides, first, rest...);
  clearFailingExceptions();
  const mint position = runShape<Plain, Op, T1>(target, count, strides, first, rest...);
  if (position != 0) return position;
  return hasFailingExceptions() ? 1 : 0;
}

template <class Op, class X>
mint unaryRoutine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return runRoutine<Op, X>(result, count, strides, flags, static_cast<const X *>(x));
}

template <class Op, class X, class Y>
mint binaryRoutine(void *result, const void *x, const void *y, mint count, const mint *strides, mint flags) {
  const auto *first = static_cast<const X *>(x);
  const auto *second = static_cast<const Y *>(y);
  if constexpr (hasSeparateOperands<Op>)
    return runRoutine<Op, X, Y>(result, count, strides, flags, first, second);
  else
    return runRoutine<Op, WiderOf<X, Y>, WiderOf<X, Y>>(result, count, strides, flags, first, second);
}

// A binary operator with a constant second operand.
template <class Op, class X, mint operand>
mint boundRoutine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  const X second = operand;
  const mint withConstant[3] = {strides[0], strides[1], 0};
  return binaryRoutine<Op, X, X>(result, x, &second, count, withConstant, flags);
}

template <class Op, class X>
mint ternaryRoutine(void *result, const void *a, const void *x, const void *y, mint count,
                    const mint *strides, mint flags) {
  return runRoutine<Op, X, X, X>(result, count, strides, flags, static_cast<const X *>(a),
                                 static_cast<const X *>(x), static_cast<const X *>(y));
}

// ---- records for the drivers -----------------------------------------------------------------------

// The type that a routine stores.
template <class Op, class T, class... X>
using StoredOf = decltype(computeElement<Op, Plain, T>(*static_cast<error *>(nullptr), X{}...));

template <class Op, class X>
inline constexpr torvane_loops::UnaryLoop kUnaryLoop = {unaryRoutine<Op, X>,
                                                        {sizeof(StoredOf<Op, X, X>), sizeof(X)}};

template <class Op, class X, class Y> using PairType = ChooseOf<hasSeparateOperands<Op>, X, WiderOf<X, Y>>;
template <class Op, class X, class Y>
inline constexpr torvane_loops::BinaryLoop kBinaryLoop = {
    binaryRoutine<Op, X, Y>, {sizeof(StoredOf<Op, PairType<Op, X, Y>, X, Y>), sizeof(X), sizeof(Y)}};

template <class Op, class X, mint operand>
inline constexpr torvane_loops::UnaryLoop kBoundLoop = {boundRoutine<Op, X, operand>,
                                                        {sizeof(StoredOf<Op, X, X, X>), sizeof(X)}};

template <class Op, class X>
inline constexpr torvane_loops::TernaryLoop kTernaryLoop = {
    ternaryRoutine<Op, X>, {sizeof(StoredOf<Op, X, X, X, X>), sizeof(X), sizeof(X), sizeof(X)}};

} // namespace torvane
