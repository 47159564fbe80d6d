// The exports that follow from the operator table, each with the line of C++ that defines it.
#pragma once

#include "signature.h"

#include "scalar/operator_table.h"

namespace generate {

struct DerivedExport {
  Signature signature;
  std::string definition; // the body between its braces
  std::string loopRecord; // of a vector routine with a loop: the record's type, and what it holds
  std::string loop;
};

// All exports of one operator, under one comment.
struct ExportGroup {
  std::string family;  // of the operator: the translation unit
  std::string comment; // for the header
  std::vector<DerivedExport> exports;
};

std::vector<ExportGroup> typedEntries();
std::vector<ExportGroup> vectorRoutines();

// Whether the loops of a family are compiled once a processor level, and then the member of its record that
// is a routine's loop.
bool hasLevels(const std::string &family);
std::string loopMember(const DerivedExport &routine);

// The name of the routine in column `column` of a unary or binary row, empty where there is none.
std::string unaryRoutineName(const torvane::UnaryRow &row, int column);
std::string aliasRoutineName(const torvane::AliasRow &row, int column);
std::string boundRoutineName(const torvane::BoundRow &row);
std::string binaryRoutineName(const torvane::BinaryRow &row, int column);

} // namespace generate
