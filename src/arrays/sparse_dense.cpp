// Sparse arrays from dense tensors, and back.
//
// From a tensor: the elements are looked at once and marked, so that index tensors and values are made in
// their size, and most of a tensor with few elements is not read again. To a tensor: background first,
// elements over it. They are not told to be too few to cover it: repeated positions would leave places that
// nothing was written to.
#include "sparse_background.h"

#include "../tensor/scratch.h"
#include "../tensor/tensor.h"

#include <bit>
#include <emmintrin.h>
#include <string.h>

namespace torvane {

namespace {

template <class Element> const Element *elementsOf(const MTensor *tensor) {
  return static_cast<const Element *>(tensor->data);
}

struct IsZero {
  template <class Element> bool operator()(Element x) const { return equalsBackground(x, Element{}); }
};

// run(isBackground). 0, the usual background, takes nothing but zeros, and a loop that knows it calls
// nothing.
template <class Element, class Run> auto withBackground(Element background, Run run) {
  constexpr Element kZero = {};
  if (memcmp(&background, &kZero, sizeof kZero) == 0) return run(IsZero());
  return run([background](Element x) { return equalsBackground(x, background); });
}

// A bit for each element of a tensor, in words of 64: whether the element counts, being no background.
class Marks {
public:
  explicit Marks(mint elementCount)
      : count(elementCount), words(wordsFor(elementCount)), bits(words, kReport) {}
  mint status() const { return bits.status(); }

  // Yields how many elements count.
  template <class Element, class IsBackground> mint mark(const Element *elements, IsBackground isBackground) {
    mint found = 0;
    for (mint w = 0; w < words; ++w) {
      const mint first = w * kBits, length = std::min(kBits, count - first);
      bits[w] = wordOf(elements + first, length, isBackground);
      found += std::popcount(bits[w]);
    }
    return found;
  }

  // visit(index) for each element that counts, in order.
  template <class Visit> void forEach(Visit visit) {
    for (mint w = 0; w < words; ++w)
      for (uint64_t left = bits[w]; left != 0; left &= left - 1) visit(w * kBits + std::countr_zero(left));
  }

private:
  static constexpr mint kBits = 64;
  static mint wordsFor(mint elements) { return elements / kBits + (elements % kBits != 0 ? 1 : 0); }

  // A byte for each element, and a multiplication gathers eight of them: the first one becomes the lowest
  // bit.
  template <class Element, class IsBackground>
  static uint64_t wordOf(const Element *elements, mint length, IsBackground isBackground) {
    unsigned char counts[kBits] = {};
    for (mint k = 0; k < length; ++k) counts[k] = !isBackground(elements[k]);
    uint64_t word = 0;
    for (mint k = 0; k < kBits; k += 8) {
      uint64_t eight;
      memcpy(&eight, counts + k, sizeof eight);
      word |= (eight * 0x0102040810204080) >> 56 << k;
    }
    return word;
  }
  // The commonest kind, in a third of the time.
  static uint64_t wordOf(const mreal *elements, mint length, IsZero isZero) {
    if (length < kBits) return wordOf<mreal, IsZero>(elements, length, isZero);
    uint64_t word = 0;
    for (mint k = 0; k < kBits; k += 8) word |= uint64_t{eightOf(elements + k)} << k;
    return word;
  }
  static uint32_t eightOf(const mreal *x) {
    return pairOf(x) | pairOf(x + 2) << 2 | pairOf(x + 4) << 4 | pairOf(x + 6) << 6;
  }
  static uint32_t pairOf(const mreal *x) {
    return static_cast<uint32_t>(_mm_movemask_pd(_mm_cmpneq_pd(_mm_loadu_pd(x), _mm_setzero_pd())));
  }

