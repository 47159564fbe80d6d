// Memory between pages that may not be touched: whoever reads or writes one byte past either end is ended by
// the system, in every build.
#pragma once

#include <cstddef>

namespace torvane::test {

class GuardedPages {
public:
  explicit GuardedPages(size_t pages = 1);
  ~GuardedPages();
  GuardedPages(const GuardedPages &) = delete;
  GuardedPages &operator=(const GuardedPages &) = delete;

  size_t size() const { return bytes; }
  void *begin() const { return first; } // the guard is in front of it
  // That many bytes, the last ones.
  void *atEnd(size_t count) const { return static_cast<char *>(first) + bytes - count; }

private:
  size_t bytes;
  void *first;
};

} // namespace torvane::test
