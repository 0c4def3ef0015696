// The preloaded open counter: each way of opening a file counts once, in the kind of its
// path, and the commands the process spawns run without the counter.
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "OpenCounter.h"

namespace {

using Counter = long (*)(int);

Counter counter() {
  return reinterpret_cast<Counter>(dlsym(RTLD_DEFAULT, "ras_open_count"));
}

long opened(int kind, const std::function<void()>& open) {
  const long before = counter()(kind);
  open();
  return counter()(kind) - before;
}

TEST(OpenCounter, CountsEachOpenOnceByKindOfPath) {
  ASSERT_NE(counter(), nullptr) << "run with LD_PRELOAD naming the open counter";
  const char* file = "/proc/self/status";
  struct Row {
    const char* how;
    int kind;
    std::function<void()> open;
  } rows[] = {
      {"open", RAS_OPEN_FILE, [&] { close(::open(file, O_RDONLY)); }},
      {"openat", RAS_OPEN_FILE, [&] { close(::openat(AT_FDCWD, file, O_RDONLY)); }},
      {"fopen", RAS_OPEN_FILE, [&] { std::fclose(std::fopen(file, "r")); }},
      {"ifstream", RAS_OPEN_FILE, [&] { std::ifstream in(file); }},
      {"a missing file", RAS_OPEN_FILE, [] { std::ifstream in("/nonexistent/file"); }},
      {"registry store", RAS_OPEN_REGISTRY, [] { std::ifstream in("/var/lib/qvl/registry"); }},
      {"simulation state", RAS_OPEN_SIMULATION,
       [] { std::ifstream in("/var/lib/appliance/journal"); }},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(opened(row.kind, row.open), 1) << row.how;
    EXPECT_EQ(opened(RAS_OPEN_FILE, row.open), row.kind == RAS_OPEN_FILE ? 1 : 0) << row.how;
  }
}

TEST(OpenCounter, LeavesSpawnedCommandsAlone) {
  EXPECT_EQ(std::getenv("LD_PRELOAD"), nullptr);
  EXPECT_EQ(std::system("test -z \"$LD_PRELOAD\""), 0);
}

}  // namespace
