#include "conversion_peers.h"

#include <cmath>
#include <cstdint>

namespace {

template <class To, class From, class Rule>
void loop(void *toData, const void *fromData, ptrdiff_t count, Rule rule) {
  auto *__restrict to = static_cast<To *>(toData);
  const auto *__restrict from = static_cast<const From *>(fromData);
  for (ptrdiff_t i = 0; i < count; ++i) to[i] = rule(from[i]);
}

} // namespace

void roundToWords(void *to, const void *from, ptrdiff_t count) {
  loop<int32_t, double>(to, from, count, [](double x) { return static_cast<int32_t>(std::rint(x)); });
}
void clipToWords(void *to, const void *from, ptrdiff_t count) {
  loop<int32_t, double>(to, from, count, [](double x) {
    const double raised = x > -2147483648.0 ? x : -2147483648.0;
    return static_cast<int32_t>(std::rint(raised < 2147483647.0 ? raised : 2147483647.0));
  });
}
void narrowReals(void *to, const void *from, ptrdiff_t count) {
  loop<float, double>(to, from, count, [](double x) { return static_cast<float>(x); });
}
void clipToBytes(void *to, const void *from, ptrdiff_t count) {
  loop<uint8_t, int32_t>(to, from, count, [](int32_t x) {
    return static_cast<uint8_t>(x < 0 ? 0 : x > 255 ? 255 : x);
  });
}
void cutToBytes(void *to, const void *from, ptrdiff_t count) {
  loop<uint8_t, int32_t>(to, from, count, [](int32_t x) { return static_cast<uint8_t>(x); });
}
void widenToReals(void *to, const void *from, ptrdiff_t count) {
  loop<double, int16_t>(to, from, count, [](int16_t x) { return static_cast<double>(x); });
}
void scaleBytes(void *to, const void *from, ptrdiff_t count) {
  loop<float, uint8_t>(to, from, count, [](uint8_t x) { return static_cast<float>(x) * (1.0f / 255); });
}
