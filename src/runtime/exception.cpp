// The exception class. Its destructor is the key function: vtable and type information are emitted here,
// once, and exported, so that a host's handlers recognise what the library throws.
#include <torvane/exception.hpp>

#include <charconv>

namespace {

constexpr int kTextBytes = 12; // "-2147483648" and its end
thread_local constinit char text[kTextBytes] = "";

} // namespace

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof" // defined by both compilers for a class with one base
static_assert(offsetof(TorvaneRuntimeException, code) == sizeof(std::exception));
#pragma GCC diagnostic pop

TorvaneRuntimeException::~TorvaneRuntimeException() = default;

const char *TorvaneRuntimeException::what() const noexcept {
  *std::to_chars(text, text + kTextBytes - 1, code).ptr = '\0';
  return text;
}
