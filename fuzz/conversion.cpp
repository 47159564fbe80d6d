// Conversions of numeric arrays, raw bytes between all types by all methods and tolerances: an array converts
// as its elements do one at a time, up to the first that does not, and is untouched from there on; and
// clipping.
#include "limited_heap.h"
#include "tensors.h"

#include "arrays/arrays.h"
#include "arrays/clip.h"
#include "arrays/conversion.h"
#include "runtime/memory.h"

#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr char kUntouched = 0x5A;

char *bytesOf(const Array &array) { return static_cast<char *>(array->data); }
uint32_t byteCountOf(const Array &array) { return MNumericArray_byteCount(array.get()); }

// Elements by the bytes of the input or of a few repeated.
Array takeArray(Input &input, mint tag, mint count) {
  Array array = newArray(tag, {count});
  const uint32_t bytes = byteCountOf(array), fresh = std::min<uint32_t>(bytes, 1 + input.take<uint8_t>());
  for (uint32_t i = 0; i < bytes; ++i)
    bytesOf(array)[i] = i < fresh ? char(input.take<uint8_t>()) : bytesOf(array)[i - fresh];
  return array;
}

// Now and then past the lengths at which loops turn from blocks to ends.
mint takeCount(Input &input) { return oneIn(input, 8) ? input.take<uint16_t>() % 3000 : below(input, 40); }

ConversionMethod takeMethod(Input &input) {
  constexpr mreal kTolerances[] = {0, 0, 1, 1, 2, 7, 26, 29.5, 30, 52, 53, 54, 1e300, -1, NAN, INFINITY};
  constexpr mint kMethods[] = {kCheck, kCheck, kCoerce, kCoerce, kRound, kRound, kScale};
  const mreal tolerance = kTolerances[below(input, std::size(kTolerances))];
  const mint method = oneIn(input, 40) ? takeInteger(input) : kMethods[below(input, std::size(kMethods))];
  return {tolerance, method, input.take<uint8_t>() & 3u};
}

// The status of element i by itself, and what it becomes.
mint convertOne(const Array &source, mint i, const Array &one, const ConversionMethod &method) {
  const size_t width = kElementWidths[source->elementType];
  const Array alone = newArray(source->elementType, {1});
  std::memcpy(alone->data, bytesOf(source) + size_t(i) * width, width);
  std::memset(one->data, kUntouched, kElementWidths[one->elementType]);
  MNumericArray *slot = one.get();
  return MNumericArray_convert(&slot, alone.get(), one->elementType, &method);
}

void expectPrefix(const Array &source, const Array &result, mint status, const ConversionMethod &method) {
  const Array one = newArray(result->elementType, {1});
  const size_t width = kElementWidths[result->elementType];
  mint i = 0, alone = 0;
  for (; i < source->elementCount && (alone = convertOne(source, i, one, method)) == 0; ++i)
    require(std::memcmp(bytesOf(result) + size_t(i) * width, one->data, width) == 0);
  require(status == alone);
  for (size_t at = size_t(i) * width; at < byteCountOf(result); ++at)
    require(bytesOf(result)[at] == kUntouched);
}

bool isStatus(mint status) {
  for (const mint known : {0, 1, 403, 1301, 1304, 1305})
    if (status == known) return true;
  return false;
}

void expectNew(const Array &source, const Array &given, mint status, const ConversionMethod &method) {
  MNumericArray *slot = nullptr;
  const mint again = MNumericArray_convert(&slot, source.get(), given->elementType, &method);
  require(again == status);
  if (again != 0) return; // the slot then holds an address of nothing
  require(std::memcmp(slot->data, given->data, byteCountOf(given)) == 0);
  MNumericArray_delete(slot);
}

void convert(Input &input) {
  const mint from = 1 + below(input, 12), to = 1 + below(input, 12), count = takeCount(input);
  const ConversionMethod method = takeMethod(input);
  const Array source = takeArray(input, from, count), result = newArray(to, {count});
  const Array original(MNumericArray_clone(source.get()));
  if (byteCountOf(result) != 0) std::memset(result->data, kUntouched, byteCountOf(result));
  MNumericArray *slot = result.get();
  const mint status = MNumericArray_convert(&slot, source.get(), to, &method);
  require(isStatus(status) && slot == result.get());
  require(byteCountOf(source) == 0 || std::memcmp(source->data, original->data, byteCountOf(source)) == 0);
  expectPrefix(source, result, status, method);
  if (count > 0) expectNew(source, result, status, method);
}

