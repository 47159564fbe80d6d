#include "child_process.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

// The linker sends the library's calls of sleepMilliseconds here (--wrap).
extern "C" {
void __real__ZN7torvane17sleepMillisecondsEj(uint32_t milliseconds);
void __wrap__ZN7torvane17sleepMillisecondsEj(uint32_t milliseconds);
}

namespace {
torvane::test::LongWaits longWaits = torvane::test::LongWaits::inFull;
}

void __wrap__ZN7torvane17sleepMillisecondsEj(uint32_t milliseconds) {
  if (milliseconds < 1000 || longWaits == torvane::test::LongWaits::inFull)
    __real__ZN7torvane17sleepMillisecondsEj(milliseconds);
}

namespace torvane::test {

ChildOutcome runInChild(const std::function<void()> &body, LongWaits waits) {
  int ends[2];
  if (pipe(ends) != 0) return {};
  std::fflush(stdout);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    longWaits = waits;
    body();
    _exit(99);
  }
  close(ends[1]);
  ChildOutcome outcome;
  char buffer[512];
  for (ssize_t got; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
    outcome.output.append(buffer, static_cast<size_t>(got));
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  outcome.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  outcome.exited = WIFEXITED(status);
  outcome.status = outcome.exited ? WEXITSTATUS(status) : WTERMSIG(status);
  return outcome;
}

void inFreshProcess(const std::function<void()> &body) {
  const ChildOutcome child = runInChild([&body] {
    body();
    _exit(testing::Test::HasFailure() ? 1 : 0);
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 0) << child.output;
}

} // namespace torvane::test
