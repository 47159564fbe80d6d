// Selectors for tests: written down, drawn at random, handed over as callers do; and the model of what they
// select, one list of indices a dimension.
#pragma once

#include "support/tensor_builders.h"
#include "tensor/parts.h"

#include <algorithm>
#include <random>

namespace torvane::test {

// The words of a list or span, or the one position.
struct Selector {
  mint kind;
  std::vector<mint> words;
};

inline Selector position(mint p) { return {TORVANE_PART_POSITION, {p}}; }
inline Selector list(const std::vector<mint> &positions) { return {TORVANE_PART_LIST, positions}; }
inline Selector all() { return {TORVANE_PART_ALL, {}}; }
inline Selector span(const std::vector<mint> &words) { return {TORVANE_PART_SPAN, words}; }
inline Selector unknown(mint kind) { return {kind, {}}; }

class Selectors {
public:
  Selectors() = default;
  Selectors(std::initializer_list<Selector> given) {
    for (const Selector &selector : given) add(selector);
  }
  void add(const Selector &selector) { selectors.push_back(selector); }
  const Selector &operator[](size_t i) const { return selectors[i]; }

  mint count() const { return mint(selectors.size()); }
  mint rankOf(mint rank) const {
    return rank - mint(std::count_if(selectors.begin(), selectors.end(),
                                     [](const Selector &s) { return s.kind == TORVANE_PART_POSITION; }));
  }

  mint get(MTensor *result, MTensor **slot, const MTensor *source, mint resultRank) const {
    Handed handed(selectors);
    return MTensor_getParts(result, slot, source, resultRank, count(), handed.kinds.data(),
                            handed.specs.data());
  }
  mint set(MTensor *target, const MTensor *source, mint resultRank) const {
    Handed handed(selectors);
    return MTensor_setParts(target, source, resultRank, count(), handed.kinds.data(), handed.specs.data());
  }
  mint get(MNumericArray *result, MNumericArray **slot, const MNumericArray *source, mint resultRank) const {
    Handed handed(selectors);
    return MNumericArray_getParts(result, slot, source, resultRank, count(), handed.kinds.data(),
                                  handed.specs.data());
  }
  PartSelectors records() const {
    Handed handed(selectors);
    return PartSelectors(count(), handed.kinds.data(), handed.specs.data());
  }

private:
  struct Handed {
    std::vector<mint> kinds, positions;
    std::vector<Tensor> vectors;
    std::vector<MTensor *> slots;
    std::vector<void *> specs;

    explicit Handed(const std::vector<Selector> &selectors) {
      for (const Selector &s : selectors) {
        kinds.push_back(s.kind);
        positions.push_back(s.words.empty() ? 0 : s.words[0]);
        vectors.push_back(tensorOf({mint(s.words.size())}, s.words));
        slots.push_back(vectors.back().get());
      }
      for (size_t i = 0; i < kinds.size(); ++i)
        specs.push_back(kinds[i] == TORVANE_PART_POSITION ? &positions[i]
                        : kinds[i] == TORVANE_PART_LIST || kinds[i] == TORVANE_PART_SPAN
                            ? static_cast<void *>(&slots[i])
                            : nullptr);
    }
  };
  std::vector<Selector> selectors;
};

// The 0-based indices of a dimension that a fitting selector selects.
inline std::vector<mint> indicesOf(const Selector &selector, mint extent) {
  const auto place = [extent](mint p) { return p < 0 ? p + extent : p - 1; };
  std::vector<mint> indices;
  if (selector.kind == TORVANE_PART_ALL) {
    for (mint i = 0; i < extent; ++i) indices.push_back(i);
  } else if (selector.kind != TORVANE_PART_SPAN) {
    for (const mint p : selector.words) indices.push_back(place(p));
  } else if (selector.words.size() == 1) {
    const mint n = selector.words[0];
    for (mint i = n < 0 ? extent + n : 0; i < (n < 0 ? extent : n); ++i) indices.push_back(i);
  } else {
    const mint first = place(selector.words[0]), last = place(selector.words[1]);
    const mint step = selector.words.size() == 3 ? selector.words[2] : last < first ? -1 : 1;
    for (mint i = first; step < 0 ? i >= last : i <= last; i += step) indices.push_back(i);
  }
  return indices;
}

// A selection of a shape: its extents, and the flat index of each of its elements.
struct Selection {
  Extents extents;
  std::vector<size_t> places;

  Selection(const Extents &shape, const Selectors &selectors) : places{0} {
    for (size_t d = 0; d < shape.size(); ++d) {
      const Selector selector = mint(d) < selectors.count() ? selectors[d] : all();
      const std::vector<mint> indices = indicesOf(selector, shape[d]);
      if (selector.kind != TORVANE_PART_POSITION) extents.push_back(mint(indices.size()));
      std::vector<size_t> finer;
      for (const size_t place : places)
        for (const mint i : indices) finer.push_back(place * size_t(shape[d]) + size_t(i));
      places = finer;
    }
  }
};

// Fitting selectors at random: every kind, both signs, every form of a span.
class DrawnSelectors {
public:
  explicit DrawnSelectors(std::mt19937 &generator) : random(generator) {}

  mint below(mint bound) { return mint(random() % uint32_t(bound)); }
  mint index(mint extent) { return below(2) == 0 ? 1 + below(extent) : -1 - below(extent); }

  Selector draw(mint extent) {
    switch (below(5)) {
    case 0:
      return position(index(extent));
    case 1:
      return all();
    case 2:
      return list(drawList(extent));
    case 3:
      return span({below(2 * extent + 1) - extent});
    default:
      return drawSpan(extent);
    }
  }

  Selectors drawFor(const Extents &shape) {
    Selectors selectors;
    const mint count = below(mint(shape.size()) + 1);
    for (mint d = 0; d < count; ++d) selectors.add(draw(shape[size_t(d)]));
    return selectors;
  }

  Extents drawShape(mint rank) {
    Extents shape;
    for (mint d = 0; d < rank; ++d) shape.push_back(1 + below(rank < 4 ? 7 : 4));
    return shape;
  }

private:
  std::mt19937 &random;

  std::vector<mint> drawList(mint extent) {
    std::vector<mint> positions(size_t(below(6) == 0 ? 0 : 1 + below(2 * extent)));
    for (mint &p : positions) p = index(extent);
    return positions;
  }

  Selector drawSpan(mint extent) {
    const mint first = 1 + below(extent), last = 1 + below(extent);
    const mint start = below(2) == 0 ? first : first - extent - 1,
               end = below(2) == 0 ? last : last - extent - 1;
    if (below(2) == 0) return span({start, end});
    return span({start, end, (first > last ? -1 : 1) * (1 + below(extent))});
  }
};

} // namespace torvane::test
