// The smallest and the largest: of scalars, of tensors, of both mixed as tagged pairs.
//
// One rule for all: from left to right, a value takes the current one's place where it compares smaller (or
// greater). So of equal values the first is kept, and a NaN is passed over, unless it is the first of plain
// scalars, which start from their first argument. Tensors and pairs start from a finite value of the type,
// deliberately: an infinity is never their result from the side it comes from, and no elements leave that
// value. The extreme of one tensor is the reductions', which follow the same rule in vector registers.
#include "../elementwise/generated/comparison_loops.h"
#include "../runtime/platform_cpu_level.h"
#include "../scalar/scalar_types.h"
#include "handler.h"

namespace torvane {

namespace {

using torvane_loops::ComparisonLoops;

const ComparisonLoops &loops() {
  static constexpr const ComparisonLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(comparison);
  return *byLevel[processorLevel()];
}

// A load of the widest registers that crosses a line of the cache costs two; short runs gain nothing.
template <class Element> mint elementsBeforeLine(const void *data, mint count) {
  constexpr size_t kLine = 64;
  const size_t ahead = (0 - reinterpret_cast<size_t>(data)) % kLine / sizeof(Element);
  return count < 1024 ? 0 : static_cast<mint>(ahead);
}

constexpr mreal kLargestReal = 1.7976931348623157e308;

struct Least {
  template <class T> static bool replaces(T x, T current) { return x < current; }
  static constexpr mint start(mint) { return INT32_MAX; }
  static constexpr mreal start(mreal) { return kLargestReal; }
  static constexpr auto integers = &ComparisonLoops::i_min, reals = &ComparisonLoops::d_min;
};

struct Greatest {
  template <class T> static bool replaces(T x, T current) { return x > current; }
  static constexpr mint start(mint) { return INT32_MIN; }
  static constexpr mreal start(mreal) { return -kLargestReal; }
  static constexpr auto integers = &ComparisonLoops::i_max, reals = &ComparisonLoops::d_max;
};

template <class End, class T> struct Extreme {
  T value = End::start(T{});

  void take(T x) {
    if (End::replaces(x, value)) value = x;
  }
  mint takeTensor(const MTensor *tensor) {
    if (tensor->type == TORVANE_TYPE_INTEGER) return takeElements<mint>(tensor, End::integers);
    if constexpr (isReal<T>)
      if (tensor->type == TORVANE_TYPE_REAL) return takeElements<mreal>(tensor, End::reals);
    return kWrongType;
  }

private:
  template <class Element>
  mint takeElements(const MTensor *tensor, torvane_loops::ReductionLoop ComparisonLoops::*loop) {
    const mint count = tensor->elementCount, ahead = elementsBeforeLine<Element>(tensor->data, count);
    takeRun<Element>(loops().*loop, tensor, 0, ahead);
    takeRun<Element>(loops().*loop, tensor, ahead, count);
    return kSuccess;
  }
  // Without checks, so that no extreme fails, and on this thread: workers gain little over elements that are
  // read once.
  template <class Element>
  void takeRun(const torvane_loops::ReductionLoop &loop, const MTensor *tensor, mint first, mint last) {
    if (first == last) return;
    Element extreme;
    loop.plain.run(&extreme, {{tensor->data, nullptr}, {1, 0}, last}, first, last);
    take(extreme);
  }
};

template <class End, class T> mint ofScalars(mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 1) return kWrongArguments;
  Extreme<End, T> extreme = {argument<T>(arguments, 0)};
  for (mint i = 1; i < argumentCount; ++i) extreme.take(argument<T>(arguments, i));
  storeResult(result, extreme.value);
  return kSuccess;
}

// Tensors that have no element between them are refused; no tensor at all is not.
template <class End, class T> mint ofTensors(mint argumentCount, void *const *arguments, void *result) {
  Extreme<End, T> extreme;
  bool hasElement = argumentCount < 1;
  for (mint i = 0; i < argumentCount; ++i) {
    const MTensor *tensor = tensorArgument(arguments, i);
    const mint status = extreme.takeTensor(tensor);
    if (status != kSuccess) return status;
    hasElement = hasElement || tensor->elementCount > 0;
  }
  if (!hasElement) return kValueFailed;
  storeResult(result, extreme.value);
  return kSuccess;
}

enum Tag : mint { kTensorTag = 0, kIntegerTag = 2, kRealTag = 3 };

template <class End, class T> mint takeTagged(Extreme<End, T> &extreme, void *const *pair) {
  const mint tag = integerArgument(pair, 0);
  if (tag == kTensorTag) return extreme.takeTensor(tensorArgument(pair, 1));
  if (tag == kIntegerTag)
    extreme.take(integerArgument(pair, 1));
  else if (isReal<T> && tag == kRealTag)
    extreme.take(argument<T>(pair, 1));
  else
    return kWrongArguments;
  return kSuccess;
}

template <class End, class T> mint ofTagged(mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 0 || argumentCount % 2 != 0) return kWrongArguments;
  Extreme<End, T> extreme;
  for (mint i = 0; i < argumentCount; i += 2) {
    const mint status = takeTagged(extreme, arguments + i);
    if (status != kSuccess) return status;
  }
  storeResult(result, extreme.value);
  return kSuccess;
}

} // namespace

mint handleMinI(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofScalars<Least, mint>(argumentCount, arguments, result);
}
mint handleMinIT(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTensors<Least, mint>(argumentCount, arguments, result);
}
mint handleMinIG(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTagged<Least, mint>(argumentCount, arguments, result);
}
mint handleMinR(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofScalars<Least, mreal>(argumentCount, arguments, result);
}
mint handleMinRT(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTensors<Least, mreal>(argumentCount, arguments, result);
}
mint handleMinRG(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTagged<Least, mreal>(argumentCount, arguments, result);
}
mint handleMaxI(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofScalars<Greatest, mint>(argumentCount, arguments, result);
}
mint handleMaxIT(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTensors<Greatest, mint>(argumentCount, arguments, result);
}
mint handleMaxIG(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTagged<Greatest, mint>(argumentCount, arguments, result);
}
mint handleMaxR(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofScalars<Greatest, mreal>(argumentCount, arguments, result);
}
mint handleMaxRT(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTensors<Greatest, mreal>(argumentCount, arguments, result);
}
mint handleMaxRG(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return ofTagged<Greatest, mreal>(argumentCount, arguments, result);
}

} // namespace torvane
