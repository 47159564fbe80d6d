/* cluster FILE.csv COUNT [ROWS.csv]: what a compiler would emit for the method of k means,
 *
 *     repeat: distance(j) = total((x - centre(j))^2),    cluster = the nearest,
 *             centre = member . transpose(x) / size
 *
 * on the numeric columns of a table, until no row changes its cluster: Lloyd, "Least squares quantization in
 * PCM", IEEE Transactions on Information Theory 28 (1982). The first centre is the first row, each further
 * one the row that is farthest from those chosen. The tensor has one row per column of the file, so that an
 * operand of extents {n} pairs with it row by row. The cluster of each row goes to ROWS.csv. */
#include "../programs/csv.h"
#include "library.h"

#include <errno.h>
#include <stdlib.h>
#include <string.h>

const char TorvaneLibrary_usage[] = "FILE.csv COUNT [ROWS.csv]";

enum { MOST_CLUSTERS = 1000, MOST_STEPS = 10000 };

static const mint dense[3] = {1, 1, 1};

typedef struct Study {
  TorvaneLibraryData *record;
  mint n, m, k;       /* columns, rows, clusters */
  MTensor *values;    /* {n, m} */
  MTensor *rows;      /* {m, n}: the same transposed */
  MTensor *centres;   /* {k, n} */
  MTensor *distances; /* {k, m}: squared, from each centre to each row */
  MTensor *member;    /* {k, m}: 1 where the row is in the cluster, else 0 */
  MTensor *sizes;     /* {k} */
  MTensor *work;      /* {n, m} */
  mint *cluster;      /* of each row, from 0 */
  mint steps;
} Study;

static void forget(Study *s) {
  MTensor *tensors[] = {s->values, s->rows, s->centres, s->distances, s->member, s->sizes, s->work};
  for (size_t i = 0; i < sizeof tensors / sizeof *tensors; i++) MTensor_delete(tensors[i]);
  Free_fun(s->cluster);
}

static mreal *rowOf(const MTensor *table, mint row) {
  return (mreal *)table->data + (size_t)row * (size_t)table->dimensions[1];
}

static mint newReals(MTensor **slot, mint rank, mint first, mint second) {
  const mint extents[2] = {first, second};
  return MTensor_allocateCommon(slot, TORVANE_TYPE_REAL, rank, extents, 1);
}

/* The file holds records, the study one row per column. */
static mint prepare(Study *s, const Csv *csv) {
  mint status = newReals(&s->rows, 2, s->m, s->n);
  if (status == 0) memcpy(s->rows->data, csv->values, (size_t)s->rows->elementCount * sizeof(mreal));
  if (status == 0) status = CALL(s->record, "Transpose", &s->values, &s->rows);
  if (status == 0) status = newReals(&s->centres, 2, s->k, s->n);
  if (status == 0) status = newReals(&s->distances, 2, s->k, s->m);
  if (status == 0) status = newReals(&s->member, 2, s->k, s->m);
  if (status == 0) status = newReals(&s->sizes, 1, s->k, 0);
  s->cluster = Calloc_fun((uint32_t)s->m, sizeof *s->cluster);
  return status;
}

/* distances, row j: total((x - centre(j))^2) */
static mint measure(Study *s, mint j) {
  mint flags = TORVANE_CHECK_REALS;
  MTensor *line = NULL,
          *centre = MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 1, &s->n, rowOf(s->centres, j));
  mint status = MTensorMathBinary(&s->work, s->values, centre, SUBTRACT, TORVANE_TYPE_REAL);
  if (status == 0) status = MTensorMathUnary(&s->work, s->work, SQUARE, TORVANE_TYPE_REAL);
  if (status == 0) status = CALL(s->record, "Total", &line, &s->work, &flags);
  if (status == 0) memcpy(rowOf(s->distances, j), line->data, (size_t)s->m * sizeof(mreal));
  MTensor_delete(centre);
  MTensor_delete(line);
  return status;
}

/* Of the first `count` centres, the one nearest to the row; of equals the first. */
static mint nearest(const Study *s, mint row, mint count) {
  mint best = 0;
  for (mint j = 1; j < count; j++)
    if (rowOf(s->distances, j)[row] < rowOf(s->distances, best)[row]) best = j;
  return best;
}

static mreal distanceToNearest(const Study *s, mint row, mint count) {
  return rowOf(s->distances, nearest(s, row, count))[row];
}

