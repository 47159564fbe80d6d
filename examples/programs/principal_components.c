/* principal_components FILE.csv: what a compiler would emit for
 *
 *     x = x - mean(x),    covariance = x . transpose(x) / (count - 1)
 *     repeat: v = covariance . v / norm(covariance . v),    covariance = covariance - variance v .
 * transpose(v)
 *
 * on the numeric columns of a table: the directions in which the rows vary most, found one after the other by
 * power iteration, each taken out of the covariance before the next one is sought. The tensor has one row per
 * column of the file; a direction is a matrix of one column, so that every product is one of matrices. Every
 * status is tested, and nothing is printed before everything is computed. */
#include "csv.h"

#include <math.h>
#include <stdio.h>

enum { SUBTRACT = 258, TIMES = 259, DIVIDE = 260 }; /* operator numbers */
enum { EUCLIDEAN = 2, MOST_STEPS = 200000 };

static const mint dense[3] = {1, 1, 1}; /* strides: result, first operand, second operand */

/* Below this part of the whole variance what is left of the covariance is rounding. */
static const mreal noise = 1e-12;

typedef struct Study {
  MTensor *values;     /* {n, m}: n columns of m measurements, less their means */
  MTensor *covariance; /* {n, n} */
  MTensor *rest;       /* {n, n}: the covariance less the components found so far */
  MTensor *components; /* {n, n}: one in each row, as many as have variance */
  MTensor *variances;  /* {n} */
  MTensor *residuals;  /* {n}: norm(covariance . v - variance v) */
  mreal whole;         /* the sum of the variances of the columns */
  mint found;          /* components */
} Study;

static void studyDelete(Study *study) {
  MTensor_delete(study->values); /* null is ignored */
  MTensor_delete(study->covariance);
  MTensor_delete(study->rest);
  MTensor_delete(study->components);
  MTensor_delete(study->variances);
  MTensor_delete(study->residuals);
}

static mreal *reals(const MTensor *tensor) { return tensor->data; }

static mreal *rowOf(const MTensor *table, mint row) {
  return reals(table) + (size_t)row * (size_t)table->dimensions[1];
}

static bool succeeded(mint status, const char *step) {
  if (status == 0) return true;
  fprintf(stderr, "principal_components: %s failed with status %d\n", step, status);
  return false;
}

static bool newReals(MTensor **slot, mint rank, const mint *extents) {
  return succeeded(MTensor_allocateCommon(slot, TORVANE_TYPE_REAL, rank, extents, 1), "allocation");
}

static bool binary(MTensor **result, MTensor *x, MTensor *y, mint op) {
  return succeeded(MTensorMathBinary(result, x, y, op, TORVANE_TYPE_REAL), "a binary operator");
}

static bool dot(MTensor **result, MTensor *x, MTensor *y) {
  return succeeded(MTensorGeneralDot(result, x, y, TORVANE_CHECK_REALS), "a dot product");
}

/* Combines a tensor in place with a number, which is a tensor of rank 0 and so goes with any shape. */
static bool scale(MTensor **tensor, mreal number, mint op) {
  MTensor *scalar = LoadNewRankZeroMTensor(&number, TORVANE_TYPE_REAL);
  bool scaled = binary(tensor, *tensor, scalar, op);
  MTensor_delete(scalar);
  return scaled;
}

