/* misuse: a compiled library that uses its record wrongly, and holds every status against the one promised.
 * It is linked to nothing. Prints what is not as it should be, and how many calls it made. */
#include "../../examples/libraries/library.h"

static mint calls, wrong;

static void expect(int line, const char *call, mint got, mint want) {
  calls++;
  if (got == want) return;
  wrong++;
  printf("line %d: %s: %d, not %d\n", line, call, got, want);
}
#define EXPECT(want, call) expect(__LINE__, #call, call, want)

/* The tensors of all tests: of rank 0 to 2, and none. */
typedef struct Objects {
  MTensor *integers, *reals, *matrix, *none;
} Objects;

static void unknownNames(TorvaneLibraryData *r, Objects *o) {
  MTensor *result = NULL;
  EXPECT(12, CALL(r, "NoSuchFunction", &result, &o->reals));
  EXPECT(12, CALL(r, "sort", &result, &o->reals));
  EXPECT(12, CALL(r, "", &result, &o->reals));
  EXPECT(12, r->runtime->lookupRuntimeFunction(NULL)(r, 0, NULL, NULL));
  EXPECT(1, r->runtime->generatorMethod("NoSuchMethod") == NULL);
  EXPECT(1, result == NULL);
}

static void wrongCounts(TorvaneLibraryData *r, Objects *o) {
  MTensor *result = NULL;
  mint one = 1;
  EXPECT(12, r->runtime->lookupRuntimeFunction("Sort")(r, 0, NULL, &result));
  EXPECT(12, CALL(r, "Sort", &result, &o->reals, &o->reals));
  EXPECT(12, CALL(r, "Reverse", &result, &o->reals, &one));
  EXPECT(12, CALL(r, "Total", &result, &o->matrix));
  EXPECT(12, CALL(r, "Partition", &result, &o->reals, &o->integers));
  EXPECT(12, CALL(r, "Transpose", &result, &o->matrix, &o->integers));
  EXPECT(12, CALL(r, "Bag", &one, &one, &one));
  EXPECT(12, CALL(r, "BagPart", &result, &one));
  EXPECT(14, CALL(r, "Random", &result, &one, &one, &one));
  EXPECT(1, result == NULL);
}

static void wrongTypesByName(TorvaneLibraryData *r, Objects *o) {
  MTensor *result = NULL;
  mint smallest = 0, noBag = 7, all = 2;
  EXPECT(1, CALL(r, "Partition", &result, &o->reals, &o->reals, &o->reals));
  EXPECT(1, CALL(r, "Median", &result, &o->integers));
  EXPECT(1, CALL(r, "MinIT", &smallest, &o->reals));
  EXPECT(2, CALL(r, "Total", &result, &o->reals, &smallest));
  EXPECT(2, CALL(r, "OrderingInteger", &result, &o->none, &all));
  EXPECT(12, CALL(r, "BagPart", &result, &noBag, &all));
  EXPECT(1, result == NULL);
}

static void wrongTensors(TorvaneLibraryData *r, Objects *o) {
  const mint two = 2, zero = 0, negative = -1, none[2] = {2, 0};
  MTensor *made = NULL;
  EXPECT(1, r->newTensor(1, 1, &two, &made));
  EXPECT(1, r->newTensor(5, 1, &two, &made));
  EXPECT(2, r->newTensor(3, -1, &two, &made));
  EXPECT(3, r->newTensor(3, 1, &zero, &made));
  EXPECT(3, r->newTensor(3, 1, &negative, &made));
  EXPECT(3, r->newTensor(3, 2, none, &made));
  EXPECT(3, r->newTensor(3, 1, NULL, &made));
  EXPECT(1, made == NULL);
  EXPECT(1, r->integerData(o->reals) == NULL);
  EXPECT(1, r->realData(o->integers) == NULL);
  EXPECT(1, r->complexData(o->reals) == NULL);
  EXPECT(1, r->realData(NULL) == NULL);
}

