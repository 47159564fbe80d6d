// Parts of tensors and numeric arrays, read and stored, with operands that are one another: a status, then
// every element against a list of indices for each dimension; a refusal changes nothing.
#include "limited_heap.h"
#include "tensors.h"

#include "arrays/arrays.h"
#include "runtime/memory.h"
#include "tensor/parts_model.h"

#include <torvane/parts.h>

using namespace torvane;
using namespace torvane::test;

namespace {

Selector takeSelector(Input &input, mint extent) {
  const auto near = [&input, extent] {
    return oneIn(input, 16) ? takeInteger(input) : below(input, 2 * extent + 2) - extent;
  };
  switch (below(input, 16)) {
  case 0:
    return unknown(oneIn(input, 2) ? -1 : 4 + below(input, 9));
  case 1:
  case 2:
    return all();
  case 3:
  case 4:
  case 5:
  case 6:
    return position(near());
  default:
    break;
  }
  Selector selector = {oneIn(input, 2) ? TORVANE_PART_LIST : TORVANE_PART_SPAN, {}};
  for (mint i = below(input, 5); i > 0; --i) selector.words.push_back(near());
  return selector;
}

Selectors takeSelectors(Input &input, const Extents &shape) {
  Selectors selectors;
  for (const mint extent : shape) {
    if (oneIn(input, 8)) break;
    selectors.add(takeSelector(input, std::min(extent, 100)));
  }
  if (oneIn(input, 40)) selectors.add(all());
  return selectors;
}

bool isPlace(mint position, mint extent) {
  return position >= -extent && position <= extent && position != 0;
}

// Whether the model knows what a selector selects. Of spans that are empty, or step the other way, it leaves
// the verdict to the library.
bool isModelled(const Selector &selector, mint extent) {
  const std::vector<mint> &words = selector.words;
  const auto isHere = [extent](mint word) { return isPlace(word, extent); };
  if (selector.kind == TORVANE_PART_ALL) return true;
  if (selector.kind == TORVANE_PART_SPAN && words.size() == 1)
    return words[0] >= -extent && words[0] <= extent;
  if (selector.kind == TORVANE_PART_SPAN && words.size() != 2 && words.size() != 3) return false;
  if (selector.kind < 0 || selector.kind > 3 ||
      !std::all_of(words.begin(), words.begin() + std::min<ptrdiff_t>(ptrdiff_t(words.size()), 2), isHere))
    return false;
  if (selector.kind != TORVANE_PART_SPAN) return std::all_of(words.begin(), words.end(), isHere);
  if (words.size() == 2) return true;
  const auto place = [extent](mint p) { return p < 0 ? p + extent : p - 1; };
  const mint distance = place(words[1]) - place(words[0]);
  return words[2] != 0 && words[2] > -400 && words[2] < 400 && (distance < 0) == (words[2] < 0);
}

bool isModelled(const Selectors &selectors, const Extents &shape) {
  if (size_t(selectors.count()) > shape.size()) return false;
  for (size_t i = 0; i < size_t(selectors.count()); ++i)
    if (!isModelled(selectors[i], shape[i])) return false;
  return true;
}

// No other selection succeeds: positions in their dimension, spans of one to three words.
bool mayFit(const Selectors &selectors, const Extents &shape) {
  if (size_t(selectors.count()) > shape.size()) return false;
  for (size_t i = 0; i < size_t(selectors.count()); ++i) {
    const bool isSpan = selectors[i].kind == TORVANE_PART_SPAN;
    const size_t words = selectors[i].words.size();
    if (isSpan ? words < 1 || words > 3 : !isModelled(selectors[i], shape[i])) return false;
  }
  return true;
}

template <class Array> const char *elementOf(const Array *array, size_t place, size_t width) {
  return static_cast<const char *>(array->data) + place * width;
}

template <class Array>
bool holdsSelection(const Array *result, const Array *source, const Selection &selection, size_t width) {
  require(result->elementCount == mint(selection.places.size()));
  require(std::vector<mint>(result->dimensions, result->dimensions + result->rank) == selection.extents);
  for (size_t i = 0; i < selection.places.size(); ++i)
    if (std::memcmp(elementOf(result, i, width), elementOf(source, selection.places[i], width), width) != 0)
      return false;
  return true;
}

void getParts(Input &input) {
  const Tensor source = takeTensor(input);
  const Extents shape = extentsOf(source);
  const Selectors selectors = takeSelectors(input, shape);
  const mint rank = selectors.rankOf(source->rank) + oneIn(input, 16);
  const Tensor original = cloneOf(source.get()), other = takeTensor(input);
  const mint choice = below(input, 4);
  MTensor *const given = choice == 0 ? source.get() : choice == 1 ? other.get() : nullptr;
  MTensor *const held = choice == 2 ? other.get() : nullptr, *slot = held;
  const mint status = selectors.get(given, &slot, source.get(), rank);
  require(status == 0 || status == 1);
  if (status != 0) require(slot == held);
  if (isModelled(selectors, shape)) require((status == 0) == (rank == selectors.rankOf(original->rank)));
  if (status != 0) return;
  require(mayFit(selectors, shape) && rank == selectors.rankOf(original->rank));
  require(isValidTensor(slot) && (given == nullptr || slot == given));
  if (isModelled(selectors, shape))
    require(holdsSelection(slot, original.get(), Selection(shape, selectors), elementWidth(original->type)));
  if (given == nullptr) MTensor_delete(slot);
}

// The model's value for each place: the last of those that go there, from a source that repeats.
void expectStored(const MTensor *target, const MTensor *before, const MTensor *source,
                  const Selection &selection) {
  const size_t width = elementWidth(target->type), count = size_t(target->elementCount) * width;
  std::vector<char> expected(count);
  if (count != 0) std::memcpy(expected.data(), before->data, count);
  for (size_t i = 0; i < selection.places.size(); ++i)
    std::memcpy(expected.data() + selection.places[i] * width,
                elementOf(source, i % size_t(source->elementCount), width), width);
  require(count == 0 || std::memcmp(expected.data(), target->data, count) == 0);
}

Tensor takeSource(Input &input, mint type, const Extents &selected) {
  const size_t dropped = oneIn(input, 2) ? 0 : size_t(below(input, mint(selected.size()) + 1));
  if (oneIn(input, 8)) return takeTensor(input);
  return takeTensorOf(input, type, Extents(selected.begin() + ptrdiff_t(dropped), selected.end()));
}

void setParts(Input &input) {
  const Tensor target = takeTensor(input);
  const Extents shape = extentsOf(target);
  const Selectors selectors = takeSelectors(input, shape);
  const bool knows = isModelled(selectors, shape);
  const Selection selection = knows ? Selection(shape, selectors) : Selection({}, {});
  if (selection.places.size() > 4096) return;
  const Tensor own = takeSource(input, target->type, selection.extents), before = cloneOf(target.get()),
               given = cloneOf(own.get());
  const bool isItself = oneIn(input, 8);
  const MTensor *source = isItself ? target.get() : own.get(), *was = isItself ? before.get() : given.get();
  if (source->type != target->type) return; // the caller's to see to
  const mint rank = selectors.rankOf(target->rank) + oneIn(input, 16);
  const mint status = selectors.set(target.get(), source, rank);
  require((status == 0 || status == 1) && isValidTensor(target.get()));
  require(isSameTensor(own.get(), given.get()));
  if (status == 1) return require(isSameTensor(target.get(), before.get()));
  require(mayFit(selectors, shape));
  if (knows && source->elementCount > 0) expectStored(target.get(), before.get(), was, selection);
}

void getArrayParts(Input &input) {
  const mint tag = 1 + below(input, 12);
  Extents shape = takeExtents(input);
  if (shape.empty()) shape = {1 + below(input, 5)};
  for (size_t i = 0; i + 1 < shape.size(); ++i) shape[i] = std::max(shape[i], 1);
  const Array source = newArray(tag, shape);
  for (mint i = 0; i < mint(MNumericArray_byteCount(source.get())); ++i)
    static_cast<char *>(source->data)[i] = char(i * 37 + 11);
  const Array original(MNumericArray_clone(source.get())), other = newArray(1 + below(input, 12), {3});
  const Selectors selectors = takeSelectors(input, shape);
  const mint choice = below(input, 4), rank = selectors.rankOf(source->rank) + oneIn(input, 16);
  MNumericArray *const given = choice == 0   ? source.get()
                               : choice == 1 ? other.get()
                                             : nullptr,
                       *slot = nullptr;
  const mint status = selectors.get(given, &slot, source.get(), rank);
  require(status == 0 || status == 1);
  if (status != 0) return require(slot == nullptr);
  require(slot->elementType == tag && mayFit(selectors, shape));
  if (isModelled(selectors, shape))
    require(holdsSelection(slot, original.get(), Selection(shape, selectors), kElementWidths[tag]));
  if (given == nullptr) MNumericArray_delete(slot);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  startLimited();
  Input input(bytes, count);
  const uint32_t before = usedBytesOfThisThread();
  switch (below(input, 3)) {
  case 0:
    getParts(input);
    break;
  case 1:
    setParts(input);
    break;
  default:
    getArrayParts(input);
  }
  require(usedBytesOfThisThread() == before);
  return 0;
}
