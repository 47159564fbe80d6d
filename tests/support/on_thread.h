// Runs a function on a thread of its own, with a heap of its own, and waits for it.
#pragma once

#include <thread>

namespace torvane::test {

template <class Body> void onThread(Body body) { std::thread(body).join(); }

} // namespace torvane::test
