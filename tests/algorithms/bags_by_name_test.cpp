// Bags by name against vectors that grow: all types, the borders of blocks, every refusal, and reads without
// memory.
#include "algorithms/bags.h"
#include "algorithms/named_call.h"
#include "runtime/library_data.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/tensor_builders.h"
#include "tensor/parts_model.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

using namespace torvane;
using namespace torvane::test;

namespace {

template <class Element> Element elementOf(mint n) {
  if constexpr (sizeof(Element) == sizeof(mcomplex))
    return {n + 0.25, -3.0 * n};
  else if constexpr (sizeof(Element) == sizeof(mreal))
    return n + 0.5;
  else
    return n;
}

template <class Element> bool same(const Element &a, const Element &b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}
template <class Element> bool same(const std::vector<Element> &a, const std::vector<Element> &b) {
  return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0);
}

// Calls by name through a record that has bags alone.
class Bags : public NamedFunctions {
protected:
  Bags() { record.runtimeState = &state; }
  ~Bags() override {
    BagTable_delete(state.bagTable);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  }

  mint call(const char *name, std::vector<void *> arguments, void *result = nullptr) {
    return lookupRuntimeFunction(name)(&record, mint(arguments.size()), arguments.data(), result);
  }
  mint newBag(mint type) {
    mint number = -1;
    EXPECT_EQ(call("Bag", {&type}, &number), 0);
    return number;
  }
  template <class Element> mint stuffScalar(mint bag, Element value) {
    return call("StuffBagScalar", {&bag, &value});
  }
  mint stuff(mint bag, const Tensor &tensor) {
    MTensor *handle = tensor.get();
    return call("StuffBag", {&bag, &handle});
  }
  template <class Element> mint at(mint bag, mint position, Element *value) {
    mint kind = TORVANE_PART_POSITION;
    return call("BagPart", {&bag, &kind, &position}, value);
  }
  mint all(mint bag, MTensor **slot) {
    mint kind = TORVANE_PART_ALL;
    return call("BagPart", {&bag, &kind}, slot);
  }
  // By a list or span.
  mint some(mint bag, mint kind, const std::vector<mint> &words, MTensor **slot) {
    const Tensor vector = tensorOf<mint>({mint(words.size())}, words);
    MTensor *handle = vector.get();
    return call("BagPart", {&bag, &kind, &handle}, slot);
  }
  const Bag *bag(mint number) { return BagTable_get(state.bagTable, number); }

  template <class Element> std::vector<Element> elementsOf(mint number) {
    MTensor *slot = nullptr;
    EXPECT_EQ(all(number, &slot), 0);
    const Tensor tensor(slot);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(slot->rank, 1);
    EXPECT_EQ(slot->type, typeOf<Element>());
    return valuesOf<Element>(tensor);
  }

  // A bag of the first `count` elements, put in as one tensor.
  template <class Element> mint filled(mint count) {
    std::vector<Element> values;
    for (mint n = 1; n <= count; ++n) values.push_back(elementOf<Element>(n));
    const mint number = newBag(typeOf<Element>());
    EXPECT_EQ(stuff(number, tensorOf({count}, values)), 0);
    return number;
  }

  RuntimeState state = {};
  TorvaneLibraryData record = {};
  const uint32_t used = usedBytesOfThisThread();
};

// ---- against a vector ----

template <class Element> struct Model {
  mint number;
  std::vector<Element> values;
};

// Mostly small, sometimes more than a block or two, often up to a border.
mint someCount(std::mt19937 &random, size_t present) {
  switch (random() % 8) {
  case 0:
    return mint(random() % 3000);
  case 1:
    return mint(1024 - present % 1024);
  case 2:
    return mint(1024 - present % 1024) + mint(random() % 3) - 1;
  default:
    return mint(random() % 20);
  }
}

