// Loops at several processor levels.
//
// A family whose loops gain from wider registers has a unit generated/<family>_loops.cpp, which is compiled
// once a level. The build of a level renames the namespace `torvane` to torvane_<level>: whatever the loops
// instantiate then has the level in its name, so that the linker can never give one level's copy of an
// inline function to another. All that a level defines for others is one record of loops a family.
#pragma once

#include "loops.h"

#ifndef TORVANE_LEVEL
#define TORVANE_LEVEL baseline
#endif

#define TORVANE_PASTE_(a, b) a##_##b
#define TORVANE_PASTE(a, b) TORVANE_PASTE_(a, b)

// The record of this unit's level.
#define TORVANE_LOOPS_HERE(family) TORVANE_PASTE(family, TORVANE_LEVEL)

// A family's records by level. A level that this build has not got is served by the next one below.
#ifdef TORVANE_HAS_AVX2
#define TORVANE_AVX2_OF(family) family##_avx2
#else
#define TORVANE_AVX2_OF(family) family##_baseline
#endif
#ifdef TORVANE_HAS_AVX512
#define TORVANE_AVX512_OF(family) family##_avx512
#else
#define TORVANE_AVX512_OF(family) TORVANE_AVX2_OF(family)
#endif
#define TORVANE_LOOPS_BY_LEVEL(family)                                                                       \
  { &torvane_loops::family##_baseline, &torvane_loops::TORVANE_AVX2_OF(family),                              \
    &torvane_loops::TORVANE_AVX512_OF(family) }
