// The record's own words, through the record alone: tensors made, read and written by element and by part.
#include "interface/library_record.h"
#include "support/failing_heap.h"
#include "support/polling.h"
#include <torvane/failure.h>
#include <torvane/memory.h>

#include <cstring>
#include <random>

namespace torvane::test {

namespace {

using Positions = std::vector<mint>;

class RecordTensors : public WithRecord {
protected:
  mint statusOfNew(mint type, mint rank, const mint *extents) {
    MTensor *tensor = reinterpret_cast<MTensor *>(this); // what a slot held before does not count
    const mint status = record->newTensor(type, rank, extents, &tensor);
    if (status == 0)
      record->deleteTensor(tensor);
    else
      EXPECT_EQ(tensor, nullptr);
    return status;
  }
};

TEST_F(RecordTensors, AreMadeOfEveryTypeAndShape) {
  for (const mint type : {2, 3, 4}) {
    MTensor *tensor = newTensor(type, {2, 3, 4});
    EXPECT_EQ(record->type(tensor), type);
    EXPECT_EQ(record->rank(tensor), 3);
    EXPECT_EQ(extentsOf(tensor), (std::vector<mint>{2, 3, 4}));
    EXPECT_EQ(record->elementCount(tensor), 24);
    MTensor *scalar = nullptr;
    EXPECT_EQ(record->newTensor(type, 0, nullptr, &scalar), 0);
    EXPECT_EQ(record->rank(scalar), 0);
    EXPECT_EQ(record->elementCount(scalar), 1);
    record->deleteTensor(scalar);
  }
}

TEST_F(RecordTensors, AreRefusedByTypeThenRankThenExtents) {
  const mint good[] = {2, 3}, zero[] = {2, 0}, negative[] = {-1, 3};
  for (const mint type : {INT32_MIN, -1, 0, 1, 5, 6, INT32_MAX}) {
    EXPECT_EQ(statusOfNew(type, 2, good), 1) << type;
    EXPECT_EQ(statusOfNew(type, -1, negative), 1) << type;
  }
  for (const mint rank : {-1, INT32_MIN}) {
    EXPECT_EQ(statusOfNew(3, rank, good), 2);
    EXPECT_EQ(statusOfNew(3, rank, nullptr), 2);
  }
  EXPECT_EQ(statusOfNew(3, 2, zero), 3);
  EXPECT_EQ(statusOfNew(3, 2, negative), 3);
  EXPECT_EQ(statusOfNew(3, 1, nullptr), 3);
  EXPECT_EQ(statusOfNew(3, 1, zero), 0);
}

TEST_F(RecordTensors, ThatAreTooLargeOrFindNoMemoryGiveFive) {
  const mint overflow[] = {65536, 65536}, bytes[] = {1 << 29}, large[] = {1 << 18};
  EXPECT_EQ(statusOfNew(2, 2, overflow), 5);
  EXPECT_EQ(statusOfNew(3, 1, bytes), 5);
  EXPECT_EQ(statusOfNew(4, 1, large), 0);
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(statusOfNew(4, 1, large), 5);
}

TEST_F(RecordTensors, AndBlocksAreFreed) {
  record->deleteTensor(nullptr);
  record->freeBlock(nullptr);
  record->freeBlock(Malloc_fun(100)); // a leak would show under the sanitizer
}

TEST_F(RecordTensors, CloneIsANewTensorOrTakesThePlaceOfOne) {
  const MTensor *source = integers({2, 2}, {1, 2, 3, 4});
  MTensor *fresh = nullptr, *used = newTensor(TORVANE_TYPE_COMPLEX, {7}), *const held = used;
  ASSERT_EQ(record->cloneTensor(source, &fresh), 0);
  keep(fresh);
  ASSERT_EQ(record->cloneTensor(source, &used), 0);
  EXPECT_EQ(used, held);
  for (const MTensor *clone : {fresh, used}) {
    EXPECT_NE(clone, source);
    EXPECT_EQ(extentsOf(clone), (std::vector<mint>{2, 2}));
    EXPECT_EQ(valuesOf(clone), (std::vector<mint>{1, 2, 3, 4}));
  }
  MTensor *itself = fresh;
  EXPECT_EQ(record->cloneTensor(fresh, &itself), 0);
  EXPECT_EQ(valuesOf(itself), (std::vector<mint>{1, 2, 3, 4}));
}

TEST_F(RecordTensors, CloneWithoutMemoryIsFiveAndLeavesAnEmptySlotEmpty) {
  const MTensor *source = newTensor(TORVANE_TYPE_REAL, {1 << 18});
  MTensor *fresh = nullptr, *used = newTensor(TORVANE_TYPE_INTEGER, {1}), *const held = used;
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(record->cloneTensor(source, &fresh), 5);
  EXPECT_EQ(fresh, nullptr);
  EXPECT_EQ(record->cloneTensor(source, &used), 5);
  EXPECT_EQ(used, held);
}

TEST_F(RecordTensors, DataIsNullForAnotherTypeAndForNull) {
  const MTensor *integer = newTensor(2, {3}), *real = newTensor(3, {3}), *complex = newTensor(4, {3});
  for (const MTensor *tensor : {integer, real, complex}) {
    EXPECT_EQ(record->integerData(tensor) != nullptr, tensor == integer);
    EXPECT_EQ(record->realData(tensor) != nullptr, tensor == real);
    EXPECT_EQ(record->complexData(tensor) != nullptr, tensor == complex);
  }
  EXPECT_EQ(static_cast<void *>(record->integerData(integer)), integer->data);
  EXPECT_EQ(static_cast<void *>(record->realData(real)), real->data);
  EXPECT_EQ(static_cast<void *>(record->complexData(complex)), complex->data);
  EXPECT_EQ(record->integerData(nullptr), nullptr);
  EXPECT_EQ(record->realData(nullptr), nullptr);
  EXPECT_EQ(record->complexData(nullptr), nullptr);
}

// Every position of a shape, from 1, with the flat index that it has in row-major order.
template <class Visit> void atEveryPosition(const std::vector<mint> &extents, Visit visit) {
  Positions position(extents.size(), 1);
  for (mint flat = 0;; ++flat) {
    visit(position, flat);
    size_t i = extents.size();
    while (i > 0 && position[i - 1] == extents[i - 1]) position[--i] = 1;
    if (i == 0) return;
    ++position[i - 1];
  }
}

// The same places, counted from the end in some dimensions.
Positions fromTheEnd(Positions positions, const std::vector<mint> &extents, unsigned which) {
  for (size_t i = 0; i < positions.size(); ++i)
    if ((which >> i & 1) != 0) positions[i] -= extents[i] + 1;
  return positions;
}

const std::vector<mint> kShapes[] = {{}, {1}, {5}, {2, 3}, {3, 1, 4}, {2, 2, 2, 3}};

TEST_F(RecordTensors, ElementsAreWrittenAndReadByPositionFromEitherEnd) {
  for (const std::vector<mint> &extents : kShapes) {
    MTensor *integer = newTensor(2, extents), *real = newTensor(3, extents), *complex = newTensor(4, extents);
    atEveryPosition(extents, [&](const Positions &at, mint flat) {
      ASSERT_EQ(record->setInteger(integer, at.data(), flat + 10), 0);
      ASSERT_EQ(record->setReal(real, at.data(), flat + 0.5), 0);
      ASSERT_EQ(record->setComplex(complex, at.data(), {flat + 0.25, -flat - 1.0}), 0);
    });
    for (mint flat = 0; flat < record->elementCount(integer); ++flat) {
      EXPECT_EQ(record->integerData(integer)[flat], flat + 10);
      EXPECT_EQ(record->realData(real)[flat], flat + 0.5);
      EXPECT_EQ(record->complexData(complex)[flat].re, flat + 0.25);
      EXPECT_EQ(record->complexData(complex)[flat].im, -flat - 1.0);
    }
    atEveryPosition(extents, [&](const Positions &at, mint flat) {
      for (unsigned which = 0; which < 1u << extents.size(); ++which) {
        const Positions positions = fromTheEnd(at, extents, which);
        mint i = 0, offset = -1;
        mreal r = 0;
        mcomplex z = {};
        ASSERT_EQ(record->getInteger(integer, positions.data(), &i), 0);
        ASSERT_EQ(record->getReal(real, positions.data(), &r), 0);
        ASSERT_EQ(record->getComplex(complex, positions.data(), &z), 0);
        ASSERT_EQ(record->runtime->resolvePosition(real, positions.data(), &offset), 0);
        ASSERT_EQ(i, flat + 10);
        ASSERT_EQ(r, flat + 0.5);
        ASSERT_EQ(z.re, flat + 0.25);
        ASSERT_EQ(z.im, -flat - 1.0);
        ASSERT_EQ(offset, flat);
      }
    });
  }
}

TEST_F(RecordTensors, ElementsOfAScalarNeedNoPositions) {
  MTensor *scalar = newTensor(TORVANE_TYPE_REAL, {});
  mreal value = 0;
  mint offset = -1;
  EXPECT_EQ(record->setReal(scalar, nullptr, 2.5), 0);
  EXPECT_EQ(record->getReal(scalar, nullptr, &value), 0);
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(record->runtime->resolvePosition(scalar, nullptr, &offset), 0);
  EXPECT_EQ(offset, 0);
}

// Each operation on one element of a tensor, without a look at what it yields.
std::vector<mint> statusesAt(const TorvaneLibraryData *record, MTensor *tensor, const Positions &at) {
  mint i = 77;
  mreal r = 77;
  mcomplex z = {77, 77};
  const std::vector<mint> statuses = {
      record->setInteger(tensor, at.data(), 5),  record->setReal(tensor, at.data(), 5),
      record->setComplex(tensor, at.data(), {}), record->getInteger(tensor, at.data(), &i),
      record->getReal(tensor, at.data(), &r),    record->getComplex(tensor, at.data(), &z)};
  if (statuses[3] != 0) EXPECT_EQ(i, 77);
  if (statuses[4] != 0) EXPECT_EQ(r, 77);
  if (statuses[5] != 0) EXPECT_EQ(z.re, 77);
  return statuses;
}

TEST_F(RecordTensors, ElementsOfAnotherTypeGiveOneAndPositionsOutsideThree) {
  for (const mint type : {2, 3, 4}) {
    MTensor *tensor = newTensor(type, {2, 3});
    MTensor_initialize(tensor, 1);
    for (const Positions &at : {Positions{1, 1}, {2, 3}, {-2, -3}})
      for (mint i = 0; i < 6; ++i)
        EXPECT_EQ(statusesAt(record, tensor, at)[size_t(i)], i % 3 + 2 == type ? 0 : 1);
    MTensor_initialize(tensor, 1);
    for (const Positions &at : {Positions{0, 1},
                                {1, 0},
                                {2, 0},
                                {3, 1},
                                {1, 4},
                                {-3, 1},
                                {1, -4},
                                {2, -4},
                                {INT32_MIN, 1},
                                {1, INT32_MAX}}) {
      for (mint i = 0; i < 6; ++i)
        EXPECT_EQ(statusesAt(record, tensor, at)[size_t(i)], i % 3 + 2 == type ? 3 : 1) << at[0];
      mint offset = 77;
      EXPECT_EQ(record->runtime->resolvePosition(tensor, at.data(), &offset), 3);
      EXPECT_EQ(offset, 77);
    }
    for (mint i = 0; i < 6; ++i) EXPECT_EQ(TensorDataToReal(tensor, i, nullptr), 1);
  }
}

TEST_F(RecordTensors, WithoutElementsHaveNoPosition) {
  MTensor *empty = nullptr;
  const mint extents[] = {2, 0};
  ASSERT_EQ(MTensor_allocateCommon(&empty, TORVANE_TYPE_INTEGER, 2, extents, 1), 0);
  keep(empty);
  for (const mint last : {-1, 0, 1}) {
    const mint at[] = {1, last};
    EXPECT_EQ(record->setInteger(empty, at, 1), 3);
  }
}

// The sub-tensors by a slow model: all elements whose first positions are these.
TEST_F(RecordTensors, SubTensorsAreReadAndWrittenAtEveryDepth) {
  std::mt19937 random(20261122);
  for (const std::vector<mint> &extents : kShapes)
    for (const auto table : {false, true}) {
      const auto get = table ? record->runtime->getSubTensor : record->getSubTensor;
      const auto set = table ? record->runtime->setSubTensor : record->setSubTensor;
      MTensor *tensor = newTensor(TORVANE_TYPE_INTEGER, extents);
      std::vector<mint> model(size_t(record->elementCount(tensor)));
      for (mint &value : model) value = mint(random() % 1000);
      std::copy(model.begin(), model.end(), record->integerData(tensor));
      for (mint depth = 0; depth <= mint(extents.size()); ++depth)
        atEveryPosition({extents.begin(), extents.begin() + depth}, [&](const Positions &at, mint flat) {
          const Positions positions = fromTheEnd(at, extents, unsigned(random()));
          const std::vector<mint> rest(extents.begin() + depth, extents.end());
          MTensor *part = random() % 2 == 0 ? nullptr : newTensor(TORVANE_TYPE_REAL, {2, 2});
          const bool isFresh = part == nullptr;
          ASSERT_EQ(get(tensor, positions.data(), depth, &part), 0);
          if (isFresh) keep(part);
          EXPECT_EQ(extentsOf(part), rest);
          const auto first = model.begin() + ptrdiff_t{flat} * record->elementCount(part);
          EXPECT_EQ(valuesOf(part), std::vector<mint>(first, first + record->elementCount(part)));
          for (mint i = 0; i < record->elementCount(part); ++i)
            record->integerData(part)[i] = first[i] = mint(random() % 1000);
          ASSERT_EQ(set(tensor, part, positions.data(), depth), 0);
          EXPECT_EQ(valuesOf(tensor), model);
        });
    }
}

TEST_F(RecordTensors, SubTensorThatIsNotThereGivesOneAndChangesNothing) {
  MTensor *tensor = integers({2, 3}, {1, 2, 3, 4, 5, 6});
  const MTensor *row = integers({3}, {7, 8, 9}), *pair = integers({2}, {7, 8}), *real = reals({3}, {7, 8, 9});
  struct Wrong {
    Positions positions;
    mint count;
  };
  for (const Wrong &wrong : {Wrong{{0}, 1},
                             {{3}, 1},
                             {{-3}, 1},
                             {{1, 4}, 2},
                             {{1, 1, 1}, 3},
                             {{1}, -1},
                             {{1}, INT32_MAX},
                             {{1}, INT32_MIN}}) {
    MTensor *part = nullptr;
    EXPECT_EQ(record->getSubTensor(tensor, wrong.positions.data(), wrong.count, &part), 1);
    EXPECT_EQ(part, nullptr);
    EXPECT_EQ(record->setSubTensor(tensor, row, wrong.positions.data(), wrong.count), 1);
  }
  const mint first[] = {1};
  EXPECT_EQ(record->setSubTensor(tensor, pair, first, 1), 1);
  EXPECT_EQ(record->setSubTensor(tensor, real, first, 1), 1);
  EXPECT_EQ(valuesOf(tensor), (std::vector<mint>{1, 2, 3, 4, 5, 6}));
}

TEST_F(RecordTensors, SubTensorMayTakeThePlaceOfItsSource) {
  MTensor *tensor = integers({2, 3}, {1, 2, 3, 4, 5, 6}), *const held = tensor;
  const mint last[] = {-1};
  ASSERT_EQ(record->getSubTensor(tensor, last, 1, &tensor), 0);
  EXPECT_EQ(tensor, held);
  EXPECT_EQ(valuesOf(tensor), (std::vector<mint>{4, 5, 6}));
}

TEST_F(RecordTensors, SmallerSourceFillsASubTensor) {
  MTensor *tensor = integers({2, 3}, {1, 2, 3, 4, 5, 6});
  const MTensor *scalar = integers({}, {9});
  const mint last[] = {2};
  ASSERT_EQ(record->setSubTensor(tensor, scalar, last, 1), 0);
  EXPECT_EQ(valuesOf(tensor), (std::vector<mint>{1, 2, 3, 9, 9, 9}));
}

TEST_F(RecordTensors, ManyDimensionsAreNoMatter) {
  const std::vector<mint> extents(20, 1), positions(20, -1);
  MTensor *tensor = integers(extents, {4}), *part = nullptr;
  mint value = 0;
  EXPECT_EQ(record->getInteger(tensor, positions.data(), &value), 0);
  EXPECT_EQ(value, 4);
  ASSERT_EQ(record->getSubTensor(tensor, positions.data(), 20, &part), 0);
  EXPECT_EQ(valuesOf(keep(part)), (std::vector<mint>{4}));
  EXPECT_EQ(record->rank(part), 0);
}

TEST_F(RecordTensors, ServicesOfAHostDoNothingAndReturnZeroOrSix) {
  for (const TorvaneHostService service :
       {record->service5, record->service6, record->service25, record->service26, record->services31to34[0],
        record->services31to34[1], record->services31to34[2], record->services31to34[3], record->service36,
        record->service46, record->service47})
    EXPECT_EQ(service(), 0);
  EXPECT_EQ(record->service27(), 6);
  for (const TorvaneHostService service : record->services39to45) EXPECT_EQ(service(), 6);
  for (const TorvaneHostService service : record->hostServices->services) EXPECT_EQ(service(), 0);
  record->service7();
  record->message("ignored");
  record->message(nullptr);
}

mint raisedFlag = 1;
mint confirm(const char *) { return 1; }

TEST_F(RecordTensors, AbortIsNotWantedWhateverTheHostsFlagSays) {
  setAbortWatch(&raisedFlag, confirm);
  EXPECT_EQ(checkAbortWatch(), 1);
  EXPECT_EQ(record->abortQ(), 0);
  setAbortWatch(nullptr, nullptr);
  EXPECT_EQ(confirmedAborts().size(), 0u);
}

TEST_F(RecordTensors, AbortIsAskedForWhereThePollIsOn) {
  const Polling polling(1);
  EXPECT_EQ(record->abortQ(), 0);
  EXPECT_EQ(record->abortQ(), 1);
  EXPECT_EQ(confirmedAborts(), (std::vector<std::string>{"In DLLFunction", "In DLLFunction"}));
}

} // namespace

} // namespace torvane::test
