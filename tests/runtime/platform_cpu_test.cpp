// Counting processors, cores and caches from directories made here, and from this machine.
#include "runtime/platform_cpu.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

using namespace torvane;
namespace fs = std::filesystem;

namespace {

class ProcessorDirectory : public testing::Test {
protected:
  ProcessorDirectory() : root(fs::path(testing::TempDir()) / ("processors-" + std::to_string(getpid()))) {
    fs::remove_all(root);
    fs::create_directories(root);
  }
  ~ProcessorDirectory() override { fs::remove_all(root); }

  void write(const std::string &name, const std::string &text) {
    fs::create_directories((root / name).parent_path());
    std::ofstream(root / name) << text << '\n';
  }
  void writeCache(int processor, int index, int level, const char *size, const char *sharing) {
    const std::string cache =
        "cpu" + std::to_string(processor) + "/cache/index" + std::to_string(index) + "/";
    write(cache + "level", std::to_string(level));
    write(cache + "size", size);
    write(cache + "shared_cpu_list", sharing);
  }
  bool read() { return readProcessorDirectory(root.c_str(), &machine); }

  fs::path root;
  ProcessorInformation machine;
};

TEST_F(ProcessorDirectory, CountsACoreOncePerListOfSiblings) {
  write("online", "0-3,6-7");
  for (auto [cpu, siblings] :
       {std::pair{0, "0,2"}, {1, "1,3"}, {2, "0,2"}, {3, "1,3"}, {6, "6-7"}, {7, "6-7"}})
    write("cpu" + std::to_string(cpu) + "/topology/core_cpus_list", siblings);
  ASSERT_TRUE(read());
  EXPECT_EQ(machine.logicalProcessorCount, 6);
  EXPECT_EQ(machine.coreCount, 3);
}

TEST_F(ProcessorDirectory, TakesTheOlderNameOfTheSiblings) {
  write("online", "0-1");
  write("cpu0/topology/thread_siblings_list", "0-1");
  write("cpu1/topology/thread_siblings_list", "0-1");
  ASSERT_TRUE(read());
  EXPECT_EQ(machine.coreCount, 1);
  EXPECT_EQ(machine.logicalProcessorCount, 2);
}

TEST_F(ProcessorDirectory, ProcessorsWithoutTopologyAreCoresOfTheirOwn) {
  write("online", "0,5,17-18");
  ASSERT_TRUE(read());
  EXPECT_EQ(machine.coreCount, 4);
  EXPECT_EQ(machine.logicalProcessorCount, 4);
}

TEST_F(ProcessorDirectory, AddsUpEachCacheOnceByItsLevel) {
  write("online", "0-1");
  for (int cpu : {0, 1}) {
    const std::string own = std::to_string(cpu);
    write("cpu" + own + "/topology/core_cpus_list", own);
    writeCache(cpu, 0, 1, "32K", own.c_str());
    writeCache(cpu, 1, 1, "16K", own.c_str());
    writeCache(cpu, 2, 2, "2M", own.c_str());
    writeCache(cpu, 3, 3, "8192K", "0-1");
    writeCache(cpu, 4, 5, "1M", own.c_str());
  }
  ASSERT_TRUE(read());
  EXPECT_EQ(machine.cacheBytes[0], 2 * 48u * 1024);
  EXPECT_EQ(machine.cacheBytes[1], 4u << 20);
  EXPECT_EQ(machine.cacheBytes[2], 8u << 20);
  EXPECT_EQ(machine.cacheBytes[3], 0u);
}

TEST_F(ProcessorDirectory, MissingOrEmptyListOfProcessorsIsARefusal) {
  EXPECT_FALSE(read());
  EXPECT_EQ(machine.coreCount, 0);
  write("online", "");
  EXPECT_FALSE(read());
}

TEST(ProcessorInformation, OfThisMachineAgreesWithTheSystemsOwnCount) {
  ProcessorInformation machine;
  ASSERT_TRUE(readProcessorInformation(&machine));
  EXPECT_EQ(machine.logicalProcessorCount, sysconf(_SC_NPROCESSORS_ONLN));
  EXPECT_GE(machine.coreCount, 1);
  EXPECT_LE(machine.coreCount, machine.logicalProcessorCount);
  RecordProperty("cores", machine.coreCount);
}

} // namespace
