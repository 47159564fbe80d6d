// The examples give back every byte that they took from the library, also where they refuse their input.
// They are compiled in, under other names than main.
#include "runtime/memory.h"

#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include <unistd.h>

extern "C" int standardiseMain(int argc, char **argv);
extern "C" int principalComponentsMain(int argc, char **argv);

namespace {

using Main = int (*)(int argc, char **argv);

int run(Main program, std::string path) {
  std::string name = "program";
  char *arguments[] = {name.data(), path.data(), nullptr};
  return program(2, arguments);
}

uint32_t bytesKeptBy(Main program, const std::string &path, int wantedStatus) {
  InitializeTorvaneRTL(nullptr, nullptr, nullptr); // what start-up keeps is not the example's
  const uint32_t before = torvane::usedBytesOfThisThread();
  EXPECT_EQ(run(program, path), wantedStatus);
  return torvane::usedBytesOfThisThread() - before;
}

void expectNothingKept(Main program, const std::string &text, int wantedStatus) {
  const std::string path = testing::TempDir() + "torvane_examples_" + std::to_string(getpid()) + ".csv";
  std::ofstream(path) << text;
  EXPECT_EQ(bytesKeptBy(program, path, wantedStatus), 0u) << text;
  std::remove(path.c_str());
}

TEST(Standardise, KeepsNothingOfATableItReported) {
  EXPECT_EQ(bytesKeptBy(standardiseMain, TORVANE_EXAMPLE_TABLE, 0), 0u);
}

TEST(Standardise, KeepsNothingOfATableItRefused) {
  for (const char *text :
       {"", "a\nx\n", "a,b\n1,2\n3\n", "a,b\n1,2\n3,x\n", "a,b\n1,5\n2,5\n", "a\n1e308\n1e308\n"})
    expectNothingKept(standardiseMain, text, 1);
}

TEST(PrincipalComponents, KeepsNothingOfATableItReported) {
  EXPECT_EQ(bytesKeptBy(principalComponentsMain, TORVANE_EXAMPLE_TABLE, 0), 0u);
  expectNothingKept(principalComponentsMain, "a,b,c\n1,2,0\n2,4,0\n4,8,0\n", 0);
}

TEST(PrincipalComponents, KeepsNothingOfATableItRefused) {
  for (const char *text :
       {"", "a\nx\n", "a\n1\n", "a,b\n1,5\n1,5\n", "a\n1e308\n1e308\n", "a,b\n1e200,1\n2,4\n"})
    expectNothingKept(principalComponentsMain, text, 1);
}

} // namespace
