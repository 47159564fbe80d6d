// Names follow the usage of compiled code, not C: "char" and "Byte" are the unsigned 8-bit type, "Short" and
// "short" the unsigned 16-bit one. The number in "Complex64" counts the bits of the pair.
#include "element_types.h"

#include <cstring>

// Entry 1 is that of the reserved type, which no tensor has; 5 and 6 are there to be read and empty.
const uint32_t MTensor_typeSizeTable[7] = {0, 4, 4, 8, 16, 0, 0};

static_assert(sizeof(mint) == 4 && sizeof(mreal) == 8 && sizeof(mcomplex) == 16);

namespace torvane {

const uint32_t kElementWidths[kElementTypeCount + 1] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8, 8, 16};

TypeNames kPrimaryTypeNames[kElementTypeCount] = {
    {"Integer8", "SignedInteger8", "signed char"},
    {"UnsignedInteger8", "Byte", "Character8", "char", "unsigned char", "UBIT8"},
    {"Integer16", "SignedInteger16", "signed short"},
    {"UnsignedInteger16", "Bit16", "Character16", "Short", "short", "unsigned short", "UBIT16"},
    {"Integer32", "SignedInteger32", "int"},
    {"UnsignedInteger32", "Character32"},
    {"Integer64", "SignedInteger64"},
    {"UnsignedInteger64", "Character64"},
    {"Real32", "Float", "float"},
    {"Real64", "Double", "double"},
    {"ComplexReal32", "Complex64", "complexreal32"},
    {"ComplexReal64", "Complex128", "complexreal64", "mcomplex"},
};

TypeNames kTypeAliases[kElementTypeCount] = {
    {"Integer8", "SignedInteger8", "signed char"},
    {"UnsignedInteger8", "Byte", "Character8", "char", "unsigned char", "UBIT8"},
    {"Integer16", "SignedInteger16", "signed short"},
    {"UnsignedInteger16", "Bit16", "Character16", "Short", "short", "unsigned short", "UBIT16"},
    {"Integer32", "SignedInteger32", "Integer", "int"},
    {"UnsignedInteger32", "Character32"},
    {"Integer64", "SignedInteger64"},
    {"UnsignedInteger64", "Character64"},
    {"Real32", "Float", "float"},
    {"Real64", "Real", "Double", "double"},
    {"Complex64", "ComplexReal32", "complexreal32"},
    {"Complex128", "ComplexReal64", "complexreal64", "Complex", "mcomplex"},
};

namespace {

bool hasName(TypeNames &row, const char *name) {
  for (const char *known : row) {
    if (known == nullptr) return false;
    if (strcmp(known, name) == 0) return true;
  }
  return false;
}

} // namespace

const char *typeNameOfElementType(mint elementType) { return kTypeAliases[elementType - 1][0]; }

mint elementTypeOfName(const char *name) {
  for (mint row = 0; row < kElementTypeCount; ++row)
    if (hasName(kTypeAliases[row], name)) return row + 1;
  return 0;
}

} // namespace torvane
