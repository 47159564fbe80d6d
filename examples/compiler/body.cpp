#include "body.h"

#include "expressions.h"
#include "operators.h"

#include <algorithm>
#include <utility>

namespace {

// What needs neither a look at the pending code nor a place for messages.
bool cannotFail(const Expression &e) {
  const bool isOperator = e.kind == ExpressionKind::Binary && binaryOperator(e.text) != 0;
  const bool isSign = e.kind == ExpressionKind::Unary && e.text == "-";
  if (e.kind == ExpressionKind::Index || e.kind == ExpressionKind::Call || isOperator || isSign) return false;
  return e.type.rank == 0 &&
         std::ranges::all_of(e.operands, [](const auto &operand) { return cannotFail(*operand); });
}

struct Body {
  Writer out;

  void block(const Block &statements) {
    ++out.indent;
    for (const auto &each : statements) statement(*each);
    --out.indent;
  }

  void statement(const Statement &s) {
    const bool fails = s.kind == StatementKind::AssignPart ||
                       !std::ranges::all_of(s.expressions, [](const auto &e) { return cannotFail(*e); });
    if (fails && s.kind != StatementKind::While && s.kind != StatementKind::For) out.place(s.position);
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
    const std::string from = tensor(out, value);
    out.line(isBorrowed(out, value) ? "copyTensor(&" + target + ", " + from + ");"
                                    : "moveTensor(&" + target + ", &" + from + ");");
  }

  void let(const Statement &s, bool fails) {
    const Expression &value = *s.expressions[0];
    const std::string name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      out.owned.push_back(name);
      store(name, value);
    } else {
      const std::string text = scalar(out, value);
      out.line(typeInC(value.type.element, out.wide) + " " + name + " = " + text + ";");
      if (!s.variable->read) out.line("(void)" + name + ";");
    }
    if (fails) out.look();
  }

