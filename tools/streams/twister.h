// The family of small Mersenne Twisters: 17 words of 32 bits, of which the last 23 bits of the oldest do not
// count, which makes 521. A member's recurrence is its twist vector.
//
// Source: M. Matsumoto, T. Nishimura, "Mersenne Twister" (1998) and "Dynamic Creation of Pseudorandom Number
// Generators" (2000).
#pragma once

#include "polynomial.h"

#include <vector>

namespace streams {

inline constexpr int kStateWords = 17;
inline constexpr int kMiddle = 8;
inline constexpr int kLowerBits = 23;
inline constexpr int kWordBits = 32;
inline constexpr int kExponent = kStateWords * kWordBits - kLowerBits;

// Of the recurrence, word by word. It is linear in the twist: constantPart() + the sum of linearPart(k) over
// the bits k of it that are set.
Polynomial constantPart();
Polynomial linearPart(int bit);
Polynomial characteristicPolynomial(uint32_t twist);

// The first `count` words that the recurrence makes of a state that is not zero, untempered. Not the state
// itself: its oldest word has bits that are no part of any sequence.
std::vector<uint32_t> untemperedWords(uint32_t twist, int count);

} // namespace streams
