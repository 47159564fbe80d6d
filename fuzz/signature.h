// What the rows of the table of named functions say of arguments, as parameters that a call can be drawn
// from.
#pragma once

#include "support/named_rows.h"

#include <vector>

struct Parameter {
  char kind;        // T, i, r, c; p: pairs of tag and value; e: an element; s: a selector
  std::string word; // what it means
  bool isOptional, isRepeated, isManifold; // in brackets; "..."; n of it
};
using Signature = std::vector<Parameter>;

inline std::string trimmed(const std::string &text) {
  const size_t first = text.find_first_not_of(' '), last = text.find_last_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

inline void addParameter(Signature &signature, std::string text, bool isOptional) {
  if (text.empty() || text.rfind("none", 0) == 0) return;
  if (text.rfind("pairs of", 0) == 0) return signature.push_back({'p', "", isOptional, true, false});
  if (text == "element" || text == "selector")
    return signature.push_back({text[0], text, isOptional, false, false});
  const bool isManifold = text.rfind("n ", 0) == 0, isRepeated = text.find("...") != std::string::npos;
  if (isManifold) text = text.substr(2);
  signature.push_back({text[0], trimmed(text.substr(1)), isOptional, isRepeated, isManifold});
}

inline Signature parseSignature(const std::string &text) {
  Signature signature;
  std::string word;
  int depth = 0;
  for (const char c : text + ",") {
    if (std::strchr(",[]", c) == nullptr) {
      word += c;
      continue;
    }
    addParameter(signature, trimmed(word), depth > 0);
    word.clear();
    depth += (c == '[') - (c == ']');
  }
  return signature;
}

// More than one where the row says "or"; "the same" are those of the row before.
inline std::vector<Signature> signaturesOf(const torvane::test::NamedRow *row) {
  const std::string same = "the same", either = ", or ";
  std::string text = row->arguments, rest;
  if (text.rfind(same, 0) == 0) {
    rest = text.substr(same.size());
    text = row[-1].arguments;
  }
  const size_t at = text.find(either);
  if (at == std::string::npos) return {parseSignature(text + rest)};
  return {parseSignature(text.substr(0, at) + rest), parseSignature(text.substr(at + either.size()) + rest)};
}
