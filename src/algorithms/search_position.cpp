// Position: where in a tensor a pattern stands. Blocks are looked through twice, first to count the matches,
// so that the result has its size, then to write them down.
#include "search.h"

#include "handler.h"
#include "result_tensor.h"
#include "search_match.h"

namespace torvane {

namespace {

// The rows that are still to be written. In the second walk more blocks may match than in the first: with a
// tolerance within one bit of the significand the test of reals depends on what was asked before.
struct Rows {
  mint *next;
  mint left;
  const mint *extents;
  mint depth;

  // The numbers of a block, from 1, in each of the dimensions above it.
  void add(mint block) {
    if (left == 0) return;
    --left;
    for (mint level = depth - 1; level > 0; block /= extents[level--])
      next[level] = block % extents[level] + 1;
    next[0] = block + 1;
    next += depth;
  }
};

template <class Blocks> void writeMatches(const Blocks &blocks, mint count, Rows rows) {
  for (mint first = 0, step; first < count; first += step) {
    step = std::min(blocks.kStep, count - first);
    if (blocks.count(first, step) == 0) continue;
    for (mint k = first; k < first + step; ++k)
      if (step == 1 || blocks.matches(k)) rows.add(k);
  }
}

mint blockCount(const Search &search) {
  const bool canMatch =
      search.hasBlocks() && search.tensor->type == search.pattern->type && search.pattern->elementCount > 0;
  return canMatch ? search.tensor->elementCount / search.pattern->elementCount : 0;
}

} // namespace

mint MTensor_position(MTensor **resultSlot, const MTensor *tensor, const MTensor *pattern, mreal tolerance) {
  const Search search = {tensor, pattern, tolerance};
  if (search.hasBlocks() && !hasNumbers(pattern->type)) return kWrongType;
  const auto visit = [&](const auto &look) { return visitBlocks(tensor, pattern, tolerance, look); };
  const mint blocks = blockCount(search);
  mint extents[] = {0, std::max(search.depth(), 0)};
  if (blocks > 0) extents[0] = visit([&](const auto &view) { return view.count(0, blocks); });
  ResultTensor result(resultSlot, {tensor, pattern});
  const mint status = result.allocate(TORVANE_TYPE_INTEGER, 2, extents);
  if (status != kSuccess) return status;
  if (result.get()->elementCount > 0)
    visit([&](const auto &view) {
      writeMatches(view, blocks, {integersOf(result.get()), extents[0], tensor->dimensions, extents[1]});
    });
  return result.commit();
}

mint handlePosition(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0), *pattern = tensorArgument(arguments, 1);
  if (tensor == nullptr || pattern == nullptr) return kWrongArguments;
  const mreal tolerance = argumentCount == 3 ? realArgument(arguments, 2) : 0;
  return MTensor_position(tensorResult(result), tensor, pattern, tolerance);
}

} // namespace torvane
