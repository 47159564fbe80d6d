// Coercion between the three tensor types, one function for each pair, found in a table.
//
// Narrowing is silent: the imaginary part goes without a test, and a real that no mint holds leaves the
// elements from there on unspecified. Callers that must refuse a value test it first (TensorDataToReal).
#include "run.h"

#include <torvane/machfuncs.h>

using namespace torvane;

namespace {

using Coercion = void (*)(void *target, mint targetStride, const void *source, mint sourceStride, mint count);

// A zero of either sign becomes +0.0 on its way into a complex element.
mcomplex complexOf(mreal x) { return {x == 0.0 ? 0.0 : x, 0.0}; }

template <mint Type>
void copySame(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  copyRun(Type, target, 0, targetStride, source, 0, sourceStride, count);
}

void integersToReals(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  convertRun(static_cast<mreal *>(target), targetStride, static_cast<const mint *>(source), sourceStride,
             count, [](mint n) { return mreal(n); });
}

void integersToComplexes(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  convertRun(static_cast<mcomplex *>(target), targetStride, static_cast<const mint *>(source), sourceStride,
             count, [](mint n) {
               return mcomplex{mreal(n), 0.0};
             });
}

// Rounding is the operator's, ties and failures included; its verdict is not asked for.
void realsToIntegers(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  const mint strides[] = {targetStride, sourceStride};
  machfunc_d_round(target, source, count, strides, 0);
}

void realsToComplexes(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  convertRun(static_cast<mcomplex *>(target), targetStride, static_cast<const mreal *>(source), sourceStride,
             count, complexOf);
}

// Element by element, so that one that fails does not keep those after it from being rounded.
void complexesToIntegers(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  const mint strides[] = {1, 1};
  for (ptrdiff_t i = 0; i < count; ++i)
    machfunc_d_round(static_cast<mint *>(target) + i * targetStride,
                     &static_cast<const mcomplex *>(source)[i * sourceStride].re, 1, strides, 0);
}

void complexesToReals(void *target, mint targetStride, const void *source, mint sourceStride, mint count) {
  convertRun(static_cast<mreal *>(target), targetStride, static_cast<const mcomplex *>(source), sourceStride,
             count, [](mcomplex z) { return z.re; });
}

// Row by source type, column by target type, from integer on.
constexpr Coercion kCoercions[3][3] = {
    {copySame<TORVANE_TYPE_INTEGER>, integersToReals, integersToComplexes},
    {realsToIntegers, copySame<TORVANE_TYPE_REAL>, realsToComplexes},
    {complexesToIntegers, complexesToReals, copySame<TORVANE_TYPE_COMPLEX>},
};

bool hasElements(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

mreal refuse(mint *failureFlag) {
  *failureFlag = 1;
  return 0.0;
}

} // namespace

void GenericData_copySomeCoerce(void *target, mint targetType, mint targetStart, mint targetStride,
                                const void *source, mint sourceType, mint sourceStart, mint sourceStride,
                                mint count) {
  if (count < 1 || !hasElements(targetType) || !hasElements(sourceType)) return;
  const Coercion coerce = kCoercions[sourceType - TORVANE_TYPE_INTEGER][targetType - TORVANE_TYPE_INTEGER];
  coerce(static_cast<char *>(target) + byteOffset(targetType, targetStart), targetStride,
         static_cast<const char *>(source) + byteOffset(sourceType, sourceStart), sourceStride, count);
}

void MTensor_copySomeDataCoerce(MTensor *target, mint targetStart, mint targetStride, const MTensor *source,
                                mint sourceStart, mint sourceStride, mint count) {
  if (target->type == source->type)
    return MTensor_copySomeData(target, targetStart, targetStride, source, sourceStart, sourceStride, count);
  GenericData_copySomeCoerce(target->data, target->type, targetStart, targetStride, source->data,
                             source->type, sourceStart, sourceStride, count);
}

mreal TensorDataToReal(const MTensor *tensor, mint index, mint *failureFlag) {
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return static_cast<const mint *>(tensor->data)[index];
  case TORVANE_TYPE_REAL:
    return static_cast<const mreal *>(tensor->data)[index];
  case TORVANE_TYPE_COMPLEX: {
    const mcomplex z = static_cast<const mcomplex *>(tensor->data)[index];
    return z.im == 0.0 ? z.re : refuse(failureFlag);
  }
  default:
    return refuse(failureFlag);
  }
}
