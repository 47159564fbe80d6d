// The rows of the table of named functions with all their columns, for tests and fuzzing that walk them.
#pragma once

#include "algorithms/registry.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace torvane::test {

struct NamedRow {
  const char *name;
  RuntimeFunctionHandler handler;
  mint kind;
  const char *counts, *arguments, *result, *statuses;

  bool hasLanded() const { return handler != unavailableRuntimeFunction; }
  bool is(const char *other) const { return std::strcmp(name, other) == 0; }
  bool isOneOf(std::initializer_list<const char *> names) const {
    for (const char *other : names)
      if (is(other)) return true;
    return false;
  }

  // 0 and what stands in the column.
  bool mayReturn(mint status) const {
    if (status == 0) return true;
    for (const char *at = statuses; at != nullptr; at = std::strchr(at, ',')) {
      at += *at == ',';
      if (std::strtol(at, nullptr, 10) == status) return true;
    }
    return false;
  }
};

inline constexpr NamedRow kNamedRows[] = {
#define TORVANE_FUNCTION(name, handler, kind, counts, arguments, result, statuses, meaning)                  \
  {#name, handler, kind, counts, arguments, result, statuses},
#include "algorithms/functions.def"
#undef TORVANE_FUNCTION
};

} // namespace torvane::test
