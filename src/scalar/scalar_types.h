// The thirteen scalar types of the typed entries, their classes, and what is derived from a type.
//
// Integers and the two hardware reals are the language's own. Real16 is its 16-bit pattern, so that no
// arithmetic happens on it by accident; a complex is its own small record, so that no multiplication or
// division of the language's complex type, with rules of its own, creeps in.
#pragma once

#include "../runtime/types.h"

namespace torvane {

using Integer8 = int8_t;
using UnsignedInteger8 = uint8_t;
using Integer16 = int16_t;
using UnsignedInteger16 = uint16_t;
using Integer32 = int32_t;
using UnsignedInteger32 = uint32_t;
using Integer64 = int64_t;
using UnsignedInteger64 = uint64_t;
struct Real16 {
  uint16_t bits;
};
using Real32 = float;
using Real64 = double;
template <class R> struct Complex {
  using Part = R;
  R re, im;
};
using ComplexReal32 = Complex<Real32>;
using ComplexReal64 = Complex<Real64>;
static_assert(sizeof(ComplexReal64) == sizeof(mcomplex));

// All thirteen, in the order of the exported names.
#define TORVANE_FOR_EACH_SCALAR(X)                                                                           \
  X(Integer8)                                                                                                \
  X(UnsignedInteger8) X(Integer16) X(UnsignedInteger16) X(Integer32) X(UnsignedInteger32) X(Integer64)       \
      X(UnsignedInteger64) X(Real16) X(Real32) X(Real64) X(ComplexReal32) X(ComplexReal64)

enum class TypeClass { signedInteger, unsignedInteger, real, complex };

template <class T>
inline constexpr TypeClass kClass = T(-1) < T(0) ? TypeClass::signedInteger : TypeClass::unsignedInteger;
template <> inline constexpr TypeClass kClass<Real16> = TypeClass::real;
template <> inline constexpr TypeClass kClass<Real32> = TypeClass::real;
template <> inline constexpr TypeClass kClass<Real64> = TypeClass::real;
template <> inline constexpr TypeClass kClass<ComplexReal32> = TypeClass::complex;
template <> inline constexpr TypeClass kClass<ComplexReal64> = TypeClass::complex;

template <class T> inline constexpr bool isSigned = kClass<T> == TypeClass::signedInteger;
template <class T> inline constexpr bool isInteger = isSigned<T> || kClass<T> == TypeClass::unsignedInteger;
template <class T> inline constexpr bool isReal = kClass<T> == TypeClass::real;
template <class T> inline constexpr bool isComplex = kClass<T> == TypeClass::complex;

template <class A, class B> inline constexpr bool isSame = false;
template <class A> inline constexpr bool isSame<A, A> = true;
template <class T> inline constexpr bool isHalf = isSame<T, Real16>;

template <class T> struct RealPart { using Type = T; };
template <class R> struct RealPart<Complex<R>> { using Type = R; };
template <class T> using RealPartOf = typename RealPart<T>::Type;

template <bool Condition, class A, class B> struct Choose { using Type = A; };
template <class A, class B> struct Choose<false, A, B> { using Type = B; };
template <bool Condition, class A, class B> using ChooseOf = typename Choose<Condition, A, B>::Type;

// The most negative value of a signed type. Checked arithmetic treats it as out of range, deliberately:
// its negative and its magnitude do not exist. Plain arithmetic may produce it.
template <class T> inline constexpr T kReserved = isSigned<T> ? T(T(1) << (8 * sizeof(T) - 2)) * T(-2) : T(0);
template <class T> constexpr bool isReserved(T x) { return isSigned<T> && x == kReserved<T>; }

} // namespace torvane
