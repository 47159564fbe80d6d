#include "parser.h"

#include <algorithm>
#include <array>

namespace {

// What is nested more deeply is refused: no program can exhaust the stack of the recursions over the tree,
// nor reach the 256 open brackets that C compilers take.
constexpr int kDeepest = 60, kHighest = 100;

constexpr std::array<std::array<std::string_view, 6>, 4> kLevels = {{
    {"or"},
    {"and"},
    {"+", "-"},
    {"*", "/", "//", "%"},
}};
constexpr std::array<std::string_view, 6> kComparisons = {"==", "!=", "<", "<=", ">", ">="};

struct Parser {
  std::vector<Token> tokens;
  size_t at = 0;
  int depth = 0;

  const Token &token() const { return tokens[at]; }
  bool isNext(std::string_view text) const {
    return (token().kind == TokenKind::Symbol || token().kind == TokenKind::Keyword) && token().text == text;
  }
  Token take() { return token().kind == TokenKind::End ? token() : tokens[at++]; }
  bool takeIf(std::string_view text) { return isNext(text) && (take(), true); }

  [[noreturn]] void unexpected(const std::string &wanted) const {
    const bool bare = token().kind == TokenKind::LineEnd || token().kind == TokenKind::End;
    const std::string found = bare ? token().text : "'" + token().text + "'";
    complain(token().position, "expected " + wanted + ", found " + found);
  }
  void expect(std::string_view text) {
    if (!takeIf(text)) unexpected("'" + std::string(text) + "'");
  }
  Token name(const std::string &wanted) {
    if (token().kind != TokenKind::Name) unexpected(wanted);
    return take();
  }
  void skipEnds() {
    while (token().kind == TokenKind::LineEnd || isNext(";")) ++at;
  }

  void descend() {
    if (++depth > kDeepest) complain(token().position, "nested too deeply");
  }

  ExpressionPointer node(ExpressionKind kind, const Token &token) const {
    auto made = std::make_unique<Expression>();
    made->kind = kind;
    made->position = token.position;
    made->text = token.text;
    return made;
  }

  ExpressionPointer complete(ExpressionPointer made) const {
    for (const ExpressionPointer &operand : made->operands)
      made->height = std::max(made->height, operand->height + 1);
    if (made->height > kHighest) complain(made->position, "an expression that is too long");
    return made;
  }

  // Chains of operators grow to the left without a recursion here, but every later walk recurses.
  ExpressionPointer chain(const auto &operand, const auto &operators) {
    ExpressionPointer left = operand();
    while (std::ranges::any_of(operators, [&](auto o) { return !o.empty() && isNext(o); })) {
      ExpressionPointer made = node(ExpressionKind::Binary, take());
      made->operands.push_back(std::move(left));
      made->operands.push_back(operand());
      left = complete(std::move(made));
    }
    return left;
  }

  ExpressionPointer expression() {
    descend();
    ExpressionPointer made = chain([this] { return conjunction(); }, kLevels[0]);
    --depth;
    return made;
  }
  ExpressionPointer conjunction() {
    return chain([this] { return negation(); }, kLevels[1]);
  }
  ExpressionPointer negation() {
    if (!isNext("not")) return comparison();
    return prefixed([this] { return negation(); });
  }
  ExpressionPointer comparison() {
    return chain([this] { return sum(); }, kComparisons);
  }
  ExpressionPointer sum() {
    return chain([this] { return product(); }, kLevels[2]);
  }
  ExpressionPointer product() {
    return chain([this] { return signedPower(); }, kLevels[3]);
  }
  ExpressionPointer signedPower() {
    if (!isNext("-")) return power();
    return prefixed([this] { return signedPower(); });
  }
  ExpressionPointer prefixed(const auto &operand) {
    descend();
    ExpressionPointer made = node(ExpressionKind::Unary, take());
    made->operands.push_back(operand());
    --depth;
    Expression &inner = *made->operands[0];
    if (made->text != "-" || inner.kind != ExpressionKind::Number || inner.text[0] == '-')
      return complete(std::move(made));
    inner.text = "-" + inner.text; // a negative number is a number
    inner.position = made->position;
    return std::move(made->operands[0]);
  }
  ExpressionPointer power() { // to the right: 2 ^ 3 ^ 2 is 2 ^ 9, and -2 ^ 2 is -(2 ^ 2)
    ExpressionPointer base = indexed();
    if (!isNext("^")) return base;
    ExpressionPointer made = node(ExpressionKind::Binary, take());
    made->operands.push_back(std::move(base));
    descend();
    made->operands.push_back(signedPower());
    --depth;
    return complete(std::move(made));
  }

