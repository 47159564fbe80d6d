// The columns of operators.def as values, and the table itself as constant arrays.
//
// A unary row:  family (its bodies/<family>.h and its translation unit), operator number (0: none), name
//               of the typed entries, name of the vector routines, kinds with a vector routine, group
//               letter of ReturnType1, rule of ReturnRangeType1, result type of the typed entries, checks
//               by type class, error bounds in ulp for reals and (normwise) complexes, meaning.
// A binary row: the same with the nine kind pairs as columns, one rule for both result-type functions,
//               and the operand type pairs of the typed entries: both of one type, or all 169.
// An alias row: a second number for a unary operator's routines, with result-type rules of its own.
// A reduction:  family, name, number of operands, their kinds, the accumulator's type from theirs, meaning.
// A bound row:  a unary number and routine that is a binary operator with a constant second operand.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// ---- checks -------------------------------------------------------------------------------------

using Checks = uint32_t;
namespace checks {
inline constexpr Checks none = 0;
inline constexpr Checks c1 = 1 << 0;  // checked form: integer overflow, the reserved value included
inline constexpr Checks c69 = 1 << 1; // checked form: an infinite or NaN result
inline constexpr Checks e1 = 1 << 2;  // both forms: result outside mint, or beyond a table
inline constexpr Checks e3 = 1 << 3;  // both forms: not an exact power
inline constexpr Checks e14 = 1 << 4; // both forms: outside the domain
inline constexpr Checks e16 = 1 << 5; // both forms: division by a complex zero
inline constexpr Checks e17 = 1 << 6; // not defined for the type
inline constexpr Checks kRaisedByBoth = e1 | e3 | e14 | e16;
} // namespace checks

// ---- kinds and result types ---------------------------------------------------------------------

// Operand kinds of vector routines, as bits: bit (type - 2), and bit 3 * (type1 - 2) + (type2 - 2).
using Columns = uint32_t;
namespace columns { // of unary, ternary and reducing operators
inline constexpr Columns none = 0, i = 1, d = 2, c = 4, id = i | d, dc = d | c, idc = i | d | c;
} // namespace columns
namespace pairs { // of binary operators
inline constexpr Columns none = 0, all = 0x1FF, ii = 1 << 0, notII = all & ~ii;
inline constexpr Columns id = 1 << 1, di = 1 << 3, dd = 1 << 4, ci = 1 << 6, cd = 1 << 7, cc = 1 << 8;
inline constexpr Columns equals = ii | dd | cc, noComplex = ii | id | di | dd;
inline constexpr Columns chop = dd | cd, unitize = ii | dd | cd, shift = ii | di | ci;
} // namespace pairs

// Result type of a typed entry from its operand type T.
enum class TypedResult {
  same,              // T
  realPart,          // the real type of a complex, else T
  word,              // mint
  wordOfReal,        // mint for a real, else T
  wordUnlessComplex, // T for a complex, else mint
  power,             // of two types: see powerType
};

// Groups of ReturnType1. k is the operand's kind.
enum class TypeGroup : char {
  A = 'A', // not for integers, else k
  B = 'B', // k
  C = 'C', // real for a complex, else k
  D = 'D', // real for a complex, else integer
  E = 'E', // integer for a real, else k
  F = 'F', // integer; not for complexes
  G = 'G', // integer for a real, else none: an integer needs no call
  H = 'H', // real for a real, else none
  I = 'I', // integer for an integer, else none
  J = 'J', // k; not for complexes
  K = 'K', // integer
};

enum class RangeRule {
  keeps,       // k; not for integers
  leaves,      // complex: a real argument can leave the reals; not for integers
  logarithm,   // integer for an integer, else complex
  modulus,     // real for a complex, else k
  component,   // real for a complex, else integer
  same,        // k
  sign,        // integer for a real, else k
  truth,       // a truth value; not for complexes
  rounding,    // integer for a real, -1 for an integer; not for complexes
  realOnly,    // real for a real, else none
  integerOnly, // integer for an integer, else none
  noComplex,   // k; not for complexes
  integer,     // integer
  integerFlat, // integer without the truth flag; not for complexes
};