template <class Element> class BagModels : public Bags {
protected:
  void grow(Model<Element> &model) {
    std::vector<Element> more(size_t(someCount(random, model.values.size())));
    for (Element &value : more) value = elementOf<Element>(mint(random()) / 2);
    if (random() % 2 == 0) {
      ASSERT_EQ(stuff(model.number, tensorOf({mint(more.size())}, more)), 0);
    } else {
      for (const Element &value : more) ASSERT_EQ(stuffScalar(model.number, value), 0);
    }
    model.values.insert(model.values.end(), more.begin(), more.end());
    EXPECT_TRUE(isValidBag(bag(model.number)));
    EXPECT_EQ(Bag_elementCount(bag(model.number)), int64_t(model.values.size()));
  }
  void readOne(const Model<Element> &model) {
    const mint count = mint(model.values.size());
    if (count == 0) return;
    const mint index = mint(random() % size_t(count));
    for (const mint position : {index + 1, index - count}) {
      Element value;
      ASSERT_EQ(at(model.number, position, &value), 0);
      EXPECT_TRUE(same(value, model.values[size_t(index)])) << position << " of " << count;
    }
  }
  void readSome(const Model<Element> &model) {
    const Selector selector = someSelector(mint(model.values.size()));
    std::vector<Element> expected;
    for (const mint i : indicesOf(selector, mint(model.values.size())))
      expected.push_back(model.values[size_t(i)]);
    MTensor *slot = random() % 2 == 0 ? nullptr : newTensor(TORVANE_TYPE_REAL, {2, 2}).release();
    ASSERT_EQ(some(model.number, selector.kind, selector.words, &slot), 0);
    const Tensor tensor(slot);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(slot->type, typeOf<Element>());
    EXPECT_TRUE(same(valuesOf<Element>(tensor), expected));
  }
  Selector someSelector(mint count) {
    if (random() % 2 == 0) {
      std::vector<mint> positions(count == 0 ? 0 : random() % 9);
      for (mint &p : positions) {
        p = 1 + mint(random() % size_t(count));
        if (random() % 2 == 0) p -= count + 1;
      }
      return list(positions);
    }
    if (count == 0) return span({0});
    if (random() % 3 == 0) {
      const mint n = mint(random() % size_t(count + 1));
      return span({random() % 2 == 0 || n == 0 ? n : -n});
    }
    const mint a = 1 + mint(random() % size_t(count)), b = 1 + mint(random() % size_t(count));
    if (random() % 2 == 0) return span({a, b - count - 1});
    return span({a, b, (1 + mint(random() % 5)) * (b < a ? -1 : 1)});
  }

  std::mt19937 random{20261122};
};

using ElementTypes = testing::Types<mint, mreal, mcomplex>;
TYPED_TEST_SUITE(BagModels, ElementTypes);

TYPED_TEST(BagModels, RandomCallsLeaveWhatAVectorHolds) {
  std::vector<Model<TypeParam>> models;
  for (int step = 0; step < 400; ++step) {
    if (models.empty() || this->random() % 40 == 0) models.push_back({this->newBag(typeOf<TypeParam>()), {}});
    Model<TypeParam> &model = models[this->random() % models.size()];
    switch (this->random() % 4) {
    case 0:
      this->readOne(model);
      break;
    case 1:
      this->readSome(model);
      break;
    default:
      this->grow(model);
    }
    if (this->HasFatalFailure()) return;
  }
  for (const Model<TypeParam> &model : models)
    EXPECT_TRUE(same(this->template elementsOf<TypeParam>(model.number), model.values));
}

TYPED_TEST(BagModels, BordersOfBlocksAreNoBorders) {
  for (const mint count : {1, 1023, 1024, 1025, 2047, 2048, 2049, 2500}) {
    std::vector<TypeParam> values;
    for (mint n = 1; n <= count; ++n) values.push_back(elementOf<TypeParam>(n));
    const mint one = this->newBag(typeOf<TypeParam>()), whole = this->template filled<TypeParam>(count);
    for (const TypeParam &value : values) ASSERT_EQ(this->stuffScalar(one, value), 0);
    for (const mint number : {one, whole}) {
      EXPECT_TRUE(same(this->template elementsOf<TypeParam>(number), values)) << count;
      EXPECT_EQ(this->bag(number)->blockCount, (count + 1023) / 1024) << count;
      EXPECT_TRUE(isValidBag(this->bag(number)));
      for (mint position = 1; position <= count; ++position) {
        TypeParam value;
        ASSERT_EQ(this->at(number, position, &value), 0);
        ASSERT_TRUE(same(value, values[size_t(position) - 1])) << position << " of " << count;
      }
    }
  }
}

