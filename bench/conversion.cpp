// Conversions of numeric arrays beside a plain loop over the same memory, compiled for the machine at hand.
#include "conversion_peers.h"
#include "table.h"

#include "arrays/conversion.h"

#include <torvane/torvane.h>

#include <cstdlib>
#include <random>

namespace {

using torvane::ConversionMethod;

struct Conversion {
  const char *name;
  mint from, to;
  ConversionMethod method;
  void (*plain)(void *to, const void *from, ptrdiff_t count);
};
const Conversion kConversions[] = {
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

void measure(const Conversion &row, mint count) {
  MNumericArray *source = Runtime_CreateNumericArray(row.from, 1, &count);
  MNumericArray *result = Runtime_CreateNumericArray(row.to, 1, &count);
  fill(source);
  const double read = torvane::MNumericArray_byteCount(source),
               written = torvane::MNumericArray_byteCount(result);
  bench::compare({row.name, double(count), {read, written}, 1.1},
                 {{"ours", bench::repeated([&] {
                     if (torvane::MNumericArray_convert(&result, source, row.to, &row.method) != 0)
                       std::abort();
                   })},
                  {"plain", bench::repeated([&] { row.plain(result->data, source->data, count); })}});
  torvane::MNumericArray_delete(source);
  torvane::MNumericArray_delete(result);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("conversion", "ns an element", argc, argv);
  InitializeRuntimeLibrary();
  for (const Conversion &row : kConversions)
    for (mint count = 1000; count <= 10000000; count *= 10) measure(row, count);
}
