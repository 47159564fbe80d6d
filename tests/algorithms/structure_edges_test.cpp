// Rearranging functions at their edges: every refusal, empty tensors, scalars, sizes at the limit, exports.
#include "algorithms/ranges.h"
#include "named_call.h"
#include <torvane/lists.h>

using namespace torvane;
using namespace torvane::test;

namespace {

class StructureEdges : public NamedFunctions {
protected:
  static NamedCall vectorCall(const char *name, mint length = 3) {
    return NamedCall(name).tensor(TORVANE_TYPE_INTEGER, numbered({length}));
  }
  static NamedCall matrixCall(const char *name) {
    return NamedCall(name).tensor(TORVANE_TYPE_REAL, numbered({3, 4}));
  }
  static Tensor realVector(mint length) { return tensorOfModel(TORVANE_TYPE_REAL, numbered({length})); }
  static Tensor positions(const Extents &extents, const std::vector<mint> &entries) {
    return tensorOf<mint>(extents, entries);
  }
  static void expectVector(const NamedCall &call, const std::vector<mint> &values) {
    expectInEverySlot(call, TORVANE_TYPE_INTEGER, {{mint(values.size())}, values});
  }
};

using RangeCase = std::vector<mint>;

TEST_F(StructureEdges, RangesNormaliseByTheirRules) {
  struct {
    mint dimension, bounds, start, end, step, fits, first, last, by, count;
  } cases[] = {
      {5, 0, 1, 5, 1, 1, 1, 5, 1, 5},
      {5, 0, 6, 5, 1, 1, 6, 5, 1, 0},
      {5, 0, 0, 5, 1, 1, 6, 5, 1, 0},
      {5, 0, -1, -1, 1, 1, 5, 5, 1, 1},
      {5, 0, -5, -2, 1, 1, 1, 4, 1, 4},
      {5, 0, -6, 5, 1, 0, 0, 0, 0, 0},
      {5, 0, 7, 6, 1, 0, 0, 0, 0, 0},
      {5, 1, 7, 5, 1, 1, 5, 5, 1, 1},
      {5, 1, 7, 6, 1, 0, 0, 0, 0, 0},
      {5, 2, 1, 9, 1, 1, 1, 5, 1, 5},
      {5, 1, 1, 9, 1, 0, 0, 0, 0, 0},
      {5, 3, 9, 9, 1, 1, 5, 5, 1, 1},
      {5, 0, 3, 1, INT32_MIN, 1, 3, 1, -1, 3},
      {5, 0, 1, 3, INT32_MIN, 1, 1, 3, 1, 3},
      {5, 0, 5, 1, -2, 1, 5, 1, -2, 3},
      {5, 0, 1, 2, -2, 1, 1, 2, -2, 0},
      {5, 0, 1, 3, -1, 0, 0, 0, 0, 0},
      {5, 0, 1, 3, 0, 0, 0, 0, 0, 0},
      {5, 0, 4, 2, 1, 0, 0, 0, 0, 0},
      {5, 0, 1, 6, 1, 0, 0, 0, 0, 0},
      {5, 0, 2, 0, -1, 0, 0, 0, 0, 0},
      {5, 0, 1, 4, INT32_MAX, 1, 1, 4, INT32_MAX, 1},
      {0, 0, 1, 0, 1, 1, 1, 0, 1, 0},
      {0, 0, 1, -1, 1, 1, 1, 0, 1, 0},
      {0, 0, 1, 1, 1, 0, 0, 0, 0, 0},
      {INT32_MAX, 0, 1, INT32_MAX, 1, 1, 1, INT32_MAX, 1, INT32_MAX},
      {INT32_MAX, 0, 0, INT32_MAX, 1, 0, 0, 0, 0, 0},
      {INT32_MAX, 0, -INT32_MAX, -1, 2, 1, 1, INT32_MAX, 2, 1073741824},
      {5, 0, INT32_MIN, -1, 1, 0, 0, 0, 0, 0},
  };
  for (const auto &c : cases) {
    mint start = c.start, end = c.end, step = c.step, count = -7;
    const std::string where =
        testing::PrintToString(RangeCase{c.dimension, c.bounds, c.start, c.end, c.step});
    ASSERT_EQ(MTensor_normalizeRange(c.dimension, c.bounds, &start, &end, &step, &count), c.fits) << where;
    if (c.fits == 0) continue;
    EXPECT_EQ((RangeCase{start, end, step, count}), (RangeCase{c.first, c.last, c.by, c.count})) << where;
  }
}

// One past the last index is a start like any other where the dimension can be one longer.
TEST_F(StructureEdges, StartPastALongestDimensionDoesNotWrap) {
  mint start = 0, end = INT32_MAX - 1, step = 1, count = -1;
  ASSERT_EQ(MTensor_normalizeRange(INT32_MAX - 1, 0, &start, &end, &step, &count), 1);
  EXPECT_EQ(start, INT32_MAX);
  EXPECT_EQ(count, 0);
}

TEST_F(StructureEdges, TakeByIntegersAndVectors) {
  expectVector(vectorCall("Take").integer(0).integer(0), {});
  expectVector(vectorCall("Take").integer(0).integer(2), {1, 2});
  expectVector(vectorCall("Take").integer(0).integer(-1), {3});
  expectVector(vectorCall("Take").integer(1).vector({3, 1, -1}), {3, 2, 1});
  expectVector(vectorCall("Take").integer(1).vector({2}), {2});
  expectVector(vectorCall("Take").integer(1).vector({}), {});
  expectVector(vectorCall("Take").integer(1).vector({4, 3}), {});
  expectVector(vectorCall("Take"), {1, 2, 3});
  expectRefused(vectorCall("Take").integer(0).integer(4), 4);
  expectRefused(vectorCall("Take").integer(1).vector({3, 1}), 4);
  expectRefused(vectorCall("Take").integer(1).vector({1, 3, 0}), 4);
  expectRefused(vectorCall("Take").integer(1).vector({1, 2, 1, 1}), 4);
}

// A tag of -1 clips the start, which no first-n range needs; its end stays where it is.
TEST_F(StructureEdges, TagMinusOneClipsTheStartAlone) {
  expectRefused(vectorCall("Take").integer(-1).integer(4), 4);
  expectVector(vectorCall("Take").integer(-1).integer(3), {1, 2, 3});
  expectRefused(vectorCall("Take").integer(-1).integer(-4), 4);
  expectInEverySlot(NamedCall("Take").tensor(TORVANE_TYPE_REAL, numbered({0})).integer(0).integer(0),
                    TORVANE_TYPE_REAL, {{0}, {}});
  expectRefused(NamedCall("Take").tensor(TORVANE_TYPE_REAL, numbered({0})).integer(-1).integer(0), 4);
}

TEST_F(StructureEdges, DropLeavesTheRest) {
  expectVector(vectorCall("Drop").integer(0).integer(0), {1, 2, 3});
  expectVector(vectorCall("Drop").integer(0).integer(3), {});
  expectVector(vectorCall("Drop").integer(0).integer(-1), {1, 2});
  expectVector(vectorCall("Drop", 7).integer(1).vector({6, 2, -2}), {1, 3, 5, 7});
  expectVector(vectorCall("Drop"), {1, 2, 3});
  expectRefused(vectorCall("Drop").integer(0).integer(4), 4);
  expectRefused(vectorCall("Drop").integer(1).vector({1, 2, 1, 1}), 4);
}

TEST_F(StructureEdges, TakeAndDropRefuseRangesThatAreNoVectorsAndTooMany) {
  for (const char *name : {"Take", "Drop"}) {
    expectRefused(vectorCall(name).integer(1).tensor(realVector(2)), 1);
    expectRefused(vectorCall(name).integer(1).tensor(tensorOf<mint>({1, 2}, {1, 2})), 2);
    expectRefused(vectorCall(name).integer(0).integer(1).integer(0).integer(1), 2);
    expectRefused(vectorCall(name).integer(0), 12);
    expectRefused(NamedCall(name), 12);
    expectRefused(NamedCall(name).tensor(TORVANE_TYPE_REAL, numbered({})).integer(0).integer(1), 2);
    expectInEverySlot(NamedCall(name).tensor(TORVANE_TYPE_REAL, numbered({})), TORVANE_TYPE_REAL,
                      numbered({}));
  }
}

TEST_F(StructureEdges, ExportedTakeDropReadsItsPairsOfWords) {
  const Tensor source = tensorOfModel(TORVANE_TYPE_COMPLEX, numbered({3, 4})),
               range = tensorOf<mint>({2}, {2, 3});
  const intptr_t specs[] = {5, 2, 1, reinterpret_cast<intptr_t>(range.get())};
  MTensor *slot = nullptr;
  ASSERT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), 2, specs, 1), 0);
  expectModel(slot, TORVANE_TYPE_COMPLEX, {{2, 2}, {2, 3, 6, 7}}, "take");
  ASSERT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), 2, specs, 0), 0);
  expectModel(slot, TORVANE_TYPE_COMPLEX, {{1, 2}, {9, 12}}, "drop");
  ASSERT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), 0, nullptr, 1), 0);
  expectModel(slot, TORVANE_TYPE_COMPLEX, numbered({3, 4}), "no range");
  EXPECT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), 3, specs, 1), 2);
  EXPECT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), -1, specs, 1), 2);
  const intptr_t last[] = {-1, -2};
  ASSERT_EQ(Runtime_MTensor_TakeDrop(&slot, source.get(), 1, last, 7), 0);
  EXPECT_EQ(extentsOf(slot), (Extents{2, 4}));
  MTensor_delete(slot);
}

