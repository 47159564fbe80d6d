// Raising by the three styles, the frame that turns a raise into a CompilerError, and the abort polls.
//
// Nothing from here to a host's handler is noexcept: exceptions that are not the library's, and jumps, pass
// through. A function that is passed through leaves the machinery as it found it.
#include "failure.h"

#include "hooks.h"
#include "memory.h"
#include "set_jump.h"
#include "startup.h"
#include <torvane/exception.hpp>

#include <atomic>
#include <bit>
#include <csetjmp>

mint RTL_exceptionStyle = 1;
mint RTL_exceptionActive = 0;

namespace torvane {

namespace {

constexpr auto relaxed = std::memory_order_relaxed;

enum Style : mint { kPending = 1, kJump = 2 }; // every other value throws

constexpr mint kRaisedKind = 4; // the one kind of CompilerError in use

// The exported words are plain for compiled code; here they are read and written as relaxed atomics.
std::atomic_ref<mint> style() { return std::atomic_ref(RTL_exceptionStyle); }
std::atomic_ref<mint> pending() { return std::atomic_ref(RTL_exceptionActive); }

constinit mint noAbort = 0;
mint confirmNothing(const char *) { return 0; }

constinit std::atomic<mint *> abortFlag{&noAbort};
constinit std::atomic<mint (*)(const char *)> abortTest{confirmNothing};

// The poll of long loops, and the word beside it, which stage 0 clears too and nothing reads.
constinit std::atomic<mint> abortPollSwitch{0};
constinit std::atomic<mint> abortPollNeighbour{0};

// The host's answer, 0 while its flag is down. The flag is left alone.
mint abortAnswer() {
  if (std::atomic_ref(*abortFlag.load(relaxed)).load(relaxed) == 0) return 0;
  return abortTest.load(relaxed)("Compiler");
}

using Body = void (*)(void *argument, void *closure);

// A closure points to a pointer to a record whose first word is the function.
Body bodyOf(void *closure) { return **static_cast<Body *const *>(closure); }

CompilerError *errorOf(mint code) { return New_CompilerError(kRaisedKind, code); }

// Puts the outer frame's pending code back however the inner one is left.
class PendingCode {
public:
  PendingCode() : outer(pending().exchange(0, relaxed)) {}
  ~PendingCode() { pending().store(outer, relaxed); }
  PendingCode(const PendingCode &) = delete;
  PendingCode &operator=(const PendingCode &) = delete;

private:
  const mint outer;
};

CompilerError *catchPending(Body body, void *argument, void *closure) {
  const PendingCode scope;
  body(argument, closure);
  const mint code = pending().load(relaxed);
  return code == 0 ? nullptr : errorOf(code);
}

// Frees the frames that stand above the one that was on top at the beginning, however this one is left:
// those that inner code left behind too.
class JumpScope {
public:
  JumpScope() : remembered(setJumpTop()) {}
  ~JumpScope() { freeSetJumpFramesAbove(remembered); }
  JumpScope(const JumpScope &) = delete;
  JumpScope &operator=(const JumpScope &) = delete;

private:
  SetJumpFrame *const remembered;
};

CompilerError *catchJump(Body body, void *argument, void *closure) {
  const JumpScope scope;
  const int code = _setjmp(contextOf(linkSetJumpFrame()));
  if (code != 0) return errorOf(code);
  body(argument, closure);
  return nullptr;
}

CompilerError *catchThrown(Body body, void *argument, void *closure) {
  mint code;
  try {
    body(argument, closure);
    return nullptr;
  } catch (const TorvaneRuntimeException &raised) {
    code = raised.code;
  }
  return errorOf(code);
}

} // namespace

void setAbortWatch(mint *flag, mint (*test)(const char *)) {
  abortFlag.store(flag != nullptr ? flag : &noAbort, relaxed);
  abortTest.store(test != nullptr ? test : confirmNothing, relaxed);
}

void initializeAbortPoll(mint stage) {
  if (stage != 0) return;
  abortPollSwitch.store(0, relaxed);
  abortPollNeighbour.store(0, relaxed);
}

mint abortQ(const char *where) { return abortPollSwitch.load(relaxed) == 0 ? 0 : confirmAbort(where); }

mint setAbortPoll(mint isOn) { return abortPollSwitch.exchange(isOn, relaxed); }

} // namespace torvane

using namespace torvane;

void throwTorvaneException(mint code) {
  switch (style().load(relaxed)) {
  case kPending:
    pending().store(code, relaxed);
    return;
  case kJump:
    jumpToTopFrame(code);
  default:
    throw TorvaneRuntimeException(code);
  }
}

mint setExceptionStyle(mint newStyle) {
  style().store(newStyle, relaxed);
  return newStyle;
}

mint getExceptionActive() { return pending().load(relaxed); }

mint *getExceptionActiveHandle() { return &RTL_exceptionActive; }

mint setExceptionActive(mint value) { return pending().exchange(value, relaxed); }

CompilerError *catchExceptionHandler(void *argument, void *closure) {
  const Body body = bodyOf(closure);
  switch (style().load(relaxed)) {
  case kPending:
    return catchPending(body, argument, closure);
  case kJump:
    return catchJump(body, argument, closure);
  default:
    return catchThrown(body, argument, closure);
  }
}

CompilerError *New_CompilerError(mint kind, mint code) {
  auto *made = static_cast<CompilerError *>(allocate(sizeof(CompilerError), 0, kFatal));
  *made = {kind, code};
  return made;
}

void Delete_CompilerError(CompilerError *unwanted) { torvane::free(unwanted); }

mint checkAbortWatch() { return abortAnswer() != 0; }

mint checkAbortWatchThrow() {
  if (abortAnswer() <= 0) return 0;
  raise(error::abortRequested);
  return 1;
}

mint *getAbortWatchHandle() { return abortFlag.load(relaxed); }

// By the bits, so that a signalling NaN raises nothing here.
mint TestException(mreal x) {
  constexpr uint64_t infinity = 0x7FF0000000000000u;
  const auto bits = std::bit_cast<uint64_t>(x);
  const uint64_t magnitude = bits & ~(uint64_t{1} << 63);
  if (magnitude < infinity) return 0;
  if (magnitude > infinity) return 1;
  return bits == magnitude ? 2 : 3;
}

mint dummyFunction(mint value) { return value; }
