// Element types: widths by tag, and names by tag in both directions.
#pragma once

#include "types.h"

namespace torvane {

inline constexpr mint kElementTypeCount = 12; // tags 1 to 12; 0 is none
inline constexpr mint kNamesOfAType = 8;

// Bytes of one element, by tag 0 to 12.
extern const uint32_t kElementWidths[kElementTypeCount + 1];

// Names of tag r + 1 in row r, which ends at its first null. The two tables differ for the types of tensors:
// the aliases add "Integer", "Real" and "Complex" and put "Complex64" and "Complex128" first.
using TypeNames = const char *const[kNamesOfAType];
extern TypeNames kPrimaryTypeNames[kElementTypeCount];
extern TypeNames kTypeAliases[kElementTypeCount];

// The canonical name of a tag from 1 to 12: the first alias. For tags 11 and 12 that is "Complex64" and
// "Complex128".
const char *typeNameOfElementType(mint elementType);

// The tag of an alias, compared byte by byte; 0 when there is none.
mint elementTypeOfName(const char *name);

} // namespace torvane
