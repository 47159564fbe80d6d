#include "body.h"

#include "functions.h"
#include "operators.h"
#include "text.h"

#include <torvane/operators.h>

#include <algorithm>
#include <utility>

namespace {

std::string listed(const std::vector<std::string> &words) {
  std::string made;
  for (const std::string &word : words) made += (made.empty() ? "" : ", ") + word;
  return made;
}

std::string extents(const std::vector<std::string> &words) { return "(const mint[]){" + listed(words) + "}"; }

bool isRounding(const Elementwise &function) { return function.op >= 49 && function.op <= 51; }

const BinaryOperator &operatorOf(const Expression &e) {
  return *std::ranges::find(kBinaryOperators, e.text, &BinaryOperator::symbol);
}

// What needs neither a look at the pending code nor a place for messages.
bool cannotFail(const Expression &e) {
  const bool isOperator = e.kind == ExpressionKind::Binary && binaryOperator(e.text) != 0;
  const bool isSign = e.kind == ExpressionKind::Unary && e.text == "-";
  if (e.kind == ExpressionKind::Index || e.kind == ExpressionKind::Call || isOperator || isSign) return false;
  return e.type.rank == 0 &&
         std::ranges::all_of(e.operands, [](const auto &operand) { return cannotFail(*operand); });
}

struct Body {
  const Function &function;
  bool wide;
  std::string code;
  int indent = 1, slots = 0, values = 0;
  std::vector<std::string> owned; // slots of the whole body

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

  Element formOf(const Expression &e) const { return inForm(e.type.element, wide); }
  bool isWideInteger(const Expression &e) const { return wide && e.type.element == kInteger; }
  std::string typeNumber(const Expression &e) const { return typeNumberInC(e.type.element, wide); }
  std::string suffix(const Expression &e) const { return suffixInC(e.type.element, wide); }

  // Numbers and truth values: the text of an expression.

  std::string scalar(const Expression &e) {
    switch (e.kind) {
    case ExpressionKind::Number:
      return isWideInteger(e) ? e.text + ".0" : e.text;
    case ExpressionKind::Imaginary:
      return "(mcomplex){0, " + e.text + "}";
    case ExpressionKind::Variable:
      return nameInC(*e.variable);
    case ExpressionKind::Unary:
      return e.text == "not" ? "!" + scalar(*e.operands[0])
                             : "minus" + suffix(e) + "(" + scalar(*e.operands[0]) + ")";
    case ExpressionKind::Binary:
      return binaryScalar(e);
    case ExpressionKind::Index:
      return element(e);
    case ExpressionKind::Call:
      return callScalar(e);
    case ExpressionKind::Convert:
      return convertScalar(e);
    default:
      return quotedInC(e.text);
    }
  }

  std::string binaryScalar(const Expression &e) {
    if (e.text == "and" || e.text == "or") return shortCircuit(e);
    const std::string x = scalar(*e.operands[0]), y = exponent(e, scalar(*e.operands[1]));
    if (binaryOperator(e.text) == 0) return comparison(e, x, y);
    return applied(e) + "(" + x + ", " + y + ")" + (needsWhole(e) ? ")" : "");
  }

  bool needsWhole(const Expression &e) const { return e.text == "^" && isWideInteger(e); }
  std::string exponent(const Expression &e, const std::string &y) const {
    return wide && isWholePower(e) ? "narrow(" + y + ")" : y;
  }

  // The function of C for an operator on two numbers.
  std::string applied(const Expression &e) const {
    const bool integers = e.operands[0]->type.element == kInteger && e.operands[1]->type.element == kInteger;
    if (wide && integers && e.text == "%") return "wholeMod";
    if (wide && integers && e.text == "//") return "wholeQuotient";
    if (wide && e.text == "//") return "wholeQuotientOfReals";
    if (needsWhole(e)) return "whole(pow_r";
    std::string name = std::string(operatorOf(e).name) + suffixInC(e.operands[0]->type.element, wide);
    if (isWholePower(e)) name += "i";
    return name;
  }

  // The power of a real or complex by an integer, which stays one in both forms.
  static bool isWholePower(const Expression &e) {
    return e.text == "^" && e.operands[1]->type.element == kInteger &&
           e.operands[0]->type.element != kInteger;
  }

