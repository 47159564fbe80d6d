// Calls of every named function with what its row promises: the status is one of the row's, arguments are as
// they were, tensors are valid, nothing is lost, and neither the slot's content nor shared arguments make a
// difference to what results.
#include "limited_heap.h"
#include "named_arguments.h"

#include "algorithms/bags.h"
#include "parallel/pool.h"
#include "runtime/library_data.h"
#include "runtime/memory.h"

#include <torvane/torvane.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// A record of a compiled library, as far as handlers look at it.
struct Context {
  RuntimeState state = {};
  void *words[49] = {};
  bool keepsScratch = false;
  Context() { words[27] = &state; }
  TorvaneLibraryData *record() { return reinterpret_cast<TorvaneLibraryData *>(words); }
};
static_assert(sizeof(TorvaneLibraryData) == 49 * sizeof(void *));

union Result {
  mcomplex scalar;
  MTensor *slot;
};

// Which of the two a result is follows from the arguments.
bool isTensorResult(const NamedArguments &call) {
  const std::string result = call.row->result;
  if (result[0] == 'T') return true;
  if (result == "r, c or T") return call.count() > 0 && call.tensors[0]->rank != 1;
  if (result == "r or T") return call.count() == 3;
  if (call.row->is("BagPart")) return call.count() > 1 && call.arguments[1].integer != 0;
  if (result == "element or T")
    return call.tensors[0]->rank != 1 || call.count() == (call.row->is("RandomChoice") ? 2 : 3);
  return false;
}

// One run on tensors of its own, which are one for each argument where none is shared.
struct Run {
  std::vector<Tensor> tensors;
  std::vector<MTensor *> handles;
  std::vector<Argument> values;
  std::vector<void *> pointers;
  Result result = {};
  mint status = -1;

  Run(const NamedArguments &call, bool shares) : values(call.arguments) {
    handles.resize(call.count());
    if (shares)
      for (const Tensor &tensor : call.tensors) tensors.push_back(cloneOf(tensor.get()));
    for (size_t i = 0; i < call.count(); ++i) {
      if (values[i].kind != 'T') continue;
      if (!shares) tensors.push_back(cloneOf(call.tensors[values[i].tensor].get()));
      handles[i] = shares ? tensors[values[i].tensor].get() : tensors.back().get();
    }
    for (size_t i = 0; i < call.count(); ++i) pointers.push_back(pointerTo(i));
  }

  void *pointerTo(size_t i) {
    Argument &value = values[i];
    return value.kind == 'T'   ? static_cast<void *>(&handles[i])
           : value.kind == 'i' ? static_cast<void *>(&value.integer)
           : value.kind == 'r' ? static_cast<void *>(&value.real)
                               : static_cast<void *>(&value.complex);
  }
  bool holds(const MTensor *tensor) const {
    return std::find(handles.begin(), handles.end(), tensor) != handles.end();
  }
  void operator()(const NamedRow *row, Context &context, mint method) {
    const uint32_t seed = 5;
    if (row->kind == kDraws) Runtime_SeedRandom(&seed, method);
    status = row->handler(context.record(), mint(pointers.size()), pointers.data(), &result);
  }
};

// A cross product that fails on its way leaves what it has computed, whatever the slot held.
bool leavesResult(const NamedArguments &call, mint status) {
  return status == 0 || (call.row->is("Cross") && status == kValueFailed);
}

// An argument whose place the result takes is as it was where there is none.
void expectUntouched(const NamedArguments &call, const Run &run, bool isTensor) {
  const MTensor *replaced = isTensor && leavesResult(call, run.status) ? run.result.slot : nullptr;
  for (size_t i = 0; i < call.count(); ++i) {
    if (run.handles[i] == nullptr || run.handles[i] == replaced) continue;
    require(isValidTensor(run.handles[i]));
    require(isSameTensor(run.handles[i], call.tensors[call.arguments[i].tensor].get()));
  }
}

// What some rows add to their statuses: one plus the place of the element that failed in its row.
bool isPosition(const NamedArguments &call, mint status) {
  return call.row->isOneOf({"Accumulate", "Differences", "Ratios"}) && status > 0 &&
         status <= call.tensors[0]->elementCount;
}

// A sort of fewer than two elements leaves the tensor that the slot held to the caller.
bool takesNewRecord(const NamedArguments &call) {
  return call.row->is("Sort") && call.tensors[0]->elementCount < 2;
}

