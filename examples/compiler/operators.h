// The arithmetic operators of the language and the library's numbers and names for them.
#ifndef COMPILER_OPERATORS_H
#define COMPILER_OPERATORS_H

#include <string_view>

struct BinaryOperator {
  std::string_view symbol;
  int op;
  std::string_view name; // of the typed entries
};

inline constexpr BinaryOperator kBinaryOperators[] = {
    {"+", 257, "plus"}, {"-", 258, "subtract"},  {"*", 259, "times"}, {"/", 260, "divide"},
    {"%", 261, "mod"},  {"//", 262, "quotient"}, {"^", 263, "pow"},
};

// 0 for what is no arithmetic operator.
constexpr int binaryOperator(std::string_view symbol) {
  for (const BinaryOperator &each : kBinaryOperators)
    if (each.symbol == symbol) return each.op;
  return 0;
}

#endif
