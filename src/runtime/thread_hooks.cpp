#include "startup.h"
namespace torvane { void createThreadHookLists() {} void addThreadExitHook(ThreadHook) {} }
