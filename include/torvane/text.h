/* Scalars as text: one function for each of the thirteen element types, and the one that frees.
 *
 * Every result is a fresh zero-terminated string of single-byte characters that the caller owns and
 * returns by to_string_free, from any thread. Nothing is raised for any value; a string that memory does
 * not suffice for ends the process with a message (the fatal path). Any thread may call. */
#ifndef TORVANE_TEXT_H
#define TORVANE_TEXT_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* Decimal digits without padding, after a minus sign where the value is negative: "-128", "0", "255". */
TORVANE_API char *to_string_Integer8(int8_t value);
TORVANE_API char *to_string_UnsignedInteger8(uint8_t value);
TORVANE_API char *to_string_Integer16(int16_t value);
TORVANE_API char *to_string_UnsignedInteger16(uint16_t value);
TORVANE_API char *to_string_Integer32(int32_t value);
TORVANE_API char *to_string_UnsignedInteger32(uint32_t value);
TORVANE_API char *to_string_Integer64(int64_t value);
TORVANE_API char *to_string_UnsignedInteger64(uint64_t value);

/* What printf writes for "%f" of the value, widened to binary64: every digit before the point, six after
 * it, no exponent; infinities and NaNs as printf has them. A Real16 comes as its pattern. */
TORVANE_API char *to_string_Real16(uint16_t pattern);
TORVANE_API char *to_string_Real32(float value);
TORVANE_API char *to_string_Real64(mreal value);

/* Both parts as reals, joined by " + " whatever the sign of the second, with an "I" at the end:
 * "1.000000 + -2.000000I". */
TORVANE_API char *to_string_ComplexReal32(float re, float im);
TORVANE_API char *to_string_ComplexReal64(mreal re, mreal im);

/* Returns a string that one of the functions above gave. Null is ignored. */
TORVANE_API void to_string_free(char *text);

TORVANE_END_DECLARATIONS

#endif
