// Sparse arrays: built from positions and from tensors, copied, with other backgrounds and without
// repetitions, against a dense array of the same elements.
#include "limited_heap.h"
#include "tensors.h"

#include "arrays/sparse_background.h"
#include "arrays/sparse_support.h"
#include "runtime/memory.h"

using namespace torvane;
using namespace torvane::test;

namespace {

// Any bits: what an array has to keep of an element.
const void *elementAt(const MTensor *tensor, mint i) {
  return static_cast<const char *>(tensor->data) + size_t(i) * elementWidth(tensor->type);
}
void storeAt(MTensor *tensor, mint i, const void *element) {
  std::memcpy(static_cast<char *>(tensor->data) + size_t(i) * elementWidth(tensor->type), element,
              elementWidth(tensor->type));
}

struct Given {
  Tensor positions, values, dimensions, background;
};

// Lines mostly within extents that are drawn first.
Given takeGiven(Input &input) {
  const mint rank = 1 + below(input, 3), lines = below(input, 16), type = takeType(input);
  const Extents shape(size_t(rank), 1 + below(input, 6));
  Given given;
  given.positions = newTensor(TORVANE_TYPE_INTEGER, {lines, rank});
  for (mint i = 0; i < given.positions->elementCount; ++i)
    elements<mint>(given.positions)[i] = oneIn(input, 100) ? takeInteger(input) : 1 + below(input, shape[0]);
  if (!oneIn(input, 4)) given.background = takeTensorOf(input, type, {});
  const mint valuesType = given.background != nullptr ? type : mint{TORVANE_TYPE_INTEGER};
  if (!oneIn(input, 6)) given.values = takeTensorOf(input, valuesType, {lines});
  if (oneIn(input, 2)) given.dimensions = tensorOf<mint>({rank}, shape);
  if (oneIn(input, 60)) given.values = takeTensor(input);
  if (oneIn(input, 60)) given.dimensions = takeTensor(input);
  if (oneIn(input, 60)) given.background = takeTensor(input);
  if (oneIn(input, 60)) given.positions = takeTensor(input);
  return given;
}

// Row-major place of a line.
mint placeOf(const mint *line, const Extents &shape) {
  mint place = 0;
  for (size_t k = 0; k < shape.size(); ++k) place = place * shape[k] + line[k] - 1;
  return place;
}

// What a dense array of the lines holds, the last of a position standing.
Tensor denseOf(const Given &given, const MSparseArray *array) {
  const Extents shape = extentsOf(array);
  Tensor dense = newTensor(given.values->type, shape);
  for (mint i = 0; i < dense->elementCount; ++i) storeAt(dense.get(), i, array->skeleton->background->data);
  for (mint i = 0; i < given.positions->dimensions[0]; ++i)
    storeAt(dense.get(), placeOf(elements<mint>(given.positions) + i * mint(shape.size()), shape),
            elementAt(given.values.get(), i));
  return dense;
}

bool isSmall(const MSparseArray *array) {
  int64_t count = 1;
  for (const mint extent : extentsOf(array)) count = std::min<int64_t>(count * extent, 1 << 20);
  return count < 1 << 16;
}

Tensor toTensor(const MSparseArray *array) {
  MTensor *slot = nullptr;
  require(MSparseArray_toTensor(array, &slot) == 0 && isValidTensor(slot));
  return Tensor(slot);
}

void expectDense(const MSparseArray *array, const Tensor &dense) {
  require(isValidSparseArray(array));
  require(isSameTensor(toTensor(array).get(), dense.get()));
}

void expectCopy(const MSparseArray *array) {
  MSparseArray *slot = nullptr;
  require(MSparseArray_copyHandle(array, &slot) == 0 && isValidSparseArray(slot));
  require(linesOf(slot) == linesOf(array));
  // Without elements the copy has no tensor of values.
  require(array->elementCount == 0 || MSparseArray_byteCount(slot) == MSparseArray_byteCount(array));
  MSparseArray_delete(slot);
}

// The first of each position, so a dense array whose first writes stand.
void expectWithoutDuplicates(MSparseArray *array, bool withValues) {
  MSparseArray *slot = nullptr;
  const bool isPattern = array->property->type == TORVANE_TYPE_PATTERN;
  const mint status = MSparseArray_dropDuplicates(array, withValues, &slot);
  Lines lines = linesOf(array), left;
  for (const auto &line : lines)
    if (std::find(left.begin(), left.end(), line) == left.end()) left.push_back(line);
  if (status != 0) return require(isPattern && withValues && left.size() < lines.size() && slot == nullptr);
  require(isValidSparseArray(slot) && linesOf(slot) == left &&
          (slot == array) == (left.size() == lines.size()));
  if (slot != array) MSparseArray_delete(slot);
}

// Entries that equal a background go; the dense elements are those that they were, but for bits that count as
// none.
template <class Element> bool areNear(const MTensor *a, const MTensor *b, Element background) {
  const auto *x = static_cast<const Element *>(a->data), *y = static_cast<const Element *>(b->data);
  for (mint i = 0; i < a->elementCount; ++i)
    if (std::memcmp(&x[i], &y[i], sizeof(Element)) != 0 &&
        !(equalsBackground(x[i], background) && std::memcmp(&y[i], &background, sizeof(Element)) == 0))
      return false;
  return true;
}

bool areNear(const Tensor &dense, const Tensor &other, const MTensor *background) {
  if (dense->type != other->type || extentsOf(dense) != extentsOf(other)) return false;
  return withElement(dense->type, [&](auto element) {
    using Element = decltype(element);
    return areNear<Element>(dense.get(), other.get(), scalarOf<Element>(background));
  });
}

bool hasRepetitions(const MSparseArray *array) {
  Lines lines = linesOf(array);
  std::sort(lines.begin(), lines.end());
  return std::adjacent_find(lines.begin(), lines.end()) != lines.end();
}

void expectBackground(Input &input, MSparseArray *array, const Tensor &dense) {
  const Tensor background =
      oneIn(input, 4) ? nullptr : takeTensorOf(input, oneIn(input, 16) ? takeType(input) : dense->type, {});
  MSparseArray *slot = nullptr;
  const mint status = MSparseArray_setBackground(array, background.get(), &slot);
  if (background != nullptr && background->type != dense->type)
    return require(status == 1 && slot == nullptr);
  require(status == 0 && isValidSparseArray(slot));
  if (slot == array) return;
  // Where the old background stays, it is of what was near it that it takes the place; of a position that
  // comes again, what came before may be seen again.
  require(hasRepetitions(array) || areNear(dense, toTensor(slot), slot->skeleton->background));
  MSparseArray_delete(slot);
}

void fromPositions(Input &input) {
  const Given given = takeGiven(input);
  MSparseArray *slot = oneIn(input, 4) ? MSparseArray_new(2) : nullptr;
  const mint status = MSparseArray_fromPositions(given.positions.get(), given.values.get(),
                                                 given.dimensions.get(), given.background.get(), &slot);
  require((status == 0 || status == -1) && (status == 0) == (slot != nullptr));
  const Sparse array(slot);
  if (status != 0) return;
  require(isValidSparseArray(array.get()));
  require(array->elementCount == given.positions->dimensions[0]);
  if (!isSmall(array.get())) return;
  expectCopy(array.get());
  expectWithoutDuplicates(array.get(), oneIn(input, 2));
  if (given.values == nullptr) return;
  const Tensor dense = denseOf(given, array.get());
  expectDense(array.get(), dense);
  expectBackground(input, array.get(), dense);
}

void fromTensor(Input &input) {
  const Tensor tensor = takeTensor(input), original = cloneOf(tensor.get());
  const Tensor background =
      oneIn(input, 3) ? nullptr : takeTensorOf(input, oneIn(input, 16) ? takeType(input) : tensor->type, {});
  MSparseArray *slot = oneIn(input, 4) ? MSparseArray_new(1) : nullptr, *const held = slot;
  const mint status = MSparseArray_fromTensor(tensor.get(), background.get(), &slot);
  require(isSameTensor(tensor.get(), original.get()));
  const Sparse array(slot);
  const bool fits = tensor->rank > 0 && (background == nullptr || background->type == tensor->type);
  require(status == (fits ? 0 : -1));
  if (status != 0) return require(slot == held);
  require(isValidSparseArray(slot));
  require(areNear(tensor, toTensor(slot), slot->skeleton->background));
  expectCopy(slot);
  expectWithoutDuplicates(slot, true);
  expectBackground(input, slot, toTensor(slot));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  startLimited();
  Input input(bytes, count);
  const uint32_t before = usedBytesOfThisThread();
  oneIn(input, 2) ? fromPositions(input) : fromTensor(input);
  require(usedBytesOfThisThread() == before);
  return 0;
}
