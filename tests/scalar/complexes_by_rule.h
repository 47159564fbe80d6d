// The complex functions once more, step by step and without thought of speed: the model that ours equal bit
// for bit. Functions of the C library run in binary64 and are narrowed; everything else stays in the part
// type.
//
// A member sets `code` to the first code that would be raised; the value is then arbitrary.
#pragma once

#include "scalar/scalar_types.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvane::test {

template <class R> struct ByRule {
  using Z = Complex<R>;
  int code = 0;

  static constexpr R nan = std::numeric_limits<R>::quiet_NaN(), infinity = std::numeric_limits<R>::infinity();
  static constexpr R pi = R(3.141592653589793), halfPi = R(1.5707963267948966), ln2 = R(0.6931471805599453),
                     ln10 = R(2.302585092994046);

  // ---- parts --------------------------------------------------------------------------------------

  using Library = double (*)(double);
  static R lib(Library f, R x) { return R(f(double(x))); }
  static R log(R x) { return lib(std::log, x); }

  // Zero against anything is zero.
  static R guarded(R a, R b) {
    if (a == 0 || b == 0) return std::copysign(R(1), a) * std::copysign(R(0), b);
    return a * b;
  }

  Z raise(int raised) {
    if (code == 0) code = raised;
    return {0, 0};
  }
  static bool zero(Z z) { return z.re == 0 && z.im == 0; }
  static Z plus(Z x, Z y) { return {x.re + y.re, x.im + y.im}; }
  static Z plus(Z x, R y) { return {x.re + y, x.im}; }
  static Z minus(Z x, Z y) { return {x.re - y.re, x.im - y.im}; }
  static Z negative(Z z) { return {-z.re, -z.im}; }
  static Z times(Z x, Z y) { return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re}; }
  static Z times(R k, Z z) { return {k * z.re, k * z.im}; }
  static Z over(Z z, R k) { return {z.re / k, z.im / k}; }
  static Z turned(Z z) { return {-z.im, z.re}; } // i z
  static Z back(Z z) { return {z.im, -z.re}; }   // -i z

  // ---- quotients and roots ------------------------------------------------------------------------

  static Z over(Z x, Z y) {
    const R c = y.re, d = y.im;
    if (std::isnan(c) || std::isnan(d)) return {nan, nan};
    if (std::abs(d) < std::abs(c)) {
      const R t = d / c, m = t * d + c;
      if (std::isnan(m) || m == 0) return {nan, nan};
      return {(x.re + x.im * t) / m, (x.im - x.re * t) / m};
    }
    if (d == 0) return {nan, nan};
    const R t = c / d, m = t * c + d;
    if (std::isnan(m) || m == 0) return {nan, nan};
    return {(x.re * t + x.im) / m, (x.im * t - x.re) / m};
  }
  Z divide(Z x, Z y) { return zero(y) ? raise(16) : over(x, y); }
  Z recip(Z z) {
    if (std::isinf(z.re)) return {std::copysign(R(0), z.re), std::copysign(R(0), -z.im)};
    if (std::isinf(z.im)) return {0, std::copysign(R(0), -z.im)};
    return divide({1, 0}, z);
  }

  struct Scaled {
    R r;
    int e;
  };
  static Scaled scaled(Z z) {
    const R x = z.re, y = z.im;
    if (std::isinf(x) || std::isinf(y)) return {infinity, 0};
    if (std::isnan(x)) return {x, 0};
    if (std::isnan(y)) return {y, 0};
    R a = std::max(std::abs(x), std::abs(y)), b = std::min(std::abs(x), std::abs(y));
    if (a == 0) return {0, 0};
    const int e = a >= 1 ? 2 : -2;
    a = std::ldexp(a, -e);
    b = std::ldexp(b, -e);
    const R t = a - b;
    if (t == a) return {a, e};
    if (t > b) {
      const R q = a / b, root = std::sqrt(q * q + 1);
      return {a + b / (q + root), e};
    }
    const R q = t / b, u = (q + 2) * q, root = std::sqrt(u + 2);
    const R below = u / (root + R(1.4142135623730951)) + R(1.434125237597392e-07) + q + R(2.4142134189605713);
    return {a + b / below, e};
  }
  static R abs(Z z) {
    const auto [r, e] = scaled(z);
    return std::ldexp(r, e);
  }

  Z sqrt(Z z) {
    const R x = z.re, y = z.im;
    if (x == 0) {
      const R m = std::sqrt(std::abs(y) * R(0.5));
      return std::signbit(y) ? Z{m, -m} : Z{m, m};
    }
    if (y == 0) return std::signbit(x) ? Z{0, std::sqrt(-x)} : Z{std::sqrt(x), 0};
    const auto [r, e] = scaled(z);
    if (e == 0) return {r, r};
    const R u = std::ldexp(std::abs(x), -e) + r, p = std::ldexp(std::sqrt(2 * u), e / 2 - 1);
    if (x >= 0) return {p, y / (2 * p)};
    if (y < 0) return {-y / (2 * p), -p};
    return {y / (2 * p), p};
  }

  Z rsqrt(Z z) {
    const R x = z.re, y = z.im;
    if (zero(z)) return raise(14);
    if (x == 0) {
      const R c = R(0.7071067811865476) / std::sqrt(std::abs(y));
      return y > 0 ? Z{c, -c} : Z{c, c};
    }
    if (y == 0 && x > 0) return {1 / std::sqrt(x), 0};
    if (y == 0 && x < 0) return {0, -1 / std::sqrt(-x)};
    const R a = std::abs(x), b = std::abs(y);
    R f, g;
    if (a <= b) {
      const R q = a / b, w = std::sqrt(q * q + 1), v = std::sqrt((w + q) * R(0.5));
      f = v / (std::sqrt(b) * w);
      g = R(0.5) / (std::sqrt(b) * w * v);
    } else {
      const R q = b / a, w = std::sqrt(q * q + 1), v = std::sqrt((w + 1) * R(0.5));
      f = v / (std::sqrt(a) * w);
      g = (q / (std::sqrt(a) * w * v)) * R(0.5);
    }
    if (x > 0) return {f, y > 0 ? -g : g};
    return {g, y > 0 ? -f : f};
  }

  // ---- logarithms and exponentials ----------------------------------------------------------------

  // Where the modulus leaves the normal numbers its scale is taken out.
  static Z polarLog(Z z) {
    const R modulus = abs(z), angle = R(std::atan2(double(z.im), double(z.re)));
    if (std::isnormal(modulus)) return {log(modulus), angle};
    const auto [r, e] = scaled(z);
    return {log(r) + R(e) * ln2, angle};
  }
  Z log(Z z) {
    if (zero(z)) return raise(14);
    if (z.im == 0 && z.re > 0) return {log(z.re), 0};
    if (z.im == 0 && z.re < 0) return {log(-z.re), pi};
    return polarLog(z);
  }
  Z toBase(Z z, Library real, R above, R ofBase) {
    if (z.im == 0 && z.re > 0) return {lib(real, z.re), 0};
    if (z.im == 0 && z.re < 0) return {lib(real, -z.re), above};
    return over(log(z), ofBase);
  }
  Z log2(Z z) { return toBase(z, std::log2, R(4.532360141827194), ln2); }
  Z log10(Z z) { return toBase(z, std::log10, R(3.141592653589793238L / 2.302585092994045684L), ln10); }
  Z log1p(Z z) {
    const R x = z.re, y = z.im;
    if (y == 0 && x == -1) return raise(14);
    if (y == 0 && x < -1) return {lib(std::log1p, -2 - x), pi};
    if (y == 0 && x > -1) return {lib(std::log1p, x), 0};
    if (std::abs(x) >= R(0.5) || std::abs(y) >= R(0.5)) return log(plus(z, R(1)));
    const R u = x == 0 ? y * y : y * y + 2 * x + x * x;
    return {R(0.5) * lib(std::log1p, u), R(std::atan2(double(y), double(x + 1)))};
  }
  Z exp(Z z) {
    const R r = lib(std::exp, z.re);
    return {guarded(r, lib(std::cos, z.im)), guarded(r, lib(std::sin, z.im))};
  }
  Z expm1(Z z) {
    const R m = lib(std::expm1, z.re), s = lib(std::sin, z.im / 2);
    return {m + guarded(-2 * s * s, m) + -2 * s * s, guarded(lib(std::sin, z.im), m + 1)};
  }

  // ---- circular and hyperbolic --------------------------------------------------------------------

  Z sinh(Z z) {
    const R s = lib(std::sin, z.im), c = lib(std::cos, z.im);
    if (std::isinf(z.re) && !std::isfinite(z.im)) return {z.re, s}; // C11, G.6.2.5
    return {guarded(lib(std::sinh, z.re), c), guarded(lib(std::cosh, z.re), s)};
  }
  Z cosh(Z z) {
    const R s = lib(std::sin, z.im), c = lib(std::cos, z.im);
    if (std::isinf(z.re) && !std::isfinite(z.im)) return {infinity, s}; // C11, G.6.2.4
    return {guarded(lib(std::cosh, z.re), c), guarded(lib(std::sinh, z.re), s)};
  }
  Z tanh(Z z) {
    const R t = lib(std::tan, z.im), s = lib(std::sinh, z.re), b = 1 + t * t, d = 1 + b * s * s;
    if (std::isinf(d)) return {std::copysign(R(1), s), t * 0};
    return {b * s * std::sqrt(1 + s * s) / d, t / d};
  }
  Z sin(Z z) { return back(sinh(turned(z))); }
  Z cos(Z z) { return cosh(turned(z)); }
  Z tan(Z z) { return back(tanh(turned(z))); }
  Z sec(Z z) { return recip(cos(z)); }
  Z csc(Z z) { return recip(sin(z)); }
  Z cot(Z z) { return recip(tan(z)); }
  Z sech(Z z) { return recip(cosh(z)); }
  Z csch(Z z) { return recip(sinh(z)); }
  Z coth(Z z) { return recip(tanh(z)); }

  // ---- inverses -----------------------------------------------------------------------------------

  // A zero does not count, an infinity beats every number.
  static int exponent(R x) {
    int e = 0;
    if (x == 0) return -100000;
    if (std::isinf(x)) return 100000;
    return std::isnan(x) || std::isnan(std::frexp(x, &e)) ? 0 : e;
  }
  static int scale(Z z) {
    if (zero(z)) return 0;
    const int e = std::max(exponent(z.re), exponent(z.im));
    return e < -10 ? e + 5 : e > 10 ? e - 5 : e;
  }

  Z asinh(Z z) {
    const bool zeroX = z.re == 0 && std::abs(z.im) <= 1, zeroY = z.im == 0;
    const int e = scale(z);
    const bool negate = e >= 0 && (z.re < 0 || (z.re == 0 && z.im < 0));
    if (negate) z = negative(z);
    Z result;
    if (e > 27) {
      result = plus(log(z), ln2);
    } else {
      const Z root = sqrt(plus(times(z, z), R(1)));
      result = e >= 0 ? log(plus(root, z)) : log1p(plus(z, over(times(z, z), plus(root, R(1)))));
    }
    if (negate) result = negative(result);
    if (zeroY) result.im = 0;
    if (zeroX) result.re = 0;
    return result;
  }
  Z asin(Z z) {
    const Z s = asinh({-z.im, z.re});
    return {s.im, -s.re};
  }
  Z acos(Z z) {
    const Z s = asinh({-z.im, z.re});
    return {halfPi - s.im, s.re};
  }
  Z acosh(Z z) {
    const R x = z.re, y = z.im;
    if (std::abs(x) < R(0.5) && std::abs(y) < R(0.5)) {
      const Z s = asinh({-y, x});
      return y >= 0 ? Z{-s.re, halfPi - s.im} : Z{s.re, s.im - halfPi};
    }
    if (scale(z) > 27) return plus(log(z), ln2);
    const Z s = {x * x - y * y, y * x + y * x};
    const Z q = sqrt(minus({1, 0}, recip(s)));
    Z l = log(times(z, plus(q, R(1))));
    if ((l.im < 0) != (y < 0)) l.im = -l.im;
    if (y == 0 && x >= 1) return {l.re, 0};
    if (y == 0 && -1 <= x && x < 1) return {0, l.im};
    return l;
  }

  Z atanh(Z z) {
    const R x = z.re, y = z.im;
    const bool large = std::abs(x) >= 2 || std::abs(y) >= 2;
    const bool small = std::abs(x) <= R(0.5) && std::abs(y) <= R(0.5);
    if (!large && !small) {
      if (y == 0 && std::abs(x) == 1) return raise(14);
      const Z above = {1 + x, y}, below = {1 - x, -y};
      const Z a = x < 0 ? below : above, b = x < 0 ? above : below;
      const Z l = log(times(a, rsqrt(times(a, b))));
      return x < 0 ? negative(l) : l;
    }
    if (large) z = recip(z);
    const Z twice = {2 * z.re, 2 * z.im}, above = plus(z, R(1));
    Z result;
    if (scale(z) <= -27) {
      result = log1p(over(times(twice, above), plus(z, R(2))));
    } else {
      const Z q = minus({1, 0}, times(z, z)), w = sqrt(q);
      result = log1p(over(times(twice, above), plus(q, times(above, w))));
    }
    if (large) result.im += y > 0 || (y == 0 && x <= 0) ? halfPi : -halfPi;
    return result;
  }
  Z atan(Z z) { return back(atanh(turned(z))); }

  template <class F> Z ofRecip(Z z, F f) {
    const Z inverse = recip(z);
    return code != 0 ? inverse : (this->*f)(inverse);
  }
  Z acsc(Z z) { return ofRecip(z, &ByRule::asin); }
  Z asec(Z z) { return ofRecip(z, &ByRule::acos); }
  Z acot(Z z) { return ofRecip(z, &ByRule::atan); }
  Z acsch(Z z) { return ofRecip(z, &ByRule::asinh); }
  Z asech(Z z) { return ofRecip(z, &ByRule::acosh); }
  Z acoth(Z z) { return ofRecip(z, &ByRule::atanh); }

  // ---- powers and the rest ------------------------------------------------------------------------

  static Z guarded(Z w, Z l) {
    return {guarded(w.re, l.re) - guarded(w.im, l.im), guarded(w.re, l.im) + guarded(w.im, l.re)};
  }
  Z pow(Z z, Z w) {
    if (z.im != 0) return exp(guarded(w, polarLog(z)));
    if (w.im == 0 && !(z.re < 0)) return {R(std::pow(double(z.re), double(w.re))), 0};
    if (z.re == 0) return raise(14);
    if (z.re > 0) return exp({guarded(w.re, log(z.re)), guarded(w.im, log(z.re))});
    return exp(guarded(w, polarLog({z.re, 0})));
  }
  Z log(Z base, Z z) {
    const Z numerator = log(z), denominator = log(base);
    return divide(numerator, denominator);
  }
  static R realMod(R x, R y) {
    const R r = R(std::fmod(double(x), double(y)));
    if (r == 0 || std::isnan(r) || (r < 0) == (y < 0)) return r;
    return r + y == y ? 0 : r + y;
  }
  R round(R x) {
    const R r = R(std::nearbyint(double(x)));
    if (r <= R(-2147483648.0) || r >= (sizeof(R) == 8 ? R(2147483647.0) : R(2147483648.0))) raise(1);
    return r;
  }
  Z mod(Z x, Z y) {
    if (zero(y)) return raise(14);
    if (x.im == 0 && y.im == 0) return {realMod(x.re, y.re), 0};
    const Z q = over(x, y);
    const Z n = {round(q.re), round(q.im)};
    return minus(x, times(y, n));
  }

  Z sign(Z z) {
    if (zero(z)) return {0, 0};
    if (z.im == 0) return {std::copysign(R(1), z.re), 0};
    if (z.re == 0) return {0, std::copysign(R(1), z.im)};
    const R x = std::abs(z.re), y = std::abs(z.im), m = 1 / (x < y ? y : x);
    const Z unit = times(m, z);
    return over(unit, R(std::hypot(double(unit.re), double(unit.im))));
  }
  Z sinc(Z z) { return zero(z) ? Z{1, 0} : over(sin(z), z); }
  Z logistic(Z z) { return divide({1, 0}, plus(exp(negative(z)), R(1))); }
  Z gudermannian(Z z) { return times(R(2), atan(tanh(over(z, R(2))))); }
  Z inversegudermannian(Z z) { return times(R(2), atanh(tan(over(z, R(2))))); }
  Z haversine(Z z) {
    const Z s = sin(over(z, R(2)));
    return times(s, s);
  }
  Z inversehaversine(Z z) { return times(R(2), asin(sqrt(z))); }
  Z golden(Z z) { return pow({R(1.618033988749895), 0}, z); }
  Z fibonacci(Z z) {
    const Z second = times(cos(times(pi, z)), golden(negative(z)));
    return over(minus(golden(z), second), R(2.23606797749979));
  }
  Z lucasl(Z z) { return plus(golden(z), times(cos(times(pi, z)), golden(negative(z)))); }
};

} // namespace torvane::test
