// The class that exception styles other than 1 and 2 throw. C++ only; catch it by reference.
#ifndef TORVANE_EXCEPTION_HPP
#define TORVANE_EXCEPTION_HPP

#include "types.h"

#include <exception>

// Handlers of compiled code find `code` right behind the base, and the destructor and `what` in that order
// among the virtual slots: add no field and no virtual operation.
class TORVANE_API TorvaneRuntimeException : public std::exception {
public:
  explicit TorvaneRuntimeException(mint raised) noexcept : code(raised) {}
  ~TorvaneRuntimeException() override;

  // The decimal text of the code. It stands in a buffer of the calling thread, which the next call
  // overwrites: copy it at once.
  const char *what() const noexcept override;

  mint code;
};

#endif