  std::string comparison(const Expression &e, const std::string &x, const std::string &y) const {
    const std::string equal = e.operands[0]->type.element == kComplex ? "equal_c" : "equal";
    if (e.text == "==") return equal + "(" + x + ", " + y + ")";
    if (e.text == "!=") return "!" + equal + "(" + x + ", " + y + ")";
    const std::string name = e.text.ends_with('=') ? "lessEqual(" : "less(";
    return name + (e.text[0] == '<' ? x + ", " + y : y + ", " + x) + ")";
  }

  // The right operand runs only where it is asked for, with the statements that it needs.
  std::string shortCircuit(const Expression &e) {
    const std::string left = scalar(*e.operands[0]);
    const std::string before = std::exchange(code, {});
    const bool isAnd = e.text == "and";
    ++indent;
    const std::string right = scalar(*e.operands[1]);
    --indent;
    const std::string needed = std::exchange(code, before);
    if (needed.empty()) return "(" + left + (isAnd ? " && " : " || ") + right + ")";
    const std::string value = newValue();
    line("bool " + value + " = " + left + ";");
    line("if (" + std::string(isAnd ? "" : "!") + value + ") {");
    code += needed;
    line("  " + value + " = " + right + ";");
    line("}");
    return value;
  }

  std::string position(const Expression &e) {
    const std::string value = scalar(e);
    return wide ? "position(" + value + ")" : value;
  }

  std::vector<std::string> positions(const std::vector<ExpressionPointer> &expressions, size_t from,
                                     size_t end) {
    std::vector<std::string> made;
    for (size_t i = from; i < end; ++i) made.push_back(position(*expressions[i]));
    return made;
  }

  std::string place(const std::vector<std::string> &words) {
    return std::to_string(words.size()) + ", " + extents(words);
  }

  std::string element(const Expression &e) {
    const std::string x = tensor(*e.operands[0]);
    return "element" + suffix(e) + "(" + x + ", " + place(positions(e.operands, 1, e.operands.size())) + ")";
  }

  std::string convertScalar(const Expression &e) {
    const Expression &from = *e.operands[0];
    const std::string value = scalar(from);
    if (formOf(from) == formOf(e)) return value;
    return e.type.element == kComplex ? "(mcomplex){" + value + ", 0}" : "(mreal)" + value;
  }

  std::string callScalar(const Expression &e) {
    switch (e.callee) {
    case Callee::User: {
      const std::string value = newValue(), call = user(e, {});
      line("const " + typeInC(e.type.element, wide) + " " + value + " = " + call + ";");
      place(e.position);
      return value;
    }
    case Callee::Elementwise:
      return elementwiseScalar(e);
    case Callee::Named:
      return named(e);
    default:
      return builtinScalar(e);
    }
  }

  std::string elementwiseScalar(const Expression &e) {
    const Elementwise &called = *e.elementwise;
    const Expression &operand = *e.operands[0];
    const std::string value = scalar(operand);
    if (isWideInteger(e) && isRounding(called)) return rounding(called) + "(" + value + ")";
    const bool isTruth = isWideInteger(e) && ReturnType1(called.op, formOf(operand)) == kInteger;
    return (isTruth ? "(mreal)" : "") + std::string(called.name) + suffix(operand) + "(" + value + ")";
  }

  static std::string rounding(const Elementwise &called) {
    return called.op == 49 ? "wholeRound" : called.op == 50 ? "wholeFloor" : "wholeCeiling";
  }

  std::string builtinScalar(const Expression &e) {
    if (e.text == "size") {
      const std::string x = tensor(*e.operands[0]);
      const std::string dimension = e.operands.size() > 1 ? position(*e.operands[1]) : "1";
      return std::string(wide ? "(mreal)" : "") + "sizeOf(" + x + ", " + dimension + ")";
    }
    const std::string x = scalar(*e.operands[0]);
    return e.operands.size() == 1 ? x : "(mcomplex){" + x + ", " + scalar(*e.operands[1]) + "}";
  }

  // Tensors: the name of what holds one, a variable or a slot that is filled by the statements before.

