#include "named_call.h"

#include "runtime/startup.h"

namespace torvane::test {

NamedFunctions::NamedFunctions() {
  if (lookupRuntimeFunction("CopyTensor") == unavailableRuntimeFunction)
    for (mint stage : {0, 1}) initializeRuntimeFunctionTable(stage);
}

} // namespace torvane::test
