/* What compiled programs share: the checked operations of the language on top of the library's, failures,
 * output, and the way from integers to reals. Generated code includes it and nothing else.
 *
 * Two kinds of failure travel on one road, throwTorvaneException: codes of scalars, and statuses that calls
 * return, as STATUS_RETURNED with the status kept beside. In style 1 a raise returns; therefore every
 * operation here does nothing once a code is pending, the first failure stands, and generated code looks at
 * it once a statement. In style 0 it unwinds through generated code, whose slots clean themselves up. In
 * style 2 slots on the way are lost. */
#ifndef COMPILED_H
#define COMPILED_H

#define _POSIX_C_SOURCE 200809L

#include "host/entry.h"

#include <torvane/torvane.h>

#include <math.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define COMPILED static __attribute__((unused))
/* A slot that is empty or holds a tensor of its own. */
#define OWNED __attribute__((cleanup(releaseTensor)))

enum { STATUS_RETURNED = -1, CHECKS = TORVANE_CHECK_REALS | TORVANE_CHECK_INTEGERS };

static struct Program {
  TorvaneLibraryData *record;
  const char *file, *stack; /* where its frames begin */
  int line, column;         /* of the statement that runs */
  mint status;              /* what STATUS_RETURNED stands for */
  const char *what;
  FILE *output; /* kept until the program has ended: one that starts again prints nothing twice */
  char *text;
  size_t length;
} program;

/* Failures. */

static inline bool failed(void) { return RTL_exceptionActive != 0; }

static inline void at(int line, int column) {
  if (failed()) return; /* where it failed is where it is */
  program.line = line;
  program.column = column;
}

static inline void failWith(mint status, const char *what) {
  if (failed()) return;
  program.status = status;
  program.what = what;
  throwTorvaneException(STATUS_RETURNED);
}

static inline void raiseCode(mint code) {
  if (!failed()) throwTorvaneException(code);
}

static inline bool aborted(void) { return checkAbortWatchThrow() != 0 || failed(); }

/* Frames are counted in bytes: how many calls fit depends on what they hold. */
static inline bool cannotEnter(void) {
  const ptrdiff_t most = 2 << 20, used = program.stack - (const char *)__builtin_frame_address(0);
  if (used > most || -used > most) failWith(4, "calls are nested too deeply");
  return failed();
}

/* Scalars: the checked entries, which nothing calls once something has failed. */

#define INTEGER_UNARY(name)                                                                                  \
  static inline mint name##_i(mint x) { return failed() ? 0 : checked_unary_##name##_Integer32(x); }
#define INTEGER_BINARY(name)                                                                                 \
  static inline mint name##_i(mint x, mint y) {                                                              \
    return failed() ? 0 : checked_binary_##name##_Integer32_Integer32(x, y);                                 \
  }
#define REAL_UNARY(name, result)                                                                             \
  static inline result name##_r(mreal x) { return failed() ? 0 : checked_unary_##name##_Real64(x); }
#define REAL_BINARY(name, result)                                                                            \
  static inline result name##_r(mreal x, mreal y) {                                                          \
    return failed() ? 0 : checked_binary_##name##_Real64_Real64(x, y);                                       \
  }
#define COMPLEX_UNARY(name)                                                                                  \
  static inline mcomplex name##_c(mcomplex x) {                                                              \
    mcomplex z = {0, 0};                                                                                     \
    if (!failed()) checked_unary_##name##_ComplexReal64(&z.re, &z.im, x.re, x.im);                           \
    return z;                                                                                                \
  }
#define COMPLEX_TO(name, result)                                                                             \
  static inline result name##_c(mcomplex x) {                                                                \
    return failed() ? 0 : checked_unary_##name##_ComplexReal64(x.re, x.im);                                  \
  }
