#include "checker.h"

#include "functions.h"
#include "operators.h"

#include <torvane/operators.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

namespace {

std::string quoted(const std::string &name) { return "'" + name + "'"; }

// Whether the result for real operands may be a complex number.
bool mayLeaveReals(const Expression &e) {
  mint flag = 0;
  if (e.kind == ExpressionKind::Call && e.elementwise != nullptr)
    return ReturnRangeType1(e.elementwise->op, kReal, &flag) == kComplex;
  return e.kind == ExpressionKind::Binary && e.text == "^" && e.operands[1]->type.element == kReal;
}

void convert(ExpressionPointer &e, Element to);

// The complex result of real operands: scalars are converted, tensors widen where they must.
void computeAsComplex(Expression &e) {
  e.type.element = kComplex;
  if (e.type.rank > 0) return;
  for (ExpressionPointer &operand : e.operands) convert(operand, kComplex);
}

void convert(ExpressionPointer &e, Element to) {
  if (e->type.element == to) return;
  if (to == kComplex && e->type.element == kReal && mayLeaveReals(*e)) return computeAsComplex(*e);
  auto made = std::make_unique<Expression>();
  made->kind = ExpressionKind::Convert;
  made->position = e->position;
  made->type = {to, e->type.rank};
  made->operands.push_back(std::move(e));
  e = std::move(made);
}

struct Checker {
  std::map<std::string, Function *> functions;
  Function *function = nullptr;
  std::vector<std::map<std::string, Variable *>> scopes;
  int variables = 0;

  Variable *find(const std::string &name) const {
    for (auto scope = scopes.rbegin(); scope != scopes.rend(); ++scope)
      if (const auto found = scope->find(name); found != scope->end()) return found->second;
    return nullptr;
  }

  Variable &found(const std::string &name, Position position) const {
    Variable *variable = find(name);
    if (variable == nullptr) complain(position, quoted(name) + " is not a variable here");
    return *variable;
  }

  void enter(Variable &variable) {
    variable.number = ++variables;
    if (!scopes.back().emplace(variable.name, &variable).second)
      complain(variable.position, quoted(variable.name) + " is defined twice");
  }

  Variable *declare(const Statement &statement, Type type, bool fixed) {
    auto made = std::make_unique<Variable>(Variable{statement.name, type, statement.position, fixed});
    enter(*made);
    function->locals.push_back(std::move(made));
    return function->locals.back().get();
  }

  // Expressions.

  Type number(Expression &e) const {
    if (e.text.find_first_of(".eE") == std::string::npos) {
      const double value = std::strtod(e.text.c_str(), nullptr);
      if (std::abs(value) > INT32_MAX)
        complain(e.position, "an integer beyond 2147483647; as a real it has a point");
      e.text = std::to_string(static_cast<int>(value));
      return {kInteger, 0};
    }
    if (!std::isfinite(std::strtod(e.text.c_str(), nullptr))) complain(e.position, "a real out of range");
    return {kReal, 0};
  }

  Type imaginary(Expression &e) const {
    if (!std::isfinite(std::strtod(e.text.c_str(), nullptr))) complain(e.position, "a real out of range");
    return {kComplex, 0};
  }

  Type variable(Expression &e) const {
    e.variable = &found(e.text, e.position);
    e.variable->read = true;
    return e.variable->type;
  }

  void expectNumber(const Expression &e) const {
    if (!e.type.isNumber()) complain(e.position, "expected a number or a tensor, found " + nameOf(e.type));
  }
  void expectScalar(const Expression &e) const {
    if (!e.type.isScalar()) complain(e.position, "expected a number, found " + nameOf(e.type));
  }
  void expectTruth(const Expression &e) const {
    if (e.type.element != kTruth) complain(e.position, "expected a truth value, found " + nameOf(e.type));
  }

  // Makes e what is wanted, or says that it cannot be.
  void want(ExpressionPointer &e, Type wanted) const {
    const bool fits = e->type.isNumber() && e->type.rank == wanted.rank && e->type.element <= wanted.element;
    if (!fits) complain(e->position, "expected " + nameOf(wanted) + ", found " + nameOf(e->type));
    convert(e, wanted.element);
  }

  Element widest(const std::vector<ExpressionPointer> &operands) const {
    Element element = kInteger;
    for (const ExpressionPointer &operand : operands) element = std::max(element, operand->type.element);
    return element;
  }

  Type literal(Expression &e) const {
    for (const ExpressionPointer &operand : e.operands) expectScalar(*operand);
    const Element element = widest(e.operands);
    for (ExpressionPointer &operand : e.operands) convert(operand, element);
    return {element, e.rows == 0 ? 1 : 2};
  }