  ExpressionPointer indexed() {
    ExpressionPointer made = primary();
    while (isNext("[")) {
      ExpressionPointer index = node(ExpressionKind::Index, token());
      index->operands.push_back(std::move(made));
      list(*index, "[", "]");
      made = complete(std::move(index));
    }
    return made;
  }

  // Appends what stands between the brackets.
  void list(Expression &owner, std::string_view open, std::string_view close) {
    expect(open);
    if (takeIf(close)) return;
    do owner.operands.push_back(expression());
    while (takeIf(","));
    expect(close);
  }

  ExpressionPointer primary() {
    switch (token().kind) {
    case TokenKind::Integer:
    case TokenKind::Real:
      return node(ExpressionKind::Number, take());
    case TokenKind::Imaginary:
      return node(ExpressionKind::Imaginary, take());
    case TokenKind::Text:
      return node(ExpressionKind::Text, take());
    case TokenKind::Name:
      return named();
    default:
      break;
    }
    if (isNext("[")) return literal();
    if (!isNext("(")) unexpected("an expression");
    take();
    ExpressionPointer made = expression();
    expect(")");
    return made;
  }

  ExpressionPointer named() {
    const Token word = take();
    if (!isNext("(")) return node(ExpressionKind::Variable, word);
    ExpressionPointer made = node(ExpressionKind::Call, word);
    list(*made, "(", ")");
    return complete(std::move(made));
  }

  ExpressionPointer literal() {
    const Token open = take();
    ExpressionPointer made = node(ExpressionKind::Literal, open);
    size_t width = 0;
    int rows = 0;
    do {
      const size_t before = made->operands.size();
      do made->operands.push_back(expression());
      while (takeIf(","));
      const size_t here = made->operands.size() - before;
      if (rows++ == 0) width = here;
      if (here != width) complain(made->operands[before]->position, "a row of another length than the first");
    } while (takeIf(";"));
    expect("]");
    made->rows = rows == 1 ? 0 : rows;
    return complete(std::move(made));
  }

  Type type() {
    const Token word = name("a type");
    static constexpr std::array<std::string_view, 3> names = {"int", "real", "complex"};
    const auto found = std::ranges::find(names, word.text);
    if (found == names.end()) complain(word.position, "'" + word.text + "' is no type");
    Type made = {static_cast<Element>(kInteger + (found - names.begin())), 0};
    if (!takeIf("[")) return made;
    made.rank = 1;
    while (takeIf(",")) ++made.rank;
    if (made.rank > 8) complain(word.position, "a rank above 8");
    expect("]");
    return made;
  }

  std::unique_ptr<Statement> statementNode(StatementKind kind) const {
    auto made = std::make_unique<Statement>();
    made->kind = kind;
    made->position = token().position;
    return made;
  }

  void endOfStatement() {
    if (isNext("}") || token().kind == TokenKind::End) return;
    if (token().kind != TokenKind::LineEnd && !isNext(";")) unexpected("the end of the statement");
  }

  Block block() {
    descend();
    Block made;
    expect("{");
    for (skipEnds(); !isNext("}"); skipEnds()) made.push_back(statement());
    take();
    --depth;
    return made;
  }

  std::unique_ptr<Statement> statement() {
    if (isNext("let")) return let();
    if (isNext("if")) return conditional();
    if (isNext("while")) return whileLoop();
    if (isNext("for")) return forLoop();
    if (isNext("return")) return returning();
    if (isNext("print")) return print();
    return assignmentOrCall();
  }