TEST_F(StructureEdges, FlattenOfEveryLevel) {
  const ModelTensor source = numbered({2, 3, 4});
  const auto flat = [&](mint level) {
    return NamedCall("Flatten").tensor(TORVANE_TYPE_REAL, source).integer(level);
  };
  const auto expectExtents = [&](mint level, const Extents &extents) {
    expectInEverySlot(flat(level), TORVANE_TYPE_REAL, {extents, source.values});
  };
  expectExtents(0, {2, 3, 4});
  expectExtents(1, {6, 4});
  for (mint level : {2, 3, 4, INT32_MAX}) expectExtents(level, {24});
  for (mint level : {-1, -2, INT32_MIN}) expectExtents(level, {1, 2, 3, 4});
  for (mint level : {0, 1, -5})
    expectInEverySlot(NamedCall("Flatten").tensor(TORVANE_TYPE_COMPLEX, numbered({})).integer(level),
                      TORVANE_TYPE_COMPLEX, numbered({1}));
  expectInEverySlot(NamedCall("Flatten").tensor(TORVANE_TYPE_REAL, numbered({3, 0, 2})).integer(1),
                    TORVANE_TYPE_REAL, numbered({0, 2}));
  expectInEverySlot(
      NamedCall("Flatten").tensor(TORVANE_TYPE_REAL, numbered({0, INT32_MAX, INT32_MAX})).integer(1),
      TORVANE_TYPE_REAL, numbered({0, INT32_MAX}));
}

