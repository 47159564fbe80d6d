/* The names of what may come out of a compiled library: docs/errors.md as a table. */
#ifndef EXAMPLE_CODES_H
#define EXAMPLE_CODES_H

#include <torvane/types.h>

/* What a code that was raised is called, and a status that was returned; "unknown" for others. */
const char *errorName(mint code);
const char *errorMeaning(mint code);
const char *statusMeaning(mint status);

/* Prints both tables to stdout. */
void codesPrint(void);

#endif
