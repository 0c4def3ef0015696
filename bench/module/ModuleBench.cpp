// module_bench: every row of the class table and the route series through the module's
// dispatcher, inside the simulated appliance. Exits non-zero when an operation ran another
// number of command lines than its row prescribes, or failed.
//   appliance/run -- build/bench/module/module_bench [--smoke] [benchmark flags]
// --smoke runs each row once (the test suite's check that the rows still run).
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "Appliance.h"
#include "Measure.h"
#include "Operation.h"

namespace {

// The open counter must be loaded before anything opens a file: run again with it.
void restartWithOpenCounter([[maybe_unused]] char** argv) {
#ifdef RAS_OPEN_COUNTER
  setenv("LD_PRELOAD", RAS_OPEN_COUNTER, 1);
  execv("/proc/self/exe", argv);
  std::perror("module_bench: cannot run again with the open counter");
  std::exit(2);
#else
  std::fputs("module_bench: a sanitizer build counts no opens\n", stderr);
#endif
}

bool takeFlag(int& argc, char** argv, const char* flag) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], flag) != 0) continue;
    for (int j = i; j < argc; ++j) argv[j] = argv[j + 1];
    --argc;
    return true;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (!appliance::insideAppliance()) {
    std::fprintf(stderr, "module_bench runs inside the appliance: appliance/run -- %s\n", argv[0]);
    return 2;
  }
  if (!bench::countingOpens()) restartWithOpenCounter(argv);

  const bool smoke = takeFlag(argc, argv, "--smoke");
  bench::registerRows(bench::classRows(), smoke);
  const std::vector<bench::Operation> routes = bench::routeRows();
  if (routes.empty())
    std::fprintf(stderr, "Zeph_NextHopIPRoute has no implementation: no route series\n");
  bench::registerRows(routes, smoke);

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return bench::anyRowFailed() ? 1 : 0;
}
