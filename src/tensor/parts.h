// Parts of tensors and numeric arrays: selectors are read into records, which are checked against the
// dimensions and then say what is copied.
#pragma once

#include "../runtime/types.h"
#include "parts_span.h"
#include "scratch.h"
#include "tensor.h"
#include <torvane/parts.h>

namespace torvane {

// One selector, in words. Positions stand in memory of the caller's and are made positive by the check: one
// of them, those of a list, or start, end, step and flags of a span. How many a span has, and the whole of a
// dimension, the check finds out.
struct PartSpec {
  intptr_t kind;
  intptr_t count; // of positions; kInvalidPart for a selector that no check passes
  mint *positions;
  intptr_t stride;      // elements from one position to the next
  intptr_t blockLength; // elements of one position
};
static_assert(sizeof(PartSpec) == 5 * sizeof(void *));
inline constexpr intptr_t kInvalidPart = -1;

// Hears why a check failed, by a tag that the host has a message for. A malformed selector has none.
struct PartReporter {
  intptr_t values[2];
  void (*report)(const char *tag, PartReporter *reporter);
};
inline constexpr const char *kPartTake = "take";      // a span is out of range: its start and end as given
inline constexpr const char *kPartPosition = "partw"; // a position is out of range: the position as given
inline constexpr const char *kPartDepth = "partd";    // more selectors than dimensions

enum PartDirection : mint { kExtract = 1, kAssign = -1 };

// Checks the selectors, makes their positions positive and fills in counts, strides and block lengths. 1,
// with the rank of the selection; 0 where one fails, and the rank is 0x7FFFFFFF. `reporter` may be null.
mint MTensor_checkPartSpecs(mint rank, const mint *dimensions, mint selectorCount, PartSpec *specs,
                            mint *resultRank, PartReporter *reporter);

// The same for an assignment: 1 where the source fits the selection of the target, 2 where it does not, 0
// where a selector fails.
enum AssignmentCheck : mint { kSelectorFails = 0, kSourceFits = 1, kSourceDiffers = 2 };
mint MTensor_checkPartAssignment(const MTensor *target, const MTensor *source, mint selectorCount,
                                 PartSpec *specs, PartReporter *reporter);

// By checked selectors: extracts the selected elements of `source` to all of `target`, or assigns all of
// `source` to the selected elements of `target`, again and again until they are filled. Payloads are apart.
void MTensor_copyParts(const MTensor *source, MTensor *target, mint selectorCount, const PartSpec *specs,
                       PartDirection direction);

// The sub-tensor at a 0-based flat position among the first `depth` dimensions; 0, or 5 when memory is short.
// The slot may hold the source.
mint MTensor_partSelectOne(MTensor **resultSlot, const MTensor *source, mint depth, mint position);

// A payload by shape and bytes, so that tensors and arrays have one copy.
struct PartShape {
  mint rank;
  const mint *dimensions;
  size_t width; // bytes of an element
};

// `packed` holds `packedCount` elements in the order of the selection, from which their number is a divisor.
void copyParts(const PartShape &shape, char *selected, char *packed, mint packedCount, mint selectorCount,
               const PartSpec *specs, PartDirection direction);

// Rank and extents of a checked selection.
mint selectionRank(mint rank, mint selectorCount, const PartSpec *specs);
void selectionExtents(mint rank, const mint *dimensions, mint selectorCount, const PartSpec *specs,
                      mint *extents);

// The selectors of one call as records. Work memory that runs short ends the process.
class PartSelectors {
public:
  PartSelectors(mint selectorCount, const mint *kinds, void *const *specs);
  PartSpec *get() { return records.get(); }

private:
  Scratch<PartSpec> records;
  Scratch<mint, 32> positions;
};

// Whether a list or span of the selectors is this tensor.
bool isPartSpec(const MTensor *tensor, mint selectorCount, const mint *kinds, void *const *specs);

} // namespace torvane