  std::string tensor(const Expression &e) {
    switch (e.kind) {
    case ExpressionKind::Variable:
      return nameInC(*e.variable);
    case ExpressionKind::Literal:
      return literal(e);
    case ExpressionKind::Unary:
      return unaryTensor(e, 43, typeNumber(e));
    case ExpressionKind::Binary:
      return binaryTensor(e);
    case ExpressionKind::Index:
      return part(e);
    case ExpressionKind::Call:
      return callTensor(e);
    default:
      return convertTensor(e);
    }
  }

  bool isBorrowed(const Expression &e) const {
    if (e.kind == ExpressionKind::Convert)
      return formOf(e) == formOf(*e.operands[0]) && isBorrowed(*e.operands[0]);
    const bool passes = e.kind == ExpressionKind::Call && e.callee == Callee::Builtin &&
                        (e.text == "real" || e.text == "complex");
    return e.kind == ExpressionKind::Variable || (passes && isBorrowed(*e.operands[0]));
  }

  // A call that fills a new slot: the arguments come after it.
  std::string fill(const std::string &name, const std::string &rest) {
    const std::string slot = newSlot();
    line(name + "(&" + slot + (rest.empty() ? "" : ", ") + rest + ");");
    return slot;
  }

  std::string literal(const Expression &e) {
    std::vector<std::string> elements;
    for (const auto &operand : e.operands) elements.push_back(scalar(*operand));
    const size_t rows = static_cast<size_t>(std::max(e.rows, 1)), width = elements.size() / rows;
    std::vector<std::string> shape = {std::to_string(width)};
    if (e.rows > 0) shape.insert(shape.begin(), std::to_string(rows));
    return fill("setTensor", typeNumber(e) + ", " + place(shape) + ", (const " +
                                 typeInC(e.type.element, wide) + "[]){" + listed(elements) + "}");
  }

  // A tensor as it is, a number as one of rank 0.
  std::string operand(const Expression &e, int side) {
    if (e.type.isTensor()) return tensor(e);
    return "scalar" + suffix(e) + "(" + scalar(e) + ", " + std::to_string(side) + ")";
  }

  std::string wholeExponent(const Expression &e) {
    if (e.type.isTensor()) return fill("narrowTensor", tensor(e));
    return "scalar_i(narrow(" + scalar(e) + "), 1)";
  }

  std::string unaryTensor(const Expression &e, int op, const std::string &type) {
    return fill("unaryTensor", tensor(*e.operands[0]) + ", " + std::to_string(op) + ", " + type);
  }

  std::string binaryTensor(const Expression &e) {
    const std::string x = operand(*e.operands[0], 0);
    const std::string y =
        wide && isWholePower(e) ? wholeExponent(*e.operands[1]) : operand(*e.operands[1], 1);
    const bool integers = e.operands[0]->type.element == kInteger && e.operands[1]->type.element == kInteger;
    if (wide && integers && e.text == "%") return fill("wholeModTensor", x + ", " + y);
    if (wide && integers && e.text == "//") return fill("wholeQuotientTensor", x + ", " + y);
    if (wide && e.text == "//") return fill("wholeTensor", binaryResult("/", x, y, e) + ", wholeFloor");
    const std::string result = binaryResult(e.text, x, y, e);
    if (needsWhole(e)) line("everyElement(" + result + ", whole);");
    return result;
  }

  std::string binaryResult(const std::string &symbol, const std::string &x, const std::string &y,
                           const Expression &e) {
    return fill("binaryTensor",
                x + ", " + y + ", " + std::to_string(binaryOperator(symbol)) + " /* " +
                    std::string(std::ranges::find(kBinaryOperators, symbol, &BinaryOperator::symbol)->name) +
                    " */, " + typeNumber(e));
  }

  std::string part(const Expression &e) {
    const std::string x = tensor(*e.operands[0]);
    return fill("partOf", x + ", " + place(positions(e.operands, 1, e.operands.size())));
  }

  std::string convertTensor(const Expression &e) {
    const Expression &from = *e.operands[0];
    const std::string x = tensor(from);
    return formOf(from) == formOf(e) ? x : fill("convertTensor", x + ", " + typeNumber(e));
  }

