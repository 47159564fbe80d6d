/* The record that a host hands to each compiled library, and its tables: how a library that was linked to
 * nothing reaches tensors, named functions, sparse and numeric arrays.
 *
 * All of it is positional: words of one pointer each, counted from 1, at the positions that the comments
 * give. The names here are for readers. Positions of elements are 1-based, negative ones count from the end,
 * and a list of them has one for each dimension. Nothing in the record raises; what returns an mint without
 * another meaning returns a status. A record belongs to one thread at a time. docs/library_data.md tells the
 * whole. */
#ifndef TORVANE_LIBRARY_DATA_H
#define TORVANE_LIBRARY_DATA_H

#include "numeric_arrays.h"
#include "random.h"
#include "registry.h"
#include "sparse_arrays.h"
#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* A service of a host that this library does not have: whatever it is given, it does nothing and returns 0,
 * or where it is said 6. No library may rely on one. */
typedef mint (*TorvaneHostService)(void);

/* Tensors by element, part and operator; word 29 of the record. */
typedef struct TorvaneRuntimeTable {
  intptr_t version;                                      /* 1: 1 */
  RandomGenerator *(*currentGenerator)(void);            /* 2: Runtime_GetCurrentRandomGenerator */
  void (*resetState)(TorvaneLibraryData *record);        /* 3: bags, random blocks and flags go */
  mint (*seedRandom)(const uint32_t *seed, mint method); /* 4: Runtime_SeedRandom */
  MTensor *(*newTensor)(void);                           /* 5: MTensor_new */
  mint (*resize)(MTensor *, mint type, mint rank, mint *dimensions); /* 6: negative extents become 0 there */
  mint (*copy)(MTensor **target, const MTensor *source);             /* 7: into an existing tensor; 5 */
  mint (*copyNew)(MTensor **target, const MTensor *source);          /* 8: into one that it creates; 5 */
  mint (*getParts)(MTensor **result, const MTensor *source, mint selectorCount, const mint *kinds,
                   void *const *specs); /* 9: selectors as in parts.h */
  mint (*resolvePosition)(const MTensor *, const mint *positions, mint *offset); /* 10: flat, from 0 */
  mint (*getSubTensor)(const MTensor *source, const mint *positions, mint count,
                       MTensor **result); /* 11: as word 15 of the record */
  mint (*setSubTensor)(MTensor *target, const MTensor *source, const mint *positions,
                       mint count);                                      /* 12: as word 11 of the record */
  mint (*unaryType)(mint op, mint kind);                                 /* 13: ReturnType1 */
  mint (*unary)(MTensor **result, MTensor *x, mint op, mint resultType); /* 14: MTensorMathUnary */
  mint (*unaryWithFlags)(MTensor **result, MTensor *x, mint op, mint resultType,
                         mint flags);                  /* 15: and the status as it arose */
  mint (*binaryType)(mint op, mint kind1, mint kind2); /* 16: ReturnType2 */
  mint (*binary)(MTensor **result, MTensor *x, MTensor *y, mint op,
                 mint resultType); /* 17: MTensorMathBinary */
  mint (*binaryWithFlags)(MTensor **result, MTensor *x, MTensor *y, mint op, mint resultType,
                          mint flags);                                             /* 18 */
  mint (*compareReals)(mint op, mreal tolerance, mint count, const mreal *values); /* 19 */
  mint (*compareComplexes)(mint op, mreal tolerance, mint count, const mcomplex *values,
                           mint *result);     /* 20 */
  TorvaneHostService service21;               /* 21 */
  TorvaneHostService service22;               /* 22: 6 */
  void *(*generatorMethod)(const char *name); /* 23: null for an unknown name */
  TorvaneHostService service24;               /* 24 */
  RuntimeFunctionHandler (*lookupRuntimeFunction)(
      const char *name); /* 25: docs/registry.md lists the names */
  RandomGeneratorSnapshot *(*seededGenerator)(const char *method, void *parameters, const uint32_t *seed,
                                              mint seedCount);          /* 26: RandomGenerator_create */
  MTensor *(*sharedRankZero)(const void *source, mint type, mint slot); /* 27: *LoadSharedRankZeroMTensor */
  mint (*fromTable)(MTensor **result, mint type, mint rank, const mint *dimensions,
                    const void *elements); /* 28: not in the table of version 1 */
} TorvaneRuntimeTable;

/* Word 35: stubs all of them. */
typedef struct TorvaneHostServiceTable {
  TorvaneHostService services[38];
} TorvaneHostServiceTable;

/* Word 37. Accessors give 0 for a null array; what they point at stays the array's. The others return 0 or
 * -1, and what else is said. */
