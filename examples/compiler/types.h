// The types of the language: numbers, dense tensors of them with a rank that is known, and what only
// statements see.
#ifndef COMPILER_TYPES_H
#define COMPILER_TYPES_H

#include <string>

// The numbers are those of the library's tensor types: an expression's kind is what ReturnType2 is asked
// with.
enum Element { kNothing = 0, kTruth = 1, kInteger = 2, kReal = 3, kComplex = 4, kText = 5 };

struct Type {
  Element element = kNothing;
  int rank = 0;

  bool isNumber() const { return element >= kInteger && element <= kComplex; }
  bool isScalar() const { return isNumber() && rank == 0; }
  bool isTensor() const { return isNumber() && rank > 0; }
  friend bool operator==(const Type &, const Type &) = default;
};

// As it is written in a program: "real[,]".
std::string nameOf(Type type);

#endif
