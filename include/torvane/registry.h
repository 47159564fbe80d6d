/* Functions that compiled code reaches by name.
 *
 * The library-data record looks a name up and yields a handler; an unknown name yields one that returns 12,
 * so that the result of a lookup can always be called. docs/registry.md lists the functions. */
#ifndef TORVANE_REGISTRY_H
#define TORVANE_REGISTRY_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

typedef struct TorvaneLibraryData TorvaneLibraryData;

/* arguments[i] points at argument i in the caller's storage: an mint, an mreal, an mcomplex, or the handle of
 * a tensor (MTensor *). `result` points at what receives the result; a tensor slot holds null or a tensor to
 * reuse, which may be one of the arguments. Arguments and result stay the caller's. Returns a status, 0 on
 * success, and does not raise; a slot that held null holds null again after a failure. */
typedef mint (*RuntimeFunctionHandler)(TorvaneLibraryData *libraryData, mint argumentCount,
                                       void *const *arguments, void *result);

TORVANE_END_DECLARATIONS

#endif
