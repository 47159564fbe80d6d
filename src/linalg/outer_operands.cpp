#include "outer_operands.h"

#include <algorithm>

namespace torvane {

namespace {

bool isNumeric(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

} // namespace

mint OuterOperands::check() const {
  for (mint i = 0; i < count; ++i) {
    if (level(i) < 0 || level(i) > tensors[i]->rank) return kValueFailed;
    if (tensors[i]->rank - level(i) != trailingRank()) return kWrongDimensions;
    if (!std::equal(trailing(i), trailing(i) + trailingRank(), trailing(0))) return kWrongDimensions;
    if (tensors[i]->type != first()->type) return kValueFailed;
  }
  return isNumeric(first()->type) ? kSuccess : kValueFailed;
}

mint OuterOperands::blockLength() const {
  mint length = 1;
  for (mint i = 0; i < trailingRank(); ++i) length *= trailing(0)[i];
  return length;
}

mint OuterOperands::allocate(ResultTensor &result, bool isList) const {
  mint rank = trailingRank() + (isList ? 1 : 0);
  for (mint i = 0; i < count; ++i) rank += level(i);
  Scratch<mint> extents(rank, kReport);
  if (extents.status() != kSuccess) return extents.status();
  mint *next = extents.get();
  for (mint i = 0; i < count; ++i) next = std::copy_n(tensors[i]->dimensions, level(i), next);
  if (isList) *next++ = count;
  std::copy_n(trailing(0), trailingRank(), next);
  for (mint i = 0; i < count; ++i) result.avoid(tensors[i]);
  return result.allocate(first()->type, rank, extents.get());
}

} // namespace torvane