  std::string callTensor(const Expression &e) {
    switch (e.callee) {
    case Callee::User: {
      const std::string slot = newSlot();
      line(user(e, "&" + slot) + ";");
      place(e.position);
      return slot;
    }
    case Callee::Elementwise:
      return elementwiseTensor(e);
    case Callee::Named:
      return named(e);
    default:
      return builtinTensor(e);
    }
  }

  std::string elementwiseTensor(const Expression &e) {
    const Elementwise &called = *e.elementwise;
    if (isWideInteger(e) && isRounding(called))
      return fill("wholeTensor", tensor(*e.operands[0]) + ", " + rounding(called));
    const std::string op = std::to_string(called.op) + " /* " + std::string(called.name) + " */";
    const bool isTruth = isWideInteger(e) && ReturnType1(called.op, formOf(*e.operands[0])) == kInteger;
    const std::string type = isTruth ? "TORVANE_TYPE_INTEGER" : typeNumber(e);
    const std::string result = fill("unaryTensor", tensor(*e.operands[0]) + ", " + op + ", " + type);
    return isTruth ? fill("convertTensor", result + ", TORVANE_TYPE_REAL") : result;
  }

  std::string builtinTensor(const Expression &e) {
    if (e.text == "real" || e.text == "complex") return tensor(*e.operands[0]);
    const std::string x = scalar(*e.operands[0]);
    if (e.text == "range") return fill("range" + suffix(e), x + ", " + scalar(*e.operands[1]));
    return fill("fill" + suffix(*e.operands[0]),
                x + ", " + place(positions(e.operands, 1, e.operands.size())));
  }

  // Calls.

  // The call without its semicolon; `result` is the slot of a tensor.
  std::string user(const Expression &e, const std::string &result) {
    std::vector<std::string> arguments;
    if (!result.empty()) arguments.push_back(result);
    for (const auto &each : e.operands)
      arguments.push_back(each->type.isTensor() ? tensor(*each) : scalar(*each));
    const std::string prefix = wide ? "wide_" : e.function->isPure() ? "fn_" : "exact_";
    return prefix + e.function->name + "(" + listed(arguments) + ")";
  }

  // The words of one argument of a function by name: addresses of what the caller holds.
  void argument(const Expression &e, char letter, bool overReals, std::vector<std::string> &words) {
    const bool narrows = wide && !overReals;
    if (e.type.isTensor()) {
      const std::string x = tensor(e);
      words.push_back("&" + (narrows && letter == 'n' ? fill("narrowTensor", x) : x));
      return;
    }
    const bool integer = e.type.element == kInteger;
    const std::string x = narrows && integer ? "narrow(" + scalar(e) + ")" : scalar(e);
    if (letter == 'k') words.push_back("&(mint){0}");
    if (letter == 'e')
      words.push_back(
          "&" + fill("setTensor", "TORVANE_TYPE_INTEGER, 1, (const mint[]){1}, (const mint[]){" + x + "}"));
    else
      words.push_back("&(" + typeInC(e.type.element, wide && !narrows) + "){" + x + "}");
  }

  std::vector<std::string> namedArguments(const Expression &e, const Named &form, bool overReals) {
    std::vector<std::string> words;
    size_t next = 0;
    for (const char letter : form.arguments) {
      if (letter == 'm')
        words.push_back("&(mint){0}");
      else if (letter == 'L')
        words.push_back("&(mint){" + std::to_string(e.operands[0]->type.rank - 1) + "}");
      else
        argument(*e.operands[next++], letter, overReals, words);
    }
    while (next < e.operands.size()) argument(*e.operands[next++], 's', overReals, words);
    if (form.checks) words.push_back("&(mint){CHECKS}");
    return words;
  }

  // Integers that stay integers in the wide form: counts and positions, as against elements.
  static bool isCount(const Named &form) {
    return std::string_view("nNi").find(form.result[0]) != std::string_view::npos;
  }