TEST_F(StructureEdges, FlattenInPlaceMovesNoElement) {
  const Tensor tensor = tensorOfModel(TORVANE_TYPE_REAL, numbered({2, 3}));
  const void *const payload = tensor->data;
  MTensor *slot = tensor.get();
  ASSERT_EQ(Runtime_MTensor_Flatten(&slot, tensor.get(), 1), 0);
  EXPECT_EQ(slot, tensor.get());
  EXPECT_EQ(slot->data, payload);
  expectModel(slot, TORVANE_TYPE_REAL, numbered({6}), "in place");
}

TEST_F(StructureEdges, ReverseRefusesScalarsAndTurnsNothingRound) {
  expectRefused(NamedCall("Reverse").tensor(TORVANE_TYPE_REAL, numbered({})), 2);
  for (const Extents &extents : {Extents{0}, Extents{0, 3}, Extents{3, 0}})
    expectInEverySlot(NamedCall("Reverse").tensor(TORVANE_TYPE_REAL, numbered(extents)), TORVANE_TYPE_REAL,
                      numbered(extents));
  const Tensor tensor = tensorOfModel(TORVANE_TYPE_INTEGER, numbered({2}));
  MTensor *slot = nullptr;
  ASSERT_EQ(Runtime_MTensor_Reverse(&slot, tensor.get()), 0);
  expectModel(slot, TORVANE_TYPE_INTEGER, {{2}, {2, 1}}, "export");
  MTensor_delete(slot);
}

