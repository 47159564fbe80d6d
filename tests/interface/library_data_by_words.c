/* The library-data record as the words that it is: every name of the header stands at its position, and what
 * a compiled library that knows positions alone calls there is what the header names. Prints each failure,
 * and returns their number. */
#include <torvane/torvane.h>

#include <stdio.h>

#define AT(record, name, word)                                                                               \
  _Static_assert(offsetof(record, name) == ((word)-1) * sizeof(void *), #record ": " #name)

AT(TorvaneLibraryData, freeBlock, 1);
AT(TorvaneLibraryData, newTensor, 2);
AT(TorvaneLibraryData, deleteTensor, 3);
AT(TorvaneLibraryData, cloneTensor, 4);
AT(TorvaneLibraryData, service5, 5);
AT(TorvaneLibraryData, service6, 6);
AT(TorvaneLibraryData, service7, 7);
AT(TorvaneLibraryData, setInteger, 8);
AT(TorvaneLibraryData, setReal, 9);
AT(TorvaneLibraryData, setComplex, 10);
AT(TorvaneLibraryData, setSubTensor, 11);
AT(TorvaneLibraryData, getInteger, 12);
AT(TorvaneLibraryData, getReal, 13);
AT(TorvaneLibraryData, getComplex, 14);
AT(TorvaneLibraryData, getSubTensor, 15);
AT(TorvaneLibraryData, rank, 16);
AT(TorvaneLibraryData, dimensions, 17);
AT(TorvaneLibraryData, type, 18);
AT(TorvaneLibraryData, elementCount, 19);
AT(TorvaneLibraryData, integerData, 20);
AT(TorvaneLibraryData, realData, 21);
AT(TorvaneLibraryData, complexData, 22);
AT(TorvaneLibraryData, message, 23);
AT(TorvaneLibraryData, abortQ, 24);
AT(TorvaneLibraryData, service25, 25);
AT(TorvaneLibraryData, service26, 26);
AT(TorvaneLibraryData, service27, 27);
AT(TorvaneLibraryData, runtimeState, 28);
AT(TorvaneLibraryData, runtime, 29);
AT(TorvaneLibraryData, version, 30);
AT(TorvaneLibraryData, services31to34, 31);
AT(TorvaneLibraryData, hostServices, 35);
AT(TorvaneLibraryData, service36, 36);
AT(TorvaneLibraryData, sparse, 37);
AT(TorvaneLibraryData, pixels, 38);
AT(TorvaneLibraryData, services39to45, 39);
AT(TorvaneLibraryData, service46, 46);
AT(TorvaneLibraryData, service47, 47);
AT(TorvaneLibraryData, numericSecond, 48);
AT(TorvaneLibraryData, numeric, 49);
_Static_assert(sizeof(TorvaneLibraryData) == 49 * sizeof(void *), "49 words");

AT(TorvaneRuntimeTable, version, 1);
AT(TorvaneRuntimeTable, currentGenerator, 2);
AT(TorvaneRuntimeTable, resetState, 3);
AT(TorvaneRuntimeTable, seedRandom, 4);
AT(TorvaneRuntimeTable, newTensor, 5);
AT(TorvaneRuntimeTable, resize, 6);
AT(TorvaneRuntimeTable, copy, 7);
AT(TorvaneRuntimeTable, copyNew, 8);
AT(TorvaneRuntimeTable, getParts, 9);
AT(TorvaneRuntimeTable, resolvePosition, 10);
AT(TorvaneRuntimeTable, getSubTensor, 11);
AT(TorvaneRuntimeTable, setSubTensor, 12);
AT(TorvaneRuntimeTable, unaryType, 13);
AT(TorvaneRuntimeTable, unary, 14);
AT(TorvaneRuntimeTable, unaryWithFlags, 15);
AT(TorvaneRuntimeTable, binaryType, 16);
AT(TorvaneRuntimeTable, binary, 17);
AT(TorvaneRuntimeTable, binaryWithFlags, 18);
AT(TorvaneRuntimeTable, compareReals, 19);
AT(TorvaneRuntimeTable, compareComplexes, 20);
AT(TorvaneRuntimeTable, service21, 21);
AT(TorvaneRuntimeTable, service22, 22);
AT(TorvaneRuntimeTable, generatorMethod, 23);
AT(TorvaneRuntimeTable, service24, 24);
AT(TorvaneRuntimeTable, lookupRuntimeFunction, 25);
AT(TorvaneRuntimeTable, seededGenerator, 26);
AT(TorvaneRuntimeTable, sharedRankZero, 27);
AT(TorvaneRuntimeTable, fromTable, 28);
_Static_assert(sizeof(TorvaneRuntimeTable) == 28 * sizeof(void *), "28 words");
_Static_assert(sizeof(TorvaneHostServiceTable) == 38 * sizeof(void *), "38 words");

AT(TorvaneSparseTable, fromPositions, 1);
AT(TorvaneSparseTable, deleteArray, 2);
AT(TorvaneSparseTable, rank, 3);
AT(TorvaneSparseTable, dimensions, 4);
AT(TorvaneSparseTable, elementCount, 5);
AT(TorvaneSparseTable, rowPointers, 6);
AT(TorvaneSparseTable, columnIndices, 7);
AT(TorvaneSparseTable, type, 8);
AT(TorvaneSparseTable, values, 9);
AT(TorvaneSparseTable, background, 10);
AT(TorvaneSparseTable, properties, 11);
AT(TorvaneSparseTable, copy, 12);
AT(TorvaneSparseTable, copyInto, 13);
AT(TorvaneSparseTable, setBackground, 14);
AT(TorvaneSparseTable, toTensor, 15);
AT(TorvaneSparseTable, fromTensor, 16);
_Static_assert(sizeof(TorvaneSparseTable) == 16 * sizeof(void *), "16 words");

AT(TorvanePixelTable, services1to3, 1);
AT(TorvanePixelTable, service4, 4);
AT(TorvanePixelTable, service5, 5);
AT(TorvanePixelTable, service6, 6);
AT(TorvanePixelTable, service7, 7);
AT(TorvanePixelTable, rank, 8);
AT(TorvanePixelTable, kind, 9);
AT(TorvanePixelTable, channelCount, 10);
AT(TorvanePixelTable, rowCount, 11);
AT(TorvanePixelTable, columnCount, 12);
AT(TorvanePixelTable, sliceCount, 13);
AT(TorvanePixelTable, service14, 14);
AT(TorvanePixelTable, interleaved, 15);
AT(TorvanePixelTable, pixelCount, 16);
AT(TorvanePixelTable, valueCount, 17);
AT(TorvanePixelTable, valueSize, 18);
AT(TorvanePixelTable, data, 19);
AT(TorvanePixelTable, bits, 20);
AT(TorvanePixelTable, bytes, 21);
AT(TorvanePixelTable, bit16s, 22);
AT(TorvanePixelTable, real32s, 23);
AT(TorvanePixelTable, real64s, 24);
AT(TorvanePixelTable, getBit, 25);
AT(TorvanePixelTable, getByte, 26);
AT(TorvanePixelTable, getBit16, 27);
AT(TorvanePixelTable, getReal32, 28);
AT(TorvanePixelTable, getReal64, 29);
AT(TorvanePixelTable, setBit, 30);
AT(TorvanePixelTable, setByte, 31);
AT(TorvanePixelTable, setBit16, 32);
AT(TorvanePixelTable, setReal32, 33);
AT(TorvanePixelTable, setReal64, 34);
_Static_assert(sizeof(TorvanePixelTable) == 34 * sizeof(void *), "34 words");

AT(TorvaneNumericTable, newArray, 1);
AT(TorvaneNumericTable, deleteArray, 2);
AT(TorvaneNumericTable, clone, 3);
AT(TorvaneNumericTable, service4, 4);
AT(TorvaneNumericTable, service5, 5);
AT(TorvaneNumericTable, refCount, 6);
AT(TorvaneNumericTable, elementType, 7);
AT(TorvaneNumericTable, rank, 8);
AT(TorvaneNumericTable, dimensions, 9);
AT(TorvaneNumericTable, elementCount, 10);
AT(TorvaneNumericTable, data, 11);
AT(TorvaneNumericTable, convert, 12);
_Static_assert(sizeof(TorvaneNumericTable) == 12 * sizeof(void *), "12 words");

static int failures;

static void expect(int holds, const char *what, int line) {
  if (holds) return;
  printf("line %d: %s\n", line, what);
  ++failures;
}
#define EXPECT(condition) expect(condition, #condition, __LINE__)

/* Words from 1: as pointers, and as functions of the type that the caller knows. */
typedef void (*Function)(void);
static void *word(const void *table, int i) { return ((void *const *)table)[i - 1]; }
static Function function(const void *table, int i) { return ((const Function *)table)[i - 1]; }
#define CALL(table, i, type) ((type)function(table, i))

typedef mint (*Service)(void);
typedef mint (*NewTensor)(mint, mint, const mint *, MTensor **);
typedef mint (*OfTensor)(const MTensor *);
typedef void *(*PointerOfTensor)(const MTensor *);

static void everyWordIsThere(const void *record) {
  for (int i = 1; i <= 49; ++i)
    if (i != 30) EXPECT(word(record, i) != NULL);
  const int lengths[][2] = {{29, 28}, {35, 38}, {37, 16}, {38, 34}, {48, 12}, {49, 12}};
  for (int t = 0; t < 6; ++t)
    for (int i = 1; i <= lengths[t][1]; ++i) EXPECT(word(word(record, lengths[t][0]), i) != NULL);
}

static void servicesReturnWhatTheyDo(const void *record) {
  const int zeros[] = {5, 6, 25, 26, 31, 32, 33, 34, 36, 46, 47}, sixes[] = {27, 39, 40, 41, 42, 43, 44, 45};
  for (int i = 0; i < 11; ++i) EXPECT(CALL(record, zeros[i], Service)() == 0);
  for (int i = 0; i < 8; ++i) EXPECT(CALL(record, sixes[i], Service)() == 6);
  for (int i = 1; i <= 38; ++i) EXPECT(CALL(word(record, 35), i, Service)() == 0);
  const void *runtime = word(record, 29), *pixels = word(record, 38);
  EXPECT(CALL(runtime, 21, Service)() == 0);
  EXPECT(CALL(runtime, 22, Service)() == 6);
  EXPECT(CALL(runtime, 24, Service)() == 0);
  for (int i = 1; i <= 3; ++i) EXPECT(CALL(pixels, i, Service)() == 6);
  EXPECT(CALL(pixels, 14, Service)() == 6);
  EXPECT(CALL(pixels, 5, Service)() == 0 && CALL(pixels, 7, Service)() == 0);
  for (int slot = 48; slot <= 49; ++slot) {
    const void *numeric = word(record, slot);
    EXPECT(CALL(numeric, 1, Service)() == 6 && CALL(numeric, 3, Service)() == 6);
    EXPECT(CALL(numeric, 4, Service)() == 0);
    CALL(numeric, 2, Function)();
    CALL(numeric, 5, Function)();
  }
  CALL(record, 7, Function)();
  CALL(pixels, 4, Function)();
  CALL(pixels, 6, Function)();
  CALL(record, 23, void (*)(const char *))("ignored");
  EXPECT(CALL(record, 24, Service)() == 0);
}

static MTensor *newTensor(const void *record, mint type, mint rank, const mint *extents) {
  MTensor *tensor = NULL;
  EXPECT(CALL(record, 2, NewTensor)(type, rank, extents, &tensor) == 0);
  return tensor;
}
static void deleteTensor(const void *record, MTensor *tensor) {
  CALL(record, 3, void (*)(MTensor *))(tensor);
}

static void tensorsAreReadByElement(const void *record) {
  const mint extents[] = {2, 3}, at[] = {2, -1}, first[] = {1};
  MTensor *integer = newTensor(record, 2, 2, extents), *real = newTensor(record, 3, 2, extents);
  MTensor *complex = newTensor(record, 4, 2, extents), *clone = NULL, *part = NULL;
  const mcomplex given = {1.5, -2.5};
  mint i = 0;
  mreal r = 0;
  mcomplex z = {0, 0};
  EXPECT(CALL(record, 8, mint(*)(MTensor *, const mint *, mint))(integer, at, 7) == 0);
  EXPECT(CALL(record, 9, mint(*)(MTensor *, const mint *, mreal))(real, at, 7.5) == 0);
  EXPECT(CALL(record, 10, mint(*)(MTensor *, const mint *, mcomplex))(complex, at, given) == 0);
  EXPECT(CALL(record, 12, mint(*)(const MTensor *, const mint *, mint *))(integer, at, &i) == 0 && i == 7);
  EXPECT(CALL(record, 13, mint(*)(const MTensor *, const mint *, mreal *))(real, at, &r) == 0 && r == 7.5);
  EXPECT(CALL(record, 14, mint(*)(const MTensor *, const mint *, mcomplex *))(complex, at, &z) == 0);
  EXPECT(z.re == 1.5 && z.im == -2.5);
  EXPECT(CALL(record, 14, mint(*)(const MTensor *, const mint *, mcomplex *))(real, at, &z) == 1);
  EXPECT(CALL(record, 16, OfTensor)(integer) == 2);
  EXPECT(((mint *)CALL(record, 17, PointerOfTensor)(integer))[1] == 3);
  EXPECT(CALL(record, 18, OfTensor)(integer) == 2 && CALL(record, 18, OfTensor)(complex) == 4);
  EXPECT(CALL(record, 19, OfTensor)(integer) == 6);
  EXPECT(((mint *)CALL(record, 20, PointerOfTensor)(integer))[5] == 7);
  EXPECT(((mreal *)CALL(record, 21, PointerOfTensor)(real))[5] == 7.5);
  EXPECT(((mcomplex *)CALL(record, 22, PointerOfTensor)(complex))[5].im == -2.5);
  EXPECT(CALL(record, 20, PointerOfTensor)(real) == NULL && CALL(record, 21, PointerOfTensor)(NULL) == NULL);
  EXPECT(CALL(record, 4, mint(*)(const MTensor *, MTensor **))(integer, &clone) == 0 && clone != integer);
  EXPECT(CALL(record, 15, mint(*)(const MTensor *, const mint *, mint, MTensor **))(integer, at, 1, &part) ==
         0);
  EXPECT(CALL(record, 19, OfTensor)(part) == 3);
  EXPECT(CALL(record, 11, mint(*)(MTensor *, const MTensor *, const mint *, mint))(clone, part, first, 1) ==
         0);
  EXPECT(((mint *)CALL(record, 20, PointerOfTensor)(clone))[2] == 7);
  MTensor *const made[] = {integer, real, complex, clone, part};
  for (int n = 0; n < 5; ++n) deleteTensor(record, made[n]);
  CALL(record, 1, void (*)(void *))(Malloc_fun(8));
}

typedef mint (*Convert)(MNumericArray **, const MNumericArray *, mint, mint, mreal);
typedef mint (*OfArray)(const MNumericArray *);

static void numericArraysAreRead(const void *record) {
  const mint extent = 3;
  MNumericArray *array = Runtime_CreateNumericArray(TORVANE_ELEMENT_INTEGER8, 1, &extent);
  for (int i = 0; i < 3; ++i) ((int8_t *)array->data)[i] = (int8_t)(i - 1);
  for (int slot = 48; slot <= 49; ++slot) {
    const void *table = word(record, slot);
    MNumericArray *wide = NULL;
    EXPECT(CALL(table, 6, int64_t(*)(const MNumericArray *))(array) == 1);
    EXPECT(CALL(table, 7, OfArray)(array) == 1 && CALL(table, 8, OfArray)(array) == 1);
    EXPECT(*CALL(table, 9, mint * (*)(const MNumericArray *))(array) == 3 &&
           CALL(table, 10, OfArray)(array) == 3);
    EXPECT(CALL(table, 11, void *(*)(const MNumericArray *))(array) == array->data);
    EXPECT(CALL(table, 12, Convert)(&wide, array, TORVANE_ELEMENT_REAL64, 1, 0.0) == 0);
    EXPECT(wide != NULL && ((mreal *)wide->data)[0] == -1.0);
    deleteTensor(record, (MTensor *)wide);
  }
  deleteTensor(record, (MTensor *)array);
}

typedef mint (*FromTensor)(const MTensor *, const MTensor *, MSparseArray **);
typedef mint (*ToTensor)(const MSparseArray *, MTensor **);

static void sparseArraysAreRead(const void *record) {
  const mint extent = 4, elements[] = {0, 5, 0, 6};
  const void *runtime = word(record, 29), *table = word(record, 37);
  MTensor *tensor = NULL, *dense = NULL;
  MSparseArray *array = NULL;
  EXPECT(CALL(runtime, 28, mint(*)(MTensor **, mint, mint, const mint *, const void *))(
             &tensor, 2, 1, &extent, elements) == 0);
  EXPECT(CALL(table, 16, FromTensor)(tensor, NULL, &array) == 0);
  EXPECT(CALL(table, 3, mint(*)(const MSparseArray *))(array) == 1);
  EXPECT(CALL(table, 5, mint(*)(const MSparseArray *))(array) == 2);
  EXPECT(CALL(table, 7, mint * (*)(const MSparseArray *))(array)[1] == 4);
  EXPECT(CALL(table, 15, ToTensor)(array, &dense) == 0);
  EXPECT(((mint *)CALL(record, 20, PointerOfTensor)(dense))[3] == 6);
  CALL(table, 2, void (*)(MSparseArray *))(array);
  deleteTensor(record, dense);
  deleteTensor(record, tensor);
}

static void pixelsAreRead(const void *record) {
  float values[] = {1, 2, 3, 4};
  TorvanePixelArray raster = {2, TORVANE_PIXEL_REAL32, 1, 0, {2, 2, 0}, values};
  const mint at[] = {2, 1};
  const void *table = word(record, 38);
  float read = 0;
  EXPECT(CALL(table, 8, mint(*)(const TorvanePixelArray *))(&raster) == 2);
  EXPECT(CALL(table, 9, mint(*)(const TorvanePixelArray *))(&raster) == 3);
  EXPECT(CALL(table, 28, mint(*)(const TorvanePixelArray *, const mint *, mint, float *))(&raster, at, 1,
                                                                                          &read) == 0);
  EXPECT(read == 3);
  EXPECT(CALL(table, 33, mint(*)(TorvanePixelArray *, const mint *, mint, float))(&raster, at, 1, 9) == 0);
  EXPECT(values[2] == 9);
  EXPECT(CALL(table, 23, void *(*)(const TorvanePixelArray *))(&raster) == values);
}

typedef RuntimeFunctionHandler (*Lookup)(const char *);

static void functionsAreFoundByName(TorvaneLibraryData *record) {
  const void *runtime = word(record, 29);
  const Lookup lookup = CALL(runtime, 25, Lookup);
  mint type = 2, bag = -1, value = 41, kind = 0, position = -1, read = 0;
  void *const bagOf[] = {&type}, *const stuff[] = {&bag, &value}, *const part[] = {&bag, &kind, &position};
  EXPECT(lookup("Bag")(record, 1, bagOf, &bag) == 0 && bag == 0);
  EXPECT(lookup("StuffBagScalar")(record, 2, stuff, NULL) == 0);
  EXPECT(lookup("BagPart")(record, 3, part, &read) == 0 && read == 41);
  EXPECT(((void **)word(record, 28))[1] != NULL);
  CALL(runtime, 3, void (*)(TorvaneLibraryData *))(record);
  EXPECT(((void **)word(record, 28))[1] == NULL);
  EXPECT(lookup("BagPart")(record, 3, part, &read) == 12);
  EXPECT(lookup(NULL)(record, 0, NULL, NULL) == 12);
}

int main(void) {
  TorvaneLibraryData *record = TorvaneLibraryData_new(5);
  EXPECT(((const intptr_t *)record)[29] == 5);
  everyWordIsThere(record);
  servicesReturnWhatTheyDo(record);
  tensorsAreReadByElement(record);
  numericArraysAreRead(record);
  sparseArraysAreRead(record);
  pixelsAreRead(record);
  functionsAreFoundByName(record);
  TorvaneLibraryData_free(record);
  return failures;
}
