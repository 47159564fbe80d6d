#include "twister.h"

namespace streams {

namespace {

// T^j up to j = 32 - 23, then times S a step: T = t^17 + t^8, S = t^16 + t^7.
Polynomial power(int j) {
  Polynomial result = monomial(0);
  const Polynomial t = sum(monomial(kStateWords), monomial(kMiddle));
  const Polynomial s = sum(monomial(kStateWords - 1), monomial(kMiddle - 1));
  for (int i = 1; i <= j; ++i) result = product(i <= kWordBits - kLowerBits ? t : s, result);
  return result;
}

constexpr uint32_t kLowerMask = (uint32_t{1} << kLowerBits) - 1;

} // namespace

Polynomial constantPart() { return power(kWordBits); }
Polynomial linearPart(int bit) { return power(kWordBits - 1 - bit); }

Polynomial characteristicPolynomial(uint32_t twist) {
  Polynomial result = constantPart();
  for (int bit = 0; bit < kWordBits; ++bit)
    if (((twist >> bit) & 1) != 0) result = sum(result, linearPart(bit));
  return result;
}

std::vector<uint32_t> untemperedWords(uint32_t twist, int count) {
  std::vector<uint32_t> words(kStateWords, 0);
  words.back() = 1;
  for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
    const uint32_t y = (words[i] & ~kLowerMask) | (words[i + 1] & kLowerMask);
    words.push_back(words[i + kMiddle] ^ (y >> 1) ^ ((y & 1) != 0 ? twist : 0));
  }
  return {words.begin() + kStateWords, words.end()};
}

} // namespace streams