TEST_F(Bags, ElementsStandInTheBlocksOfTheirPositions) {
  const Bag *const of2500 = bag(filled<mint>(2500));
  ASSERT_EQ(of2500->blockCount, 3);
  const auto *first = reinterpret_cast<const mint *>(of2500->firstBlock->data);
  const auto *second = reinterpret_cast<const mint *>(of2500->firstBlock->next->data);
  EXPECT_EQ(first[1023], 1024);
  EXPECT_EQ(second[0], 1025);
  EXPECT_EQ(of2500->blockBytes, 4096u);
}

TEST_F(Bags, FullBlockIsLeftByTheNextAppendAlone) {
  const mint number = filled<mint>(1024);
  EXPECT_EQ(bag(number)->cursor, bag(number)->blockEnd);
  EXPECT_EQ(bag(number)->blockCount, 1);
  ASSERT_EQ(stuffScalar(number, mint{7}), 0);
  EXPECT_EQ(bag(number)->blockCount, 2);
  EXPECT_EQ(bag(number)->cursor, bag(number)->firstBlock->next->data + 4);
}

TEST_F(Bags, ElementsNeverMove) {
  const mint number = filled<mreal>(3);
  const char *const data = bag(number)->firstBlock->data;
  for (mint n = 0; n < 5000; ++n) ASSERT_EQ(stuffScalar(number, mreal(n)), 0);
  EXPECT_EQ(bag(number)->firstBlock->data, data);
}

TEST_F(Bags, NewOneIsEmpty) {
  for (const mint type : {2, 3, 4}) {
    const mint number = newBag(type);
    EXPECT_TRUE(isValidBag(bag(number)));
    EXPECT_EQ(bag(number)->firstBlock, nullptr);
    EXPECT_EQ(bag(number)->tailLink, &bag(number)->firstBlock);
    MTensor *slot = nullptr;
    ASSERT_EQ(all(number, &slot), 0);
    EXPECT_EQ(slot->type, type);
    EXPECT_EQ(extentsOf(slot), (Extents{0}));
    MTensor_delete(slot);
    mcomplex value = {77, 77};
    for (const mint position : {1, 0, -1}) EXPECT_EQ(at(number, position, &value), -1);
    EXPECT_EQ(value.re, 77);
  }
}

TEST_F(Bags, OfATypeWithoutElementsAreRefused) {
  for (mint type : {INT32_MIN, -1, 0, 1, 5, 6, INT32_MAX}) {
    mint number = 77;
    EXPECT_EQ(call("Bag", {&type}, &number), 1) << type;
    EXPECT_EQ(number, 77);
  }
  EXPECT_EQ(newBag(2), 0) << "no number is lost";
}

TEST_F(Bags, NumbersCountFromZeroAndEachBagIsItsOwn) {
  for (mint n = 0; n < 100; ++n) EXPECT_EQ(newBag(2 + n % 3), n);
  for (mint n = 0; n < 100; ++n)
    for (mint time = 0; time <= n; ++time) {
      const mcomplex value = {mreal(n), 0};
      ASSERT_EQ(stuffScalar(n, value), 0);
    }
  for (mint n = 0; n < 100; ++n) {
    EXPECT_EQ(Bag_elementCount(bag(n)), n + 1);
    EXPECT_EQ(bag(n)->type, 2 + n % 3);
  }
}

// ---- what is refused ----

TEST_F(Bags, CallsWithAnotherNumberOfArgumentsAreRefused) {
  mint number = filled<mint>(3), zero = 0, one = 1, two = TORVANE_PART_ALL, kept = 77;
  const Tensor tensor = tensorOf<mint>({1}, {1});
  MTensor *handle = tensor.get(), *slot = nullptr;
  EXPECT_EQ(call("Bag", {}, &kept), 12);
  EXPECT_EQ(call("Bag", {&two, &two}, &kept), 12);
  for (const std::vector<void *> &wrong : {std::vector<void *>{}, {&number}, {&number, &one, &one, &one}}) {
    EXPECT_EQ(call("StuffBagScalar", wrong), 12) << wrong.size();
    EXPECT_EQ(call("BagPart", wrong, &kept), 12) << wrong.size();
  }
  for (const std::vector<void *> &wrong : {std::vector<void *>{}, {&number}, {&number, &handle, &one, &one}})
    EXPECT_EQ(call("StuffBag", wrong), 12) << wrong.size();
  for (mint kind : {0, 1, 3, 4, -1}) EXPECT_EQ(call("BagPart", {&number, &kind}, &kept), 12) << kind;
  EXPECT_EQ(call("BagPart", {&number, &two, &zero, &zero}, &slot), 12);
  EXPECT_EQ(kept, 77);
  EXPECT_EQ(elementsOf<mint>(number).size(), 3u);
}