static bool norm(mreal *length, const MTensor *vector) {
  return succeeded(
      machfunc_d_vectornorm(length, EUCLIDEAN, reals(vector), vector->elementCount, 1, TORVANE_CHECK_REALS),
      "a norm");
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

/* The checked routine fails where a sum is infinite or not a number. */
static bool totals(MTensor *sums, const MTensor *table, const Csv *csv) {
  for (mint row = 0; row < table->dimensions[0]; row++)
    if (machfunc_d_total(reals(sums) + row, rowOf(table, row), table->dimensions[1], dense,
                         TORVANE_CHECK_REALS) != 0)
      return csvComplain(csv, csv->headerLine, csvNumericColumn(csv, row) + 1,
                         "the values are too large to be summed");
  return true;
}

/* An operand of extents {n} pairs its element k with the whole row k of one of extents {n, m}. */
static bool centre(Study *study, const Csv *csv) {
  MTensor *means = NULL;
  bool done = newReals(&means, 1, &csv->numericCount) && totals(means, study->values, csv) &&
              scale(&means, csv->rowCount, DIVIDE) && binary(&study->values, study->values, means, SUBTRACT);
  MTensor_delete(means);
  return done;
}

/* The product fails where an element of it is infinite or not a number. */
static bool multiplyByTranspose(MTensor **result, MTensor *table, const Csv *csv) {
  MTensor *transposed = NULL;
  bool done = succeeded(Runtime_MTensor_12TransposeConjugate(&transposed, table, 0), "transposition") &&
              (MTensorGeneralDot(result, table, transposed, TORVANE_CHECK_REALS) == 0 ||
               csvComplain(csv, csv->headerLine, 0, "the values are too large for their covariance"));
  MTensor_delete(transposed);
  return done;
}

static mreal trace(const MTensor *matrix) {
  mreal sum = 0;
  for (mint k = 0; k < matrix->dimensions[0]; k++) sum += rowOf(matrix, k)[k];
  return sum;
}

static bool findCovariance(Study *study, const Csv *csv) {
  mint n = csv->numericCount, extents[2] = {n, n};
  if (MTensor_allocateCommon(&study->covariance, TORVANE_TYPE_REAL, 2, extents, 1) != 0)
    return csvComplain(csv, csv->headerLine, 0, "%d numeric columns are too many for their covariance", n);
  if (!multiplyByTranspose(&study->covariance, study->values, csv) ||
      !scale(&study->covariance, csv->rowCount - 1, DIVIDE) ||
      !succeeded(MTensor_makeCopy(&study->rest, study->covariance), "copying"))
    return false;
  study->whole = trace(study->covariance);
  if (isinf(study->whole))
    return csvComplain(csv, csv->headerLine, 0, "the values are too large for their covariance");
  return study->whole > 0 || csvComplain(csv, csv->headerLine, 0, "no column varies");
}

/* Some vector, another one for each component: one that is likely to have a part in what is left. */
static bool newDirection(MTensor **direction, const Study *study) {
  mint extents[2] = {study->covariance->dimensions[0], 1};
  if (!newReals(direction, 2, extents)) return false;
  for (mint k = 0; k < extents[0]; k++) reals(*direction)[k] = 1 + 0.5 * cos(k * (study->found + 1));
  mreal length;
  return norm(&length, *direction) && scale(direction, length, DIVIDE);
}

/* v becomes matrix . v, of length 1; *variance is the length before, *change tells how far v moved. */
static bool step(MTensor **v, MTensor *matrix, mreal *variance, mreal *change) {
  MTensor *next = NULL;
  bool done = dot(&next, matrix, *v) && norm(variance, next) && scale(&next, *variance, DIVIDE) &&
              binary(v, next, *v, SUBTRACT) && norm(change, *v);
  MTensor_delete(*v);
  *v = next;
  return done;
}

/* Power iteration. The matrix has no negative eigenvalue beyond rounding, so that v settles. */
static bool iterate(MTensor **v, mreal *variance, const Study *study, const Csv *csv) {
  mreal change = 1, settled = 1e-14 * csv->numericCount;
  for (mint steps = 0; change > settled; steps++) {
    if (steps == MOST_STEPS)
      return csvComplain(csv, csv->headerLine, 0, "component %d does not settle: the next one varies as much",
                         study->found + 1);
    if (!step(v, study->rest, variance, &change)) return false;
  }
  return true;
}

/* A direction and its opposite are one component: the largest part is made positive. */
static bool orient(MTensor **v) {
  mreal largest = 0;
  for (mint k = 0; k < (*v)->elementCount; k++)
    if (fabs(reals(*v)[k]) > fabs(largest)) largest = reals(*v)[k];
  return largest >= 0 || scale(v, -1, TIMES);
}

/* rest = rest - variance v . transpose(v) */
static bool deflate(Study *study, MTensor *v, mreal variance, const Csv *csv) {
  MTensor *square = NULL;
  bool done = multiplyByTranspose(&square, v, csv) && scale(&square, variance, TIMES) &&
              binary(&study->rest, study->rest, square, SUBTRACT);
  MTensor_delete(square);
  return done;
}

/* How well covariance . v = variance v holds: all that rounding and the other components left of it. */
static bool check(mreal *residual, const Study *study, MTensor *v, mreal variance) {
  MTensor *image = NULL, *scaled = NULL;
  bool done = dot(&image, study->covariance, v) && succeeded(MTensor_makeCopy(&scaled, v), "copying") &&
              scale(&scaled, variance, TIMES) && binary(&image, image, scaled, SUBTRACT) &&
              norm(residual, image);
  MTensor_delete(image);
  MTensor_delete(scaled);
  return done;
}

static bool keep(Study *study, MTensor *v, mreal variance) {
  mint k = study->found++;
  for (mint i = 0; i < v->elementCount; i++) rowOf(study->components, k)[i] = reals(v)[i];
  reals(study->variances)[k] = variance;
  return check(reals(study->residuals) + k, study, v, variance);
}

static bool findComponent(Study *study, const Csv *csv) {
  MTensor *v = NULL;
  mreal variance;
  bool done = newDirection(&v, study) && iterate(&v, &variance, study, csv) && orient(&v) &&
              keep(study, v, variance) && deflate(study, v, variance, csv);
  MTensor_delete(v);
  return done;
}

static bool findComponents(Study *study, const Csv *csv) {
  mint n = csv->numericCount, extents[2] = {n, n};
  if (!newReals(&study->components, 2, extents) || !newReals(&study->variances, 1, &n) ||
      !newReals(&study->residuals, 1, &n))
    return false;
  while (study->found < n && trace(study->rest) > noise * study->whole)
    if (!findComponent(study, csv)) return false;
  return true;
}

static void printVariances(const Csv *csv, const Study *study) {
  mreal sum = 0;
  printf("\n%-*s %14s %10s %10s %10s\n", csvNameWidth(csv), "component", "variance", "explained",
         "cumulative", "residual");
  for (mint k = 0; k < study->found; k++) {
    mreal variance = reals(study->variances)[k];
    sum += variance;
    printf("%-*d %14.8g %10.7f %10.7f %10.1e\n", csvNameWidth(csv), k + 1, variance, variance / study->whole,
           sum / study->whole, reals(study->residuals)[k]);
  }
  if (study->found < csv->numericCount) puts("no variance is left");
}

static void printLoadings(const Csv *csv, const Study *study) {
  printf("\n%-*s", csvNameWidth(csv), "loading");
  for (mint k = 0; k < study->found; k++) printf(" %10d", k + 1);
  for (mint column = 0; column < csv->numericCount; column++) {
    printf("\n%-*s", csvNameWidth(csv), csvName(csv, column));
    for (mint k = 0; k < study->found; k++) printf(" %10.7f", rowOf(study->components, k)[column]);
  }
  putchar('\n');
}

static bool print(const Csv *csv, const Study *study) {
  csvPrintHeading(csv);
  printVariances(csv, study);
  printLoadings(csv, study);
  if (fflush(stdout) == 0 && !ferror(stdout)) return true;
  perror("principal_components: cannot write the report");
  return false;
}

static bool run(Csv *csv, Study *study, const char *path) {
  if (!csvRead(csv, path)) return false;
  if (csv->rowCount < 2) return csvComplain(csv, csv->headerLine, 0, "a variance needs two rows or more");
  return loadRows(study, csv) && centre(study, csv) && findCovariance(study, csv) &&
         findComponents(study, csv) && print(csv, study);
}

int main(int argc, char **argv) {
  if (argc != 2) {
    fputs("usage: principal_components FILE.csv\n", stderr);
    return 2;
  }
  InitializeTorvaneRTL(NULL, NULL, NULL);
  setExceptionStyle(1);
  Csv csv = {.program = "principal_components"};
  Study study = {0};
  bool printed = run(&csv, &study, argv[1]);
  studyDelete(&study);
  csvFree(&csv);
  return printed ? 0 : 1;
}
