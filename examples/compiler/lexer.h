// The words of a program. Line ends are words outside brackets, and white space within them.
#ifndef COMPILER_LEXER_H
#define COMPILER_LEXER_H

#include "source.h"

#include <string_view>
#include <vector>

enum class TokenKind { Name, Keyword, Integer, Real, Imaginary, Text, Symbol, LineEnd, End };

struct Token {
  TokenKind kind;
  std::string text; // the characters; of a Text what stands between its quotes, escapes undone
  Position position;
};

// The last token is an End. Complains about what is no word.
std::vector<Token> tokensOf(std::string_view source);

#endif
