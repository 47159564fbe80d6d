// The stable order of rows without a NaN among them, by radix.
//
// Each key is taken relative to the smallest one and cut to the upper bits of the span that the keys cover; a
// word of such a cut key over the row's number is then sorted by its digits, the least significant first.
// Rows whose cut keys agree are told apart afterwards, a run of them at a time: a short run by merging, a
// long one by what was cut off or by the row's next key. Many rows with few distinct keys are counted
// instead. (LSD radix sort and counting: D. E. Knuth, The Art of Computer Programming 3, 5.2.5 and 5.2;
// digits of 8 to 11 bits as in I. J. Davis, "A fast radix sort", The Computer Journal 35, 1992.)
#pragma once

#include "order_distinct.h"
#include "order_keys.h"
#include "order_merge.h"

#include <algorithm>

namespace torvane {

inline constexpr mint kWidestDigit = 11;
inline constexpr mint kShortRun = 64; // rows that merging orders sooner than digits do
inline constexpr mint kMaxDigits = 4;
inline constexpr mint kFewForDigits = 3000; // narrower digits and fewer of them do for less than this

// How many of a key's upper bits are sorted by digits, of 32 or a little more that could be: a few rows agree
// in fewer of them only by chance.
inline mint windowOf(mint count, mint most) { return count < kFewForDigits ? 24 : most; }

struct DigitCounts {
  uint32_t of[kMaxDigits][1 << kWidestDigit];
};

// How a span of cut keys is read digit by digit.
struct DigitPlan {
  mint passes, width;

