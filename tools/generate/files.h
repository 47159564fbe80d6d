// The generated files: path below the project's root, and content.
#pragma once

#include "operators.h"

#include <map>
#include <string>

namespace generate {

using Files = std::map<std::string, std::string>;

void writeScalarFiles(Files &files, const std::vector<ExportGroup> &entries);
void writeRoutineFiles(Files &files, const std::vector<ExportGroup> &routines);
void writeOperatorTables(Files &files);
void writeRegistryPage(Files &files);
void writeOperatorsPage(Files &files);
void writeExportFiles(Files &files, const std::vector<Signature> &exports);

inline const char *const kGeneratedNote =
    "Generated from src/scalar/operators.def by tools/generate; not to be edited.";

} // namespace generate