  std::string named(const Expression &e) {
    const Named &form = *e.named;
    const bool overReals = wide && !form.overReals.empty();
    const std::vector<std::string> words = namedArguments(e, form, overReals);
    const bool counts = isWideInteger(e) && isCount(form) && !overReals;
    const bool asked = form.checks && !wide && e.type.element == kInteger;
    const std::string handler(overReals ? form.overReals : form.handler);
    const std::string call = std::string(asked ? "callNamedIntegers(" : "callNamed(") + quotedInC(handler) +
                             ", " + std::to_string(words.size()) + ", (void *const[]){" + listed(words) +
                             "}, ";
    if (!e.type.isNumber()) return line(call + "NULL);"), std::string();
    if (e.type.isTensor()) return namedTensor(call, counts);
    const std::string value = newValue();
    line(typeInC(e.type.element, wide && !counts) + " " + value +
         (e.type.element == kComplex ? " = {0, 0};" : " = 0;"));
    line(call + "&" + value + ");");
    return counts ? "(mreal)" + value : value;
  }

  std::string namedTensor(const std::string &call, bool counts) {
    const std::string slot = newSlot();
    line(call + "&" + slot + ");");
    return counts ? fill("convertTensor", slot + ", TORVANE_TYPE_REAL") : slot;
  }

  // Statements.

  void block(const Block &statements) {
    ++indent;
    for (const auto &each : statements) statement(*each);
    --indent;
  }

  void statement(const Statement &s) {
    const bool fails = s.kind == StatementKind::AssignPart ||
                       !std::ranges::all_of(s.expressions, [](const auto &e) { return cannotFail(*e); });
    if (fails && s.kind != StatementKind::While && s.kind != StatementKind::For) place(s.position);
    switch (s.kind) {
    case StatementKind::Let:
      return let(s, fails);
    case StatementKind::Assign:
      return assign(s, fails);
    case StatementKind::AssignPart:
      return assignPart(s);
    case StatementKind::If:
      return conditional(s, fails);
    case StatementKind::While:
      return whileLoop(s);
    case StatementKind::For:
      return forLoop(s);
    case StatementKind::Return:
      return returning(s);
    case StatementKind::Print:
      return print(s, fails);
    case StatementKind::Expression:
      return call(*s.expressions[0]);
    }
  }

  void store(const std::string &target, const Expression &value) {
    const std::string from = tensor(value);
    line(isBorrowed(value) ? "copyTensor(&" + target + ", " + from + ");"
                           : "moveTensor(&" + target + ", &" + from + ");");
  }

  void let(const Statement &s, bool fails) {
    const Expression &value = *s.expressions[0];
    const std::string name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      owned.push_back(name);
      store(name, value);
    } else {
      const std::string text = scalar(value);
      line(typeInC(value.type.element, wide) + " " + name + " = " + text + ";");
      if (!s.variable->read) line("(void)" + name + ";");
    }
    if (fails) look();
  }

