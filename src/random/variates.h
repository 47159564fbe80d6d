// What the handlers of two parameters and perhaps extents share: RandomNormal and RandomBeta.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Draws `count` values with two parameters, from the calling thread's generator. Returns a status.
using DrawVariates = mint (*)(mreal *destination, mint count, mreal first, mreal second);

mint drawNormal(mreal *destination, mint count, mreal mean, mreal deviation);
mint drawBeta(mreal *destination, mint count, mreal a, mreal b);

// Two reals and perhaps a dimension tensor: one value or a tensor. The status of the draw is the handler's.
mint handleVariates(DrawVariates draw, mint argumentCount, void *const *arguments, void *result);

} // namespace torvane