  Type unary(Expression &e) const {
    if (e.text == "not") {
      expectTruth(*e.operands[0]);
      return {kTruth, 0};
    }
    expectNumber(*e.operands[0]);
    return e.operands[0]->type;
  }

  Type comparison(Expression &e) const {
    for (const ExpressionPointer &operand : e.operands) expectScalar(*operand);
    const Element element = widest(e.operands);
    if (element == kComplex && e.text != "==" && e.text != "!=")
      complain(e.position, "complex numbers have no order");
    for (ExpressionPointer &operand : e.operands) convert(operand, std::max(element, kReal));
    return {kTruth, 0};
  }

  Type arithmetic(Expression &e, int op) const {
    ExpressionPointer &x = e.operands[0], &y = e.operands[1];
    expectNumber(*x);
    expectNumber(*y);
    const Type left = x->type, right = y->type;
    if (e.text == "/" && widest(e.operands) == kInteger) convert(x, kReal);
    const mint element = ReturnType2(op, x->type.element, y->type.element);
    if (element == 0)
      complain(e.position, quoted(e.text) + " is not defined for " + nameOf(left) + " and " + nameOf(right));
    const Type type = {static_cast<Element>(element), std::max(left.rank, right.rank)};
    const bool wholePower = e.text == "^" && right.element == kInteger;
    if (type.rank == 0 && !wholePower) { // typed entries take two operands of one type
      const Element common = widest(e.operands);
      convert(x, common);
      convert(y, common);
    }
    return type;
  }

  Type binary(Expression &e) const {
    if (e.text == "and" || e.text == "or") {
      for (const ExpressionPointer &operand : e.operands) expectTruth(*operand);
      return {kTruth, 0};
    }
    const int op = binaryOperator(e.text);
    return op == 0 ? comparison(e) : arithmetic(e, op);
  }

  void positions(std::vector<ExpressionPointer> &expressions, size_t from, size_t end) const {
    for (size_t i = from; i < end; ++i) want(expressions[i], {kInteger, 0});
  }

  Type index(Expression &e) const {
    const Type tensor = e.operands[0]->type;
    const size_t count = e.operands.size() - 1;
    if (!tensor.isTensor()) complain(e.position, "expected a tensor before '[', found " + nameOf(tensor));
    if (count == 0 || count > static_cast<size_t>(tensor.rank))
      complain(e.position, nameOf(tensor) + " takes 1 to " + std::to_string(tensor.rank) + " positions");
    positions(e.operands, 1, e.operands.size());
    return {tensor.element, tensor.rank - static_cast<int>(count)};
  }

  // Calls.

  void expectCount(const Expression &e, size_t least, size_t most) const {
    const size_t count = e.operands.size();
    if (count >= least && count <= most) return;
    std::string wanted = std::to_string(least);
    if (most != least) wanted += " to " + std::to_string(most);
    complain(e.position, quoted(e.text) + " takes " + wanted + (most == 1 ? " argument" : " arguments") +
                             ", not " + std::to_string(count));
  }

  Type call(Expression &e) {
    if (const auto found = functions.find(e.text); found != functions.end()) return user(e, *found->second);
    for (const ExpressionPointer &operand : e.operands) expectNumber(*operand);
    if ((e.elementwise = elementwiseFunction(e.text)) != nullptr) return elementwise(e);
    if (!namedFunctions(e.text).empty()) return named(e);
    if (isBuiltin(e.text)) return builtin(e);
    complain(e.position, "there is no function " + quoted(e.text));
  }

  Type user(Expression &e, const Function &called) {
    e.callee = Callee::User;
    e.function = &called;
    function->calls.push_back(&called);
    expectCount(e, called.parameters.size(), called.parameters.size());
    for (size_t i = 0; i < e.operands.size(); ++i) want(e.operands[i], called.parameters[i]->type);
    return called.result;
  }

  Type elementwise(Expression &e) const {
    e.callee = Callee::Elementwise;
    expectCount(e, 1, 1);
    const Type given = e.operands[0]->type;
    convert(e.operands[0], std::max(given.element, e.elementwise->least));
    const mint element = ReturnType1(e.elementwise->op, e.operands[0]->type.element);
    if (element == 0) complain(e.position, quoted(e.text) + " is not defined for " + nameOf(given));
    return {static_cast<Element>(element), given.rank};
  }

  static bool takes(char letter, Type type, Type first) {
    switch (letter) {
    case 't':
      return type.rank > 0;
    case 'M':
      return type.rank > 1;
    case 'v':
      return type.rank == 1;
    case 'b':
      return type.rank > 0;
    case 's':
      return type.rank == first.rank;
    case 'I':
      return type.rank > 0 && type.element == kInteger;
    case 'X':
      return type.rank > 0 && type.element <= kReal;
    case 'V':
      return type.rank == 1 && type.element <= kReal;
    case 'D':
      return type.rank == 2 && type.element <= kReal;
    case 'n':
      return type.rank == 1 && type.element == kInteger;
    case 'r':
      return type.rank == 0 && type.element <= kReal;
    default:
      return type.rank == 0 && type.element == kInteger;
    }
  }