void expectKept(const NamedArguments &call, const Run &run, bool isTensor, const MTensor *held) {
  require(call.row->mayReturn(run.status) || isPosition(call, run.status));
  require(getExceptionActive() == 0);
  // A join that lacks memory leaves the length in its first tensor.
  if (!call.row->is("Join") || run.status != kSizeFailed) expectUntouched(call, run, isTensor);
  if (!isTensor) return;
  if (held != nullptr) require(run.result.slot == held || takesNewRecord(call));
  if (run.status == 0) require(run.result.slot != nullptr && isValidTensor(run.result.slot));
  if (!leavesResult(call, run.status) && held == nullptr) require(run.result.slot == nullptr);
}

// Whether the second run must tell the same: bags have another number each, what seeds has no result, nothing
// is written where rows without elements are ordered, and no integer is what a real that none holds becomes.
bool isRepeatable(const NamedArguments &call) {
  if (call.row->is("CoerceTensor")) return call.arguments[0].integer != TORVANE_TYPE_INTEGER;
  if (call.row->isOneOf({"Ordering", "OrderingInteger"})) return call.tensors[0]->elementCount > 0;
  return call.row->kind != kSeeds && !call.row->is("Bag");
}

void expectSame(const Run &first, const Run &second, bool isTensor) {
  require(first.status == second.status);
  if (first.status != 0) return;
  if (isTensor) return require(isSameTensor(first.result.slot, second.result.slot));
  require(isSameReal(first.result.scalar.re, second.result.scalar.re));
  require(isSameReal(first.result.scalar.im, second.result.scalar.im));
}

MTensor *takeSlot(Input &input, const Run &run, const Tensor &other) {
  const mint choice = below(input, 4);
  if (choice == 0 && !run.handles.empty()) return run.handles[size_t(below(input, mint(run.handles.size())))];
  return choice == 1 ? other.get() : nullptr;
}

// Draws of complexes leave their scratch allocated, whatever comes of them; so they are few here.
bool drawsManyComplexes(const NamedArguments &call) {
  if (!call.row->is("RandomComplexes")) return false;
  const MTensor *extents = call.tensors.back().get();
  if (extents->type != TORVANE_TYPE_INTEGER || extents->rank != 1) return false;
  return NumberOfElements_common(extents->elementCount, static_cast<mint *>(extents->data), kQuiet) > 4096;
}

void callOnce(const NamedRow *row, Input &input, Context &context) {
  const NamedArguments call = ArgumentDraw(input).draw(row);
  if (std::strcmp(row->result, "element or T") == 0 && call.tensors.empty()) return;
  if (drawsManyComplexes(call)) return;
  const bool isTensor = isTensorResult(call);
  const mint method = oneIn(input, 16) ? 1 : 3;
  const Tensor other = takeTensor(input);
  Run first(call, true), second(call, false);
  if (isTensor) first.result.slot = takeSlot(input, first, other);
  const MTensor *held = isTensor ? first.result.slot : nullptr;
  first(row, context, method);
  expectKept(call, first, isTensor, held);
  second(row, context, method);
  expectKept(call, second, isTensor, nullptr);
  if (isRepeatable(call)) expectSame(first, second, isTensor);
  context.keepsScratch |= row->isOneOf({"RandomComplex", "RandomComplexes"});
  if (isTensor && first.result.slot != held) MTensor_delete(first.result.slot);
  if (isTensor) MTensor_delete(second.result.slot);
}

// The cells of blocks stay when their block ends, so that they are counted here.
void endBlocks(Context &context) {
  while (void *cell = context.state.blockStack) {
    require(handleBlockRandomEnd(context.record(), 0, nullptr, nullptr) == 0);
    torvane::free(cell);
  }
}

// What a thread keeps once it has drawn, and the process once it has workers.
void warmUp() {
  startLimited();
  const uint32_t seed = 1;
  for (const mint method : {1, 3}) Runtime_SeedRandom(&seed, method);
  leavePool(enterPool(false));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  warmUp();
  Input input(bytes, count);
  Context context;
  const uint32_t before = usedBytesOfThisThread();
  context.state.arithmeticFlags = below(input, 8);
  for (int calls = 0; calls < 10 && !input.isEmpty(); ++calls) {
    const NamedRow *row = &kNamedRows[input.take<uint8_t>() % std::size(kNamedRows)];
    if (row->hasLanded() && !row->is("BlockRandomEnd")) callOnce(row, input, context);
  }
  endBlocks(context);
  BagTable_delete(context.state.bagTable);
  require(context.keepsScratch || usedBytesOfThisThread() == before);
  return 0;
}
