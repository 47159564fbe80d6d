// A program as a tree. The parser fills in what was written, the checker types, conversions and what names
// mean.
#ifndef COMPILER_SYNTAX_H
#define COMPILER_SYNTAX_H

#include "source.h"
#include "types.h"

#include <memory>
#include <vector>

struct Function;
struct Elementwise;
struct Named;

struct Variable {
  std::string name;
  Type type;
  Position position;
  bool fixed = false; // a parameter or the variable of a loop
  bool read = false;
  int number = 0; // makes its name in C unique
};

enum class ExpressionKind {
  Number, // text
  Imaginary,
  Text,
  Variable,
  Literal, // a tensor, its elements row by row
  Unary,   // "-" or "not"
  Binary,
  Index,   // a tensor and its positions
  Call,    // a name and arguments; the four below are what the checker makes of it
  Convert, // of the one operand, to the type
};

enum class Callee { Unknown, User, Elementwise, Named, Builtin };

struct Expression;
using ExpressionPointer = std::unique_ptr<Expression>;

struct Expression {
  ExpressionKind kind;
  Position position;
  std::string text; // the number, name or operator
  std::vector<ExpressionPointer> operands;
  int rows = 0;   // of a literal matrix; 0 for a vector
  int height = 1; // of the tree

  Type type;
  Variable *variable = nullptr;
  Callee callee = Callee::Unknown;
  const Function *function = nullptr;
  const Elementwise *elementwise = nullptr;
  const Named *named = nullptr;
};

enum class StatementKind { Let, Assign, AssignPart, If, While, For, Return, Print, Expression };

struct Statement;
using Block = std::vector<std::unique_ptr<Statement>>;

struct Statement {
  StatementKind kind;
  Position position;
  std::string name; // of a Let, an Assign, a For
  Type declared;    // of a Let that says its type
  std::vector<ExpressionPointer>
      expressions; // the value last; before it positions; of a For the bounds and step
  Block body, otherwise;
  Variable *variable = nullptr;
};

struct Function {
  std::string name; // empty: the program itself
  Position position;
  std::vector<std::unique_ptr<Variable>> parameters, locals;
  Type result;
  Block body;
  bool prints = false, draws = false; // itself or by what it calls
  std::vector<const Function *> calls;

  bool isPure() const { return !prints && !draws; }
};

struct Program {
  std::vector<std::unique_ptr<Function>> functions; // the last one is the program itself
};

#endif
