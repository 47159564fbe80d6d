/* How a line about what is wrong ends, whoever begins it: the text, and the end of the line, on stderr. */
#ifndef EXAMPLE_MESSAGE_H
#define EXAMPLE_MESSAGE_H

#include <stdarg.h>
#include <stdio.h>

static inline void messageEnd(const char *format, va_list arguments) {
  vfprintf(stderr, format, arguments);
  fputc('\n', stderr);
}

#endif