TEST_F(Bags, AllMayComeWithASpecThatIsNotReadOrWithoutOne) {
  mint number = filled<mint>(3), kind = TORVANE_PART_ALL;
  MTensor *slot = nullptr;
  ASSERT_EQ(call("BagPart", {&number, &kind, nullptr}, &slot), 0);
  EXPECT_EQ(valuesOf<mint>(Tensor(slot)), (std::vector<mint>{1, 2, 3}));
}

TEST_F(Bags, NumberWithoutABagIsRefusedEverywhere) {
  const Tensor tensor = tensorOf<mint>({1}, {1}), empty = newTensor(TORVANE_TYPE_INTEGER, {0});
  const auto expectRefusal = [&](mint number) {
    mint kept = 77;
    MTensor *slot = nullptr;
    EXPECT_EQ(stuffScalar(number, mint{1}), 12) << number;
    EXPECT_EQ(stuff(number, tensor), 12) << number;
    EXPECT_EQ(stuff(number, empty), 12) << number;
    EXPECT_EQ(at(number, 1, &kept), 12) << number;
    EXPECT_EQ(all(number, &slot), 12) << number;
    for (const mint kind : {1, 3, 4, -1}) EXPECT_EQ(some(number, kind, {1}, &slot), 12) << number;
    EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(kept, 77);
  };
  for (const mint number : {0, 1, -1}) expectRefusal(number); // no table yet
  filled<mint>(3);
  for (const mint number : {1, 2, 1000, INT32_MAX, -1, INT32_MIN}) expectRefusal(number);
}

TEST_F(Bags, CallsWithoutARecordAreRefused) {
  mint number = 0, value = 2, result = 77;
  void *const arguments[] = {&number, &value, &value};
  EXPECT_EQ(lookupRuntimeFunction("Bag")(nullptr, 1, arguments, &result), 12);
  EXPECT_EQ(lookupRuntimeFunction("StuffBagScalar")(nullptr, 2, arguments, &result), 12);
  EXPECT_EQ(lookupRuntimeFunction("BagPart")(nullptr, 3, arguments, &result), 12);
  EXPECT_EQ(result, 77);
}

TEST_F(Bags, LimitBelowZeroRefusesAScalarAndLimitBelowTheRankATensor) {
  mint number = newBag(TORVANE_TYPE_INTEGER), value = 5;
  for (mint limit : {-1, INT32_MIN}) EXPECT_EQ(call("StuffBagScalar", {&number, &value, &limit}), 2);
  for (mint limit : {0, 1, INT32_MAX}) EXPECT_EQ(call("StuffBagScalar", {&number, &value, &limit}), 0);
  EXPECT_EQ(elementsOf<mint>(number), (std::vector<mint>{5, 5, 5}));
  for (const mint rank : {0, 1, 2, 3}) {
    const Tensor tensor = tensorOf<mint>(Extents(size_t(rank), 1), {rank});
    MTensor *handle = tensor.get();
    for (mint limit : {-1, 0, 1, 2, 3})
      EXPECT_EQ(call("StuffBag", {&number, &handle, &limit}), limit < rank ? 2 : 0) << rank << limit;
    EXPECT_EQ(call("StuffBag", {&number, &handle}), 0);
  }
  EXPECT_EQ(elementsOf<mint>(number).size(), 3u + 4 + 3 + 2 + 1 + 4);
}

