// generate --write ROOT: writes every generated file below ROOT.
// generate --check ROOT: exits 1, naming each file that is missing or not current.
#include "files.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using namespace generate;

Files generateAll() {
  const std::vector<ExportGroup> entries = typedEntries(), routines = vectorRoutines();
  std::vector<Signature> exports;
  for (const auto *groups : {&entries, &routines})
    for (const ExportGroup &group : *groups)
      for (const DerivedExport &one : group.exports) exports.push_back(one.signature);
  for (const Signature &one : handWrittenExports()) exports.push_back(one);
  Files files;
  writeScalarFiles(files, entries);
  writeRoutineFiles(files, routines);
  writeOperatorTables(files);
  writeRegistryPage(files);
  writeOperatorsPage(files);
  writeExportFiles(files, exports);
  return files;
}

std::string contentOf(const std::filesystem::path &path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool writeFile(const std::filesystem::path &path, const std::string &text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream stream(path, std::ios::binary);
  return static_cast<bool>(stream << text);
}

} // namespace

int main(int argc, char **argv) {
  const std::string mode = argc == 3 ? argv[1] : "";
  if (mode != "--write" && mode != "--check") {
    std::fputs("usage: generate --write|--check ROOT\n", stderr);
    return 2;
  }
  int failures = 0;
  for (const auto &[name, text] : generateAll()) {
    const std::filesystem::path path = std::filesystem::path(argv[2]) / name;
    if (contentOf(path) == text) continue;
    if (mode == "--write" && writeFile(path, text)) {
      std::printf("wrote %s\n", name.c_str());
    } else {
      std::fprintf(stderr, mode == "--write" ? "cannot write %s\n" : "not current: %s\n", name.c_str());
      ++failures;
    }
  }
  return failures == 0 ? 0 : 1;
}
