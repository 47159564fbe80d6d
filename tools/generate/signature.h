// An exported name with its signature, in the two spellings that the generated files need: C and LLVM.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace generate {

struct Type {
  std::string c, llvm;
  std::string extension; // LLVM parameter attribute of integers narrower than a register
};

struct Parameter {
  Type type;
  std::string name; // empty for signatures that were read from a hand-written header
};

struct Signature {
  std::string family, name;
  Type result; // the type itself for data
  std::vector<Parameter> parameters;
  bool isData = false, isConstant = false;
  bool returnsTwice = false;
};

inline const Type kPointer = {"void *", "ptr", ""};
inline const Type kConstPointer = {"const void *", "ptr", ""};
inline const Type kWord = {"mint", "i32", ""};

// "int8_t x", "void *result": a pointer's star belongs to the name.
std::string declare(const Type &type, const std::string &name);

// The C declaration up to its closing parenthesis, broken after a comma where a line would pass 110.
std::string prototype(const Signature &signature, const std::string &prefix);

// Exports that are written by hand, in the order of src/exports.def, with the types of their headers.
std::vector<Signature> handWrittenExports();

} // namespace generate
