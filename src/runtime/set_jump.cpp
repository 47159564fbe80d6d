// The frames of style 2, over the platform's set-jump and long-jump. SetJumpStack_PushAux, which must save
// its caller's context and not its own, is in set_jump_aux.S; two names here have C linkage for its sake.
#include "set_jump.h"

#include "failure.h"
#include "memory.h"

#define TORVANE_HIDDEN __attribute__((visibility("hidden")))

namespace torvane {

// What the primitive writes when it is told not to save the signal mask: everything up to the mask.
static_assert(offsetof(__jmp_buf_tag, __saved_mask) <= sizeof(SetJumpFrame::context));
static_assert(offsetof(SetJumpFrame, next) == sizeof(SetJumpFrame::context));
#if UINTPTR_MAX == UINT32_MAX
static_assert(sizeof(SetJumpFrame) == 68 && alignof(SetJumpFrame) == alignof(jmp_buf));
// The last word of the context is spare: set_jump_aux.S keeps a return address there.
static_assert(offsetof(__jmp_buf_tag, __saved_mask) <= 60);
#endif

namespace {
constexpr auto relaxed = std::memory_order_relaxed;
}

extern "C" {
TORVANE_HIDDEN constinit std::atomic<SetJumpFrame *> torvaneSetJumpTop{nullptr};
TORVANE_HIDDEN void *torvaneLinkSetJumpFrame() { return linkSetJumpFrame(); }
}

SetJumpFrame *setJumpTop() { return torvaneSetJumpTop.load(relaxed); }

SetJumpFrame *linkSetJumpFrame() {
  auto *frame = static_cast<SetJumpFrame *>(allocate(sizeof(SetJumpFrame), 0, kFatal));
  frame->next = setJumpTop();
  torvaneSetJumpTop.store(frame, relaxed);
  return frame;
}

void freeSetJumpFramesAbove(const SetJumpFrame *remembered) {
  for (SetJumpFrame *top; (top = setJumpTop()) != nullptr && top != remembered;) {
    torvaneSetJumpTop.store(top->next, relaxed);
    free(top);
  }
}

void jumpToTopFrame(mint code) { longjmp(contextOf(setJumpTop()), code); }

} // namespace torvane

using namespace torvane;

void *SetJumpStack_Push() { return linkSetJumpFrame(); }

void SetJumpStack_Pop() {
  if (const SetJumpFrame *const top = setJumpTop()) freeSetJumpFramesAbove(top->next);
}
