// accuracy FILE: measures the functions of reals against MPFR and writes the page of their errors.
#include "scalar/real_accuracy.h"

#include <cstdio>

int main(int count, char **arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: accuracy FILE\n");
    return 2;
  }
  const std::string page = torvane::test::accuracyPage(torvane::test::measureRealFunctions(20000));
  std::FILE *file = std::fopen(arguments[1], "w");
  const bool written = file != nullptr && std::fputs(page.c_str(), file) >= 0;
  const bool closed = file != nullptr && std::fclose(file) == 0;
  if (!written || !closed) std::perror(arguments[1]);
  return written && closed ? 0 : 1;
}
