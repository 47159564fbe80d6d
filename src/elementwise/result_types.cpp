// The four functions that tell a compiler what kind an operator yields, from the rules in its row.
#include "result_types.h"

#include "../scalar/operator_table.h"

#include <torvane/operators.h>

namespace torvane {

namespace {

constexpr mint kInteger = TORVANE_TYPE_INTEGER, kReal = TORVANE_TYPE_REAL, kComplex = TORVANE_TYPE_COMPLEX;
constexpr mint kNoType = 0;  // what the plain functions say of an operator that is not defined
constexpr mint kNoRange = 7; // what the range functions say of it
constexpr mint kNoCall = -1; // the operator is the identity on the kind
constexpr mint kTruth = 1;   // comes with the flag

constexpr mint typeByGroup(TypeGroup group, mint k) {
  switch (group) {
  case TypeGroup::A:
    return k == kInteger ? kNoType : k;
  case TypeGroup::B:
    return k;
  case TypeGroup::C:
    return k == kComplex ? kReal : k;
  case TypeGroup::D:
    return k == kComplex ? kReal : kInteger;
  case TypeGroup::E:
    return k == kReal ? kInteger : k;
  case TypeGroup::F:
    return k == kComplex ? kNoType : kInteger;
  case TypeGroup::G:
    return k == kReal ? kInteger : kNoType;
  case TypeGroup::H:
    return k == kReal ? kReal : kNoType;
  case TypeGroup::I:
    return k == kInteger ? kInteger : kNoType;
  case TypeGroup::J:
    return k == kComplex ? kNoType : k;
  case TypeGroup::K:
    break;
  }
  return kInteger;
}

mint rangeByRule(RangeRule rule, mint k, mint *flag) {
  switch (rule) {
  case RangeRule::keeps:
    return k == kInteger ? kNoRange : k;
  case RangeRule::leaves:
    return k == kInteger ? kNoRange : kComplex;
  case RangeRule::logarithm:
    return k == kInteger ? kInteger : kComplex;
  case RangeRule::modulus:
    return k == kComplex ? kReal : k;
  case RangeRule::component:
    return k == kComplex ? kReal : kInteger;
  case RangeRule::same:
    return k;
  case RangeRule::sign:
    return k == kReal ? kInteger : k;
  case RangeRule::truth:
    return k == kComplex ? kNoRange : (*flag = 1, kTruth);
  case RangeRule::rounding:
    return k == kComplex ? kNoRange : k == kInteger ? kNoCall : kInteger;
  case RangeRule::realOnly:
    return k == kReal ? kReal : kNoRange;
  case RangeRule::integerOnly:
    return k == kInteger ? kInteger : kNoRange;
  case RangeRule::noComplex:
    return k == kComplex ? kNoRange : k;
  case RangeRule::integerFlat:
    return k == kComplex ? kNoRange : kInteger;
  case RangeRule::integer:
    break;
  }
  return kInteger;
}

// What the rule yields for the plain function and for the range.
struct PairType {
  mint plain, range;
};
constexpr PairType kUndefinedPair = {kNoType, kNoRange};
constexpr PairType both(mint kind) { return {kind, kind}; }

constexpr PairType typeByPairRule(PairRule rule, mint k1, mint k2) {
  const mint m = k1 < k2 ? k2 : k1;
  const bool integers = k1 == kInteger && k2 == kInteger;
  switch (rule) {
  case PairRule::widest:
    return both(m);
  case PairRule::notIntegers:
    return m != kInteger ? both(m) : kUndefinedPair;
  case PairRule::quotient:
    return k1 == kComplex || k2 == kComplex ? kUndefinedPair : both(kInteger);
  case PairRule::power:
    return k2 == kInteger ? both(k1) : PairType{m, kComplex};
  case PairRule::logarithm:
    return m != kInteger ? PairType{m, kComplex} : kUndefinedPair;
  case PairRule::integers:
    return integers ? both(kInteger) : kUndefinedPair;
  case PairRule::chop:
    return k2 == kReal && (k1 == kReal || k1 == kComplex) ? both(k1) : kUndefinedPair;
  case PairRule::difference:
    return both(integers ? kInteger : kReal);
  case PairRule::relative:
    return integers ? kUndefinedPair : both(kReal);
  case PairRule::largestModulus:
    return k1 != k2 ? kUndefinedPair : both(integers ? kInteger : kReal);
  case PairRule::shift:
    return k2 == kInteger ? both(k1) : kUndefinedPair;
  case PairRule::integer:
    break;
  }
  return both(kInteger);
}

// The rules of an operator number; absent where the number is reserved.
struct UnaryRules {
  TypeGroup group;
  RangeRule range;
};
struct NumberedUnary {
  bool isPresent = false;
  UnaryRules rules = {};
};
struct NumberedPair {
  bool isPresent = false;
  PairRule rule = {};
};

struct RulesByNumber {
  NumberedUnary unary[kUnaryNumbers];
  NumberedPair pairs[kBinaryNumbers];

