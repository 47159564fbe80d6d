// The stack of set-jump frames, where the raises of style 2 return to. One stack for the process: frames are
// pushed and raised to by one thread at a time.
//
// Invariant: the frames from setJumpTop down belong to functions that have not returned; whoever leaves one
// unlinks it first.
#pragma once

#include "types.h"

#include <atomic>
#include <csetjmp>

namespace torvane {

struct SetJumpFrame {
#if UINTPTR_MAX == UINT32_MAX
  alignas(void *) unsigned char context[64]; // holds what the primitive writes without a signal mask
#else
  alignas(jmp_buf) unsigned char context[sizeof(jmp_buf)];
#endif
  SetJumpFrame *next;
};

// The saved context, as the platform's primitives take it.
inline __jmp_buf_tag *contextOf(SetJumpFrame *frame) {
  return reinterpret_cast<__jmp_buf_tag *>(frame->context);
}

SetJumpFrame *setJumpTop();

// A new frame, linked on top. Out of memory is the fatal path.
SetJumpFrame *linkSetJumpFrame();

// Unlinks and frees the frames from the top down to `remembered`, which stays, or down to the list's end.
void freeSetJumpFramesAbove(const SetJumpFrame *remembered);

// Goes to the top frame, which stays linked, with `code`; 0 arrives as 1. There must be a frame.
[[noreturn]] void jumpToTopFrame(mint code);

} // namespace torvane
