// A call of a function by name, as compiled code makes it.
#pragma once

#include "algorithms/registry.h"

#include <torvane/torvane.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

namespace bench {

using Tensor = std::shared_ptr<MTensor>;

inline Tensor newTensor(mint type, const std::vector<mint> &extents) {
  return {MTensor_newAllocatedCommon(type, static_cast<mint>(extents.size()), extents.data(), 0),
          MTensor_delete};
}

// Arguments in their order. It stays where it is: the function is given addresses within it.
class NamedCall {
public:
  explicit NamedCall(const char *functionName)
      : name(functionName), handler(torvane::lookupRuntimeFunction(functionName)) {}
  NamedCall(const NamedCall &) = delete;
  NamedCall &operator=(const NamedCall &) = delete;

  NamedCall &tensor(Tensor argument) {
    values[count].tensor = argument.get();
    addresses[count] = &values[count].tensor;
    held.push_back(std::move(argument));
    return ++count, *this;
  }
  NamedCall &integer(mint argument) {
    values[count].integer = argument;
    addresses[count] = &values[count].integer;
    return ++count, *this;
  }

  // A call that fails would be a fast one.
  void run(void *result) {
    const mint status = handler(nullptr, static_cast<mint>(count), addresses.data(), result);
    if (status == 0) return;
    std::fprintf(stderr, "%s: status %d\n", name, status);
    std::abort();
  }

  const MTensor *firstTensor() const { return held.front().get(); }

private:
  union Value {
    MTensor *tensor;
    mint integer;
  };
  const char *name;
  RuntimeFunctionHandler handler;
  size_t count = 0;
  std::array<Value, 16> values = {};
  std::array<void *, 16> addresses = {};
  std::vector<Tensor> held;
};

} // namespace bench
