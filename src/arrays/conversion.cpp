// The core of conversions, and the entries that fill in a method for it.
#include "conversion.h"

#include "../elementwise/levels.h"
#include "../runtime/failure.h"
#include "../runtime/memory.h"
#include "../runtime/platform_cpu_level.h"
#include "../tensor/tensor.h"
#include "agreement.h"
#include "conversion_loops.h"
#include "method_names.h"

namespace torvane {

namespace {

using torvane_loops::Conversion;
using torvane_loops::ConversionLoop;

constexpr mreal kBitsOfADigit = 3.321928094887362; // the binary logarithm of 10
constexpr mreal kOneBit = 1.0;

// ---- the core ----

constexpr const torvane_loops::ConversionsFrom<4> *kFromSigned[] = TORVANE_LOOPS_BY_LEVEL(fromsigned);
constexpr const torvane_loops::ConversionsFrom<4> *kFromUnsigned[] = TORVANE_LOOPS_BY_LEVEL(fromunsigned);
constexpr const torvane_loops::ConversionsFrom<2> *kFromReal[] = TORVANE_LOOPS_BY_LEVEL(fromreal);

// Integers of both classes alternate, the narrowest first.
const ConversionLoop *loopsFrom(mint tag) {
  const mint level = processorLevel();
  if (tag >= TORVANE_ELEMENT_COMPLEX_REAL32)
    return torvane_loops::fromcomplex.loop[tag - TORVANE_ELEMENT_COMPLEX_REAL32];
  if (tag >= TORVANE_ELEMENT_REAL32) return kFromReal[level]->loop[tag - TORVANE_ELEMENT_REAL32];
  const auto *record = tag % 2 == 1 ? kFromSigned[level] : kFromUnsigned[level];
  return record->loop[(tag - 1) / 2];
}

bool isCopy(mint from, mint to, mint method) {
  return from == to && (method != kRound || to < TORVANE_ELEMENT_REAL32);
}

mint copyInto(MNumericArray *result, const MNumericArray *source) {
  if (!isElementType(source->elementType)) return kBadElementType;
  if (result != source) MNumericArray_copyElements(result, 0, source, 0, source->elementCount);
  return kSuccess;
}

Conversion conversionOf(const ConversionMethod *method) {
  return {method->method, (method->flags & kClip) != 0, (method->flags & kSymmetric) != 0, method->tolerance,
          agreementFactor(method->tolerance)};
}

mint runLoop(MNumericArray *result, const MNumericArray *source, const ConversionMethod *method) {
  if (source->elementCount == 0) return kSuccess;
  if (!isElementType(source->elementType) || !isElementType(result->elementType)) return kBadElementType;
  const ConversionLoop loop = loopsFrom(source->elementType)[result->elementType - 1];
  return loop(conversionOf(method), result->data, source->data, source->elementCount);
}

// The poll of long loops is asked when the elements are done.
mint convertElements(MNumericArray *result, const MNumericArray *source, const ConversionMethod *method) {
  const mint status = runLoop(result, source, method);
  if (abortQ() != 0) return kAborted;
  return status;
}

mint convertIntoNew(MNumericArray **result, const MNumericArray *source, mint target,
                    const ConversionMethod *method) {
  if (isCopy(source->elementType, target, method->method)) {
    *result = MNumericArray_clone(source);
    return *result == nullptr ? mint{kSizeFailed} : mint{kSuccess};
  }
  *result = MNumericArray_newLike(target, source);
  if (*result == nullptr) return kSizeFailed;
  const mint status = convertElements(*result, source, method);
  // The slot keeps the address of what was deleted. Callers rely on the status alone, and some on a slot that
  // is no longer null.
  if (status != kSuccess) MNumericArray_delete(*result);
  return status;
}

mint convertInto(MNumericArray *result, const MNumericArray *source, mint target,
                 const ConversionMethod *method) {
  if (result->elementType != target || !haveOneShape(result, source)) return kNoPass;
  if (isCopy(source->elementType, target, method->method)) return copyInto(result, source);
  return convertElements(result, source, method);
}

// ---- entries ----

// Odd numbers do not clip, and the even one behind each does.
ConversionMethod methodOfNumber(mint number, mreal tolerance) {
  const bool clips = number % 2 == 0;
  return {tolerance, clips ? number - 1 : number, clips ? uint32_t{kClip} : 0};
}

bool isMethodNumber(mint number) { return number >= 1 && number <= kMethodCount; }

mint elementTypeOfTensor(const MTensor *tensor) {
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return TORVANE_ELEMENT_INTEGER32;
  case TORVANE_TYPE_REAL:
    return TORVANE_ELEMENT_REAL64;
  case TORVANE_TYPE_COMPLEX:
    return TORVANE_ELEMENT_COMPLEX_REAL64;
  default:
    return 0;
  }
}

// An array over the tensor's own payload, wherever that stands.
MNumericArray *viewOf(const MTensor *tensor) {
  MNumericArray *view =
      MNumericArray_newShaped(elementTypeOfTensor(tensor), tensor->rank, tensor->dimensions);
  if (view != nullptr) view->data = tensor->data;
  return view;
}

void deleteView(MNumericArray *view) {
  view->data = nullptr; // the tensor's
  MNumericArray_delete(view);
}

} // namespace

