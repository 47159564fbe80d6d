// docs/registry.md: the named functions as a compiler writer and a host see them.
#include "files.h"

#include <cstring>

namespace generate {

namespace {

struct Row {
  const char *name, *handler, *kind, *counts, *arguments, *result, *statuses, *meaning;
};

const Row kRows[] = {
#define TORVANE_FUNCTION(name, handler, kind, counts, arguments, result, statuses, meaning)                  \
  {#name, #handler, #kind, counts, arguments, result, statuses, meaning},
#include "algorithms/functions.def"
#undef TORVANE_FUNCTION
};

// What lookupRuntimeFunctionKind says, and the word for it.
std::string kindOf(const Row &row) {
  if (std::strcmp(row.kind, "kPure") == 0) return "0";
  if (std::strcmp(row.kind, "kPlainRandom") == 0) return "1";
  return std::strcmp(row.kind, "kDraws") == 0 ? "2" : "5";
}

bool hasLanded(const Row &row) { return std::strcmp(row.handler, "unavailableRuntimeFunction") != 0; }

std::string line(const Row &row) {
  return "| `" + std::string(row.name) + "` | " + row.counts + " | " + row.arguments + " | " + row.result +
         " | " + row.statuses + (hasLanded(row) ? "" : ", always") + " | " + kindOf(row) + " | " +
         row.meaning + " |\n";
}

const char *const kPreface =
    R"(# Functions by name

<!-- Generated from src/algorithms/functions.def by tools/generate; not to be edited. -->

For those who write compilers and hosts. Compiled code does not link against the list algorithms: it asks for a function
by its name and calls what it gets through one signature, `RuntimeFunctionHandler` of `torvane/registry.h`
([library_data.md](library_data.md) has a program that does so, [calling.md](calling.md#by-name) one in LLVM IR):

```text
status = handler(libraryData, argumentCount, arguments, result)
```

- A name is found by its content. An unknown name, or null, yields a handler that returns 12, so that the result of a
  lookup can be called without a test.
- `arguments[i]` points at argument i in the caller's storage. In the table T is a tensor (the pointer leads to its
  handle, an `MTensor *`), i an `mint`, r an `mreal`, c an `mcomplex`; brackets mark what may be left out. A tagged value
  is two arguments: a pointer to the tag, an `mint`, and a pointer to the value.
- `result` points at an `mint`, `mreal` or `mcomplex`, or at the slot of a tensor. A slot that holds null receives a new
  tensor, which the caller deletes; a tensor in it keeps its record and receives type, shape and elements of the
  result. It may be one of the arguments.
- Arguments stay the caller's, and as they were, whether the call succeeds or not. The exception is `Join`; see
  [lists.md](lists.md).
- 0 is success. A slot that held null holds null after a failure, unless it is one of `Cross` half way
  ([small_dense.md](small_dense.md)); what another slot holds then says nothing. No handler raises.
  [errors.md](errors.md) says what a status means; those of the table are what a function returns for arguments that its
  columns do not allow, and for want of memory.
- Where the count is "any", and inside pairs, the count is the compiler's to keep.

The table never changes after start-up, so any thread may look a name up. A handler is as safe on several threads as the
tensors that it is given: one thread writes one tensor. Kind 0 has no state, kind 2 draws random numbers, kind 5 changes
the generator's state, and kind 1 is the plain random function, which this library has in its typed forms only.

| Name | Count | Arguments | Result | Statuses | Kind | What it gives |
|---|---|---|---|---|---|---|
)";

} // namespace

void writeRegistryPage(Files &files) {
  std::string text = kPreface;
  for (const Row &row : kRows) text += line(row);
  files["docs/registry.md"] = text;
}

} // namespace generate