#define COMPLEX_BINARY(name)                                                                                 \
  static inline mcomplex name##_c(mcomplex x, mcomplex y) {                                                  \
    mcomplex z = {0, 0};                                                                                     \
    if (!failed())                                                                                           \
      checked_binary_##name##_ComplexReal64_ComplexReal64(&z.re, &z.im, x.re, x.im, y.re, y.im);             \
    return z;                                                                                                \
  }
#define REAL_AND_COMPLEX(name) REAL_UNARY(name, mreal) COMPLEX_UNARY(name)

/* clang-format off */
INTEGER_UNARY(minus) INTEGER_UNARY(abs) INTEGER_UNARY(sign) INTEGER_UNARY(square) INTEGER_UNARY(unitize)
INTEGER_UNARY(ramp)
INTEGER_BINARY(plus) INTEGER_BINARY(subtract) INTEGER_BINARY(times) INTEGER_BINARY(mod) INTEGER_BINARY(quotient)
INTEGER_BINARY(pow)

REAL_AND_COMPLEX(sin) REAL_AND_COMPLEX(cos) REAL_AND_COMPLEX(tan) REAL_AND_COMPLEX(sinh) REAL_AND_COMPLEX(cosh)
REAL_AND_COMPLEX(tanh) REAL_AND_COMPLEX(asin) REAL_AND_COMPLEX(acos) REAL_AND_COMPLEX(atan)
REAL_AND_COMPLEX(asinh) REAL_AND_COMPLEX(acosh) REAL_AND_COMPLEX(atanh) REAL_AND_COMPLEX(exp)
REAL_AND_COMPLEX(log) REAL_AND_COMPLEX(sqrt) REAL_AND_COMPLEX(recip) REAL_AND_COMPLEX(square)
REAL_AND_COMPLEX(minus)

REAL_UNARY(abs, mreal) REAL_UNARY(cbrt, mreal) REAL_UNARY(erf, mreal) REAL_UNARY(ramp, mreal)
REAL_UNARY(sign, mint) REAL_UNARY(unitize, mint) REAL_UNARY(round, mint) REAL_UNARY(floor, mint)
REAL_UNARY(ceiling, mint)
REAL_BINARY(plus, mreal) REAL_BINARY(subtract, mreal) REAL_BINARY(times, mreal) REAL_BINARY(divide, mreal)
REAL_BINARY(mod, mreal) REAL_BINARY(pow, mreal) REAL_BINARY(quotient, mint)

COMPLEX_UNARY(conj) COMPLEX_UNARY(sign)
COMPLEX_TO(abs, mreal) COMPLEX_TO(arg, mreal) COMPLEX_TO(re, mreal) COMPLEX_TO(im, mreal)
COMPLEX_TO(unitize, mint)
COMPLEX_BINARY(plus) COMPLEX_BINARY(subtract) COMPLEX_BINARY(times) COMPLEX_BINARY(divide) COMPLEX_BINARY(mod)
COMPLEX_BINARY(pow)
/* Powers whose exponent is an integer keep the type of their base. */
static inline mreal pow_ri(mreal x, mint y) {
  return failed() ? 0 : checked_binary_pow_Real64_Integer32(x, y);
}
/* clang-format on */
static inline mcomplex pow_ci(mcomplex x, mint y) {
  mcomplex z = {0, 0};
  if (!failed()) checked_binary_pow_ComplexReal64_Integer32(&z.re, &z.im, x.re, x.im, y);
  return z;
}

static inline bool equal(mreal x, mreal y) { return x == y; }
static inline bool less(mreal x, mreal y) { return x < y; }
static inline bool lessEqual(mreal x, mreal y) { return x <= y; }
static inline bool equal_c(mcomplex x, mcomplex y) { return x.re == y.re && x.im == y.im; }

/* Integers as reals: what the second form of a function computes with. Sums, differences and products are
 * those of reals. A remainder is asked only of what reals hold exactly. */

static const mreal largestExact = 9007199254740992.0; /* 2^53 */

