// Arguments with which every function of the registry is tried without memory. A function that lands gets a
// set here: a call, and what the scalar it yields is, if it yields one.
//
// Small sets fail by their small blocks, on a thread that has none. Large sets have results or scratch above
// 1 MiB, which no thread heap keeps, and fail by these alone: such a failure is a status, or the set says
// that it ends the process.
#pragma once

#include "named_call.h"

namespace torvane::test {

enum class Yields { tensor, scalar };
enum class Large { none, refused, endsProcess };

struct ArgumentSet {
  const char *name;
  Large large;
  std::function<NamedCall(NamedCall)> fill; // a call of the name with its arguments
  Yields yields = Yields::tensor;
};

// Positive numbers, in no order.
inline Tensor rampOf(mint type, const Extents &extents, mint step = 7) {
  Tensor tensor = newTensor(type, extents);
  for (mint i = 0; i < tensor->elementCount; ++i)
    storeNumber(tensor.get(), size_t(i), i % 1000 * step % 1000 + 1);
  return tensor;
}
inline Tensor reals(const Extents &extents) { return rampOf(TORVANE_TYPE_REAL, extents); }
inline Tensor integers(const Extents &extents) { return rampOf(TORVANE_TYPE_INTEGER, extents); }

inline constexpr mint kMany = 300000; // elements, of more than 1 MiB

#define TORVANE_SET(name, large, ...)                                                                        \
  {                                                                                                          \
#name, Large::large, [](NamedCall call) { return call __VA_ARGS__; }, Yields::tensor                     \
  }
#define TORVANE_SCALAR(name, large, ...)                                                                     \
  {                                                                                                          \
#name, Large::large, [](NamedCall call) { return call __VA_ARGS__; }, Yields::scalar                     \
  }

inline const std::vector<ArgumentSet> &argumentSets() {
  static const std::vector<ArgumentSet> sets = {
      // clang-format off
      TORVANE_SET(Dimensions, none, .tensor(reals({2, 3}))),
      TORVANE_SET(Sort, none, .tensor(reals({20, 2}))),
      TORVANE_SET(Sort, refused, .tensor(reals({kMany}))),
      TORVANE_SET(Sort, refused, .tensor(integers({kMany, 2}))),
      TORVANE_SET(Ordering, none, .tensor(integers({20}))),
      TORVANE_SET(Ordering, refused, .tensor(reals({kMany}))),
      TORVANE_SET(OrderingInteger, none, .tensor(reals({20})).integer(5)),
      TORVANE_SET(OrderingInteger, refused, .tensor(reals({kMany})).integer(-5)),
      TORVANE_SET(IntegerDigits, none, .integer(1234).integer(10)),
      TORVANE_SET(IntegerDigits, refused, .integer(1234).integer(10).integer(kMany)),
      TORVANE_SCALAR(Median, none, .tensor(reals({9}))),
      TORVANE_SCALAR(Median, refused, .tensor(reals({kMany}))),
      TORVANE_SET(Median, refused, .tensor(reals({kMany, 2}))),
      TORVANE_SET(Take, none, .tensor(reals({4, 3})).integer(0).integer(2)),
      TORVANE_SET(Take, refused, .tensor(reals({2, kMany})).integer(0).integer(1)),
      TORVANE_SET(Drop, none, .tensor(reals({4, 3})).integer(0).integer(2)),
      TORVANE_SET(Drop, refused, .tensor(reals({2, kMany})).integer(0).integer(1)),
      TORVANE_SCALAR(MinI, none, .integer(3).integer(2)),
      TORVANE_SCALAR(MinIT, none, .tensor(integers({5}))),
      TORVANE_SCALAR(MinIG, none, .integer(2).integer(5)),
      TORVANE_SCALAR(MinR, none, .real(3).real(2)),
      TORVANE_SCALAR(MinRT, none, .tensor(reals({5}))),
      TORVANE_SCALAR(MinRG, none, .integer(2).integer(5)),
      TORVANE_SCALAR(MaxI, none, .integer(3).integer(2)),
      TORVANE_SCALAR(MaxIT, none, .tensor(integers({5}))),
      TORVANE_SCALAR(MaxIG, none, .integer(2).integer(5)),
      TORVANE_SCALAR(MaxR, none, .real(3).real(2)),
      TORVANE_SCALAR(MaxRT, none, .tensor(reals({5}))),
      TORVANE_SCALAR(MaxRG, none, .integer(2).integer(5)),
      TORVANE_SCALAR(DotVV, none, .tensor(reals({60})).tensor(reals({60})).integer(0)),
      TORVANE_SET(Dot, none, .tensor(reals({4, 3})).tensor(reals({3, 4})).integer(0)),
      TORVANE_SET(Dot, endsProcess, .tensor(reals({600, 2, 1})).tensor(reals({1, 600})).integer(0)),
      TORVANE_SET(OuterList, none, .tensor(reals({4})).tensor(reals({3})).integer(1).integer(1)),
      TORVANE_SET(OuterList, refused, .tensor(reals({600})).tensor(reals({600})).integer(1).integer(1)),
      TORVANE_SET(OuterTimes, none, .tensor(reals({4})).tensor(reals({3})).tensor(reals({2})).integer(1).integer(1).integer(1).integer(0)),
      TORVANE_SET(OuterTimes, refused, .tensor(reals({600})).tensor(reals({600})).integer(1).integer(1).integer(0)),
      TORVANE_SET(OuterPlus, none, .tensor(reals({4, 2})).tensor(reals({3, 2})).integer(1).integer(1).integer(0)),
      TORVANE_SET(OuterPlus, refused, .tensor(reals({1, kMany})).tensor(reals({2, kMany})).integer(1).integer(1).integer(0)),
      TORVANE_SET(Insert, none, .tensor(reals({4})).tensor(reals({})).tensor(tensorOf<mint>({1, 1}, {2}))),
      TORVANE_SET(Insert, refused, .tensor(reals({kMany})).tensor(reals({})).tensor(tensorOf<mint>({1, 1}, {2}))),
      TORVANE_SET(Delete, none, .tensor(reals({4})).tensor(tensorOf<mint>({1, 1}, {2}))),
      TORVANE_SET(Delete, refused, .tensor(reals({kMany})).tensor(tensorOf<mint>({1, 1}, {2}))),
      TORVANE_SET(Reverse, none, .tensor(reals({4}))),
      TORVANE_SET(Reverse, refused, .tensor(reals({kMany}))),
      TORVANE_SET(Join, none, .tensor(reals({4})).tensor(reals({2}))),
      TORVANE_SET(Join, refused, .tensor(reals({kMany})).tensor(reals({2}))),
      TORVANE_SET(JoinAtLevel, none, .tensor(reals({2, 3})).tensor(reals({2, 1})).integer(2)),
      TORVANE_SET(JoinAtLevel, endsProcess, .tensor(reals({2, kMany})).tensor(reals({2, 1})).integer(2)),
      TORVANE_SET(Union, none, .tensor(reals({9})).tensor(reals({4}))),
      TORVANE_SET(Union, refused, .tensor(reals({kMany}))),
      TORVANE_SET(Complement, none, .tensor(integers({9})).tensor(integers({4}))),
      TORVANE_SET(Complement, refused, .tensor(integers({kMany})).tensor(integers({2}))),
      TORVANE_SET(Intersection, none, .tensor(integers({9})).tensor(integers({4}))),
      TORVANE_SET(Intersection, refused, .tensor(integers({kMany})).tensor(integers({kMany}))),
      TORVANE_SET(RotateLeft, none, .tensor(reals({4, 3})).vector({1, 2})),
      TORVANE_SET(RotateLeft, refused, .tensor(reals({kMany}))),
      TORVANE_SET(RotateRight, none, .tensor(reals({4, 3})).vector({1, 2})),
      TORVANE_SET(RotateRight, refused, .tensor(reals({kMany}))),
      TORVANE_SCALAR(IteratorCountI, none, .integer(1).integer(9)),
      TORVANE_SCALAR(IteratorCountR, none, .real(1).real(9)),
      TORVANE_SET(Flatten, none, .tensor(reals({4, 3})).integer(1)),
      TORVANE_SET(Flatten, endsProcess, .tensor(reals({4, kMany})).integer(1)),
      TORVANE_SET(Position, none, .tensor(integers({9})).tensor(integers({}))),
      TORVANE_SET(Position, refused, .tensor(rampOf(2, {kMany}, 0)).tensor(rampOf(2, {}, 0))),
      TORVANE_SCALAR(Count, none, .tensor(integers({9})).tensor(integers({}))),
      TORVANE_SCALAR(MemberQ, none, .tensor(integers({9})).tensor(integers({}))),
      TORVANE_SCALAR(FreeQ, none, .tensor(integers({9})).tensor(integers({}))),
      TORVANE_SCALAR(OrderedQ, none, .tensor(reals({4}))),
      TORVANE_SET(Partition, none, .tensor(reals({9})).vector({2}).vector({1})),
      TORVANE_SET(Partition, refused, .tensor(reals({kMany})).vector({2}).vector({1})),
      TORVANE_SET(Transpose, none, .tensor(reals({2, 3, 4})).vector({3, 1, 2}).integer(3)),
      TORVANE_SET(Transpose, refused, .tensor(reals({2, kMany}))),
      TORVANE_SET(Transpose, refused, .tensor(reals({2, 3, kMany})).vector({3, 1, 2}).integer(3)),
      TORVANE_SET(ConjugateTranspose, none, .tensor(rampOf(4, {2, 3}))),
      TORVANE_SET(ConjugateTranspose, refused, .tensor(rampOf(4, {2, kMany}))),
      TORVANE_SET(PadLeft, none, .tensor(reals({5})).vector({9}).tensor(reals({1})).vector({0})),
      TORVANE_SET(PadLeft, refused, .tensor(reals({5})).vector({kMany}).tensor(reals({1})).vector({0})),
      TORVANE_SET(PadRight, none, .tensor(reals({5})).vector({9}).tensor(reals({1})).vector({0})),
      TORVANE_SET(PadRight, refused, .tensor(reals({5})).vector({kMany}).tensor(reals({1})).vector({0})),
      TORVANE_SET(Total, none, .tensor(reals({3, 4})).integer(0)),
      TORVANE_SET(Total, refused, .tensor(reals({2, kMany})).integer(0)),
      TORVANE_SCALAR(TotalAll, none, .tensor(reals({9})).integer(0)),
      TORVANE_SET(Accumulate, none, .tensor(reals({9})).integer(0)),
      TORVANE_SET(Accumulate, refused, .tensor(reals({kMany})).integer(0)),
      TORVANE_SCALAR(Norm, none, .tensor(reals({9})).integer(0)),
      TORVANE_SET(Differences, none, .tensor(reals({9})).vector({2}).integer(0)),
      TORVANE_SET(Differences, refused, .tensor(reals({kMany})).vector({2}).integer(0)),
      TORVANE_SET(Ratios, none, .tensor(reals({9})).vector({2}).integer(0)),
      TORVANE_SET(Ratios, refused, .tensor(reals({kMany})).vector({2}).integer(0)),
      TORVANE_SCALAR(SmallDet, none, .tensor(reals({4, 4}))),
      TORVANE_SCALAR(RandomInteger, none, .integer(1).integer(9)),
      TORVANE_SET(RandomIntegers, none, .integer(1).integer(9).vector({5})),
      TORVANE_SET(RandomIntegers, refused, .integer(1).integer(9).vector({kMany})),
      TORVANE_SCALAR(RandomReal, none, .real(1).real(9)),
      TORVANE_SET(RandomReals, none, .real(1).real(9).vector({5})),
      TORVANE_SET(RandomReals, refused, .real(1).real(9).vector({kMany})),
      TORVANE_SCALAR(RandomComplex, none, .tensor(rampOf(4, {2}))),
      TORVANE_SET(RandomComplexes, none, .tensor(rampOf(4, {2})).vector({5})),
      TORVANE_SET(RandomComplexes, refused, .tensor(rampOf(4, {2})).vector({kMany})),
      TORVANE_SCALAR(RandomChoice, none, .tensor(reals({9}))),
      TORVANE_SET(RandomChoice, refused, .tensor(reals({9})).vector({kMany})),
      TORVANE_SET(RandomChoiceWeights, none, .tensor(reals({9, 2})).tensor(reals({9}))),
      TORVANE_SET(RandomChoiceWeights, refused, .tensor(reals({9})).tensor(reals({9})).vector({kMany})),
      TORVANE_SET(RandomSample, none, .tensor(reals({9}))),
      TORVANE_SET(RandomSample, refused, .tensor(reals({kMany}))),
      TORVANE_SET(RandomSampleWeights, none, .tensor(reals({99})).tensor(reals({99})).integer(3)),
      TORVANE_SET(RandomSampleWeights, refused, .tensor(reals({kMany})).tensor(reals({kMany}))),
      TORVANE_SCALAR(SeedRandom, none, .integer(3).integer(5)),
      TORVANE_SCALAR(BlockRandomBegin, none, ),
      TORVANE_SCALAR(BlockRandomEnd, none, ),
      TORVANE_SCALAR(RandomNormal, none, .real(1).real(9)),
      TORVANE_SET(RandomNormal, refused, .real(1).real(9).vector({kMany + 1})),
      TORVANE_SCALAR(RandomBeta, none, .real(3).real(9)),
      TORVANE_SET(RandomBeta, refused, .real(3).real(9).vector({kMany})),
      TORVANE_SET(Tally, none, .tensor(integers({9}))),
      TORVANE_SET(Tally, none, .tensor(integers({900}))),
      TORVANE_SCALAR(Bag, none, .integer(3)),
      TORVANE_SCALAR(StuffBagScalar, none, .integer(0).real(2)),
      TORVANE_SCALAR(StuffBag, none, .integer(0).tensor(reals({9}))),
      TORVANE_SCALAR(BagPart, none, .integer(0).integer(0).integer(2)),
      TORVANE_SET(BagPart, refused, .integer(0).integer(2)),
      TORVANE_SET(BagPart, refused, .integer(0).integer(3).vector({1, kMany - 1})),
      TORVANE_SCALAR(CompareTensor, none, .integer(1).real(0).tensor(reals({3})).tensor(reals({3}))),
      TORVANE_SET(CoerceTensor, none, .integer(4).tensor(reals({3}))),
      TORVANE_SET(CoerceTensor, refused, .integer(4).tensor(reals({kMany}))),
      TORVANE_SET(CopyTensor, none, .tensor(reals({3}))),
      TORVANE_SET(CopyTensor, refused, .tensor(reals({kMany}))),
      TORVANE_SET(Cross, none, .tensor(reals({3})).tensor(reals({3}))),
      // clang-format on
  };
  return sets;
}

} // namespace torvane::test