TEST_F(StructureEdges, RotationsOfAllKindsOfShifts) {
  expectVector(vectorCall("RotateLeft"), {2, 3, 1});
  expectVector(vectorCall("RotateRight"), {3, 1, 2});
  expectVector(vectorCall("RotateLeft").vector({6}), {1, 2, 3});
  expectVector(vectorCall("RotateLeft").vector({-1}), {3, 1, 2});
  expectVector(vectorCall("RotateLeft").vector({}), {1, 2, 3});
  expectVector(vectorCall("RotateRight").vector({INT32_MIN}), {3, 1, 2}); // 2^31 is 2 modulo 3
  expectVector(vectorCall("RotateLeft").vector({INT32_MIN}), {2, 3, 1});
  expectRefused(vectorCall("RotateLeft").vector({1, 1}), 3);
  expectRefused(vectorCall("RotateRight").tensor(realVector(1)), 1);
  expectRefused(vectorCall("RotateLeft").tensor(tensorOf<mint>({1, 1}, {1})), 2);
  expectRefused(NamedCall("RotateLeft").tensor(TORVANE_TYPE_REAL, numbered({})), 3);
  expectInEverySlot(NamedCall("RotateLeft").tensor(TORVANE_TYPE_REAL, numbered({})).vector({}),
                    TORVANE_TYPE_REAL, numbered({}));
  for (const Extents &extents : {Extents{0, 3}, Extents{3, 0}})
    expectInEverySlot(NamedCall("RotateLeft").tensor(TORVANE_TYPE_REAL, numbered(extents)).vector({1, 2}),
                      TORVANE_TYPE_REAL, numbered(extents));
}

TEST_F(StructureEdges, ExportedRotateTakesAnArrayOfShifts) {
  const Tensor tensor = tensorOfModel(TORVANE_TYPE_COMPLEX, numbered({2, 3}));
  const mint shifts[] = {1, -1};
  MTensor *slot = nullptr;
  ASSERT_EQ(Runtime_MTensor_Rotate(&slot, tensor.get(), 2, shifts), 0);
  expectModel(slot, TORVANE_TYPE_COMPLEX, {{2, 3}, {6, 4, 5, 3, 1, 2}}, "export");
  ASSERT_EQ(Runtime_MTensor_Rotate(&slot, tensor.get(), 0, nullptr), 0);
  expectModel(slot, TORVANE_TYPE_COMPLEX, numbered({2, 3}), "no shift");
  EXPECT_EQ(Runtime_MTensor_Rotate(&slot, tensor.get(), 3, shifts), 3);
  EXPECT_EQ(Runtime_MTensor_Rotate(&slot, tensor.get(), -1, shifts), 3);
  MTensor_delete(slot);
}

TEST_F(StructureEdges, JoinRefusesTensorsThatDoNotFit) {
  const auto joined = [](const char *name, const Extents &second, mint type) {
    return NamedCall(name).tensor(TORVANE_TYPE_REAL, numbered({2, 3})).tensor(type, numbered(second));
  };
  expectRefused(joined("Join", {2, 3}, TORVANE_TYPE_INTEGER), 4);
  expectRefused(joined("Join", {2}, TORVANE_TYPE_INTEGER), 4); // the type is tested first
  expectRefused(joined("Join", {6}, TORVANE_TYPE_REAL), 3);
  expectRefused(joined("Join", {2, 4}, TORVANE_TYPE_REAL), 3);
  expectRefused(NamedCall("Join").tensor(TORVANE_TYPE_REAL, numbered({})), 3);
  expectRefused(NamedCall("Join"), 12);
  const auto at = [&](const Extents &second, mint type, mint level) {
    return NamedCall(joined("JoinAtLevel", second, type)).integer(level);
  };
  expectRefused(at({2, 3}, TORVANE_TYPE_INTEGER, 1), 4);
  expectRefused(at({6}, TORVANE_TYPE_REAL, 1), 3);
  expectRefused(at({2, 4}, TORVANE_TYPE_REAL, 1), 3);
  expectRefused(at({1, 3}, TORVANE_TYPE_REAL, 2), 3);
  for (mint level : {0, 3, -1, INT32_MIN, INT32_MAX})
    expectRefused(at({2, 3}, TORVANE_TYPE_INTEGER, level), 2);
  expectRefused(NamedCall("JoinAtLevel").integer(1), 12);
  expectRefused(NamedCall("JoinAtLevel").tensor(TORVANE_TYPE_REAL, numbered({})).integer(1), 2);
}

TEST_F(StructureEdges, JoinOfATensorWithItselfReadsItsSizesFirst) {
  const Tensor tensor = tensorOfModel(TORVANE_TYPE_REAL, numbered({2}));
  MTensor *handle = tensor.get(), *slot = nullptr;
  void *arguments[] = {&handle, &handle, &handle};
  for (MTensor **result : {&slot, &handle}) {
    ASSERT_EQ(lookupRuntimeFunction("Join")(nullptr, 3, arguments, result), 0);
    expectModel(*result, TORVANE_TYPE_REAL, {{6}, {1, 2, 1, 2, 1, 2}}, "Join(t, t, t)");
  }
  MTensor_delete(slot);
}

