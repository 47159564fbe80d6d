// What no routine over arrays does: raise, in any exception style, on any thread, whatever fails in it; make
// a thread for fewer elements than the thresholds ask for.
#include "every_vector_call.h"
#include "parallel/pool_fixture.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>
#include <torvane/failure.h>

using namespace torvane::test;

namespace {

constexpr mint kDense[4] = {1, 1, 1, 1};
constexpr mint kCount = 9;

struct Arrays {
  std::vector<Buffer> operands;
  std::vector<char> result = std::vector<char>(kCount * 2 * sizeof(mcomplex));
};

Arrays sampleArrays(const VectorCall &call, std::mt19937_64 &random) {
  Arrays arrays;
  for (const mint kind : call.kinds) {
    Buffer buffer(kind == 1 ? 2 : kind, kCount);
    for (mint k = 0; k < kCount; ++k) {
      Element element = sampleElement(buffer.kind, random);
      if (element.value.re == -1) element.value.re = 7; // no divisor of the most negative integer
      buffer.set(k, element);
    }
    arrays.operands.push_back(buffer);
  }
  return arrays;
}

// How often some call failed.
mint callAll(uint64_t seed) {
  std::mt19937_64 random(seed);
  mint failures = 0;
  for (const VectorCall &call : everyVectorCall())
    for (int round = 0; round < 4; ++round) {
      Arrays arrays = sampleArrays(call, random);
      OperandPointers operands = {};
      for (size_t k = 0; k < arrays.operands.size(); ++k) operands[k] = arrays.operands[k].data();
      for (const mint flags : {0, 2, 4, 6})
        failures += call.run(arrays.result.data(), operands, kCount, kDense, flags) != 0 ? 1 : 0;
    }
  return failures;
}

TEST(ConcurrentQuietRoutines, NeverRaiseInAnyStyleNorTouchStyleOrPendingCode) {
  const mint style = RTL_exceptionStyle;
  for (const mint now : {0, 1, 2}) {
    setExceptionStyle(now);
    const mint pending = setExceptionActive(77);
    mint failures = 0, ofThread = 0;
    EXPECT_NO_THROW(failures = callAll(71));
    std::thread other([&] { ofThread = callAll(72); }); // a throw out of a thread ends the program
    EXPECT_NO_THROW(callAll(73));
    other.join();
    EXPECT_EQ(setExceptionActive(pending), 77) << "in style " << now;
    EXPECT_EQ(RTL_exceptionStyle, now);
    setExceptionStyle(style);
    EXPECT_GT(failures, 500) << "or nothing has been shown";
    EXPECT_GT(ofThread, 500);
  }
}

using ConcurrentShortCalls = PoolTest;

TEST_F(ConcurrentShortCalls, OfOneElementLessThanTheThresholdsMakeNoPool) {
  constexpr mint kShort = 32767;
  const std::vector<mcomplex> operand(kShort, mcomplex{0.5, 0.5}); // wide enough for every kind
  std::vector<mcomplex> result(kShort);
  for (const VectorCall &call : everyVectorCall()) {
    call.run(result.data(), {operand.data(), operand.data(), operand.data()}, kShort, kDense, 0);
    ASSERT_FALSE(torvane::poolExists()) << call.name;
  }
}

} // namespace