  // Operators without a number carry 0. Before the constructor: Clang evaluates no template that comes later.
  template <class Row> constexpr void enter(const Row &row) {
    if (row.number != 0) unary[row.number] = {true, {row.group, row.range}};
  }

  constexpr RulesByNumber() {
    for (const auto &row : table::kUnary) enter(row);
    for (const auto &row : table::kAliases) enter(row);
    for (const auto &row : table::kBound) enter(row);
    for (const BinaryRow &row : table::kBinary)
      if (row.number != 0) pairs[row.number - kFirstBinary] = {true, row.rule};
  }
};
constexpr RulesByNumber kRules;

constexpr const UnaryRules *unaryRules(mint op) {
  return op >= 0 && op < kUnaryNumbers && kRules.unary[op].isPresent ? &kRules.unary[op].rules : nullptr;
}

constexpr PairType pairTypes(mint op, mint kind1, mint kind2) {
  if (op < kFirstBinary || op >= kFirstBinary + kBinaryNumbers) return kUndefinedPair;
  const NumberedPair &pair = kRules.pairs[op - kFirstBinary];
  return pair.isPresent ? typeByPairRule(pair.rule, kind1, kind2) : kUndefinedPair;
}

// A routine stores what the plain function names; the integer identities, which need no call and so
// have no plain type, store integers.
constexpr mint storedByRules(mint op, mint kind) {
  const UnaryRules *rules = unaryRules(op);
  if (rules == nullptr) return kNoType;
  const mint type = typeByGroup(rules->group, kind);
  return type == kNoType ? kInteger : type;
}

} // namespace

constexpr StoredKinds::StoredKinds() {
  for (mint op = 0; op < kUnaryNumbers; ++op)
    for (mint kind = kInteger; kind <= kComplex; ++kind)
      unary[3 * op + (kind - 2)] = static_cast<uint8_t>(storedByRules(op, kind));
  for (mint row = 0; row < kBinaryNumbers; ++row)
    for (mint pair = 0; pair < 9; ++pair)
      binary[9 * row + pair] =
          static_cast<uint8_t>(pairTypes(kFirstBinary + row, pair / 3 + 2, pair % 3 + 2).plain);
}
constinit const StoredKinds storedKinds;

} // namespace torvane

using namespace torvane;

mint ReturnType1(mint op, mint kind) {
  const UnaryRules *rules = unaryRules(op);
  return rules == nullptr ? kNoType : typeByGroup(rules->group, kind);
}

mint ReturnRangeType1(mint op, mint kind, mint *flag) {
  *flag = 0;
  const UnaryRules *rules = unaryRules(op);
  return rules == nullptr ? kNoRange : rangeByRule(rules->range, kind, flag);
}

mint ReturnType2(mint op, mint kind1, mint kind2) { return pairTypes(op, kind1, kind2).plain; }

mint ReturnRangeType2(mint op, mint kind1, mint kind2) { return pairTypes(op, kind1, kind2).range; }
