// The record and its words without memory: what has no status ends the process, every other request that
// fails is told as short memory; slots and operands stay as they were, nothing is lost, and the same call
// goes well again afterwards.
#include "runtime/library_data.h"
#include "runtime/memory.h"
#include "support/memory_sweep.h"
#include "support/tensor_builders.h"

#include <torvane/torvane.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <utility>

using namespace torvane;
using namespace torvane::test;

namespace {

class RecordMemory : public testing::Test {
protected:
  static void SetUpTestSuite() { InitializeRuntimeLibrary(); }
  RecordMemory() : record(TorvaneLibraryData_new(5)) {}
  ~RecordMemory() override { TorvaneLibraryData_free(record); }
  TorvaneLibraryData *const record;
};

TEST_F(RecordMemory, OfARecordOfAnyVersionIsNeeded) {
  for (const mint version : {0, 1, 5, 7}) {
    TorvaneLibraryData *made = nullptr;
    const SweepOutcome outcome =
        sweepMemory({"record", [] {},
                     [&] {
                       made = TorvaneLibraryData_new(version);
                       return 0;
                     },
                     [](mint) { return false; }, [] { return std::string(); },
                     [&] { return made->version == version; }, [&] { TorvaneLibraryData_free(made); }},
                    SweepKind::cold);
    EXPECT_EQ(outcome.faults, "") << version;
    EXPECT_EQ(outcome.refused, 0) << version;
    EXPECT_EQ(outcome.ended, outcome.requests) << version;
    EXPECT_GE(outcome.ended, 2) << version;
  }
}

// ---- words that fill a slot ----

Tensor realsOf(mint count) {
  Tensor tensor = newTensor(TORVANE_TYPE_REAL, {count, 2});
  std::iota(elements<mreal>(tensor), elements<mreal>(tensor) + 2 * count, 1);
  return tensor;
}

enum Slots { kEither, kEmpty, kUsed };
struct Word {
  const char *name;
  Slots slots; // that it takes
  mint status; // for want of memory
  std::function<mint(const TorvaneLibraryData *, MTensor *source, MTensor **slot)> call;
};

constexpr mint kAbs = 38; // of positive elements: they stay

mint allRows(const TorvaneLibraryData *record, const MTensor *source, MTensor **slot) {
  const mint kind = TORVANE_PART_ALL;
  void *const none = nullptr;
  return record->runtime->getParts(slot, source, 1, &kind, &none);
}

const Word kWords[] = {
    {"newTensor", kEmpty, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       const mint status = record->newTensor(3, 2, source->dimensions, slot);
       if (status == 0) std::copy_n(record->realData(source), source->elementCount, record->realData(*slot));
       return status;
     }},
    {"cloneTensor", kEither, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       return record->cloneTensor(source, slot);
     }},
    {"getSubTensor", kEither, 1,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       return record->getSubTensor(source, nullptr, 0, slot);
     }},
    {"resize", kUsed, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       mint extents[] = {source->dimensions[0], 2};
       const mint status = record->runtime->resize(*slot, 3, 2, extents);
       if (status == 0) std::copy_n(record->realData(source), source->elementCount, record->realData(*slot));
       return status;
     }},
    {"copy", kEither, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       return record->runtime->copy(slot, source);
     }},
    {"getParts", kEither, 1, allRows},
    {"unaryWithFlags", kEither, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       return record->runtime->unaryWithFlags(slot, source, kAbs, 3, 0);
     }},
    {"fromTable", kEither, 5,
     [](const TorvaneLibraryData *record, MTensor *source, MTensor **slot) {
       return record->runtime->fromTable(slot, 3, 2, source->dimensions, source->data);
     }},
};

// With a slot that is empty, or holds a tensor without a shape.
SweepOutcome sweep(const TorvaneLibraryData *record, const Word &word, mint count, bool isUsed,
                   SweepKind kind) {
  const Tensor source = realsOf(count);
  const std::vector<mreal> expected = valuesOf<mreal>(source);
  MTensor *held = nullptr, *slot = nullptr;
  const auto run = [&] {
    slot = held = isUsed ? MTensor_new() : nullptr;
    return word.call(record, source.get(), &slot);
  };
  const auto refused = [&]() -> std::string {
    if (slot != held) return "another record is in the slot";
    return valuesOf<mreal>(source) == expected ? "" : "the source is touched";
  };
  const auto isRight = [&] {
    return isValidTensor(slot) && (!isUsed || slot == held) && extentsOf(slot) == extentsOf(source) &&
           std::equal(expected.begin(), expected.end(), record->realData(slot));
  };
  return sweepMemory({word.name, [] {}, run, [&](mint status) { return status == word.status; }, refused,
                      isRight, [&] { MTensor_delete(std::exchange(slot, nullptr)); }},
                     kind);
}

// Visits each word with each slot that it takes.
template <class Visit> void forEachWord(Visit visit) {
  for (const Word &word : kWords) {
    if (word.slots != kUsed) visit(word, false);
    if (word.slots != kEmpty) visit(word, true);
  }
}

TEST_F(RecordMemory, FailuresOfLargeBlocksAreTold) {
  forEachWord([this](const Word &word, bool isUsed) {
    const SweepOutcome outcome = sweep(record, word, 300000, isUsed, SweepKind::warm);
    EXPECT_EQ(outcome.faults, "") << word.name;
    EXPECT_GE(outcome.refused, 1) << word.name;
    EXPECT_EQ(outcome.ended, 0) << word.name;
  });
}

TEST_F(RecordMemory, FailuresOfSmallBlocksAreToldOrEndTheProcess) {
  forEachWord([this](const Word &word, bool isUsed) {
    const SweepOutcome outcome = sweep(record, word, 7, isUsed, SweepKind::cold);
    EXPECT_EQ(outcome.faults, "") << word.name;
    EXPECT_GE(outcome.requests, 2) << word.name;
  });
}

} // namespace
