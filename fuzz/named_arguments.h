// Arguments of a named function, drawn from a fuzzer's bytes as its row promises them to the handler. What a
// parameter's word means only makes useful values likely.
#pragma once

#include "signature.h"
#include "tensors.h"

struct Argument {
  char kind; // T, i, r, c; e
  mint integer;
  mreal real;
  mcomplex complex; // also the 16 bytes of an element
  size_t tensor;    // its number
};

// A tensor may stand for several arguments.
struct NamedArguments {
  const torvane::test::NamedRow *row;
  std::vector<Argument> arguments;
  std::vector<torvane::test::Tensor> tensors;

  size_t count() const { return arguments.size(); }
};

class ArgumentDraw {
public:
  explicit ArgumentDraw(Input &bytes) : input(bytes) {}

  NamedArguments draw(const torvane::test::NamedRow *row) {
    drawn = {row, {}, {}};
    const std::vector<Signature> either = signaturesOf(row);
    const mint manifold = below(input, 4);
    for (const Parameter &parameter : either[size_t(below(input, mint(either.size())))]) {
      if (parameter.isOptional && oneIn(input, 2)) continue;
      const mint times = parameter.isManifold ? manifold : parameter.isRepeated ? below(input, 5) : 1;
      for (mint i = 0; i < times; ++i) add(parameter);
    }
    return std::move(drawn);
  }

private:
  Input &input;
  NamedArguments drawn;

  void addTensor(torvane::test::Tensor tensor) {
    drawn.arguments.push_back({'T', 0, 0, {}, drawn.tensors.size()});
    drawn.tensors.push_back(std::move(tensor));
  }
  void addInteger(mint value) { drawn.arguments.push_back({'i', value, 0, {}, 0}); }

  torvane::test::Tensor tensorFor(const std::string &word) {
    const auto is = [&word](const char *other) { return word == other; };
    if (!drawn.tensors.empty() && !is("") && !is("...") && !is("pair") && oneIn(input, 8))
      return takeTensor(input);
    if (is("pair")) return takeTensorOf(input, takeType(input), {2});
    if (is("square real matrix")) {
      const mint n = below(input, 8);
      return takeTensorOf(input, TORVANE_TYPE_REAL, {n, n});
    }
    if (is("weights")) return takeTensorOf(input, TORVANE_TYPE_REAL, {below(input, 8)});
    if (is("positions") && oneIn(input, 2))
      return takeTensorOf(input, TORVANE_TYPE_INTEGER, {below(input, 5), below(input, 4)});
    for (const char *name : {"positions", "shifts", "sizes", "offsets", "permutation", "lengths", "margins",
                             "orders", "extents", "integer vector"})
      if (is(name)) return takeIntegerVector(input);
    if (drawn.tensors.empty() || oneIn(input, 2)) return takeTensor(input);
    const MTensor *last = drawn.tensors.back().get(); // of a shape that goes with another
    return takeTensorOf(input, last->type, torvane::test::extentsOf(last));
  }

  void addPair() {
    const bool ofExtremes = drawn.row->isOneOf({"MinIG", "MinRG", "MaxIG", "MaxRG"});
    const mint tensorTag = ofExtremes ? 0 : 1, tag = below(input, 5) - !ofExtremes;
    addInteger(tag);
    if (tag == tensorTag) return addTensor(oneIn(input, 4) ? takeTensor(input) : takeIntegerVector(input));
    if (ofExtremes && tag == 3)
      drawn.arguments.push_back({'r', 0, takeReal(input), {}, 0});
    else
      addInteger(takeInteger(input));
  }

  // What a selector is, the kind before it says.
  void addSelector() {
    const mint kind = drawn.arguments.back().integer;
    if (kind == 1 || kind == 3)
      addTensor(takeIntegerVector(input));
    else
      addInteger(takeInteger(input));
  }

  void add(const Parameter &parameter) {
    switch (parameter.kind) {
    case 'T':
      if (!drawn.tensors.empty() && oneIn(input, 10))
        return drawn.arguments.push_back({'T', 0, 0, {}, size_t(below(input, mint(drawn.tensors.size())))});
      return addTensor(tensorFor(parameter.word));
    case 'p':
      return addPair();
    case 's':
      return addSelector();
    case 'i':
      if (parameter.word == "bag") return addInteger(below(input, 3));
      return addInteger(parameter.word == "flags" ? below(input, 8) : takeInteger(input));
    default:
      return drawn.arguments.push_back({parameter.kind, 0, takeReal(input), takeComplex(input), 0});
    }
  }
};
