// The two tables of numeric arrays of the record: of MNumericArray, and of a second kind of a host's with the
// same layout, which is read in the same way. Null arrays answer 0.
#include "../arrays/conversion.h"
#include "library_data_tables.h"

namespace torvane {

namespace {

int64_t refCountOf(const MNumericArray *array) { return array != nullptr ? array->refCount : 0; }
mint elementTypeOf(const MNumericArray *array) {
  return array != nullptr && isElementType(array->elementType) ? array->elementType : 0;
}
mint rankOf(const MNumericArray *array) { return array != nullptr ? array->rank : 0; }
mint *dimensionsOf(const MNumericArray *array) { return array != nullptr ? array->dimensions : nullptr; }
mint elementCountOf(const MNumericArray *array) { return array != nullptr ? array->elementCount : 0; }
void *dataOf(const MNumericArray *array) { return array != nullptr ? array->data : nullptr; }

// A slot that was empty is empty again after a failure.
mint convert(MNumericArray **result, const MNumericArray *source, mint elementType, mint method,
             mreal digits) {
  const bool wasEmpty = result != nullptr && *result == nullptr;
  const mint status = MNumericArray_convertWithTolerance(result, source, elementType, method, digits);
  if (status != kSuccess && wasEmpty) *result = nullptr;
  return status;
}

} // namespace

constexpr TorvaneNumericTable kNumericTable = {
    .newArray = refusedService,
    .deleteArray = ignoredService,
    .clone = refusedService,
    .service4 = noService,
    .service5 = ignoredService,
    .refCount = refCountOf,
    .elementType = elementTypeOf,
    .rank = rankOf,
    .dimensions = dimensionsOf,
    .elementCount = elementCountOf,
    .data = dataOf,
    .convert = convert,
};
constexpr TorvaneNumericTable kNumericSecondTable = kNumericTable;

} // namespace torvane
