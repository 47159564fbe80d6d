#include "method_names.h"

#include "name_map.h"

namespace torvane {

namespace {

// By number less one. What clips follows on what does not.
constexpr const char *kNames[kMethodCount] = {"Check", "ClipAndCheck", "Coerce", "ClipAndCoerce",
                                              "Round", "ClipAndRound", "Scale",  "ClipAndScale"};

constinit NameMap methods;

void addMethods(HashTable *names) {
  for (mint number = 1; number <= kMethodCount; ++number) addName(names, kNames[number - 1], number);
}

} // namespace

void initializeMethodNames(mint stage) { initializeNameMap(methods, stage, addMethods); }

void tearDownMethodNames() { tearDownNameMap(methods); }

const char *nameOfMethod(mint number) {
  return number >= 1 && number <= kMethodCount ? kNames[number - 1] : nullptr;
}

mint methodOfName(const char *name) { return numberOfName(methods, name); }

} // namespace torvane
