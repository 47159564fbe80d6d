// What start-up makes for conversions: the two maps of names.
#include "../runtime/startup.h"
#include "element_type_names.h"
#include "method_names.h"

namespace torvane {

void initializeConversionTables(mint stage) {
  initializeElementTypeNames(stage);
  initializeMethodNames(stage);
}

void tearDownConversionTables() {
  tearDownMethodNames();
  tearDownElementTypeNames();
}

} // namespace torvane