static inline mreal exactly(mreal x) {
  if (x > largestExact || x < -largestExact) raiseCode(TORVANE_ERROR_INTEGER_OVERFLOW);
  return x;
}
static inline mreal wholeMod(mreal x, mreal y) { return mod_r(exactly(x), exactly(y)); }
static inline mreal wholeQuotient(mreal x, mreal y) {
  return divide_r(subtract_r(exactly(x), wholeMod(x, y)), y);
}
static inline mreal whole(mreal x) { /* an integer power that is no integer */
  if (x != floor(x)) raiseCode(TORVANE_ERROR_DOMAIN);
  return x;
}
static inline mreal wholeQuotientOfReals(mreal x, mreal y) { return floor(divide_r(x, y)); }
static inline mreal wholeRound(mreal x) { return rint(x); }
static inline mreal wholeFloor(mreal x) { return floor(x); }
static inline mreal wholeCeiling(mreal x) { return ceil(x); }

static inline mint narrow(mreal x) {
  if (x >= -INT32_MAX && x <= INT32_MAX) return (mint)x;
  raiseCode(TORVANE_ERROR_INTEGER_OVERFLOW);
  return 0;
}
static inline mint position(mreal x) { return x >= -INT32_MAX && x <= INT32_MAX ? (mint)x : 0; }

/* Tensors. A slot keeps its tensor from turn to turn of a loop, so that memory is asked for once. */

static inline void releaseTensor(MTensor **slot) { MTensor_delete(*slot); }

static inline void moveTensor(MTensor **target, MTensor **source) {
  MTensor *kept = *target;
  *target = *source;
  *source = kept;
}

static inline bool allocateTensor(MTensor **slot, mint type, mint rank, const mint *extents) {
  if (failed()) return false;
  const mint status = MTensor_allocateCommon(slot, type, rank, extents, 1);
  if (status != 0) failWith(status, "a tensor could not be made");
  return status == 0;
}

static inline void copyTensor(MTensor **target, const MTensor *source) {
  if (!failed() && MTensor_makeCopy(target, source) != 0) failWith(403, "a tensor could not be copied");
}

static inline void setTensor(MTensor **slot, mint type, mint rank, const mint *extents,
                             const void *elements) {
  if (allocateTensor(slot, type, rank, extents))
    memcpy((*slot)->data, elements, (size_t)(*slot)->elementCount * MTensor_typeSizeTable[type]);
}

static inline void convertTensor(MTensor **slot, const MTensor *x, mint type) {
  if (!failed() && allocateTensor(slot, type, x->rank, x->dimensions))
    MTensor_copySomeDataCoerce(*slot, 0, 1, x, 0, 1, x->elementCount);
}

#define FILL(letter, element, type)                                                                          \
  static inline void fill_##letter(MTensor **slot, element value, mint rank, const mint *extents) {          \
    if (!allocateTensor(slot, type, rank, extents)) return;                                                  \
    for (mint i = 0; i < (*slot)->elementCount; i++) ((element *)(*slot)->data)[i] = value;                  \
  }
FILL(i, mint, TORVANE_TYPE_INTEGER)
FILL(r, mreal, TORVANE_TYPE_REAL)
FILL(c, mcomplex, TORVANE_TYPE_COMPLEX)

/* first to last, or nothing */
#define RANGE(letter, element, type)                                                                         \
  static inline void range_##letter(MTensor **slot, element first, element last) {                           \
    const mreal count = last < first ? 0 : (mreal)last - (mreal)first + 1;                                   \
    const mint extent = narrow(count);                                                                       \
    if (!allocateTensor(slot, type, 1, &extent)) return;                                                     \
    for (mint i = 0; i < extent; i++) ((element *)(*slot)->data)[i] = first + (element)i;                    \
  }
RANGE(i, mint, TORVANE_TYPE_INTEGER)
RANGE(r, mreal, TORVANE_TYPE_REAL)

/* A number as an operand: the thread's shared tensors of rank 0. Slot 0 is for the left operand, 1 for the
 * right. */
