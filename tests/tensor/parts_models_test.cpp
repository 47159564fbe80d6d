// Parts of random tensors of rank 1 to 6 against index arithmetic: extraction, assignment of the whole
// selection, of its last extents again and again, and of one element.
#include "tensor/parts_model.h"

#include <gtest/gtest.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kCasesOfARank = 400;

template <class Element> Element elementOf(size_t i) {
  if constexpr (sizeof(Element) == sizeof(mcomplex))
    return {mreal(i), -mreal(i) / 2};
  else
    return Element(i);
}

template <class Element> Tensor filled(const Extents &extents, size_t from) {
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  for (mint i = 0; i < tensor->elementCount; ++i)
    elements<Element>(tensor)[i] = elementOf<Element>(from + size_t(i));
  return tensor;
}

template <class Element> bool same(const Element &a, const Element &b) {
  return memcmp(&a, &b, sizeof a) == 0;
}

template <class Element> void expectExtraction(const Extents &shape, const Selectors &selectors) {
  const Tensor source = filled<Element>(shape, 1);
  const Selection model(shape, selectors);
  MTensor *slot = nullptr;
  ASSERT_EQ(selectors.get(nullptr, &slot, source.get(), selectors.rankOf(source->rank)), 0);
  const Tensor part(slot);
  ASSERT_TRUE(isValidTensor(slot));
  ASSERT_EQ(part->type, typeOf<Element>());
  ASSERT_EQ(extentsOf(part), model.extents);
  ASSERT_EQ(size_t(part->elementCount), model.places.size());
  for (size_t i = 0; i < model.places.size(); ++i)
    ASSERT_TRUE(same(elements<Element>(part)[i], elements<Element>(source)[model.places[i]])) << i;
}

// The source has the last `kept` extents of the selection.
template <class Element>
void expectAssignment(const Extents &shape, const Selectors &selectors, size_t kept) {
  const Selection model(shape, selectors);
  const Extents extents(model.extents.end() - ptrdiff_t(kept), model.extents.end());
  const Tensor target = filled<Element>(shape, 1), source = filled<Element>(extents, 1000);
  std::vector<Element> expected = valuesOf<Element>(target);
  for (size_t i = 0; i < model.places.size(); ++i)
    expected[model.places[i]] = elementOf<Element>(1000 + i % size_t(source->elementCount));
  ASSERT_EQ(selectors.set(target.get(), source.get(), selectors.rankOf(target->rank)), 0);
  for (size_t i = 0; i < expected.size(); ++i)
    ASSERT_TRUE(same(elements<Element>(target)[i], expected[i])) << i;
}

template <class Element> void expectAll(const Extents &shape, const Selectors &selectors) {
  expectExtraction<Element>(shape, selectors);
  const size_t rank = Selection(shape, selectors).extents.size();
  for (size_t kept = 0; kept <= rank; ++kept) expectAssignment<Element>(shape, selectors, kept);
}

class RandomParts : public testing::TestWithParam<mint> {};

TEST_P(RandomParts, AreWhatIndexArithmeticSays) {
  const mint rank = GetParam();
  std::mt19937 random(uint32_t(100 + rank));
  DrawnSelectors drawn(random);
  for (mint i = 0; i < kCasesOfARank && !HasFatalFailure(); ++i) {
    const Extents shape = drawn.drawShape(rank);
    const Selectors selectors = drawn.drawFor(shape);
    expectAll<mint>(shape, selectors);
    expectAll<mreal>(shape, selectors);
    expectAll<mcomplex>(shape, selectors);
  }
}

INSTANTIATE_TEST_SUITE_P(OfRank, RandomParts, testing::Range(1, 7));

TEST(PartsOfLongBlocks, AreWhatIndexArithmeticSays) {
  for (const mint length : {3, 17, 70, 300}) {
    const Extents shape = {5, 4, length};
    for (const Selectors &selectors :
         {Selectors{list({5, 1, 5})}, Selectors({all(), list({4, 2})}),
          Selectors({span({5, 1, -2}), span({2, 3})}), Selectors({all(), all(), list({3, 1})}),
          Selectors({list({2, 3}), position(2), span({2, -1})})})
      expectAll<mreal>(shape, selectors);
  }
}

TEST(PartsOfManyDimensionsOfOneIndex, AreFound) {
  Extents shape(40, 1);
  shape[3] = shape[39] = 3;
  Selectors selectors;
  for (mint d = 0; d < 40; ++d)
    selectors.add(d == 3 ? list({3, 1}) : d == 39 ? span({3, 1}) : d % 2 == 0 ? list({-1}) : all());
  expectAll<mint>(shape, selectors);
}

} // namespace
