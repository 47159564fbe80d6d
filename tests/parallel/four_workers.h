// While one lives: a pool of four workers, whatever the machine has, for routines at their default
// thresholds. The pool is made at once, so that its memory is no part of what a test counts.
#pragma once

#include "elementwise/pieces.h"
#include "parallel/pool.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"

#include <gtest/gtest.h>

namespace torvane::test {

class FourWorkers {
public:
  FourWorkers() : before(setWorkerCount(4)) {
    tearDownPool();
    ParallelPool *pool = enterPool(false);
    EXPECT_EQ(pool->workerCount, 4);
    leavePool(pool);
    for (const RoutineArity arity : {kReductions, kScalarValued, kBinary})
      EXPECT_TRUE(goesParallel(arity, 40000)) << "else the tests here are those of one thread";
  }
  ~FourWorkers() {
    tearDownPool();
    setWorkerCount(before);
  }
  FourWorkers(const FourWorkers &) = delete;
  FourWorkers &operator=(const FourWorkers &) = delete;

private:
  mint before;
};

} // namespace torvane::test