mint MNumericArray_convert(MNumericArray **result, const MNumericArray *source, mint targetElementType,
                           const ConversionMethod *method) {
  if (result == nullptr || source == nullptr) return kNullArgument;
  if (*result == nullptr) return convertIntoNew(result, source, targetElementType, method);
  return convertInto(*result, source, targetElementType, method);
}

mint MNumericArray_convertByMethod(MNumericArray **result, const MNumericArray *source,
                                   mint targetElementType, mint methodNumber) {
  if (!isElementType(targetElementType)) return kBadElementType;
  if (!isMethodNumber(methodNumber)) return kBadMethod;
  const ConversionMethod method = methodOfNumber(methodNumber, methodNumber == 1 ? 0.0 : kOneBit);
  return MNumericArray_convert(result, source, targetElementType, &method);
}

// The order of the tests, and 6 for whatever the core says, are what compiled libraries have met.
mint MNumericArray_convertWithTolerance(MNumericArray **result, const MNumericArray *source,
                                        mint targetElementType, mint methodNumber, mreal digits) {
  if (source == nullptr) return kNoSuchService;
  if (!isElementType(targetElementType)) return kWrongType;
  if (!isMethodNumber(methodNumber)) return kNoSuchService;
  if (digits < 0) return kValueFailed;
  const ConversionMethod method = methodOfNumber(methodNumber, digits * kBitsOfADigit);
  const mint status = MNumericArray_convert(result, source, targetElementType, &method);
  return status == kSuccess ? mint{kSuccess} : mint{kNoSuchService};
}

MNumericArray *MNumericArray_convertNew(const MNumericArray *source, mint targetElementType, mint scaleBit) {
  const bool scales = (scaleBit & 1) != 0;
  const ConversionMethod method = {kOneBit, scales ? mint{kScale} : mint{kCoerce},
                                   scales ? uint32_t{kClip} : 0};
  MNumericArray *result = nullptr;
  return MNumericArray_convert(&result, source, targetElementType, &method) == kSuccess ? result : nullptr;
}

mint MNumericArray_fromTensor(MNumericArray *result, const MTensor *tensor, const ConversionMethod *method) {
  if (result == nullptr || tensor == nullptr) return kNullArgument;
  MNumericArray *view = viewOf(tensor);
  if (view == nullptr) return kNotAnArray;
  const mint status = MNumericArray_convert(&result, view, result->elementType, method);
  deleteView(view);
  return status;
}

} // namespace torvane