static inline MTensor *scalar_i(mint x, mint slot) {
  return *LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_INTEGER, slot);
}
static inline MTensor *scalar_r(mreal x, mint slot) {
  return *LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_REAL, slot);
}
static inline MTensor *scalar_c(mcomplex x, mint slot) {
  return *LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_COMPLEX, slot);
}

/* The code of a failing element is lost. Where the result is of integers it counts as overflow: if it was
 * something else, the second form meets it again. */
static inline void elementwiseStatus(mint status, mint type) {
  if (status == 0) return;
  if (status == -1)
    failWith(3, "shapes that do not go together");
  else if (status == 4 && type == TORVANE_TYPE_INTEGER)
    raiseCode(TORVANE_ERROR_INTEGER_OVERFLOW);
  else if (status == 4)
    failWith(4, "an element is outside the domain, infinite or not a number");
  else
    failWith(status, "an elementwise operation failed");
}

static inline void unaryTensor(MTensor **slot, MTensor *x, mint op, mint type) {
  if (!failed()) elementwiseStatus(program.record->runtime->unaryWithFlags(slot, x, op, type, CHECKS), type);
}
static inline void binaryTensor(MTensor **slot, MTensor *x, MTensor *y, mint op, mint type) {
  if (!failed())
    elementwiseStatus(program.record->runtime->binaryWithFlags(slot, x, y, op, type, CHECKS), type);
}

/* Tensors of integers as reals. */

static inline void everyElement(const MTensor *x, mreal (*function)(mreal)) {
  if (failed()) return;
  mreal *data = x->data;
  for (mint i = 0; i < x->elementCount && !failed(); i++) data[i] = function(data[i]);
}
static inline void exactTensor(const MTensor *x) {
  for (mint i = 0; !failed() && i < x->elementCount; i++) exactly(((const mreal *)x->data)[i]);
}
static inline void wholeTensor(MTensor **slot, const MTensor *x, mreal (*function)(mreal)) {
  copyTensor(slot, x);
  everyElement(*slot, function);
}
static inline void wholeModTensor(MTensor **slot, MTensor *x, MTensor *y) {
  exactTensor(x);
  exactTensor(y);
  binaryTensor(slot, x, y, 261, TORVANE_TYPE_REAL);
}
static inline void wholeQuotientTensor(MTensor **slot, MTensor *x, MTensor *y) {
  OWNED MTensor *rest = NULL, *multiple = NULL;
  wholeModTensor(&rest, x, y);
  binaryTensor(&multiple, x, rest, 258, TORVANE_TYPE_REAL);
  binaryTensor(slot, multiple, y, 260, TORVANE_TYPE_REAL);
}
static inline void narrowTensor(MTensor **slot, const MTensor *x) {
  if (failed() || !allocateTensor(slot, TORVANE_TYPE_INTEGER, x->rank, x->dimensions)) return;
  for (mint i = 0; i < x->elementCount && !failed(); i++)
    ((mint *)(*slot)->data)[i] = narrow(((const mreal *)x->data)[i]);
}

/* Elements and parts. Positions count from 1, or from the end when they are negative. */

static inline mint offsetOf(const MTensor *x, mint rank, const mint *positions) {
  mint offset = 0;
  if (failed()) return -1;
  for (mint i = 0; i < rank; i++) {
    const mint extent = x->dimensions[i], p = positions[i] < 0 ? positions[i] + extent : positions[i] - 1;
    if (p < 0 || p >= extent) {
      failWith(3, "a position is outside the tensor");
      return -1;
    }
    offset = offset * extent + p;
  }
  return offset;
}

