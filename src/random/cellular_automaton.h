// The initial row of the cellular automaton, of the default width. Made by tools/cells.
#pragma once

#include <stdint.h>

namespace torvane {

inline constexpr uint32_t kInitialCellWords = 160;

extern const uint32_t initialCells[kInitialCellWords];

} // namespace torvane
