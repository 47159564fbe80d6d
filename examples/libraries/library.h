/* What the compiled libraries here share: calls by name, and a word about bad input. */
#ifndef EXAMPLE_LIBRARY_H
#define EXAMPLE_LIBRARY_H

#include "../host/entry.h"
#include "../message.h"

/* Statuses of docs/errors.md. */
enum { BAD_INPUT = 4, NO_MEMORY = 5, WRONG_WORDS = 12 };

/* Operator numbers. */
enum { SQUARE = 56, PLUS = 257, SUBTRACT = 258, TIMES = 259, DIVIDE = 260 };

/* The status of a function by name, with pointers to its result and to its arguments. */
#define CALL(record, name, result, ...)                                                                      \
  ((record)->runtime->lookupRuntimeFunction(name)(                                                           \
      record, (mint)(sizeof(void *[]){__VA_ARGS__} / sizeof(void *)), (void *[]){__VA_ARGS__}, result))

/* Says on stderr what is wrong, and gives back the status for the host. */
__attribute__((format(printf, 2, 3))) static inline mint refuse(mint status, const char *format, ...) {
  va_list arguments;
  va_start(arguments, format);
  messageEnd(format, arguments);
  va_end(arguments);
  return status;
}

#endif
