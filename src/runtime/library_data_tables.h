// The constant parts of a library-data record: its function words and the tables that all records share. They
// know every room of the library; only library_data.cpp knows them.
//
// Tables stand at their longest form, so that no version of a record reads past the end of another's.
#pragma once

#include "library_data.h"

namespace torvane {

// All words that do not depend on the version; the others are zero.
extern const TorvaneLibraryData kLibraryDataFunctions;

extern const TorvaneRuntimeTable kRuntimeTable;
extern const TorvaneHostServiceTable kHostServiceTable;
extern const TorvaneSparseTable kSparseTable;
extern const TorvanePixelTable kPixelTable;
extern const TorvaneNumericTable kNumericTable, kNumericSecondTable;

// Ends the open random blocks of a record, deletes its bags and clears its flags.
void resetRuntimeState(TorvaneLibraryData *record);

// What stands for a service of a host.
inline mint noService() { return 0; }
inline mint refusedService() { return kNoSuchService; }
inline void ignoredService() {}

// The record speaks of short memory in its own number.
constexpr mint recordStatus(mint status) { return status == kSizeFailed ? mint{kNoMemory} : status; }

// The flat 0-based offset of an element, or -1 where a position is outside. Positions are 1-based, negative
// ones count from the end; there is one for each dimension, and none is read at rank 0.
ptrdiff_t resolvePositions(mint rank, const mint *dimensions, const mint *positions);

// Words of the record that are words of the runtime table too. A copy may be refused for want of memory, and
// a tensor that was made for it goes then.
mint cloneTensor(const MTensor *source, MTensor **target);
mint resolvePosition(const MTensor *tensor, const mint *positions, mint *offset);
mint getSubTensor(const MTensor *source, const mint *positions, mint count, MTensor **result);
mint setSubTensor(MTensor *target, const MTensor *source, const mint *positions, mint count);

} // namespace torvane
