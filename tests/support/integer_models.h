// What the integer operators mean, by slow and obvious methods on sign and magnitude or on exact integers:
// nothing is shared with the bodies they check.
#pragma once

#include "exact_integer.h"
#include "integer_samples.h"

namespace torvane::test::model {

// What an entry does: the code of both forms, else the value, wrapped to its type, that the plain form
// returns, and whether the checked form refuses it with code 1.
struct Outcome {
  mint code;
  Exact value;
  bool isRefused;
};

inline Outcome raises(mint code) { return {code, Exact(0, false), false}; }
inline Outcome gives(const Exact &value) { return {0, value, false}; }
inline Outcome gives(bool truth) { return gives(Exact(truth, false)); }
inline Outcome givesCount(uint64_t count) { return gives(Exact(count, false)); }
// Refused when it does not fit, or is the most negative value.
template <class T> Outcome givesFitting(const Exact &value) { return {0, value, value.isRefused<T>()}; }

template <class T> bool isLowest(T x) { return isSigned<T> && x == std::numeric_limits<T>::min(); }
template <class T> uint64_t magnitude(T x) {
  return x < T(0) ? uint64_t{0} - static_cast<uint64_t>(x) : static_cast<uint64_t>(x);
}
template <class T> bool bit(T x, int k) { return (static_cast<uint64_t>(x) >> k & 1) != 0; }
template <class T> Exact fromBits(const std::array<bool, 64> &bits) {
  uint64_t value = 0;
  for (int k = 0; k < kBits<T>; ++k) value |= uint64_t{bits[size_t(k)]} << k;
  return Exact::of(static_cast<T>(value));
}

// ---- unary --------------------------------------------------------------------------------------

template <class T> Outcome abs(T x) { return givesFitting<T>(Exact(magnitude(x), false)); }
template <class T> Outcome square(T x) { return givesFitting<T>(Exact::of(x) * Exact::of(x)); }
template <class T> Outcome abssquare(T x) { return square(x); }
template <class T> Outcome minus(T x) {
  return isSigned<T> ? givesFitting<T>(-Exact::of(x)) : gives(-Exact::of(x)); // unsigned wraps
}
template <class T> Outcome arg(T x) { return x < T(0) ? raises(14) : givesCount(0); }
template <class T> Outcome bit_count(T x) {
  uint64_t count = 0;
  for (int k = 0; k < kBits<T>; ++k) count += bit(x, k);
  return givesCount(count);
}
template <class T> Outcome bit_length(T x) {
  uint64_t length = 0;
  for (uint64_t rest = x < T(0) ? magnitude(x) - 1 : magnitude(x); rest != 0; rest /= 2) ++length;
  return givesCount(length);
}
template <class T> Outcome bit_not(T x) {
  std::array<bool, 64> bits{};
  for (int k = 0; k < kBits<T>; ++k) bits[size_t(k)] = !bit(x, k);
  return givesFitting<T>(fromBits<T>(bits));
}
template <class T> Outcome evenq(T x) { return gives(magnitude(x) % 2 == 0); }
template <class T> Outcome oddq(T x) { return gives(magnitude(x) % 2 == 1); }
template <class T> Outcome pos(T x) { return gives(x > T(0)); }
template <class T> Outcome neg(T x) { return gives(x < T(0)); }
template <class T> Outcome npos(T x) { return gives(!(x > T(0))); }
template <class T> Outcome nneg(T x) { return gives(!(x < T(0))); }
template <class T> Outcome unitizeUnary(T x) { return gives(x != T(0)); }
template <class T> Outcome sign(T x) { return gives(Exact(x != T(0), x < T(0))); }
template <class T> Outcome ramp(T x) { return x > T(0) ? gives(Exact::of(x)) : givesCount(0); }
template <class T> Outcome itself(T x) { return gives(Exact::of(x)); }
template <class T> Outcome zero(T) { return givesCount(0); }
template <class T> Outcome one(T) { return givesCount(1); }

// ---- binary -------------------------------------------------------------------------------------

template <class T> Outcome plus(T x, T y) { return givesFitting<T>(Exact::of(x) + Exact::of(y)); }
template <class T> Outcome subtract(T x, T y) { return givesFitting<T>(Exact::of(x) - Exact::of(y)); }
template <class T> Outcome times(T x, T y) { return givesFitting<T>(Exact::of(x) * Exact::of(y)); }

// Each difference must fit where it is taken; the plain form looks at the wrapped one.
template <class T> Outcome abserr(T x, T y) {
  const Exact difference = Exact::of(x) - Exact::of(y), reversed = Exact::of(y) - Exact::of(x);
  const bool isRefused = difference.isRefused<T>() || (isSigned<T> && x < y && reversed.isRefused<T>());
  return {0, difference.wrapped<T>() < T(0) ? reversed : difference, isRefused};
}

template <class T, class Rule> Outcome bitwise(T x, T y, Rule rule) {
  std::array<bool, 64> bits{};
  for (int k = 0; k < kBits<T>; ++k) bits[size_t(k)] = rule(bit(x, k), bit(y, k));
  return givesFitting<T>(fromBits<T>(bits));
}
template <class T> Outcome bit_and(T x, T y) {
  return bitwise(x, y, [](bool a, bool b) { return a && b; });
}
template <class T> Outcome bit_or(T x, T y) {
  return bitwise(x, y, [](bool a, bool b) { return a || b; });
}
template <class T> Outcome bit_xor(T x, T y) {
  return bitwise(x, y, [](bool a, bool b) { return a != b; });
}

template <class T> Outcome max(T x, T y) { return givesFitting<T>(Exact::of(x > y ? x : y)); }
template <class T> Outcome min(T x, T y) { return givesFitting<T>(Exact::of(x < y ? x : y)); }
template <class T> Outcome maxabs(T x, T y) {
  const T a = abs(x).value.template wrapped<T>(), b = abs(y).value.template wrapped<T>();
  return {0, Exact::of(a > b ? a : b), isLowest(x) || isLowest(y)};
}

// The magnitude doubled or halved one place at a time, the sign restored.
template <class T> Outcome moved(T x, bool isLeft, uint64_t places) {
  if (isLeft && places >= uint64_t(kBits<T>)) return {0, Exact(0, false), true};
  if (isLeft) {
    Exact value = Exact::of(x);
    for (; places != 0; --places) value = value + value;
    return givesFitting<T>(value);
  }
  uint64_t rest = magnitude(x);
  for (; places != 0 && rest != 0; --places) rest /= 2;
  return gives(Exact(rest, x < T(0)));
}
template <class T> Outcome bit_shiftleft(T x, T y) {
  if (x == T(0)) return givesCount(0);
  return isLowest(x) ? raises(14) : moved(x, y > T(0), magnitude(y));
}
template <class T> Outcome bit_shiftright(T x, T y) {
  if (isLowest(y)) return raises(14);
  if (x == T(0)) return givesCount(0);
  return isLowest(x) ? raises(14) : moved(x, y < T(0), magnitude(y));
}

template <class T> bool isPowerOf2(T base) { return bit_count(base).value.template wrapped<uint64_t>() == 1; }
template <class T> Outcome intexp(T x, T base) {
  if (base < T(2) || x == T(0)) return raises(14);
  uint64_t count = 0;
  for (uint64_t a = magnitude(x); a % uint64_t(base) == 0; a /= uint64_t(base)) ++count;
  // By way of trailing zeros, of which the most negative value counts as having none.
  if (isLowest(x) && isPowerOf2(base)) count = 0;
  return {0, Exact(count, false), isLowest(x)};
}
template <class T> Outcome intlen(T x, T base) {
  if (base < T(2)) return raises(14);
  uint64_t digits = 0;
  for (uint64_t a = magnitude(x); a != 0; a /= uint64_t(base)) ++digits;
  return {0, Exact(digits, false), isLowest(x)};
}

// Floored division: the quotient rounds down, the remainder takes the divisor's sign.
template <class T> Outcome quotient(T x, T y) {
  if (y == T(0)) return raises(14);
  const uint64_t a = magnitude(x), b = magnitude(y);
  const bool isNegative = (x < T(0)) != (y < T(0));
  return gives(Exact(isNegative ? a / b + (a % b != 0) : a / b, isNegative));
}
template <class T> Outcome mod(T x, T y) {
  if (y == T(0)) return raises(14);
  return gives(Exact::of(x) - quotient(x, y).value * Exact::of(y));
}

template <class T> Outcome unitize(T x, T tolerance) {
  if (tolerance < T(1)) return raises(14);
  return {0, Exact(magnitude(x) >= magnitude(tolerance), false), isLowest(x)};
}

// ---- powers -------------------------------------------------------------------------------------

// Whether x^y, by one multiplication after the other, is a number that checked arithmetic takes.
template <class T> bool hasPower(T x, uint64_t y) {
  if (magnitude(x) <= 1) return true;
  Exact power(1, false);
  for (; y != 0; --y) {
    power = power * Exact::of(x);
    if (!power.template fits<T>()) return false;
  }
  return !power.template isRefused<T>();
}
// The low 64 bits of x^y, from the exponent's low end.
inline uint64_t lowPower(uint64_t x, uint64_t y) {
  uint64_t power = 1;
  for (; y != 0; y /= 2, x *= x)
    if (y % 2 == 1) power *= x;
  return power;
}
template <class T, class E> Outcome pow(T x, E y) {
  if (x == T(1)) return givesCount(1);
  const bool isOdd = magnitude(y) % 2 == 1;
  if (isSigned<T> && x == static_cast<T>(-1)) return gives(Exact(1, isOdd));
  if (y < E(0) || (x == T(0) && y == E(0))) return raises(14);
  uint64_t low = lowPower(static_cast<uint64_t>(x), static_cast<uint64_t>(y));
  // Powers of 2 and -2 are one shift of a 32-bit or 64-bit register, which takes the count modulo its width.
  if (magnitude(x) == 2) {
    const uint64_t shifted = uint64_t{1} << (static_cast<uint64_t>(y) % (sizeof(T) == 8 ? 64 : 32));
    low = x < T(0) && isOdd ? 0 - shifted : shifted;
  }
  return {0, Exact(low, false), !hasPower(x, static_cast<uint64_t>(y))};
}

} // namespace torvane::test::model
