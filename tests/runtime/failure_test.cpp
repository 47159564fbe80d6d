// Raises in the three styles, the handler that catches them, the polls and the small exports.
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "runtime/set_jump.h"
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include <torvane/exception.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <atomic>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <string>
#include <thread>
#include <type_traits>
#include <typeinfo>

using namespace torvane;

namespace {

// A closure as compiled code makes it: a record whose first word is the function, and a pointer to it.
struct Closure {
  void (*function)(void *argument, void *closure);
  Closure *self = this;
  explicit Closure(void (*body)(void *, void *)) : function(body) {}
  void *handle() { return &self; }
};

CompilerError *run(void (*body)(void *, void *), void *argument = nullptr) {
  Closure closure(body);
  return catchExceptionHandler(argument, closure.handle());
}

// Runs under the handler and gives the code that it reports, 0 for none; every report must be of kind 4.
mint caught(void (*body)(void *, void *), void *argument = nullptr) {
  CompilerError *raised = run(body, argument);
  if (raised == nullptr) return 0;
  EXPECT_EQ(raised->kind, 4);
  const mint code = raised->code;
  EXPECT_NE(code, 0);
  Delete_CompilerError(raised);
  return code;
}

void raiseArgument(void *argument, void *) { throwTorvaneException(*static_cast<mint *>(argument)); }
void doNothing(void *, void *) {}

class Failure : public testing::Test {
protected:
  Failure() : usedBefore(usedBytesOfThisThread()) {}
  ~Failure() override {
    EXPECT_EQ(setJumpTop(), nullptr);
    EXPECT_EQ(usedBytesOfThisThread(), usedBefore);
    RTL_exceptionStyle = 1;
    RTL_exceptionActive = 0;
    setAbortWatch(nullptr, nullptr);
  }
  uint32_t usedBefore;
};

class InEveryStyle : public Failure, public testing::WithParamInterface<mint> {
protected:
  InEveryStyle() { setExceptionStyle(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Styles, InEveryStyle, testing::Values(1, 2, 0, 3, -1, 77));

// Read when this program is loaded, before anything of the library has run.
const mint styleAtLoad = RTL_exceptionStyle;
const mint pendingAtLoad = getExceptionActive();
const SetJumpFrame *const topAtLoad = setJumpTop();

TEST(FailureAtLoad, StyleIsOneNothingIsPendingAndThereIsNoFrame) {
  EXPECT_EQ(styleAtLoad, 1);
  EXPECT_EQ(pendingAtLoad, 0);
  EXPECT_EQ(topAtLoad, nullptr);
}

TEST_F(Failure, SetExceptionStyleStoresAndReturnsAnyStyle) {
  for (mint style : {2, 0, -5, 1, 99}) {
    EXPECT_EQ(setExceptionStyle(style), style);
    EXPECT_EQ(RTL_exceptionStyle, style);
  }
}

TEST_F(Failure, PendingCodeIsReadSetAndReachedThroughItsHandle) {
  EXPECT_EQ(setExceptionActive(9), 0);
  EXPECT_EQ(setExceptionActive(6), 9);
  EXPECT_EQ(getExceptionActive(), 6);
  EXPECT_EQ(getExceptionActiveHandle(), &RTL_exceptionActive);
  *getExceptionActiveHandle() = 14;
  EXPECT_EQ(getExceptionActive(), 14);
}

TEST_F(Failure, SecondRaiseOfStyleOneOverwritesTheFirst) {
  throwTorvaneException(6);
  throwTorvaneException(9);
  EXPECT_EQ(RTL_exceptionActive, 9);
}

TEST_F(Failure, RaiseOfZeroInStyleOneLeavesNothingPending) {
  throwTorvaneException(6);
  throwTorvaneException(0);
  EXPECT_EQ(RTL_exceptionActive, 0);
  mint zero = 0;
  EXPECT_EQ(caught(raiseArgument, &zero), 0);
}

TEST_P(InEveryStyle, HandlerReportsNothingForABodyThatEndsWell) { EXPECT_EQ(run(doNothing), nullptr); }

TEST_P(InEveryStyle, HandlerReportsTheCodeThatWasRaised) {
  for (mint code : {1, 3, 6, 9, 14, 16, 17, 33, 42, -7, INT32_MIN, INT32_MAX})
    EXPECT_EQ(caught(raiseArgument, &code), code);
}

TEST_P(InEveryStyle, HandlerRunsManyTimesWithoutGrowing) {
  mint code = 17;
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(caught(raiseArgument, &code), 17);
    ASSERT_EQ(caught(doNothing), 0);
    ASSERT_EQ(usedBytesOfThisThread(), usedBefore);
  }
}

TEST_P(InEveryStyle, BodyReceivesTheArgumentAndTheClosure) {
  struct Counting {
    void (*function)(void *, void *);
    int calls;
    void *argument;
  } record = {[](void *argument, void *closure) {
                auto *self = *static_cast<Counting **>(closure);
                ++self->calls;
                self->argument = argument;
              },
              0, nullptr};
  Counting *pointer = &record;
  EXPECT_EQ(catchExceptionHandler(&usedBefore, &pointer), nullptr);
  EXPECT_EQ(record.calls, 1);
  EXPECT_EQ(record.argument, &usedBefore);
}

TEST_P(InEveryStyle, PendingCodeOfTheOuterFrameIsHiddenAndRestored) {
  RTL_exceptionActive = 14;
  EXPECT_EQ(caught(doNothing), 0);
  EXPECT_EQ(RTL_exceptionActive, 14);
  mint code = 6;
  EXPECT_EQ(caught(raiseArgument, &code), 6);
  EXPECT_EQ(RTL_exceptionActive, 14);
}

TEST_P(InEveryStyle, BodySeesThePendingCodeHiddenInStyleOneOnly) {
  RTL_exceptionActive = 14;
  mint seen = -1;
  caught([](void *argument, void *) { *static_cast<mint *>(argument) = getExceptionActive(); }, &seen);
  EXPECT_EQ(seen, GetParam() == 1 ? 0 : 14);
}

TEST_P(InEveryStyle, InnerHandlersTakeTheirOwnRaisesAndOuterOnesTheirs) {
  struct Seen {
    mint inner, quiet;
  } seen = {0, -1};
  const mint outer = caught(
      [](void *argument, void *) {
        mint code = 3;
        auto *codes = static_cast<Seen *>(argument);
        codes->inner = caught(raiseArgument, &code);
        codes->quiet = caught(doNothing);
        throwTorvaneException(16);
      },
      &seen);
  EXPECT_EQ(seen.inner, 3);
  EXPECT_EQ(seen.quiet, 0);
  EXPECT_EQ(outer, 16);
}

TEST_P(InEveryStyle, RaiseInAnInnerHandlerDoesNotLeakOut) {
  EXPECT_EQ(caught([](void *, void *) {
              mint code = 3;
              EXPECT_EQ(caught(raiseArgument, &code), 3);
            }),
            0);
}

void nest(void *argument, void *) {
  mint depth = *static_cast<mint *>(argument);
  if (depth == 0) throwTorvaneException(100);
  if (depth == 0) return;
  --depth;
  const mint code = caught(nest, &depth);
  throwTorvaneException(code + 1);
}

TEST_P(InEveryStyle, HandlersNestDeeply) {
  mint depth = 50;
  EXPECT_EQ(caught(nest, &depth), 150);
}

struct Foreign {
  int value;
};

TEST_P(InEveryStyle, ForeignExceptionsPassThroughAndLeaveTheMachineryAsItWas) {
  RTL_exceptionActive = 14;
  int value = 0;
  try {
    run([](void *, void *) { throw Foreign{5}; });
  } catch (const Foreign &foreign) {
    value = foreign.value;
  }
  EXPECT_EQ(value, 5);
  EXPECT_EQ(RTL_exceptionActive, 14);
  EXPECT_EQ(setJumpTop(), nullptr);
}

TEST_P(InEveryStyle, JumpsOfTheHostPassThrough) {
  static jmp_buf home;
  volatile mint arrived = 0;
  const mint before = RTL_exceptionActive;
  if (_setjmp(home) == 0)
    run([](void *, void *) { longjmp(home, 1); });
  else
    arrived = 1;
  EXPECT_EQ(arrived, 1);
  EXPECT_EQ(RTL_exceptionActive, before);
  freeSetJumpFramesAbove(nullptr); // a jump of the host's own leaves the handler's frame, in style 2
}

TEST_F(Failure, RaiseOfZeroInStyleTwoIsReportedAsOne) {
  setExceptionStyle(2);
  mint zero = 0;
  EXPECT_EQ(caught(raiseArgument, &zero), 1);
}

TEST_F(Failure, RaiseOfZeroInThrowingStylesIsReportedAsZero) {
  setExceptionStyle(0);
  mint zero = 0;
  CompilerError *raised = run(raiseArgument, &zero);
  ASSERT_NE(raised, nullptr);
  EXPECT_EQ(raised->kind, 4);
  EXPECT_EQ(raised->code, 0);
  Delete_CompilerError(raised);
}

TEST_F(Failure, StylesOtherThanOneLeaveThePendingCodeAlone) {
  RTL_exceptionActive = 14;
  for (mint style : {2, 0, 5}) {
    setExceptionStyle(style);
    mint code = 6;
    EXPECT_EQ(caught(raiseArgument, &code), 6);
    EXPECT_EQ(RTL_exceptionActive, 14);
  }
}

void leaveFrames(void *argument, void *) {
  SetJumpStack_Push();
  void *top = SetJumpStack_Push();
  if (argument == nullptr) return;
  // A raise goes to the top frame: let it pass on through both of those left behind.
  if (_setjmp(static_cast<__jmp_buf_tag *>(top)) != 0) {
    std::memcpy(top, setJumpTop()->next->next->context, sizeof(SetJumpFrame::context));
    throwTorvaneException(9);
  }
  throwTorvaneException(8);
}

TEST_F(Failure, FramesLeftBehindAreFreedDownToTheRememberedTopOnADirectReturn) {
  setExceptionStyle(2);
  void *outer = SetJumpStack_Push();
  EXPECT_EQ(caught(leaveFrames), 0);
  EXPECT_EQ(setJumpTop(), outer);
  SetJumpStack_Pop();
}

TEST_F(Failure, FramesLeftBehindAreFreedDownToTheRememberedTopOnARaise) {
  setExceptionStyle(2);
  void *outer = SetJumpStack_Push();
  mint some = 0;
  EXPECT_EQ(caught(leaveFrames, &some), 9);
  EXPECT_EQ(setJumpTop(), outer);
  SetJumpStack_Pop();
}

TEST_F(Failure, FreeingStopsAtTheListsEndWhenInnerCodePoppedTooMuch) {
  setExceptionStyle(2);
  SetJumpStack_Push();
  EXPECT_EQ(caught([](void *, void *) {
              SetJumpStack_Pop();
              SetJumpStack_Pop();
            }),
            0);
  EXPECT_EQ(setJumpTop(), nullptr);
}

TEST_F(Failure, HandlerReadsTheStyleOnceAtEntry) {
  setExceptionStyle(1);
  EXPECT_EQ(caught([](void *, void *) {
              throwTorvaneException(6);
              setExceptionStyle(2);
            }),
            6);
  setExceptionStyle(2);
  EXPECT_EQ(caught([](void *, void *) { setExceptionStyle(1); }), 0);
  setExceptionStyle(1);
  mint code = 0;
  try {
    run([](void *, void *) {
      setExceptionStyle(0);
      throwTorvaneException(6);
    });
  } catch (const TorvaneRuntimeException &raised) {
    code = raised.code;
  }
  EXPECT_EQ(code, 6);
}

TEST_F(Failure, OtherStylesThrowTheRuntimeExceptionByValue) {
  for (mint style : {0, 3, -1}) {
    setExceptionStyle(style);
    mint code = 0;
    try {
      throwTorvaneException(42);
    } catch (const std::exception &raised) {
      code = dynamic_cast<const TorvaneRuntimeException &>(raised).code;
    }
    EXPECT_EQ(code, 42);
  }
}

TEST(RuntimeException, WhatIsTheDecimalTextOfTheCode) {
  for (mint code : {0, 1, 42, -1, -42, INT32_MAX, INT32_MIN})
    EXPECT_EQ(std::string(TorvaneRuntimeException(code).what()), std::to_string(code));
}

TEST(RuntimeException, CodeLiesRightBehindTheBase) {
  TorvaneRuntimeException raised(7);
  EXPECT_EQ(reinterpret_cast<char *>(&raised.code) - reinterpret_cast<char *>(&raised),
            ptrdiff_t{sizeof(void *)});
  static_assert(std::is_base_of_v<std::exception, TorvaneRuntimeException>);
}

// Slots as the platform's C++ ABI numbers them: the complete and the deleting destructor, then what.
TEST(RuntimeException, WhatStandsBehindTheDestructorInTheVirtualSlots) {
  TorvaneRuntimeException raised(-12);
  using What = const char *(*)(const void *);
  void *const *slots;
  std::memcpy(&slots, static_cast<const void *>(&raised), sizeof slots);
  EXPECT_STREQ(reinterpret_cast<What>(slots[2])(&raised), "-12");
}

TEST_F(Failure, CompilerErrorHoldsWhatItWasMadeWith) {
  CompilerError *made = New_CompilerError(4, -3);
  EXPECT_EQ(made->kind, 4);
  EXPECT_EQ(made->code, -3);
  EXPECT_EQ(sizeof(CompilerError), 8u);
  Delete_CompilerError(made);
  Delete_CompilerError(nullptr);
}

TEST_F(Failure, CompilerErrorAndFrameWithoutMemoryAreTheFatalPath) {
  const std::function<void()> endlessly[] = {[] {
                                               for (;;) New_CompilerError(4, 1);
                                             },
                                             [] {
                                               for (;;) SetJumpStack_Push();
                                             }};
  for (const auto &use : endlessly) {
    const test::ChildOutcome child = test::runInChild([&use] {
      test::FailingHeap heap;
      heap.failFrom(100); // after some slabs
      use();
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 1);
  }
}

mint testAnswer, testCalls;
std::string testArgument;
mint answering(const char *where) {
  ++testCalls;
  testArgument = where;
  return testAnswer;
}

class AbortWatch : public Failure {
protected:
  AbortWatch() {
    testCalls = 0;
    testArgument.clear();
    setAbortWatch(&flag, answering);
  }
  mint flag = 0;
};

TEST_F(AbortWatch, LoweredFlagIsZeroWithoutAskingTheTest) {
  testAnswer = 1;
  EXPECT_EQ(checkAbortWatch(), 0);
  EXPECT_EQ(checkAbortWatchThrow(), 0);
  EXPECT_EQ(testCalls, 0);
}

TEST_F(AbortWatch, RaisedFlagAsksTheTestWithItsOneString) {
  flag = -1;
  testAnswer = 0;
  EXPECT_EQ(checkAbortWatch(), 0);
  EXPECT_EQ(testCalls, 1);
  EXPECT_EQ(testArgument, "Compiler");
  EXPECT_EQ(flag, -1);
}

TEST_F(AbortWatch, AnyNonZeroAnswerIsOne) {
  flag = 1;
  for (mint answer : {1, 2, -1, INT32_MIN}) {
    testAnswer = answer;
    EXPECT_EQ(checkAbortWatch(), 1);
  }
  EXPECT_EQ(flag, 1);
  EXPECT_EQ(RTL_exceptionActive, 0);
}

TEST_F(AbortWatch, ThrowingFormRaisesOnAPositiveAnswerOnly) {
  flag = 1;
  for (mint answer : {0, -1, INT32_MIN}) {
    testAnswer = answer;
    EXPECT_EQ(checkAbortWatchThrow(), 0);
    EXPECT_EQ(RTL_exceptionActive, 0);
  }
  testAnswer = 2;
  EXPECT_EQ(checkAbortWatchThrow(), 1);
  EXPECT_EQ(RTL_exceptionActive, 33);
}

TEST_F(AbortWatch, ThrowingFormRaisesInEveryStyle) {
  flag = 1;
  testAnswer = 1;
  for (mint style : {1, 2, 0}) {
    setExceptionStyle(style);
    EXPECT_EQ(caught([](void *, void *) { checkAbortWatchThrow(); }), 33);
  }
}

TEST_F(AbortWatch, FlagMayBeRaisedByAnotherThread) {
  testAnswer = 1;
  std::thread host([this] { std::atomic_ref(flag).store(1, std::memory_order_relaxed); });
  while (checkAbortWatch() == 0) std::this_thread::yield();
  host.join();
  EXPECT_EQ(testCalls, 1);
}

TEST_F(AbortWatch, HandleIsTheHostsFlagItself) { EXPECT_EQ(getAbortWatchHandle(), &flag); }

TEST_F(AbortWatch, NullFlagOrTestKeepsTheLibrarysOwn) {
  setAbortWatch(nullptr, answering);
  ASSERT_NE(getAbortWatchHandle(), nullptr);
  EXPECT_NE(getAbortWatchHandle(), &flag);
  EXPECT_EQ(*getAbortWatchHandle(), 0);
  setAbortWatch(&flag, nullptr);
  flag = 1;
  EXPECT_EQ(checkAbortWatch(), 0);
  EXPECT_EQ(testCalls, 0);
}

TEST_F(AbortWatch, LoopPollIsSilentWhateverTheHostsFlagSays) {
  flag = 1;
  testAnswer = 1;
  initializeAbortPoll(0);
  EXPECT_EQ(abortQ(), 0);
  EXPECT_EQ(testCalls, 0);
}

TEST(TestException, FiniteValuesAreZero) {
  using Limits = std::numeric_limits<mreal>;
  for (mreal x : {0.0, -0.0, 1.0, -1.5, Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
                  -Limits::denorm_min()})
    EXPECT_EQ(TestException(x), 0) << x;
}

TEST(TestException, NotANumberOfEitherKindAndSignIsOne) {
  for (uint64_t bits : {0x7FF8000000000000u, 0xFFF8000000000000u, 0x7FF0000000000001u, 0xFFF0000000000001u,
                        0x7FFFFFFFFFFFFFFFu, 0xFFFFFFFFFFFFFFFFu})
    EXPECT_EQ(TestException(std::bit_cast<mreal>(uint64_t{bits})), 1) << bits;
}

TEST(TestException, InfinitiesAreTwoAndThree) {
  EXPECT_EQ(TestException(std::numeric_limits<mreal>::infinity()), 2);
  EXPECT_EQ(TestException(-std::numeric_limits<mreal>::infinity()), 3);
}

TEST(DummyFunction, ReturnsItsArgument) {
  for (mint value : {0, 1, -1, INT32_MIN, INT32_MAX}) EXPECT_EQ(dummyFunction(value), value);
}

} // namespace
