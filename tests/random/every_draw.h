// Every draw that begins with the calling thread's generator, as a row of a table.
#pragma once

#include "algorithms/named_call.h"
#include "random/sampling.h"
#include "random/variates.h"
#include <torvane/distributions.h>

#include <vector>

namespace torvane::test {

using Drawn = std::vector<mreal>;

template <class Value> Drawn asReals(const std::vector<Value> &values) {
  return Drawn(values.begin(), values.end());
}

// What it drew, if its status is 0.
struct Draw {
  const char *name;
  mint (*run)(Drawn *drawn);
};

inline mint positionsBy(mint (*draw)(mint *positions), size_t count, Drawn *drawn) {
  std::vector<mint> positions(count);
  const mint status = draw(positions.data());
  if (status == 0) *drawn = asReals(positions);
  return status;
}

inline RunningSums alikeWeights() {
  return RunningSums(tensorOf<mreal>({200}, std::vector<mreal>(200, 1)).get());
}

inline constexpr Draw kEveryDraw[] = {
    {"integers",
     [](Drawn *drawn) {
       return positionsBy([](mint *to) { return UniformRandomMIntegers(to, 9, 1, 1000); }, 9, drawn);
     }},
    {"reals",
     [](Drawn *drawn) {
       drawn->resize(9);
       return UniformRandomMReals(drawn->data(), 9, 0, 1);
     }},
    {"complexes",
     [](Drawn *drawn) {
       mcomplex z[3];
       const mint status = UniformRandomMComplexes(z, 3, 0, 0, 1, 1);
       for (const mcomplex &part : z) drawn->insert(drawn->end(), {part.re, part.im});
       return status;
     }},
    {"a complex number by name",
     [](Drawn *drawn) {
       mcomplex z;
       const mint status =
           NamedCall("RandomComplex").tensor(tensorOf<mcomplex>({2}, {{0, 0}, {1, 1}})).run(&z);
       *drawn = {z.re, z.im};
       return status;
     }},
    {"normal",
     [](Drawn *drawn) {
       drawn->resize(5);
       return drawNormal(drawn->data(), 5, 0, 1);
     }},
    {"beta (1, 3)",
     [](Drawn *drawn) {
       drawn->resize(5);
       return drawBeta(drawn->data(), 5, 1, 3);
     }},
    {"beta (2, 3)",
     [](Drawn *drawn) {
       drawn->resize(5);
       return drawBeta(drawn->data(), 5, 2, 3);
     }},
    {"choice",
     [](Drawn *drawn) { return positionsBy([](mint *to) { return drawPositions(to, 9, 200); }, 9, drawn); }},
    {"few of a list",
     [](Drawn *drawn) {
       return positionsBy([](mint *to) { return samplePositions(to, 9, 200); }, 9, drawn);
     }},
    {"many of a list",
     [](Drawn *drawn) {
       return positionsBy([](mint *to) { return samplePositions(to, 90, 200); }, 90, drawn);
     }},
    {"weighted choice",
     [](Drawn *drawn) { return positionsBy([](mint *to) { return alikeWeights().draw(to, 9); }, 9, drawn); }},
    {"few by weights",
     [](Drawn *drawn) {
       return positionsBy([](mint *to) { return sampleByWeights(to, 9, alikeWeights()); }, 9, drawn);
     }},
    {"many by weights", [](Drawn *drawn) {
       return positionsBy([](mint *to) { return sampleByWeights(to, 90, alikeWeights()); }, 90, drawn);
     }}};

} // namespace torvane::test
