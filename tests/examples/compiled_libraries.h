// The entries of the example's compiled libraries, which are compiled into the tests under names of their
// own, one call of one of them, and the fixture of such calls.
#pragma once

#include <torvane/library_data.h>
#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include <unistd.h>

extern "C" {
mint ballEntry(TorvaneLibraryData *record, int argc, char **argv);
mint clusterEntry(TorvaneLibraryData *record, int argc, char **argv);
mint imageEntry(TorvaneLibraryData *record, int argc, char **argv);
mint pagerankEntry(TorvaneLibraryData *record, int argc, char **argv);
}

using LibraryEntry = mint (*)(TorvaneLibraryData *record, int argc, char **argv);

inline mint call(LibraryEntry entry, TorvaneLibraryData *record, std::vector<std::string> words) {
  std::vector<char *> argv;
  for (std::string &word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  return entry(record, static_cast<int>(words.size()), argv.data());
}

// A library's record, and the path of a file for it that goes with the test.
class LibraryTest : public testing::Test {
protected:
  const std::string path = testing::TempDir() + "torvane_library_" + std::to_string(getpid());
  TorvaneLibraryData *record = nullptr;

  void SetUp() override {
    InitializeTorvaneRTL(nullptr, nullptr, nullptr);
    record = TorvaneLibraryData_new(5);
  }
  void TearDown() override {
    TorvaneLibraryData_free(record);
    std::remove(path.c_str());
  }
};
