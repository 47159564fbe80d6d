// What a raise costs in memory, by style: nothing in the throwing styles, and in style 2 just the blocks that
// the skipped functions held. The library's own operations hold none when they raise.
//
// A body runs under the handler, or without one where nothing may be raised, and the bytes that the thread
// has out are compared before and after.
#include "algorithms/registry.h"
#include "arrays/conversion.h"
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "runtime/set_jump.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/integer_samples.h"
#include "support/tensor_builders.h"
#include <torvane/torvane.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csetjmp>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

enum Style : mint { kThrow = 0, kPending = 1, kJump = 2 };

struct Closure {
  void (*run)(void *argument, void *closure);
  const std::function<void()> *body;
};

// The code that a body raised, by the handler's report; 0 for none.
mint caughtFrom(const std::function<void()> &body) {
  Closure record = {[](void *, void *closure) { (*(*static_cast<Closure **>(closure))->body)(); }, &body};
  Closure *pointer = &record;
  CompilerError *error = catchExceptionHandler(nullptr, &pointer);
  const mint code = error == nullptr ? 0 : error->code;
  Delete_CompilerError(error);
  return code;
}

// A block that its scope gives back, as long as the scope is left by a way that runs destructors.
constexpr uint32_t kHeldBytes = 1000;
struct Held {
  Held() : block(Malloc_fun(kHeldBytes)) {}
  ~Held() { Free_fun(block); }
  Held(const Held &) = delete;
  Held &operator=(const Held &) = delete;
  void *const block;
};

class RaiseMemory : public testing::TestWithParam<mint> {
protected:
  RaiseMemory() {
    InitializeRuntimeLibrary();
    setExceptionStyle(GetParam());
    used = usedBytesOfThisThread();
  }
  ~RaiseMemory() override {
    EXPECT_EQ(setJumpTop(), nullptr);
    EXPECT_EQ(getExceptionActive(), 0);
    EXPECT_TRUE(isValidHere());
    setExceptionStyle(kPending);
    setExceptionActive(0);
  }
  // Blocks of kHeldBytes that are out since the last call.
  uint32_t blocksLost() {
    const uint32_t now = usedBytesOfThisThread(), lost = now - used;
    used = now;
    EXPECT_EQ(lost % allocatedBytesFor(kHeldBytes), 0u) << lost;
    return lost / allocatedBytesFor(kHeldBytes);
  }
  uint32_t lostByJump(uint32_t blocks) const { return GetParam() == kJump ? blocks : 0; }
  uint32_t used;
};
INSTANTIATE_TEST_SUITE_P(Styles, RaiseMemory, testing::Values(kThrow, kPending, kJump, 77, -1));

// ---- operations that raise ----

struct Raise {
  const char *name;
  mint code;
  void (*run)();
};

int64_t raiseAtTwo(int64_t x) {
  if (x == 2) throwTorvaneException(14);
  return x;
}

mint abortFlag = 0;
mint confirm(const char *) { return 1; }

