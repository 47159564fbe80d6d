#include "types.h"

std::string nameOf(Type type) {
  static const char *const names[] = {"nothing", "a truth value", "int", "real", "complex", "a text"};
  std::string name = names[type.element];
  if (type.rank > 0) name += "[" + std::string(static_cast<size_t>(type.rank) - 1, ',') + "]";
  return name;
}