  const mint count, words;
  Scratch<uint64_t, 16> bits;
};

// Row-major index within a row, from 0, as 1-based coordinates.
void toCoordinates(mint index, const mint *extents, mint rank, mint *coordinates) {
  for (mint k = rank - 1; k >= 0; --k) {
    coordinates[k] = index % extents[k] + 1;
    index /= extents[k];
  }
}

// The dimensions after the first; the only one of a vector, which is one row.
const mint *extentsInRow(const MSparseArray *array) {
  return array->property->dimensions + (sparseRank(array) == 1 ? 0 : 1);
}

// The marked elements, row by row.
template <class Element> void fillFrom(MSparseArray *array, const MTensor *tensor, Marks &marks) {
  const mint rows = sparseRowCount(array), length = rows == 0 ? 0 : tensor->elementCount / rows;
  const mint rank = coordinatesOfALine(sparseRank(array)), *extents = extentsInRow(array);
  const Element *elements = elementsOf<Element>(tensor);
  auto *values = static_cast<Element *>(array->skeleton->values->data);
  mint *line = array->columnIndexData, *rowEnd = array->rowPointerData + 1, found = 0;
  int64_t next = length; // the first element behind the row
  marks.forEach([&](mint index) {
    for (; index >= next; next += length) *rowEnd++ = found;
    values[found++] = elements[index];
    const mint inRow = static_cast<mint>(index - (next - length));
    if (rank == 1)
      *line = inRow + 1;
    else
      toCoordinates(inRow, extents, rank, line);
    line += rank;
  });
  std::fill(rowEnd, array->rowPointerData + rows + 1, found);
}

bool areArguments(const MTensor *tensor, const MTensor *background) {
  return tensor != nullptr && tensor->rank > 0 && tensor->type >= TORVANE_TYPE_INTEGER &&
         tensor->type <= TORVANE_TYPE_COMPLEX &&
         (background == nullptr || (background->rank == 0 && background->type == tensor->type));
}

template <class Element> MSparseArray *build(const MTensor *tensor, const MTensor *background) {
  const Element value = background == nullptr ? Element{} : scalarOf<Element>(background);
  Marks marks(tensor->elementCount);
  if (marks.status() != kSuccess) return nullptr;
  const mint count = withBackground(
      value, [&](auto isBackground) { return marks.mark(elementsOf<Element>(tensor), isBackground); });
  MSparseArray *array = newSparseArray(tensor->rank, tensor->dimensions, count, kReport);
  if (array == nullptr) return nullptr;
  if (background != nullptr) setBackgroundValue(array, background);
  if (!allocateValues(array, tensor->type, kReport)) {
    MSparseArray_delete(array);
    return nullptr;
  }
  fillFrom<Element>(array, tensor, marks);
  return array;
}

// Where a line of a row stands in the row.
ptrdiff_t offsetInRow(const mint *line, const mint *extents, mint rank) {
  ptrdiff_t offset = 0;
  for (mint k = 0; k < rank; ++k) offset = offset * extents[k] + line[k] - 1;
  return offset;
}

template <class Element, class OffsetOf>
void writeRows(const MSparseArray *array, Element *target, ptrdiff_t length, OffsetOf offsetOf) {
  const auto *values = static_cast<const Element *>(array->skeleton->values->data);
  const mint rows = sparseRowCount(array), *ends = array->rowPointerData + 1;
  for (mint row = 0, entry = 0; row < rows; ++row, target += length)
    for (; entry < ends[row]; ++entry) target[offsetOf(entry)] = values[entry];
}

template <class Element> void writeElements(const MSparseArray *array, MTensor *tensor) {
  auto *target = static_cast<Element *>(tensor->data);
  const mint *lines = array->columnIndexData, *extents = extentsInRow(array);
  const mint rank = coordinatesOfALine(sparseRank(array));
  const ptrdiff_t length = tensor->elementCount / sparseRowCount(array);
  if (rank == 1)
    writeRows(array, target, length, [=](mint entry) { return ptrdiff_t{lines[entry]} - 1; });
  else
    writeRows(array, target, length,
              [=](mint entry) { return offsetInRow(lines + ptrdiff_t{entry} * rank, extents, rank); });
}

// The system's own routine, which is for bytes, has the widest stores.
template <class Element> void fill(MTensor *tensor, Element value) {
  constexpr Element kZero = {};
  const auto count = static_cast<size_t>(tensor->elementCount);
  if (memcmp(&value, &kZero, sizeof kZero) == 0 && count > 0)
    memset(tensor->data, 0, count * sizeof(Element));
  else
    std::fill_n(static_cast<Element *>(tensor->data), count, value);
}

template <class Element> void expand(const MSparseArray *array, MTensor *tensor) {
  fill(tensor, scalarOf<Element>(array->skeleton->background));
  if (sparseRank(array) > 0 && array->elementCount > 0) writeElements<Element>(array, tensor);
}

} // namespace

mint MSparseArray_fromTensor(const MTensor *tensor, const MTensor *background, MSparseArray **result) {
  if (result == nullptr || !areArguments(tensor, background)) return kSparseFault;
  MSparseArray *array =
      withElement(tensor->type, [&](auto element) { return build<decltype(element)>(tensor, background); });
  if (array == nullptr) return kSparseFault;
  MSparseArray_delete(*result);
  *result = array;
  return kSuccess;
}

mint MSparseArray_toTensor(const MSparseArray *array, MTensor **result) {
  const TensorProperty *property = array->property;
  if (property->type == TORVANE_TYPE_PATTERN) return kWrongType;
  const mint status =
      MTensor_allocateCommon(result, property->type, property->rank, property->dimensions, kReport);
  if (status == kSuccess)
    withElement(property->type, [&](auto element) { expand<decltype(element)>(array, *result); });
  return status;
}

} // namespace torvane