  std::unique_ptr<Statement> let() {
    auto made = statementNode(StatementKind::Let);
    take();
    made->name = name("a name").text;
    if (takeIf(":")) made->declared = type();
    expect("=");
    made->expressions.push_back(expression());
    endOfStatement();
    return made;
  }

  std::unique_ptr<Statement> conditional() {
    auto made = statementNode(StatementKind::If);
    take();
    made->expressions.push_back(expression());
    made->body = block();
    if (!takeIf("else")) return made;
    descend();
    if (isNext("if"))
      made->otherwise.push_back(conditional());
    else
      made->otherwise = block();
    --depth;
    return made;
  }

  std::unique_ptr<Statement> whileLoop() {
    auto made = statementNode(StatementKind::While);
    take();
    made->expressions.push_back(expression());
    made->body = block();
    return made;
  }

  std::unique_ptr<Statement> forLoop() {
    auto made = statementNode(StatementKind::For);
    take();
    made->name = name("a name").text;
    expect("=");
    made->expressions.push_back(expression());
    expect("to");
    made->expressions.push_back(expression());
    if (takeIf("step")) made->expressions.push_back(expression());
    made->body = block();
    return made;
  }

  std::unique_ptr<Statement> returning() {
    auto made = statementNode(StatementKind::Return);
    take();
    if (!isNext("}") && !isNext(";") && token().kind != TokenKind::LineEnd && token().kind != TokenKind::End)
      made->expressions.push_back(expression());
    endOfStatement();
    return made;
  }

  std::unique_ptr<Statement> print() {
    auto made = statementNode(StatementKind::Print);
    take();
    Expression arguments;
    list(arguments, "(", ")");
    made->expressions = std::move(arguments.operands);
    endOfStatement();
    return made;
  }

  std::unique_ptr<Statement> assignmentOrCall() {
    auto made = statementNode(StatementKind::Expression);
    ExpressionPointer first = expression();
    if (!takeIf("=")) {
      made->expressions.push_back(std::move(first));
      endOfStatement();
      return made;
    }
    assignTo(*made, *first);
    made->expressions.push_back(expression());
    endOfStatement();
    return made;
  }

  void assignTo(Statement &made, Expression &target) const {
    const bool part = target.kind == ExpressionKind::Index;
    const Expression &variable = part ? *target.operands[0] : target;
    if (variable.kind != ExpressionKind::Variable)
      complain(target.position, "only a variable or its elements can be assigned");
    made.kind = part ? StatementKind::AssignPart : StatementKind::Assign;
    made.name = variable.text;
    if (!part) return;
    made.expressions = std::move(target.operands);
    made.expressions.erase(made.expressions.begin());
  }

  std::unique_ptr<Function> function() {
    auto made = std::make_unique<Function>();
    take();
    const Token word = name("the name of a function");
    made->name = word.text;
    made->position = word.position;
    expect("(");
    if (!takeIf(")")) {
      do made->parameters.push_back(parameter());
      while (takeIf(","));
      expect(")");
    }
    if (takeIf(":")) made->result = type();
    made->body = block();
    return made;
  }

  std::unique_ptr<Variable> parameter() {
    auto made = std::make_unique<Variable>();
    const Token word = name("the name of a parameter");
    made->name = word.text;
    made->position = word.position;
    made->fixed = true;
    expect(":");
    made->type = type();
    return made;
  }

  Program program() {
    Program made;
    auto self = std::make_unique<Function>();
    for (skipEnds(); token().kind != TokenKind::End; skipEnds())
      if (isNext("fn"))
        made.functions.push_back(function());
      else
        self->body.push_back(statement());
    made.functions.push_back(std::move(self));
    return made;
  }
};

} // namespace

Program parse(std::vector<Token> tokens) {
  Parser parser;
  parser.tokens = std::move(tokens);
  return parser.program();
}