#define ELEMENTS(letter, element, ...)                                                                       \
  static inline element element_##letter(const MTensor *x, mint rank, const mint *positions) {               \
    const mint offset = offsetOf(x, rank, positions);                                                        \
    return offset < 0 ? (element)__VA_ARGS__ : ((const element *)x->data)[offset];                           \
  }                                                                                                          \
  static inline void setElement_##letter(const MTensor *x, mint rank, const mint *positions,                 \
                                         element value) {                                                    \
    const mint offset = offsetOf(x, rank, positions);                                                        \
    if (offset >= 0) ((element *)x->data)[offset] = value;                                                   \
  }
ELEMENTS(i, mint, 0)
ELEMENTS(r, mreal, 0)
ELEMENTS(c, mcomplex, {0, 0})

static const mint onePosition[8] = {TORVANE_PART_POSITION}; /* for each dimension, the kind being 0 */

static inline void partOf(MTensor **slot, const MTensor *x, mint count, const mint *positions) {
  void *specs[8];
  if (failed()) return;
  for (mint i = 0; i < count; i++) specs[i] = (void *)(intptr_t)&positions[i];
  if (MTensor_getParts(*slot, slot, x, x->rank - count, count, onePosition, specs) != 0)
    failWith(3, "a position is outside the tensor");
}

/* What is stored has just the shape of the part: nothing is repeated. */
static inline void setPart(MTensor *x, mint count, const mint *positions, const MTensor *value) {
  void *specs[8];
  if (failed()) return;
  for (mint i = 0; i < count; i++) specs[i] = (void *)(intptr_t)&positions[i];
  const size_t bytes = (size_t)value->rank * sizeof(mint);
  if (memcmp(value->dimensions, x->dimensions + count, bytes) != 0)
    failWith(3, "a part of another shape");
  else if (MTensor_setParts(x, value, value->rank, count, onePosition, specs) != 0)
    failWith(3, "a position is outside the tensor");
}

static inline mint sizeOf(const MTensor *x, mint dimension) {
  if (failed()) return 0;
  if (dimension >= 1 && dimension <= x->rank) return x->dimensions[dimension - 1];
  failWith(3, "no such dimension");
  return 0;
}

/* Functions by name. */

static inline mint namedStatus(const char *name, mint count, void *const *arguments, void *result) {
  if (failed()) return 0;
  return program.record->runtime->lookupRuntimeFunction(name)(program.record, count, arguments, result);
}
static inline void callNamed(const char *name, mint count, void *const *arguments, void *result) {
  const mint status = namedStatus(name, count, arguments, result);
  if (status != 0) failWith(status, name);
}
/* Sums and products of integers: what fails is run again over reals, and if that was not it, it fails again.
 */
static inline void callNamedIntegers(const char *name, mint count, void *const *arguments, void *result) {
  if (namedStatus(name, count, arguments, result) != 0) raiseCode(TORVANE_ERROR_INTEGER_OVERFLOW);
}

/* Turns of a loop less one. */
static inline mint steps_i(mint first, mint last, mint step) {
  mint count = -1;
  callNamed("IteratorCountI", 3, (void *const[]){&first, &last, &step}, &count);
  return count;
}
static inline mint steps_r(mreal first, mreal last, mreal step) {
  mint count = -1;
  callNamed("IteratorCountR", 3, (void *const[]){&first, &last, &step}, &count);
  return count;
}

/* Output. Ten digits hide the last bits, in which mathematical libraries differ. */

static inline void printText(const char *text) { fputs(text, program.output); }
static inline void print_i(mint x) { fprintf(program.output, "%d", x); }
static inline void print_r(mreal x) { fprintf(program.output, "%.10g", x == 0 ? 0 : x); }
static inline void print_c(mcomplex x) {
  print_r(x.re);
  fprintf(program.output, "%+.10gi", x.im == 0 ? 0 : x.im);
}
static inline void print_whole(mreal x) {
  if (x >= -largestExact && x <= largestExact)
    fprintf(program.output, "%.0f", x == 0 ? 0 : x);
  else
    fprintf(program.output, "%.16g", x);
}

