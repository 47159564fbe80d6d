// Complex circular and hyperbolic functions: saturation, and the codes of their reciprocals.
#include "complexes_support.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexTangents, SaturateWithoutOverflow) {
  expectEqual(complexes::tanh, {800, 1}, {1, 0});
  expectEqual(complexes::tanh, {-800, 1}, {-1, 0});
  expectEqual(complexes::tan, {1, 800}, {0, 1});
  expectEqual(complexes::tan, {1, -kInfinity}, {0, -1});
}

TEST(ComplexReciprocals, RaiseSixteenAtAnExactZero) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      for (ComplexFunction<double> f :
           {complexes::csc<double>, complexes::cot<double>, complexes::csch<double>, complexes::coth<double>})
        EXPECT_EQ(codeAt(f, x, y), 16);
      for (ComplexFunction<double> f :
           {complexes::acsc<double>, complexes::asec<double>, complexes::acot<double>,
            complexes::acsch<double>, complexes::asech<double>, complexes::acoth<double>})
        EXPECT_EQ(codeAt(f, x, y), 16);
      EXPECT_EQ(codeAt(complexes::sec, x, y), 0);
      EXPECT_EQ(codeAt(complexes::sech, x, y), 0);
      expectEqual(complexes::sinc, {x, y}, {1, 0});
    }
}

} // namespace
