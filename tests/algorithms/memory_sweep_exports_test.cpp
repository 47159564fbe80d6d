// Operations of all rooms that allocate and say so by a status or a null, without memory: nothing lost, slots
// and operands as they were, and the same call with memory gives what it should.
#include "memory_sweep_sets.h"

#include "arrays/arrays.h"
#include "arrays/clip.h"
#include "arrays/conversion.h"
#include "arrays/sparse_support.h"
#include "elementwise/pieces.h"
#include "support/memory_sweep.h"

#include <torvane/torvane.h>

#include <string_view>

using namespace torvane;
using namespace torvane::test;

namespace {

// Shape, type and elements, or the hash of them, as text that can be compared; kept outside the library's
// heap.
std::string bytesOf(const void *data, size_t count) {
  return std::to_string(std::hash<std::string_view>{}({static_cast<const char *>(data), count}));
}
std::string textOf(const MTensor *tensor) {
  std::string text = std::to_string(tensor->type) + ":";
  for (const mint extent : extentsOf(tensor)) text += std::to_string(extent) + ",";
  return tensor->elementCount == 0
             ? text
             : text + bytesOf(tensor->data, size_t(tensor->elementCount) * elementWidth(tensor->type));
}
std::string textOf(const MNumericArray *array) {
  std::string text = std::to_string(array->elementType) + ":";
  for (const mint extent : extentsOf(array)) text += std::to_string(extent) + ",";
  return text + bytesOf(array->data, MNumericArray_byteCount(array));
}
std::string textOf(const MSparseArray *array) {
  std::string text = textOf(array->skeleton->rowPointers) + textOf(array->skeleton->background);
  for (const MTensor *tensor : {array->skeleton->columnIndices, array->skeleton->values})
    text += tensor == nullptr ? "none" : textOf(tensor);
  return text;
}

// What a call came to; its result is gone again.
struct Done {
  mint status;
  std::string result, fault;
};

// By the kind of record that a slot holds.
void remove(MTensor *tensor) { MTensor_delete(tensor); }
void remove(MNumericArray *array) { MNumericArray_delete(array); }
void remove(MSparseArray *array) { MSparseArray_delete(array); }

template <class Record, class Call> Done bySlot(Call call) {
  Record *slot = nullptr;
  Done done = {call(&slot), "", ""};
  if ((slot == nullptr) != (done.status != 0)) done.fault = "the slot is wrong";
  if (slot != nullptr && done.status == 0) done.result = textOf(slot);
  if (done.status == 0) remove(slot);
  return done;
}

// A conversion that fails leaves the address of what it deleted: what the slot holds then says nothing.
template <class Call> Done byArraySlot(Call call) {
  MNumericArray *slot = nullptr;
  Done done = {call(&slot), "", ""};
  if (done.status == 0) done.result = textOf(slot);
  if (done.status == 0) remove(slot);
  return done;
}

// A tensor in the slot keeps its record. Without memory for that one there is nothing to try.
template <class Call> Done byUsedSlot(Call call) {
  MTensor *const held = MTensor_new(), *slot = held;
  Done done = {call(&slot), "", ""};
  if (slot != held) done.fault = "another record is in the slot";
  if (done.status == 0) done.result = textOf(slot);
  MTensor_delete(slot);
  return done;
}

// Null is the only failure.
template <class Record> Done byResult(Record *made) {
  if (made == nullptr) return {403, "", ""};
  Done done = {0, textOf(made), ""};
  remove(made);
  return done;
}

// Elements that are not set.
template <class Record> Done byShape(Record *made) {
  if (made != nullptr) std::memset(made->data, 0, size_t(made->elementCount) * sizeof(mreal));
  return byResult(made);
}

// Into an empty tensor that the call is given.
template <class Call> Done byTensor(Call call) {
  MTensor *const given = MTensor_new();
  Done done = {call(given), "", ""};
  if (done.status == 0) done.result = textOf(given);
  MTensor_delete(given);
  return done;
}

struct Operands {
  Tensor x, y, indices, one, swap, four, square, row, column;
  Array array, pair;
  Sparse sparse, repeated;
};

struct ExportedCall {
  const char *name;
  Large large;
  std::vector<mint> statuses;
  std::function<Done(const Operands &)> run;
};

constexpr mint kSmall = 7;
const ConversionMethod kCoerceAll = {1, kCoerce, 0};

Sparse sparseOf(mint count, mint repeats) {
  Tensor positions = newTensor(TORVANE_TYPE_INTEGER, {count, 2}), values = reals({count});
  for (mint i = 0; i < count; ++i) {
    elements<mint>(positions)[2 * i] = 1 + (count - 1 - i / repeats);
    elements<mint>(positions)[2 * i + 1] = 1 + i / repeats % 2;
    if (i % 5 == 0) elements<mreal>(values)[i] = 0;
  }
  const Tensor background = scalarTensor<mreal>(0);
  MSparseArray *made = nullptr;
  MSparseArray_fromPositions(positions.get(), values.get(), nullptr, background.get(), &made);
  return Sparse(made);
}

Operands operandsOf(mint count) {
  Tensor indices = rampOf(TORVANE_TYPE_INTEGER, {count}, 0);
  const std::vector<int16_t> elements(3 * size_t(count), int16_t{5}), two = {1, 3};
  return {reals({count, 2}),
          reals({count, 2}),
          std::move(indices),
          vectorOf<mint>({1}),
          vectorOf<mint>({2, 1}),
          scalarTensor<mreal>(4),
          reals({2, 2}),
          rampOf(TORVANE_TYPE_INTEGER, {2, count}, 0),
          rampOf(TORVANE_TYPE_INTEGER, {count, 2}, 0),
          arrayOf(TORVANE_ELEMENT_INTEGER16, elements),
          arrayOf(TORVANE_ELEMENT_INTEGER16, two),
          sparseOf(count, 1),
          sparseOf(count, 2)};
}

mint getPart(MTensor **slot, const Operands &on) {
  MTensor *list = on.indices.get();
  const mint kind = TORVANE_PART_LIST;
  void *const given = &list;
  return MTensor_getParts(nullptr, slot, on.x.get(), 2, 1, &kind, &given);
}

Done setPart(const Operands &on) {
  const mint kind = TORVANE_PART_ALL;
  void *const given = nullptr;
  return {MTensor_setParts(on.x.get(), on.x.get(), 2, 1, &kind, &given), "", ""};
}

mint getArrayPart(MNumericArray **slot, const Operands &on) {
  MTensor *list = on.indices.get();
  const mint kind = TORVANE_PART_LIST;
  void *const given = &list;
  return MNumericArray_getParts(nullptr, slot, on.array.get(), 1, 1, &kind, &given);
}

// Over a block of the allocator that is aligned to 8 bytes, where reals want 16, so that it may have to move.
// After a failure it is the caller's.
Done byData(mint count) {
  auto *const data = static_cast<mreal *>(torvane::allocate(uint32_t(count) * sizeof(mreal), 0, kReport));
  if (data == nullptr) return {403, "", ""};
  std::fill_n(data, count, 2.5);
  MNumericArray *made = MNumericArray_newWithData(TORVANE_ELEMENT_REAL64, 1, &count, data, 1);
  if (made == nullptr) torvane::free(data);
  return byResult(made);
}

// Without workers: the pool that the long sums would make stays.
mint integerProduct(MTensor **slot, const Operands &on) {
  const mint threshold = getVectorParallelLengthThreshold(kScalarValued);
  setVectorParallelLengthThreshold(kScalarValued, INT32_MAX);
  const mint status = MTensorGeneralDot(slot, on.row.get(), on.column.get(), 4);
  setVectorParallelLengthThreshold(kScalarValued, threshold);
  return status;
}

// The destination stays; after a failure its elements say nothing.
Done intoArray(const Operands &on) {
  const Array target = newArray(TORVANE_ELEMENT_REAL32, {on.x->dimensions[0], 2});
  if (target == nullptr) return {403, "", ""};
  const mint status = MNumericArray_fromTensor(target.get(), on.x.get(), &kCoerceAll);
  return {status, status == 0 ? textOf(target.get()) : "", ""};
}

// Without memory these end the process: a sparse array's index tensors and values, properties, texts.
Done sparseWithValues(const Operands &on) {
  const mint count = on.x->dimensions[0];
  MSparseArray *made = MSparseArray_newAllocated(2, on.x->dimensions, count);
  MTensor_initialize(made->skeleton->columnIndices, 0);
  MTensor_initialize(MSparseArray_allocValues(made, TORVANE_TYPE_REAL), 0);
  return byResult(made);
}

Done propertyTwice(const Operands &on) {
  const mint rank = on.x->dimensions[0];
  TensorProperty *first = TensorProperty_new(rank);
  std::fill_n(first->dimensions, rank, 3);
  TensorProperty *second = TensorProperty_copy(first);
  TensorProperty_delete(first);
  const std::string text = bytesOf(second->dimensions, size_t(rank) * sizeof(mint));
  TensorProperty_delete(second);
  return {0, text, ""};
}

// The payload is there; the record is what is made.
Done overPayload(const Operands &on) {
  const auto bytes = uint32_t(on.x->elementCount) * uint32_t(sizeof(mreal));
  void *const payload = allocate(bytes, 16, kReport);
  if (payload == nullptr) return {403, "", ""};
  std::memcpy(payload, on.x->data, bytes);
  return byResult(MTensor_newUsingDataArray(TORVANE_TYPE_REAL, 2, on.x->dimensions, payload));
}

Done asText(char *text) {
  const std::string kept = text;
  to_string_free(text);
  return {0, kept, ""};
}

// A new array, or the array itself, which stays.
Done byMaybeSame(const MSparseArray *array, const std::function<mint(MSparseArray **)> &call) {
  MSparseArray *slot = nullptr;
  Done done = {call(&slot), "", ""};
  if (done.status == 0) done.result = textOf(slot);
  if (done.status == 0 && slot != array) MSparseArray_delete(slot);
  return done;
}

mint allocateAndClear(MTensor **slot, const Operands &on) {
  const mint status = MTensor_allocateCommon(slot, 3, 2, on.x->dimensions, 2);
  if (status == 0) MTensor_initialize(*slot, 0);
  return status;
}
mint allocateMemoryAndClear(MTensor *tensor, const Operands &on) {
  const mint status = MTensor_allocateMemoryCommon(tensor, 3, 2, on.x->dimensions, 1);
  if (status == 0) MTensor_initialize(tensor, 0);
  return status;
}
mint allocateLikeAndClear(MTensor *tensor, const Operands &on) {
  const mint status = MTensor_allocateMemoryLikeCommon(tensor, on.x.get(), 1);
  if (status == 0) MTensor_initialize(tensor, 0);
  return status;
}

// The permutation is the caller's.
Done orderOf(const Operands &on) {
  MTensor *permutation = MTensor_newAllocatedCommon(TORVANE_TYPE_INTEGER, 1, on.x->dimensions, 1);
  if (permutation == nullptr) return {403, "", ""};
  Runtime_MTensor_computeSortPermutation(permutation, on.x.get());
  return byResult(permutation);
}

const mint kShiftBoth[] = {3, 1};
const intptr_t kTakeHalf[] = {0, kMany / 2}, kTakeTwo[] = {0, 2};

// clang-format off
#define TORVANE_CALL(large, statuses, ...)                                                                   \
  {#__VA_ARGS__, Large::large, std::vector<mint> statuses, [](const Operands &on) -> Done { (void)on; return __VA_ARGS__; }}
#define TORVANE_TO_SLOT(...) [&](MTensor **slot) { return __VA_ARGS__; }
#define TORVANE_TO_TENSOR(...) [&](MTensor *tensor) { return __VA_ARGS__; }
#define TORVANE_TO_ARRAY(...) [&](MNumericArray **slot) { return __VA_ARGS__; }
#define TORVANE_TO_SPARSE(...) [&](MSparseArray **slot) { return __VA_ARGS__; }

// By what they name: the operands are large, or small for the cold sweep, in which anything may end the process.
const std::vector<ExportedCall> &exportedCalls() {
  static const std::vector<ExportedCall> calls = {
      TORVANE_CALL(refused, ({403}), byShape(MTensor_newAllocatedCommon(3, 2, on.x->dimensions, 1)) ),
      TORVANE_CALL(refused, ({403}), byShape(CreatePackedArray(3, 2, on.x->dimensions)) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(allocateAndClear(slot, on))) ),
      TORVANE_CALL(refused, ({403}), byUsedSlot(TORVANE_TO_SLOT(allocateAndClear(slot, on))) ),
      TORVANE_CALL(refused, ({403}), byTensor(TORVANE_TO_TENSOR(allocateMemoryAndClear(tensor, on))) ),
      TORVANE_CALL(refused, ({403}), byTensor(TORVANE_TO_TENSOR(allocateLikeAndClear(tensor, on))) ),
      TORVANE_CALL(refused, ({403}), byTensor(TORVANE_TO_TENSOR(MTensor_copyUniqueCommon(tensor, on.x.get(), 1))) ),
      TORVANE_CALL(endsProcess, ({403}), byTensor(TORVANE_TO_TENSOR(MTensor_copy(tensor, on.x.get()))) ),
      TORVANE_CALL(endsProcess, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(MTensor_makeCopy(slot, on.x.get()))) ),
      TORVANE_CALL(endsProcess, ({403}), byResult(MTensor_newCopyFromDataArray(3, 2, on.x->dimensions, on.x->data)) ),
      TORVANE_CALL(none, ({403}), byResult(LoadNewRankZeroMTensor(on.x->data, 3)) ),
      TORVANE_CALL(refused, ({403}), orderOf(on)),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_Rotate(slot, on.x.get(), 2, kShiftBoth))) ),
      TORVANE_CALL(endsProcess, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(getPart(slot, on))) ),
      TORVANE_CALL(endsProcess, ({1}), setPart(on)),
      TORVANE_CALL(refused, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(MTensorMathUnary(slot, on.x.get(), 57, 3))) ),
      TORVANE_CALL(refused, ({1}), byUsedSlot(TORVANE_TO_SLOT(MTensorMathUnary(slot, on.x.get(), 57, 4))) ),
      TORVANE_CALL(refused, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(MTensorMathBinary(slot, on.x.get(), on.y.get(), 257, 3))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_Reverse(slot, on.x.get()))) ),
      TORVANE_CALL(refused, ({403}), byUsedSlot(TORVANE_TO_SLOT(Runtime_MTensor_Reverse(slot, on.x.get()))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_TakeDrop(slot, on.x.get(), 1, on.x->dimensions[0] == kMany ? kTakeHalf : kTakeTwo, 1))) ),
      TORVANE_CALL(refused, ({5}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_Partition(slot, on.x.get(), on.one.get(), on.one.get()))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_Sort(slot, on.x.get()))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_12TransposeConjugate(slot, on.x.get(), 0))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_ndimTransposeConjugate(slot, on.x.get(), on.swap.get()))) ),
      TORVANE_CALL(endsProcess, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(Runtime_MTensor_Flatten(slot, on.x.get(), 9))) ),
      TORVANE_CALL(endsProcess, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(MTensorGeneralDot(slot, on.x.get(), on.square.get(), 6))) ),
      TORVANE_CALL(endsProcess, ({1}), byUsedSlot(TORVANE_TO_SLOT(MTensorGeneralDot(slot, on.x.get(), on.square.get(), 6))) ),
      TORVANE_CALL(refused, ({1}), bySlot<MTensor>(TORVANE_TO_SLOT(integerProduct(slot, on))) ),
      TORVANE_CALL(refused, ({403}), byData(on.x->elementCount)),
      TORVANE_CALL(refused, ({204, 403}), intoArray(on)),
      TORVANE_CALL(refused, ({403}), byShape(Runtime_CreateNumericArray(10, 2, on.x->dimensions)) ),
      TORVANE_CALL(endsProcess, ({1}), bySlot<MNumericArray>(TORVANE_TO_ARRAY(getArrayPart(slot, on))) ),
      TORVANE_CALL(refused, ({403}), byResult(MNumericArray_clone(on.array.get())) ),
      TORVANE_CALL(refused, ({403}), byArraySlot(TORVANE_TO_ARRAY(MNumericArray_convert(slot, on.array.get(), 10, &kCoerceAll))) ),
      TORVANE_CALL(refused, ({403}), byResult(MNumericArray_convertNew(on.array.get(), 12, 0)) ),
      TORVANE_CALL(refused, ({403}), byArraySlot(TORVANE_TO_ARRAY(MNumericArray_clip(slot, on.array.get(), on.pair.get(), on.pair.get()))) ),
      TORVANE_CALL(refused, ({403}), byResult(MSparseArray_copy(on.sparse.get()))),
      TORVANE_CALL(endsProcess, ({}), sparseWithValues(on)),
      TORVANE_CALL(endsProcess, ({}), propertyTwice(on)),
      TORVANE_CALL(refused, ({403}), overPayload(on)),
      TORVANE_CALL(none, ({}), asText(to_string_Real64(on.x->elementCount / 7.0))),
      TORVANE_CALL(none, ({}), asText(to_string_ComplexReal64(1e300, -on.x->elementCount / 7.0))),
      TORVANE_CALL(refused, ({-1}), bySlot<MSparseArray>(TORVANE_TO_SPARSE(MSparseArray_fromPositions(on.column.get(), nullptr, nullptr, nullptr, slot))) ),
      TORVANE_CALL(refused, ({-1}), bySlot<MSparseArray>(TORVANE_TO_SPARSE(MSparseArray_copyHandle(on.sparse.get(), slot))) ),
      TORVANE_CALL(refused, ({-1}), bySlot<MSparseArray>(TORVANE_TO_SPARSE(MSparseArray_fromTensor(on.x.get(), nullptr, slot))) ),
      TORVANE_CALL(refused, ({-1}), bySlot<MSparseArray>(TORVANE_TO_SPARSE(MSparseArray_setBackground(on.sparse.get(), nullptr, slot))) ),
      TORVANE_CALL(refused, ({-1, 403}), bySlot<MSparseArray>(TORVANE_TO_SPARSE(MSparseArray_setBackground(on.sparse.get(), on.four.get(), slot))) ),
      TORVANE_CALL(refused, ({-1}), byMaybeSame(on.repeated.get(), TORVANE_TO_SPARSE(MSparseArray_dropDuplicates(on.repeated.get(), 1, slot))) ),
      TORVANE_CALL(refused, ({403}), bySlot<MTensor>(TORVANE_TO_SLOT(MSparseArray_toTensor(on.sparse.get(), slot))) ),
  };
  return calls;
}
// clang-format on

