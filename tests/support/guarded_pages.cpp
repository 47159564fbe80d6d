#include "guarded_pages.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace torvane::test {

namespace {
size_t pageSize() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }
} // namespace

GuardedPages::GuardedPages(size_t pages) : bytes(pages * pageSize()) {
  void *all = mmap(nullptr, bytes + 2 * pageSize(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (all == MAP_FAILED) std::abort();
  first = static_cast<char *>(all) + pageSize();
  if (mprotect(first, bytes, PROT_READ | PROT_WRITE) != 0) std::abort();
}

GuardedPages::~GuardedPages() { munmap(static_cast<char *>(first) - pageSize(), bytes + 2 * pageSize()); }

} // namespace torvane::test
