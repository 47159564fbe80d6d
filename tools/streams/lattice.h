// Equidistribution of the leading bits of a recurrence's words, by a lattice over GF(2)[t].
//
// Bit sequences with generating functions h_i / P have the relations u, vectors of polynomials with sum u_i
// h_i = 0 modulo P. They are a lattice of determinant P, and the smallest degree of one that is not 0 is the
// number of successive words whose bits are jointly equidistributed. A basis whose leading coefficients are
// independent shows it: none of its vectors is longer than a minimum, and the minima sum to deg P.
// Source: R. Couture, P. L'Ecuyer, "Lattice computations for random numbers" (2000); reduction to weak Popov
// form after T. Mulders, A. Storjohann, "On lattice reduction for polynomial matrices" (2003).
#pragma once

#include "polynomial.h"

#include <vector>

namespace streams {

// The reduced basis of the relations of some sequences, to which sequences are added one by one.
// Invariant: each vector has a pivot of its own, the first of its components that has the vector's degree.
class Relations {
public:
  // Of one sequence, whose h is 1: its relations are the multiples of the modulus.
  explicit Relations(const Polynomial &modulus);

  void addSequence(const Polynomial &h);

  // How many successive words are equidistributed in the bits of these sequences.
  int dimension() const;
  // The degrees of the basis, which are the successive minima.
  std::vector<int> minima() const;

private:
  struct Vector {
    std::vector<Polynomial> components;
    int degree;
    size_t pivot;
  };
  static void measure(Vector &vector, int degreeBound);
  static void reduce(Vector &longer, const Vector &shorter);
  std::vector<Vector> basis; // at position i the vector whose pivot is i
};

} // namespace streams