// One or more of every family, and of every code.
const Raise kRaises[] = {
    {"sum", 1, [] { checked_binary_plus_Integer8_Integer8(100, 100); }},
    {"difference of unsigned", 1, [] { checked_binary_subtract_UnsignedInteger64_UnsignedInteger64(1, 2); }},
    {"product", 1, [] { checked_binary_times_Integer64_Integer64(INT64_MAX, 2); }},
    {"negation", 1, [] { checked_unary_minus_Integer32(INT32_MIN); }},
    {"power", 1, [] { checked_binary_pow_Integer64_Integer64(10, 40); }},
    {"power of narrow", 1, [] { checked_binary_pow_Integer8_Integer32(3, 9); }},
    {"logarithm", 3, [] { checked_unary_log2_Integer32(9); }},
    {"exponential", 6, [] { checked_unary_exp_Real64(1000); }},
    {"half", 6,
     [] {
       uint16_t result;
       checked_binary_times_Real16_Real16(&result, 0x7BFF, 0x7BFF);
     }},
    {"not a number", 9, [] { checked_binary_plus_Real64_Real64(__builtin_nan(""), 1); }},
    {"root", 14, [] { checked_unary_sqrt_Real64(-1); }},
    {"complex quotient", 16,
     [] {
       mreal re, im;
       checked_binary_divide_ComplexReal64_ComplexReal64(&re, &im, 1, 2, 0, 0);
     }},
    {"undefined, checked", 17, [] { checked_binary_bit_and_Real64_Real64(1, 1); }},
    {"undefined, plain", 17, [] { binary_bit_and_Real64_Real64(1, 1); }},
    {"abort", 33, [] { checkAbortWatchThrow(); }},
    {"cast to signed", 42, [] { integer_safe_cast_Integer64_Integer8(1000); }},
    {"cast to unsigned", 42, [] { integer_safe_cast_Integer8_UnsignedInteger64(-1); }},
    {"raise itself", -5, [] { throwTorvaneException(-5); }},
    {"serial loop", 14, [] { NonParallelDo([](mint i) { raiseAtTwo(i); }, 0, 5); }},
    {"serial loop with closure", 14,
     [] {
       NonParallelDo_Closure(
           nullptr, [](void *, mint i) { raiseAtTwo(i); }, 0, 5);
     }},
};

TEST_P(RaiseMemory, OperationsHoldNothingWhenTheyRaise) {
  setAbortWatch(&abortFlag, confirm);
  abortFlag = 1;
  for (const Raise &raise : kRaises)
    for (int round = 0; round < 3; ++round) {
      EXPECT_EQ(caughtFrom(raise.run), raise.code) << raise.name;
      EXPECT_EQ(usedBytesOfThisThread(), used) << raise.name;
    }
  setAbortWatch(nullptr, nullptr);
}