typedef struct TorvaneSparseTable {
  /* 1: an array of the lines of `positions` in place of the one in the slot. values, dimensions, background
   * may be null; -1 on failure. */
  mint (*fromPositions)(const MTensor *positions, const MTensor *values, const MTensor *dimensions,
                        const MTensor *background, MSparseArray **result);
  void (*deleteArray)(MSparseArray *);          /* 2 */
  mint (*rank)(const MSparseArray *);           /* 3 */
  mint *(*dimensions)(const MSparseArray *);    /* 4 */
  mint (*elementCount)(const MSparseArray *);   /* 5 */
  mint *(*rowPointers)(const MSparseArray *);   /* 6 */
  mint *(*columnIndices)(const MSparseArray *); /* 7 */
  mint (*type)(const MSparseArray *);           /* 8 */
  MTensor *(*values)(const MSparseArray *);     /* 9 */
  MTensor *(*background)(const MSparseArray *); /* 10 */
  void (*properties)(MSparseArray *, mint *rank, mint **dimensions, mint *elementCount, mint **rowPointers,
                     mint **columnIndices, mint *type, MTensor **values,
                     MTensor **background);                            /* 11: each pointer may be null */
  MSparseArray *(*copy)(const MSparseArray *);                         /* 12 */
  mint (*copyInto)(const MSparseArray *source, MSparseArray **result); /* 13: the one in the slot goes */
  /* 14: 1 for a pattern or another type, 2 for a background that has extents, 403 */
  mint (*setBackground)(MSparseArray *, const MTensor *background, MSparseArray **result);
  mint (*toTensor)(const MSparseArray *, MTensor **result); /* 15: 1 for a pattern, 403 */
  mint (*fromTensor)(const MTensor *, const MTensor *background, MSparseArray **result); /* 16 */
} TorvaneSparseTable;

/* The kinds of a pixel value. */
enum {
  TORVANE_PIXEL_BIT = 0, /* uint8_t, 0 or 1 */
  TORVANE_PIXEL_BYTE = 1,
  TORVANE_PIXEL_BIT16 = 2,
  TORVANE_PIXEL_REAL32 = 3,
  TORVANE_PIXEL_REAL64 = 4
};

/* A raster of a host's: the library reads and writes its values and never makes or frees one. Rank 2: rows,
 * columns; rank 3: slices, rows, columns. Values lie slice by slice, row by row; within that the channels
 * of a pixel stand together when `interleaved`, else there is a whole raster for each channel. */
typedef struct TorvanePixelArray {
  mint rank, kind, channelCount, interleaved;
  mint dimensions[3];
  void *data;
} TorvanePixelArray;

/* Word 38. The first getters give -1 for a null array, and sizes also for another rank; pointers are null.
 * Channels count from 1. Getting and setting: -1 for a null array, 1 for another kind, 3 for a position or
 * channel outside. */
typedef struct TorvanePixelTable {
  TorvaneHostService services1to3[3]; /* 6 */
  void (*service4)(void);
  TorvaneHostService service5;
  void (*service6)(void);
  TorvaneHostService service7;
  mint (*rank)(const TorvanePixelArray *);         /* 8 */
  mint (*kind)(const TorvanePixelArray *);         /* 9: -1 for a kind of 5 or above */
  mint (*channelCount)(const TorvanePixelArray *); /* 10 */
  mint (*rowCount)(const TorvanePixelArray *);     /* 11 */
  mint (*columnCount)(const TorvanePixelArray *);  /* 12 */
  mint (*sliceCount)(const TorvanePixelArray *);   /* 13: 1 at rank 2 */
  TorvaneHostService service14;                    /* 6 */
  mint (*interleaved)(const TorvanePixelArray *);  /* 15 */
  mint (*pixelCount)(const TorvanePixelArray *);   /* 16 */
  mint (*valueCount)(const TorvanePixelArray *);   /* 17: pixels times channels */
  mint (*valueSize)(const TorvanePixelArray *);    /* 18: bytes of a value */
  void *(*data)(const TorvanePixelArray *);        /* 19 */
  uint8_t *(*bits)(const TorvanePixelArray *);     /* 20 to 24: null for an array of another kind */
  uint8_t *(*bytes)(const TorvanePixelArray *);
  uint16_t *(*bit16s)(const TorvanePixelArray *);
  float *(*real32s)(const TorvanePixelArray *);
  mreal *(*real64s)(const TorvanePixelArray *);
  mint (*getBit)(const TorvanePixelArray *, const mint *position, mint channel,
                 uint8_t *value); /* 25 to 29 */
  mint (*getByte)(const TorvanePixelArray *, const mint *position, mint channel, uint8_t *value);
  mint (*getBit16)(const TorvanePixelArray *, const mint *position, mint channel, uint16_t *value);
  mint (*getReal32)(const TorvanePixelArray *, const mint *position, mint channel, float *value);
  mint (*getReal64)(const TorvanePixelArray *, const mint *position, mint channel, mreal *value);
  mint (*setBit)(TorvanePixelArray *, const mint *position, mint channel, uint8_t value); /* 30 to 34 */
  mint (*setByte)(TorvanePixelArray *, const mint *position, mint channel, uint8_t value);
  mint (*setBit16)(TorvanePixelArray *, const mint *position, mint channel, uint16_t value);
  mint (*setReal32)(TorvanePixelArray *, const mint *position, mint channel, float value);
  mint (*setReal64)(TorvanePixelArray *, const mint *position, mint channel, mreal value);
} TorvanePixelTable;

