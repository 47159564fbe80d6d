// An operation without memory: each of its requests of the process heap fails in turn, in child processes, so
// that what ends the process is seen too.
//
// Warm, the thread has blocks of every size that its heap keeps, so that the blocks above 1 MiB alone are
// requests. Cold, a thread of its own has none, and the smallest of blocks is one, records of tensors among
// them.
#pragma once

#include "runtime/types.h"

#include <functional>
#include <string>

namespace torvane::test {

struct SweptOperation {
  std::string name;
  std::function<void()> prepare;        // before every run, where memory does not fail
  std::function<mint()> run;            // makes a result; the status
  std::function<bool(mint)> mayReturn;  // whether the status is one for want of memory
  std::function<std::string()> refused; // after another status than 0: what is wrong with slot and operands
  std::function<bool()> isRight;        // after 0: whether the result is what it is with memory
  std::function<void()> release;        // of the result; after every run
  uint32_t keptBytes = 0;               // that a success leaves allocated, by its definition
};

struct SweepOutcome {
  int64_t requests = 0; // that failed, each in a run of its own
  int64_t refused = 0;  // runs that gave a status
  int64_t ended = 0;    // runs that ended the process with its message; the others went on without
  std::string faults;   // what was wrong, a line each
};

enum class SweepKind { warm, cold };
SweepOutcome sweepMemory(const SweptOperation &operation, SweepKind kind);

} // namespace torvane::test
