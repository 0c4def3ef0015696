// The measuring window: clocks, resource usage, the journal and the open counter.
#include "Measure.h"

#include <dlfcn.h>
#include <sys/resource.h>

#include <chrono>

#include "Appliance.h"
#include "OpenCounter.h"

namespace bench {
namespace {

using Counter = long (*)(int);

Counter openCounter() {
  static const Counter counter = reinterpret_cast<Counter>(dlsym(RTLD_DEFAULT, "ras_open_count"));
  return counter;
}

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double cpuSeconds(int who) {
  rusage usage{};
  getrusage(who, &usage);
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double now() {
  using Clock = std::chrono::steady_clock;
  return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

Sample snapshot() {
  Sample sample;
  sample.wallSeconds = now();
  sample.selfCpuSeconds = cpuSeconds(RUSAGE_SELF);
  sample.childrenCpuSeconds = cpuSeconds(RUSAGE_CHILDREN);
  if (Counter counter = openCounter()) {
    sample.fileOpens = counter(RAS_OPEN_FILE);
    sample.registryOpens = counter(RAS_OPEN_REGISTRY);
  }
  return sample;
}

// A command that ends in a newline leaves an empty line after it in the journal.
std::vector<std::string> journalCommands() {
  std::vector<std::string> commands;
  for (std::string& line : appliance::journal()) {
    if (!line.empty()) commands.push_back(std::move(line));
  }
  return commands;
}

}  // namespace

Sample& Sample::operator+=(const Sample& other) {
  wallSeconds += other.wallSeconds;
  selfCpuSeconds += other.selfCpuSeconds;
  childrenCpuSeconds += other.childrenCpuSeconds;
  spawns += other.spawns;
  fileOpens += other.fileOpens;
  registryOpens += other.registryOpens;
  return *this;
}

void Window::open() {
  appliance::clearJournal();
  start_ = snapshot();
}

Sample Window::close() {
  const Sample end = snapshot();
  commands_ = journalCommands();
  Sample delta;
  delta.wallSeconds = end.wallSeconds - start_.wallSeconds;
  delta.selfCpuSeconds = end.selfCpuSeconds - start_.selfCpuSeconds;
  delta.childrenCpuSeconds = end.childrenCpuSeconds - start_.childrenCpuSeconds;
  delta.spawns = static_cast<long>(commands_.size());
  delta.fileOpens = end.fileOpens - start_.fileOpens;
  delta.registryOpens = end.registryOpens - start_.registryOpens;
  return delta;
}

bool countingOpens() {
  return openCounter() != nullptr;
}

}  // namespace bench
