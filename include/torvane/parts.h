/* Parts of tensors and numeric arrays: a selector for each of the first dimensions, the later ones taken
 * whole.
 *
 * Selector i is kinds[i] and specs[i]. Positions are 1-based; negative ones count from the end, -1 being the
 * last. A dimension that is selected by one position is no dimension of the selection. docs/parts.md tells
 * the whole. */
#ifndef TORVANE_PARTS_H
#define TORVANE_PARTS_H

#include "numeric_arrays.h"
#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* The kind of a selector, and what its pointer in `specs` points at. A span is an integer vector: {n} the
 * first n indices, or the last -n; {start, end}; {start, end, step}. */
enum {
  TORVANE_PART_POSITION = 0, /* a mint */
  TORVANE_PART_LIST = 1,     /* a pointer to an integer vector: these positions, in this order */
  TORVANE_PART_ALL = 2,      /* nothing: the pointer is not looked at */
  TORVANE_PART_SPAN = 3      /* a pointer to an integer vector */
};

/* Stores the selected elements in *resultSlot as a tensor of `resultRank`, the rank of the selection: a new
 * one, the caller's to delete, or `resultTensor` where that is not null. What the slot held is neither read
 * nor freed. `resultTensor` may be the source or a vector of `specs`. 0; 1 for a selector that does not fit,
 * another rank, or no memory for the result: then the slot is as it was. Short work memory ends the process.
 */
TORVANE_API mint MTensor_getParts(MTensor *resultTensor, MTensor **resultSlot, const MTensor *source,
                                  mint resultRank, mint selectorCount, const mint *kinds, void *const *specs);

/* Stores the source's elements in the selected places of `target`, which is of its type. The source has one
 * element, or the last extents of the selection and is repeated. Of positions that repeat the last stands.
 * The source may be the target or a vector of `specs`. `resultRank` is the rank of the selection. 0, also
 * where it is empty; 1 for a selector or source that does not fit, and nothing is stored. Short work memory
 * ends the process. */
TORVANE_API mint MTensor_setParts(MTensor *target, const MTensor *source, mint resultRank, mint selectorCount,
                                  const mint *kinds, void *const *specs);
/* As MTensor_getParts, of numeric arrays of one element type. 1 also where the result would have rank 0 or an
 * extent 0 that is not the last: such arrays do not exist. On failure `resultArray` is as it was. */
TORVANE_API mint MNumericArray_getParts(MNumericArray *resultArray, MNumericArray **resultSlot,
                                        const MNumericArray *source, mint resultRank, mint selectorCount,
                                        const mint *kinds, void *const *specs);

TORVANE_END_DECLARATIONS

#endif
