// Writes the table of the ParallelMersenneTwister's streams to standard output: src/random/stream_table.cpp.
//
// Stream numbers go from 0 to 1023 in one run of the searches, a few minutes of one core. Five rows are then
// replaced by those that the streams have always had; their recurrences are not of the longest period, and
// programs that use them count on their sequences.
#include "mask_search.h"
#include "twist_search.h"

#include <cstdio>
#include <vector>

namespace {

struct Row {
  uint32_t twist, maskB, maskC;
};

constexpr uint32_t kStreams = 1024;

constexpr Row kKept[] = {
    {0x91240000, 0xE4ECED00, 0xDFD08000}, {0x94560001, 0x76977780, 0xEF648000},
    {0xC20F0002, 0xCEB5AF80, 0xBDED0000}, {0x9EF90003, 0xF3356F80, 0xDEED8000},
    {0xE2E503FF, 0xECF4ED80, 0xDFD48000},
};

std::vector<Row> searchedRows() {
  streams::TwistSearch search;
  std::vector<Row> rows;
  for (uint32_t number = 0; number < kStreams; ++number) {
    const uint32_t twist = search.find(number);
    const streams::Masks masks = streams::findMasks(twist);
    rows.push_back({twist, masks.b, masks.c});
  }
  return rows;
}

void printColumn(const char *name, const std::vector<Row> &rows, uint32_t Row::*column) {
  std::printf("\nconst uint32_t %s[kStreamCount] = {\n", name);
  for (size_t i = 0; i < rows.size(); ++i)
    std::printf("%s0x%08X,%s", i % 8 == 0 ? "    " : " ", rows[i].*column, i % 8 == 7 ? "\n" : "");
  std::printf("};\n");
}

} // namespace

int main() {
  std::vector<Row> rows = searchedRows();
  for (const Row &kept : kKept) rows[kept.twist & 0xFFFF] = kept;
  std::printf("// Written by tools/streams, which says how the rows were found.\n"
              "#include \"stream_table.h\"\n\nnamespace torvane {\n\n// clang-format off");
  printColumn("streamTwists", rows, &Row::twist);
  printColumn("streamMasksB", rows, &Row::maskB);
  printColumn("streamMasksC", rows, &Row::maskC);
  std::printf("// clang-format on\n\n} // namespace torvane\n");
}
