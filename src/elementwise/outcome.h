// The outcome of a dispatch entry: success, no routine, or the position of a failing element.
#pragma once

#include "../runtime/types.h"

namespace torvane {

inline constexpr mint kDone = -2;      // this and everything below is success
inline constexpr mint kNoRoutine = -1; // the combination is not defined

// From what a routine returns: 0, or one plus the position.
constexpr mint outcomeOf(mint routineReturn) { return routineReturn == 0 ? kDone : routineReturn - 1; }

} // namespace torvane
