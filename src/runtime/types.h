// Internal companions of the public types: error and status codes, and the element-type tables.
#pragma once

#include <torvane/types.h>

namespace torvane {

// The codes that scalar operations raise. A code travels as a plain return value from the arithmetic to
// its frame, and from there through throwTorvaneException.
enum class error : mint {
  none = 0,
  integerOverflow = 1,
  inexactLogarithm = 3,
  infinite = 6,
  notANumber = 9,
  domain = 14,
  complexZeroDivision = 16,
  undefinedForType = 17,
  abortRequested = 33,
  conversionRange = 42,
};

// What tensor, registry and array operations return; 0 is success.
enum Status : mint {
  kSuccess = 0,
  kWrongType = 1,
  kWrongRank = 2,
  kWrongDimensions = 3,
  kValueFailed = 4,
  kNoMemory = 5,
  kNoSuchService = 6,
  kNothingLeft = 7, // of several sets of rows of rank 2 or more
  kNoFunction = 11, // of a random generator
  kWrongArguments = 12,
  kNotInThisForm = 14,
  kNegativeRank = 401,
  kNegativeExtent = 402,
  kSizeFailed = 403,
  kAborted = 1000,
  kNotFinite = 1001, // or out of range: a checked sum, product, norm or bound
};

// Last argument of every operation that allocates. Any other value behaves as a quiet failure that does
// not heed the limit.
enum ErrorMode : mint {
  kFatal = 0,  // the fatal path: never returns
  kQuiet = 1,  // fails quietly, and heeds the heap's limit
  kReport = 2, // fails after the limit hook
};

} // namespace torvane
