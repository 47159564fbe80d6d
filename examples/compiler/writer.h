// The text of one form of a function as it grows, and the names that it has given out.
#ifndef COMPILER_WRITER_H
#define COMPILER_WRITER_H

#include "text.h"

struct Writer {
  const Function &function;
  bool wide;
  std::string code = {};
  int indent = 1, slots = 0, values = 0;
  std::vector<std::string> owned = {}; // the slots of the whole body

  void line(const std::string &text) {
    code += std::string(static_cast<size_t>(indent) * 2, ' ') + text + "\n";
  }
  void look() { line("if (failed())" + returnFrom(function, wide)); }
  void place(Position position) {
    line("at(" + std::to_string(position.line) + ", " + std::to_string(position.column) + ");");
  }
  std::string newSlot() {
    owned.push_back("t" + std::to_string(++slots));
    return owned.back();
  }
  std::string newValue() { return "c" + std::to_string(++values); }
};

#endif
