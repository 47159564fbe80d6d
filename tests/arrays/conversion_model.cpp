#include "conversion_model.h"

#include "exact_real.h"
#include "runtime/element_types.h"

#include <cstdio>
#include <cstring>

namespace torvane::test {

namespace {

bool isIntegerTag(mint tag) { return tag <= 8; }
bool isSignedTag(mint tag) { return isIntegerTag(tag) && tag % 2 == 1; }
bool isComplexTag(mint tag) { return tag >= 11; }
bool isNarrowReal(mint tag) { return tag == 9 || tag == 11; }
int bitsOf(mint tag) { return 8 << ((tag - 1) / 2); } // of an integer

struct Parts {
  ExactReal re, im;
};

ExactReal loadReal(mint tag, const void *from) {
  if (isNarrowReal(tag)) {
    float x;
    std::memcpy(&x, from, sizeof x);
    return ExactReal::of(x);
  }
  double x;
  std::memcpy(&x, from, sizeof x);
  return ExactReal::of(x);
}

uint64_t loadPattern(mint tag, const void *from) { // sign-extended
  uint64_t bits = 0;
  std::memcpy(&bits, from, kElementWidths[tag]);
  const int unused = 64 - bitsOf(tag);
  return isSignedTag(tag) ? uint64_t(int64_t(bits << unused) >> unused) : bits;
}

ExactReal loadInteger(mint tag, const void *from) {
  const uint64_t bits = loadPattern(tag, from);
  return isSignedTag(tag) ? ExactReal::ofInteger(int64_t(bits)) : ExactReal::of(false, bits, 0);
}

Parts load(mint tag, const void *from) {
  if (isIntegerTag(tag)) return {loadInteger(tag, from), {}};
  if (!isComplexTag(tag)) return {loadReal(tag, from), {}};
  return {loadReal(tag, from), loadReal(tag, static_cast<const char *>(from) + kElementWidths[tag] / 2)};
}

void storeReal(mint tag, const ExactReal &x, unsigned char *to) {
  const uint64_t bits = isNarrowReal(tag) ? x.patternOf(23, 8) : x.patternOf(52, 11);
  std::memcpy(to, &bits, isNarrowReal(tag) ? 4 : 8);
}

Converted failed(mint status) { return {status, {}}; }

Converted integer(mint tag, uint64_t bits) {
  Converted made;
  std::memcpy(made.bytes.data(), &bits, kElementWidths[tag]);
  return made;
}

Converted real(mint tag, const ExactReal &re, const ExactReal &im = {}) {
  Converted made;
  storeReal(tag, re, made.bytes.data());
  if (isComplexTag(tag)) storeReal(tag, im, made.bytes.data() + kElementWidths[tag] / 2);
  return made;
}

int significand(mint tag) { return isNarrowReal(tag) ? 24 : 53; }
ExactReal largestFinite(mint tag) {
  return isNarrowReal(tag) ? ExactReal::of(false, (1u << 24) - 1, 104)
                           : ExactReal::of(false, (uint64_t{1} << 53) - 1, 971);
}
ExactReal withSign(ExactReal x, bool negative) {
  x.negative = negative;
  return x;
}

// ---- integer targets ----

ExactReal highBound(mint tag) {
  const int digits = bitsOf(tag) - isSignedTag(tag);
  return ExactReal::of(false, ~uint64_t{0} >> (64 - digits), 0);
}
ExactReal lowBound(mint tag, bool isSymmetric) {
  if (!isSignedTag(tag)) return {};
  return isSymmetric ? withSign(highBound(tag), true) : ExactReal::of(true, 1, bitsOf(tag) - 1);
}
bool isWithin(const ExactReal &x, mint tag, bool isSymmetric) {
  return compare(x, lowBound(tag, isSymmetric)) >= 0 && compare(x, highBound(tag)) <= 0;
}

// Whether a target holds all values of an integer source: then its symmetric range is no matter.
bool isWiderOrEqual(mint source, mint target) {
  return compare(lowBound(source, false), lowBound(target, false)) >= 0 &&
         compare(highBound(source), highBound(target)) <= 0;
}

Converted integerToInteger(const Asked &asked, mint source, const ExactReal &x, mint target) {
  const bool isSymmetric = asked.isSymmetric && !isWiderOrEqual(source, target);
  if (isWithin(x, target, isSymmetric)) return integer(target, x.pattern());
  if (!asked.clips) return failed(1305);
  return integer(target, (x.negative ? lowBound(target, isSymmetric) : highBound(target)).pattern());
}

Converted realToInteger(const Asked &asked, const ExactReal &x, mint target) {
  const ExactReal r = x.rounded();
  if (asked.method != 5 && !modelAgree(asked.tolerance, x, r)) return failed(1305);
  if (r.isFinite() && isWithin(r, target, asked.isSymmetric)) return integer(target, r.pattern());
  if (!asked.clips) return failed(1);
  const bool toHigh = !x.isNaN() && !x.isBelowZero();
  return integer(target, (toHigh ? highBound(target) : lowBound(target, asked.isSymmetric)).pattern());
}

// ---- real targets ----

Converted integerToReal(const Asked &asked, const ExactReal &x, mint target) {
  const ExactReal nearest = x.roundedTo(significand(target));
  if (asked.method != 1 || compare(nearest, x) == 0) return real(target, nearest);
  return asked.clips ? real(target, withSign(largestFinite(target), x.negative)) : failed(1305);
}

struct Narrowed {
  bool failed;
  ExactReal value;
};

Narrowed narrowed(const ExactReal &x, bool clips) {
  if (!x.isFinite()) return {true, {}};
  if (x.isZero() || x.leading() < -126) return {false, ExactReal::of(x.negative, 0, 0)};
  const ExactReal largest = withSign(largestFinite(9), x.negative);
  if (compare(x.abs(), largest.abs()) > 0) return {!clips, largest};
  return {false, x.roundedTo(24)};
}

struct Part {
  mint status;
  ExactReal value;
};

Part narrowPart(const Asked &asked, const ExactReal &x) {
  const Narrowed narrow = narrowed(x, asked.clips && asked.method != 1);
  if (asked.method == 1 && narrow.failed)
    return {asked.clips ? 0 : 1305, withSign(largestFinite(9), x.isNaN() || x.isBelowZero())};
  if (narrow.failed || (asked.method == 1 && !modelAgree(asked.tolerance, narrow.value, x)))
    return {1305, {}};
  return {0, asked.method == 5 ? narrow.value.rounded() : narrow.value};
}

Part realPart(const Asked &asked, mint source, const ExactReal &x, mint target) {
  if (!isNarrowReal(source) && isNarrowReal(target)) return narrowPart(asked, x);
  return {0, asked.method == 5 ? x.rounded() : x};
}

Converted realToReal(const Asked &asked, mint source, const Parts &x, mint target) {
  const Part re = realPart(asked, source, x.re, target);
  if (re.status != 0 || !isComplexTag(source) || !isComplexTag(target))
    return re.status != 0 ? failed(re.status) : real(target, re.value);
  const Part im = realPart(asked, source, x.im, target);
  return im.status != 0 ? failed(im.status) : real(target, re.value, im.value);
}

// ---- Scale ----

uint64_t lowBits(uint64_t x, int bits) { return x & (~uint64_t{0} >> (64 - bits)); }

uint64_t scaledUp(uint64_t v, bool isPositive, mint source, mint target) {
  const int s = bitsOf(source), d = bitsOf(target);
  uint64_t result = 0;
  if (!isSignedTag(source) && !isSignedTag(target)) {
    for (int at = 0; at < d; at += s) result |= v << at;
    return result;
  }
  result = (v << (d - s)) + (isPositive ? (uint64_t{1} << (d - s)) - 1 : 0);
  return isSignedTag(source) == isSignedTag(target) ? result : result + (uint64_t{1} << (d - 1));
}

uint64_t scaledIntegers(uint64_t v, bool isPositive, mint source, mint target) {
  const int s = bitsOf(source), d = bitsOf(target);
  if (d > s) return scaledUp(v, isPositive, source, target);
  const bool flips = isSignedTag(source) != isSignedTag(target);
  return lowBits(v + (flips ? uint64_t{1} << (s - 1) : 0), s) >> (s - d);
}

double asDouble(const ExactReal &x) { return std::bit_cast<double>(x.roundedTo(53).patternOf(52, 11)); }

// One division and one multiplication of Real64 are part of the rule.
Converted scaledToReal(mint source, const ExactReal &x, mint target) {
  const ExactReal end = x.negative ? lowBound(source, false) : highBound(source);
  const double quotient = asDouble(x) / asDouble(end.abs());
  return real(target, ExactReal::of(quotient).roundedTo(significand(target)));
}

Converted scaledToInteger(const ExactReal &x, mint target) {
  if (x.isNaN()) return integer(target, bitsOf(target) == 64 ? uint64_t{1} << 63 : 0);
  const ExactReal low = ExactReal::ofInteger(isSignedTag(target) ? -1 : 0), high = ExactReal::ofInteger(1);
  const ExactReal c = compare(x, low) < 0 ? low : compare(x, high) > 0 ? high : x;
  if (c.isZero()) return integer(target, 0);
  const double factor = asDouble(c.negative ? lowBound(target, false).abs() : highBound(target));
  const double product = std::bit_cast<double>(c.patternOf(52, 11)) * factor;
  if (!c.negative && product >= factor) return integer(target, highBound(target).pattern());
  return integer(target, ExactReal::of(product).truncated().pattern());
}

Converted scaledIntegerSource(mint source, const void *element, mint target) {
  const ExactReal x = loadInteger(source, element);
  if (!isIntegerTag(target)) return scaledToReal(source, x, target);
  const bool isPositive = !x.isZero() && !x.negative;
  return integer(target, scaledIntegers(loadPattern(source, element), isPositive, source, target));
}

// ---- all ----

bool isNegligible(const Asked &asked, mint source, const void *element, const Parts &x) {
  if (x.im.isZero()) return true;
  if (asked.method == 1 || asked.tolerance < 0) return false;
  // One sum, or difference, in the source's own type is part of the rule.
  double re, im;
  if (isNarrowReal(source)) {
    float z[2];
    std::memcpy(z, element, sizeof z);
    const float rest = x.re.negative == x.im.negative ? z[0] - z[1] : z[0] + z[1];
    return modelAgree(asked.tolerance, x.re, ExactReal::of(rest));
  }
  std::memcpy(&re, element, sizeof re);
  std::memcpy(&im, static_cast<const char *>(element) + sizeof re, sizeof im);
  return modelAgree(asked.tolerance, x.re, ExactReal::of(x.re.negative == x.im.negative ? re - im : re + im));
}

} // namespace

Converted modelOf(const Asked &asked, mint source, const void *element, mint target) {
  const Parts x = load(source, element);
  if (isIntegerTag(source)) {
    if (asked.method == 7) return scaledIntegerSource(source, element, target);
    return isIntegerTag(target) ? integerToInteger(asked, source, x.re, target)
                                : integerToReal(asked, x.re, target);
  }
  if (isComplexTag(source) && !isComplexTag(target) && !isNegligible(asked, source, element, x))
    return failed(1305);
  if (!isIntegerTag(target)) return realToReal(asked, source, x, target);
  return asked.method == 7 ? scaledToInteger(x.re, target) : realToInteger(asked, x.re, target);
}

bool isElement(mint tag, const void *element, const void *expected) {
  if (isIntegerTag(tag)) return std::memcmp(element, expected, kElementWidths[tag]) == 0;
  const size_t width = isNarrowReal(tag) ? 4 : 8;
  for (size_t at = 0; at < kElementWidths[tag]; at += width) {
    const auto *x = static_cast<const char *>(element) + at, *y = static_cast<const char *>(expected) + at;
    if (std::memcmp(x, y, width) != 0 && !(loadReal(tag, x).isNaN() && loadReal(tag, y).isNaN()))
      return false;
  }
  return true;
}

std::string textOf(mint tag, const void *element) {
  const auto one = [&](const void *at) {
    char text[64];
    if (isIntegerTag(tag))
      std::snprintf(text, sizeof text, isSignedTag(tag) ? "%lld" : "%llu",
                    (unsigned long long)loadPattern(tag, at));
    else
      std::snprintf(text, sizeof text, "%.17g",
                    isNarrowReal(tag) ? double(*static_cast<const float *>(at))
                                      : *static_cast<const double *>(at));
    return std::string(text);
  };
  if (!isComplexTag(tag)) return one(element);
  return one(element) + " + i " + one(static_cast<const char *>(element) + kElementWidths[tag] / 2);
}

std::string Asked::text() const {
  return "method " + std::to_string(method) + (clips ? " clip" : "") + (isSymmetric ? " symmetric" : "") +
         " tolerance " + std::to_string(tolerance);
}

} // namespace torvane::test
