// Runs a harness over the files of folders, without libFuzzer: what fuzzing has found stays a test.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count);

namespace {

std::vector<std::filesystem::path> filesOf(const char *folder) {
  std::vector<std::filesystem::path> files;
  for (const auto &entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

// The name comes first: a broken property ends the process.
void replay(const std::filesystem::path &file) {
  std::printf("%s\n", file.c_str());
  std::fflush(stdout);
  std::ifstream stream(file, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.data()), bytes.size());
}

} // namespace

int main(int argumentCount, char **folders) {
  size_t files = 0;
  for (int i = 1; i < argumentCount; ++i)
    for (const auto &file : filesOf(folders[i])) {
      replay(file);
      ++files;
    }
  return files > 0 ? 0 : 1;
}
