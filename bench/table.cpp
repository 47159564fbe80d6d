#include "table.h"

#include "limits.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

struct Settings {
  const char *room = "", *unit = "", *wanted = "";
  int rounds = 0;
  bool isForMachines = false;
} settings;

double nanoseconds(const Candidate &candidate, int repeats) {
  if (candidate.prepare) candidate.prepare(repeats);
  const auto start = Clock::now();
  candidate.run(repeats);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

// The first call finds everything cold and says little, unless it takes long. Of short calls one alone would
// tell how long the clock takes to read.
int repeatsFor(const Candidate &candidate) {
  if (nanoseconds(candidate, 1) > 5e6) return 1;
  const double once = nanoseconds(candidate, 1), each = once > 5e3 ? once : nanoseconds(candidate, 32);
  return std::clamp(static_cast<int>(50e3 / std::max(each, 1.0)), 1, 20000);
}

bool isEnough(int rounds, Clock::duration elapsed) {
  if (rounds >= settings.rounds) return true;
  return (rounds >= 5 && elapsed > std::chrono::seconds(1)) ||
         (rounds >= 2 && elapsed > std::chrono::seconds(4));
}

std::vector<Time> leastTimes(const std::vector<Candidate> &candidates) {
  std::vector<Time> least;
  std::vector<const Candidate *> present;
  std::vector<int> repeats;
  for (const Candidate &candidate : candidates) {
    if (!candidate.run) continue;
    present.push_back(&candidate);
    least.push_back({candidate.name, 1e300});
    repeats.push_back(repeatsFor(candidate));
  }
  const auto start = Clock::now();
  for (int round = 0; !isEnough(round, Clock::now() - start); ++round)
    for (size_t k = 0; k < present.size(); ++k)
      least[k].nanoseconds = std::min(least[k].nanoseconds, nanoseconds(*present[k], repeats[k]));
  return least;
}

// As much is copied as is both read and written; the rest is read or written alone.
double memoryLimit(const Work &work) {
  const double read = work.bytesRead, written = work.bytesWritten, total = read + written;
  const double copied = 2 * std::min(read, written);
  double time = copied == 0 ? 0 : copied / copyRate(total);
  if (read > written) time += (read - written) / readRate(total);
  if (written > read) time += (written - read) / writeRate(total);
  return time;
}

// Nanoseconds below which no call of so much work can come here; 0 where none is stated.
double limitOf(const Work &work) {
  const double arithmetic = work.operations == 0 ? 0 : work.operations / operationRate();
  return std::max(memoryLimit(work), arithmetic);
}

struct Cells {
  double ours, best = 0, limit;
  const char *peer = "-";
};

Cells cellsOf(const Row &row, const std::vector<Time> &times) {
  Cells cells = {times[0].nanoseconds, 0, limitOf(row.work)};
  for (size_t k = 1; k < times.size(); ++k)
    if (cells.best == 0 || times[k].nanoseconds < cells.best)
      cells.best = times[k].nanoseconds, cells.peer = times[k].name;
  return cells;
}

std::string formatted(const char *format, double value) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

// A dash where there is nothing to divide by.
std::string ratio(double part, double whole, const char *format) {
  return whole > 0 ? formatted(format, part / whole) : "-";
}

// A ratio to the best peer, or nanoseconds for one.
std::string aimOf(const Row &row) {
  if (row.aimNanoseconds > 0) return formatted("%gns", row.aimNanoseconds);
  return row.aim > 0 ? formatted("%.2f", row.aim) : "-";
}

// run reads these columns: room, row, unit, count, ours, the best peer's name, ratio to it, ratio to the
// limit, aim, the peers.
void printForMachines(const Row &row, const Cells &cells, const std::vector<Time> &times) {
  std::printf("%s\t%s\t%s\t%.0f\t%.4g\t%s\t%s\t%s\t%s\t", settings.room, row.name.c_str(), settings.unit,
              row.count, cells.ours / row.count, cells.peer, ratio(cells.ours, cells.best, "%.4g").c_str(),
              ratio(cells.ours, cells.limit, "%.4g").c_str(), aimOf(row).c_str());
  for (size_t k = 1; k < times.size(); ++k)
    std::printf("%s%s=%.4g", k > 1 ? ";" : "", times[k].name, times[k].nanoseconds / row.count);
  std::printf("\n");
}

void printForPeople(const Row &row, const Cells &cells, const std::vector<Time> &times) {
  std::printf("%-44s %10.0f %10.4g %7s %7s %6s", row.name.c_str(), row.count, cells.ours / row.count,
              ratio(cells.ours, cells.best, "%.2f").c_str(), ratio(cells.ours, cells.limit, "%.2f").c_str(),
              aimOf(row).c_str());
  for (size_t k = 1; k < times.size(); ++k)
    std::printf("  %s %.4g", times[k].name, times[k].nanoseconds / row.count);
  std::printf("\n");
}

[[noreturn]] void refuse(const char *program, const char *word) {
  std::fprintf(stderr, "%s: \"%s\"?\nusage: %s [--rounds N] [--only TEXT] [--tsv]\n", program, word, program);
  std::exit(2);
}

} // namespace

void start(const char *room, const char *unit, int argc, char **argv, int rounds) {
  settings = {room, unit, "", rounds, false};
  for (int k = 1; k < argc; ++k) {
    const bool hasValue = k + 1 < argc;
    if (std::strcmp(argv[k], "--tsv") == 0)
      settings.isForMachines = true;
    else if (std::strcmp(argv[k], "--only") == 0 && hasValue)
      settings.wanted = argv[++k];
    else if (std::strcmp(argv[k], "--rounds") == 0 && hasValue && std::atoi(argv[k + 1]) > 0)
      settings.rounds = std::atoi(argv[++k]);
    else
      refuse(argv[0], argv[k]);
  }
  if (!settings.isForMachines)
    std::printf("%-44s %10s %10s %7s %7s %6s  peers\n", unit, "count", "ours", "/ best", "/ limit", "aim");
}

bool isWanted(const std::string &name) { return name.find(settings.wanted) != std::string::npos; }
int rounds() { return settings.rounds; }

void print(const Row &row, const std::vector<Time> &times) {
  (settings.isForMachines ? printForMachines : printForPeople)(row, cellsOf(row, times), times);
  std::fflush(stdout);
}

void compare(const Row &row, const std::vector<Candidate> &candidates) {
  if (isWanted(row.name)) print(row, leastTimes(candidates));
}

} // namespace bench
