/* A compiled library in the host's process. */
#ifndef EXAMPLE_HOST_LIBRARY_H
#define EXAMPLE_HOST_LIBRARY_H

#include "entry.h"

#include <stdbool.h>

typedef struct Library {
  const char *path; /* as the user gave it */
  void *handle;
  TorvaneLibraryEntry entry;
  const char *usage; /* the library's own, or null */
} Library;

/* Fills the record, or says on stderr why it cannot. Unloading a record that is all zero does nothing. */
bool libraryLoad(Library *library, const char *path);
void libraryUnload(Library *library);

#endif
