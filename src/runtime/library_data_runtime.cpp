// The runtime table of the record: named functions, operators, parts and generators, mostly the library's
// exports as they are.
#include "../algorithms/registry.h"
#include "../elementwise/dispatch.h"
#include "../random/method.h"
#include "../scalar/tolerance.h"
#include "library_data_tables.h"
#include <torvane/operators.h>
#include <torvane/parts.h>

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

// The caller's own extents change, and it may read there what it got.
mint resize(MTensor *tensor, mint type, mint rank, mint *dimensions) {
  for (mint i = 0; i < rank; ++i) dimensions[i] = std::max(dimensions[i], 0);
  return recordStatus(MTensor_allocateMemoryCommon(tensor, type, rank, dimensions, kReport));
}

mint copy(MTensor **target, const MTensor *source) { return cloneTensor(source, target); }

mint copyNew(MTensor **target, const MTensor *source) {
  *target = nullptr;
  return cloneTensor(source, target);
}

mint getParts(MTensor **result, const MTensor *source, mint selectorCount, const mint *kinds,
              void *const *specs) {
  if (selectorCount < 0) return kWrongType;
  const mint single = static_cast<mint>(std::count(kinds, kinds + selectorCount, TORVANE_PART_POSITION));
  return MTensor_getParts(*result, result, source, source->rank - single, selectorCount, kinds, specs);
}

void *generatorMethod(const char *name) { return name != nullptr ? findMethod(name) : nullptr; }

MTensor *sharedRankZero(const void *source, mint type, mint slot) {
  return *LoadSharedRankZeroMTensor(source, type, slot);
}

mint fromTable(MTensor **result, mint type, mint rank, const mint *dimensions, const void *elements) {
  if (type < TORVANE_TYPE_INTEGER || type > TORVANE_TYPE_COMPLEX) return kWrongType;
  const mint status = recordStatus(MTensor_allocateCommon(result, type, rank, dimensions, kReport));
  if (status != kSuccess || (*result)->elementCount == 0) return status;
  memcpy((*result)->data, elements, static_cast<size_t>((*result)->elementCount) * elementWidth(type));
  return kSuccess;
}

} // namespace

constexpr TorvaneRuntimeTable kRuntimeTable = {
    .version = 1,
    .currentGenerator = Runtime_GetCurrentRandomGenerator,
    .resetState = resetRuntimeState,
    .seedRandom = Runtime_SeedRandom,
    .newTensor = MTensor_new,
    .resize = resize,
    .copy = copy,
    .copyNew = copyNew,
    .getParts = getParts,
    .resolvePosition = resolvePosition,
    .getSubTensor = getSubTensor,
    .setSubTensor = setSubTensor,
    .unaryType = ReturnType1,
    .unary = MTensorMathUnary,
    .unaryWithFlags = tensorMathUnary,
    .binaryType = ReturnType2,
    .binary = MTensorMathBinary,
    .binaryWithFlags = tensorMathBinary,
    .compareReals = compareReals,
    .compareComplexes = compareComplexes,
    .service21 = noService,
    .service22 = refusedService,
    .generatorMethod = generatorMethod,
    .service24 = noService,
    .lookupRuntimeFunction = lookupRuntimeFunction,
    .seededGenerator = RandomGenerator_create,
    .sharedRankZero = sharedRankZero,
    .fromTable = fromTable,
};

} // namespace torvane