  // The letters of a form, one for each operand; empty where it does not fit.
  static std::string letters(const Named &form, const Expression &e) {
    std::string made;
    for (char letter : form.arguments)
      if (!isHidden(letter)) made += letter;
    while (made.ends_with('s') && made.size() < e.operands.size()) made += 's';
    if (made.size() != e.operands.size() || made.empty()) return {};
    for (size_t i = 0; i < made.size(); ++i)
      if (!takes(made[i], e.operands[i]->type, e.operands[0]->type)) return {};
    return made;
  }

  Type named(Expression &e) {
    e.callee = Callee::Named;
    for (const Named &form : namedFunctions(e.text))
      if (const std::string fit = letters(form, e); !fit.empty()) return applied(e, form, fit);
    std::string given;
    for (const ExpressionPointer &operand : e.operands)
      given += (given.empty() ? "" : ", ") + nameOf(operand->type);
    complain(e.position, quoted(e.text) + " does not take (" + given + ")");
  }

  Type applied(Expression &e, const Named &form, const std::string &fit) {
    e.named = &form;
    function->draws = function->draws || form.draws;
    Element element = kInteger;
    for (size_t i = 0; i < fit.size(); ++i)
      if (isShared(fit[i])) element = std::max(element, e.operands[i]->type.element);
    for (size_t i = 0; i < fit.size(); ++i) {
      if (isShared(fit[i])) convert(e.operands[i], element);
      if (std::string_view("XVDr").find(fit[i]) != std::string_view::npos) convert(e.operands[i], kReal);
    }
    return resultOf(form, e, element);
  }

  static Type resultOf(const Named &form, const Expression &e, Element element) {
    const int rank = e.operands[0]->type.rank;
    switch (form.result[0]) {
    case 't':
      return e.operands[0]->type;
    case 'd':
      return {element, rank - 1};
    case 'f':
      return {element, 1};
    case 'p':
      return {element, rank + e.operands[1]->type.rank - 2};
    case 'x':
      return {element, 0};
    case 'n':
      return {kInteger, 1};
    case 'N':
      return {kInteger, 2};
    case 'R':
      return {kReal, 1};
    case 'i':
      return {kInteger, 0};
    case 'r':
      return {kReal, 0};
    default:
      return {};
    }
  }

  Type builtin(Expression &e) const {
    e.callee = Callee::Builtin;
    if (e.text == "real") return conversion(e, kReal);
    if (e.text == "complex" && e.operands.size() == 1) return conversion(e, kComplex);
    if (e.text == "complex") {
      expectCount(e, 1, 2);
      for (ExpressionPointer &operand : e.operands) want(operand, {kReal, 0});
      return {kComplex, 0};
    }
    if (e.text == "range") {
      expectCount(e, 2, 2);
      positions(e.operands, 0, 2);
      return {kInteger, 1};
    }
    if (e.text == "size") return size(e);
    expectCount(e, 2, 9);
    expectScalar(*e.operands[0]);
    positions(e.operands, 1, e.operands.size());
    return {e.operands[0]->type.element, static_cast<int>(e.operands.size()) - 1};
  }

  // The call stays as a node around its operand, which has the type by then.
  Type conversion(Expression &e, Element element) const {
    expectCount(e, 1, 1);
    want(e.operands[0], {element, e.operands[0]->type.rank});
    return e.operands[0]->type;
  }

  Type size(Expression &e) const {
    expectCount(e, 1, 2);
    if (!e.operands[0]->type.isTensor())
      complain(e.operands[0]->position, "expected a tensor, found " + nameOf(e.operands[0]->type));
    positions(e.operands, 1, e.operands.size());
    return {kInteger, 0};
  }

  void expression(Expression &e) {
    for (const ExpressionPointer &operand : e.operands) expression(*operand);
    e.type = typeOf(e);
  }

  Type typeOf(Expression &e) {
    switch (e.kind) {
    case ExpressionKind::Number:
      return number(e);
    case ExpressionKind::Imaginary:
      return imaginary(e);
    case ExpressionKind::Text:
      return {kText, 0};
    case ExpressionKind::Variable:
      return variable(e);
    case ExpressionKind::Literal:
      return literal(e);
    case ExpressionKind::Unary:
      return unary(e);
    case ExpressionKind::Binary:
      return binary(e);
    case ExpressionKind::Index:
      return index(e);
    case ExpressionKind::Call:
      return call(e);
    case ExpressionKind::Convert:
      return e.type;
    }
    return {};
  }

