// The tensor that an algorithm fills, and the caller's slot that it goes to.
//
// A slot that holds null gets a new tensor, and null again when the algorithm fails. A tensor in the slot
// keeps its record and is reused, unless it is one of the operands: then the result is built apart, and its
// extents and payload take the place of the record's at the end, so that a failure leaves the operand as it
// was.
#pragma once

#include "../tensor/tensor.h"

#include <initializer_list>
#include <utility>

namespace torvane {

class ResultTensor {
public:
  explicit ResultTensor(MTensor **callersSlot, std::initializer_list<const MTensor *> operands = {})
      : slot(callersSlot) {
    for (const MTensor *operand : operands) avoid(operand);
  }
  ~ResultTensor();
  ResultTensor(const ResultTensor &) = delete;
  ResultTensor &operator=(const ResultTensor &) = delete;

  // Whether the slot holds this tensor.
  bool isIn(const MTensor *tensor) const { return *slot != nullptr && *slot == tensor; }

  // Before the allocation: one operand more.
  void avoid(const MTensor *operand) { isApart = isApart || isIn(operand); }

  // Shape and type; the status of MTensor_allocateCommon.
  mint allocate(mint type, mint rank, const mint *dimensions, mint errorMode = kReport);
  mint allocateLike(mint type, const MTensor *like) { return allocate(type, like->rank, like->dimensions); }

  MTensor *get() const { return isApart || isFresh ? made : *slot; }

  // The result is complete: kSuccess.
  mint commit();

private:
  MTensor **slot;
  MTensor *made = nullptr; // not yet the caller's
  bool isApart = false, isFresh = false;
};

// The tensor itself as the result; nothing happens when the slot holds it already. Other operands are left
// whole by a failure.
mint copyToSlot(MTensor **slot, const MTensor *tensor, std::initializer_list<const MTensor *> others = {});

// The same with other extents for as many elements. A slot that holds the tensor has it reshaped in place.
mint reshapeToSlot(MTensor **slot, MTensor *tensor, mint rank, const mint *dimensions, mint errorMode,
                   std::initializer_list<const MTensor *> others = {});

} // namespace torvane
