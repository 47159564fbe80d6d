/* standardise FILE.csv: what a compiler would emit for
 *
 *     z = (x - mean(x)) / deviation(x),    correlation = z . transpose(z) / (count - 1)
 *
 * on the numeric columns of a table. The tensor has one row per column of the file: an operand of
 * extents {n} then pairs its element k with the whole row k of one of extents {n, m}, and no operand is
 * ever expanded. Every status is tested, and nothing is printed before everything is computed. */
#include "csv.h"

#include <stdio.h>

enum { SUBTRACT = 258, DIVIDE = 260, SQUARE = 56, SQRT = 57 }; /* operator numbers */

static const mint dense[3] = {1, 1, 1}; /* strides: result, first operand, second operand */

typedef struct Study {
  MTensor *values;       /* {n, m}: n columns of m measurements */
  MTensor *means;        /* {n} */
  MTensor *deviations;   /* {n} */
  MTensor *standardised; /* {n, m} */
  MTensor *correlation;  /* {n, n} */
} Study;

static void studyDelete(Study *study) {
  MTensor_delete(study->values); /* null is ignored */
  MTensor_delete(study->means);
  MTensor_delete(study->deviations);
  MTensor_delete(study->standardised);
  MTensor_delete(study->correlation);
}

static mreal *rowOf(const MTensor *table, mint row) {
  return (mreal *)table->data + (size_t)row * (size_t)table->dimensions[1];
}

static mreal element(const MTensor *vector, mint index) { return ((const mreal *)vector->data)[index]; }

static bool succeeded(mint status, const char *step) {
  if (status == 0) return true;
  fprintf(stderr, "standardise: %s failed with status %d\n", step, status);
  return false;
}

static bool newReals(MTensor **slot, mint rank, const mint *extents) {
  return succeeded(MTensor_allocateCommon(slot, TORVANE_TYPE_REAL, rank, extents, 1), "allocation");
}

static bool binary(MTensor **result, MTensor *x, MTensor *y, mint op) {
  return succeeded(MTensorMathBinary(result, x, y, op, TORVANE_TYPE_REAL), "a binary operator");
}

static bool unary(MTensor **result, MTensor *x, mint op) {
  return succeeded(MTensorMathUnary(result, x, op, TORVANE_TYPE_REAL), "a unary operator");
}

/* Divides a tensor in place by an integer, which is a tensor of rank 0 and so goes with any shape. */
static bool divideBy(MTensor **tensor, mint divisor) {
  MTensor *scalar = LoadNewRankZeroMTensor(&divisor, TORVANE_TYPE_INTEGER);
  bool divided = binary(tensor, *tensor, scalar, DIVIDE);
  MTensor_delete(scalar);
  return divided;
}

/* The file holds records, the study one row per column: a gather with the record's length as stride. */
static bool loadRows(Study *study, const Csv *csv) {
  mint extents[2] = {csv->numericCount, csv->rowCount};
  if (!newReals(&study->values, 2, extents)) return false;
  for (mint row = 0; row < csv->numericCount; row++)
    GenericData_copySomeCoerce(rowOf(study->values, row), TORVANE_TYPE_REAL, 0, 1, csv->values,
                               TORVANE_TYPE_REAL, row, csv->numericCount, csv->rowCount);
  return true;
}

/* sums[k] = total of row k. The checked routine fails where a sum is infinite or not a number. */
static bool totals(MTensor **sums, const MTensor *table, const Csv *csv) {
  if (!newReals(sums, 1, table->dimensions)) return false;
  mreal *sum = (*sums)->data;
  for (mint row = 0; row < table->dimensions[0]; row++)
    if (machfunc_d_total(sum + row, rowOf(table, row), table->dimensions[1], dense, TORVANE_CHECK_REALS) != 0)
      return csvComplain(csv, csv->headerLine, csvNumericColumn(csv, row) + 1,
                         "the values are too large to be summed");
  return true;
}

typedef struct Range {
  mreal low, high;
} Range;

static Range rangeOf(const MTensor *table, mint row) {
  const mreal *x = rowOf(table, row), *end = x + table->dimensions[1];
  Range range = {*x, *x};
  while (++x < end) {
    if (*x < range.low) range.low = *x;
    if (*x > range.high) range.high = *x;
  }
  return range;
}

/* Rounding can leave equal values a deviation that is not quite 0, and tiny ones can have squares that
 * are 0: neither can be standardised. */
static bool deviationsArePositive(const Study *study, const Csv *csv) {
  for (mint row = 0; row < csv->numericCount; row++) {
    Range range = rangeOf(study->values, row);
    if (range.low == range.high || !(element(study->deviations, row) > 0))
      return csvComplain(csv, csv->headerLine, csvNumericColumn(csv, row) + 1,
                         "its deviation is 0, it cannot be standardised");
  }
  return true;
}

