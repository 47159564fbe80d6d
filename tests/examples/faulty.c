/* faulty HOW [NUMBER]: a compiled library that fails as it is told, for the tests of the host. */
#include "../../examples/host/entry.h"

#include <torvane/torvane.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

const char TorvaneLibrary_usage[] = "HOW [NUMBER]";

static mint number;

static mint overflow(TorvaneLibraryData *record) {
  (void)record;
  number = checked_binary_times_Integer32_Integer32(1 << 20, 1 << 20);
  puts("went on"); /* in style 1 */
  return 0;
}

static mint raise_(TorvaneLibraryData *record) {
  (void)record;
  throwTorvaneException(number);
  puts("went on");
  return 0;
}

static mint returnStatus(TorvaneLibraryData *record) {
  (void)record;
  return number;
}

/* Says that it runs, so that the test knows when to interrupt it. */
static void say(const char *word) {
  puts(word);
  fflush(stdout);
}

static mint poll(TorvaneLibraryData *record) {
  (void)record;
  say("running");
  while (checkAbortWatchThrow() == 0) continue;
  return 0;
}

static mint pollHandle(TorvaneLibraryData *record) {
  const mint *handle = getAbortWatchHandle();
  (void)record;
  say("running");
  while (__atomic_load_n(handle, __ATOMIC_RELAXED) == 0) continue;
  throwTorvaneException(TORVANE_ERROR_ABORT);
  return 0;
}

/* Says when the first interrupt has come, and is deaf to it. */
static mint ignore(TorvaneLibraryData *record) {
  (void)record;
  say("running");
  while (checkAbortWatch() == 0) continue;
  say("interrupted");
  for (int seconds = 0; seconds < 60; seconds++) sleep(1);
  return 0;
}

static mint flag(TorvaneLibraryData *record) {
  (void)record;
  printf("flag %d\n", checkAbortWatch());
  return 0;
}

/* The number of a new bag tells whether the record had one before. */
static mint bag(TorvaneLibraryData *record) {
  mint type = TORVANE_TYPE_INTEGER, made = -1;
  void *arguments[] = {&type};
  const mint status = record->runtime->lookupRuntimeFunction("Bag")(record, 1, arguments, &made);
  printf("bag %d\n", made);
  return status;
}

static const struct {
  const char *name;
  mint (*run)(TorvaneLibraryData *record);
} ways[] = {{"overflow", overflow}, {"raise", raise_},  {"status", returnStatus}, {"poll", poll},
            {"handle", pollHandle}, {"ignore", ignore}, {"flag", flag},           {"bag", bag}};

/* Each of the words in brackets, and whether a null ends them. */
static mint printWords(int argc, char **argv) {
  for (int i = 0; i < argc; i++) printf("[%s]", argv[i]);
  puts(argv[argc] == NULL ? "" : " without an end");
  return 0;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  if (argc < 1) return 12;
  if (argc > 1) number = atoi(argv[1]);
  for (size_t i = 0; i < sizeof ways / sizeof *ways; i++)
    if (strcmp(ways[i].name, argv[0]) == 0) return ways[i].run(record);
  return printWords(argc, argv);
}
