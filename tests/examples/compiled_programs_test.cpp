// The programs of the example compiler give back every byte that they took from the runtime: those that end,
// those that fail, and those that are run again over reals. Style 2 skips what would give it back, and is not
// asked.
#include "compiled_libraries.h"

#include "runtime/memory.h"

#include <torvane/failure.h>

extern "C" {
#define COMPILED_PROGRAM(name, expected) mint name##Entry(TorvaneLibraryData *record, int argc, char **argv);
#include "compiled_programs.inc"
#undef COMPILED_PROGRAM
}

namespace {

struct CompiledProgram {
  const char *name;
  LibraryEntry entry;
  enum Outcome { SUCCEEDS, FAILS } expected;
};

constexpr CompiledProgram programs[] = {
#define COMPILED_PROGRAM(name, expected) {#name, name##Entry, CompiledProgram::expected},
#include "compiled_programs.inc"
#undef COMPILED_PROGRAM
};

// What a host keeps of one run; the handler finds the function first.
struct Run {
  void (*run)(void *argument, void *closure);
  LibraryEntry entry;
  TorvaneLibraryData *record;
  mint status;
};

void enter(void *, void *closure) {
  Run &run = **static_cast<Run **>(closure);
  run.status = call(run.entry, run.record, {});
}

// 0 for success, a code that was raised, or a status that was returned.
mint outcome(const CompiledProgram &program, TorvaneLibraryData *record) {
  Run run = {enter, program.entry, record, 0}, *closure = &run;
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  CompilerError *error = catchExceptionHandler(nullptr, &closure);
  testing::internal::GetCapturedStdout();
  testing::internal::GetCapturedStderr();
  const mint code = error == nullptr ? run.status : error->code;
  if (error != nullptr) Delete_CompilerError(error);
  return code;
}

void expectNothingKept(mint style) {
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  setExceptionStyle(style);
  TorvaneLibraryData *record = TorvaneLibraryData_new(5);
  for (const CompiledProgram &program : programs) {
    SCOPED_TRACE(program.name);
    const mint first = outcome(program, record); // leaves what the thread keeps, such as a generator
    EXPECT_EQ(first != 0, program.expected == CompiledProgram::FAILS);
    const uint32_t before = torvane::usedBytesOfThisThread();
    EXPECT_EQ(outcome(program, record), first);
    EXPECT_EQ(torvane::usedBytesOfThisThread(), before);
    EXPECT_EQ(RTL_exceptionActive, 0);
  }
  EXPECT_GE(std::size(programs), 20u);
  TorvaneLibraryData_free(record);
  setExceptionStyle(1);
}

TEST(CompiledPrograms, KeepNothingWhereCodesArePending) { expectNothingKept(1); }

TEST(CompiledPrograms, KeepNothingWhereCodesAreThrown) { expectNothingKept(0); }

} // namespace
