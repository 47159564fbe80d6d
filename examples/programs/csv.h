/* Reads a CSV file of measurements: one header row of names, then one record a line.
 *
 * The first record decides which columns are numeric; the others are skipped. Fields are separated by
 * commas; blanks around a field and one pair of double quotes are dropped, blank lines are passed over. A
 * comma between the quotes belongs to the field, an end of line does not. */
#ifndef EXAMPLE_CSV_H
#define EXAMPLE_CSV_H

#include <torvane/torvane.h>

#include <stdbool.h>

typedef struct Csv {
  const char *program; /* whose complaints they are */
  const char *path;
  char *text;      /* the whole file; its separators become NULs, and names and fields point into it */
  mint headerLine; /* where the columns are named */
  mint columnCount;
  char **names;  /* columnCount of them */
  bool *numeric; /* columnCount of them */
  mint numericCount;
  mint rowCount;
  mreal *values;      /* rowCount records of numericCount values */
  mint valueCapacity; /* room in `values`, in elements */
} Csv;

/* Fills a record that is zero but for its program. On failure a message is on stderr; csvFree is due either
 * way. */
bool csvRead(Csv *csv, const char *path);
void csvFree(Csv *csv);

/* The column of the file, from 0, that holds numeric column `index`. */
mint csvNumericColumn(const Csv *csv, mint index);

/* The name of numeric column `index`; the width of a report's columns, in which every name has room. */
const char *csvName(const Csv *csv, mint index);
int csvNameWidth(const Csv *csv);

/* Prints what was read and what was skipped. */
void csvPrintHeading(const Csv *csv);

/* Says on stderr what is wrong where, and returns false. Line and column count from 1; 0: no one place. */
bool csvComplain(const Csv *csv, mint line, mint column, const char *format, ...)
    __attribute__((format(printf, 4, 5)));

#endif
