// Which sanitizer this build runs under, for tests that do fewer rounds then and for the few that its run
// time cannot bear: macros of 0 or 1, since they decide what there is to compile. GCC says it by macros,
// Clang by features.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define TORVANE_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#define TORVANE_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#else
#define TORVANE_ADDRESS_SANITIZER 0
#endif

#if defined(__SANITIZE_THREAD__)
#define TORVANE_THREAD_SANITIZER 1
#elif defined(__has_feature)
#define TORVANE_THREAD_SANITIZER __has_feature(thread_sanitizer)
#else
#define TORVANE_THREAD_SANITIZER 0
#endif
