// The record's own words: tensors by element, part and field. What the host would serve is a stub.
#include "../tensor/parts.h"
#include "../tensor/tensor.h"
#include "failure.h"
#include "library_data_tables.h"
#include <torvane/memory.h>

#include <algorithm>
#include <iterator>

namespace torvane {

namespace {

bool haveElements(mint rank, const mint *dimensions) {
  return rank == 0 ||
         (dimensions != nullptr && std::all_of(dimensions, dimensions + rank, [](mint n) { return n > 0; }));
}

mint newTensor(mint type, mint rank, const mint *dimensions, MTensor **result) {
  *result = nullptr;
  if (type < TORVANE_TYPE_INTEGER || type > TORVANE_TYPE_COMPLEX) return kWrongType;
  if (rank < 0) return kWrongRank;
  if (!haveElements(rank, dimensions)) return kWrongDimensions;
  return recordStatus(MTensor_allocateCommon(result, type, rank, dimensions, kReport));
}

// The place of an element of a tensor of this type, or why there is none.
template <class Element>
mint findElement(const MTensor *tensor, mint type, const mint *positions, Element **place) {
  if (tensor->type != type) return kWrongType;
  const ptrdiff_t offset = resolvePositions(tensor->rank, tensor->dimensions, positions);
  if (offset < 0) return kWrongDimensions;
  *place = static_cast<Element *>(tensor->data) + offset;
  return kSuccess;
}

template <class Element, mint type> mint setElement(MTensor *tensor, const mint *positions, Element value) {
  Element *place;
  const mint status = findElement(tensor, type, positions, &place);
  if (status == kSuccess) *place = value;
  return status;
}

template <class Element, mint type>
mint getElement(const MTensor *tensor, const mint *positions, Element *value) {
  Element *place;
  const mint status = findElement(tensor, type, positions, &place);
  if (status == kSuccess) *value = *place;
  return status;
}

template <class Element, mint type> Element *dataAs(const MTensor *tensor) {
  return tensor != nullptr && tensor->type == type ? static_cast<Element *>(tensor->data) : nullptr;
}

mint rankOf(const MTensor *tensor) { return tensor->rank; }
mint *dimensionsOf(const MTensor *tensor) { return tensor->dimensions; }
mint typeOf(const MTensor *tensor) { return tensor->type; }
mint elementCountOf(const MTensor *tensor) { return tensor->elementCount; }

void ignoreMessage(const char *) {}
mint pollAbort() { return abortQ() != 0; }

// One position for each of the first dimensions, as selectors. More than there are dimensions are not made.
class SinglePositions {
public:
  SinglePositions(const mint *positions, mint count)
      : kinds(std::max(count, 0), kFatal), specs(std::max(count, 0), kFatal) {
    for (mint i = 0; i < count; ++i) {
      kinds[i] = TORVANE_PART_POSITION;
      specs[i] = const_cast<mint *>(positions + i);
    }
  }
  const mint *kindList() { return kinds.get(); }
  void *const *specList() { return specs.get(); }

private:
  Scratch<mint> kinds;
  Scratch<void *> specs;
};

} // namespace

ptrdiff_t resolvePositions(mint rank, const mint *dimensions, const mint *positions) {
  ptrdiff_t offset = 0;
  for (mint i = 0; i < rank; ++i) {
    const int64_t extent = dimensions[i], position = positions[i];
    const int64_t index = position < 0 ? position + extent : position - 1;
    if (index < 0 || index >= extent) return -1;
    offset = offset * static_cast<ptrdiff_t>(extent) + static_cast<ptrdiff_t>(index);
  }
  return offset;
}

mint resolvePosition(const MTensor *tensor, const mint *positions, mint *offset) {
  const ptrdiff_t found = resolvePositions(tensor->rank, tensor->dimensions, positions);
  if (found < 0) return kWrongDimensions;
  *offset = static_cast<mint>(found);
  return kSuccess;
}

mint cloneTensor(const MTensor *source, MTensor **target) {
  if (*target != nullptr) return recordStatus(MTensor_copyUniqueCommon(*target, source, kReport));
  MTensor *made = MTensor_new();
  const mint status = recordStatus(MTensor_copyUniqueCommon(made, source, kReport));
  if (status == kSuccess)
    *target = made;
  else
    MTensor_delete(made);
  return status;
}

mint getSubTensor(const MTensor *source, const mint *positions, mint count, MTensor **result) {
  if (count < 0 || count > source->rank) return kWrongType;
  SinglePositions selectors(positions, count);
  return MTensor_getParts(*result, result, source, source->rank - count, count, selectors.kindList(),
                          selectors.specList());
}

mint setSubTensor(MTensor *target, const MTensor *source, const mint *positions, mint count) {
  if (count < 0 || count > target->rank) return kWrongType;
  SinglePositions selectors(positions, count);
  return MTensor_setParts(target, source, target->rank - count, count, selectors.kindList(),
                          selectors.specList());
}

constexpr TorvaneHostServiceTable kHostServiceTable = [] {
  TorvaneHostServiceTable table = {};
  std::fill(std::begin(table.services), std::end(table.services), noService);
  return table;
}();

constexpr TorvaneLibraryData kLibraryDataFunctions = {
    .freeBlock = Free_fun,
    .newTensor = newTensor,
    .deleteTensor = MTensor_delete,
    .cloneTensor = cloneTensor,
    .service5 = noService,
    .service6 = noService,
    .service7 = ignoredService,
    .setInteger = setElement<mint, TORVANE_TYPE_INTEGER>,
    .setReal = setElement<mreal, TORVANE_TYPE_REAL>,
    .setComplex = setElement<mcomplex, TORVANE_TYPE_COMPLEX>,
    .setSubTensor = setSubTensor,
    .getInteger = getElement<mint, TORVANE_TYPE_INTEGER>,
    .getReal = getElement<mreal, TORVANE_TYPE_REAL>,
    .getComplex = getElement<mcomplex, TORVANE_TYPE_COMPLEX>,
    .getSubTensor = getSubTensor,
    .rank = rankOf,
    .dimensions = dimensionsOf,
    .type = typeOf,
    .elementCount = elementCountOf,
    .integerData = dataAs<mint, TORVANE_TYPE_INTEGER>,
    .realData = dataAs<mreal, TORVANE_TYPE_REAL>,
    .complexData = dataAs<mcomplex, TORVANE_TYPE_COMPLEX>,
    .message = ignoreMessage,
    .abortQ = pollAbort,
    .service25 = noService,
    .service26 = noService,
    .service27 = refusedService,
    .runtimeState = nullptr,
    .runtime = nullptr,
    .version = 0,
    .services31to34 = {noService, noService, noService, noService},
    .hostServices = nullptr,
    .service36 = noService,
    .sparse = nullptr,
    .pixels = nullptr,
    .services39to45 = {refusedService, refusedService, refusedService, refusedService, refusedService,
                       refusedService, refusedService},
    .service46 = noService,
    .service47 = noService,
    .numericSecond = nullptr,
    .numeric = nullptr,
};

} // namespace torvane
