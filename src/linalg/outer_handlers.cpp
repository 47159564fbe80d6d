// Outer products by name: the tensors, then their levels, then for sums and products the flags.
#include "../algorithms/handler.h"
#include "../tensor/scratch.h"
#include "outer.h"

namespace torvane {

namespace {

// Handles and levels, copied out of where the arguments point.
struct OuterArguments {
  mint count;
  Scratch<MTensor *> tensors;
  Scratch<mint> levels;

  OuterArguments(mint howMany, void *const *arguments)
      : count(howMany), tensors(count, kReport), levels(count, kReport) {
    for (mint i = 0; status() == kSuccess && i < count; ++i) {
      tensors[i] = tensorArgument(arguments, i);
      levels[i] = integerArgument(arguments, count + i);
    }
  }
  mint status() const { return tensors.status() != kSuccess ? tensors.status() : levels.status(); }
};

using OuterSum = mint (*)(MTensor **, mint, MTensor *const *, const mint *, mint);

mint callSum(OuterSum sum, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 3 || argumentCount % 2 == 0) return kWrongArguments;
  OuterArguments operands(argumentCount / 2, arguments);
  if (operands.status() != kSuccess) return operands.status();
  return sum(tensorResult(result), operands.count, operands.tensors.get(), operands.levels.get(),
             integerArgument(arguments, argumentCount - 1));
}

} // namespace

mint handleOuterList(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 2 || argumentCount % 2 != 0) return kWrongArguments;
  OuterArguments operands(argumentCount / 2, arguments);
  if (operands.status() != kSuccess) return operands.status();
  return MTensor_outerList(tensorResult(result), operands.count, operands.tensors.get(),
                           operands.levels.get());
}

mint handleOuterPlus(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return callSum(MTensor_outerPlus, argumentCount, arguments, result);
}

mint handleOuterTimes(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return callSum(MTensor_outerTimes, argumentCount, arguments, result);
}

} // namespace torvane
