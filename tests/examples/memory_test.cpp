// The examples give back every byte that they took from the library, also where they refuse their input.
// standardise is compiled in, under another name than main.
#include "runtime/memory.h"

#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include <unistd.h>

extern "C" int standardiseMain(int argc, char **argv);

namespace {

int standardise(std::string path) {
  std::string name = "standardise";
  char *arguments[] = {name.data(), path.data(), nullptr};
  return standardiseMain(2, arguments);
}

uint32_t bytesKeptBy(const std::string &path, int wantedStatus) {
  InitializeTorvaneRTL(nullptr, nullptr, nullptr); // what start-up keeps is not the example's
  const uint32_t before = torvane::usedBytesOfThisThread();
  EXPECT_EQ(standardise(path), wantedStatus);
  return torvane::usedBytesOfThisThread() - before;
}

TEST(Standardise, KeepsNothingOfATableItReported) { EXPECT_EQ(bytesKeptBy(TORVANE_EXAMPLE_TABLE, 0), 0u); }

TEST(Standardise, KeepsNothingOfATableItRefused) {
  const std::string path = testing::TempDir() + "torvane_examples_" + std::to_string(getpid()) + ".csv";
  for (const char *text :
       {"", "a\nx\n", "a,b\n1,2\n3\n", "a,b\n1,2\n3,x\n", "a,b\n1,5\n2,5\n", "a\n1e308\n1e308\n"}) {
    std::ofstream(path) << text;
    EXPECT_EQ(bytesKeptBy(path, 1), 0u) << text;
  }
  std::remove(path.c_str());
}

} // namespace
