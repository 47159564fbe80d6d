// What this machine can do at best: what the limits of all other rows are made of. Nanoseconds for a byte
// that is read, written, or copied (where both sides count), and for a product or sum of doubles.
#include "limits.h"
#include "table.h"

#include <string>

namespace {

std::string sizeOf(size_t bytes) {
  return bytes < 1 << 20 ? std::to_string(bytes >> 10) + " KiB" : std::to_string(bytes >> 20) + " MiB";
}

void printRate(const std::string &name, double rate) {
  if (bench::isWanted(name)) bench::print({name}, {{"ours", 1 / rate}});
}

} // namespace

int main(int argc, char **argv) {
  bench::start("machine", "ns a byte or operation", argc, argv);
  for (const size_t bytes : {size_t{1} << 14, size_t{1} << 18, size_t{1} << 22, size_t{1} << 28}) {
    const auto size = static_cast<double>(bytes);
    printRate("read " + sizeOf(bytes), bench::readRate(size));
    printRate("written " + sizeOf(bytes), bench::writeRate(size));
    printRate("copied " + sizeOf(bytes), bench::copyRate(size));
  }
  printRate("operation", bench::operationRate());
}
