// Selectors as callers give them, read into records. Lists and spans are copied, so that the result may take
// the place of the tensor that holds them.
#include "parts.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr mint kSpanWords = 4; // start, end, step, flags

const MTensor *vectorOf(mint kind, const void *given) {
  const bool isVector = kind == TORVANE_PART_LIST || kind == TORVANE_PART_SPAN;
  return isVector ? *static_cast<MTensor *const *>(given) : nullptr;
}

bool isIntegerVector(const MTensor *tensor) {
  return tensor != nullptr && tensor->type == TORVANE_TYPE_INTEGER && tensor->rank == 1;
}

mint wordsOf(mint kind, const void *given) {
  switch (kind) {
  case TORVANE_PART_POSITION:
    return 1;
  case TORVANE_PART_LIST:
    return isIntegerVector(vectorOf(kind, given)) ? vectorOf(kind, given)->elementCount : 0;
  case TORVANE_PART_SPAN:
    return kSpanWords;
  default:
    return 0;
  }
}

// As many words as a mint can count at most: more than memory holds.
mint wordsOfAll(mint selectorCount, const mint *kinds, void *const *specs) {
  int64_t words = 0;
  for (mint i = 0; i < selectorCount; ++i) words += wordsOf(kinds[i], specs[i]);
  return static_cast<mint>(std::min<int64_t>(words, INT32_MAX));
}

intptr_t readList(const MTensor *list, mint *positions) {
  if (!isIntegerVector(list)) return kInvalidPart;
  std::copy_n(static_cast<const mint *>(list->data), list->elementCount, positions);
  return list->elementCount;
}

void setSpan(mint *span, mint start, mint end, mint step) {
  const mint words[kSpanWords] = {start, end, step, 0};
  std::copy_n(words, kSpanWords, span);
}

// How many indices there are the check will tell.
intptr_t readSpan(const MTensor *vector, mint *span) {
  if (!isIntegerVector(vector)) return kInvalidPart;
  const auto *given = static_cast<const mint *>(vector->data);
  switch (vector->elementCount) {
  case 1:
    setSpan(span, given[0] >= 0 ? 1 : given[0], given[0] >= 0 ? given[0] : -1, 1);
    return 0;
  case 2:
    setSpan(span, given[0], given[1], kAutomaticStep);
    return 0;
  case 3:
    setSpan(span, given[0], given[1], given[2]);
    return 0;
  default:
    return kInvalidPart;
  }
}

intptr_t readSelector(mint kind, const void *given, mint *positions) {
  switch (kind) {
  case TORVANE_PART_POSITION:
    *positions = *static_cast<const mint *>(given);
    return 1;
  case TORVANE_PART_LIST:
    return readList(vectorOf(kind, given), positions);
  case TORVANE_PART_ALL:
    return 0;
  case TORVANE_PART_SPAN:
    return readSpan(vectorOf(kind, given), positions);
  default:
    return kInvalidPart;
  }
}

} // namespace

PartSelectors::PartSelectors(mint selectorCount, const mint *kinds, void *const *specs)
    : records(std::max(selectorCount, 0), kFatal),
      positions(wordsOfAll(selectorCount, kinds, specs), kFatal) {
  mint *next = positions.get();
  for (mint i = 0; i < selectorCount; ++i) {
    records[i] = {kinds[i], readSelector(kinds[i], specs[i], next), next, 0, 0};
    next += wordsOf(kinds[i], specs[i]);
  }
}

bool isPartSpec(const MTensor *tensor, mint selectorCount, const mint *kinds, void *const *specs) {
  for (mint i = 0; i < selectorCount; ++i)
    if (tensor == vectorOf(kinds[i], specs[i])) return true;
  return false;
}

} // namespace torvane
