// The kind that a vector routine stores, for those who must not read a payload as another type.
#pragma once

#include "../runtime/types.h"
#include <torvane/operators.h>

namespace torvane {

inline constexpr mint kUnaryNumbers = 85, kFirstBinary = 256, kBinaryNumbers = 22;

// By the places of the exported operator tables; worked out by the compiler from the rows.
struct StoredKinds {
  uint8_t unary[3 * kUnaryNumbers] = {};
  uint8_t binary[9 * kBinaryNumbers] = {};
  constexpr StoredKinds();
};
extern const StoredKinds storedKinds;

// Of an operator and kinds that have a routine; 0 for numbers outside the tables.
inline mint storedKind1(mint op, mint kind) {
  return op >= 0 && op < kUnaryNumbers ? storedKinds.unary[3 * op + (kind - 2)] : 0;
}
inline mint storedKind2(mint op, mint kind1, mint kind2) {
  if (op < kFirstBinary || op >= kFirstBinary + kBinaryNumbers) return 0;
  return storedKinds.binary[9 * (op - kFirstBinary) + 3 * (kind1 - 2) + (kind2 - 2)];
}

// Null where the pair is not defined.
inline TorvaneBinaryRoutine binaryRoutineOf(mint op, mint kind1, mint kind2) {
  return machfunsarray_2[9 * (op - kFirstBinary) + 3 * (kind1 - 2) + (kind2 - 2)];
}

} // namespace torvane