// Rules of ReturnType2 and ReturnRangeType2; m is the larger kind.
enum class PairRule {
  widest,         // m
  notIntegers,    // m; not for two integers
  quotient,       // integer; not for complexes
  power,          // the base's kind for an integer exponent, else m, and complex as the range
  logarithm,      // m, and complex as the range; not for two integers
  integers,       // integer; for two integers only
  chop,           // the first kind; for a real or complex and a real
  difference,     // integer for two integers, else real
  relative,       // real; not for two integers
  largestModulus, // integer for two integers, real for two of another kind; equal kinds only
  shift,          // the first kind; for an integer second operand
  integer,        // integer
};

enum class Pairs { diagonal, all };

// ---- rows ---------------------------------------------------------------------------------------

struct ClassChecks {
  Checks signedInteger, unsignedInteger, real, complex;
};

struct Accuracy {
  double real, complex; // error bounds in ulp; complex ones normwise; of what, tells docs/accuracy.md
};

struct UnaryRow {
  const char *family;
  mint number;
  const char *typed, *vector;
  Columns columns;
  TypeGroup group;
  RangeRule range;
  TypedResult result;
  ClassChecks checks;
  Accuracy accuracy;
  const char *meaning;
};

struct BinaryRow {
  const char *family;
  mint number;
  const char *typed, *vector;
  Columns columns;
  PairRule rule;
  Pairs pairs;
  TypedResult result;
  ClassChecks checks;
  Accuracy accuracy;
  const char *meaning;
};

struct AliasRow {
  const char *family;
  mint number;
  const char *typed, *vector;
  Columns columns;
  TypeGroup group;
  RangeRule range;
};

struct BoundRow {
  const char *family;
  mint number;
  const char *typed, *vector; // of the binary operator
  TypeGroup group;
  RangeRule range;
  mint operand;
};

struct TernaryRow {
  const char *family, *typed;
  Columns columns;
  TypedResult result;
  ClassChecks checks;
  const char *meaning;
};

// `operands` runs of elements into one accumulator.
struct ReductionRow {
  const char *family, *vector;
  mint operands;
  Columns columns;
  TypedResult accumulator;
  const char *meaning;
};

namespace table {
using namespace checks;

#define TORVANE_UNARY(family, number, typed, vector, kinds, group, range, result, i, u, r, c, ulpR, ulpC,    \
                      meaning)                                                                               \
  {#family,        number,           #typed,           #vector,                                              \
   columns::kinds, TypeGroup::group, RangeRule::range, TypedResult::result,                                  \
   {i, u, r, c},   {ulpR, ulpC},     meaning},
inline constexpr UnaryRow kUnary[] = {
#include "operators.def"
};

#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, operands, result, i, u, r, c, ulpR, ulpC, \
                       meaning)                                                                              \
  {#family,                                                                                                  \
   number,                                                                                                   \
   #typed,                                                                                                   \
   #vector,                                                                                                  \
   torvane::pairs::kinds,                                                                                    \
   PairRule::rule,                                                                                           \
   Pairs::operands,                                                                                          \
   TypedResult::result,                                                                                      \
   {i, u, r, c},                                                                                             \
   {ulpR, ulpC},                                                                                             \
   meaning},
inline constexpr BinaryRow kBinary[] = {
#include "operators.def"
};

#define TORVANE_ALIAS(family, number, typed, vector, kinds, group, range)                                    \
  {#family, number, #typed, #vector, columns::kinds, TypeGroup::group, RangeRule::range},
inline constexpr AliasRow kAliases[] = {
#include "operators.def"
};

#define TORVANE_BOUND(family, number, typed, vector, group, range, operand)                                  \
  {#family, number, #typed, #vector, TypeGroup::group, RangeRule::range, operand},
inline constexpr BoundRow kBound[] = {
#include "operators.def"
};

#define TORVANE_TERNARY(family, typed, kinds, result, i, u, r, c, meaning)                                   \
  {#family, #typed, columns::kinds, TypedResult::result, {i, u, r, c}, meaning},
inline constexpr TernaryRow kTernary[] = {
#include "operators.def"
};

#define TORVANE_REDUCTION(family, vector, operands, kinds, accumulator, meaning)                             \
  {#family, #vector, operands, columns::kinds, TypedResult::accumulator, meaning},
inline constexpr ReductionRow kReductions[] = {
#include "operators.def"
};

} // namespace table

} // namespace torvane
