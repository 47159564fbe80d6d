#include "runtime/types.h"
#include <torvane/machfuncs.h>
#include <cmath>
#include <cstddef>
extern const uint32_t MTensor_typeSizeTable[7] = {0, 4, 4, 8, 16, 0, 0};
mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint) {
  for (ptrdiff_t i = 0; i < count; ++i) {
    const double r = std::nearbyint(static_cast<const double *>(x)[i * strides[1]]);
    if (!(r > -2147483648.0 && r <= 2147483647.0)) return static_cast<mint>(i) + 1;
    static_cast<mint *>(result)[i * strides[0]] = static_cast<mint>(r);
  }
  return 0;
}
