// Every function of the registry without memory: a status of its row or the end of the process, nothing lost,
// arguments and an empty slot as they were, and the same call with memory gives what it should.
#include "memory_sweep_sets.h"

#include "algorithms/bags.h"
#include "runtime/library_data.h"
#include "support/memory_sweep.h"
#include "support/named_rows.h"

#include <torvane/torvane.h>

#include <cstring>
#include <memory>

using namespace torvane;
using namespace torvane::test;

namespace {

const NamedRow &rowOf(const std::string &name) {
  for (const NamedRow &row : kNamedRows)
    if (name == row.name) return row;
  return kNamedRows[0];
}

bool isSame(const MTensor *a, const MTensor *b) {
  return a->type == b->type && extentsOf(a) == extentsOf(b) &&
         (a->elementCount == 0 ||
          std::memcmp(a->data, b->data, size_t(a->elementCount) * elementWidth(a->type)) == 0);
}

union Result {
  mcomplex scalar;
  MTensor *slot;
};

// A set's call with all that a run of it needs, and what it yields with memory.
class SweptFunction {
public:
  explicit SweptFunction(const ArgumentSet &set)
      : row(rowOf(set.name)), yields(set.yields), call(set.fill(NamedCall(set.name))), original(call) {
    words[27] = &state;
    prepare();
    result = {};
    run();
    expected = result;
    result = {};
    endBlocks();
  }
  ~SweptFunction() {
    result = expected;
    release();
    BagTable_delete(state.bagTable);
  }
  SweptFunction(const SweptFunction &) = delete;
  SweptFunction &operator=(const SweptFunction &) = delete;

  // The same stream for every run.
  void prepare() {
    renewBags();
    const uint32_t seed = 5;
    if (row.kind != kPure) Runtime_SeedRandom(&seed, 3);
  }
  mint run() {
    result = {};
    return call.run(&result, reinterpret_cast<TorvaneLibraryData *>(words));
  }
  std::string refused() const {
    if (yields == Yields::tensor && result.slot != nullptr && !row.is("Cross"))
      return "the slot is not empty";
    if (row.is("Join")) return ""; // leaves a length in its first tensor
    for (size_t i = 0; i < call.count(); ++i)
      if (call.tensorAt(i) != nullptr && !isUntouched(i))
        return "argument " + std::to_string(i) + " is touched";
    return "";
  }
  bool isRight() const {
    if (yields == Yields::tensor) return isValidTensor(result.slot) && isSame(result.slot, expected.slot);
    return std::memcmp(&result, &expected, sizeof result) == 0;
  }
  void release() {
    if (yields == Yields::tensor) MTensor_delete(result.slot);
    result = {};
    endBlocks();
    renewBags();
    if (row.is("Join")) call.tensorAt(0)->dimensions[0] = original.tensorAt(0)->dimensions[0];
  }

  // Draws of complexes leave their scratch allocated.
  uint32_t keptBytes() const {
    const auto ofDraw = [](mint count) { return allocatedBytesFor(uint32_t(count) * sizeof(mreal)); };
    if (row.is("RandomComplex")) return ofDraw(1);
    return row.is("RandomComplexes") ? ofDraw(expected.slot->elementCount) : 0;
  }

private:
  const NamedRow &row;
  const Yields yields;
  NamedCall call;
  const NamedCall original;
  RuntimeState state = {};
  void *words[49] = {};
  Result result = {}, expected = {};

  bool isUntouched(size_t i) const {
    return isValidTensor(call.tensorAt(i)) && isSame(call.tensorAt(i), original.tensorAt(i));
  }
  // None, or bag 0, of reals, for the functions that use one; what is read from it is there.
  void renewBags() {
    BagTable_delete(std::exchange(state.bagTable, nullptr));
    if (!row.isOneOf({"StuffBag", "StuffBagScalar", "BagPart"})) return;
    state.bagTable = BagTable_new();
    Bag *bag = BagTable_get(state.bagTable, BagTable_add(state.bagTable, TORVANE_TYPE_REAL));
    const Tensor elements = reals({kMany});
    if (row.is("BagPart")) Bag_append(bag, kMany, elements->data);
  }
  // The cell of a block stays when the block ends, so that it is counted here.
  void endBlocks() {
    while (void *cell = state.blockStack) {
      handleBlockRandomEnd(reinterpret_cast<TorvaneLibraryData *>(words), 0, nullptr, nullptr);
      torvane::free(cell);
    }
  }
};

SweptOperation operationOf(const ArgumentSet &set, SweptFunction &function) {
  return {set.name,
          [&function] { function.prepare(); },
          [&function] { return function.run(); },
          [&set](mint status) { return rowOf(set.name).mayReturn(status); },
          [&function] { return function.refused(); },
          [&function] { return function.isRight(); },
          [&function] { function.release(); },
          function.keptBytes()};
}

SweepOutcome sweep(const ArgumentSet &set, SweepKind kind) {
  SweptFunction function(set);
  return sweepMemory(operationOf(set, function), kind);
}

class MemorySweep : public NamedFunctions {
protected:
  static void SetUpTestSuite() { InitializeRuntimeLibrary(); }
};

// The plain random function does nothing but refuse.
TEST_F(MemorySweep, HasArgumentsForEveryFunctionThatHasLanded) {
  for (const NamedRow &row : kNamedRows) {
    bool isThere = !row.hasLanded() || row.is("Random");
    for (const ArgumentSet &set : argumentSets()) isThere |= row.is(set.name);
    EXPECT_TRUE(isThere) << row.name << " has landed: give it a set in tests/algorithms/memory_sweep_sets.h";
  }
}

TEST_F(MemorySweep, FailuresOfLargeBlocksAreStatusesOfTheRow) {
  for (const ArgumentSet &set : argumentSets()) {
    if (!rowOf(set.name).hasLanded()) continue;
    const SweepOutcome outcome = sweep(set, SweepKind::warm);
    EXPECT_EQ(outcome.faults, "") << set.name;
    EXPECT_EQ(outcome.requests > 0, set.large != Large::none) << set.name;
    EXPECT_EQ(outcome.ended > 0, set.large == Large::endsProcess) << set.name;
  }
}

TEST_F(MemorySweep, FailuresOfSmallBlocksAreStatusesOfTheRowOrEndTheProcess) {
  for (const ArgumentSet &set : argumentSets()) {
    if (!rowOf(set.name).hasLanded() || set.large != Large::none) continue;
    const SweepOutcome outcome = sweep(set, SweepKind::cold);
    EXPECT_EQ(outcome.faults, "") << set.name;
    // The seed before a draw has left blocks of the sizes that small draws ask for.
    if (set.yields == Yields::tensor && rowOf(set.name).kind == kPure)
      EXPECT_GT(outcome.requests, 0) << set.name;
  }
}

} // namespace
