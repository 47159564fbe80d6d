// The operands of an outer product: their leading and trailing dimensions, and the walk over the combinations
// of the leading positions of all tensors but the last, whose positions an inner loop runs over.
#pragma once

#include "../algorithms/result_tensor.h"
#include "../tensor/scratch.h"
#include "../tensor/tensor.h"

namespace torvane {

inline constexpr mint kListRefused = 11; // the allocation of a list met a negative extent

struct OuterOperands {
  mint count;
  MTensor *const *tensors;
  const mint *levels; // null: every dimension leads

  const MTensor *first() const { return tensors[0]; }
  const MTensor *last() const { return tensors[count - 1]; }
  mint level(mint i) const { return levels == nullptr ? tensors[i]->rank : levels[i]; }
  mint trailingRank() const { return first()->rank - level(0); }
  const mint *trailing(mint i) const { return tensors[i]->dimensions + level(i); }

  // kSuccess, or why they do not go together: tensor by tensor.
  mint check() const;

  // Elements of a block, that is of the trailing dimensions; of tensors that have elements.
  mint blockLength() const;
  const char *block(mint i, mint position, size_t bytes) const {
    return static_cast<const char *>(tensors[i]->data) + static_cast<size_t>(position) * bytes;
  }

  // The result's shape and type; a list has one dimension more. Its operands are avoided.
  mint allocate(ResultTensor &result, bool isList) const;
};

// The positions of all tensors but the last, the last of these running fastest.
class Odometer {
public:
  Odometer(const OuterOperands &operands, mint blockLength)
      : wheels(operands.count - 1), positions(wheels, kReport), ends(wheels, kReport) {
    for (mint i = 0; status() == kSuccess && i < wheels; ++i) {
      positions[i] = 0;
      ends[i] = operands.tensors[i]->elementCount / blockLength;
    }
  }
  mint status() const { return positions.status() != kSuccess ? positions.status() : ends.status(); }
  mint position(mint i) { return positions[i]; }

  // Goes to the next combination, at first to the first one. Yields the first tensor whose position is
  // another one now, as those of all behind it may be; -1 after the last combination.
  mint next() {
    if (!hasStarted) {
      hasStarted = true;
      return 0;
    }
    for (mint i = wheels - 1; i >= 0; --i) {
      if (++positions[i] < ends[i]) return i;
      positions[i] = 0;
    }
    return -1;
  }

private:
  mint wheels;
  Scratch<mint> positions, ends;
  bool hasStarted = false;
};

// Where the result is written next. What an abort leaves unwritten is zero.
class OuterOutput {
public:
  explicit OuterOutput(MTensor *result)
      : next(static_cast<char *>(result->data)),
        end(next + static_cast<size_t>(result->elementCount) * elementWidth(result->type)) {}
  template <class T = char> T *at() { return reinterpret_cast<T *>(next); }
  void advance(size_t bytes) { next += bytes; }
  void clearRest() { __builtin_memset(next, 0, static_cast<size_t>(end - next)); }

private:
  char *next, *end;
};

} // namespace torvane