  void assign(const Statement &s, bool fails) {
    const Expression &value = *s.expressions[0];
    const std::string name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      store(name, value);
    } else {
      const std::string text = scalar(out, value);
      out.line(name + " = " + text + ";");
    }
    if (fails) out.look();
  }

  void assignPart(const Statement &s) {
    const size_t count = s.expressions.size() - 1;
    const Expression &value = *s.expressions.back();
    const std::string where = places(out, s.expressions, count), name = nameInC(*s.variable);
    if (value.type.isTensor()) {
      const std::string from = tensor(out, value);
      out.line("setPart(" + name + ", " + where + ", " + from + ");");
    } else {
      const std::string from = scalar(out, value);
      out.line("setElement" + suffixInC(value.type.element, out.wide) + "(" + name + ", " + where + ", " +
               from + ");");
    }
    out.look();
  }

  void conditional(const Statement &s, bool fails) {
    std::string condition = scalar(out, *s.expressions[0]);
    if (fails) {
      const std::string value = out.newValue();
      out.line("const bool " + value + " = " + condition + ";");
      out.look();
      condition = value;
    }
    out.line("if (" + condition + ") {");
    block(s.body);
    if (!s.otherwise.empty()) {
      out.line("} else {");
      block(s.otherwise);
    }
    out.line("}");
  }

  void whileLoop(const Statement &s) {
    out.line("for (;;) {");
    ++out.indent;
    out.place(s.position);
    const std::string condition = scalar(out, *s.expressions[0]), value = out.newValue();
    out.line("const bool " + value + " = " + condition + ";");
    out.line("if (aborted())" + returnFrom(out.function, out.wide));
    out.line("if (!" + value + ") break;");
    --out.indent;
    block(s.body);
    out.line("}");
  }

  // The turns are counted before the first: the last one cannot pass the integers.
  void forLoop(const Statement &s) {
    const std::string type = typeInC(s.variable->type.element, out.wide), name = nameInC(*s.variable);
    const std::string number = std::to_string(s.variable->number);
    const std::string first = "first" + number, step = "step" + number, turn = "turn" + number,
                      turns = "turns" + number;
    out.line("{");
    ++out.indent;
    out.place(s.position);
    std::vector<std::string> bounds;
    for (const auto &bound : s.expressions) bounds.push_back(scalar(out, *bound));
    if (bounds.size() == 2) bounds.push_back("1");
    out.line("const " + type + " " + first + " = " + bounds[0] + ", " + step + " = " + bounds[2] + ";");
    out.line("const mint " + turns + " = steps" + suffixInC(s.variable->type.element, out.wide) + "(" +
             first + ", " + bounds[1] + ", " + step + ");");
    out.look();
    out.line("for (int64_t " + turn + " = 0; " + turn + " <= " + turns + "; " + turn + "++) {");
    const std::string sum = first + " + " + (type == "mint" ? turn : "(mreal)" + turn) + " * " + step;
    ++out.indent;
    out.line("const " + type + " " + name + " = " + (type == "mint" ? "(mint)(" + sum + ")" : sum) + ";");
    if (!s.variable->read) out.line("(void)" + name + ";");
    out.line("if (aborted())" + returnFrom(out.function, out.wide));
    --out.indent;
    block(s.body);
    out.line("}");
    --out.indent;
    out.line("}");
  }

  void returning(const Statement &s) {
    if (s.expressions.empty()) return out.line("return;");
    const Expression &value = *s.expressions[0];
    if (!value.type.isTensor()) {
      const std::string text = scalar(out, value);
      return out.line("return " + text + ";");
    }
    const std::string from = tensor(out, value);
    out.line(isBorrowed(out, value) ? "copyTensor(result, " + from + ");"
                                    : "moveTensor(result, &" + from + ");");
    out.line("return;");
  }

  // Everything is computed before anything is printed.
  void print(const Statement &s, bool fails) {
    std::vector<std::string> calls;
    for (const auto &e : s.expressions) calls.push_back(e->type.element == kText ? "" : printed(*e));
    if (fails) out.look();
    std::string text; // what is known before the next call
    for (size_t i = 0; i < calls.size(); ++i) {
      if (i > 0) text += ' ';
      if (calls[i].empty())
        text += s.expressions[i]->text;
      else {
        if (!text.empty()) out.line("printText(" + quotedInC(std::exchange(text, {})) + ");");
        out.line(calls[i]);
      }
    }
    out.line("printText(" + quotedInC(text + "\n") + ");");
  }

  std::string printed(const Expression &e) {
    const bool isWhole = out.wide && e.type.element == kInteger;
    if (e.type.isTensor())
      return "printTensor(" + tensor(out, e) + ", " + (isWhole ? "true" : "false") + ");";
    std::string value = scalar(out, e);
    const bool isKept = e.callee == Callee::User || e.callee == Callee::Named;
    if (!isKept && !cannotFail(e)) {
      const std::string kept = out.newValue();
      out.line("const " + typeInC(e.type.element, out.wide) + " " + kept + " = " + value + ";");
      value = kept;
    }
    const std::string name = isWhole ? "print_whole" : "print" + suffixInC(e.type.element, out.wide);
    return name + "(" + value + ");";
  }

  void call(const Expression &e) {
    discarded(out, e);
    out.look();
  }

  void parameters() {
    for (const auto &parameter : out.function.parameters)
      if (!parameter->read) out.line("(void)" + nameInC(*parameter) + ";");
  }

  // Slots stand at the head: what a loop makes anew at each turn takes the memory of the turn before.
  std::string slotsAtHead() const {
    std::string made;
    for (size_t i = 0; i < out.owned.size(); i += 8) {
      made += "  OWNED MTensor ";
      for (size_t k = i; k < std::min(i + 8, out.owned.size()); ++k)
        made += (k > i ? ", *" : "*") + out.owned[k] + " = NULL";
      made += ";\n";
    }
    return made;
  }
};

} // namespace

std::string bodyOf(const Function &function, bool wide) {
  Body body{Writer{function, wide}};
  body.parameters();
  body.out.line("if (cannotEnter())" + returnFrom(function, wide));
  body.out.indent = 0;
  body.block(function.body);
  return body.slotsAtHead() + body.out.code;
}