  DigitPlan(mint bits, mint count) {
    const mint widest = count < kFewForDigits ? 8 : kWidestDigit;
    passes = (bits + widest - 1) / widest;
    width = (bits + passes - 1) / passes;
  }
  uint32_t mask() const { return (1u << width) - 1; }
};

// The span of keys, and the gap in it between the keys of negative numbers and the others. Reals of both
// signs leave nearly all of their span to numbers next to zero that hardly ever come.
template <class Key> struct KeySpan {
  static constexpr Key kMiddle = Key{1} << (8 * sizeof(Key) - 1);
  Key least, greatest, below = 0, above = static_cast<Key>(-1);

  // All ones for a key from the middle on: signs come at random, and a branch would be guessed wrong.
  static Key maskOfUpper(Key key) { return Key{0} - (key >> (8 * sizeof(Key) - 1)); }

  explicit KeySpan(Key key) : least(key), greatest(key) { add(key); }
  void add(Key key) {
    least = std::min(least, key);
    greatest = std::max(greatest, key);
    if constexpr (sizeof(Key) == 8) {
      const Key upper = maskOfUpper(key);
      below = std::max(below, key & ~upper);
      above = std::min(above, key | ~upper);
    }
  }
  Key gap() const {
    return sizeof(Key) == 8 && least < kMiddle && greatest >= kMiddle ? above - below - 1 : 0;
  }
};

template <class Key> struct KeyCut {
  Key least, gap;
  mint shift;

  uint32_t operator()(Key key) const {
    return static_cast<uint32_t>((key - least - (gap & KeySpan<Key>::maskOfUpper(key))) >> shift);
  }
};

// Counts into where each digit's first entry goes.
inline void toStarts(uint32_t *counts, uint32_t digits) {
  uint32_t start = 0;
  for (uint32_t digit = 0; digit < digits; ++digit) start += std::exchange(counts[digit], start);
}

template <class Element> class RadixOrder {
public:
  using Keys = RowKeys<Element>;

  // `words` holds two words a row.
  RadixOrder(const Keys &rowKeys, uint64_t *words, mint count, DigitCounts *digits)
      : keys(rowKeys), front(words), back(words + count), counts(digits) {}

  // `rows` is 1, 2, ..., count on entry.
  void order(mint *rows, mint count) { orderRun(rows, 0, count, 0); }

private:
  Keys keys;
  uint64_t *front, *back;
  DigitCounts *counts;

  static uint64_t entry(uint32_t key, mint row) { return uint64_t{key} << 32 | static_cast<uint32_t>(row); }
  static uint32_t cutKeyOf(uint64_t word) { return static_cast<uint32_t>(word >> 32); }
  static mint rowOf(uint64_t word) { return static_cast<mint>(word & 0xFFFFFFFF); }

  // Of the rows at first ... first + count, which agree in all keys before `level`.
  void orderRun(mint *rows, mint first, mint count, mint level) {
    for (; level < keys.count(); ++level) {
      if (count > kShortRun && orderByCounting(rows, first, count, level)) return;
      const auto span = spanOf(rows + first, count, level);
      if (span.least != span.greatest) return orderBy(rows, first, count, level, span);
    }
  }

  // False, and nothing is changed, where the keys of the level are too many.
  bool orderByCounting(mint *rows, mint first, mint count, mint level) {
    DistinctKeys distinct(count);
    auto *numbers = reinterpret_cast<uint8_t *>(back + first);
    for (mint k = 0; k < count; ++k) {
      const mint number = distinct.count(keys.at(rows[first + k] - 1, level));
      if (number == DistinctKeys::kNone) return false;
      numbers[k] = static_cast<uint8_t>(number);
    }
    mint places[DistinctKeys::kMost], place = 0;
    distinct.forEachAscending(
        [&](mint number, uint64_t, mint times) { places[number] = std::exchange(place, place + times); });
    auto *ordered = reinterpret_cast<mint *>(front + first);
    for (mint k = 0; k < count; ++k) ordered[places[numbers[k]]++] = rows[first + k];
    memcpy(rows + first, ordered, static_cast<size_t>(count) * sizeof(mint));
    distinct.forEachAscending([&](mint, uint64_t, mint times) {
      takeRun(rows, first, times, level + 1);
      first += times;
    });
    return true;
  }

  auto spanOf(const mint *rows, mint count, mint level) const {
    KeySpan span(keys.at(rows[0] - 1, level));
    for (mint k = 1; k < count; ++k) span.add(keys.at(rows[k] - 1, level));
    return span;
  }

  template <class Key>
  void orderBy(mint *rows, mint first, mint count, mint level, const KeySpan<Key> &span) {
    const Key gap = span.gap();
    const mint bits = static_cast<mint>(std::bit_width(static_cast<Key>(span.greatest - span.least - gap)));
    const mint shift = std::max(0, bits - (sizeof(Key) == 8 ? windowOf(count, 32) : 32));
    const DigitPlan plan(bits - shift, count);
    cut(rows + first, first, count, level, KeyCut<Key>{span.least, gap, shift}, plan);
    const bool decided = shift == 0 && level + 1 == keys.count();
    const uint64_t *sorted = sortEntries(first, count, plan, decided ? rows : nullptr);
    if (!decided) takeRuns(rows, sorted, first, count, shift == 0 ? level + 1 : level);
  }

  template <class Key>
  void cut(const mint *rows, mint first, mint count, mint level, KeyCut<Key> keyCut, DigitPlan plan) {
    memset(counts->of, 0, static_cast<size_t>(plan.passes) * sizeof counts->of[0]);
    for (mint k = 0; k < count; ++k) {
      const uint32_t key = keyCut(keys.at(rows[k] - 1, level));
      front[first + k] = entry(key, rows[k]);
      uint32_t rest = key;
      for (mint pass = 0; pass < plan.passes; ++pass, rest >>= plan.width)
        ++counts->of[pass][rest & plan.mask()];
    }
  }

  // The buffer with the entries in order, dealt out by every digit that varies; with `rows` given, their row
  // numbers go there instead.
  const uint64_t *sortEntries(mint first, mint count, DigitPlan plan, mint *rows) {
    uint64_t *from = front + first, *to = back + first;
    for (mint pass = 0; pass < plan.passes; ++pass) {
      uint32_t *starts = counts->of[pass];
      const mint shift = 32 + pass * plan.width;
      if (starts[from[0] >> shift & plan.mask()] == static_cast<uint32_t>(count))
        continue; // never the last one
      toStarts(starts, 1u << plan.width);
      if (rows != nullptr && pass + 1 == plan.passes)
        for (mint k = 0; k < count; ++k)
          rows[first + static_cast<mint>(starts[from[k] >> shift & plan.mask()]++)] = rowOf(from[k]);
      else
        for (mint k = 0; k < count; ++k) to[starts[from[k] >> shift & plan.mask()]++] = from[k];
      std::swap(from, to);
    }
    return from - first;
  }

  // The entries of a run are spent once its rows are written, so that a longer one may sort itself in their
  // place.
  void takeRuns(mint *rows, const uint64_t *sorted, mint first, mint count, mint level) {
    const mint end = first + count;
    for (mint start = first, stop; start < end; start = stop) {
      const uint32_t key = cutKeyOf(sorted[start]);
      stop = start;
      do {
        rows[stop] = rowOf(sorted[stop]);
      } while (++stop < end && cutKeyOf(sorted[stop]) == key);
      if (stop - start > 1) takeRun(rows, start, stop - start, level);
    }
  }

  void takeRun(mint *rows, mint first, mint count, mint level) {
    if (level == keys.count()) return;
    if (count > kShortRun) return orderRun(rows, first, count, level);
    mint scratch[kShortRun / 2];
    visitRows(keys.data, keys.length,
              [&](const auto &order) { MergeSort(order, scratch).sort(rows + first, count); });
  }
};

} // namespace torvane
