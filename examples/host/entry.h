/* What a compiled library exports, so that a host can load and run it.
 *
 * A compiled library is a shared object with an entry of this name. The record is its whole way to the
 * runtime; the exported names are a second one, for a library that is linked to the runtime or lets the
 * host's stand for it. The host opens each library for itself (RTLD_LOCAL), so that all may use the same
 * names. */
#ifndef EXAMPLE_ENTRY_H
#define EXAMPLE_ENTRY_H

#include <torvane/library_data.h>

TORVANE_BEGIN_DECLARATIONS

/* Runs the library on the words that follow its name; argv[argc] is null. Both and the record stay the host's
 * and hold until the entry returns. Results go to stdout; what is wrong with the input may be said on stderr.
 * Returns a status, 0 on success; failures may also be raised, in any style. Called on one thread. */
TORVANE_API mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv);

/* Not required: the words that the entry takes, such as "PATHS [SEED]". */
extern TORVANE_API const char TorvaneLibrary_usage[];

typedef mint (*TorvaneLibraryEntry)(TorvaneLibraryData *record, int argc, char **argv);

TORVANE_END_DECLARATIONS

#endif
