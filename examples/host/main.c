/* host [--style 0|1|2] LIBRARY.so [WORD...] [-- LIBRARY.so [WORD...]]...
 *
 * Loads compiled libraries, and runs them one after the other on the words behind their names, each with a
 * library-data record of its own. A library that raises a code or returns a status is reported by name and
 * the next one runs. SIGINT asks the library that runs to abort; a second one, which finds a library that
 * does not poll, ends the process as it does by default.
 *
 * Exit status: 0 all libraries succeeded, 1 some failed, 2 they could not be run at all. */
#define _XOPEN_SOURCE 700 /* for sigaction */
#include "codes.h"
#include "library.h"

#include <torvane/torvane.h>

#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* One library to run. catchExceptionHandler finds the function first in it, and the function the rest. */
typedef struct Job {
  void (*run)(void *argument, void *closure);
  Library library;
  TorvaneLibraryData *record;
  int count;
  char **words; /* null behind the last */
  mint status;
} Job;

static mint abortWanted; /* the library polls it, perhaps on another thread */

static void wantAbort(int number) {
  (void)number;
  __atomic_store_n(&abortWanted, 1, __ATOMIC_RELAXED);
}

/* A raised flag may be a mistake for other hosts; this one means it. */
static mint confirmAbort(const char *where) {
  (void)where;
  return 1;
}

/* The handler goes with its first signal. System calls that were interrupted go on: a library need not know.
 */
static void armInterrupt(void) {
  struct sigaction action = {0};
  action.sa_handler = wantAbort;
  action.sa_flags = (int)SA_RESETHAND | SA_RESTART;
  __atomic_store_n(&abortWanted, 0, __ATOMIC_RELAXED);
  sigaction(SIGINT, &action, NULL);
}

static void runEntry(void *argument, void *closure) {
  Job *job = *(Job **)closure;
  (void)argument;
  job->status = job->library.entry(job->record, job->count, job->words);
}

/* Says what went wrong, if anything did. A code says more than the status that it came with in style 1. */
static bool report(const Job *job, const CompilerError *error) {
  const char *path = job->library.path, *usage = job->library.usage;
  if (error)
    fprintf(stderr, "host: %s: error %d, %s: %s\n", path, error->code, errorName(error->code),
            errorMeaning(error->code));
  else if (job->status != 0)
    fprintf(stderr, "host: %s: status %d: %s\n", path, job->status, statusMeaning(job->status));
  if (!error && job->status == 12 && usage) fprintf(stderr, "usage: %s %s\n", path, usage);
  return !error && job->status == 0;
}

static bool runJob(Job *job) {
  armInterrupt();
  job->run = runEntry;
  job->record = TorvaneLibraryData_new(5);
  CompilerError *error = catchExceptionHandler(NULL, &job);
  const bool succeeded = report(job, error);
  if (error) Delete_CompilerError(error);
  TorvaneLibraryData_free(job->record);
  if (fflush(stdout) == 0 && !ferror(stdout)) return succeeded;
  perror("host: cannot write the output");
  clearerr(stdout);
  return false;
}

/* Cuts the words at each "--": a null takes its place. The jobs stay without their libraries. */
static int cut(char **words, int count, Job *jobs) {
  int found = 0;
  for (int i = 0, first = 0; i <= count; i++) {
    if (i < count && strcmp(words[i], "--") != 0) continue;
    words[i] = NULL;
    jobs[found].words = words + first;
    jobs[found++].count = i - first;
    first = i + 1;
  }
  return found;
}

/* All are loaded before any is run, so that a wrong name costs nothing. */
static bool load(Job *jobs, int count) {
  for (int i = 0; i < count; i++) {
    if (jobs[i].count == 0) {
      fprintf(stderr, "host: no library %s\n", i > 0 ? "behind --" : "is named");
      return false;
    }
    if (!libraryLoad(&jobs[i].library, *jobs[i].words)) return false;
    jobs[i].words++;
    jobs[i].count--;
  }
  return true;
}

static int runAll(char **words, int count, mint style) {
  Job *jobs = calloc((size_t)count + 1, sizeof *jobs);
  if (!jobs) return 2;
  const int found = cut(words, count, jobs);
  int status = 2;
  if (load(jobs, found)) {
    InitializeTorvaneRTL(NULL, &abortWanted, confirmAbort);
    setExceptionStyle(style);
    status = 0;
    for (int i = 0; i < found; i++)
      if (!runJob(&jobs[i])) status = 1;
  }
  for (int i = 0; i < found; i++) libraryUnload(&jobs[i].library);
  free(jobs);
  return status;
}

static int usage(void) {
  fputs("usage: host [--style 0|1|2] LIBRARY.so [WORD...] [-- LIBRARY.so [WORD...]]...\n"
        "       host --codes\n",
        stderr);
  return 2;
}

int main(int argc, char **argv) {
  int first = 1;
  mint style = 1;
  if (argc == 2 && strcmp(argv[1], "--codes") == 0) {
    codesPrint();
    return 0;
  }
  if (argc > 2 && strcmp(argv[1], "--style") == 0) {
    if (strlen(argv[2]) != 1 || !strchr("012", *argv[2])) return usage();
    style = (mint)(*argv[2] - '0');
    first = 3;
  }
  if (first >= argc || strncmp(argv[first], "--", 2) == 0) return usage();
  return runAll(argv + first, argc - first, style);
}
