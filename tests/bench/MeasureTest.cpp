// The benchmarks' measuring window inside the appliance: it counts the command lines an
// operation hands to the shell (one per command, whatever the command prints or ends
// with) and tells the process's own CPU from that of the commands it waited for.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "ApplianceTest.h"
#include "Measure.h"

namespace {

using MeasureTest = ApplianceTest;

TEST_F(MeasureTest, CountsCommandLinesNotJournalLines) {
  struct Row {
    const char* what;
    const char* commands[3];
    long spawns;
  } rows[] = {
      {"nothing", {}, 0},
      {"one command with a pipeline", {"echo a | grep a > /dev/null"}, 1},
      {"a command ending in a newline", {"true\n"}, 1},
      {"three commands", {"true", "true", "true"}, 3},
  };
  for (const Row& row : rows) {
    bench::Window window;
    window.open();
    for (const char* command : row.commands) {
      if (command != nullptr) std::system(command);
    }
    EXPECT_EQ(window.close().spawns, row.spawns) << row.what;
  }
}

TEST_F(MeasureTest, TellsOwnCpuFromTheCommandsCpu) {
  bench::Window window;
  window.open();
  std::system("i=0; while [ $i -lt 200000 ]; do i=$((i+1)); done");
  const bench::Sample child = window.close();
  EXPECT_GT(child.childrenCpuSeconds, 0.05);
  EXPECT_LT(child.selfCpuSeconds, child.childrenCpuSeconds / 5);

  window.open();
  // A tenth of a second of this process's own CPU.
  const std::clock_t start = std::clock();
  while (std::clock() - start < CLOCKS_PER_SEC / 10) {
  }
  const bench::Sample own = window.close();
  EXPECT_GT(own.selfCpuSeconds, 0.09);
  EXPECT_EQ(own.childrenCpuSeconds, 0);
  EXPECT_EQ(own.spawns, 0);
}

}  // namespace