TEST_F(Bags, EmptyTensorChangesNothingWhateverItsType) {
  const mint number = filled<mreal>(1024);
  for (const mint type : {2, 3, 4}) EXPECT_EQ(stuff(number, newTensor(type, {3, 0})), 0);
  EXPECT_EQ(bag(number)->blockCount, 1);
  EXPECT_EQ(elementsOf<mreal>(number).size(), 1024u);
}

TEST_F(Bags, TensorsOfAllRanksAreTakenRowByRow) {
  const mint number = newBag(TORVANE_TYPE_INTEGER);
  EXPECT_EQ(stuff(number, tensorOf<mint>({}, {1})), 0);
  EXPECT_EQ(stuff(number, tensorOf<mint>({2, 2}, {2, 3, 4, 5})), 0);
  EXPECT_EQ(elementsOf<mint>(number), (std::vector<mint>{1, 2, 3, 4, 5}));
}

TEST_F(Bags, BytesAreTakenAsTheyAre) {
  const mint number = newBag(TORVANE_TYPE_REAL);
  const Tensor complexes = tensorOf<mcomplex>({2}, {{1.5, 2.5}, {3.5, 4.5}});
  EXPECT_EQ(stuff(number, complexes), 0); // as many elements as the tensor has, of the bag's width
  EXPECT_EQ(elementsOf<mreal>(number), (std::vector<mreal>{1.5, 2.5}));
  const mint integers = newBag(TORVANE_TYPE_INTEGER);
  EXPECT_EQ(stuff(integers, tensorOf<mreal>({1}, {1.0})), 0);
  EXPECT_EQ(elementsOf<mint>(integers), (std::vector<mint>{0}));
}

TEST_F(Bags, TensorThatWouldBeReadPastItsEndIsRefused) {
  const mint real = filled<mreal>(2), complex = filled<mcomplex>(2);
  EXPECT_EQ(stuff(real, tensorOf<mint>({3}, {1, 2, 3})), 1);
  EXPECT_EQ(stuff(complex, tensorOf<mint>({3}, {1, 2, 3})), 1);
  EXPECT_EQ(stuff(complex, tensorOf<mreal>({3}, {1, 2, 3})), 1);
  EXPECT_EQ(elementsOf<mreal>(real).size(), 2u);
  EXPECT_EQ(elementsOf<mcomplex>(complex).size(), 2u);
}

