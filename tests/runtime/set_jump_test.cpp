// The stack of set-jump frames: frames of both makers, raises that come back to them, and what is left
// behind.
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "runtime/set_jump.h"

#include <gtest/gtest.h>

#include <csetjmp>

using namespace torvane;

namespace {

// Uses up stack where the callers of the saving primitive once stood.
__attribute__((noinline)) int overwriteStack(int depth) {
  volatile unsigned char noise[256];
  for (auto &byte : noise) byte = static_cast<unsigned char>(depth);
  return depth == 0 ? noise[0] : overwriteStack(depth - 1) + noise[255];
}

__attribute__((noinline)) void raiseFromBelow(mint code, int depth) {
  volatile int kept = depth;
  if (depth > 0) raiseFromBelow(code, depth - 1);
  throwTorvaneException(code);
  kept = kept + 1;
}

class SetJump : public testing::Test {
protected:
  SetJump() : usedBefore(usedBytesOfThisThread()) { setExceptionStyle(2); }
  ~SetJump() override {
    EXPECT_EQ(setJumpTop(), nullptr);
    EXPECT_EQ(usedBytesOfThisThread(), usedBefore);
    setExceptionStyle(1);
  }
  uint32_t usedBefore;
};

TEST_F(SetJump, FrameHoldsItsContextFirstAndItsLinkBehind) {
  auto *first = static_cast<SetJumpFrame *>(SetJumpStack_Push());
  auto *second = static_cast<SetJumpFrame *>(SetJumpStack_Push());
  EXPECT_EQ(setJumpTop(), second);
  EXPECT_EQ(second->next, first);
  EXPECT_EQ(first->next, nullptr);
  EXPECT_EQ(static_cast<void *>(first), static_cast<void *>(first->context));
  if (sizeof(void *) == 4) {
    EXPECT_EQ(reinterpret_cast<char *>(&first->next) - reinterpret_cast<char *>(first), 64);
  }
  SetJumpStack_Pop();
  EXPECT_EQ(setJumpTop(), first);
  SetJumpStack_Pop();
}

TEST_F(SetJump, PopOfAnEmptyStackDoesNothing) {
  SetJumpStack_Pop();
  EXPECT_EQ(setJumpTop(), nullptr);
}

TEST_F(SetJump, RaiseReturnsToTheContextThatTheCallerSavedAndLeavesTheFrame) {
  void *frame = SetJumpStack_Push();
  volatile int arrivals = 0;
  const int code = _setjmp(static_cast<__jmp_buf_tag *>(frame));
  arrivals = arrivals + 1;
  if (code == 0) {
    raiseFromBelow(42, 10);
    FAIL() << "a raise of style 2 returned";
  }
  EXPECT_EQ(code, 42);
  EXPECT_EQ(arrivals, 2);
  EXPECT_EQ(setJumpTop(), frame);
  SetJumpStack_Pop();
}

TEST_F(SetJump, PushAuxReturnsZeroAndThenTheCodeIntoTheCallersLiveFrame) {
  volatile int arrivals = 0;
  volatile unsigned canary = 0xC0FFEE;
  const mint code = SetJumpStack_PushAux();
  arrivals = arrivals + 1;
  if (code == 0) {
    EXPECT_EQ(arrivals, 1);
    canary = canary + 1;
    overwriteStack(20);
    raiseFromBelow(17, 30);
    FAIL() << "a raise of style 2 returned";
  }
  EXPECT_EQ(code, 17);
  EXPECT_EQ(arrivals, 2);
  EXPECT_EQ(canary, 0xC0FFEFu);
  SetJumpStack_Pop();
}

TEST_F(SetJump, OneFrameOfPushAuxTakesManyRaises) {
  volatile mint next = 0;
  const mint code = SetJumpStack_PushAux();
  EXPECT_EQ(code, next);
  if (code < 1000) {
    next = next + 1;
    raiseFromBelow(next, code % 7);
  }
  EXPECT_EQ(next, 1000);
  SetJumpStack_Pop();
}

// Values that live in callee-saved registers around the saving call.
__attribute__((noinline)) long sumAround(long a, long b, long c, long d, long e, long f) {
  const mint code = SetJumpStack_PushAux();
  if (code == 0) raiseFromBelow(33, 3);
  return a + 10 * b + 100 * c + 1000 * d + 10000 * e + 100000 * f + code;
}

TEST_F(SetJump, SecondReturnFindsTheCallersRegistersAsTheyWere) {
  EXPECT_EQ(sumAround(1, 2, 3, 4, 5, 6), 654321 + 33);
  SetJumpStack_Pop();
}

TEST_F(SetJump, RaiseOfZeroArrivesAsOne) {
  const mint code = SetJumpStack_PushAux();
  if (code == 0) throwTorvaneException(0);
  EXPECT_EQ(code, 1);
  SetJumpStack_Pop();
}

TEST_F(SetJump, NegativeCodesArriveAsTheyAre) {
  const mint code = SetJumpStack_PushAux();
  if (code == 0) throwTorvaneException(INT32_MIN);
  EXPECT_EQ(code, INT32_MIN);
  SetJumpStack_Pop();
}

__attribute__((noinline)) mint innerPass(int depth) {
  if (depth == 0) throwTorvaneException(1);
  const mint code = SetJumpStack_PushAux();
  if (code == 0) return innerPass(depth - 1);
  SetJumpStack_Pop();
  throwTorvaneException(code + 1); // to the next outer frame
  return 0;
}

TEST_F(SetJump, FramesNestAndARaiseFromACatcherGoesToTheNextOuterOne) {
  const mint code = SetJumpStack_PushAux();
  if (code == 0) innerPass(5);
  EXPECT_EQ(code, 6);
  SetJumpStack_Pop();
}

TEST_F(SetJump, FramesOfBothMakersShareOneStack) {
  void *pushed = SetJumpStack_Push();
  if (const int outer = _setjmp(static_cast<__jmp_buf_tag *>(pushed)); outer == 0) {
    if (const mint inner = SetJumpStack_PushAux(); inner == 0)
      throwTorvaneException(5);
    else {
      EXPECT_EQ(inner, 5);
      SetJumpStack_Pop();
      EXPECT_EQ(setJumpTop(), pushed);
      throwTorvaneException(6);
    }
  } else {
    EXPECT_EQ(outer, 6);
    SetJumpStack_Pop();
  }
}

} // namespace
