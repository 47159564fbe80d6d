// Count, MemberQ and FreeQ: how often a pattern stands in a tensor, and whether it does.
#include "search.h"

#include "handler.h"
#include "search_match.h"

namespace torvane {

bool Search::hasBlocks() const {
  return depth() >= 0 &&
         std::equal(pattern->dimensions, pattern->dimensions + pattern->rank, tensor->dimensions + depth());
}

namespace {

constexpr mint kNoElements = -1;

// What `look` makes of the blocks and their number; 0 where there is none that could match.
template <class Look> mint lookThrough(const Search &search, const Look &look) {
  const MTensor *tensor = search.tensor, *pattern = search.pattern;
  if (tensor->type != pattern->type || search.depth() < 1 || !search.hasBlocks()) return 0;
  if (!hasNumbers(tensor->type)) return kNoElements;
  if (pattern->elementCount == 0) return 0;
  const mint count = tensor->elementCount / pattern->elementCount;
  return visitBlocks(tensor, pattern, search.tolerance,
                     [&](const auto &blocks) -> mint { return look(blocks, count); });
}

template <class Blocks> mint holdsMatch(const Blocks &blocks, mint count) {
  for (mint first = 0; first < count; first += std::min(blocks.kStep, count - first))
    if (blocks.count(first, std::min(blocks.kStep, count - first)) > 0) return 1;
  return 0;
}

using Question = mint (*)(const Search &search);

mint answer(Question question, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2 && argumentCount != 3) return kWrongArguments;
  const Search search = {tensorArgument(arguments, 0), tensorArgument(arguments, 1),
                         argumentCount == 3 ? realArgument(arguments, 2) : 0};
  if (search.tensor == nullptr || search.pattern == nullptr) return kWrongArguments;
  storeResult(result, question(search));
  return kSuccess;
}

mint hasNoMatch(const Search &search) {
  const mint found = hasMatch(search);
  return found == kNoElements ? kNoElements : 1 - found;
}

} // namespace

mint countMatches(const Search &search) {
  return lookThrough(search, [](const auto &blocks, mint count) { return blocks.count(0, count); });
}

mint hasMatch(const Search &search) {
  return lookThrough(search, [](const auto &blocks, mint count) { return holdsMatch(blocks, count); });
}

mint handleCount(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return answer(countMatches, argumentCount, arguments, result);
}

mint handleMemberQ(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return answer(hasMatch, argumentCount, arguments, result);
}

mint handleFreeQ(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return answer(hasNoMatch, argumentCount, arguments, result);
}

} // namespace torvane
