// Conversions of numeric arrays beside a plain loop over the same memory, compiled for the machine at hand:
// rounds alternate between the two, and the least of each counts. Prints nanoseconds an element and our
// ratio.
//
//   bench_conversion [rounds [largest count [smallest count]]]
#include "conversion_peers.h"

#include "arrays/conversion.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using Clock = std::chrono::steady_clock;
using torvane::ConversionMethod;

struct Row {
  const char *name;
  mint from, to;
  ConversionMethod method;
  void (*plain)(void *to, const void *from, ptrdiff_t count);
};
const Row kRows[] = {
    {"f64 to i32, Round",
     TORVANE_ELEMENT_REAL64,
     TORVANE_ELEMENT_INTEGER32,
     {1, torvane::kRound, 0},
     roundToWords},
    {"f64 to i32, Coerce",
     TORVANE_ELEMENT_REAL64,
     TORVANE_ELEMENT_INTEGER32,
     {1, torvane::kCoerce, 0},
     roundToWords},
    {"f64 to i32, ClipAndRound",
     TORVANE_ELEMENT_REAL64,
     TORVANE_ELEMENT_INTEGER32,
     {1, torvane::kRound, torvane::kClip},
     clipToWords},
    {"f64 to f32, Coerce",
     TORVANE_ELEMENT_REAL64,
     TORVANE_ELEMENT_REAL32,
     {1, torvane::kCoerce, 0},
     narrowReals},
    {"i32 to u8, ClipAndCoerce",
     TORVANE_ELEMENT_INTEGER32,
     TORVANE_ELEMENT_UNSIGNED_INTEGER8,
     {1, torvane::kCoerce, torvane::kClip},
     clipToBytes},
    {"i32 to u8, Coerce",
     TORVANE_ELEMENT_INTEGER32,
     TORVANE_ELEMENT_UNSIGNED_INTEGER8,
     {1, torvane::kCoerce, 0},
     cutToBytes},
    {"i16 to f64, Coerce",
     TORVANE_ELEMENT_INTEGER16,
     TORVANE_ELEMENT_REAL64,
     {1, torvane::kCoerce, 0},
     widenToReals},
    {"u8 to f32, Scale",
     TORVANE_ELEMENT_UNSIGNED_INTEGER8,
     TORVANE_ELEMENT_REAL32,
     {1, torvane::kScale, 0},
     scaleBytes},
};

void fill(MNumericArray *array) {
  std::mt19937 random(1);
  for (mint i = 0; i < array->elementCount; ++i) {
    const auto draw = static_cast<uint32_t>(random() % 200);
    switch (array->elementType) {
    case TORVANE_ELEMENT_REAL64:
      static_cast<double *>(array->data)[i] = draw;
      break;
    case TORVANE_ELEMENT_INTEGER32:
      static_cast<int32_t *>(array->data)[i] = static_cast<int32_t>(draw);
      break;
    case TORVANE_ELEMENT_INTEGER16:
      static_cast<int16_t *>(array->data)[i] = static_cast<int16_t>(draw);
      break;
    default:
      static_cast<uint8_t *>(array->data)[i] = static_cast<uint8_t>(draw);
    }
  }
}

template <class Call> double nanoseconds(mint repeats, const Call &call) {
  const auto start = Clock::now();
  for (mint k = 0; k < repeats; ++k) call();
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

void measure(const Row &row, mint count, int rounds) {
  MNumericArray *source = Runtime_CreateNumericArray(row.from, 1, &count);
  MNumericArray *result = Runtime_CreateNumericArray(row.to, 1, &count);
  fill(source);
  const mint repeats = std::max(1, 200000 / count);
  double ours = 1e300, plain = 1e300;
  for (int round = 0; round < rounds; ++round) {
    ours = std::min(ours, nanoseconds(repeats, [&] {
                      if (torvane::MNumericArray_convert(&result, source, row.to, &row.method) != 0)
                        std::abort();
                    }));
    plain = std::min(plain, nanoseconds(repeats, [&] { row.plain(result->data, source->data, count); }));
  }
  std::printf("%-26s %9d %8.3f %8.3f %6.2f\n", row.name, count, ours / count, plain / count, ours / plain);
  std::fflush(stdout);
  torvane::MNumericArray_delete(source);
  torvane::MNumericArray_delete(result);
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 60;
  const mint largest = argc > 2 ? std::atoi(argv[2]) : 10000000,
             smallest = argc > 3 ? std::atoi(argv[3]) : 1000;
  InitializeRuntimeLibrary();
  std::printf("%-26s %9s %8s %8s %6s\n", "ns an element", "count", "ours", "plain", "ratio");
  for (const Row &row : kRows)
    for (mint count = smallest; count <= largest; count *= 10) measure(row, count, rounds);
}
