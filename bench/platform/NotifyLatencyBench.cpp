// NotifyLatencyBench.cpp: time from a registry write to the subscriber's callback, for a write
// made in this process and for `qvlreg set` run as a separate process.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <string>

#include "QvlShared.h"

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kGiveUp = std::chrono::seconds(5);
constexpr const char* kValues[] = {"ENABLED", "DISABLED"};

// Counts callbacks; the benchmark waits for the next one.
struct Arrivals {
  std::mutex mutex;
  std::condition_variable arrived;
  long count = 0;
  static void callback(unsigned long context) {
    Arrivals* self = reinterpret_cast<Arrivals*>(context);
    {
      const std::lock_guard<std::mutex> lock(self->mutex);
      ++self->count;
    }
    self->arrived.notify_all();
  }
  long seen() {
    const std::lock_guard<std::mutex> lock(mutex);
    return count;
  }
  bool waitBeyond(long seen) {
    std::unique_lock<std::mutex> lock(mutex);
    return arrived.wait_for(lock, kGiveUp, [&] { return count > seen; });
  }
};

// A store in a temporary directory with one subscription to ModemStatus.
class Fixture {
 public:
  Fixture() {
    std::string dir = (std::filesystem::temp_directory_path() / "qvl-bench-XXXXXX").string();
    ::mkdtemp(dir.data());
    dir_ = dir;
    ::setenv("QVL_REGISTRY", (dir_ / "registry").c_str(), 1);
    QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "DISABLED");
    QvlNotifyRegChangeStart("SoftModem", "ModemCC", "ModemStatus", Arrivals::callback,
                            reinterpret_cast<unsigned long>(&arrivals), &handle_);
  }
  ~Fixture() {
    QvlNotifyRegChangeStop(handle_);
    std::filesystem::remove_all(dir_);
  }
  Arrivals arrivals;

 private:
  std::filesystem::path dir_;
  int handle_ = -1;
};

bool runQvlregSet(const char* value) {
  const char* argv[] = {QVLREG_PATH, "set", "SoftModem", "ModemCC", "ModemStatus", value, nullptr};
  pid_t pid = -1;
  if (::posix_spawn(&pid, argv[0], nullptr, nullptr, const_cast<char**>(argv), environ) != 0) {
    return false;
  }
  int status = 0;
  return ::waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool setInProcess(const char* value) {
  return QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", value) == 0;
}

// One iteration: write the other value, then wait for the callback it causes.
template <bool (*Write)(const char*)>
void changeToCallback(benchmark::State& state) {
  Fixture fixture;
  long iteration = 0;
  for (auto _ : state) {
    const long seen = fixture.arrivals.seen();
    const auto start = Clock::now();
    if (!Write(kValues[iteration++ % 2]) || !fixture.arrivals.waitBeyond(seen)) {
      state.SkipWithError("the change did not reach the callback");
      break;
    }
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
  }
}

}  // namespace

BENCHMARK(changeToCallback<setInProcess>)
    ->Name("set_in_process_to_callback")
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(changeToCallback<runQvlregSet>)
    ->Name("qvlreg_process_to_callback")
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