TEST_F(Bags, PositionOutOfRangeIsMinusOne) {
  const mint number = filled<mint>(1025);
  mint value = 77;
  for (const mint position : {0, 1026, 2048, -1026, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(at(number, position, &value), -1) << position;
    EXPECT_EQ(value, 77);
  }
  EXPECT_EQ(at(number, -1025, &value), 0);
  EXPECT_EQ(value, 1);
}

TEST_F(Bags, UnknownKindIsMinusOne) {
  mint number = filled<mint>(3), position = 1;
  MTensor *slot = nullptr;
  for (mint kind : {4, 5, -1, INT32_MIN, INT32_MAX})
    EXPECT_EQ(call("BagPart", {&number, &kind, &position}, &slot), -1) << kind;
  EXPECT_EQ(slot, nullptr);
}

TEST_F(Bags, SelectorThatDoesNotFitIsFourAndLeavesTheSlot) {
  const mint number = filled<mint>(1025);
  const Tensor held = tensorOf<mreal>({2}, {1, 2});
  for (MTensor *const before : {static_cast<MTensor *>(nullptr), held.get()}) {
    MTensor *slot = before;
    for (const std::vector<mint> &words : {std::vector<mint>{0}, {1, 1026}, {-1026}, {1, INT32_MIN}})
      EXPECT_EQ(some(number, TORVANE_PART_LIST, words, &slot), 4);
    for (const std::vector<mint> &words :
         {std::vector<mint>{}, {1026}, {-1026}, {1, 1026}, {1, 5, 0}, {1, 5, -1}, {1, 2, 3, 4}})
      EXPECT_EQ(some(number, TORVANE_PART_SPAN, words, &slot), 4);
    EXPECT_EQ(slot, before);
  }
  EXPECT_EQ(valuesOf<mreal>(held), (std::vector<mreal>{1, 2}));
}

TEST_F(Bags, SelectorThatIsNoIntegerVectorIsFour) {
  mint number = filled<mint>(3);
  const Tensor real = tensorOf<mreal>({1}, {1}), matrix = tensorOf<mint>({1, 1}, {1});
  for (mint kind : {TORVANE_PART_LIST, TORVANE_PART_SPAN})
    for (MTensor *handle : {real.get(), matrix.get(), static_cast<MTensor *>(nullptr)}) {
      MTensor *slot = nullptr;
      EXPECT_EQ(call("BagPart", {&number, &kind, &handle}, &slot), 4);
      EXPECT_EQ(slot, nullptr);
    }
}

TEST_F(Bags, EmptySelectionsAreEmptyVectorsOfTheBagsType) {
  const mint number = filled<mcomplex>(3), none = filled<mreal>(0);
  for (const auto &[kind, words] :
       {std::pair<mint, std::vector<mint>>{TORVANE_PART_LIST, {}}, {TORVANE_PART_SPAN, {0}}})
    for (const mint of : {number, none}) {
      MTensor *slot = nullptr;
      ASSERT_EQ(some(of, kind, words, &slot), 0);
      EXPECT_EQ(slot->type, bag(of)->type);
      EXPECT_EQ(extentsOf(slot), (Extents{0}));
      EXPECT_EQ(slot->data, nullptr);
      MTensor_delete(slot);
    }
}

TEST_F(Bags, ResultMayTakeThePlaceOfTheVectorThatSelects) {
  mint number = filled<mreal>(2000);
  for (mint kind : {TORVANE_PART_LIST, TORVANE_PART_SPAN}) {
    const Tensor vector = tensorOf<mint>({3}, {2000, 1, -1});
    MTensor *slot = vector.get();
    ASSERT_EQ(call("BagPart", {&number, &kind, &slot}, &slot), 0);
    EXPECT_EQ(slot, vector.get());
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(slot->elementCount, kind == TORVANE_PART_LIST ? 3 : 2000);
    EXPECT_EQ(elements<mreal>(vector)[0], 2000.5);
    EXPECT_EQ(elements<mreal>(vector)[1], kind == TORVANE_PART_LIST ? 1.5 : 1999.5);
  }
}

TEST_F(Bags, RefusedCallLeavesTheVectorThatSelectsInItsSlot) {
  mint number = filled<mreal>(2), kind = TORVANE_PART_LIST;
  const Tensor vector = tensorOf<mint>({3}, {1, 2, 3});
  MTensor *slot = vector.get();
  EXPECT_EQ(call("BagPart", {&number, &kind, &slot}, &slot), 4);
  EXPECT_EQ(valuesOf<mint>(vector), (std::vector<mint>{1, 2, 3}));
}

// ---- memory that runs out ----

TEST_F(Bags, ReadingWithoutMemoryIs403AndLeavesTheSlot) {
  const mint number = filled<mcomplex>(1 << 17);
  const Tensor held = newTensor(TORVANE_TYPE_INTEGER, {2});
  for (MTensor *const before : {static_cast<MTensor *>(nullptr), held.get()}) {
    MTensor *slot = before;
    FailingHeap heap;
    const auto expectFailures = [&](int64_t most, auto read) {
      for (int64_t k = 1; k <= most; ++k) {
        heap.failRequest(k);
        EXPECT_EQ(read(), 403) << k;
        EXPECT_TRUE(heap.failed()) << k;
        EXPECT_EQ(slot, before);
      }
      heap.succeed();
    };
    expectFailures(1, [&] { return all(number, &slot); });
    expectFailures(2, [&] { return some(number, TORVANE_PART_SPAN, {-1, 1}, &slot); });
  }
}

TEST_F(Bags, FailedReadLeavesTheVectorThatSelectsInItsSlot) {
  mint number = filled<mcomplex>(1 << 17), kind = TORVANE_PART_SPAN;
  const Tensor vector = tensorOf<mint>({2}, {-1, 1});
  MTensor *slot = vector.get();
  FailingHeap heap;
  for (int64_t k = 1; k <= 2; ++k) {
    heap.failRequest(k);
    EXPECT_EQ(call("BagPart", {&number, &kind, &slot}, &slot), 403);
    EXPECT_EQ(valuesOf<mint>(vector), (std::vector<mint>{-1, 1}));
  }
}

} // namespace
