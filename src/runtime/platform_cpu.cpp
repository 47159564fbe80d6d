// Linux describes each online processor in a directory of its own, with the list of those that share its core
// and the lists of those that share each of its caches. A core or a cache is counted at the first processor
// of its list, so that each counts once. Kernels that hide the directory still tell the number of processors.
#include "platform_cpu.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace torvane {

namespace {

constexpr int kPathBytes = 512;
constexpr int kTextBytes = 4096;

struct FileText {
  char text[kTextBytes];

  bool read(const char *path) {
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    const ssize_t bytes = ::read(file, text, sizeof text - 1);
    close(file);
    text[bytes > 0 ? bytes : 0] = '\0';
    return bytes > 0;
  }
};

// The file below the processor's directory, or below that of one of its caches.
bool readOf(const char *directory, long processor, const char *name, FileText *file) {
  char path[kPathBytes];
  if (snprintf(path, sizeof path, "%s/cpu%ld/%s", directory, processor, name) >= kPathBytes) return false;
  return file->read(path);
}

bool readOfCache(const char *directory, long processor, int cache, const char *name, FileText *file) {
  char below[64];
  snprintf(below, sizeof below, "cache/index%d/%s", cache, name);
  return readOf(directory, processor, below, file);
}

// Lists are numbers and ranges in ascending order: 0-3,8.
long firstOf(const FileText &list) { return strtol(list.text, nullptr, 10); }

bool leadsItsCore(const char *directory, long processor) {
  FileText sharing;
  if (!readOf(directory, processor, "topology/core_cpus_list", &sharing) &&
      !readOf(directory, processor, "topology/thread_siblings_list", &sharing))
    return true;
  return firstOf(sharing) == processor;
}

// Sizes are written as 32K or 8M.
uint64_t bytesOf(const FileText &size) {
  char *unit;
  const uint64_t number = strtoull(size.text, &unit, 10);
  return *unit == 'K' ? number << 10 : *unit == 'M' ? number << 20 : number;
}

void addCaches(const char *directory, long processor, ProcessorInformation *machine) {
  FileText level, sharing, size;
  for (int cache = 0; readOfCache(directory, processor, cache, "level", &level); ++cache) {
    const long number = firstOf(level);
    if (number < 1 || number > kCacheLevels) continue;
    if (readOfCache(directory, processor, cache, "shared_cpu_list", &sharing) &&
        firstOf(sharing) != processor)
      continue;
    if (readOfCache(directory, processor, cache, "size", &size))
      machine->cacheBytes[number - 1] += bytesOf(size);
  }
}

void addProcessor(const char *directory, long processor, ProcessorInformation *machine) {
  ++machine->logicalProcessorCount;
  if (leadsItsCore(directory, processor)) ++machine->coreCount;
  addCaches(directory, processor, machine);
}

bool countOnlineOnly(ProcessorInformation *machine) {
  const long online = sysconf(_SC_NPROCESSORS_ONLN);
  if (online < 1) return false;
  machine->coreCount = machine->logicalProcessorCount = static_cast<mint>(online);
  return true;
}

} // namespace

bool readProcessorDirectory(const char *directory, ProcessorInformation *machine) {
  *machine = {};
  char path[kPathBytes];
  FileText online;
  if (snprintf(path, sizeof path, "%s/online", directory) >= kPathBytes || !online.read(path)) return false;
  for (char *at = online.text; *at >= '0' && *at <= '9';) {
    const long first = strtol(at, &at, 10);
    const long last = *at == '-' ? strtol(at + 1, &at, 10) : first;
    for (long processor = first; processor <= last; ++processor) addProcessor(directory, processor, machine);
    if (*at == ',') ++at;
  }
  return machine->coreCount > 0;
}

bool readProcessorInformation(ProcessorInformation *machine) {
  return readProcessorDirectory("/sys/devices/system/cpu", machine) || countOnlineOnly(machine);
}

} // namespace torvane