  void assign(const Statement &s, bool fails) {
    const Expression &value = *s.expressions[0];
    const std::string name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      store(name, value);
    } else {
      const std::string text = scalar(value);
      line(name + " = " + text + ";");
    }
    if (fails) look();
  }

  void assignPart(const Statement &s) {
    const size_t count = s.expressions.size() - 1;
    const Expression &value = *s.expressions.back();
    const std::string where = place(positions(s.expressions, 0, count)), name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      const std::string from = tensor(value);
      line("setPart(" + name + ", " + where + ", " + from + ");");
    } else {
      const std::string from = scalar(value);
      line("setElement" + suffix(value) + "(" + name + ", " + where + ", " + from + ");");
    }
    look();
  }

  void conditional(const Statement &s, bool fails) {
    std::string condition = scalar(*s.expressions[0]);
    if (fails) {
      const std::string value = newValue();
      line("const bool " + value + " = " + condition + ";");
      look();
      condition = value;
    }
    line("if (" + condition + ") {");
    block(s.body);
    if (!s.otherwise.empty()) {
      line("} else {");
      block(s.otherwise);
    }
    line("}");
  }

  void whileLoop(const Statement &s) {
    line("for (;;) {");
    ++indent;
    place(s.position);
    const std::string condition = scalar(*s.expressions[0]), value = newValue();
    line("const bool " + value + " = " + condition + ";");
    line("if (aborted())" + returnFrom(function, wide));
    line("if (!" + value + ") break;");
    --indent;
    block(s.body);
    line("}");
  }

  // The turns are counted before the first: the last one cannot pass the integers.
  void forLoop(const Statement &s) {
    const std::string type = typeInC(s.variable->type.element, wide), name = nameInC(*s.variable);
    const std::string number = std::to_string(s.variable->number);
    const std::string first = "first" + number, step = "step" + number, turn = "turn" + number,
                      turns = "turns" + number;
    line("{");
    ++indent;
    place(s.position);
    std::vector<std::string> bounds;
    for (const auto &bound : s.expressions) bounds.push_back(scalar(*bound));
    if (bounds.size() == 2) bounds.push_back("1");
    line("const " + type + " " + first + " = " + bounds[0] + ", " + step + " = " + bounds[2] + ";");
    line("const mint " + turns + " = steps" + suffixInC(s.variable->type.element, wide) + "(" + first + ", " +
         bounds[1] + ", " + step + ");");
    look();
    line("for (int64_t " + turn + " = 0; " + turn + " <= " + turns + "; " + turn + "++) {");
    const std::string sum = first + " + " + (type == "mint" ? turn : "(mreal)" + turn) + " * " + step;
    ++indent;
    line("const " + type + " " + name + " = " + (type == "mint" ? "(mint)(" + sum + ")" : sum) + ";");
    if (!s.variable->read) line("(void)" + name + ";");
    line("if (aborted())" + returnFrom(function, wide));
    --indent;
    block(s.body);
    line("}");
    --indent;
    line("}");
  }

  void returning(const Statement &s) {
    if (s.expressions.empty()) return line("return;");
    const Expression &value = *s.expressions[0];
    if (!value.type.isTensor()) {
      const std::string text = scalar(value);
      return line("return " + text + ";");
    }
    const std::string from = tensor(value);
    line(isBorrowed(value) ? "copyTensor(result, " + from + ");" : "moveTensor(result, &" + from + ");");
    line("return;");
  }

  // Everything is computed before anything is printed.
  void print(const Statement &s, bool fails) {
    std::vector<std::string> calls;
    for (const auto &e : s.expressions) calls.push_back(e->type.element == kText ? "" : printed(*e));
    if (fails) look();
    std::string text; // what is known before the next call
    for (size_t i = 0; i < calls.size(); ++i) {
      if (i > 0) text += ' ';
      if (calls[i].empty())
        text += s.expressions[i]->text;
      else {
        if (!text.empty()) line("printText(" + quotedInC(std::exchange(text, {})) + ");");
        line(calls[i]);
      }
    }
    line("printText(" + quotedInC(text + "\n") + ");");
  }

  std::string printed(const Expression &e) {
    const std::string isWhole = isWideInteger(e) ? "true" : "false";
    if (e.type.isTensor()) return "printTensor(" + tensor(e) + ", " + isWhole + ");";
    std::string value = scalar(e);
    const bool isKept = e.callee == Callee::User || e.callee == Callee::Named;
    if (!isKept && !cannotFail(e)) {
      const std::string kept = newValue();
      line("const " + typeInC(e.type.element, wide) + " " + kept + " = " + value + ";");
      value = kept;
    }
    return (isWideInteger(e) ? "print_whole" : "print" + suffix(e)) + "(" + value + ");";
  }

  void call(const Expression &e) {
    if (e.callee == Callee::User && !e.type.isTensor()) {
      const std::string text = user(e, {});
      line(text + ";");
    } else if (e.type.isTensor())
      tensor(e);
    else if (const std::string value = scalar(e); !value.empty())
      line("(void)" + value + ";");
    look();
  }

  void parameters() {
    for (const auto &parameter : function.parameters)
      if (!parameter->read) line("(void)" + nameInC(*parameter) + ";");
  }

  // Slots stand at the head: what a loop makes anew at each turn takes the memory of the turn before.
  std::string slotsAtHead() const {
    std::string made;
    for (size_t i = 0; i < owned.size(); i += 8) {
      made += "  OWNED MTensor ";
      for (size_t k = i; k < std::min(i + 8, owned.size()); ++k)
        made += (k > i ? ", *" : "*") + owned[k] + " = NULL";
      made += ";\n";
    }
    return made;
  }
};

} // namespace

std::string bodyOf(const Function &function, bool wide) {
  Body body{function, wide, {}, 1, 0, 0, {}};
  body.parameters();
  body.line("if (cannotEnter())" + returnFrom(function, wide));
  body.indent = 0;
  body.block(function.body);
  return body.slotsAtHead() + body.code;
}
