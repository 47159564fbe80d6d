// Values by radix, as their rows in order_radix.h, without row numbers to carry.
//
// Integers of a short span, and few distinct values, are counted and written out again. Reals are sorted as
// the unsigned words of order_keys.h by the upper 33 bits of their span; runs that agree in those are sorted
// once more, by the rest.
#include "sort_values.h"

#include "order_radix.h"
#include "scratch_bytes.h"

#include <limits>

namespace torvane {

namespace {

constexpr mint kFewValues = 256; // comparisons sort them sooner

template <class Word> struct Span { Word least, greatest; };

template <class Element> auto spanOf(const Element *x, mint count) {
  Span<decltype(keyOf(*x))> span = {keyOf(x[0]), keyOf(x[0])};
  for (mint k = 1; k < count; ++k) {
    const auto key = keyOf(x[k]);
    span.least = std::min(span.least, key);
    span.greatest = std::max(span.greatest, key);
  }
  return span;
}

template <class Word, class Key>
void countDigits(const Word *words, mint count, DigitPlan plan, DigitCounts *counts, const Key &key) {
  memset(counts->of, 0, static_cast<size_t>(plan.passes) * sizeof counts->of[0]);
  for (mint k = 0; k < count; ++k) {
    auto rest = key(words[k]);
    for (mint pass = 0; pass < plan.passes; ++pass, rest >>= plan.width)
      ++counts->of[pass][rest & plan.mask()];
  }
  for (mint pass = 0; pass < plan.passes; ++pass) toStarts(counts->of[pass], 1u << plan.width);
}

template <class Word, class Key>
void deal(const Word *from, Word *to, mint count, uint32_t *starts, uint32_t mask, mint shift,
          const Key &key) {
  for (mint k = 0; k < count; ++k) to[starts[key(from[k]) >> shift & mask]++] = from[k];
}

void writeCounted(const mint *from, mint *to, mint count, mint least, uint32_t span, uint32_t *counts) {
  memset(counts, 0, (size_t{span} + 1) * sizeof *counts);
  for (mint k = 0; k < count; ++k) ++counts[from[k] - least];
  for (uint32_t value = 0; value <= span; ++value)
    to = std::fill_n(to, counts[value], least + static_cast<mint>(value));
}

mint valueOf(uint64_t key, const mint *) {
  return static_cast<mint>(static_cast<uint32_t>(key) ^ 0x80000000u);
}
mreal valueOf(uint64_t key, const mreal *) { return std::bit_cast<mreal>(bitsOfKey(key)); }

// False, and nothing is written, where too many are distinct.
template <class Element> bool writeDistinct(const Element *from, Element *to, mint count) {
  DistinctKeys distinct(count);
  for (mint k = 0; k < count; ++k)
    if (distinct.count(keyOf(from[k])) == DistinctKeys::kNone) return false;
  distinct.forEachAscending(
      [&](mint, uint64_t key, mint times) { to = std::fill_n(to, times, valueOf(key, to)); });
  return true;
}

void dealIntegers(const mint *from, mint *to, mint *scratch, mint count, uint32_t least, mint bits,
                  DigitCounts *counts) {
  const DigitPlan plan(bits, count);
  const auto key = [least](mint x) { return keyOf(x) - least; };
  countDigits(from, count, plan, counts, key);
  mint *target = from != to && plan.passes % 2 != 0 ? to : scratch;
  for (mint pass = 0; pass < plan.passes; ++pass) {
    deal(from, target, count, counts->of[pass], plan.mask(), pass * plan.width, key);
    from = target;
    target = target == to ? scratch : to;
  }
  if (from != to) memcpy(to, from, static_cast<size_t>(count) * sizeof *to);
}

template <class Element> bool sortFew(const Element *from, Element *to, mint count) {
  if (from != to) std::copy(from, from + count, to);
  std::sort(to, to + count);
  return true;
}

// Words, with space for as many to deal them into.
class WordSort {
public:
  WordSort(uint64_t *words, uint64_t *space, DigitCounts *digits)
      : front(words), back(space), counts(digits) {}

