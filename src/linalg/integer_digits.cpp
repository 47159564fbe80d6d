// IntegerDigits: the digits of an integer's magnitude in a base, most significant first.
#include "../algorithms/handler.h"
#include "../algorithms/result_tensor.h"
#include "../scalar/magnitude.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr mint kAnyLength = -1;

struct Digits {
  mint digits[32]; // least significant first
  mint count = 0;

  // No more than `most`.
  Digits(uint32_t x, uint32_t base, mint most) {
    for (; x != 0 && count != most; x /= base) digits[count++] = static_cast<mint>(x % base);
  }
};

// Zeros in front where `length` is more than there are digits; only the lowest ones where it is less.
mint integerDigits(MTensor **slot, mint x, mint base, mint length) {
  const Digits digits(magnitudeBits(x), static_cast<uint32_t>(base), length);
  if (length == kAnyLength) length = std::max(digits.count, 1);
  ResultTensor result(slot);
  const mint status = result.allocate(TORVANE_TYPE_INTEGER, 1, &length);
  if (status != kSuccess) return status;
  mint *to = integersOf(result.get());
  std::fill_n(to, length - digits.count, 0);
  std::reverse_copy(digits.digits, digits.digits + digits.count, to + (length - digits.count));
  return result.commit();
}

} // namespace

mint handleIntegerDigits(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const mint base = integerArgument(arguments, 1);
  const mint length = argumentCount == 3 ? integerArgument(arguments, 2) : kAnyLength;
  if ((argumentCount == 3 && length < 0) || base < 2) return kValueFailed;
  return integerDigits(tensorResult(result), integerArgument(arguments, 0), base, length);
}

} // namespace torvane
