#include "lattice.h"

#include <algorithm>
#include <utility>

namespace streams {

namespace {

int wordsFor(int degree) { return degree / 64 + 1; }

} // namespace

Relations::Relations(const Polynomial &modulus) : basis{{{modulus}, degreeOf(modulus), 0}} {}

void Relations::measure(Vector &vector, int degreeBound) {
  vector.degree = -1;
  for (size_t i = 0; i < vector.components.size(); ++i) {
    const int degree = degreeOf(vector.components[i], wordsFor(degreeBound));
    if (degree <= vector.degree) continue;
    vector.degree = degree;
    vector.pivot = i;
  }
}

// Their leading terms at the pivot cancel.
void Relations::reduce(Vector &longer, const Vector &shorter) {
  const int shift = longer.degree - shorter.degree;
  for (size_t i = 0; i < longer.components.size(); ++i)
    addShifted(longer.components[i], shorter.components[i], shift, wordsFor(longer.degree));
  measure(longer, longer.degree);
}

// The relation (h, 0, ..., 0, 1) completes the basis of those without the new sequence. While the vector at
// hand shares its pivot with one of the basis, the longer of the two is reduced by the other.
void Relations::addSequence(const Polynomial &h) {
  const size_t count = basis.size();
  for (Vector &vector : basis) vector.components.push_back({});
  Vector open = {std::vector<Polynomial>(count + 1), 0, 0};
  open.components.front() = h;
  open.components.back() = monomial(0);
  measure(open, 64 * kPolynomialWords - 1);
  while (open.pivot < count) {
    if (open.degree < basis[open.pivot].degree) std::swap(open, basis[open.pivot]);
    reduce(open, basis[open.pivot]);
  }
  basis.push_back(std::move(open));
}

int Relations::dimension() const {
  const std::vector<int> degrees = minima();
  return *std::min_element(degrees.begin(), degrees.end());
}

std::vector<int> Relations::minima() const {
  std::vector<int> degrees;
  for (const Vector &vector : basis) degrees.push_back(vector.degree);
  return degrees;
}

} // namespace streams