  void sort(mint first, mint count, uint64_t least, uint64_t greatest) {
    if (count <= kShortRun) return std::sort(front + first, front + first + count);
    if (least == greatest) return;
    const mint bits = static_cast<mint>(std::bit_width(greatest - least));
    const mint shift = std::max(0, bits - windowOf(count, 3 * kWidestDigit));
    dealDigits(first, count, least, shift, DigitPlan(bits - shift, count));
    if (shift > 0) sortRuns(first, count, least, shift);
  }

private:
  uint64_t *front, *back;
  DigitCounts *counts;

  void dealDigits(mint first, mint count, uint64_t least, mint shift, DigitPlan plan) {
    const auto key = [=](uint64_t word) { return (word - least) >> shift; };
    uint64_t *from = front + first, *to = back + first;
    countDigits(from, count, plan, counts, key);
    for (mint pass = 0; pass < plan.passes; ++pass, std::swap(from, to))
      deal(from, to, count, counts->of[pass], plan.mask(), pass * plan.width, key);
    if (from != front + first) memcpy(to, from, static_cast<size_t>(count) * sizeof *to);
  }

  void sortRuns(mint first, mint count, uint64_t least, mint shift) {
    const mint end = first + count;
    for (mint start = first, stop; start < end; start = stop) {
      const uint64_t upper = (front[start] - least) >> shift;
      uint64_t low = front[start], high = low;
      for (stop = start + 1; stop < end && (front[stop] - least) >> shift == upper; ++stop) {
        low = std::min(low, front[stop]);
        high = std::max(high, front[stop]);
      }
      if (low != high) sort(start, stop - start, low, high);
    }
  }
};

bool holdsNegativeZero(const mreal *x, mint count) {
  mint found = 0;
  for (mint k = 0; k < count; ++k) found |= std::bit_cast<uint64_t>(x[k]) == uint64_t{1} << 63;
  return found != 0;
}

// NaNs have the keys beyond those of the infinities.
bool isOfNumbers(Span<uint64_t> span) {
  constexpr mreal infinity = std::numeric_limits<mreal>::infinity();
  return span.least >= keyOf(-infinity) && span.greatest <= keyOf(infinity);
}

} // namespace

bool sortValues(const mint *from, mint *to, mint count) {
  if (count < kFewValues) return sortFew(from, to, count);
  const auto [least, greatest] = spanOf(from, count);
  const ScratchBytes counts(sizeof(DigitCounts), kQuiet);
  if (!counts) return false;
  const uint32_t span = greatest - least;
  if (span < sizeof(DigitCounts) / sizeof(uint32_t)) {
    writeCounted(from, to, count, static_cast<mint>(least ^ 0x80000000u), span, counts.as<uint32_t>());
    return true;
  }
  if (writeDistinct(from, to, count)) return true;
  const ScratchBytes scratch(sizeof(mint) * uint64_t{static_cast<uint32_t>(count)}, kQuiet);
  if (!scratch) return false;
  dealIntegers(from, to, scratch.as<mint>(), count, least, static_cast<mint>(std::bit_width(span)),
               counts.as<DigitCounts>());
  return true;
}

bool sortValues(const mreal *from, mreal *to, mint count) {
  const auto span = spanOf(from, count);
  if (!isOfNumbers(span) || holdsNegativeZero(from, count)) return false;
  if (count < kFewValues) return sortFew(from, to, count);
  if (writeDistinct(from, to, count)) return true;
  const auto bytes = sizeof(mreal) * uint64_t{static_cast<uint32_t>(count)};
  const ScratchBytes front(bytes, kQuiet), back(bytes, kQuiet), counts(sizeof(DigitCounts), kQuiet);
  if (!front || !back || !counts) return false;
  auto *words = front.as<uint64_t>();
  for (mint k = 0; k < count; ++k) words[k] = keyOf(from[k]);
  WordSort(words, back.as<uint64_t>(), counts.as<DigitCounts>()).sort(0, count, span.least, span.greatest);
  for (mint k = 0; k < count; ++k) to[k] = std::bit_cast<mreal>(bitsOfKey(words[k]));
  return true;
}

} // namespace torvane
