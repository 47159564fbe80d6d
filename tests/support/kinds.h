// Elements of the three kinds as one value type, and buffers of them with red zones: for tests that walk
// the operator tables without caring what an element is.
#pragma once

#include "raised.h"
#include "real_samples.h"

#include <cstring>
#include <functional>
#include <ostream>
#include <torvane/types.h>
#include <tuple>
#include <type_traits>
#include <vector>

namespace torvane::test {

inline size_t widthOf(mint kind) { return MTensor_typeSizeTable[kind]; }

// One element of a kind: an integer or a real stands in the real part.
struct Element {
  mint kind = TORVANE_TYPE_NONE;
  mcomplex value = {};

  static Element load(mint kind, const void *from) {
    Element element = {kind, {}};
    mint word = 0;
    if (kind == TORVANE_TYPE_INTEGER) {
      std::memcpy(&word, from, sizeof word);
      element.value.re = word;
    } else {
      std::memcpy(&element.value, from, widthOf(kind));
    }
    return element;
  }
  void store(void *to) const {
    const mint word = kind == TORVANE_TYPE_INTEGER ? static_cast<mint>(value.re) : 0;
    std::memcpy(to, kind == TORVANE_TYPE_INTEGER ? static_cast<const void *>(&word) : &value, widthOf(kind));
  }
  // The same value in another kind: widened, or the part that a routine stores of it.
  Element as(mint other) const { return {other, {value.re, other == TORVANE_TYPE_COMPLEX ? value.im : 0}}; }
  friend bool operator==(const Element &x, const Element &y) {
    return x.kind == y.kind && sameReal(x.value.re, y.value.re) && sameReal(x.value.im, y.value.im);
  }
  friend std::ostream &operator<<(std::ostream &out, const Element &x) {
    return out << "kind " << x.kind << " (" << x.value.re << ", " << x.value.im << ")";
  }
};

// `count` elements at an offset that only their own alignment divides, between red zones.
class Buffer {
public:
  Buffer(mint kindOfElements, size_t count)
      : kind(kindOfElements), size(count * widthOf(kind)), bytes(kZone + size + kZone, kFill),
        pristine(bytes) {}

  void *data() { return bytes.data() + kZone; }
  const void *data() const { return bytes.data() + kZone; }
  void *at(ptrdiff_t index) { return static_cast<char *>(data()) + index * ptrdiff_t(widthOf(kind)); }
  Element get(ptrdiff_t index) const {
    return Element::load(kind, static_cast<const char *>(data()) + index * ptrdiff_t(widthOf(kind)));
  }
  void set(ptrdiff_t index, const Element &element) { element.as(kind).store(at(index)); }
  size_t count() const { return size / widthOf(kind); }
  // Marks the present content as what must stay.
  void snapshot() { pristine = bytes; }
  bool isUntouched(ptrdiff_t index) const {
    const size_t from = kZone + size_t(index) * widthOf(kind);
    return std::memcmp(bytes.data() + from, pristine.data() + from, widthOf(kind)) == 0;
  }
  bool zonesHold() const {
    return std::memcmp(bytes.data(), pristine.data(), kZone) == 0 &&
           std::memcmp(bytes.data() + kZone + size, pristine.data() + kZone + size, kZone) == 0;
  }

  mint kind;

private:
  static constexpr size_t kZone = 72; // keeps 8-byte alignment and breaks every larger one
  static constexpr char kFill = char(0xA5);
  size_t size;
  std::vector<char> bytes, pristine;
};

// What a typed entry yields, and what it raises.
struct Outcome {
  Element element;
  mint code = 0;
};
using TypedUnary = std::function<Outcome(Element)>;
using TypedBinary = std::function<Outcome(Element, Element)>;

// The arguments that an element of a kind is to a typed entry.
template <mint kind> auto argumentsOf(const Element &x) {
  if constexpr (kind == TORVANE_TYPE_INTEGER)
    return std::tuple(static_cast<int32_t>(x.value.re));
  else if constexpr (kind == TORVANE_TYPE_REAL)
    return std::tuple(x.value.re);
  else
    return std::tuple(x.value.re, x.value.im);
}

// Calls a typed entry by its convention: a word or a real by value, a complex through two pointers.
template <class R, class... A, class Arguments>
Outcome callEntry(R (*entry)(A...), const Arguments &arguments) {
  Outcome outcome;
  mcomplex z = {};
  outcome.code = raisedBy([&] {
    if constexpr (std::is_pointer_v<R>)
      std::apply(entry, std::tuple_cat(std::tuple(&z.re, &z.im), arguments));
    else
      z.re = static_cast<mreal>(std::apply(entry, arguments));
  });
  constexpr mint kind = std::is_pointer_v<R> ? 4 : std::is_floating_point_v<R> ? 3 : 2;
  outcome.element = {kind, z};
  return outcome;
}

template <mint kind, class Entry> TypedUnary wrapUnary(Entry *entry) {
  return [entry](const Element &x) { return callEntry(entry, argumentsOf<kind>(x)); };
}
template <mint kind1, mint kind2, class Entry> TypedBinary wrapBinary(Entry *entry) {
  return [entry](const Element &x, const Element &y) {
    return callEntry(entry, std::tuple_cat(argumentsOf<kind1>(x), argumentsOf<kind2>(y)));
  };
}

// A value of a kind, special or random; deterministic.
inline Element sampleElement(mint kind, std::mt19937_64 &random) {
  static const std::vector<double> special = specialReals<double>();
  static const std::vector<double> ordinary = randomReals<double>(500, 99);
  static const mint words[] = {0, 1, -1, 2, 3, -7, 46340, 46341, -46341, 65536, INT32_MAX, -INT32_MAX, INT32_MIN};
  const auto below = [&](size_t bound) { return static_cast<size_t>(random() % bound); };
  const auto real = [&] {
    switch (random() % 4) {
    case 0: return special[below(special.size())];
    case 1: return ordinary[below(ordinary.size())];
    default: return double(random() % 2000) / 16 - 40;
    }
  };
  if (kind == TORVANE_TYPE_INTEGER) {
    const mint word =
        random() % 3 == 0 ? words[random() % std::size(words)] : mint(random() % 200001) - 100000;
    return {kind, {mreal(word), 0}};
  }
  const double re = real();
  return {kind, {re, kind == TORVANE_TYPE_COMPLEX ? real() : 0}};
}

} // namespace torvane::test
