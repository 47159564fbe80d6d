#include "lexer.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace {

constexpr std::array<std::string_view, 13> kKeywords = {
    "fn", "let", "if", "else", "while", "for", "to", "step", "return", "print", "and", "or", "not"};
constexpr std::array<std::string_view, 5> kLongSymbols = {"==", "!=", "<=", ">=", "//"};
constexpr std::string_view kSymbols = "+-*/%^<>=()[]{},;:";

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

struct Lexer {
  std::string_view rest;
  Position position;
  int brackets = 0; // round and square ones that are open
  std::vector<Token> tokens;

  char next(size_t ahead = 0) const { return ahead < rest.size() ? rest[ahead] : '\0'; }

  std::string take(size_t count) {
    std::string text(rest.substr(0, count));
    rest.remove_prefix(count);
    position.column += static_cast<int>(count);
    return text;
  }

  void add(TokenKind kind, size_t count) {
    const Position start = position;
    tokens.push_back({kind, take(count), start});
  }

  void lineEnd() {
    if (brackets == 0) tokens.push_back({TokenKind::LineEnd, "the end of the line", position});
    rest.remove_prefix(1);
    position = {position.line + 1, 1};
  }

  void blank() { take(std::min(rest.size(), rest.find_first_not_of(" \t\r"))); }
  void comment() { take(std::min(rest.size(), rest.find('\n'))); }

  void name() {
    size_t count = 1;
    while (isLetter(next(count)) || isDigit(next(count))) ++count;
    const bool keyword = std::ranges::find(kKeywords, rest.substr(0, count)) != kKeywords.end();
    add(keyword ? TokenKind::Keyword : TokenKind::Name, count);
  }

  size_t digits(size_t from) const {
    while (isDigit(next(from))) ++from;
    return from;
  }

  void number() {
    size_t count = digits(0);
    TokenKind kind = TokenKind::Integer;
    if (next(count) == '.' && isDigit(next(count + 1))) {
      count = digits(count + 1);
      kind = TokenKind::Real;
    }
    if (next(count) == 'e' || next(count) == 'E') {
      const size_t sign = next(count + 1) == '-' || next(count + 1) == '+' ? 1u : 0u;
      if (!isDigit(next(count + 1 + sign))) complain(position, "an exponent without digits");
      count = digits(count + 1 + sign);
      kind = TokenKind::Real;
    }
    const bool imaginary = next(count) == 'i' && !isLetter(next(count + 1)) && !isDigit(next(count + 1));
    const Position start = position;
    add(imaginary ? TokenKind::Imaginary : kind, count);
    if (imaginary) take(1);
    if (isLetter(next())) complain(start, "a number that runs into a name");
  }

  char escaped(char c) const {
    switch (c) {
    case 'n':
      return '\n';
    case '"':
    case '\\':
      return c;
    default:
      complain(position, "an unknown escape in a text");
    }
  }

  void text() {
    Token token = {TokenKind::Text, "", position};
    take(1);
    while (next() != '"') {
      if (rest.empty() || next() == '\n') complain(token.position, "a text without its end");
      const bool escape = next() == '\\';
      token.text += escape ? escaped(next(1)) : next();
      take(escape ? 2 : 1);
    }
    take(1);
    tokens.push_back(token);
  }

  void symbol() {
    const bool isLong = std::ranges::find(kLongSymbols, rest.substr(0, 2)) != kLongSymbols.end();
    if (!isLong && kSymbols.find(next()) == std::string_view::npos) {
      const bool printable = std::isprint(static_cast<unsigned char>(next())) != 0;
      complain(position, printable ? std::string("a stray '") + next() + "'" : "a stray byte");
    }
    if (next() == '(' || next() == '[') ++brackets;
    if (next() == ')' || next() == ']') brackets = std::max(0, brackets - 1);
    add(TokenKind::Symbol, isLong ? 2 : 1);
  }

  void word() {
    const char c = next();
    if (c == '\n')
      lineEnd();
    else if (c == ' ' || c == '\t' || c == '\r')
      blank();
    else if (c == '#')
      comment();
    else if (isLetter(c))
      name();
    else if (isDigit(c))
      number();
    else if (c == '"')
      text();
    else
      symbol();
  }
};

} // namespace

std::vector<Token> tokensOf(std::string_view source) {
  Lexer lexer{source, {}, 0, {}};
  while (!lexer.rest.empty()) lexer.word();
  lexer.tokens.push_back({TokenKind::End, "the end of the program", lexer.position});
  return std::move(lexer.tokens);
}
