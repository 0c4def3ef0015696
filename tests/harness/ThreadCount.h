// The calling process's thread count, for tests that check a thread was started or joined.
#ifndef HARNESS_THREADCOUNT_H
#define HARNESS_THREADCOUNT_H

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <thread>

inline std::size_t threadCount() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return static_cast<std::size_t>(std::distance(begin(tasks), end(tasks)));
}

// The thread count once it settles at `expected`, or what it is after a generous bound. A
// joined thread can still be listed for a moment: the kernel wakes the joiner before it
// removes the task.
inline std::size_t threadCountSettlingAt(std::size_t expected) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  std::size_t count = threadCount();
  while (count != expected && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::yield();
    count = threadCount();
  }
  return count;
}

#endif
