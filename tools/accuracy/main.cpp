// accuracy FILE: measures the functions of reals against MPFR, the complex operators against MPC, and writes
// the page of their errors.
#include "scalar/complex_accuracy.h"
#include "scalar/real_accuracy.h"

#include <cstdio>

using namespace torvane::test;

int main(int count, char **arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: accuracy FILE\n");
    return 2;
  }
  constexpr int kStepsOfReals = 20000, kComplexPoints = 2000;
  const std::string page = accuracyPage(measureRealFunctions(kStepsOfReals)) +
                           complexAccuracySection(measureComplexOperators(kComplexPoints), kComplexPoints);
  std::FILE *file = std::fopen(arguments[1], "w");
  const bool written = file != nullptr && std::fputs(page.c_str(), file) >= 0;
  const bool closed = file != nullptr && std::fclose(file) == 0;
  if (!written || !closed) std::perror(arguments[1]);
  return written && closed ? 0 : 1;
}
