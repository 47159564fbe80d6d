// Rows are added up strip by strip: the sums of a strip of columns stay in the nearest cache while its rows
// stream past. Sums of all elements are the loops of the vector routines, over one piece whatever its length.
#include "total_sums.h"

#include "../elementwise/generated/arithmetic_loops.h"
#include "../runtime/platform_cpu_level.h"
#include "../scalar/evaluate.h"
#include "columns_loops.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

constexpr size_t kStrip = 2048; // columns

using torvane_loops::ArithmeticLoops;
using torvane_loops::ColumnsLoops;
using torvane_loops::ReductionLoop;

const ColumnsLoops &columnsLoops() {
  static constexpr const ColumnsLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(columns);
  return *byLevel[processorLevel()];
}

const ArithmeticLoops &arithmeticLoops() {
  static constexpr const ArithmeticLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(arithmetic);
  return *byLevel[processorLevel()];
}

// `add` adds rows of a stride to a strip of sums, which are 0 before; false ends it.
template <class T, class Add> bool sumStrips(T *sums, size_t width, Add add) {
  if (width > 0) memset(sums, 0, width * sizeof *sums);
  bool fits = true;
  for (size_t j = 0; j < width && fits; j += kStrip) fits = add(j, std::min(kStrip, width - j));
  return fits;
}

bool isFinite(mreal x) { return classify(x) == error::none; }

// Stores the start value itself, which is 0.
bool sumRun(const ReductionLoop &loop, void *sum, const void *data, mint count, bool isChecked) {
  return (isChecked ? loop.checked : loop.plain).run(sum, {{data, nullptr}, {1, 0}, count}, 0, count) == 0;
}

} // namespace

bool sumRows(mint *sums, const mint *rows, mint count, size_t width, bool isChecked) {
  const ColumnsLoops &loops = columnsLoops();
  return sumStrips(sums, width, [=, &loops](size_t j, size_t columns) {
    if (isChecked) return loops.addCheckedIntegers(sums + j, rows + j, count, width, columns);
    loops.addIntegers(sums + j, rows + j, count, width, columns);
    return true;
  });
}

// A partial sum that is infinite or a NaN leaves no finite one behind it.
bool sumRows(mreal *sums, const mreal *rows, mint count, size_t width, bool isChecked) {
  const ColumnsLoops &loops = columnsLoops();
  return sumStrips(sums, width, [=, &loops](size_t j, size_t columns) {
    loops.addReals(sums + j, rows + j, count, width, columns);
    return !isChecked || std::all_of(sums + j, sums + j + columns, isFinite);
  });
}

bool sumAll(mint *sum, const mint *data, mint count, bool isChecked) {
  return sumRun(arithmeticLoops().i_total, sum, data, count, isChecked);
}
bool sumAll(mreal *sum, const mreal *data, mint count, bool isChecked) {
  return sumRun(arithmeticLoops().d_total, sum, data, count, isChecked);
}
bool sumAll(mcomplex *sum, const mcomplex *data, mint count, bool isChecked) {
  return sumRun(arithmeticLoops().c_total, sum, data, count, isChecked);
}

} // namespace torvane
