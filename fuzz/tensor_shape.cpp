// Requests for shapes and types on a few tensors, copies and coerced runs between them: statuses follow from
// the request alone, every tensor stays valid, nothing is lost.
#include "input.h"

#include "runtime/memory.h"
#include "tensor/tensor.h"

#include <torvane/memory.h>

using namespace torvane;

namespace {

constexpr size_t kTensors = 4;

struct Request {
  mint type, rank, extents[6];
};

// Mostly small; now and then extents at the edges of what multiplies.
mint takeExtent(Input &input) {
  const auto raw = input.take<uint8_t>();
  if (raw < 200) return raw % 7;
  if (raw < 250) return 1 << (raw % 32);
  return static_cast<mint>(raw) - 253;
}

Request takeRequest(Input &input) {
  Request request = {};
  request.type = input.take<uint8_t>() % 5;
  request.rank = input.take<uint8_t>() % 8 - 1;
  if (request.rank > 6) request.rank = 6;
  for (mint k = 0; k < request.rank; ++k) request.extents[k] = takeExtent(input);
  return request;
}

// The running product, in a width that cannot overflow before it is seen to.
bool countOverflows(const Request &request) {
  int64_t count = 1;
  for (mint k = 0; k < request.rank; ++k) {
    count *= request.extents[k];
    if (count > INT32_MAX) return true;
  }
  return false;
}

bool hasNegative(const Request &request) {
  for (mint k = 0; k < request.rank; ++k)
    if (request.extents[k] < 0) return true;
  return false;
}

void expectStatus(const Request &request, mint status) {
  if (request.rank < 0) return require(status == kNegativeRank);
  if (hasNegative(request)) return require(status == kNegativeExtent);
  if (countOverflows(request)) return require(status == kSizeFailed);
  require(status == kSuccess || status == kSizeFailed);
}

void expectValid(const MTensor *tensor) {
  int64_t count = 1;
  for (mint k = 0; k < tensor->rank; ++k) {
    require(tensor->dimensions[k] >= 0);
    count *= tensor->dimensions[k];
  }
  if (tensor->data != nullptr) require(count == tensor->elementCount && count > 0);
}

// After a failed request a tensor may have a shape without a payload: it may be asked again, not read.
bool isReadable(const MTensor *tensor) { return tensor->data != nullptr || tensor->elementCount == 0; }

void copyRun(MTensor *target, const MTensor *source) {
  if (target->data == nullptr || source->data == nullptr) return;
  const mint count =
      target->elementCount < source->elementCount ? target->elementCount : source->elementCount;
  MTensor_copySomeDataCoerce(target, count - 1, -1, source, 0, 1, count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  Input input(bytes, count);
  torvane::free(allocate(8, 0, kFatal));
  const uint32_t before = usedBytesOfThisThread();
  setLimitOfThisThread(before + (1u << 24));
  MTensor *tensors[kTensors];
  for (MTensor *&tensor : tensors) tensor = MTensor_new();
  while (!input.isEmpty()) {
    const auto choice = input.take<uint8_t>();
    MTensor *tensor = tensors[choice % kTensors], *other = tensors[choice / 4 % kTensors];
    if (choice < 160) {
      const Request request = takeRequest(input);
      expectStatus(request,
                   MTensor_allocateMemoryCommon(tensor, request.type, request.rank, request.extents, kQuiet));
      if (tensor->data != nullptr) MTensor_initialize(tensor, choice);
    } else if (choice < 200) {
      if (isReadable(other)) MTensor_copyUniqueCommon(tensor, other, kQuiet);
    } else {
      copyRun(tensor, other);
    }
    expectValid(tensor);
  }
  for (MTensor *tensor : tensors) MTensor_delete(tensor);
  require(usedBytesOfThisThread() == before);
  return 0;
}