/* Fails where there are fewer different rows than clusters. */
static mint choose(Study *s) {
  mint chosen = 0;
  for (mint j = 0; j < s->k; j++) {
    memcpy(rowOf(s->centres, j), rowOf(s->rows, chosen), (size_t)s->n * sizeof(mreal));
    const mint status = measure(s, j);
    if (status != 0) return status;
    for (mint row = 0; row < s->m; row++)
      if (distanceToNearest(s, row, j + 1) > distanceToNearest(s, chosen, j + 1)) chosen = row;
    if (j + 1 < s->k && !(distanceToNearest(s, chosen, j + 1) > 0))
      return refuse(BAD_INPUT, "cluster: only %d rows are different, too few for %d clusters", j + 1, s->k);
  }
  return 0;
}

/* Puts each row into the cluster of the nearest centre; whether any row moved. */
static bool assign(Study *s) {
  bool moved = false;
  for (mint row = 0; row < s->m; row++) {
    const mint cluster = nearest(s, row, s->k);
    moved = moved || cluster != s->cluster[row];
    s->cluster[row] = cluster;
  }
  return moved;
}

/* A cluster without rows would have no centre. */
static mint findMembers(Study *s) {
  MTensor_initialize(s->member, 0);
  for (mint row = 0; row < s->m; row++) rowOf(s->member, s->cluster[row])[row] = 1;
  for (mint j = 0; j < s->k; j++) {
    mreal *size = (mreal *)s->sizes->data + j;
    if (machfunc_d_total(size, rowOf(s->member, j), s->m, dense, TORVANE_CHECK_REALS) != 0) return BAD_INPUT;
    if (*size == 0) return refuse(BAD_INPUT, "cluster: cluster %d lost all its rows", j + 1);
  }
  return 0;
}

/* centre = member . transpose(x) / size */
static mint move(Study *s) {
  mint flags = TORVANE_CHECK_REALS;
  mint status = findMembers(s);
  if (status == 0) status = CALL(s->record, "Dot", &s->centres, &s->member, &s->rows, &flags);
  if (status == 0) status = MTensorMathBinary(&s->centres, s->centres, s->sizes, DIVIDE, TORVANE_TYPE_REAL);
  for (mint j = 0; status == 0 && j < s->k; j++) status = measure(s, j);
  return status;
}

static mint iterate(Study *s) {
  mint status = choose(s);
  assign(s);
  do {
    if (s->steps++ == MOST_STEPS) return refuse(BAD_INPUT, "cluster: the clusters do not settle");
    if (status == 0) status = move(s);
  } while (status == 0 && assign(s));
  return status;
}

static void print(const Csv *csv, const Study *s) {
  mreal sum = 0;
  csvPrintHeading(csv);
  printf("\n%-8s %6s", "cluster", "size");
  for (mint column = 0; column < s->n; column++) printf(" %*s", csvNameWidth(csv), csvName(csv, column));
  for (mint j = 0; j < s->k; j++) {
    printf("\n%-8d %6.0f", j + 1, ((const mreal *)s->sizes->data)[j]);
    for (mint column = 0; column < s->n; column++)
      printf(" %*.7g", csvNameWidth(csv), rowOf(s->centres, j)[column]);
  }
  for (mint row = 0; row < s->m; row++) sum += distanceToNearest(s, row, s->k);
  printf("\n\n%d steps, sum of squared distances %.9g\n", s->steps, sum);
}

static mint writeRows(const Study *s, const char *path) {
  FILE *file = fopen(path, "w");
  if (!file) return refuse(BAD_INPUT, "cluster: %s: %s", path, strerror(errno));
  fputs("row,cluster\n", file);
  for (mint row = 0; row < s->m; row++) fprintf(file, "%d,%d\n", row + 1, s->cluster[row] + 1);
  const bool written = !ferror(file);
  if (fclose(file) == 0 && written) return 0;
  return refuse(BAD_INPUT, "cluster: %s: cannot be written", path);
}

static mint study(Study *s, Csv *csv, char **words) {
  if (!csvRead(csv, words[0])) return BAD_INPUT;
  s->n = csv->numericCount;
  s->m = csv->rowCount;
  mint status = prepare(s, csv);
  if (status == 0) status = iterate(s);
  if (status != 0) return status;
  print(csv, s);
  return words[2] ? writeRows(s, words[2]) : 0;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  Csv csv = {.program = "cluster"};
  Study s = {.record = record};
  if (argc < 2 || argc > 3) return WRONG_WORDS;
  char *end;
  const long count = strtol(argv[1], &end, 10);
  if (end == argv[1] || *end != '\0' || count < 1 || count > MOST_CLUSTERS)
    return refuse(BAD_INPUT, "cluster: COUNT must be an integer of 1 to %d, not \"%s\"", MOST_CLUSTERS,
                  argv[1]);
  s.k = (mint)count;
  char *words[3] = {argv[0], argv[1], argc > 2 ? argv[2] : NULL};
  const mint status = study(&s, &csv, words);
  forget(&s);
  csvFree(&csv);
  return status;
}
