/* Machine scalars and element types.
 *
 * mint, mreal and mcomplex are the three element representations of a tensor; the thirteen element
 * types of the typed entries (scalars.h) add the narrower integers and reals. Widths are the same on
 * every target: mint has 32 bits, also where pointers have 64. */
#ifndef TORVANE_TYPES_H
#define TORVANE_TYPES_H

#include <stddef.h>
#include <stdint.h>

#define TORVANE_API __attribute__((visibility("default")))
#define TORVANE_ALIGNED_8 __attribute__((aligned(8)))

#ifdef __cplusplus
#define TORVANE_BEGIN_DECLARATIONS extern "C" {
#define TORVANE_END_DECLARATIONS }
#else
#define TORVANE_BEGIN_DECLARATIONS
#define TORVANE_END_DECLARATIONS
#endif

TORVANE_BEGIN_DECLARATIONS

typedef int32_t mint;
typedef double mreal;
typedef struct mcomplex {
  mreal re, im;
} mcomplex;

/* The `type` of a tensor: what its payload holds. Type 1 is reserved. */
enum {
  TORVANE_TYPE_NONE = 0,
  TORVANE_TYPE_INTEGER = 2, /* mint */
  TORVANE_TYPE_REAL = 3,    /* mreal */
  TORVANE_TYPE_COMPLEX = 4  /* mcomplex */
};

/* Bytes of one element, by tensor type 0 to 6. Compiled code indexes this array directly. */
extern TORVANE_API const uint32_t MTensor_typeSizeTable[7];

TORVANE_END_DECLARATIONS

#endif
