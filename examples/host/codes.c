/* Two tables, each closed by a row without text. A status has no name of its own, only a meaning. */
#include "codes.h"

#include <torvane/failure.h>

#include <stddef.h>
#include <stdio.h>

typedef struct Code {
  mint number;
  const char *name, *meaning;
} Code;

static const Code errors[] = {
    {TORVANE_ERROR_INTEGER_OVERFLOW, "INTEGER_OVERFLOW", "an integer result does not fit its type"},
    {TORVANE_ERROR_INEXACT_LOGARITHM, "INEXACT_LOGARITHM", "an integer logarithm is not exact"},
    {TORVANE_ERROR_INFINITE, "INFINITE", "a real result is infinite"},
    {TORVANE_ERROR_NOT_A_NUMBER, "NOT_A_NUMBER", "a real result is not a number"},
    {TORVANE_ERROR_DOMAIN, "DOMAIN", "an argument is outside the domain of the operation"},
    {TORVANE_ERROR_COMPLEX_ZERO_DIVISION, "COMPLEX_ZERO_DIVISION", "division by a complex zero"},
    {TORVANE_ERROR_UNDEFINED_FOR_TYPE, "UNDEFINED_FOR_TYPE", "the operation has no meaning for this type"},
    {TORVANE_ERROR_ABORT, "ABORT", "the host asked for an abort"},
    {TORVANE_ERROR_CONVERSION_RANGE, "CONVERSION_RANGE",
     "an integer conversion is out of the target's range"},
    {0, NULL, NULL}};

static const Code statuses[] = {
    {0, "", "success"},
    {-1, "", "arguments that fit nothing, or no memory"},
    {1, "", "a wrong tensor type, or a failure of parts or of tensor mathematics"},
    {2, "", "a wrong rank"},
    {3, "", "dimensions do not fit, or a position is outside the tensor"},
    {4, "", "a value is out of range, or a kernel failed"},
    {5, "", "no memory for a result"},
    {6, "", "a service that the library does not provide, or a conversion that failed"},
    {7, "", "nothing is left of a set of rows"},
    {11, "", "the generator lacks a function"},
    {12, "", "a wrong number of arguments, or an unknown function"},
    {14, "", "the plain random function"},
    {18, "", "a negative length"},
    {204, "", "no numeric array can view this tensor"},
    {401, "", "a negative rank"},
    {402, "", "a negative extent"},
    {403, "", "a size overflow, or out of memory"},
    {1000, "", "the poll of a long loop reported an abort"},
    {1001, "", "a sum, product, norm or bound is out of range"},
    {1008, "", "a size that is not positive"},
    {1300, "", "a numeric array: null argument"},
    {1301, "", "a numeric array: element type"},
    {1302, "", "a numeric array: rank"},
    {1303, "", "a numeric array: sizes"},
    {1304, "", "a numeric array: conversion method"},
    {1305, "", "a numeric array: value or destination"},
    {0, NULL, NULL}};

static const Code *find(const Code *table, mint number) {
  static const Code unknown = {0, "unknown", "unknown"};
  while (table->meaning && table->number != number) table++;
  return table->meaning ? table : &unknown;
}

const char *errorName(mint code) { return find(errors, code)->name; }
const char *errorMeaning(mint code) { return find(errors, code)->meaning; }
const char *statusMeaning(mint status) { return find(statuses, status)->meaning; }

void codesPrint(void) {
  for (const Code *code = errors; code->meaning; code++)
    printf("error %d %s: %s\n", code->number, code->name, code->meaning);
  for (const Code *code = statuses; code->meaning; code++)
    printf("status %d: %s\n", code->number, code->meaning);
}
