#include "every_vector_call.h"

#include "elementwise/result_types.h"

#include <torvane/machfuncs.h>
#include <torvane/vectors.h>

namespace torvane::test {

namespace {

using Calls = std::vector<VectorCall>;

std::string named(const char *arity, mint number, const std::vector<mint> &kinds) {
  std::string text = arity;
  text += ' ';
  text += std::to_string(number);
  for (const mint kind : kinds) text += "?bidc"[kind];
  return text;
}

void addUnary(Calls &all, const std::string &name, mint kind, mint stored, TorvaneUnaryRoutine routine) {
  all.push_back({name,
                 {kind},
                 widthOf(stored),
                 false,
                 2,
                 [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return routine(result, x[0], count, strides, flags);
                 }});
}
void addBinary(Calls &all, const std::string &name, mint kind1, mint kind2, mint stored,
               TorvaneBinaryRoutine routine) {
  all.push_back({name,
                 {kind1, kind2},
                 widthOf(stored),
                 false,
                 3,
                 [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return routine(result, x[0], x[1], count, strides, flags);
                 }});
}

void addTables(Calls &all) {
  for (mint number = 1; number < kUnaryNumbers; ++number)
    for (mint kind = 2; kind <= 4; ++kind)
      if (TorvaneUnaryRoutine routine = machfunsarray_1[3 * number + kind - 2])
        addUnary(all, named("unary", number, {kind}), kind, storedKind1(number, kind), routine);
  for (mint number = kFirstBinary + 1; number < kFirstBinary + kBinaryNumbers; ++number)
    for (mint x = 2; x <= 4; ++x)
      for (mint y = 2; y <= 4; ++y)
        if (TorvaneBinaryRoutine routine = binaryRoutineOf(number, x, y))
          addBinary(all, named("binary", number, {x, y}), x, y, storedKind2(number, x, y), routine);
}

void addTernaries(Calls &all) {
  using Ternary = mint (*)(void *, const void *, const void *, const void *, mint, const mint *, mint);
  const auto add = [&all](const char *name, mint kind, Ternary routine) {
    all.push_back({name,
                   {kind, kind, kind},
                   widthOf(kind),
                   false,
                   4,
                   [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                     return routine(result, x[0], x[1], x[2], count, strides, flags);
                   }});
  };
  const std::pair<const char *, Ternary> ofIntegers[] = {
      {"iii axpy", machfunc_iii_axpy}, {"iii axmy", machfunc_iii_axmy}, {"iii ymax", machfunc_iii_ymax}};
  const std::pair<const char *, Ternary> ofReals[] = {{"ddd axpy", machfunc_ddd_axpy},
                                                      {"ddd axmy", machfunc_ddd_axmy},
                                                      {"ddd ymax", machfunc_ddd_ymax},
                                                      {"ddd adxmy", machfunc_ddd_adxmy}};
  const std::pair<const char *, Ternary> ofComplexes[] = {{"ccc axpy", machfunc_ccc_axpy},
                                                          {"ccc axmy", machfunc_ccc_axmy},
                                                          {"ccc ymax", machfunc_ccc_ymax},
                                                          {"ccc adxmy", machfunc_ccc_adxmy}};
  for (const auto &[name, routine] : ofIntegers) add(name, 2, routine);
  for (const auto &[name, routine] : ofReals) add(name, 3, routine);
  for (const auto &[name, routine] : ofComplexes) add(name, 4, routine);
}

template <class A, class T>
void addReduction(Calls &all, const char *name, mint kind, size_t results,
                  mint (*routine)(A *, const T *, mint, const mint *, mint)) {
  all.push_back({name,
                 {kind},
                 results * sizeof(A),
                 true,
                 2,
                 [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return routine(static_cast<A *>(result), static_cast<const T *>(x[0]), count, strides,
                                  flags);
                 }});
}

void addReductions(Calls &all) {
  addReduction(all, "i total", 2, 1, machfunc_i_total);
  addReduction(all, "d total", 3, 1, machfunc_d_total);
  addReduction(all, "c total", 4, 1, machfunc_c_total);
  addReduction(all, "i max", 2, 1, machfunc_i_max);
  addReduction(all, "d max", 3, 1, machfunc_d_max);
  addReduction(all, "i min", 2, 1, machfunc_i_min);
  addReduction(all, "d min", 3, 1, machfunc_d_min);
  addReduction(all, "i minmax", 2, 2, machfunc_i_minmax);
  addReduction(all, "d minmax", 3, 2, machfunc_d_minmax);
  addReduction(all, "i maxabs", 2, 1, machfunc_i_maxabs);
  addReduction(all, "d maxabs", 3, 1, machfunc_d_maxabs);
  addReduction(all, "c maxabs", 4, 1, machfunc_c_maxabs);
  addReduction(all, "d fpexception", 3, 1, machfunc_d_fpexception);
  addReduction(all, "c fpexception", 4, 1, machfunc_c_fpexception);
  all.push_back({"ii dot",
                 {2, 2},
                 sizeof(mint),
                 true,
                 3,
                 [](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return machfunc_ii_dot(static_cast<mint *>(result), static_cast<const mint *>(x[0]),
                                          static_cast<const mint *>(x[1]), count, strides, flags);
                 }});
}

template <class T, class Norm>
void addNorm(Calls &all, const std::string &name, mint kind, mint p, Norm norm) {
  all.push_back({name,
                 {kind},
                 sizeof(mreal),
                 true,
                 2,
                 [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return norm(static_cast<mreal *>(result), p, static_cast<const T *>(x[0]), count,
                               strides[1], flags);
                 }});
}
template <class T, class Norm>
void addWeightedNorm(Calls &all, const std::string &name, mint kind, mint p, Norm norm) {
  all.push_back({name,
                 {kind, 3},
                 sizeof(mreal),
                 true,
                 2,
                 [=](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return norm(static_cast<mreal *>(result), p, static_cast<const T *>(x[0]),
                               static_cast<const mreal *>(x[1]), count, strides[1], flags);
                 }});
}
template <class T, class Norm>
void addScaledNorm(Calls &all, const std::string &name, mint kind, mint p, Norm norm) {
  all.push_back({name,
                 {kind, kind},
                 sizeof(mreal),
                 true,
                 1,
                 [=](void *result, const OperandPointers &x, mint count, const mint *, mint flags) {
                   return norm(static_cast<mreal *>(result), p, 0.5, 0.0, static_cast<const T *>(x[0]),
                               static_cast<const T *>(x[1]), count, 1, flags);
                 }});
}
template <class T, class Weigh> void addWeights(Calls &all, const char *name, mint kind, Weigh weigh) {
  all.push_back({name,
                 {kind},
                 sizeof(mreal),
                 false,
                 0,
                 [=](void *result, const OperandPointers &x, mint count, const mint *, mint flags) {
                   return weigh(static_cast<mreal *>(result), 0.5, 0.0, static_cast<const T *>(x[0]), count,
                                flags);
                 }});
}

void addNorms(Calls &all) {
  for (const mint p : {1, 2, 3, 0, -1, int{TORVANE_MAXIMUM_NORM}}) {
    const std::string suffix = " for " + std::to_string(p);
    addNorm<mreal>(all, "d norm" + suffix, 3, p, machfunc_d_vectornorm);
    addNorm<mcomplex>(all, "c norm" + suffix, 4, p, machfunc_c_vectornorm);
    addWeightedNorm<mreal>(all, "d weighted norm" + suffix, 3, p, machfunc_d_weightedvectornorm);
    addWeightedNorm<mcomplex>(all, "c weighted norm" + suffix, 4, p, machfunc_c_weightedvectornorm);
    addScaledNorm<mreal>(all, "d scaled norm" + suffix, 3, p, machfunc_d_scaledvectornorm);
    addScaledNorm<mcomplex>(all, "c scaled norm" + suffix, 4, p, machfunc_c_scaledvectornorm);
  }
  addWeights<mreal>(all, "d weights", 3, machfunc_d_vectornormweights);
  addWeights<mcomplex>(all, "c weights", 4, machfunc_c_vectornormweights);
}

template <class T>
void addZero(Calls &all, const char *name, mint (*zero)(T *, const T *, mint, const mint *, mint)) {
  all.push_back({name,
                 {},
                 sizeof(T),
                 false,
                 1,
                 [=](void *result, const OperandPointers &, mint count, const mint *strides, mint flags) {
                   return zero(static_cast<T *>(result), nullptr, count, strides, flags);
                 }});
}

void addMoves(Calls &all) {
  addUnary(all, "i copy", 2, 2, machfunc_i_copy);
  addUnary(all, "d copy", 3, 3, machfunc_d_copy);
  addUnary(all, "c copy", 4, 4, machfunc_c_copy);
  addZero(all, "i zero", machfunc_i_zero);
  addZero(all, "d zero", machfunc_d_zero);
  addZero(all, "c zero", machfunc_c_zero);
  addBinary(all, "ddd compplus", 3, 3, 3, machfunc_ddd_compplus);
  addBinary(all, "ccc compplus", 4, 4, 4, machfunc_ccc_compplus);
  all.push_back({"bb bitxor",
                 {1, 1},
                 1,
                 false,
                 3,
                 [](void *result, const OperandPointers &x, mint count, const mint *strides, mint flags) {
                   return machfunc_bb_bitxor(static_cast<uint8_t *>(result),
                                             static_cast<const uint8_t *>(x[0]),
                                             static_cast<const uint8_t *>(x[1]), count, strides, flags);
                 }});
}

Calls makeCalls() {
  Calls all;
  addTables(all);
  addTernaries(all);
  addReductions(all);
  addNorms(all);
  addMoves(all);
  return all;
}

} // namespace

const std::vector<VectorCall> &everyVectorCall() {
  static const Calls all = makeCalls();
  return all;
}

} // namespace torvane::test
