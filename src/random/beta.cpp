// Beta variates: by inversion where a parameter is 1, else by rejection, each trial from two uniforms.
//
// Both below 1: M. D. Joehnk, Metrika 8 (1964). Both above: R. C. H. Cheng, algorithm BB, Comm. ACM 21
// (1978). One on either side: A. C. Atkinson and J. Whittaker, J. R. Stat. Soc. A 139 (1976). Uniforms come
// in one call for as many trials as values are missing, and the trials of a call end before the next call:
// the sequence of the stream depends on that.
#include "../tensor/scratch.h"
#include "draw_source.h"
#include "variates.h"
#include <torvane/distributions.h>

#include <algorithm>
#include <cmath>

namespace torvane {

namespace {

// What a trial gives. kNotFinite besides, which ends the draw, where no trial of such parameters is ever
// accepted.
enum Outcome : mint { kAccepted = 0, kRejected = 1 };

class JoehnkTrial {
public:
  JoehnkTrial(mreal a, mreal b) : inverseA(1 / a), inverseB(1 / b) {}
  mint operator()(mreal u1, mreal u2, mreal *value) const {
    if (std::signbit(inverseA) || std::signbit(inverseB)) return kNotFinite;
    const mreal p = std::pow(u1, inverseA), q = std::pow(u2, inverseB);
    if (p + q > 1) return kRejected;
    *value = p / (p + q);
    return kAccepted;
  }

private:
  mreal inverseA, inverseB;
};

class ChengTrial {
public:
  ChengTrial(mreal a, mreal b)
      : a0(std::min(a, b)), b0(std::max(a, b)), s(a0 + b0), beta(std::sqrt((s - 2) / (2 * a0 * b0 - s))),
        isFlipped(a > b) {}
  mint operator()(mreal u1, mreal u2, mreal *value) const {
    constexpr mreal kLog4 = 1.3862943611198906;
    const mreal v = beta * std::log(u1 / (1 - u1)), w = a0 * std::exp(v);
    const mreal level = s * std::log(s / (b0 + w)) + (1 / beta + a0) * v - kLog4;
    if (std::isnan(level)) return kNotFinite; // parameters too large
    if (level < std::log(u1 * u1 * u2)) return kRejected;
    *value = (isFlipped ? b0 : w) / (b0 + w);
    return kAccepted;
  }

private:
  mreal a0, b0, s, beta;
  bool isFlipped;
};

class SwitchingTrial {
public:
  SwitchingTrial(mreal a, mreal b)
      : a0(std::min(a, b)), b0(std::max(a, b)), t((1 - a0) / (b0 + 1 - a0)),
        r(b0 * t / (b0 * t + a0 * std::pow(1 - t, b0))), isFlipped(a > 1) {}
  mint operator()(mreal u1, mreal u2, mreal *value) const {
    mreal x, level;
    if (u1 <= r) {
      x = t * std::pow(u1 / r, 1 / a0);
      level = (b0 - 1) * std::log(1 - x);
    } else {
      x = 1 - (1 - t) * std::pow((1 - u1) / (1 - r), 1 / b0);
      level = (a0 - 1) * std::log(x / t);
    }
    if (std::log(u2) >= level) return kRejected;
    *value = isFlipped ? 1 - x : x;
    return kAccepted;
  }

private:
  mreal a0, b0, t, r;
  bool isFlipped;
};

// One trial for each pair; how many values were accepted.
template <class Trial>
mint tryPairs(const Trial &trial, const mreal *uniforms, mint pairs, mreal *values, mint *accepted) {
  *accepted = 0;
  for (mint k = 0; k < pairs; ++k) {
    const mint outcome = trial(uniforms[2 * k], uniforms[2 * k + 1], values + *accepted);
    if (outcome == kNotFinite) return outcome;
    *accepted += outcome == kAccepted;
  }
  return kSuccess;
}

// Of some parameters that make no distribution, (-50, 20) for one, not one trial in millions is accepted, if
// any ever is. Those that make one are accepted far more often than once in ten trials, so that as many
// rejections in a row tell them apart for sure.
constexpr mint kHopelessTrials = 10000;

template <class Trial> mint drawByTrials(const Trial &trial, mreal *values, mint count) {
  const RealSource source;
  if (!source) return kNoFunction;
  Scratch<mreal> uniforms(2 * count);
  mint status = uniforms.status(), rejected = 0;
  for (mint accepted; status == kSuccess && count > 0; values += accepted, count -= accepted) {
    if (rejected >= kHopelessTrials) return kNotFinite;
    accepted = 0;
    status = source.draw<mreal>(uniforms.get(), 2 * count, 0, 1);
    if (status == kSuccess) status = tryPairs(trial, uniforms.get(), count, values, &accepted);
    rejected = accepted == 0 ? rejected + count : 0;
  }
  return status;
}

mint drawByInversion(mreal *values, mint count, mreal a, mreal b) {
  const mint status = UniformRandomMReals(values, count, 0, 1);
  if (status != kSuccess) return status;
  for (mint k = 0; k < count; ++k)
    values[k] = a == 1 ? 1 - std::pow(1 - values[k], 1 / b) : std::pow(values[k], 1 / a);
  return kSuccess;
}

} // namespace

mint drawBeta(mreal *destination, mint count, mreal a, mreal b) {
  if (a == 1 || b == 1) return drawByInversion(destination, count, a, b);
  if (a < 1 && b < 1) return drawByTrials(JoehnkTrial(a, b), destination, count);
  if (a > 1 && b > 1) return drawByTrials(ChengTrial(a, b), destination, count);
  return drawByTrials(SwitchingTrial(a, b), destination, count);
}

} // namespace torvane