// Numbers of methods and digits as a compiled library gives them.
void convertByNumber(Input &input) {
  const Array source = takeArray(input, 1 + below(input, 12), below(input, 40));
  const mint to = oneIn(input, 16) ? takeInteger(input) : 1 + below(input, 12);
  const mint number = oneIn(input, 16) ? takeInteger(input) : 1 + below(input, 8);
  MNumericArray *first = nullptr, *second = nullptr;
  const mint status = MNumericArray_convertByMethod(&first, source.get(), to, number);
  require(isStatus(status));
  if (status == 0) MNumericArray_delete(first);
  const mint other = MNumericArray_convertWithTolerance(&second, source.get(), to, number, takeReal(input));
  require(other == 0 || other == 1 || other == 4 || other == 6);
  if (other == 0) MNumericArray_delete(second);
}

void convertTensor(Input &input) {
  const Tensor tensor = takeTensor(input), original = cloneOf(tensor.get());
  const ConversionMethod method = takeMethod(input);
  const Array result = newArray(1 + below(input, 12), {std::max(1, tensor->elementCount)});
  if (tensor->rank > 0 && oneIn(input, 2))
    MNumericArray_resetDimensions(result.get(), tensor->rank, tensor->dimensions);
  const mint status = MNumericArray_fromTensor(result.get(), tensor.get(), &method);
  require(isStatus(status) || status == 204);
  require(isSameTensor(tensor.get(), original.get()));
}

// One element by the rule: NaNs stay.
template <class T> T clipped(T x, const T *bounds, const T *replacements) {
  return x < bounds[0] ? replacements[0] : x > bounds[1] ? replacements[1] : x;
}

template <class T>
void expectClipped(const Array &source, const MNumericArray *result, const Array &bounds,
                   const Array &replacements) {
  for (mint i = 0; i < source->elementCount; ++i) {
    const T expected = clipped(static_cast<T *>(source->data)[i], static_cast<T *>(bounds->data),
                               static_cast<T *>(replacements->data));
    require(std::memcmp(&static_cast<T *>(result->data)[i], &expected, sizeof expected) == 0);
  }
}

void expectClippedBy(mint tag, const Array &source, const MNumericArray *result, const Array &bounds,
                     const Array &replacements) {
  using Expect = void (*)(const Array &, const MNumericArray *, const Array &, const Array &);
  constexpr Expect kBy[] = {expectClipped<int8_t>,   expectClipped<uint8_t>,  expectClipped<int16_t>,
                            expectClipped<uint16_t>, expectClipped<int32_t>,  expectClipped<uint32_t>,
                            expectClipped<int64_t>,  expectClipped<uint64_t>, expectClipped<float>,
                            expectClipped<double>};
  kBy[tag - 1](source, result, bounds, replacements);
}

void clip(Input &input) {
  const mint tag = 1 + below(input, 12), count = takeCount(input);
  const Array source = takeArray(input, tag, count), original(MNumericArray_clone(source.get()));
  const Array bounds = takeArray(input, tag, 2), replacements = takeArray(input, tag, 2);
  MNumericArray *slot = oneIn(input, 2) ? source.get() : nullptr;
  const bool isInPlace = slot != nullptr;
  const mint status = MNumericArray_clip(&slot, source.get(), bounds.get(), replacements.get());
  require((status == 0) == (tag < TORVANE_ELEMENT_COMPLEX_REAL32));
  if (status == 0) expectClippedBy(tag, original, slot, bounds, replacements);
  if (!isInPlace) MNumericArray_delete(slot);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  startLimited();
  Input input(bytes, count);
  const uint32_t before = usedBytesOfThisThread();
  switch (below(input, 8)) {
  case 0:
    convertByNumber(input);
    break;
  case 1:
    convertTensor(input);
    break;
  case 2:
    clip(input);
    break;
  default:
    convert(input);
  }
  require(usedBytesOfThisThread() == before);
  return 0;
}
