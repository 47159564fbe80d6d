/* Failures and aborts.
 *
 * Scalar operations raise an error code; how the raise travels is one process-wide choice, the
 * exception style: 1 (the default) stores the code in RTL_exceptionActive and goes on, 2 returns to
 * the top set-jump frame, any other value throws the C++ class TorvaneRuntimeException.
 * catchExceptionHandler turns all three into a CompilerError. The style, the pending code and the
 * stack of frames are process-wide plain words: styles 1 and 2 are for one raising thread at a time. */
#ifndef TORVANE_FAILURE_H
#define TORVANE_FAILURE_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* The codes that operations raise. */
enum {
  TORVANE_ERROR_INTEGER_OVERFLOW = 1,
  TORVANE_ERROR_INEXACT_LOGARITHM = 3,
  TORVANE_ERROR_INFINITE = 6,
  TORVANE_ERROR_NOT_A_NUMBER = 9,
  TORVANE_ERROR_DOMAIN = 14,
  TORVANE_ERROR_COMPLEX_ZERO_DIVISION = 16,
  TORVANE_ERROR_UNDEFINED_FOR_TYPE = 17,
  TORVANE_ERROR_ABORT = 33,
  TORVANE_ERROR_CONVERSION_RANGE = 42
};

/* A caught failure: kind 4, and the code that was raised. */
typedef struct CompilerError {
  mint kind;
  mint code;
} CompilerError;

/* The style, and the pending code of style 1 (0: none), for compiled code to read where they stand. */
extern TORVANE_API mint RTL_exceptionStyle;
extern TORVANE_API mint RTL_exceptionActive;

/* Raises `code` by the style. Returns in style 1 only. */
TORVANE_API void throwTorvaneException(mint code);

/* Stores the style and returns it. */
TORVANE_API mint setExceptionStyle(mint style);

/* The pending code of style 1, its address, and its setter, which returns the previous code. */
TORVANE_API mint getExceptionActive(void);
TORVANE_API mint *getExceptionActiveHandle(void);
TORVANE_API mint setExceptionActive(mint value);

/* Runs the function that `closure` names (closure points to a pointer to a record whose first word is
 * the function) with (argument, closure) and returns null, or a new CompilerError of kind 4 with the
 * code that was raised meanwhile. Handlers nest. The caller deletes the error. */
TORVANE_API CompilerError *catchExceptionHandler(void *argument, void *closure);
TORVANE_API CompilerError *New_CompilerError(mint kind, mint code);
TORVANE_API void Delete_CompilerError(CompilerError *error);

/* Frames of style 2. Push links a new frame on top and returns it; its first member is the platform's
 * jump buffer, into which the caller saves its context. PushAux saves the context itself: it returns 0
 * at once and a second time, with the code, when a raise comes back to it. Pop frees the top frame. */
TORVANE_API void *SetJumpStack_Push(void);
TORVANE_API mint SetJumpStack_PushAux(void) __attribute__((returns_twice));
TORVANE_API void SetJumpStack_Pop(void);

/* 1 when the host's abort flag is raised and its test confirms with a non-zero value, else 0. The
 * throwing form raises code 33 then (when the test is positive). The handle is the host's flag itself. */
TORVANE_API mint checkAbortWatch(void);
TORVANE_API mint checkAbortWatchThrow(void);
TORVANE_API mint *getAbortWatchHandle(void);

/* 0 for a finite value, 1 for a NaN, 2 for positive and 3 for negative infinity. */
TORVANE_API mint TestException(mreal x);

/* Returns its argument; a call that optimisers cannot remove. */
TORVANE_API mint dummyFunction(mint value);

TORVANE_END_DECLARATIONS

#endif