std::string operandsText(const Operands &on) {
  return textOf(on.x.get()) + textOf(on.y.get()) + textOf(on.array.get()) + textOf(on.sparse.get()) +
         textOf(on.repeated.get());
}

SweepOutcome sweep(const ExportedCall &call, mint count, SweepKind kind) {
  const Operands operands = operandsOf(count);
  const Done expected = call.run(operands);
  const std::string before = operandsText(operands);
  EXPECT_EQ(expected.status, 0) << call.name;
  Done done;
  return sweepMemory(
      {call.name, [] {}, [&] { return (done = call.run(operands)).status; },
       [&](mint status) { return std::count(call.statuses.begin(), call.statuses.end(), status) > 0; },
       [&] { return operandsText(operands) == before ? done.fault : "an operand is touched"; },
       [&] { return done.fault.empty() && done.result == expected.result; }, [] {}},
      kind);
}

class ExportedMemorySweep : public NamedFunctions {
protected:
  static void SetUpTestSuite() { InitializeRuntimeLibrary(); }
};

TEST_F(ExportedMemorySweep, FailuresOfLargeBlocksAreStatuses) {
  for (const ExportedCall &call : exportedCalls()) {
    const SweepOutcome outcome = sweep(call, kMany, SweepKind::warm);
    EXPECT_EQ(outcome.faults, "") << call.name;
    EXPECT_EQ(outcome.requests > 0, call.large != Large::none) << call.name;
    EXPECT_EQ(outcome.ended > 0, call.large == Large::endsProcess) << call.name;
  }
}

TEST_F(ExportedMemorySweep, FailuresOfSmallBlocksAreStatusesOrEndTheProcess) {
  for (const ExportedCall &call : exportedCalls()) {
    const SweepOutcome outcome = sweep(call, kSmall, SweepKind::cold);
    EXPECT_EQ(outcome.faults, "") << call.name;
    EXPECT_GT(outcome.requests + outcome.ended, 0) << call.name;
  }
}

} // namespace
