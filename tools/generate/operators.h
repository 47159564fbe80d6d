// The exports that follow from the operator table, each with the line of C++ that defines it.
#pragma once

#include "signature.h"

#include "scalar/operator_table.h"

namespace generate {

struct DerivedExport {
  Signature signature;
  std::string definition; // the body between its braces
};

// All exports of one operator, under one comment.
struct ExportGroup {
  std::string family;  // of the operator: the translation unit
  std::string comment; // for the header
  std::vector<DerivedExport> exports;
};

std::vector<ExportGroup> typedEntries();
std::vector<ExportGroup> vectorRoutines();

// The name of the routine in column `column` of a unary or binary row, empty where there is none.
std::string unaryRoutineName(const torvane::UnaryRow &row, int column);
std::string aliasRoutineName(const torvane::AliasRow &row, int column);
std::string boundRoutineName(const torvane::BoundRow &row);
std::string binaryRoutineName(const torvane::BinaryRow &row, int column);

} // namespace generate
