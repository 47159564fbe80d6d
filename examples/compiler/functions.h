// The functions that the language knows: elementwise ones by operator number, those of the library's registry
// by name with the signatures that a program may use, and the few that the compiled code has itself.
#ifndef COMPILER_FUNCTIONS_H
#define COMPILER_FUNCTIONS_H

#include "types.h"

#include <span>
#include <string_view>

struct Elementwise {
  std::string_view name; // also of the typed entries
  int op;
  Element least; // an operand of a lesser kind is converted to this one first
};

// Null for another name.
const Elementwise *elementwiseFunction(std::string_view name);

// Arguments, a letter each. Tensors marked * have one element type between them, the widest of what is given.
//   t* tensor   M* of rank 2 or more   v* vector   b* of any rank   s* of the first one's, as often as wanted
//   I tensor of int   n vector of int   X tensor of real   V vector of real   D matrix of real
//   i int   r real   k int, passed as a tagged pair   e int, passed as a vector of one extent
//   and two that a program does not write:   m 0   L the rank of the first less 1
// Results:
//   t as the first   d one rank less   f vector of its element   p ranks added, less 2   x its element
//   n vector of int   N matrix of int   R vector of real   i int   r real   - nothing
struct Named {
  std::string_view name, handler; // as it is written; as the registry calls it
  std::string_view arguments, result;
  bool checks = false;             // takes flags last, and fails where a sum or product leaves the integers
  bool draws = false;              // reads or changes the state of the random generators
  std::string_view overReals = {}; // the same over reals, where its integers are none but elements
};

// The forms of a name, the first that fits counts. Empty for another name.
std::span<const Named> namedFunctions(std::string_view name);

inline bool isShared(char letter) { return std::string_view("tMvbs").find(letter) != std::string_view::npos; }
inline bool isHidden(char letter) { return letter == 'm' || letter == 'L'; }

bool isBuiltin(std::string_view name);

#endif
