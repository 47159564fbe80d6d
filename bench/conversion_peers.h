// What a plain loop makes of the conversions of conversion.cpp, without a check unless it is all the rule.
#pragma once

#include <cstddef>

void roundToWords(void *to, const void *from, ptrdiff_t count); // f64 to i32
void clipToWords(void *to, const void *from, ptrdiff_t count);  // f64 to i32
void narrowReals(void *to, const void *from, ptrdiff_t count);  // f64 to f32
void clipToBytes(void *to, const void *from, ptrdiff_t count);  // i32 to u8
void cutToBytes(void *to, const void *from, ptrdiff_t count);   // i32 to u8
void widenToReals(void *to, const void *from, ptrdiff_t count); // i16 to f64
void scaleBytes(void *to, const void *from, ptrdiff_t count);   // u8 to f32
