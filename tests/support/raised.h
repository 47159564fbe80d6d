// What a call raised in style 1, the default: the pending code, taken away again.
#pragma once

#include <torvane/failure.h>

namespace torvane::test {

template <class Call> mint raisedBy(Call call) {
  const mint outer = setExceptionActive(0);
  call();
  return setExceptionActive(outer);
}

} // namespace torvane::test
