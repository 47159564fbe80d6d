// The class that exception styles other than 1 and 2 throw. C++ only; catch it by reference.
#ifndef TORVANE_EXCEPTION_HPP
#define TORVANE_EXCEPTION_HPP

#include "types.h"

#include <exception>

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
