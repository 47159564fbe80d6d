// Every operator number with every combination of operand and result types, against a slow model: the table
// of combinations as it was decided, the repetition rule by its definition, and one call of a typed entry an
// element. Shapes of rank 0 to 4, prefixes and empty ones among them; results in a null slot, in a slot that
// held something else, and in place of either operand.
#include "elementwise/dispatch.h"
#include "runtime/failure.h"
#include "scalar/operator_table.h"
#include "support/kinds.h"
#include "support/tensor_builders.h"

#include <algorithm>
#include <fenv.h>
#include <gtest/gtest.h>
#include <optional>
#include <torvane/operators.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kInteger = 2, kReal = 3, kComplex = 4;

// ---- the typed entries of an operator ---------------------------------------------------------------

struct UnaryModel {
  TypedUnary plain[3], checked[3]; // by kind
  bool storesWordOfReals = false;  // `im`, whose typed entry keeps the type
};

struct BinaryModel {
  TypedBinary plain[9], checked[9]; // by pair of kinds
  bool storesRealOfComplexes = false;
  bool testsReals = false; // whether flag 2 does something
};

#define FORMS(form, typed)                                                                                   \
  {                                                                                                          \
    wrapUnary<2>(form##unary_##typed##_Integer32), wrapUnary<3>(form##unary_##typed##_Real64),               \
        wrapUnary<4>(form##unary_##typed##_ComplexReal64)                                                    \
  }

std::vector<UnaryModel> unaryModels() {
  std::vector<UnaryModel> models(85);
  size_t next = 0;
#define TORVANE_UNARY(family, no, typed, ...)                                                                \
  models[size_t(table::kUnary[next++].number)] = {FORMS(, typed), FORMS(checked_, typed), false};
#include "scalar/operators.def"
  models[41].storesWordOfReals = true;
  models[66] = models[48];
  models[83] = models[38];
  models[84] = models[44];
  const auto ofTen = [](auto entry) {
    return
        [=](const Element &x) { return callEntry(entry, std::tuple(static_cast<int32_t>(x.value.re), 10)); };
  };
  models[64] = {{ofTen(binary_intexp_Integer32_Integer32)},
                {ofTen(checked_binary_intexp_Integer32_Integer32)}};
  models[65] = {{ofTen(binary_intlen_Integer32_Integer32)},
                {ofTen(checked_binary_intlen_Integer32_Integer32)}};
  return models;
}
#undef FORMS

// The three entries of one kind serve the nine pairs: both operands widen to the wider kind.
void fillPairs(TypedBinary (&pairs)[9], const TypedBinary (&byKind)[3]) {
  for (mint pair = 0; pair < 9; ++pair) {
    const mint kind = std::max(pair / 3, pair % 3) + 2;
    const TypedBinary entry = byKind[kind - 2];
    pairs[pair] = [=](const Element &x, const Element &y) { return entry(x.as(kind), y.as(kind)); };
  }
}

template <bool left> Outcome shifted(const Element &x, const Element &y) {
  const auto places = std::clamp(int64_t(y.value.re) * (left ? 1 : -1), int64_t(-5000), int64_t(5000));
  return {{x.kind, {std::ldexp(x.value.re, int(places)), std::ldexp(x.value.im, int(places))}}, 0};
}
mreal modulus(const Element &z) { return unary_abs_ComplexReal64(z.value.re, z.value.im); }
Outcome choppedByModulus(const Element &z, const Element &tolerance) {
  if (tolerance.value.re < 0) return {{}, 14};
  return {modulus(z) < tolerance.value.re ? Element{kComplex, {0, 0}} : z, 0};
}
Outcome unitizedByModulus(const Element &z, const Element &tolerance) {
  return wrapBinary<3, 3>(binary_unitize_Real64_Real64)({kReal, {modulus(z), 0}}, tolerance);
}

void fillPowers(TypedBinary (&pairs)[9]) {
  pairs[0] = wrapBinary<2, 2>(binary_pow_Integer32_Integer32);
  pairs[1] = wrapBinary<2, 3>(binary_pow_Integer32_Real64);
  pairs[2] = wrapBinary<2, 4>(binary_pow_Integer32_ComplexReal64);
  pairs[3] = wrapBinary<3, 2>(binary_pow_Real64_Integer32);
  pairs[4] = wrapBinary<3, 3>(binary_pow_Real64_Real64);
  pairs[5] = wrapBinary<3, 4>(binary_pow_Real64_ComplexReal64);
  pairs[6] = wrapBinary<4, 2>(binary_pow_ComplexReal64_Integer32);
  pairs[7] = wrapBinary<4, 3>(binary_pow_ComplexReal64_Real64);
  pairs[8] = wrapBinary<4, 4>(binary_pow_ComplexReal64_ComplexReal64);
}

std::vector<BinaryModel> binaryModels() {
  std::vector<BinaryModel> models(22);
  size_t next = 0;
#define FORMS(form, typed)                                                                                   \
  {                                                                                                          \
    wrapBinary<2, 2>(form##binary_##typed##_Integer32_Integer32),                                            \
        wrapBinary<3, 3>(form##binary_##typed##_Real64_Real64),                                              \
        wrapBinary<4, 4>(form##binary_##typed##_ComplexReal64_ComplexReal64)                                 \
  }
#define TORVANE_BINARY(family, no, typed, ...)                                                               \
  {                                                                                                          \
    const BinaryRow &row = table::kBinary[next++];                                                           \
    BinaryModel &model = models[size_t(row.number == 0 ? 0 : row.number - 256)];                             \
    fillPairs(model.plain, FORMS(, typed));                                                                  \
    fillPairs(model.checked, FORMS(checked_, typed));                                                        \
    model.testsReals = (row.checks.real & checks::c69) != 0;                                                 \
  }
#include "scalar/operators.def"
#undef FORMS
  for (const int row : {14, 15, 16}) models[size_t(row)].storesRealOfComplexes = true;
  fillPowers(models[7].plain);
  models[19].plain[3] = models[19].plain[6] = shifted<true>;
  models[20].plain[3] = models[20].plain[6] = shifted<false>;
  models[13].plain[7] = choppedByModulus;
  models[21].plain[7] = unitizedByModulus;
  return models;
}

// ---- the model of a call ------------------------------------------------------------------------------

enum class Entry { none, plain, widening };

// As decided: rows by operand types, columns by the result's.
Entry unaryEntry(mint x, mint r) {
  static const char *const kTable[] = {"p--", "ppw", "ppp"};
  const char entry = kTable[x - 2][r - 2];
  return entry == 'p' ? Entry::plain : entry == 'w' ? Entry::widening : Entry::none;
}
Entry binaryEntry(mint x, mint y, mint r) {
  static const char *const kTable[] = {"p--", "ppw", "-pp", "ppw", "ppw", "-pp", "-pp", "-pp", "-pp"};
  const char entry = kTable[3 * (x - 2) + (y - 2)][r - 2];
  return entry == 'p' ? Entry::plain : entry == 'w' ? Entry::widening : Entry::none;
}

struct Expected {
  mint status = 0;
  std::vector<Element> elements; // all, or those before the failure
};

// One element of a result: absent when the element fails.
using ElementModel = std::function<std::optional<Element>(size_t k)>;

Expected walk(size_t count, const ElementModel &element) {
  Expected expected;
  for (size_t k = 0; k < count; ++k) {
    const std::optional<Element> value = element(k);
    if (!value) {
      expected.status = 4;
      break;
    }
    expected.elements.push_back(*value);
  }
  return expected;
}

std::optional<Element> valueOf(const Outcome &outcome) {
  return outcome.code == 0 ? std::optional(outcome.element) : std::nullopt;
}

// What a routine stores of a typed entry's result; absent when that is not the result's type.
std::optional<mint> storedKind(const Element &result, bool isWordOfReal, bool isRealOfComplex) {
  if (isWordOfReal && result.kind == kReal) return kInteger;
  if (isRealOfComplex && result.kind == kComplex) return kReal;
  return result.kind;
}

const Element kProbe[3] = {{2, {2, 0}}, {3, {0.5, 0}}, {4, {0.5, 0.25}}};

bool hasUnary(mint op, mint x) { return op >= 0 && op < 85 && machfunsarray_1[3 * op + (x - 2)] != nullptr; }
bool hasBinary(mint op, mint x, mint y) {
  return op >= 256 && op < 278 && machfunsarray_2[9 * (op - 256) + 3 * (x - 2) + (y - 2)] != nullptr;
}

bool storesUnary(const UnaryModel &model, mint op, mint x, mint r) {
  if (!hasUnary(op, x)) return false;
  // On reals the typed entries of parity raise at once; their routines are of words.
  if (op == 54 || op == 55) return r == kInteger;
  const Outcome probe = model.plain[x - 2](kProbe[x - 2]);
  return storedKind(probe.element, model.storesWordOfReals && x == kReal, false) == r;
}
bool storesBinary(const BinaryModel &model, mint op, mint x, mint y, mint r) {
  if (!hasBinary(op, x, y)) return false;
  const Outcome probe = model.plain[3 * (x - 2) + (y - 2)](kProbe[x - 2], kProbe[y - 2]);
  return storedKind(probe.element, false, model.storesRealOfComplexes) == r;
}

Element widened(const Element &x) { return x.as(kComplex); }

Expected expectUnary(const UnaryModel &model, mint op, const std::vector<Element> &x, mint kind, mint r,
                     mint flags) {
  const Entry entry = unaryEntry(kind, r);
  if (entry == Entry::plain && storesUnary(model, op, kind, r)) {
    const bool isChecked = kind == kInteger && (flags & TORVANE_CHECK_INTEGERS) != 0;
    const TypedUnary &typed = (isChecked ? model.checked : model.plain)[kind - 2];
    return walk(x.size(), [&](size_t k) -> std::optional<Element> {
      const auto value = valueOf(typed(x[k]));
      return value ? std::optional(value->as(r)) : std::nullopt;
    });
  }
  if (entry == Entry::widening && storesUnary(model, op, kReal, kReal) &&
      storesUnary(model, op, kComplex, kComplex))
    return walk(x.size(), [&](size_t k) -> std::optional<Element> {
      const auto real = valueOf(model.plain[1](x[k]));
      return real ? std::optional(widened(*real)) : valueOf(model.plain[2](widened(x[k])));
    });
  return {4, {}};
}

// The operands repeated to the length of the result.
struct Operands {
  std::vector<Element> x, y;
};

Expected expectBinary(const BinaryModel &model, mint op, const Operands &operands, mint kind1, mint kind2,
                      mint r, mint flags) {
  const auto &[x, y] = operands;
  const Entry entry = binaryEntry(kind1, kind2, r);
  const mint pair = 3 * (kind1 - 2) + (kind2 - 2);
  if (entry == Entry::plain && storesBinary(model, op, kind1, kind2, r)) {
    const bool isChecked = pair == 0 && (flags & TORVANE_CHECK_INTEGERS) != 0;
    const TypedBinary &typed = (isChecked ? model.checked : model.plain)[pair];
    return walk(x.size(), [&](size_t k) -> std::optional<Element> {
      const auto value = valueOf(typed(x[k], y[k]));
      return value ? std::optional(value->as(r)) : std::nullopt;
    });
  }
  const mint wide1 = kind2 == kInteger ? kComplex : kind1, wide2 = kind2 == kInteger ? kind2 : kComplex;
  if (entry == Entry::widening && storesBinary(model, op, kind1, kind2, kReal) &&
      storesBinary(model, op, wide1, wide2, kComplex))
    return walk(x.size(), [&](size_t k) -> std::optional<Element> {
      constexpr int failing = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;
      feclearexcept(failing);
      const auto real = valueOf(model.plain[pair](x[k], y[k]));
      if (real && !(model.testsReals && fetestexcept(failing))) return widened(*real);
      const auto complex =
          valueOf(model.plain[3 * (wide1 - 2) + (wide2 - 2)](x[k].as(wide1), y[k].as(wide2)));
      return complex && complex->value.im != 0 ? complex : std::nullopt;
    });
  return {4, {}};
}

// ---- calls ----------------------------------------------------------------------------------------------

Element sample(mint kind, bool isTame, std::mt19937_64 &random) {
  if (!isTame) return sampleElement(kind, random);
  const mreal re = kind == kInteger ? mreal(random() % 9 + 1) : mreal(random() % 31 + 1) / 16;
  return {kind, {re, kind == kComplex ? mreal(random() % 7) / 8 : 0}};
}

Tensor randomTensor(mint kind, const Extents &extents, bool isTame, std::mt19937_64 &random) {
  Tensor tensor = newTensor(kind, extents);
  for (mint k = 0; k < tensor->elementCount; ++k)
    sample(kind, isTame, random).store(static_cast<char *>(tensor->data) + size_t(k) * widthOf(kind));
  return tensor;
}

std::vector<Element> elementsOf(const MTensor *tensor) {
  std::vector<Element> all;
  for (mint k = 0; k < tensor->elementCount; ++k)
    all.push_back(Element::load(tensor->type,
                                static_cast<const char *>(tensor->data) + size_t(k) * widthOf(tensor->type)));
  return all;
}

// What a slot holds before the call.
enum class Slot { empty, another, again, first, second };

Tensor inSlot(Slot slot, mint type, const Extents &extents, std::mt19937_64 &random) {
  const Extents shapes[] = {{}, {7}, {2, 3}, {0}};
  if (slot == Slot::again) return randomTensor(type, extents, false, random);
  return slot == Slot::another ? newTensor(mint(random() % 3) + 2, shapes[random() % 4]) : nullptr;
}

void expectResult(const MTensor *result, const Expected &expected, mint type, const Extents &extents) {
  ASSERT_NE(result, nullptr);
  ASSERT_TRUE(isValidTensor(result));
  ASSERT_EQ(result->type, type);
  ASSERT_EQ(extentsOf(result), extents);
  const std::vector<Element> stored = elementsOf(result);
  if (expected.status == 0) ASSERT_EQ(stored.size(), expected.elements.size());
  for (size_t k = 0; k < expected.elements.size(); ++k) ASSERT_EQ(stored[k], expected.elements[k]) << k;
}

std::string slotName(Slot slot) {
  const char *const names[] = {"an empty slot", "a slot in use", "the result of before", "the first operand",
                               "the second operand"};
  return names[int(slot)];
}

const Extents kShapes[] = {{}, {3}, {3, 2}, {3, 2, 2}, {3, 2, 2, 2}, {1}, {0}, {3, 0}, {17}};

void checkUnary(const UnaryModel &model, mint op, mint kind, mint r, Slot slot, std::mt19937_64 &random) {
  const Extents &extents = kShapes[random() % std::size(kShapes)];
  const mint flags = random() % 2 == 0 ? 0 : TORVANE_CHECK_INTEGERS;
  const Tensor x = randomTensor(kind, extents, random() % 2 == 0, random);
  const std::vector<Element> before = elementsOf(x.get());
  const Expected expected = expectUnary(model, op, before, kind, r, flags);
  SCOPED_TRACE(testing::Message() << "operator " << op << " from " << kind << " to " << r << " into "
                                  << slotName(slot) << " flags " << flags << " elements " << before.size());
  Tensor own = inSlot(slot, r, extents, random);
  MTensor *result = slot == Slot::first ? x.get() : own.get();
  const MTensor *held = result;
  ASSERT_EQ(tensorMathUnary(&result, x.get(), op, r, flags), expected.status);
  if (held != nullptr) ASSERT_EQ(result, held);
  if (held == nullptr) own.reset(result);
  const bool isKept = slot == Slot::first && expected.status != 0 && kind != r;
  ASSERT_NO_FATAL_FAILURE(isKept ? expectResult(result, {0, before}, kind, extents)
                                 : expectResult(result, expected, r, extents));
  if (slot != Slot::first) {
    ASSERT_EQ(elementsOf(x.get()), before) << "the operand is only read";
  } else if (expected.status != 0 && kind == r) {
    const std::vector<Element> after = elementsOf(result);
    for (size_t k = expected.elements.size(); k < before.size(); ++k)
      ASSERT_EQ(after[k], before[k]) << "in place, the failing element and all later ones stay";
  }
}

TEST(DispatchModel, HoldsForEveryUnaryOperatorAndTypes) {
  std::mt19937_64 random(41);
  const std::vector<UnaryModel> models = unaryModels();
  for (mint op = 0; op < 85; ++op)
    for (mint kind = 2; kind <= 4; ++kind)
      for (mint r = 2; r <= 4; ++r)
        for (int trial = 0; trial < 24; ++trial)
          for (const Slot slot : {Slot::empty, Slot::another, Slot::again, Slot::first})
            ASSERT_NO_FATAL_FAILURE(checkUnary(models[size_t(op)], op, kind, r, slot, random));
}

bool isPrefix(const Extents &a, const Extents &b) {
  return std::equal(a.begin(), a.begin() + ptrdiff_t(std::min(a.size(), b.size())), b.begin());
}

// Element k of the shorter operand, for each element of block k of the longer one.
std::vector<Element> repeated(const std::vector<Element> &elements, size_t longer, size_t shorter) {
  std::vector<Element> all;
  for (size_t k = 0; shorter != 0 && k < longer; ++k)
    all.push_back(elements[elements.size() == longer ? k : k / (longer / shorter)]);
  return all;
}

// The processor traps on the most negative integer divided by -1.
bool traps(mint op, const Operands &operands) {
  if (op != 261 && op != 262) return false;
  for (size_t k = 0; k < operands.x.size(); ++k)
    if (operands.x[k].value.re == INT32_MIN && operands.y[k].value.re == -1) return true;
  return false;
}

void checkBinary(const BinaryModel &model, mint op, mint kind1, mint kind2, mint r, Slot slot,
                 std::mt19937_64 &random) {
  const Extents &extents1 = kShapes[random() % std::size(kShapes)];
  const Extents &extents2 = random() % 2 == 0 ? extents1 : kShapes[random() % std::size(kShapes)];
  const bool isTame = random() % 2 == 0;
  const mint flags = random() % 2 == 0 ? 0 : TORVANE_CHECK_INTEGERS;
  const Tensor x = randomTensor(kind1, extents1, isTame, random),
               y = randomTensor(kind2, extents2, isTame, random);
  const std::vector<Element> x0 = elementsOf(x.get()), y0 = elementsOf(y.get());
  const size_t longer = std::max(x0.size(), y0.size()), shorter = std::min(x0.size(), y0.size());
  const bool agree = isPrefix(extents1, extents2);
  const Operands operands =
      agree ? Operands{repeated(x0, longer, shorter), repeated(y0, longer, shorter)} : Operands{};
  if (traps(op, operands)) return;
  Tensor own = inSlot(slot, r, extents2.size() > extents1.size() ? extents2 : extents1, random);
  MTensor *result = slot == Slot::first ? x.get() : slot == Slot::second ? y.get() : own.get();
  const MTensor *held = result;
  const bool isInPlace = slot == Slot::first || slot == Slot::second;
  const mint type = isInPlace ? held->type : r; // the asked type is ignored in place
  SCOPED_TRACE(testing::Message() << "operator " << op << " from " << kind1 << " " << kind2 << " to " << type
                                  << " into " << slotName(slot) << " flags " << flags << " elements "
                                  << x0.size() << " " << y0.size());
  const mint status = tensorMathBinary(&result, x.get(), y.get(), op, r, flags);
  if (held == nullptr) own.reset(result);
  if (!agree) {
    ASSERT_EQ(status, -1);
    ASSERT_EQ(result, held) << "nothing is allocated";
    return;
  }
  if (isInPlace && size_t(held->elementCount) < operands.x.size()) {
    ASSERT_EQ(status, 4);
    ASSERT_EQ(elementsOf(x.get()), x0);
    ASSERT_EQ(elementsOf(y.get()), y0);
    return;
  }
  const Expected expected = expectBinary(model, op, operands, kind1, kind2, type, flags);
  ASSERT_EQ(status, expected.status);
  if (isInPlace) {
    const std::vector<Element> after = elementsOf(held);
    for (size_t k = 0; k < expected.elements.size(); ++k) ASSERT_EQ(after[k], expected.elements[k]) << k;
  } else {
    // An empty operand makes no call: what the result held stays, at the shape of the larger rank.
    const Extents &extents = extents2.size() > extents1.size() ? extents2 : extents1;
    if (shorter == 0 && longer != 0)
      ASSERT_EQ(extentsOf(result), extents);
    else
      ASSERT_NO_FATAL_FAILURE(expectResult(result, expected, type, extents));
  }
  if (held != x.get()) ASSERT_EQ(elementsOf(x.get()), x0) << "an operand is only read";
  if (held != y.get()) ASSERT_EQ(elementsOf(y.get()), y0) << "an operand is only read";
}

TEST(DispatchModel, HoldsForEveryBinaryOperatorAndTypes) {
  std::mt19937_64 random(42);
  std::vector<BinaryModel> models = binaryModels();
  for (mint op = 256; op < 278; ++op)
    for (mint kinds = 0; kinds < 9; ++kinds)
      for (mint r = 2; r <= 4; ++r)
        for (int trial = 0; trial < 40; ++trial)
          for (const Slot slot : {Slot::empty, Slot::another, Slot::again, Slot::first, Slot::second})
            ASSERT_NO_FATAL_FAILURE(
                checkBinary(models[size_t(op - 256)], op, kinds / 3 + 2, kinds % 3 + 2, r, slot, random));
}

} // namespace