// Nothing is asked of the heap: no tensor has as many bytes, or as long a dimension.
TEST_F(StructureEdges, JoinThatNoTensorCanHoldLeavesOnlyTheLengthBehind) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {1 << 20});
  MTensor *handle = tensor.get(), *slot = nullptr;
  std::vector<void *> arguments(1024, &handle);
  EXPECT_EQ(lookupRuntimeFunction("Join")(nullptr, 1024, arguments.data(), &slot), 403);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(tensor->dimensions[0], 1 << 30);
  tensor->dimensions[0] = 1 << 20;
  arguments.assign(2048, &handle);
  EXPECT_EQ(lookupRuntimeFunction("Join")(nullptr, 2048, arguments.data(), &slot), 403);
  EXPECT_EQ(tensor->dimensions[0], 1 << 20);
}

TEST_F(StructureEdges, DeleteOfAPositionTwiceDeletesItOnce) {
  expectVector(vectorCall("Delete").tensor(positions({3, 1}, {2, 2, -2})), {1, 3});
  expectVector(vectorCall("Delete").tensor(positions({3, 1}, {3, 1, 2})), {});
}

TEST_F(StructureEdges, NoPositionsGiveACopy) {
  for (const Extents &extents : {Extents{0, 1}, Extents{0, 0}, Extents{5, 0}}) {
    expectVector(vectorCall("Delete").tensor(positions(extents, {})), {1, 2, 3});
    expectVector(vectorCall("Insert").tensor(tensorOf<mint>({}, {9})).tensor(positions(extents, {})),
                 {1, 2, 3});
  }
}

TEST_F(StructureEdges, DeleteRefusesWhatIsNoPositionOrLeavesNoRectangle) {
  for (mint p : {0, 4, -4, INT32_MIN, INT32_MAX})
    expectRefused(vectorCall("Delete").tensor(positions({1, 1}, {p})), 4);
  expectRefused(vectorCall("Delete").tensor(positions({1, 2}, {1, 1})), 3);
  expectRefused(vectorCall("Delete").tensor(positions({0, 2}, {})), 3);
  expectRefused(vectorCall("Delete").tensor(positions({1}, {1})), 2);
  expectRefused(vectorCall("Delete").tensor(tensorOf<mreal>({1, 1}, {1})), 1);
  expectRefused(matrixCall("Delete").tensor(positions({2, 2}, {1, 1, 2, 1})), 3);
  expectRefused(matrixCall("Delete").tensor(positions({3, 2}, {1, 1, 1, 2, 2, 1})), 3); // as many, not evenly
  expectRefused(NamedCall("Delete").tensor(TORVANE_TYPE_REAL, numbered({0})).tensor(positions({1, 1}, {1})),
                4);
  expectRefused(NamedCall("Delete").tensor(TORVANE_TYPE_REAL, numbered({})).tensor(positions({1, 1}, {1})),
                3);
}

TEST_F(StructureEdges, InsertAllowsThePlaceAfterTheLastAndDuplicates) {
  const auto inserted = [&](const std::vector<mint> &at) {
    return NamedCall(
        vectorCall("Insert").tensor(tensorOf<mint>({}, {9})).tensor(positions({mint(at.size()), 1}, at)));
  };
  expectVector(inserted({4}), {1, 2, 3, 9});
  expectVector(inserted({-1}), {1, 2, 3, 9});
  expectVector(inserted({-4}), {9, 1, 2, 3});
  expectVector(inserted({2, 2, 1}), {9, 1, 9, 9, 2, 3});
  for (mint p : {0, 5, -5, INT32_MIN, INT32_MAX}) expectRefused(inserted({p}), 4);
  NamedCall intoNothing("Insert");
  intoNothing.tensor(TORVANE_TYPE_REAL, numbered({0, 2})).tensor(TORVANE_TYPE_REAL, numbered({2}));
  expectInEverySlot(intoNothing.tensor(positions({2, 1}, {1, -1})), TORVANE_TYPE_REAL,
                    {{2, 2}, {1, 2, 1, 2}});
}

TEST_F(StructureEdges, InsertOfNothingIntoNothingHasItsShape) {
  NamedCall call("Insert");
  call.tensor(TORVANE_TYPE_REAL, numbered({3, 0})).tensor(TORVANE_TYPE_REAL, numbered({0}));
  expectInEverySlot(call.tensor(positions({1, 1}, {2})), TORVANE_TYPE_REAL, numbered({4, 0}));
}