  // Statements.

  void block(Block &statements) {
    scopes.emplace_back();
    for (const auto &each : statements) statement(*each);
    scopes.pop_back();
  }

  void statement(Statement &s) {
    for (const ExpressionPointer &each : s.expressions) expression(*each);
    switch (s.kind) {
    case StatementKind::Let:
      return let(s);
    case StatementKind::Assign:
      return assign(s);
    case StatementKind::AssignPart:
      return assignPart(s);
    case StatementKind::If:
    case StatementKind::While:
      return conditional(s);
    case StatementKind::For:
      return loop(s);
    case StatementKind::Return:
      return returning(s);
    case StatementKind::Print:
      return print(s);
    case StatementKind::Expression:
      return call(s);
    }
  }

  void let(Statement &s) {
    ExpressionPointer &value = s.expressions[0];
    expectNumber(*value);
    if (s.declared.isNumber()) want(value, s.declared);
    s.variable = declare(s, value->type, false);
  }

  Variable &assigned(const Statement &s) const {
    Variable &variable = found(s.name, s.position);
    if (variable.fixed)
      complain(s.position, quoted(s.name) + " cannot be assigned: it is a parameter or counts a loop");
    return variable;
  }

  void assign(Statement &s) {
    s.variable = &assigned(s);
    want(s.expressions[0], s.variable->type);
  }

  void assignPart(Statement &s) {
    s.variable = &assigned(s);
    const Type type = s.variable->type;
    const size_t count = s.expressions.size() - 1;
    if (count == 0 || count > static_cast<size_t>(type.rank))
      complain(s.position, quoted(s.name) + " is " + nameOf(type) + " and does not take " +
                               std::to_string(count) + " positions");
    positions(s.expressions, 0, count);
    want(s.expressions.back(), {type.element, type.rank - static_cast<int>(count)});
    s.variable->read = true;
  }

  void conditional(Statement &s) {
    expectTruth(*s.expressions[0]);
    block(s.body);
    block(s.otherwise);
  }

  void loop(Statement &s) {
    for (const ExpressionPointer &bound : s.expressions) expectScalar(*bound);
    const Element element = widest(s.expressions);
    if (element == kComplex) complain(s.position, "a loop counts integers or reals");
    for (ExpressionPointer &bound : s.expressions) convert(bound, element);
    scopes.emplace_back();
    s.variable = declare(s, {element, 0}, true);
    block(s.body);
    scopes.pop_back();
  }

  void returning(Statement &s) {
    if (function->name.empty()) complain(s.position, "'return' outside a function");
    const bool wanted = function->result.isNumber();
    if (wanted == s.expressions.empty())
      complain(s.position, wanted ? "'return' without a value" : "this function has no result");
    if (wanted) want(s.expressions[0], function->result);
  }

  void print(Statement &s) {
    function->prints = true;
    for (const ExpressionPointer &e : s.expressions)
      if (e->type.element != kText) expectNumber(*e);
  }

  void call(Statement &s) const {
    if (s.expressions[0]->kind != ExpressionKind::Call) complain(s.position, "a value that is not used");
  }

  // Functions.

  static bool alwaysReturns(const Block &statements) {
    return std::ranges::any_of(statements, [](const auto &s) {
      return s->kind == StatementKind::Return ||
             (s->kind == StatementKind::If && alwaysReturns(s->body) && alwaysReturns(s->otherwise));
    });
  }

  void define(Function &defined) {
    const bool known = elementwiseFunction(defined.name) != nullptr ||
                       !namedFunctions(defined.name).empty() || isBuiltin(defined.name) ||
                       functions.contains(defined.name);
    if (known) complain(defined.position, "there is a function " + quoted(defined.name) + " already");
    functions[defined.name] = &defined;
  }

  void body(Function &checked) {
    function = &checked;
    scopes.assign(1, {});
    for (const auto &parameter : checked.parameters) enter(*parameter);
    block(checked.body);
    if (checked.result.isNumber() && !alwaysReturns(checked.body))
      complain(checked.position, quoted(checked.name) + " can end without 'return'");
  }
};

// Printing and drawing pass from each function to those that call it.
void spreadEffects(Program &program) {
  for (bool changed = true; changed;) {
    changed = false;
    for (const auto &function : program.functions)
      for (const Function *called : function->calls) {
        changed = changed || (called->prints && !function->prints) || (called->draws && !function->draws);
        function->prints = function->prints || called->prints;
        function->draws = function->draws || called->draws;
      }
  }
}

} // namespace

void check(Program &program) {
  Checker checker;
  for (const auto &function : program.functions)
    if (!function->name.empty()) checker.define(*function);
  for (const auto &function : program.functions) checker.body(*function);
  spreadEffects(program);
}
