/* A compiled library that says its number, which is 1 in the one and 2 in the other of two that have all
 * names alike. */
#include "../../examples/host/entry.h"

#include <stdio.h>

TORVANE_API extern int namesakeNumber;
int namesakeNumber = NAMESAKE;

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  (void)record, (void)argc, (void)argv;
  printf("%d\n", namesakeNumber);
  return 0;
}
