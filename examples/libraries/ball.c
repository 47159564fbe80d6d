/* ball DIMENSION POINTS [SEED]: the volume of the ball of radius 1, by random points.
 *
 * Points are thrown into the cube around the ball, 1024 at a time, and those counted that fall inside; the
 * share of them is the ball's share of the cube. The counts of the blocks go to a bag, and their spread gives
 * the standard error. A line is printed whenever the number of blocks has doubled. The generator's state is
 * put back at the end: whoever draws next does not notice.
 *
 * Failures are raised as compiled code does it: what is held is freed first, so that nothing is lost in a
 * style that does not come back. */
#include "library.h"

#include <torvane/torvane.h>

#include <errno.h>
#include <math.h>
#include <stdbool.h>
#include <stdlib.h>

const char TorvaneLibrary_usage[] = "DIMENSION POINTS [SEED]";

enum { BLOCK = 1024, MERSENNE_TWISTER = 3 /* its code as a method */ };
static const double blockSize = BLOCK;

typedef struct Throw {
  TorvaneLibraryData *record;
  mint dimension;
  mint cube;   /* its volume: the edge is 2 */
  mint blocks; /* to be thrown */
  mint bag;    /* of the points inside, a number a block */
  MTensor *extents;
  MTensor *points;  /* {dimension, BLOCK}: a row for each coordinate */
  MTensor *lengths; /* {BLOCK}: squared distances from the middle */
  MTensor *counts;  /* what is in the bag */
} Throw;

static void forget(const Throw *t) {
  MTensor_delete(t->extents);
  MTensor_delete(t->points);
  MTensor_delete(t->lengths);
  MTensor_delete(t->counts);
}

static mint throwBlock(Throw *t) {
  mreal low = -1, high = 1;
  mint flags = TORVANE_CHECK_REALS, inside = 0;
  mint status = CALL(t->record, "RandomReals", &t->points, &low, &high, &t->extents);
  if (status == 0) status = MTensorMathUnary(&t->points, t->points, SQUARE, TORVANE_TYPE_REAL);
  if (status == 0) status = CALL(t->record, "Total", &t->lengths, &t->points, &flags);
  if (status != 0) return status;
  const mreal *lengths = t->lengths->data;
  for (mint i = 0; i < BLOCK; i++) inside += lengths[i] <= 1;
  return CALL(t->record, "StuffBagScalar", NULL, &t->bag, &inside);
}

/* pi^(d/2) / Gamma(d/2 + 1) */
static double exactVolume(mint dimension) {
  const double half = dimension / 2.0;
  return exp(half * log(acos(-1)) - lgamma(half + 1));
}

/* The mean of the blocks, and the deviation of the mean as the blocks show it. */
static mint printLine(Throw *t, mint blocks) {
  mint all = 2;
  const mint status = CALL(t->record, "BagPart", &t->counts, &t->bag, &all);
  if (status != 0) return status;
  const mint *counts = t->counts->data;
  double sum = 0, squares = 0;
  for (mint i = 0; i < blocks; i++) sum += counts[i];
  const double mean = sum / blocks, scale = t->cube / blockSize;
  for (mint i = 0; i < blocks; i++) squares += (counts[i] - mean) * (counts[i] - mean);
  const double error = sqrt(squares / (blocks - 1.0) / blocks);
  printf("%12.0f %12.8f %12.8f %12.8f\n", blocks * blockSize, mean * scale, error * scale,
         exactVolume(t->dimension));
  return 0;
}

static bool isDue(const Throw *t, mint blocks) {
  return blocks > 1 && (blocks == t->blocks || (blocks >= 64 && (blocks & (blocks - 1)) == 0));
}

/* Returns early, with 0, where an abort is wanted. */
static mint throwAll(Throw *t, bool *aborted) {
  printf("volume of the ball of dimension %d\n%12s %12s %12s %12s\n", t->dimension, "points", "volume",
         "error", "exact");
  fflush(stdout);
  mint status = 0;
  for (mint thrown = 1; status == 0 && thrown <= t->blocks; thrown++) {
    *aborted = checkAbortWatch() != 0;
    if (*aborted) break;
    status = throwBlock(t);
    if (status == 0 && isDue(t, thrown)) status = printLine(t, thrown);
  }
  return status;
}

static mint prepare(Throw *t) {
  const mint two = 2, extents[2] = {t->dimension, BLOCK};
  mint integers = TORVANE_TYPE_INTEGER;
  t->extents = MTensor_newCopyFromDataArray(TORVANE_TYPE_INTEGER, 1, &two, extents);
  return CALL(t->record, "Bag", &t->bag, &integers);
}

static mint run(Throw *t, uint32_t seed, bool *aborted) {
  mint status = prepare(t);
  if (status == 0)
    status = t->record->runtime->lookupRuntimeFunction("BlockRandomBegin")(t->record, 0, NULL, NULL);
  if (status != 0) return status;
  status = t->record->runtime->seedRandom(&seed, MERSENNE_TWISTER);
  if (status == 0) status = throwAll(t, aborted);
  const mint ended = t->record->runtime->lookupRuntimeFunction("BlockRandomEnd")(t->record, 0, NULL, NULL);
  return status != 0 ? status : ended;
}

static bool readInteger(const char *word, long low, long high, mint *value) {
  char *end;
  errno = 0;
  const long number = strtol(word, &end, 10);
  *value = (mint)number;
  return errno == 0 && end != word && *end == '\0' && number >= low && number <= high;
}

static bool readWords(int argc, char **argv, Throw *t, mint *points, mint *seed) {
  if (!readInteger(argv[0], 1, 1000, &t->dimension))
    refuse(0, "ball: DIMENSION must be an integer of 1 to 1000, not \"%s\"", argv[0]);
  else if (!readInteger(argv[1], 2 * BLOCK, 2147483647, points))
    refuse(0, "ball: POINTS must be an integer of %d to 2147483647, not \"%s\"", 2 * BLOCK, argv[1]);
  else if (argc > 2 && !readInteger(argv[2], 0, 2147483647, seed))
    refuse(0, "ball: SEED must be an integer of 0 to 2147483647, not \"%s\"", argv[2]);
  else
    return true;
  return false;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  Throw t = {.record = record};
  mint points = 0, seed = 1;
  bool aborted = false;
  if (argc < 2 || argc > 3) return WRONG_WORDS;
  if (!readWords(argc, argv, &t, &points, &seed)) return BAD_INPUT;
  t.cube = checked_binary_pow_Integer32_Integer32(2, t.dimension); /* raises error 1 from dimension 31 on */
  if (RTL_exceptionActive != 0) return 0;                          /* style 1: the code tells */
  t.blocks = points / BLOCK + (points % BLOCK != 0);
  const mint status = run(&t, (uint32_t)seed, &aborted);
  forget(&t);
  if (aborted) throwTorvaneException(TORVANE_ERROR_ABORT);
  return status;
}
