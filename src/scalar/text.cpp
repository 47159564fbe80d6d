// Scalars as text. Integers write their digits from the low end into a buffer of the stack; reals are the C
// library's "%f", measured by a counting pass first. A string is one block of the library's own heap.
#include <torvane/text.h>

#include "../runtime/memory.h"
#include "half.h"
#include "magnitude.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace torvane {

namespace {

char *newText(uint32_t length) { return static_cast<char *>(allocate(length + 1, 0, kFatal)); }

// The magnitude is unsigned, so that the most negative value has one.
template <class T> char *integerText(T value) {
  constexpr int kLongest = 20; // digits of 2^64 - 1; 19 and a sign of the least signed one
  char buffer[kLongest + 1];
  char *at = buffer + kLongest;
  *at = '\0';
  UnsignedOf<T> rest = magnitudeBits(value);
  do *--at = static_cast<char>('0' + rest % 10);
  while ((rest = static_cast<UnsignedOf<T>>(rest / 10)) != 0);
  if (value < T(0)) *--at = '-';
  const auto length = static_cast<uint32_t>(buffer + kLongest - at);
  return static_cast<char *>(std::memcpy(newText(length), at, length + 1));
}

// A negative length is the C library out of memory.
[[gnu::format(printf, 1, 2)]] char *formattedText(const char *format, ...) {
  va_list values, again;
  va_start(values, format);
  va_copy(again, values);
  const int length = std::vsnprintf(nullptr, 0, format, values);
  if (length < 0) fatalOutOfMemory();
  char *text = newText(static_cast<uint32_t>(length));
  std::vsnprintf(text, static_cast<size_t>(length) + 1, format, again);
  va_end(again);
  va_end(values);
  return text;
}

char *realText(Real64 value) { return formattedText("%f", value); }
char *complexText(Real64 re, Real64 im) { return formattedText("%f + %fI", re, im); }

} // namespace

} // namespace torvane

using namespace torvane;

char *to_string_Integer8(int8_t value) { return integerText(value); }
char *to_string_UnsignedInteger8(uint8_t value) { return integerText(value); }
char *to_string_Integer16(int16_t value) { return integerText(value); }
char *to_string_UnsignedInteger16(uint16_t value) { return integerText(value); }
char *to_string_Integer32(int32_t value) { return integerText(value); }
char *to_string_UnsignedInteger32(uint32_t value) { return integerText(value); }
char *to_string_Integer64(int64_t value) { return integerText(value); }
char *to_string_UnsignedInteger64(uint64_t value) { return integerText(value); }

char *to_string_Real16(uint16_t pattern) { return realText(Real64(widen(Real16{pattern}))); }
char *to_string_Real32(float value) { return realText(Real64(value)); }
char *to_string_Real64(mreal value) { return realText(value); }

char *to_string_ComplexReal32(float re, float im) { return complexText(Real64(re), Real64(im)); }
char *to_string_ComplexReal64(mreal re, mreal im) { return complexText(re, im); }

void to_string_free(char *text) { torvane::free(text); }
