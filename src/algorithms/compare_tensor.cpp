// CompareTensor: tensors are alike where ranks, extents and types agree and every two elements match, reals
// by the tolerance. Across types an integer is the real that it is, and a complex number beside a real has an
// imaginary part of 0.
#include "compare_tensor.h"

#include "../tensor/scratch.h"
#include "handler.h"
#include "search_match.h"

#include <utility>

namespace torvane {

namespace {

bool haveSameExtents(const MTensor *a, const MTensor *b) {
  return a->rank == b->rank && std::equal(a->dimensions, a->dimensions + a->rank, b->dimensions);
}

// Against a number of another type: what stands on the axis of that type.
template <class Rule> bool matches(mreal x, mreal y, const Rule &rule) { return rule(x, y); }
template <class Rule> bool matches(mcomplex z, mreal y, const Rule &rule) {
  return rule(z.re, y) && z.im == 0;
}

template <class Wide, class Narrow, class Rule>
bool matchAcross(const MTensor *wide, const MTensor *narrow, const Rule &rule) {
  const auto *x = static_cast<const Wide *>(wide->data);
  const auto *y = static_cast<const Narrow *>(narrow->data);
  for (mint i = 0; i < wide->elementCount; ++i)
    if (!matches(x[i], static_cast<mreal>(y[i]), rule)) return false;
  return true;
}

template <class Number, class Rule>
bool matchAlong(const MTensor *a, const MTensor *b, ptrdiff_t count, const Rule &rule) {
  return matchesAll(static_cast<const Number *>(a->data), static_cast<const Number *>(b->data), count, rule);
}

// Elements of which at least those of the first tensor, whose type is no lower, are reals.
template <class Rule> bool matchReals(const MTensor *a, const MTensor *b, const Rule &rule) {
  const bool isComplex = a->type == TORVANE_TYPE_COMPLEX;
  if (a->type == b->type)
    return matchAlong<mreal>(a, b, (isComplex ? 2 : 1) * ptrdiff_t{a->elementCount}, rule);
  const bool besideIntegers = b->type == TORVANE_TYPE_INTEGER;
  if (!isComplex) return matchAcross<mreal, mint>(a, b, rule);
  return besideIntegers ? matchAcross<mcomplex, mint>(a, b, rule) : matchAcross<mcomplex, mreal>(a, b, rule);
}

bool matchElements(mreal tolerance, const MTensor *a, const MTensor *b) {
  if (a->elementCount == 0) return true;
  if (!hasNumbers(a->type) || !hasNumbers(b->type)) return false;
  if (a->type == TORVANE_TYPE_INTEGER) return matchAlong<mint>(a, b, a->elementCount, Exactly{});
  return tolerance > 0 ? matchReals(a, b, Nearly{tolerance}) : matchReals(a, b, Exactly{});
}

bool areAlike(mreal tolerance, bool acrossTypes, const MTensor *a, const MTensor *b) {
  if (!haveSameExtents(a, b)) return false;
  if (a->type != b->type && !acrossTypes) return a->elementCount == 0;
  if (a->type < b->type) std::swap(a, b);
  return matchElements(tolerance, a, b);
}

bool isInteger(const MTensor *tensor) { return tensor->type == TORVANE_TYPE_INTEGER; }

} // namespace

// At a tolerance of 0, and of integers alone, the first tensor is compared with all others and no later one:
// likeness is transitive there. Difference is not, and leaves later pairs out all the same, so that {1}, {2},
// {2} are all different. Callers rely on it.
mint MTensor_compare(mint op, mreal tolerance, mint count, const MTensor *const *tensors) {
  const bool areToBeAlike = op == 1 || op == 5, acrossTypes = op == 5 || op == 8;
  if (!areToBeAlike && op != 2 && op != 8) return 0;
  const bool firstDecides = tolerance == 0 || std::all_of(tensors, tensors + count, isInteger);
  for (mint i = 0; i < (firstDecides ? std::min(count, 1) : count); ++i)
    for (mint j = i + 1; j < count; ++j)
      if (areAlike(tolerance, acrossTypes, tensors[i], tensors[j]) != areToBeAlike) return 0;
  return 1;
}

mint handleCompareTensor(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount < 2) return kWrongArguments;
  const mint count = argumentCount - 2;
  Scratch<const MTensor *> tensors(count);
  if (tensors.status() != kSuccess) return tensors.status();
  for (mint i = 0; i < count; ++i) {
    tensors[i] = tensorArgument(arguments, i + 2);
    if (tensors[i] == nullptr) return kWrongArguments;
  }
  storeResult(result, MTensor_compare(integerArgument(arguments, 0), realArgument(arguments, 1), count,
                                      tensors.get()));
  return kSuccess;
}

} // namespace torvane
