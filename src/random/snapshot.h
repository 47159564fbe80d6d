// Snapshots: the generators of a thread, kept to be put back. Those of <torvane/random.h> and the deletion,
// which is activate's own.
#pragma once

#include <torvane/random.h>

namespace torvane {

enum NodeFlag : uint32_t { kIsCurrent = 1 };

// Lets go of the generators if the snapshot was pinned.
void deleteSnapshot(RandomGeneratorSnapshot *snapshot);

} // namespace torvane
