// ConcurrentWriteTest.cpp: two processes writing the store at once lose no update.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "QvlShared.h"
#include "TempRegistry.hpp"

namespace {

constexpr int kWritesPerProcess = 150;
constexpr int kWriters = 2;

std::string entryName(int writer, int index) {
  return "W" + std::to_string(writer) + "_" + std::to_string(index);
}

// Runs in the child: every write is a read-modify-write of the whole file.
[[noreturn]] void writeEntries(int writer) {
  int failures = 0;
  for (int i = 0; i < kWritesPerProcess; ++i) {
    const std::string name = entryName(writer, i);
    failures += QvlSetRegEntryString("Load", "Test", name.c_str(), name.c_str()) != 0;
  }
  ::_exit(failures == 0 ? 0 : 1);
}

TEST(ConcurrentWrite, TwoProcessesLoseNoUpdate) {
  qvltest::TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  pid_t children[kWriters];
  for (int writer = 0; writer < kWriters; ++writer) {
    children[writer] = ::fork();
    ASSERT_GE(children[writer], 0);
    if (children[writer] == 0) writeEntries(writer);
  }
  for (pid_t child : children) {
    int status = 0;
    ASSERT_EQ(child, ::waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  int missing = 0;
  for (int writer = 0; writer < kWriters; ++writer) {
    for (int i = 0; i < kWritesPerProcess; ++i) {
      const std::string name = entryName(writer, i);
      char buffer[60];
      missing += QvlGetRegEntryString("Load", "Test", name.c_str(), buffer, sizeof buffer) != 0 ||
                 name != buffer;
    }
  }
  EXPECT_EQ(0, missing);
  char status[60];
  ASSERT_EQ(0, QvlGetRegEntryString("SoftModem", "ModemCC", "ModemStatus", status, 60));
  EXPECT_STREQ("ENABLED", status);
}

}  // namespace
