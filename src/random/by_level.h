// A loop over integers once more for each processor level. The body is written once, inlined into a function
// for each level, and which of these runs never changes what it computes.
#pragma once

#include "../runtime/platform_cpu_level.h"

// Defines `name(arguments)`, which runs the always-inline `body` as the level in force compiles it.
#define TORVANE_BY_LEVEL(name, body, parameters, arguments)                                                  \
  [[gnu::target("avx2")]] void name##Avx2 parameters { body arguments; }                                     \
  [[gnu::target("avx2,avx512f,avx512vl,avx512bw,avx512dq")]] void name##Avx512 parameters {                  \
    body arguments;                                                                                          \
  }                                                                                                          \
  void name parameters {                                                                                     \
    const mint level = processorLevel();                                                                     \
    if (level == kAvx512Level) return name##Avx512 arguments;                                                \
    if (level == kAvx2Level) return name##Avx2 arguments;                                                    \
    body arguments;                                                                                          \
  }
