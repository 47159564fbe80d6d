// The entries of the example's compiled libraries, which are compiled into the tests under names of their
// own, and one call of one of them.
#pragma once

#include <torvane/library_data.h>

#include <string>
#include <vector>

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
