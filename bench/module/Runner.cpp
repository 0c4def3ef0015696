// Runs a row: a fresh appliance, the module initialised in it, then measured iterations.
// Counters: module_us (this process's CPU per operation), children_us (the spawned
// commands' CPU), module_share_pct (module CPU of the operation's whole CPU), spawns
// beside prescribed, and opens (appliance files opened by this process).
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdio>
#include <exception>

#include "Appliance.h"
#include "Measure.h"
#include "OW_CIMException.hpp"
#include "Operation.h"
#include "QvlStandIn.h"

namespace bench {
namespace {

constexpr int kSpawningIterations = 10;

std::atomic<bool> failed{false};

void reportMismatch(const Operation& row, const Sample& sample, const Window& window) {
  failed = true;
  std::fprintf(stderr, "%s: %ld command lines, %ld prescribed:\n", row.name.c_str(), sample.spawns,
               row.prescribed);
  for (const std::string& command : window.commands())
    std::fprintf(stderr, "  %s\n", command.c_str());
}

void setCounters(benchmark::State& state, const Sample& total, long prescribed) {
  using benchmark::Counter;
  const double cpu = total.selfCpuSeconds + total.childrenCpuSeconds;
  state.counters["module_us"] = Counter(total.selfCpuSeconds * 1e6, Counter::kAvgIterations);
  state.counters["children_us"] = Counter(total.childrenCpuSeconds * 1e6, Counter::kAvgIterations);
  state.counters["module_share_pct"] = cpu > 0 ? 100.0 * total.selfCpuSeconds / cpu : 100.0;
  state.counters["spawns"] = Counter(static_cast<double>(total.spawns), Counter::kAvgIterations);
  state.counters["prescribed"] = static_cast<double>(prescribed);
  state.counters["opens"] = Counter(static_cast<double>(total.fileOpens), Counter::kAvgIterations);
  state.counters["registry_opens"] =
      Counter(static_cast<double>(total.registryOpens), Counter::kAvgIterations);
}

void runRow(benchmark::State& state, const Operation& row) {
  appliance::reset();
  QvlNotifySync();
  BenchClient client;
  bool mismatch = false;
  try {
    if (row.setUp) row.setUp(client);
    if (!row.initializes) client.initialize();
    Window window;
    Sample total;
    for (auto _ : state) {
      if (row.before) row.before(client);
      window.open();
      row.action(client);
      if (row.settles) QvlNotifySync();
      const Sample sample = window.close();
      state.SetIterationTime(sample.wallSeconds);
      if (sample.spawns != row.prescribed && !mismatch) {
        mismatch = true;
        reportMismatch(row, sample, window);
      }
      total += sample;
      if (row.after) row.after(client);
    }
    setCounters(state, total, row.prescribed);
  } catch (const OpenWBEM::CIMException& error) {
    failed = true;
    state.SkipWithError(error.getMessage());
  } catch (const std::exception& error) {
    failed = true;
    state.SkipWithError(error.what());
  }
}

}  // namespace

Operation initializeRow(long prescribed) {
  Operation row;
  row.name = "initialize";
  row.prescribed = prescribed;
  row.initializes = true;
  row.action = [](BenchClient& client) { client.initialize(); };
  row.after = [](BenchClient& client) { client.unload(); };
  return row;
}

Operation enumerateRow(const std::string& className, long prescribed) {
  Operation row;
  row.name = className + "/ei";
  row.prescribed = prescribed;
  row.action = [className](BenchClient& client) { client.enumerate(className); };
  return row;
}

Operation getRow(const Target& target, long prescribed) {
  Operation row;
  row.name = target.className + "/gi " + target.keys.back().second;
  row.prescribed = prescribed;
  row.action = [target](BenchClient& client) { client.get(target); };
  return row;
}

Operation modifyRow(const Target& target, const std::string& label, std::vector<Change> changes,
                    long prescribed) {
  Operation row;
  row.name = target.className + "/mi " + target.keys.back().second + " " + label;
  row.prescribed = prescribed;
  row.action = [target, changes](BenchClient& client) { client.modify(target, changes); };
  return row;
}

void registerRows(const std::vector<Operation>& rows, bool smoke) {
  for (const Operation& row : rows) {
    auto* benchmark = benchmark::RegisterBenchmark(
        row.name.c_str(), [row](benchmark::State& state) { runRow(state, row); });
    benchmark->UseManualTime()->Unit(benchmark::kMicrosecond);
    // A run that spawns takes about a second here: ten of them, not the one that
    // Google Benchmark's minimum time would settle for.
    if (smoke) {
      benchmark->Iterations(1);
    } else if (row.prescribed > 0) {
      benchmark->Iterations(kSpawningIterations);
    }
  }
}

bool anyRowFailed() {
  return failed;
}

}  // namespace bench
