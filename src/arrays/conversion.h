// Conversions of numeric arrays: what a caller asks for, and the operations. docs/numeric_arrays.md has the
// rules by pair and method.
//
// Every operation takes the result by its slot. With an array in it, that one is filled and must have the
// target's element type and the source's extents; an empty slot receives a new array.
#pragma once

#include "numeric_array.h"

struct MTensor;

namespace torvane {

enum Method : mint { kCheck = 1, kCoerce = 3, kRound = 5, kScale = 7 };

enum ConversionFlags : uint32_t {
  kSymmetric = 1, // signed targets begin one above their least value; no operation but the core takes it
  kClip = 2,
};

struct ConversionMethod {
  mreal tolerance; // low bits of a 53-bit significand that may differ: 0 none, 53 and more any
  mint method;
  uint32_t flags;
};

// The core. Status; elements before the one that fails are converted, those from it on untouched. After a
// failure an array that was made here is gone, but the slot still points at it: callers test the status.
// Null arguments and failures to allocate leave the slot alone.
mint MNumericArray_convert(MNumericArray **result, const MNumericArray *source, mint targetElementType,
                           const ConversionMethod *method);

// By the number of a method, 1 to 8: method_names.h. An exact tolerance for 1, one bit for all others.
mint MNumericArray_convertByMethod(MNumericArray **result, const MNumericArray *source,
                                   mint targetElementType, mint methodNumber);

// The same within some decimal digits. Status: 1 and 4 for element type and digits, 6 for all else.
mint MNumericArray_convertWithTolerance(MNumericArray **result, const MNumericArray *source,
                                        mint targetElementType, mint methodNumber, mreal digits);

// A new array, or null whatever failed. An odd `scaleBit` scales and clips, an even one coerces.
MNumericArray *MNumericArray_convertNew(const MNumericArray *source, mint targetElementType, mint scaleBit);

// Converts a tensor into an array of its shape. A tensor that no array has the shape or type of gives 204.
mint MNumericArray_fromTensor(MNumericArray *result, const MTensor *tensor, const ConversionMethod *method);

} // namespace torvane
