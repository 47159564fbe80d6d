// Every rearranging function against an index-mapping model, on random shapes of rank 1 to 5, the three
// types, and every state of the result slot.
#include "named_call.h"

#include <algorithm>
#include <optional>
#include <random>
#include <set>

using namespace torvane;
using namespace torvane::test;

namespace {

class StructureModels : public NamedFunctions {
protected:
  mint below(mint bound) { return between(0, bound - 1); }
  mint between(mint low, mint high) { return std::uniform_int_distribution<mint>(low, high)(random); }
  mint anyType() { return kTensorTypes[below(3)]; }
  // Empty tensors now and then.
  Extents anyExtents(mint rank, mint longest = 4) {
    Extents extents;
    for (mint i = 0; i < rank; ++i) extents.push_back(below(25) == 0 ? 0 : between(1, longest));
    return extents;
  }
  Extents anyExtents() { return anyExtents(between(1, 5)); }

  std::mt19937_64 random{20261121};
};

// The indices from 0 that a range comes to, or nothing when it does not fit.
std::optional<std::vector<mint>> indicesOf(int64_t length, std::vector<int64_t> range, bool clipsStart) {
  if (range.size() == 1) range = {range[0], range[0], 1};
  if (range.empty()) range = {1, 0, 1};
  if (range.size() == 2) range.push_back(1);
  auto [start, end, step] = std::tuple(range[0], range[1], range[2]);
  if (start < 1) start += 1 + length;
  if (end < 0) end += 1 + length;
  if (clipsStart) start = std::min(start, length);
  if (step == INT32_MIN) step = start > end ? -1 : 1;
  if (step < 0) {
    if (end < 1 || end > start + 1 || start > length) return std::nullopt;
  } else if (step == 0 || start < 1 || start > end + 1 || end > length) {
    return std::nullopt;
  }
  std::vector<mint> indices;
  for (int64_t i = start; step > 0 ? i <= end : i >= end; i += step) indices.push_back(mint(i - 1));
  return indices;
}

struct TaggedRange {
  mint tag;
  std::vector<mint> entries; // one for an integer
  std::optional<std::vector<mint>> indices(mint length) const {
    if (tag == 1) {
      if (entries.size() > 3) return std::nullopt;
      return indicesOf(length, {entries.begin(), entries.end()}, false);
    }
    const mint n = entries[0];
    return indicesOf(length, n >= 0 ? std::vector<int64_t>{1, n} : std::vector<int64_t>{n, -1}, tag == -1);
  }
};

class TakeDrop : public StructureModels {
protected:
  // Mostly ranges that fit.
  TaggedRange anyRange(mint length) {
    if (below(3) == 0)
      return {below(2) == 0 ? -1 : between(2, 5),
              {between(-length - below(2), length + below(2) * below(2))}};
    TaggedRange tagged = {1, {}};
    const mint size = below(30) == 0 ? 4 : between(0, 3), low = below(length + 1),
               high = between(low, length);
    if (size > 0) tagged.entries = {between(1, std::max(length, 1))};
    if (size > 1) tagged.entries = {low + 1, high};
    if (size == 2 && below(3) == 0) tagged.entries[1] = high - length - 1;
    if (size > 2) {
      tagged.entries = {low + 1, high, between(1, 3)};
      if (below(2) == 0) tagged.entries = {high, low + below(2), -between(1, 3)};
      if (below(4) == 0) tagged.entries[2] = INT32_MIN;
      if (below(30) == 0) tagged.entries[size_t(below(3))] = between(-6, 6);
    }
    if (size == 4) tagged.entries.push_back(1);
    return tagged;
  }

  // Indices of each dimension that the result keeps, or nothing.
  std::optional<std::vector<std::vector<mint>>> choose(const Extents &extents,
                                                       const std::vector<TaggedRange> &given, bool isTake) {
    std::vector<std::vector<mint>> chosen;
    for (size_t i = 0; i < extents.size(); ++i) {
      std::vector<mint> all(static_cast<size_t>(extents[i]));
      std::iota(all.begin(), all.end(), 0);
      if (i < given.size()) {
        const auto range = given[i].indices(extents[i]);
        if (!range) return std::nullopt;
        const std::set<mint> dropped(range->begin(), range->end());
        if (isTake)
          all = *range;
        else
          std::erase_if(all, [&](mint index) { return dropped.count(index) > 0; });
      }
      chosen.push_back(all);
    }
    return chosen;
  }

