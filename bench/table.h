// The one table that all benchmarks print: a row is ours beside its peers, all timed in this process. Rounds
// alternate between the candidates and the least time of each counts, since neighbours on the machine only
// ever add. A row says what it cannot do without (bytes, operations); from that and from what this machine
// was measured to do comes its limit (limits.h). Where somebody asked for a ratio, the row carries it as its
// aim.
//
//   bench_ROOM [--rounds N] [--only TEXT] [--tsv]
//
// --only keeps the rows whose name contains the text; --tsv is for bench/run, one line a row.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Calls so many times.
using Run = std::function<void(int repeats)>;

// The loop stands inside, so that a call through the wrapper is not timed with every call.
template <class Call> Run repeated(Call call) {
  return [call](int repeats) mutable {
    for (int i = 0; i < repeats; ++i) {
      call();
      asm volatile("" : : : "memory");
    }
  };
}

// Without a run: the peer is not there. What `prepare` does for so many calls is not timed.
struct Candidate {
  const char *name;
  Run run, prepare = {};
};

struct Time {
  const char *name;
  double nanoseconds;
};

// Of one call: bytes it must read and write once each, and products and sums of doubles.
struct Work {
  double bytesRead = 0, bytesWritten = 0, operations = 0;
};

struct Row {
  std::string name;
  double count = 1; // elements, rows, bytes ...; what is printed is nanoseconds for one of them
  Work work = {};
  double aim = 0;            // our ratio to the best peer that was asked for; 0: none was
  double aimNanoseconds = 0; // for one of them, where that was asked for and no ratio
};

// Reads the command line, prints the heading. Ends the program where it makes no sense of a word.
void start(const char *room, const char *unit, int argc, char **argv, int rounds = 25);

bool isWanted(const std::string &name);

// The number of rounds: for a benchmark with its own way of timing.
int rounds();

// Ours is the first candidate. A round is about 50 us a candidate, or one call where that takes longer; a row
// ends after a second, but not before five rounds, of which the slowest rows get two.
void compare(const Row &row, const std::vector<Candidate> &candidates);

// A row timed elsewhere, a call each; ours is the first.
void print(const Row &row, const std::vector<Time> &times);

} // namespace bench