// Refused before anything is asked of the heap.
TEST_F(StructureEdges, InsertOfMoreThanADimensionCountsIsRefused) {
  NamedCall call("Insert");
  call.tensor(TORVANE_TYPE_REAL, numbered({INT32_MAX, 0})).tensor(TORVANE_TYPE_REAL, numbered({0}));
  expectRefused(NamedCall(call).tensor(positions({1, 1}, {2})), 403);
  expectRefused(NamedCall(call).tensor(positions({2, 1}, {1, -1})), 403);
}

TEST_F(StructureEdges, InsertRefusesItemsAndPositionsThatDoNotFit) {
  const auto inserted = [](Tensor item, Tensor at) {
    return NamedCall(matrixCall("Insert").tensor(std::move(item)).tensor(std::move(at)));
  };
  expectRefused(inserted(realVector(3), positions({1, 1}, {1})), 3);
  expectRefused(inserted(tensorOf<mreal>({}, {1}), positions({1, 1}, {1})), 3);
  expectRefused(inserted(tensorOf<mreal>({1, 4}, {1, 2, 3, 4}), positions({1, 1}, {1})), 3);
  expectRefused(inserted(tensorOf<mint>({4}, {1, 2, 3, 4}), positions({1, 1}, {1})), 1);
  expectRefused(inserted(realVector(4), tensorOf<mreal>({1, 1}, {1})), 1);
  expectRefused(inserted(realVector(4), positions({1}, {1})), 2);
  expectRefused(inserted(realVector(4), positions({1, 3}, {1, 1, 1})), 3);
  // A place after the last is one of the last coordinate only.
  expectRefused(inserted(tensorOf<mreal>({}, {1}), positions({1, 2}, {4, 1})), 4);
  expectRefused(inserted(tensorOf<mreal>({}, {1}), positions({2, 2}, {1, 1, 2, 1})), 3);
  expectRefused(inserted(tensorOf<mreal>({}, {1}), positions({3, 2}, {1, 1, 1, 2, 2, 1})), 3);
}

TEST_F(StructureEdges, PartitionRefusesWhatIsNoPairOfVectors) {
  const auto parts = [](Tensor sizes, Tensor offsets) {
    return NamedCall(matrixCall("Partition").tensor(std::move(sizes)).tensor(std::move(offsets)));
  };
  const auto vector = [](const std::vector<mint> &entries) {
    return tensorOf<mint>({mint(entries.size())}, entries);
  };
  expectRefused(parts(realVector(1), vector({1})), 1);
  expectRefused(parts(vector({1}), realVector(1)), 1);
  expectRefused(parts(tensorOf<mint>({1, 1}, {1}), vector({1})), 2);
  expectRefused(parts(vector({1}), tensorOf<mint>({}, {1})), 2);
  expectRefused(parts(vector({1, 1}), vector({1})), 2);
  expectRefused(parts(vector({1, 1, 1}), vector({1, 1, 1})), 2);
  expectRefused(parts(vector({-1}), vector({1})), 3);
  expectRefused(parts(vector({1}), vector({0})), 3);
  expectRefused(parts(vector({1}), vector({INT32_MIN})), 3);
  expectRefused(NamedCall("Partition").tensor(TORVANE_TYPE_REAL, numbered({0})).vector({1}).vector({1}), 3);
  expectRefused(NamedCall("Partition").tensor(TORVANE_TYPE_REAL, numbered({})).vector({1}).vector({1}), 2);
}

TEST_F(StructureEdges, PartitionOfEvenBlocksInPlaceMovesNoElement) {
  const Tensor tensor = tensorOfModel(TORVANE_TYPE_REAL, numbered({6, 2})), sizes = tensorOf<mint>({1}, {3});
  const void *const payload = tensor->data;
  MTensor *slot = tensor.get();
  ASSERT_EQ(Runtime_MTensor_Partition(&slot, tensor.get(), sizes.get(), sizes.get()), 0);
  EXPECT_EQ(slot->data, payload);
  expectModel(slot, TORVANE_TYPE_REAL, numbered({2, 3, 2}), "in place");
}

// As many elements as the tensor has, but not the same ones.
TEST_F(StructureEdges, PartitionIntoOverlappingBlocksIsNoChangeOfShape) {
  expectInEverySlot(vectorCall("Partition", 6).vector({3}).vector({2}), TORVANE_TYPE_INTEGER,
                    {{2, 3}, {1, 2, 3, 3, 4, 5}});
}