static void wrongElements(TorvaneLibraryData *r, Objects *o) {
  const mint first = 1, zero = 0, behind = 4, before = -4, outside[2] = {1, 3};
  mint integer = 17;
  mreal real = 17;
  EXPECT(1, r->setInteger(o->reals, &first, 5));
  EXPECT(1, r->setReal(o->integers, &first, 5));
  EXPECT(1, r->getInteger(o->reals, &first, &integer));
  EXPECT(1, r->getReal(o->integers, &first, &real));
  EXPECT(3, r->setReal(o->reals, &zero, 5));
  EXPECT(3, r->setReal(o->reals, &behind, 5));
  EXPECT(3, r->getReal(o->reals, &before, &real));
  EXPECT(3, r->getReal(o->matrix, outside, &real));
  EXPECT(17, integer);
  EXPECT(1, real == 17);
}

/* Where shapes do not fit, the slot stays empty; what fails later leaves a tensor there, which is the
 * caller's. */
static void wrongMathematics(TorvaneLibraryData *r, Objects *o) {
  MTensor *result = NULL;
  EXPECT(1, r->runtime->binary(&result, o->reals, o->matrix, PLUS, TORVANE_TYPE_REAL));
  EXPECT(1, result == NULL);
  EXPECT(1, r->runtime->binary(&result, o->reals, o->reals, 300, TORVANE_TYPE_REAL));
  EXPECT(1, r->runtime->unary(&result, o->reals, 85, TORVANE_TYPE_REAL));
  EXPECT(1, r->runtime->unary(&result, o->reals, 57 /* sqrt of a negative */, TORVANE_TYPE_REAL));
  r->deleteTensor(result);
}

static void wrongArrays(TorvaneLibraryData *r, Objects *o) {
  MNumericArray *converted = NULL;
  MSparseArray *sparse = NULL;
  const MNumericArray *reals = (const MNumericArray *)o->reals;
  EXPECT(1, r->numeric->convert(&converted, reals, 13, 3, 0));
  EXPECT(4, r->numeric->convert(&converted, reals, 2, 3, -1));
  EXPECT(6, r->numeric->convert(&converted, reals, 2, 9, 0));
  EXPECT(6, r->numeric->convert(&converted, NULL, 2, 3, 0));
  EXPECT(0, r->numeric->rank(NULL));
  EXPECT(-1, r->sparse->fromPositions(o->reals, NULL, NULL, NULL, &sparse));
  EXPECT(-1, r->sparse->fromPositions(o->integers, NULL, NULL, NULL, &sparse));
  EXPECT(0, r->sparse->rank(NULL));
  EXPECT(1, sparse == NULL);
}

static mint makeObjects(TorvaneLibraryData *r, Objects *o) {
  const mint three = 3, square[2] = {2, 2};
  mint status = r->newTensor(TORVANE_TYPE_INTEGER, 1, &three, &o->integers);
  if (status == 0) status = r->newTensor(TORVANE_TYPE_REAL, 1, &three, &o->reals);
  if (status == 0) status = r->newTensor(TORVANE_TYPE_REAL, 2, square, &o->matrix);
  for (mint i = 1; status == 0 && i <= 3; i++) status = r->setInteger(o->integers, &i, i);
  for (mint i = 1; status == 0 && i <= 3; i++) status = r->setReal(o->reals, &i, -i);
  o->none = r->runtime->newTensor();
  return status;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  static void (*const groups[])(TorvaneLibraryData *,
                                Objects *) = {unknownNames,  wrongCounts,      wrongTypesByName, wrongTensors,
                                              wrongElements, wrongMathematics, wrongArrays};
  Objects o = {NULL, NULL, NULL, NULL};
  (void)argc, (void)argv;
  EXPECT(0, makeObjects(record, &o));
  for (size_t i = 0; i < sizeof groups / sizeof *groups; i++) groups[i](record, &o);
  record->deleteTensor(o.integers);
  record->deleteTensor(o.reals);
  record->deleteTensor(o.matrix);
  record->deleteTensor(o.none);
  printf("%d calls, %d wrong\n", calls, wrong);
  return wrong > 0 ? BAD_INPUT : 0;
}
