// Order, growth and uniqueness of the thread hooks.
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <vector>

using namespace torvane;

namespace {

std::vector<int> ran;
template <int number> void hook() { ran.push_back(number); }

template <int... number> void addAll(void (*add)(ThreadHook), std::integer_sequence<int, number...>) {
  (add(hook<number>), ...);
}

class ThreadHooks : public testing::Test {
protected:
  ThreadHooks() {
    tearDownThreadHookLists();
    ran.clear();
  }
  ~ThreadHooks() override { tearDownThreadHookLists(); }
};

TEST_F(ThreadHooks, EmptyListsRunNothing) {
  runThreadStartHooks();
  createThreadHookLists();
  runThreadStartHooks();
  runThreadExitHooks();
  EXPECT_TRUE(ran.empty());
}

TEST_F(ThreadHooks, StartHooksRunInOrderOfRegistration) {
  createThreadHookLists();
  addAll(addThreadStartHook, std::make_integer_sequence<int, 5>());
  runThreadStartHooks();
  EXPECT_EQ(ran, (std::vector{0, 1, 2, 3, 4}));
}

TEST_F(ThreadHooks, ExitHooksRunInReverse) {
  createThreadHookLists();
  addAll(addThreadExitHook, std::make_integer_sequence<int, 5>());
  runThreadExitHooks();
  EXPECT_EQ(ran, (std::vector{4, 3, 2, 1, 0}));
}

TEST_F(ThreadHooks, TheTwoListsAreApart) {
  addThreadStartHook(hook<1>);
  addThreadExitHook(hook<2>);
  runThreadStartHooks();
  EXPECT_EQ(ran, std::vector{1});
  runThreadExitHooks();
  EXPECT_EQ(ran, (std::vector{1, 2}));
}

TEST_F(ThreadHooks, HookIsAddedOnceHoweverOftenStartUpAddsIt) {
  for (int start = 0; start < 3; ++start) {
    createThreadHookLists();
    addThreadExitHook(hook<1>);
    addThreadExitHook(hook<2>);
  }
  runThreadExitHooks();
  EXPECT_EQ(ran, (std::vector{2, 1}));
}

TEST_F(ThreadHooks, ListsStartWithEightPlacesAndDouble) {
  test::FailingHeap heap;
  createThreadHookLists();
  EXPECT_EQ(heap.requests(), 2);
  addAll(addThreadStartHook, std::make_integer_sequence<int, 8>());
  EXPECT_EQ(heap.requests(), 2);
  addThreadStartHook(hook<8>);
  EXPECT_EQ(heap.requests(), 3);
  addAll(addThreadStartHook, std::make_integer_sequence<int, 16>());
  EXPECT_EQ(heap.requests(), 3);
  addAll(addThreadStartHook, std::make_integer_sequence<int, 40>());
  EXPECT_EQ(heap.requests(), 5);
  runThreadStartHooks();
  ASSERT_EQ(ran.size(), 40u);
  for (int i = 0; i < 40; ++i) EXPECT_EQ(ran[static_cast<size_t>(i)], i);
  tearDownThreadHookLists();
  EXPECT_EQ(heap.blocksOut(), 0);
}

TEST_F(ThreadHooks, ListWithoutMemoryIsTheFatalPath) {
  void (*const uses[])() = {createThreadHookLists, [] { addThreadExitHook(hook<1>); }};
  for (const auto use : uses) {
    const test::ChildOutcome child = test::runInChild([use] {
      test::FailingHeap heap;
      heap.failRequest(1);
      use();
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 1);
  }
}

TEST_F(ThreadHooks, ListsAreUsableBeforeTheyAreCreated) {
  addThreadStartHook(hook<3>);
  createThreadHookLists();
  runThreadStartHooks();
  EXPECT_EQ(ran, std::vector{3});
}

TEST_F(ThreadHooks, HookMayAddAnotherWhileTheListRuns) {
  addThreadStartHook([] {
    ran.push_back(100);
    addAll(addThreadStartHook, std::make_integer_sequence<int, 20>());
  });
  runThreadStartHooks();
  EXPECT_EQ(ran.size(), 21u);
}

TEST_F(ThreadHooks, ListsBelongToTheProcessAndRunOnTheThreadThatAsks) {
  static std::thread::id seen;
  addThreadStartHook([] { seen = std::this_thread::get_id(); });
  std::thread other(runThreadStartHooks);
  const std::thread::id otherId = other.get_id();
  other.join();
  EXPECT_EQ(seen, otherId);
}

} // namespace