  void tryOne(bool isTake) {
    const ModelTensor source = numbered(anyExtents());
    const mint type = anyType();
    std::vector<TaggedRange> given;
    for (mint i = between(0, mint(source.extents.size())); i > 0; --i)
      given.push_back(anyRange(source.extents[given.size()]));
    NamedCall call(isTake ? "Take" : "Drop");
    call.tensor(type, source);
    for (const TaggedRange &tagged : given) {
      call.integer(tagged.tag);
      tagged.tag == 1 ? call.vector(tagged.entries) : call.integer(tagged.entries[0]);
    }
    const auto chosen = choose(source.extents, given, isTake);
    if (!chosen) {
      ++refused;
      return expectRefused(call, 4);
    }
    ++done;
    Extents extents;
    for (const auto &indices : *chosen) extents.push_back(mint(indices.size()));
    expectInEverySlot(call, type, modelOf(extents, [&](Extents index) {
                        for (size_t i = 0; i < index.size(); ++i) index[i] = (*chosen)[i][size_t(index[i])];
                        return at(source, index);
                      }));
  }

  int done = 0, refused = 0;
};

TEST_F(TakeDrop, TakeIsTheModelOfItsRanges) {
  for (int i = 0; i < 3000; ++i) tryOne(true);
  EXPECT_GT(done, 1000);
  EXPECT_GT(refused, 100);
}

TEST_F(TakeDrop, DropIsTheModelOfTheOtherIndices) {
  for (int i = 0; i < 3000; ++i) tryOne(false);
  EXPECT_GT(done, 1000);
  EXPECT_GT(refused, 100);
}

TEST_F(StructureModels, FlattenJoinsTheFirstDimensionsAndKeepsTheOrder) {
  for (int i = 0; i < 400; ++i) {
    const ModelTensor source = numbered(anyExtents(between(0, 5)));
    const mint rank = mint(source.extents.size()), level = between(0, 7), joined = std::min(level + 1, rank);
    ModelTensor expected = {{1}, source.values};
    for (mint j = 0; j < rank; ++j)
      if (j < joined)
        expected.extents[0] *= source.extents[size_t(j)];
      else
        expected.extents.push_back(source.extents[size_t(j)]);
    const mint type = anyType();
    expectInEverySlot(NamedCall("Flatten").tensor(type, source).integer(level), type, expected);
  }
}

TEST_F(StructureModels, ReverseTurnsTheFirstDimensionRound) {
  for (int i = 0; i < 400; ++i) {
    const ModelTensor source = numbered(anyExtents(between(1, 5), 9));
    const mint type = anyType();
    expectInEverySlot(NamedCall("Reverse").tensor(type, source), type,
                      modelOf(source.extents, [&](Extents index) {
                        index[0] = source.extents[0] - 1 - index[0];
                        return at(source, index);
                      }));
  }
}

TEST_F(StructureModels, RotationsShiftEachDimensionByItsOwnAmount) {
  for (int i = 0; i < 1500; ++i) {
    const ModelTensor source = numbered(anyExtents());
    std::vector<mint> shifts;
    for (mint j = between(0, mint(source.extents.size())); j > 0; --j)
      shifts.push_back(below(10) == 0 ? (below(2) == 0 ? INT32_MIN : INT32_MAX) : between(-9, 9));
    const bool isLeft = below(2) == 0, isPlain = below(4) == 0;
    const mint type = anyType();
    NamedCall call(isLeft ? "RotateLeft" : "RotateRight");
    call.tensor(type, source);
    if (isPlain)
      shifts = {1};
    else
      call.vector(shifts);
    expectInEverySlot(call, type, modelOf(source.extents, [&](Extents index) {
                        for (size_t j = 0; j < shifts.size(); ++j) {
                          const int64_t length = source.extents[j],
                                        by = isLeft ? int64_t{shifts[j]} : -int64_t{shifts[j]};
                          index[j] = mint(((index[j] + by) % length + length) % length);
                        }
                        return at(source, index);
                      }));
  }
}

// Tensors of one shape but for dimension `level`, joined there.
void expectJoined(NamedCall call, mint type, const std::vector<ModelTensor> &parts, size_t level) {
  Extents extents = parts[0].extents;
  extents[level] = 0;
  std::vector<std::pair<size_t, mint>> places; // part and index for each index of the result
  for (size_t i = 0; i < parts.size(); ++i)
    for (mint j = 0; j < parts[i].extents[level]; ++j) places.push_back({i, j});
  extents[level] = mint(places.size());
  expectInEverySlot(call, type, modelOf(extents, [&](Extents index) {
                      const auto [part, inside] = places[size_t(index[level])];
                      index[level] = inside;
                      return at(parts[part], index);
                    }));
}

TEST_F(StructureModels, JoinsPutTensorsOneAfterAnother) {
  for (int i = 0; i < 600; ++i) {
    Extents extents = anyExtents();
    const bool hasLevel = below(2) == 0;
    const size_t level = hasLevel ? size_t(below(mint(extents.size()))) : 0;
    const mint type = anyType();
    NamedCall call(hasLevel ? "JoinAtLevel" : "Join");
    std::vector<ModelTensor> parts;
    for (mint count = below(10) == 0 ? 20 : between(1, 4); count > 0; --count) {
      extents[level] = between(0, 3);
      parts.push_back(numbered(extents, 1000 * count));
      call.tensor(type, parts.back());
    }
    if (hasLevel) call.integer(mint(level) + 1);
    expectJoined(call, type, parts, level);
  }
}

// A tensor as rows of blocks: one row for each choice of the first depth - 1 indices.
struct Rows {
  std::vector<std::vector<std::vector<mint>>> rows;
  Rows(const ModelTensor &source, size_t depth) {
    const auto from = source.extents.begin();
    const size_t parts = countOf(Extents(from, from + ptrdiff_t(depth) - 1)),
                 length = size_t(source.extents[depth - 1]);
    const size_t block = countOf(Extents(from + ptrdiff_t(depth), source.extents.end()));
    auto next = source.values.begin();
    rows.resize(parts);
    for (auto &row : rows)
      for (size_t i = 0; i < length; ++i, next += ptrdiff_t(block))
        row.emplace_back(next, next + ptrdiff_t(block));
  }
  bool isRectangle() const {
    return std::all_of(rows.begin(), rows.end(),
                       [&](const auto &row) { return row.size() == rows[0].size(); });
  }
  ModelTensor model(Extents extents, size_t depth) const {
    ModelTensor result = {extents, {}};
    result.extents[depth - 1] = mint(rows[0].size());
    for (const auto &row : rows)
      for (const auto &block : row) result.values.insert(result.values.end(), block.begin(), block.end());
    return result;
  }
};

class InsertDelete : public StructureModels {
protected:
  // A matrix of positions with as many rows a part, most of the time, in any order.
  ModelTensor anyPositions(const Extents &extents, size_t depth, mint slotsAfterLast, mint each) {
    std::vector<Extents> rows;
    const Extents parts(extents.begin(), extents.begin() + ptrdiff_t(depth) - 1);
    modelOf(parts, [&](Extents part) {
      for (mint i = 0; i < each; ++i) {
        rows.push_back(part);
        rows.back().push_back(below(extents[depth - 1] + slotsAfterLast));
      }
      return 0;
    });
    if (below(4) == 0 && rows.size() > 1) rows.pop_back();
    std::shuffle(rows.begin(), rows.end(), random);
    ModelTensor matrix = {{mint(rows.size()), mint(depth)}, {}};
    for (const Extents &row : rows)
      for (size_t j = 0; j < depth; ++j) {
        const mint slots = extents[j] + (j + 1 == depth ? slotsAfterLast : 0);
        matrix.values.push_back(below(2) == 0 ? row[j] + 1 : row[j] - slots);
      }
    return matrix;
  }

