#include "typed_cells.h"

#include "scalar/operator_traits.h"
#include "typed_call.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <torvane/failure.h>
#include <torvane/scalars.h>
#include <utility>

namespace torvane::test {

namespace {

// ---- samples ----------------------------------------------------------------------------------------

template <class T> bool quotientTraps(const void *x, const void *y) {
  if constexpr (isSigned<T>)
    return isReserved(*static_cast<const T *>(x)) && *static_cast<const T *>(y) == T(-1);
  else
    return false;
}

template <class T> const SampleSet *sampleSet(const char *type) {
  static const std::vector<T> values = samples<T>();
  static const SampleSet set = {type,
                                reinterpret_cast<const unsigned char *>(values.data()),
                                values.size(),
                                sizeof(T),
                                isComplex<T> ? 2 : 1,
                                quotientTraps<T>};
  return &set;
}

// Pairs of all complex samples are too many; a stride through the second ones meets every value, and beside
// it come zero and a few more.
std::vector<size_t> secondSamples(const SampleSet &set, size_t turn) {
  const size_t stride = set.parts == 2 ? 31 : 1;
  std::vector<size_t> some;
  for (size_t k = turn % stride; k < set.count; k += stride) some.push_back(k);
  if (stride > 1)
    for (const size_t k : {size_t{0}, size_t{2}, size_t{10}, set.count - 1}) some.push_back(k);
  return some;
}

// ---- entries ----------------------------------------------------------------------------------------

template <class A> A argument(void *at) {
  if constexpr (std::is_pointer_v<A>)
    return static_cast<A>(at);
  else
    return *static_cast<const A *>(at);
}

template <class R, class... A, size_t... k>
void invokeWith(void (*code)(), void *returned, void *const *arguments, std::index_sequence<k...>) {
  const auto entry = reinterpret_cast<R (*)(A...)>(code);
  if constexpr (std::is_pointer_v<R>)
    *static_cast<const void **>(returned) = entry(argument<A>(arguments[k])...);
  else
    *static_cast<R *>(returned) = entry(argument<A>(arguments[k])...);
}
template <class R, class... A> void invoke(void (*code)(), void *returned, void *const *arguments) {
  invokeWith<R, A...>(code, returned, arguments, std::index_sequence_for<A...>());
}

template <class P, size_t count> mint valueCode(const void *result) {
  for (size_t k = 0; k < count; ++k)
    if (const mint code = valueCodeOf(double(static_cast<const P *>(result)[k])); code != 0) return code;
  return 0;
}
template <> mint valueCode<Real16, 1>(const void *result) {
  return valueCodeOf(double(widen(*static_cast<const Real16 *>(result))));
}

template <class R, class... A> TypedEntry typedEntry(const char *name, R (*code)(A...)) {
  constexpr size_t places = (size_t{std::is_pointer_v<A>} + ... + 0);
  using Part = std::conditional_t<std::is_same_v<R, uint16_t *>, Real16, std::remove_pointer_t<R>>;
  constexpr size_t parts = places == 2 ? 2 : 1;
  static_assert(parts * sizeof(Part) <= kResultBytes);
  return {name,
          reinterpret_cast<void (*)()>(code),
          places,
          invoke<R, A...>,
          valueCode<Part, parts>,
          parts * sizeof(Part)};
}

// ---- cells ------------------------------------------------------------------------------------------

#define BOTH_FORMS(entry) typedEntry(#entry, entry), typedEntry("checked_" #entry, checked_##entry)

using SampleSets = std::array<const SampleSet *, 3>;

std::vector<TypedCell> makeUnary() {
  std::vector<TypedCell> cells;
#define ONE(T, typed)                                                                                        \
  cells.push_back({#typed, checksFor<T>(RowOf<unary::typed>::checks), SampleSets{sampleSet<T>(#T)},          \
                   BOTH_FORMS(unary_##typed##_##T)});
#define TORVANE_UNARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
  return cells;
}

std::vector<TypedCell> makeBinary() {
  std::vector<TypedCell> cells;
#define ONE(T, typed)                                                                                        \
  cells.push_back({#typed, checksFor<T>(RowOf<binary::typed>::checks),                                       \
                   SampleSets{sampleSet<T>(#T), sampleSet<T>(#T)}, BOTH_FORMS(binary_##typed##_##T##_##T)});
#define TORVANE_BINARY(family, number, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
  return cells;
}

std::vector<TypedCell> makeTernary() {
  std::vector<TypedCell> cells;
#define ONE(T, typed)                                                                                        \
  cells.push_back({#typed, checksFor<T>(RowOf<ternary::typed>::checks),                                      \
                   SampleSets{sampleSet<T>(#T), sampleSet<T>(#T), sampleSet<T>(#T)},                         \
                   BOTH_FORMS(ternary_##typed##_##T##_##T##_##T)});
#define TORVANE_TERNARY(family, typed, ...) TORVANE_FOR_EACH_SCALAR(ONE, typed)
#include "scalar/operators.def"
#undef ONE
  return cells;
}

std::vector<TypedCell> makePowers() {
  std::vector<TypedCell> cells;
#define PAIR(X, Y)                                                                                           \
  cells.push_back({"pow", kChecks<binary::pow, X, Y>, SampleSets{sampleSet<X>(#X), sampleSet<Y>(#Y)},        \
                   BOTH_FORMS(binary_pow_##X##_##Y)});
#define ROW(X) TORVANE_FOR_EACH_SECOND_SCALAR(PAIR, X)
  TORVANE_FOR_EACH_SCALAR(ROW)
#undef ROW
#undef PAIR
  return cells;
}

} // namespace

std::span<const TypedCell> unaryCells() {
  static const std::vector<TypedCell> cells = makeUnary();
  return cells;
}
std::span<const TypedCell> binaryCells() {
  static const std::vector<TypedCell> cells = makeBinary();
  return cells;
}
std::span<const TypedCell> ternaryCells() {
  static const std::vector<TypedCell> cells = makeTernary();
  return cells;
}
std::span<const TypedCell> powerCells() {
  static const std::vector<TypedCell> cells = makePowers();
  return cells;
}

void forEachSample(const TypedCell &cell, const std::function<void(const Operands &)> &visit) {
  const auto [a, b, c] = cell.samples;
  const std::string_view typed = cell.typed;
  const bool divides = typed == "mod" || typed == "quotient";
  if (b == nullptr) {
    for (size_t k = 0; k < a->count; ++k) visit({cell, {a->at(k)}});
  } else if (c == nullptr) {
    for (size_t k = 0; k < a->count; ++k)
      for (const size_t second : secondSamples(*b, k + 1)) {
        const void *x = a->at(k), *y = b->at(second);
        if (!divides || !a->quotientTraps(x, y)) visit({cell, {x, y}});
      }
  } else {
    for (size_t k = 0; k < 40000; ++k)
      visit({cell, {a->at(k % a->count), b->at(k * 7 / 3 % b->count), c->at(k * 11 / 5 % c->count)}});
  }
}

// ---- calls ------------------------------------------------------------------------------------------

namespace {

struct Arguments {
  std::array<void *, 8> all = {};

  Arguments(const TypedEntry &entry, const Operands &operands, void *result) {
    size_t next = 0;
    for (; next < entry.places; ++next)
      all[next] =
          result == nullptr ? nullptr : static_cast<char *>(result) + next * entry.resultBytes / entry.places;
    for (size_t k = 0; k < 3 && operands.values[k] != nullptr; ++k) {
      const SampleSet &set = *operands.cell.samples[k];
      const auto *value = static_cast<const unsigned char *>(operands.values[k]);
      for (size_t part = 0; part < set.parts; ++part)
        all[next++] = const_cast<unsigned char *>(value + part * set.bytes / set.parts);
    }
  }
};

} // namespace

mint codeBesidePending(const std::function<void()> &call) {
  constexpr mint pending = -77; // no code of the library
  const mint outer = setExceptionActive(pending);
  call();
  const mint code = setExceptionActive(outer);
  return code == pending ? 0 : code;
}

Called call(const TypedEntry &entry, const Operands &operands) {
  constexpr unsigned char poison = 0xA5;
  alignas(16) unsigned char result[kResultBytes];
  std::memset(result, poison, sizeof result);
  const Arguments arguments(entry, operands, result);
  const void *first = nullptr;
  void *returned = entry.places == 0 ? static_cast<void *>(result) : &first;
  Called called;
  called.code = codeBesidePending([&] { entry.invoke(entry.code, returned, arguments.all.data()); });
  if (entry.places != 0) {
    EXPECT_EQ(first, result) << entry.name;
    const size_t untouched = called.code == 0 ? entry.resultBytes : 0;
    EXPECT_TRUE(std::all_of(result + untouched, result + sizeof result,
                            [](unsigned char byte) { return byte == poison; }))
        << entry.name << " code " << called.code << " stores";
    if (called.code != 0) return called;
  }
  called.valueCode = entry.valueCode(result);
  std::memcpy(called.bytes.data(), result, entry.resultBytes);
  return called;
}

const void *callWithoutPlaces(const TypedEntry &entry, const Operands &operands) {
  const Arguments arguments(entry, operands, nullptr);
  alignas(16) unsigned char value[kResultBytes];
  const void *first = nullptr;
  entry.invoke(entry.code, entry.places == 0 ? static_cast<void *>(value) : &first, arguments.all.data());
  return first;
}

} // namespace torvane::test
