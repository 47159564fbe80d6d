// The blocks that a library context has open, each with a pinned snapshot of the generators to go back to.
// The handlers BlockRandomBegin and BlockRandomEnd push and pop; they and SeedRandom stand in the registry.
#pragma once

#include "../runtime/library_data.h"

namespace torvane {

// Ends all that are open, the innermost first: for a context that is about to go.
void endRandomBlocks(TorvaneLibraryData *libraryData);

} // namespace torvane