TEST_F(StructureEdges, PartitionWithoutBlocksHasItsShape) {
  expectInEverySlot(vectorCall("Partition").vector({4}).vector({1}), TORVANE_TYPE_INTEGER, {{0, 4}, {}});
  expectInEverySlot(vectorCall("Partition").vector({0}).vector({1}), TORVANE_TYPE_INTEGER, {{4, 0}, {}});
  expectInEverySlot(vectorCall("Partition").vector({INT32_MAX}).vector({INT32_MAX}), TORVANE_TYPE_INTEGER,
                    {{0, INT32_MAX}, {}});
}

// 2^15 blocks of 2^15 + 1 elements of each of two dimensions: 2^60 elements.
TEST_F(StructureEdges, PartitionThatNoTensorCanHoldIsRefused) {
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {1 << 17}), sizes = tensorOf<mint>({1}, {1 << 16}),
               offsets = tensorOf<mint>({1}, {1});
  MTensor *slot = nullptr;
  EXPECT_EQ(Runtime_MTensor_Partition(&slot, tensor.get(), sizes.get(), offsets.get()), 5);
  EXPECT_EQ(slot, nullptr);
}

TEST_F(StructureEdges, PaddingIsCheckedInItsOrder) {
  const auto pad = [](const char *name, Tensor lengths, Tensor padding, Tensor margins) {
    return NamedCall(
        matrixCall(name).tensor(std::move(lengths)).tensor(std::move(padding)).tensor(std::move(margins)));
  };
  const auto vector = [](const std::vector<mint> &entries) {
    return tensorOf<mint>({mint(entries.size())}, entries);
  };
  const auto one = [](mint type) { return tensorOfModel(type, numbered({1, 1})); };
  for (const char *name : {"PadLeft", "PadRight"}) {
    const auto refused = [&](Tensor lengths, Tensor padding, Tensor margins, mint status) {
      expectRefused(pad(name, std::move(lengths), std::move(padding), std::move(margins)), status);
    };
    const auto good = [&] { return vector({2, 2}); };
    refused(realVector(1), tensorOf<mint>({1}, {1}), realVector(1), 2); // rank before all types
    refused(vector({2}), one(TORVANE_TYPE_INTEGER), realVector(1), 1);
    refused(realVector(2), one(TORVANE_TYPE_REAL), vector({1}), 1);
    refused(tensorOf<mint>({1, 2}, {1, 2}), one(TORVANE_TYPE_REAL), good(), 1);
    refused(vector({2}), one(TORVANE_TYPE_REAL), realVector(2), 3); // lengths before margins
    refused(good(), one(TORVANE_TYPE_REAL), realVector(2), 1);
    refused(good(), one(TORVANE_TYPE_REAL), tensorOf<mint>({2, 1}, {1, 2}), 1);
    refused(good(), one(TORVANE_TYPE_REAL), vector({1, 1, 1}), 3);
    refused(vector({2, 0}), one(TORVANE_TYPE_REAL), vector({0, 0}), 3);
    refused(good(), tensorOfModel(TORVANE_TYPE_REAL, numbered({1, 0})), vector({0, 0}), 3);
    NamedCall scalar(name);
    scalar.tensor(TORVANE_TYPE_REAL, numbered({}))
        .vector({})
        .tensor(TORVANE_TYPE_REAL, numbered({}))
        .vector({});
    expectRefused(scalar, 2);
    refused(vector({2, INT32_MIN}), one(TORVANE_TYPE_REAL), vector({0, 0}), 402);
    // Element and byte counts that no tensor has.
    NamedCall large(matrixCall(name));
    large.vector({1 << 16, -(1 << 16)}).tensor(one(TORVANE_TYPE_REAL)).vector({0, 0});
    MTensor *slot = nullptr;
    EXPECT_EQ(NamedCall(large).run(&slot), 403);
    EXPECT_EQ(slot, nullptr);
  }
}

