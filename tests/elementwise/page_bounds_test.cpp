// No routine over arrays touches a byte beside its operands or its result: each stands against a page that
// may not be touched, at its end and at its start. A routine that does ends the test program.
#include "every_vector_call.h"
#include "support/guarded_pages.h"

#include <gtest/gtest.h>

using namespace torvane::test;

namespace {

size_t bytesOf(mint kind) { return kind == 1 ? 1 : widthOf(kind); }

// Pages full of one element, one for each operand and kind; and of the result.
class Pages {
public:
  // In a real domain of 0.5 or of 2.5 every function has values, so that no loop stops at its first element.
  void fill(mreal real) {
    for (size_t operand = 0; operand < 3; ++operand)
      for (mint kind = 1; kind <= 4; ++kind)
        fillOne(of[operand][kind], kind, kind == 2 ? 5 - mreal(operand) : real);
  }
  const GuardedPages &operand(size_t which, mint kind) const { return of[which][kind]; }
  GuardedPages result;

private:
  static void fillOne(const GuardedPages &pages, mint kind, mreal value) {
    const Element element = {kind, {value, kind == 4 ? 0.25 : 0}};
    for (size_t at = 0; at < pages.size(); at += bytesOf(kind)) {
      char *to = static_cast<char *>(pages.begin()) + at;
      if (kind == 1)
        *to = 1;
      else
        element.store(to);
    }
  }
  GuardedPages of[3][5];
};

enum class Side { start, end };

// Where a walk of `count` elements begins that covers exactly the bytes at that side of the pages.
char *startOfWalk(const GuardedPages &pages, Side side, mint count, mint stride, size_t bytes) {
  const size_t extent =
      stride == 0 ? 1 : size_t(count) * size_t(std::abs(stride)) - size_t(std::abs(stride)) + 1;
  char *lowest = static_cast<char *>(side == Side::start ? pages.begin() : pages.atEnd(extent * bytes));
  return stride < 0 ? lowest + (extent - 1) * bytes : lowest;
}

void callAt(const Pages &pages, const VectorCall &call, Side side, mint count, const mint *strides,
            mint flags) {
  OperandPointers operands = {};
  for (size_t k = 0; k < call.kinds.size(); ++k)
    operands[k] = startOfWalk(pages.operand(k, call.kinds[k]), side, count,
                              k + 1 < call.strides ? strides[k + 1] : 1, bytesOf(call.kinds[k]));
  call.run(startOfWalk(pages.result, side, call.isReduction ? 1 : count, call.strides > 0 ? strides[0] : 1,
                       call.resultBytes),
           operands, count, strides, flags);
}

const mint kShapes[][4] = {{1, 1, 1, 1}, {1, 0, 1, 1},     {1, 1, 0, 1},
                           {1, 1, 1, 0}, {-1, -1, -1, -1}, {2, 3, 2, 3}};

TEST(PageBounds, NoRoutineReachesBesideItsElements) {
  Pages pages;
  for (const mreal real : {0.5, 2.5}) {
    pages.fill(real);
    for (const VectorCall &call : everyVectorCall()) {
      SCOPED_TRACE(call.name);
      for (const auto &shape : kShapes)
        for (mint count = 1; count <= 67; ++count)
          for (const mint flags : {0, 6})
            for (const Side side : {Side::start, Side::end}) callAt(pages, call, side, count, shape, flags);
    }
  }
  EXPECT_GT(everyVectorCall().size(), 200u);
}

TEST(PageBounds, NoRoutineTouchesAnythingForNoElements) {
  const mint dense[4] = {1, 1, 1, 1};
  for (const VectorCall &call : everyVectorCall()) {
    alignas(mreal) char accumulator[2 * sizeof(mcomplex)];
    for (const mint count : {0, -1, INT32_MIN})
      for (const mint flags : {0, 6})
        EXPECT_EQ(call.run(call.isReduction ? accumulator : nullptr, {}, count, dense, flags), 0)
            << call.name;
  }
}

} // namespace
