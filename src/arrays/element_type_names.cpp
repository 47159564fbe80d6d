// The map of the 41 primary names, filled in the order of their table.
#include "element_type_names.h"

#include "../runtime/element_types.h"
#include "name_map.h"

namespace torvane {

namespace {

constinit NameMap elementTypes;

void addElementTypes(HashTable *names) {
  for (mint row = 0; row < kElementTypeCount; ++row)
    for (const char *name : kPrimaryTypeNames[row])
      if (name != nullptr) addName(names, name, row + 1);
}

} // namespace

void initializeElementTypeNames(mint stage) { initializeNameMap(elementTypes, stage, addElementTypes); }

void tearDownElementTypeNames() { tearDownNameMap(elementTypes); }

mint elementTypeOfPrimaryName(const char *name) { return numberOfName(elementTypes, name); }

} // namespace torvane
