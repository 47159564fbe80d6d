// The exception class. Its destructor is the key function: vtable and type information are emitted here,
// once, and exported, so that a host's handlers recognise what the library throws.
#include <torvane/exception.hpp>

namespace {

constexpr int kTextBytes = 12; // "-2147483648" and its end
thread_local constinit char text[kTextBytes] = "";

// Written from the end. The standard library's own conversion would bring a process-wide symbol of its own
// into the exports.
const char *decimalText(mint number) {
  char *at = text + kTextBytes - 1;
  uint32_t rest = number < 0 ? 0u - static_cast<uint32_t>(number) : static_cast<uint32_t>(number);
  *at = '\0';
  do *--at = static_cast<char>('0' + rest % 10);
  while ((rest /= 10) != 0);
  if (number < 0) *--at = '-';
  return at;
}

} // namespace

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof" // defined by both compilers for a class with one base
static_assert(offsetof(TorvaneRuntimeException, code) == sizeof(std::exception));
#pragma GCC diagnostic pop

TorvaneRuntimeException::~TorvaneRuntimeException() = default;

const char *TorvaneRuntimeException::what() const noexcept { return decimalText(code); }
