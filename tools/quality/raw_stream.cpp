// raw_stream METHOD [SEED [STREAM]]: writes a generator's words to standard output, in this machine's order
// of bytes, until nobody reads them: for test sets that read a raw stream, such as
//
//     raw_stream MersenneTwister 1 | dieharder -g 200 -a
//
// STREAM is that of a ParallelMersenneTwister; "all" takes one word of each of its 1024 streams in turn,
// every stream with the same seed.
#include <torvane/random.h>
#include <torvane/startup.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

std::vector<RandomGenerator *> generatorsOf(const char *method, const std::string &streams) {
  if (std::strcmp(method, "ExtendedCA") == 0) return {CA5BufferState_alloc(nullptr)};
  if (std::strcmp(method, "MersenneTwister") == 0) return {MersenneTwister_alloc(nullptr)};
  if (std::strcmp(method, "ParallelMersenneTwister") != 0) return {};
  std::vector<RandomGenerator *> generators;
  const mint first = streams == "all" ? 0 : std::atoi(streams.c_str());
  const mint last = streams == "all" ? 1023 : first;
  for (mint stream = first; stream <= last; ++stream)
    if (RandomGenerator *generator = PMT32_alloc(&stream)) generators.push_back(generator);
  return generators;
}

void writeWords(const std::vector<RandomGenerator *> &generators) {
  std::vector<uint32_t> block(generators.size() * (1 + 16384 / generators.size()));
  do {
    for (size_t i = 0; i < block.size(); ++i) {
      RandomGenerator *generator = generators[i % generators.size()];
      block[i] = generator->functions->getBits(32, generator);
    }
  } while (std::fwrite(block.data(), sizeof block[0], block.size(), stdout) == block.size());
}

} // namespace

int main(int count, char **arguments) {
  const uint32_t seed = count > 2 ? static_cast<uint32_t>(std::strtoul(arguments[2], nullptr, 0)) : 1;
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  const std::vector<RandomGenerator *> generators =
      generatorsOf(count > 1 ? arguments[1] : "", count > 3 ? arguments[3] : "0");
  if (generators.empty()) {
    std::fputs("raw_stream ExtendedCA|MersenneTwister|ParallelMersenneTwister [SEED [STREAM|all]]\n", stderr);
    return 2;
  }
  for (RandomGenerator *generator : generators) generator->seed(generator, &seed, 1);
  writeWords(generators);
}