/* Words 48 and 49. Accessors give 0 for a null array. Making, deleting and cloning are the host's: a library
 * makes arrays by Runtime_CreateNumericArray or by a conversion into an empty slot. */
typedef struct TorvaneNumericTable {
  mint (*newArray)(void);    /* 1: 6 */
  void (*deleteArray)(void); /* 2: nothing */
  mint (*clone)(void);       /* 3: 6 */
  TorvaneHostService service4;
  void (*service5)(void);
  int64_t (*refCount)(const MNumericArray *);  /* 6 */
  mint (*elementType)(const MNumericArray *);  /* 7: 0 for a tag outside 1 to 12 */
  mint (*rank)(const MNumericArray *);         /* 8 */
  mint *(*dimensions)(const MNumericArray *);  /* 9 */
  mint (*elementCount)(const MNumericArray *); /* 10 */
  void *(*data)(const MNumericArray *);        /* 11 */
  mint (*convert)(MNumericArray **result, const MNumericArray *source, mint elementType, mint method,
                  mreal digits); /* 12: 1, 4 or 6 on failure */
} TorvaneNumericTable;

struct TorvaneLibraryData {
  void (*freeBlock)(void *block); /* 1: Free_fun */
  /* 2: a new tensor in the slot, null on failure. 1 for a type, 2 for a rank, 3 for extents that none has, 5
   * where memory is short. */
  mint (*newTensor)(mint type, mint rank, const mint *dimensions, MTensor **result);
  void (*deleteTensor)(MTensor *); /* 3 */
  mint (*cloneTensor)(const MTensor *source,
                      MTensor **target); /* 4: into the tensor of the slot, or a new one; 5 */
  TorvaneHostService service5, service6;
  void (*service7)(void);
  mint (*setInteger)(MTensor *, const mint *positions, mint value); /* 8 to 10: 1 for another type, 3 */
  mint (*setReal)(MTensor *, const mint *positions, mreal value);   /* outside the tensor */
  mint (*setComplex)(MTensor *, const mint *positions, mcomplex value);
  mint (*setSubTensor)(MTensor *target, const MTensor *source, const mint *positions, mint count); /* 11 */
  mint (*getInteger)(const MTensor *, const mint *positions, mint *value); /* 12 to 14 */
  mint (*getReal)(const MTensor *, const mint *positions, mreal *value);
  mint (*getComplex)(const MTensor *, const mint *positions, mcomplex *value);
  mint (*getSubTensor)(const MTensor *source, const mint *positions, mint count, MTensor **result); /* 15 */
  mint (*rank)(const MTensor *);                                                                    /* 16 */
  mint *(*dimensions)(const MTensor *);                                                             /* 17 */
  mint (*type)(const MTensor *);                                                                    /* 18 */
  mint (*elementCount)(const MTensor *);                                                            /* 19 */
  mint *(*integerData)(const MTensor *); /* 20 to 22: null for another type and for null */
  mreal *(*realData)(const MTensor *);
  mcomplex *(*complexData)(const MTensor *);
  void (*message)(const char *text); /* 23: ignored */
  mint (*abortQ)(void); /* 24: 1 once the poll of long loops, which nothing switches on, says so */
  TorvaneHostService service25, service26;
  TorvaneHostService service27;       /* 6 */
  void *runtimeState;                 /* 28: the record's own, private */
  const TorvaneRuntimeTable *runtime; /* 29 */
  intptr_t version;                   /* 30 */
  TorvaneHostService services31to34[4];
  const TorvaneHostServiceTable *hostServices; /* 35 */
  TorvaneHostService service36;
  const TorvaneSparseTable *sparse;     /* 37 */
  const TorvanePixelTable *pixels;      /* 38 */
  TorvaneHostService services39to45[7]; /* 6 */
  TorvaneHostService service46, service47;
  const TorvaneNumericTable *numericSecond; /* 48: of a second kind of array, with the same layout */
  const TorvaneNumericTable *numeric;       /* 49: of MNumericArray */
};

/* A new record of `version` 0 to 5; below 0 is as 0, above 5 its function words are null. The first call, and
 * each after a free, starts the library anew: heaps, live tensors and the current generator survive. Running
 * out of memory ends the process. */
TORVANE_API TorvaneLibraryData *TorvaneLibraryData_new(mint version);

/* Frees the record with its bags and open random blocks; the tables stay. Null is ignored. */
TORVANE_API void TorvaneLibraryData_free(TorvaneLibraryData *record);

TORVANE_END_DECLARATIONS

#endif