TEST_P(RaiseMemory, EveryCastThatRefusesHoldsNothing) {
  int refused = 0;
  const auto expectNothing = [&](const char *name, mint code) {
    EXPECT_TRUE(code == 0 || code == 42) << name;
    EXPECT_EQ(usedBytesOfThisThread(), used) << name;
    refused += code == 42;
  };
#define CAST(From, To)                                                                                       \
  for (const int64_t x : {int64_t{-1}, INT64_MAX})                                                           \
    expectNothing(#From " to " #To, caughtFrom([x] { integer_safe_cast_##From##_##To(From(x)); }));
#define CASTS(From) TORVANE_FOR_EACH_INTEGER_WITH(CAST, From)
  TORVANE_FOR_EACH_INTEGER(CASTS)
#undef CASTS
#undef CAST
  EXPECT_GT(refused, 40);
}

// What the host holds is the host's: it is lost where its destructors are skipped, to the byte.
TEST_P(RaiseMemory, BlocksOfSkippedFunctionsAreLostInTheJumpingStyleAlone) {
  for (const Raise &raise : kRaises) {
    if (raise.code == TORVANE_ERROR_ABORT) continue;
    EXPECT_EQ(caughtFrom([&] {
                const Held outer;
                const std::function<void()> inner = [&] {
                  const Held block;
                  raise.run();
                };
                inner();
              }),
              raise.code);
    EXPECT_EQ(blocksLost(), lostByJump(2)) << raise.name;
  }
}

TEST_P(RaiseMemory, TextsAndTensorsOfASkippedFunctionAreLostLikeItsBlocks) {
  const Extents extents = {7, 9};
  uint32_t bytes = 0;
  const mint code = caughtFrom([&] {
    const uint32_t before = usedBytesOfThisThread();
    const std::unique_ptr<char, void (*)(char *)> text(to_string_Real64(1e300), to_string_free);
    const Tensor tensor = newTensor(TORVANE_TYPE_COMPLEX, extents);
    bytes = usedBytesOfThisThread() - before;
    integer_safe_cast_Integer32_Integer8(mint(std::strlen(text.get())));
  });
  EXPECT_EQ(code, 42);
  EXPECT_GT(bytes, 300u + 63 * sizeof(mcomplex));
  EXPECT_EQ(usedBytesOfThisThread() - used, lostByJump(bytes));
}

// ---- operations that raise nothing ----

// Without a handler: a throw would end the test, and a jump have no frame to go to.
TEST_P(RaiseMemory, TensorMathReportsAndRaisesNothing) {
  {
    const Tensor reals = tensorOf<mreal>({3}, {4, -1, 9}), halves = tensorOf<mreal>({3}, {.5, .5, .5});
    const Tensor integers = tensorOf<mint>({3}, {1, INT32_MAX, 3});
    for (int round = 0; round < 3; ++round) {
      MTensor *slot = nullptr;
      EXPECT_EQ(MTensorMathUnary(&slot, reals.get(), 57, TORVANE_TYPE_REAL), 1); // a square root
      MTensor_delete(slot);
      slot = nullptr;
      EXPECT_EQ(MTensorMathBinary(&slot, reals.get(), halves.get(), 263, TORVANE_TYPE_REAL), 1); // a power
      MTensor_delete(slot);
    }
    const mint dense[] = {1, 1, 1};
    mreal roots[3];
    EXPECT_EQ(machfunc_d_sqrt(roots, reals->data, 3, dense, 0), 2);
    mint sums[3];
    EXPECT_EQ(machfunc_ii_plus(sums, integers->data, integers->data, 3, dense, 4), 2);
    mint total = 0;
    EXPECT_NE(machfunc_i_total(&total, elements<mint>(integers), 3, dense, 4), 0);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_P(RaiseMemory, NamedFunctionsReportAndRaiseNothing) {
  const auto call = [](const char *name, std::vector<void *> arguments, void *result) {
    return lookupRuntimeFunction(name)(nullptr, mint(arguments.size()), arguments.data(), result);
  };
  {
    const Tensor integers = tensorOf<mint>({3}, {1, INT32_MAX, INT32_MAX}), reals = newTensor(3, {2, 2});
    MTensor *handle = integers.get(), *matrix = reals.get();
    mint checked = 4, base = 0, x = 5, result = 0;
    MTensor *slot = nullptr;
    EXPECT_EQ(call("TotalAll", {&handle, &checked}, &result), 1001);
    EXPECT_EQ(call("Accumulate", {&handle, &checked}, &slot), 1); // the first element of a row
    EXPECT_EQ(call("IntegerDigits", {&x, &base}, &slot), 4);
    EXPECT_EQ(call("Cross", {&matrix}, &slot), 2);
    EXPECT_EQ(call("Random", {}, &result), 14);
    EXPECT_EQ(call("of no name", {}, &result), 12);
    EXPECT_EQ(slot, nullptr);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_P(RaiseMemory, ConversionsReportAndRaiseNothing) {
  const mint length = 4;
  MNumericArray *source = Runtime_CreateNumericArray(TORVANE_ELEMENT_REAL64, 1, &length);
  auto *const values = static_cast<mreal *>(source->data);
  std::fill_n(values, 4, 1);
  const ConversionMethod exact = {0, kCheck, 0};
  const auto converted = [&](mreal value) {
    MNumericArray *made = nullptr; // gone after a failure
    values[2] = value;
    return MNumericArray_convert(&made, source, TORVANE_ELEMENT_INTEGER8, &exact);
  };
  EXPECT_EQ(converted(1e300), 1);
  EXPECT_EQ(converted(2.5), kNoPass);
  MNumericArray_delete(source);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// ---- handlers inside handlers ----

void raiseThroughHandlers(int depth) {
  const Held block;
  if (depth > 0) EXPECT_EQ(caughtFrom([=] { raiseThroughHandlers(depth - 1); }), depth);
  throwTorvaneException(depth + 1);
}

TEST_P(RaiseMemory, NestedHandlersLoseABlockALevelInTheJumpingStyleAlone) {
  EXPECT_EQ(caughtFrom([] { raiseThroughHandlers(20); }), 21);
  EXPECT_EQ(blocksLost(), lostByJump(21));
}

TEST_P(RaiseMemory, HandlerThatIsLeftByAnOutersRaiseLosesNothingItself) {
  EXPECT_EQ(caughtFrom([] {
              for (int i = 0; i < 5; ++i) EXPECT_EQ(caughtFrom([] {}), 0);
              EXPECT_EQ(caughtFrom([] { throwTorvaneException(3); }), 3);
              throwTorvaneException(9);
            }),
            9);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// Frames that code in between has pushed and never popped: copies of the handler's own, so that a raise to
// one of them arrives there.
TEST(RaiseMemoryOfFrames, LeftBehindIsGivenBackByTheHandlerOnARaiseAndOnAReturn) {
  setExceptionStyle(kJump);
  torvane::free(allocate(8, 0, kFatal));
  const uint32_t used = usedBytesOfThisThread();
  void *const outer = SetJumpStack_Push();
  const uint32_t withOuter = usedBytesOfThisThread();
  for (const int frames : {1, 2, 30}) {
    EXPECT_EQ(caughtFrom([=] {
                for (int i = 0; i < frames; ++i) SetJumpStack_Push();
              }),
              0);
    EXPECT_EQ(setJumpTop(), outer);
    EXPECT_EQ(caughtFrom([=] {
                for (int i = 0; i < frames; ++i) {
                  void *const frame = SetJumpStack_Push();
                  std::memcpy(frame, setJumpTop()->next->context, sizeof(SetJumpFrame::context));
                }
                EXPECT_EQ(caughtFrom([] { throwTorvaneException(6); }), 6);
                throwTorvaneException(8);
              }),
              8);
    EXPECT_EQ(setJumpTop(), outer);
    EXPECT_EQ(usedBytesOfThisThread(), withOuter);
  }
  SetJumpStack_Pop();
  setExceptionStyle(kPending);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// ---- raises in loops of a host's own ----

int called = 0;
int64_t raiseAtForty(int64_t x) {
  const Held block;
  ++called;
  if (x == 40) throwTorvaneException(16);
  return x;
}

TEST_P(RaiseMemory, SerialLoopsStopAtARaiseThatDoesNotReturn) {
  const int calls = GetParam() == kPending ? 100 : 41;
  const std::function<void()> loops[] = {[] { NonParallelDo([](mint i) { raiseAtForty(i); }, 0, 99); },
                                         [] {
                                           NonParallelDo_Closure(
                                               nullptr, [](void *, mint i) { raiseAtForty(i); }, 0, 99);
                                         }};
  for (const auto &loop : loops) {
    called = 0;
    EXPECT_EQ(caughtFrom(loop), 16);
    EXPECT_EQ(called, calls);
    EXPECT_EQ(blocksLost(), lostByJump(1));
  }
}

std::atomic<int> blocksOut{0};
int64_t raiseInTheMiddle(int64_t x) {
  const struct Counted {
    Counted() { ++blocksOut; }
    ~Counted() { --blocksOut; }
    Held block;
  } counted;
  if (x == 2050) throwTorvaneException(16);
  return 3 * x;
}

// In the throwing styles the code is the map's result, in the others the handler's.
TEST_P(RaiseMemory, ParallelMapsGiveTheirMemoryBackHoweverTheyEnd) {
  const bool returnsToRaiser = GetParam() == kPending, jumps = GetParam() == kJump;
  std::vector<int64_t> source(9000), target(9000, -1);
  for (size_t i = 0; i < source.size(); ++i) source[i] = int64_t(i);
  for (const int64_t count : {int64_t{3000}, int64_t{9000}}) {
    blocksOut = 0;
    mint status = -1;
    const mint code = caughtFrom([&] {
      status = parallel_for_Integer64_Integer64(source.data(), count, target.data(), raiseInTheMiddle);
    });
    EXPECT_EQ(code, returnsToRaiser || jumps ? 16 : 0);
    EXPECT_EQ(status, returnsToRaiser ? 0 : jumps ? -1 : 16);
    EXPECT_EQ(target[2049], 3 * 2049);
    EXPECT_EQ(target[2050], returnsToRaiser ? 3 * 2050 : -1);
    EXPECT_EQ(blocksOut, jumps ? 1 : 0);
    EXPECT_EQ(blocksLost(), lostByJump(1));
    std::fill(target.begin(), target.end(), -1);
  }
}

// A function that catches its own raises. On several threads at a time only the throwing styles allow that.
int64_t catchOwn(int64_t x) {
  return caughtFrom([x] {
    const Held block;
    if (x % 3 == 0) throwTorvaneException(mint(x % 7) + 1);
  });
}

TEST_P(RaiseMemory, HandlersInsideAMapCatchTheirOwn) {
  const int64_t count = GetParam() == kPending ? 4095 : 6000;
  std::vector<int64_t> source(6000), target(6000, -1);
  for (size_t i = 0; i < source.size(); ++i) source[i] = int64_t(i);
  EXPECT_EQ(caughtFrom([&] {
              EXPECT_EQ(parallel_for_Integer64_Integer64(source.data(), count, target.data(), catchOwn), 0);
            }),
            0);
  for (int64_t i = 0; i < count; ++i) ASSERT_EQ(target[size_t(i)], i % 3 == 0 ? i % 7 + 1 : 0) << i;
  EXPECT_EQ(blocksLost(), lostByJump(2000));
}

// ---- no memory ----

// Takes whatever the thread's heap still has, and leaves the process heap refusing.
void exhaust(FailingHeap &heap) {
  heap.failFrom(1);
  for (uint32_t size = 65536; size >= 8; size -= 8)
    while (allocate(size, 0, kQuiet) != nullptr) {
    }
}

const mint kTwo = 2;
int64_t same(int64_t x) { return x; }
std::vector<int64_t> manyElements(5000);

struct FatalUse {
  const char *name;
  void (*run)();
};
const FatalUse kFatalUses[] = {
    {"block", [] { Malloc_fun(8); }},
    {"cleared block", [] { Calloc_fun(2, 8); }},
    {"grown block", [] { Realloc_fun(nullptr, 100); }},
    {"text of an integer", [] { to_string_Integer8(1); }},
    {"text of a complex", [] { to_string_ComplexReal64(1, 2); }},
    {"error", [] { New_CompilerError(4, 1); }},
    {"frame", [] { SetJumpStack_Push(); }},
    {"tensor",
     [] {
       MTensor *slot = nullptr;
       MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, 1, &kTwo, kFatal);
     }},
    {"sparse array", [] { MSparseArray_new(2); }},
    {"report of a raise", [] { throwTorvaneException(1); }},
    {"inner handler and its report", [] { caughtFrom([] { throwTorvaneException(1); }); }},
};

TEST_P(RaiseMemory, WantOfMemoryEndsTheProcessUnderAnyHandler) {
  for (const FatalUse &use : kFatalUses) {
    const ChildOutcome child = runInChild([&] {
      FailingHeap heap;
      caughtFrom([&] {
        exhaust(heap);
        use.run();
      });
    });
    EXPECT_TRUE(child.exited) << use.name;
    EXPECT_EQ(child.status, 1) << use.name;
    EXPECT_EQ(child.output.find("\nNo more memory available."), 0u) << use.name << child.output;
  }
}

// The same body with memory comes back, so that the test above tells something.
TEST_P(RaiseMemory, UsesThatEndTheProcessReturnWhereThereIsMemory) {
  for (const FatalUse &use : kFatalUses) {
    const ChildOutcome child = runInChild([&] { caughtFrom(use.run); });
    EXPECT_TRUE(child.exited) << use.name;
    EXPECT_EQ(child.status, 99) << use.name;
  }
}

// The codes of a map's tasks; in the jumping style a map has none.
TEST_P(RaiseMemory, WantOfMemoryInALongMapIsFatalWhereItHasTasks) {
  const ChildOutcome child = runInChild([] {
    FailingHeap heap;
    exhaust(heap);
    parallel_for_Integer64_Integer64(manyElements.data(), 5000, manyElements.data(), same);
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, GetParam() == kJump ? 99 : 1);
}

} // namespace
