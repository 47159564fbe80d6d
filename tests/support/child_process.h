// Runs a function in a child process and tells how the child ended and what it printed: for the paths
// that end the process.
#pragma once

#include <functional>
#include <string>

namespace torvane::test {

struct ChildOutcome {
  bool exited = false; // ended by itself, not by a signal
  int status = -1;     // exit status, or the signal's number
  double seconds = 0;
  std::string output; // what it wrote to standard output
};

// The child ends with status 99 if `body` returns. It passes over waits of a second and more (the fatal path
// waits three), unless they are what is tested.
enum class LongWaits { passedOver, inFull };
ChildOutcome runInChild(const std::function<void()> &body, LongWaits waits = LongWaits::passedOver);

// Runs a test's body, whose failures are the test's, where it can do what a process does only once.
void inFreshProcess(const std::function<void()> &body);

} // namespace torvane::test
