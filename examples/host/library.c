#include "library.h"

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The loader searches the system's folders for a name without a slash; a user means the file in this one. */
static void *openFile(const char *path) {
  const char *folder = strchr(path, '/') ? "" : "./";
  const size_t size = strlen(folder) + strlen(path) + 1;
  char *file = malloc(size);
  if (!file) return NULL;
  snprintf(file, size, "%s%s", folder, path);
  void *handle = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  free(file);
  return handle;
}

/* ISO C has no conversion from a data pointer, which is what dlsym returns, to one of a function. */
static TorvaneLibraryEntry findEntry(void *handle) {
  TorvaneLibraryEntry entry = NULL;
  void *address = dlsym(handle, "TorvaneLibrary_entry");
  memcpy(&entry, &address, sizeof entry);
  return entry;
}

bool libraryLoad(Library *library, const char *path) {
  library->path = path;
  library->handle = openFile(path);
  if (!library->handle) {
    const char *reason = dlerror();
    fprintf(stderr, "host: %s\n", reason ? reason : "out of memory");
    return false;
  }
  library->entry = findEntry(library->handle);
  library->usage = dlsym(library->handle, "TorvaneLibrary_usage");
  if (library->entry) return true;
  fprintf(stderr, "host: %s: not a compiled library: it has no TorvaneLibrary_entry\n", path);
  return false;
}

void libraryUnload(Library *library) {
  if (library->handle) dlclose(library->handle);
}
