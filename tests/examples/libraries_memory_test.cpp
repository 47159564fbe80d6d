// The compiled libraries give back every byte that they took from the runtime, also where they refuse their
// input. What the record holds for them (bags) goes with its reset.
#include "compiled_libraries.h"

#include "runtime/memory.h"

#include <torvane/failure.h>

#include <fstream>

namespace {

const std::string data = TORVANE_EXAMPLE_DATA;

class Library : public LibraryTest {
protected:
  mint runQuietly(LibraryEntry entry, const std::vector<std::string> &words) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const mint status = call(entry, record, words);
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    record->runtime->resetState(record);
    return status;
  }

  // The first run leaves what the thread keeps, such as a generator.
  void expectNothingKept(LibraryEntry entry, const std::vector<std::string> &words, mint status,
                         uint32_t allowed = 0) {
    EXPECT_EQ(runQuietly(entry, words), status);
    const uint32_t before = torvane::usedBytesOfThisThread();
    EXPECT_EQ(runQuietly(entry, words), status);
    EXPECT_EQ(torvane::usedBytesOfThisThread(), before + allowed);
  }

  // A random block leaves a cell behind when it ends, which is the runtime's custom and not a library's.
  uint32_t bytesKeptByARandomBlock() {
    const uint32_t before = torvane::usedBytesOfThisThread();
    for (const char *name : {"BlockRandomBegin", "BlockRandomEnd"})
      record->runtime->lookupRuntimeFunction(name)(record, 0, nullptr, nullptr);
    return torvane::usedBytesOfThisThread() - before;
  }

  std::string file(const std::string &text) {
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
};

TEST_F(Library, PagerankKeepsNothing) {
  expectNothingKept(pagerankEntry, {data + "/documents.links"}, 0);
  expectNothingKept(pagerankEntry, {data + "/documents.links", "0.5", "2"}, 0);
  expectNothingKept(pagerankEntry, {file("a b\nc\n")}, 4);
  expectNothingKept(pagerankEntry, {file("")}, 4);
  expectNothingKept(pagerankEntry, {}, 12);
}

TEST_F(Library, ClusterKeepsNothing) {
  expectNothingKept(clusterEntry, {data + "/iris.csv", "3"}, 0);
  expectNothingKept(clusterEntry, {data + "/iris.csv", "3", path}, 0);
  expectNothingKept(clusterEntry, {file("a,b\n1,2\n1,2\n"), "2"}, 4);
  expectNothingKept(clusterEntry, {file("a,b\n1,2\n1\n"), "2"}, 4);
  expectNothingKept(clusterEntry, {file("a\n1e200\n-1e200\n"), "2"}, 1001);
}

TEST_F(Library, BallKeepsNothing) {
  expectNothingKept(ballEntry, {"3", "10000"}, 0, bytesKeptByARandomBlock());
  expectNothingKept(ballEntry, {"3", "10"}, 4);
}

TEST_F(Library, BallKeepsNothingWhereItRaises) {
  expectNothingKept(ballEntry, {"31", "10000"}, 0);
  EXPECT_EQ(setExceptionActive(0), TORVANE_ERROR_INTEGER_OVERFLOW);
}

TEST_F(Library, ImageKeepsNothing) {
  const std::string rings = data + "/rings.ppm";
  expectNothingKept(imageEntry, {rings, path, "left", "gray", "blur", "levels", "5", "mirror", "gain", "2"},
                    0);
  expectNothingKept(imageEntry, {rings, path, "deep", "negative"}, 0);
  expectNothingKept(imageEntry, {rings, "no/such/folder/file"}, 4);
  expectNothingKept(imageEntry, {file("P5 2 2 255 ab"), path}, 4);
}

} // namespace