  static std::pair<size_t, size_t> partAndSlot(const ModelTensor &matrix, size_t row, const Extents &extents,
                                               mint slotsAfterLast) {
    const size_t depth = size_t(matrix.extents[1]);
    size_t part = 0, slot = 0;
    for (size_t j = 0; j < depth; ++j) {
      const mint slots = extents[j] + (j + 1 == depth ? slotsAfterLast : 0),
                 p = matrix.values[row * depth + j];
      slot = size_t(p > 0 ? p - 1 : p + slots);
      if (j + 1 < depth) part = part * size_t(extents[j]) + slot;
    }
    return {part, slot};
  }

  Tensor matrixOf(const ModelTensor &matrix) { return tensorOf<mint>(matrix.extents, matrix.values); }

  Extents fullExtents() {
    Extents extents;
    for (mint rank = between(1, 5); rank > 0; --rank) extents.push_back(between(1, 4));
    return extents;
  }

  int done = 0, refused = 0;
};

TEST_F(InsertDelete, DeleteTakesTheBlocksAtThePositionsOut) {
  for (int i = 0; i < 2000; ++i) {
    const ModelTensor source = numbered(fullExtents());
    const size_t depth = size_t(between(1, mint(source.extents.size())));
    const ModelTensor matrix = anyPositions(source.extents, depth, 0, between(1, 4));
    Rows rows(source, depth);
    std::set<std::pair<size_t, size_t>> deleted;
    for (size_t row = 0; row < size_t(matrix.extents[0]); ++row)
      deleted.insert(partAndSlot(matrix, row, source.extents, 0));
    for (auto place = deleted.rbegin(); place != deleted.rend(); ++place)
      rows.rows[place->first].erase(rows.rows[place->first].begin() + ptrdiff_t(place->second));
    const mint type = anyType();
    NamedCall call("Delete");
    call.tensor(type, source).tensor(matrixOf(matrix));
    if (!rows.isRectangle()) {
      ++refused;
      expectRefused(call, 3);
      continue;
    }
    ++done;
    expectInEverySlot(call, type, rows.model(source.extents, depth));
  }
  EXPECT_GT(done, 500);
  EXPECT_GT(refused, 200);
}

TEST_F(InsertDelete, InsertPutsTheItemBeforeEachPosition) {
  for (int i = 0; i < 2000; ++i) {
    const ModelTensor source = numbered(fullExtents());
    const size_t depth = size_t(between(1, mint(source.extents.size())));
    const ModelTensor matrix = anyPositions(source.extents, depth, 1, between(1, 4));
    const ModelTensor item =
        numbered(Extents(source.extents.begin() + ptrdiff_t(depth), source.extents.end()), 5000);
    Rows rows(source, depth);
    std::multiset<std::pair<size_t, size_t>> places;
    for (size_t row = 0; row < size_t(matrix.extents[0]); ++row)
      places.insert(partAndSlot(matrix, row, source.extents, 1));
    for (auto place = places.rbegin(); place != places.rend(); ++place)
      rows.rows[place->first].insert(rows.rows[place->first].begin() + ptrdiff_t(place->second), item.values);
    const mint type = anyType();
    NamedCall call("Insert");
    call.tensor(type, source).tensor(type, item).tensor(matrixOf(matrix));
    if (!rows.isRectangle()) {
      ++refused;
      expectRefused(call, 3);
      continue;
    }
    ++done;
    expectInEverySlot(call, type, rows.model(source.extents, depth));
  }
  EXPECT_GT(done, 500);
  EXPECT_GT(refused, 200);
}

TEST_F(StructureModels, PartitionGathersBlocksAtTheirDistances) {
  int empty = 0;
  for (int i = 0; i < 2000; ++i) {
    Extents extents;
    for (mint rank = between(1, 4); rank > 0; --rank) extents.push_back(between(1, 5));
    const ModelTensor source = numbered(extents);
    std::vector<mint> sizes, offsets, counts;
    for (mint j = below(mint(extents.size()) + 1); j > 0; --j) {
      const mint extent = extents[sizes.size()];
      sizes.push_back(below(12) == 0 ? below(2) * INT32_MAX : between(1, std::min(extent, 3) + below(8) / 7));
      offsets.push_back(below(3) == 0 && sizes.back() > 0 ? sizes.back()
                        : below(12) == 0                  ? INT32_MAX
                                                          : between(1, 3));
      mint blocks = 0; // starts 0, d, 2 d, ... whose block ends inside
      for (int64_t start = 0; start + sizes.back() <= extent; start += offsets.back()) ++blocks;
      counts.push_back(blocks);
    }
    const size_t k = sizes.size();
    Extents expected = counts;
    expected.insert(expected.end(), sizes.begin(), sizes.end());
    expected.insert(expected.end(), extents.begin() + ptrdiff_t(k), extents.end());
    empty += countOf(expected) == 0;
    const mint type = anyType();
    NamedCall call("Partition");
    call.tensor(type, source).vector(sizes).vector(offsets);
    expectInEverySlot(call, type, modelOf(expected, [&](const Extents &index) {
                        Extents from(index.begin() + ptrdiff_t(k), index.end());
                        for (size_t j = 0; j < k; ++j) from[j] += index[j] * offsets[j];
                        return at(source, from);
                      }));
  }
  EXPECT_GT(empty, 50);
}

struct PadCase {
  Extents extents, period;
  std::vector<mint> lengths, margins;
};

void expectPadded(const PadCase &pad, bool isLeft, mint type) {
  const size_t rank = pad.extents.size();
  std::vector<mint> result;
  for (const mint length : pad.lengths) result.push_back(std::abs(length));
  const ModelTensor source = numbered(pad.extents), padding = numbered(pad.period, -500);
  NamedCall call(isLeft ? "PadLeft" : "PadRight");
  call.tensor(type, source).vector(pad.lengths).tensor(type, padding).vector(pad.margins);
  expectInEverySlot(call, type, modelOf(result, [&](const Extents &index) {
                      Extents inside(rank), tile(rank);
                      bool isInside = true;
                      for (size_t j = 0; j < rank; ++j) {
                        const bool isAtEnd = (pad.lengths[j] > 0) == isLeft;
                        const int64_t q = result[j], t = pad.extents[j], p = pad.period[j],
                                      m = pad.margins[j];
                        const int64_t place = index[j] - (isAtEnd ? q - m - t : m);
                        isInside = isInside && place >= 0 && place < t;
                        inside[j] = mint(place);
                        const int64_t a = (((isAtEnd ? q - m : m) % p) + p) % p;
                        tile[j] = mint((p - a + index[j]) % p);
                      }
                      return isInside ? at(source, inside) : at(padding, tile);
                    }));
}

TEST_F(StructureModels, PaddingTilesAndLaysTheTensorOver) {
  int done = 0;
  for (int i = 0; i < 3000; ++i) {
    PadCase pad = {anyExtents(between(1, 4)), {}, {}, {}};
    size_t count = 1;
    for (size_t j = 0; j < pad.extents.size(); ++j) {
      pad.period.push_back(between(1, 4));
      pad.lengths.push_back((below(2) == 0 ? 1 : -1) * between(1, below(6) == 0 ? 40 : 6));
      pad.margins.push_back(below(20) == 0 ? INT32_MIN : between(-3, 5));
      count *= size_t(std::abs(pad.lengths.back()));
    }
    if (count > 4000) continue;
    ++done;
    expectPadded(pad, below(2) == 0, anyType());
  }
  EXPECT_GT(done, 2000);
}

// Results of several times the bytes that boxes take turns after, along the first dimension and along the
// second.
class LargeTensors : public StructureModels {
protected:
  const std::vector<Extents> shapes = {
      {30000, 3}, {3, 30000, 2}, {2, 2, 20000, 2}, {150, 7, 150}, {5, 9000, 3}};
};

TEST_F(LargeTensors, RotateInTurns) {
  for (const Extents &extents : shapes) {
    const ModelTensor source = numbered(extents);
    const std::vector<mint> shifts(extents.size(), 1);
    expectInEverySlot(NamedCall("RotateLeft").tensor(TORVANE_TYPE_REAL, source).vector(shifts),
                      TORVANE_TYPE_REAL, modelOf(extents, [&](Extents index) {
                        for (size_t j = 0; j < index.size(); ++j) index[j] = (index[j] + 1) % extents[j];
                        return at(source, index);
                      }));
  }
}

// Without the second of three or more, or without every third from the second on.
TEST_F(LargeTensors, DropInTurns) {
  for (const Extents &extents : shapes) {
    const ModelTensor source = numbered(extents);
    for (const mint step : {3, INT32_MAX}) {
      NamedCall call("Drop");
      call.tensor(TORVANE_TYPE_INTEGER, source);
      std::vector<std::vector<mint>> kept(extents.size());
      Extents shape;
      for (size_t j = 0; j < extents.size(); ++j) {
        call.integer(1).vector({2, extents[j], step});
        for (mint i = 0; i < extents[j]; ++i)
          if (i < 1 || (i - 1) % step != 0) kept[j].push_back(i);
        shape.push_back(mint(kept[j].size()));
      }
      expectInEverySlot(call, TORVANE_TYPE_INTEGER, modelOf(shape, [&](Extents index) {
                          for (size_t j = 0; j < index.size(); ++j) index[j] = kept[j][size_t(index[j])];
                          return at(source, index);
                        }));
    }
  }
}

TEST_F(LargeTensors, JoinInTurns) {
  for (Extents extents : {Extents{30001, 3}, Extents{3, 30000, 2}, Extents{7, 5, 4001}}) {
    const size_t level = extents.size() - 1;
    std::vector<ModelTensor> parts = {numbered(extents)};
    extents[level] += 2;
    parts.push_back(numbered(extents, 1000000));
    NamedCall call("JoinAtLevel");
    call.tensor(TORVANE_TYPE_REAL, parts[0]).tensor(TORVANE_TYPE_REAL, parts[1]).integer(mint(level) + 1);
    expectJoined(call, TORVANE_TYPE_REAL, parts, level);
  }
}

// Rows so long that the tiling goes around the tensor in them.
TEST_F(LargeTensors, PadAroundLongRows) {
  const std::vector<PadCase> cases = {{{20, 600}, {1, 1}, {21, 601}, {0, 0}},
                                      {{20, 600}, {3, 7}, {25, 1700}, {2, 900}},
                                      {{3, 4, 500}, {2, 2, 2}, {5, 6, 510}, {1, 1, 5}},
                                      {{3, 4, 500}, {2, 3, 1}, {2, -6, 300}, {0, 3, 0}},
                                      {{700, 1}, {1, 3}, {750, 1}, {5, 0}},
                                      {{4000}, {11}, {5000}, {300}},
                                      {{4, 600}, {2, 5}, {9, 620}, {3, 700}}};
  for (const PadCase &pad : cases)
    for (const bool isLeft : {true, false})
      for (const mint type : {TORVANE_TYPE_REAL, TORVANE_TYPE_INTEGER}) expectPadded(pad, isLeft, type);
}

TEST_F(StructureModels, DimensionsAreTheExtentsOrTheFirstOfThem) {
  for (int i = 0; i < 300; ++i) {
    const ModelTensor source = numbered(anyExtents(between(0, 5)));
    NamedCall call("Dimensions");
    call.tensor(anyType(), source);
    std::vector<mint> expected = source.extents;
    if (below(2) == 0) {
      const mint depth = between(0, 7);
      call.integer(depth);
      expected.resize(std::min(expected.size(), size_t(depth)));
    }
    expectInEverySlot(call, TORVANE_TYPE_INTEGER, {{mint(expected.size())}, expected});
  }
}

} // namespace
