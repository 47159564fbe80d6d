// Conversions for conversion_numpy.py, which loads this with the library's hidden operations inside.
#include "arrays/conversion.h"

#include <torvane/startup.h>

extern "C" {

TORVANE_API void benchStart() { InitializeRuntimeLibrary(); }

// Fills `result` by the number of a method. Status.
TORVANE_API mint benchConvert(MNumericArray *result, const MNumericArray *source, mint methodNumber) {
  return torvane::MNumericArray_convertByMethod(&result, source, result->elementType, methodNumber);
}
}
