#include "expressions.h"

#include "functions.h"
#include "operators.h"

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

struct Values {
  Writer &out;
  bool wide;

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
    const std::string before = std::exchange(out.code, {});
    const bool isAnd = e.text == "and";
    ++out.indent;
    const std::string right = scalar(*e.operands[1]);
    --out.indent;
    const std::string needed = std::exchange(out.code, before);
    if (needed.empty()) return "(" + left + (isAnd ? " && " : " || ") + right + ")";
    const std::string value = out.newValue();
    out.line("bool " + value + " = " + left + ";");
    out.line("if (" + std::string(isAnd ? "" : "!") + value + ") {");
    out.code += needed;
    out.line("  " + value + " = " + right + ";");
    out.line("}");
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
      const std::string value = out.newValue(), call = user(e, {});
      out.line("const " + typeInC(e.type.element, wide) + " " + value + " = " + call + ";");
      out.place(e.position);
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

  // A call that fills a new slot: the arguments come after it.
  std::string fill(const std::string &name, const std::string &rest) {
    const std::string slot = out.newSlot();
    out.line(name + "(&" + slot + (rest.empty() ? "" : ", ") + rest + ");");
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
    if (needsWhole(e)) out.line("everyElement(" + result + ", whole);");
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
      const std::string slot = out.newSlot();
      out.line(user(e, "&" + slot) + ";");
      out.place(e.position);
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
    const std::string form = wide ? "_wide(" : e.function->isPure() ? "_either(" : "_exact(";
    return e.function->name + form + listed(arguments) + ")";
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
    if (!e.type.isNumber()) return out.line(call + "NULL);"), std::string();
    if (e.type.isTensor()) return namedTensor(call, counts);
    const std::string value = out.newValue();
    out.line(typeInC(e.type.element, wide && !counts) + " " + value +
             (e.type.element == kComplex ? " = {0, 0};" : " = 0;"));
    out.line(call + "&" + value + ");");
    return counts ? "(mreal)" + value : value;
  }

  std::string namedTensor(const std::string &call, bool counts) {
    const std::string slot = out.newSlot();
    out.line(call + "&" + slot + ");");
    return counts ? fill("convertTensor", slot + ", TORVANE_TYPE_REAL") : slot;
  }

  void discard(const Expression &e) {
    if (e.callee == Callee::User && !e.type.isTensor()) {
      const std::string call = user(e, {});
      out.line(call + ";");
    } else if (e.type.isTensor())
      tensor(e);
    else if (const std::string value = scalar(e); !value.empty())
      out.line("(void)" + value + ";");
  }
};

} // namespace

std::string scalar(Writer &out, const Expression &e) { return Values{out, out.wide}.scalar(e); }

std::string tensor(Writer &out, const Expression &e) { return Values{out, out.wide}.tensor(e); }

void discarded(Writer &out, const Expression &e) { Values{out, out.wide}.discard(e); }

bool isBorrowed(const Writer &out, const Expression &e) {
  const Expression *operand = e.operands.empty() ? nullptr : e.operands[0].get();
  if (e.kind == ExpressionKind::Convert)
    return inForm(e.type.element, out.wide) == inForm(operand->type.element, out.wide) &&
           isBorrowed(out, *operand);
  const bool passes = e.callee == Callee::Builtin && (e.text == "real" || e.text == "complex");
  return e.kind == ExpressionKind::Variable || (passes && isBorrowed(out, *operand));
}

std::string places(Writer &out, const std::vector<ExpressionPointer> &expressions, size_t count) {
  Values values{out, out.wide};
  return values.place(values.positions(expressions, 0, count));
}