static inline void printElement(const MTensor *x, mint i, bool isWhole) {
  if (x->type == TORVANE_TYPE_INTEGER)
    print_i(((const mint *)x->data)[i]);
  else if (x->type == TORVANE_TYPE_COMPLEX)
    print_c(((const mcomplex *)x->data)[i]);
  else
    (isWhole ? print_whole : print_r)(((const mreal *)x->data)[i]);
}

/* The last dimension along a line, every row on one of its own. */
static inline void printTensor(const MTensor *x, bool isWhole) {
  const mint width = x->dimensions[x->rank - 1];
  for (mint i = 0; i < x->elementCount; i++) {
    if (i > 0) printText(i % width == 0 ? "\n" : " ");
    printElement(x, i, isWhole);
  }
}

/* Running, and running again. */

static inline mint attempt(void *closure) {
  CompilerError *error = catchExceptionHandler(NULL, closure);
  if (error == NULL) return 0;
  const mint code = error->code;
  Delete_CompilerError(error);
  return code;
}

static inline void note(const char *what) {
  fprintf(stderr, "%s:%d:%d: note: integers do not suffice; %s runs again over reals\n", program.file,
          program.line, program.column, what);
}

/* True for a function to be run over reals; any other failure goes on to its caller. */
static inline bool fallsBack(mint code, const char *name, bool *noted) {
  if (code != TORVANE_ERROR_INTEGER_OVERFLOW) {
    throwTorvaneException(code);
    return false;
  }
  if (!*noted) note(name);
  *noted = true;
  return true;
}

struct Body {
  void (*run)(void *argument, void *closure);
  void (*statements)(void);
};

static inline void runBody(void *argument, void *closure) {
  (void)argument;
  (*(struct Body **)closure)->statements();
}

/* The random generators are put back after each run: the second draws what the first drew, and the host finds
 * them as they were. A snapshot that is pinned costs nothing until something is drawn. */
static inline mint runStatements(void (*statements)(void)) {
  struct Body body = {runBody, statements}, *closure = &body;
  program.output = open_memstream(&program.text, &program.length);
  if (program.output == NULL) {
    program.status = 403;
    program.what = "no memory for the output";
    return STATUS_RETURNED;
  }
  RandomGeneratorSnapshot *generators = RandomGeneratorSnapshot_capture(NULL, 0);
  RandomGeneratorSnapshot_pin(generators);
  const mint code = attempt(&closure);
  RandomGeneratorSnapshot_activate(generators);
  return code;
}

static inline void endOutput(bool isWanted) {
  if (program.output == NULL) return;
  fclose(program.output);
  if (isWanted) {
    fwrite(program.text, 1, program.length, stdout);
    fflush(stdout);
  }
  free(program.text);
  program.output = NULL;
  program.text = NULL;
}

/* The entry of every compiled program. A status is returned, a code is raised once more, with nothing left
 * behind: the host says what it means, this says where. */
static inline mint runProgram(TorvaneLibraryData *record, int wordCount, const char *file,
                              void (*overIntegers)(void), void (*overReals)(void)) {
  if (wordCount > 0) {
    fprintf(stderr, "%s: the program takes no words\n", file);
    return 12;
  }
  program = (struct Program){.record = record, .file = file, .stack = __builtin_frame_address(0)};
  const mint pending = setExceptionActive(0);
  mint code = runStatements(overIntegers);
  if (code == TORVANE_ERROR_INTEGER_OVERFLOW) {
    note("the program");
    endOutput(false);
    code = runStatements(overReals);
  }
  endOutput(true);
  setExceptionActive(pending);
  if (code == 0) return 0;
  const bool isStatus = code == STATUS_RETURNED;
  fprintf(stderr, "%s:%d:%d: error: %s %d%s%s\n", file, program.line, program.column,
          isStatus ? "status" : "code", isStatus ? program.status : code, isStatus ? ": " : "",
          isStatus ? program.what : "");
  if (isStatus) return program.status;
  throwTorvaneException(code);
  return code;
}

#endif
