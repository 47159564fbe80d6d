// RandomChoice and RandomSample: rows of a list, by positions that are drawn first.
#include "../algorithms/handler.h"
#include "../algorithms/order.h"
#include "../algorithms/result_tensor.h"
#include "../tensor/scratch.h"
#include "dimension_argument.h"
#include "sampling.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

// A list, and the weights of its rows unless that is null. Their tensors are operands of every result.
struct Source {
  const MTensor *list, *weights;
};

bool isList(const MTensor *tensor) {
  return tensor->rank > 0 && tensor->type >= TORVANE_TYPE_INTEGER && tensor->type <= TORVANE_TYPE_COMPLEX;
}

size_t rowBytes(const MTensor *list) {
  return static_cast<size_t>(rowLengthOf(list)) * elementWidth(list->type);
}

void takeRows(const MTensor *target, const MTensor *list, const mint *positions, mint count) {
  if (rowBytes(list) > 0) gatherRows(target->data, list->data, positions, count, rowBytes(list));
}

mint choosePositions(const Source &source, mint *positions, mint count) {
  if (source.weights == nullptr) return drawPositions(positions, count, rowCountOf(source.list));
  const mint length = source.weights->elementCount;
  if (length > 0 && length != rowCountOf(source.list)) return kWrongDimensions;
  const RunningSums weights(source.weights);
  return weights.status() == kSuccess ? weights.draw(positions, count) : weights.status();
}

// One row, which of a vector is a number.
mint chooseOne(const Source &source, void *result) {
  const MTensor *list = source.list;
  mint position;
  if (const mint status = choosePositions(source, &position, 1)) return status;
  if (list->rank == 1) {
    memcpy(result, static_cast<const char *>(list->data) + static_cast<size_t>(position - 1) * rowBytes(list),
           rowBytes(list));
    return kSuccess;
  }
  ResultTensor row(tensorResult(result), {list, source.weights});
  if (const mint status = row.allocate(list->type, list->rank - 1, list->dimensions + 1)) return status;
  takeRows(row.get(), list, &position, 1);
  return row.commit();
}

// The rows in the given extents, followed by those of a row.
mint takeInExtents(ResultTensor &result, const MTensor *list, const GivenExtents &given,
                   const mint *positions, mint count) {
  const mint rank = given.rank + list->rank - 1;
  Scratch<mint> extents(rank);
  if (extents.status() != kSuccess) return extents.status();
  std::copy_n(given.extents, given.rank, extents.get());
  std::copy_n(list->dimensions + 1, list->rank - 1, extents.get() + given.rank);
  if (const mint status = result.allocate(list->type, rank, extents.get())) return status;
  takeRows(result.get(), list, positions, count);
  return result.commit();
}

// Whatever keeps the rows from being taken, memory too, is one status.
mint chooseMany(const Source &source, const MTensor *dimensions, MTensor **slot) {
  GivenExtents given;
  if (const mint status = readExtents(dimensions, &given)) return status;
  const mint count = NumberOfElements_common(given.rank, given.extents, kReport);
  if (count == kCountOverflow) return kValueFailed;
  Scratch<mint> positions(count);
  if (positions.status() != kSuccess) return positions.status();
  if (const mint status = choosePositions(source, positions.get(), count)) return status;
  ResultTensor result(slot, {source.list, source.weights, dimensions});
  const mint status = takeInExtents(result, source.list, given, positions.get(), count);
  return status == kSuccess ? status : kValueFailed;
}

mint choose(const Source &source, const MTensor *dimensions, void *result) {
  if (!isList(source.list) || rowCountOf(source.list) == 0) return kValueFailed;
  return dimensions == nullptr ? chooseOne(source, result)
                               : chooseMany(source, dimensions, tensorResult(result));
}

// Weights may be fewer than the rows, and more as long as no position beyond the list is drawn.
mint samplePositionsOf(const Source &source, mint *positions, mint count) {
  if (source.weights == nullptr) return samplePositions(positions, count, rowCountOf(source.list));
  const RunningSums weights(source.weights);
  if (weights.status() != kSuccess) return weights.status();
  if (weights.positiveCount() < count) return kValueFailed;
  if (const mint status = sampleByWeights(positions, count, weights)) return status;
  return *std::max_element(positions, positions + count) <= rowCountOf(source.list) ? kSuccess : kValueFailed;
}

mint sampleNone(const Source &source, MTensor **slot) {
  const mint none = 0;
  ResultTensor result(slot, {source.list, source.weights});
  const mint status = result.allocate(source.list->type, 1, &none);
  return status == kSuccess ? result.commit() : status;
}

mint sample(const Source &source, mint count, MTensor **slot) {
  const MTensor *list = source.list;
  if (count < 0 || count > rowCountOf(list)) return kValueFailed;
  if (count == 0) return sampleNone(source, slot);
  Scratch<mint> positions(count), extents(list->rank);
  if (positions.status() != kSuccess || extents.status() != kSuccess) return kSizeFailed;
  if (const mint status = samplePositionsOf(source, positions.get(), count)) return status;
  std::copy_n(list->dimensions, list->rank, extents.get());
  extents[0] = count;
  ResultTensor result(slot, {list, source.weights});
  if (const mint status = result.allocate(list->type, list->rank, extents.get())) return status;
  takeRows(result.get(), list, positions.get(), count);
  return result.commit();
}

} // namespace

mint handleRandomChoice(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  return choose({tensorArgument(arguments, 0), nullptr},
                argumentCount == 2 ? tensorArgument(arguments, 1) : nullptr, result);
}

mint handleRandomChoiceWeights(TorvaneLibraryData *, mint argumentCount, void *const *arguments,
                               void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  return choose({tensorArgument(arguments, 0), tensorArgument(arguments, 1)},
                argumentCount == 3 ? tensorArgument(arguments, 2) : nullptr, result);
}

mint handleRandomSample(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1 && argumentCount != 2) return kWrongArguments;
  const MTensor *list = tensorArgument(arguments, 0);
  if (!isList(list)) return kValueFailed;
  const mint count = argumentCount == 2 ? integerArgument(arguments, 1) : rowCountOf(list);
  return sample({list, nullptr}, count, tensorResult(result));
}

mint handleRandomSampleWeights(TorvaneLibraryData *, mint argumentCount, void *const *arguments,
                               void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const MTensor *list = tensorArgument(arguments, 0), *weights = tensorArgument(arguments, 1);
  if (!isList(list)) return kValueFailed;
  const mint count = argumentCount == 3 ? integerArgument(arguments, 2) : rowCountOf(list);
  return sample({list, weights}, count, tensorResult(result));
}

} // namespace torvane
