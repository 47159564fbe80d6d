// Conversions for conversion_numpy.py, which loads this with the library's hidden operations inside.
#include "arrays/conversion.h"

#include <torvane/startup.h>

extern "C" {

TORVANE_API void benchStart() { InitializeRuntimeLibrary(); }

// Fills `result`, `repeats` times over, by the number of a method. Status.
TORVANE_API mint benchConvert(MNumericArray *result, const MNumericArray *source, mint methodNumber,
                              mint repeats) {
  mint status = 0;
  for (mint k = 0; k < repeats && status == 0; ++k)
    status = torvane::MNumericArray_convertByMethod(&result, source, result->elementType, methodNumber);
  return status;
}
}