static bool standardise(Study *study, const Csv *csv) {
  MTensor **z = &study->standardised, **deviations = &study->deviations, *squares = NULL;
  bool done = totals(&study->means, study->values, csv) && divideBy(&study->means, csv->rowCount) &&
              binary(z, study->values, study->means, SUBTRACT) && unary(&squares, *z, SQUARE) &&
              totals(deviations, squares, csv) && divideBy(deviations, csv->rowCount - 1) &&
              unary(deviations, *deviations, SQRT) && deviationsArePositive(study, csv) &&
              binary(z, *z, *deviations, DIVIDE);
  MTensor_delete(squares);
  return done;
}

static bool correlate(Study *study, const Csv *csv) {
  mint n = csv->numericCount, m = csv->rowCount, extents[2] = {n, n};
  MTensor *products = NULL;
  if (MTensor_allocateCommon(&study->correlation, TORVANE_TYPE_REAL, 2, extents, 1) != 0)
    return csvComplain(csv, csv->headerLine, 0, "%d numeric columns are too many to be correlated", n);
  bool done = newReals(&products, 1, &m);
  for (mint i = 0; done && i < n * n; i++) {
    mreal *x = rowOf(study->standardised, i / n), *y = rowOf(study->standardised, i % n), sum;
    done = succeeded(machfunc_dd_times(products->data, x, y, m, dense, TORVANE_CHECK_REALS), "times") &&
           succeeded(machfunc_d_total(&sum, products->data, m, dense, TORVANE_CHECK_REALS), "total");
    if (done) ((mreal *)study->correlation->data)[i] = sum / (m - 1);
  }
  MTensor_delete(products);
  return done;
}

/* The standardised table must have mean 0 and deviation 1; its own, computed anew, show the rounding. */
static bool check(Study *again, const Study *study, const Csv *csv) {
  MTensor **z = &again->values;
  return succeeded(MTensor_makeCopy(z, study->standardised), "copying") && standardise(again, csv);
}

static void printSummary(const Csv *csv, const Study *study, const Study *again) {
  printf("\n%-*s %6s %12s %12s %9s %9s %10s %12s\n", csvNameWidth(csv), "column", "count", "mean",
         "deviation", "z min", "z max", "z mean", "z deviation");
  for (mint row = 0; row < csv->numericCount; row++) {
    Range z = rangeOf(study->standardised, row);
    printf("%-*s %6d %12.6g %12.6g %9.5f %9.5f %10.1e %12.9f\n", csvNameWidth(csv), csvName(csv, row),
           csv->rowCount, element(study->means, row), element(study->deviations, row), z.low, z.high,
           element(again->means, row), element(again->deviations, row));
  }
}

static void printCorrelation(const Csv *csv, const Study *study) {
  int width = csvNameWidth(csv);
  printf("\n%-*s", width, "correlation");
  for (mint column = 0; column < csv->numericCount; column++) printf(" %*s", width, csvName(csv, column));
  for (mint row = 0; row < csv->numericCount; row++) {
    printf("\n%-*s", width, csvName(csv, row));
    for (mint column = 0; column < csv->numericCount; column++)
      printf(" %*.7f", width, rowOf(study->correlation, row)[column]);
  }
  putchar('\n');
}

static bool print(const Csv *csv, const Study *study, const Study *again) {
  csvPrintHeading(csv);
  printSummary(csv, study, again);
  printCorrelation(csv, study);
  if (fflush(stdout) == 0 && !ferror(stdout)) return true;
  perror("standardise: cannot write the report");
  return false;
}

static bool run(Csv *csv, Study *study, Study *again, const char *path) {
  if (!csvRead(csv, path)) return false;
  if (csv->rowCount < 2) return csvComplain(csv, csv->headerLine, 0, "a deviation needs two rows or more");
  return loadRows(study, csv) && standardise(study, csv) && correlate(study, csv) &&
         check(again, study, csv) && print(csv, study, again);
}

int main(int argc, char **argv) {
  if (argc != 2) {
    fputs("usage: standardise FILE.csv\n", stderr);
    return 2;
  }
  InitializeTorvaneRTL(NULL, NULL, NULL);
  setExceptionStyle(1);
  Csv csv = {.program = "standardise"};
  Study study = {0}, again = {0};
  bool printed = run(&csv, &study, &again, argv[1]);
  studyDelete(&study);
  studyDelete(&again);
  csvFree(&csv);
  return printed ? 0 : 1;
}
