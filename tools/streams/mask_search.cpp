#include "mask_search.h"

#include "lattice.h"
#include "twister.h"

#include <iterator>
#include <optional>
#include <utility>

namespace streams {

namespace {

// Bits count from the top here, as the levels of the search do.
constexpr int kShift0 = 12, kShiftB = 7, kShiftC = 15, kShift1 = 18;
constexpr int kBroadLevels = 15; // every best node is kept; below, one

uint32_t bit(int i) { return i < kWordBits ? uint32_t{0x80000000} >> i : 0; }
bool has(uint32_t mask, int i) { return (mask & bit(i)) != 0; }

// Which bits of a word tempered bit i is the sum of.
uint32_t shiftedSource(int i) { return bit(i) | (i >= kShift0 ? bit(i - kShift0) : 0); }
uint32_t sourceAfterB(int i, const Masks &masks) {
  const bool joined = has(masks.b, i) && i + kShiftB < kWordBits;
  return shiftedSource(i) ^ (joined ? shiftedSource(i + kShiftB) : 0);
}
uint32_t sourceAfterC(int i, const Masks &masks) {
  const bool joined = has(masks.c, i) && i + kShiftC < kWordBits;
  return sourceAfterB(i, masks) ^ (joined ? sourceAfterB(i + kShiftC, masks) : 0);
}
uint32_t sourceOf(int i, const Masks &masks) {
  return sourceAfterC(i, masks) ^ (i >= kShift1 ? sourceAfterC(i - kShift1, masks) : 0);
}

// The generating functions of a word's bits, times the characteristic polynomial.
class BitSequences {
public:
  explicit BitSequences(uint32_t twist) : modulus(characteristicPolynomial(twist)) {
    const std::vector<uint32_t> words = untemperedWords(twist, kExponent);
    for (int i = 0; i < kWordBits; ++i) numerators.push_back(numeratorOf(words, i));
  }

  Polynomial numerator(uint32_t source) const {
    Polynomial total = {};
    for (int i = 0; i < kWordBits; ++i)
      if (has(source, i)) total = sum(total, numerators[static_cast<size_t>(i)]);
    return total;
  }

  const Polynomial modulus;

private:
  // The polynomial part of P(t) (x_0 / t + x_1 / t^2 + ...)
  Polynomial numeratorOf(const std::vector<uint32_t> &words, int i) const {
    Polynomial packed = {}, total = {};
    for (int s = 0; s < kExponent; ++s)
      if (has(words[static_cast<size_t>(s)], i)) packed = sum(packed, monomial(kExponent - 1 - s));
    // Coefficient k is the sum of P_(k + s + 1) x_s.
    for (int j = 1; j <= kExponent; ++j) {
      if (!coefficient(modulus, j)) continue;
      for (int s = 0; s < j; ++s)
        if (coefficient(packed, kExponent - 1 - s)) total = sum(total, monomial(j - 1 - s));
    }
    return total;
  }

  std::vector<Polynomial> numerators;
};

// A choice of masks down to some level, and the relations between the bits that it settles.
struct Node {
  Masks masks = {};
  std::optional<Relations> relations;
  Polynomial scale = {}; // 1 / the first sequence's numerator
};

void settleBit(Node &node, int level, const BitSequences &sequences) {
  const Polynomial h = sequences.numerator(sourceOf(level, node.masks));
  if (level == 0) {
    node.scale = inverseModulo(h, sequences.modulus);
    node.relations = Relations(sequences.modulus);
  } else {
    node.relations->addSequence(productModulo(h, node.scale, sequences.modulus));
  }
}

// What a level leaves open, the set bits first: bit v of c; below that, where the two are added, bit v + 15
// of b; below that, bit v of b. Where bit v of b was settled 15 levels above it stays.
void appendChoicesOfB(std::vector<Masks> &choices, const Masks &above, int level) {
  const bool joined = level < 10 && has(above.c, level);
  const bool settled = level >= kShiftC && has(above.c, level - kShiftC);
  const uint32_t b = above.b & ~(settled ? 0 : bit(level)) & ~bit(level + kShiftC);
  for (uint32_t low : {bit(level + kShiftC), uint32_t{0}}) {
    if (low != 0 && !joined) continue;
    if (!settled && level < kWordBits - kShiftB) choices.push_back({b | low | bit(level), above.c});
    choices.push_back({b | low, above.c});
  }
}

std::vector<Masks> choicesBelow(const Masks &above, int level) {
  std::vector<Masks> choices;
  const bool open = level < kWordBits - kShiftC;
  if (open) appendChoicesOfB(choices, {above.b, above.c | bit(level)}, level);
  appendChoicesOfB(choices, {above.b, open ? above.c & ~bit(level) : above.c}, level);
  return choices;
}

Node childOf(const Node &node, const Masks &masks, int level, const BitSequences &sequences) {
  Node child = node;
  child.masks = masks;
  settleBit(child, level, sequences);
  return child;
}

// All best children of all nodes, the last found first.
std::vector<Node> bestChildren(const std::vector<Node> &nodes, int level, const BitSequences &sequences) {
  std::vector<Node> best;
  int bestDimension = 0;
  for (const Node &node : nodes)
    for (const Masks &masks : choicesBelow(node.masks, level)) {
      Node child = childOf(node, masks, level, sequences);
      const int dimension = child.relations->dimension();
      if (dimension < bestDimension) continue;
      if (dimension > bestDimension) best.clear();
      bestDimension = dimension;
      best.push_back(std::move(child));
    }
  return {std::make_move_iterator(best.rbegin()), std::make_move_iterator(best.rend())};
}

// The first best child of one node.
Node bestChild(const Node &node, int level, const BitSequences &sequences) {
  const std::vector<Masks> choices = choicesBelow(node.masks, level);
  Node best = childOf(node, choices.front(), level, sequences);
  for (size_t i = 1; i < choices.size(); ++i) {
    Node child = childOf(node, choices[i], level, sequences);
    if (child.relations->dimension() > best.relations->dimension()) best = std::move(child);
  }
  return best;
}

} // namespace

Masks findMasks(uint32_t twist) {
  const BitSequences sequences(twist);
  std::vector<Node> nodes(1);
  for (int level = 0; level < kBroadLevels; ++level) nodes = bestChildren(nodes, level, sequences);
  Node node = nodes.front();
  for (int level = kBroadLevels; level < kWordBits - kShiftB; ++level)
    node = bestChild(node, level, sequences);
  return node.masks; // no choice is left below
}

std::vector<int> equidistribution(uint32_t twist, const Masks &masks) {
  const BitSequences sequences(twist);
  Node node;
  node.masks = masks;
  std::vector<int> dimensions;
  for (int level = 0; level < kWordBits; ++level) {
    settleBit(node, level, sequences);
    dimensions.push_back(node.relations->dimension());
  }
  return dimensions;
}

} // namespace streams