TEST_F(StructureEdges, PaddingGoesToTheSideOfItsName) {
  const auto pad = [](const char *name, mint length, std::vector<mint> padding, mint margin) {
    NamedCall call = vectorCall(name);
    return NamedCall(call.vector({length}).vector(padding).vector({margin}));
  };
  expectVector(pad("PadLeft", 5, {0}, 0), {0, 0, 1, 2, 3});
  expectVector(pad("PadRight", 5, {0}, 0), {1, 2, 3, 0, 0});
  expectVector(pad("PadLeft", -5, {0}, 0), {1, 2, 3, 0, 0});
  expectVector(pad("PadLeft", 5, {0}, 1), {0, 1, 2, 3, 0});
  expectVector(pad("PadRight", 5, {0}, 1), {0, 1, 2, 3, 0});
  expectVector(pad("PadLeft", 2, {0}, 0), {2, 3});
  expectVector(pad("PadRight", 2, {0}, 0), {1, 2});
  expectVector(pad("PadRight", 8, {7, 8}, 0), {1, 2, 3, 8, 7, 8, 7, 8});
  expectVector(pad("PadLeft", 8, {7, 8}, 0), {7, 8, 7, 8, 7, 1, 2, 3});
  expectVector(pad("PadLeft", 3, {7}, 50), {7, 7, 7}); // the tensor lies outside
}

TEST_F(StructureEdges, PaddingOfAnEmptyTensorIsTheTiling) {
  NamedCall call("PadRight");
  call.tensor(TORVANE_TYPE_REAL, numbered({0, 2})).vector({2, 3}).tensor(TORVANE_TYPE_REAL, numbered({1, 2}));
  expectInEverySlot(call.vector({0, 0}), TORVANE_TYPE_REAL, {{2, 3}, {1, 2, 1, 1, 2, 1}});
}

TEST_F(StructureEdges, LongRunsOfPaddingKeepTheirPeriod) {
  for (const mint period : {1, 2, 3, 7, 1000, 5001}) {
    NamedCall call = vectorCall("PadRight");
    call.vector({20011}).tensor(TORVANE_TYPE_INTEGER, numbered({period}, 100)).vector({0});
    MTensor *slot = nullptr;
    ASSERT_EQ(call.run(&slot), 0);
    for (mint i = 3; i < 20011; ++i) ASSERT_EQ(static_cast<mint *>(slot->data)[i], 100 + i % period) << i;
    MTensor_delete(slot);
  }
}

TEST_F(StructureEdges, DimensionsToADepth) {
  expectRefused(matrixCall("Dimensions").integer(-1), 4);
  expectRefused(matrixCall("Dimensions").integer(INT32_MIN), 4);
  expectVector(matrixCall("Dimensions").integer(0), {});
  expectVector(matrixCall("Dimensions").integer(1), {3});
  expectVector(NamedCall("Dimensions").tensor(TORVANE_TYPE_REAL, numbered({})), {});
}

// A rank of thousands: nothing recurses by dimension.
TEST_F(StructureEdges, RankIsAsHighAsMemoryAllows) {
  Extents extents(100000, 1);
  extents[0] = 2;
  extents[50000] = 3;
  extents.back() = 2;
  const ModelTensor source = numbered(extents);
  const auto run = [&](NamedCall &&call, std::vector<mint> expected) {
    MTensor *slot = nullptr;
    ASSERT_EQ(call.run(&slot), 0) << call.name;
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(modelOfTensor(slot).values, expected) << call.name;
    MTensor_delete(slot);
  };
  const auto call = [&](const char *name) {
    return NamedCall(NamedCall(name).tensor(TORVANE_TYPE_REAL, source));
  };
  std::vector<mint> shifts(extents.size(), 1);
  run(NamedCall(call("RotateLeft").vector(shifts)), {10, 9, 12, 11, 8, 7, 4, 3, 6, 5, 2, 1});
  run(NamedCall(call("Reverse")), {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6});
  NamedCall take = call("Take"), drop = call("Drop");
  for (const mint extent : extents) {
    take.integer(0).integer(-1);
    drop.integer(0).integer(extent > 1 ? 1 : 0);
  }
  run(std::move(take), {12});
  run(std::move(drop), {10, 12});
  Tensor lengths = tensorOf<mint>({mint(extents.size())}, extents);
  NamedCall pad = call("PadLeft");
  pad.tensor(std::move(lengths)).tensor(TORVANE_TYPE_REAL, numbered(Extents(extents.size(), 1), 77));
  std::vector<mint> margins(extents.size(), 0);
  margins[50000] = 1;
  run(std::move(pad.vector(margins)), {3, 4, 5, 6, 77, 77, 9, 10, 11, 12, 77, 77});
  std::vector<mint> ones(extents.size(), 1);
  run(NamedCall(call("Partition").vector(ones).vector(ones)), source.values);
}

} // namespace
