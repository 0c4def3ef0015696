// What one operation costs: its wall time, the CPU of this process (the module and the
// registry library's thread) apart from the CPU of the commands it spawned, the command
// lines it handed to the shell (the appliance's journal) and the files it opened.
#ifndef RAS_BENCH_MEASURE_H
#define RAS_BENCH_MEASURE_H

#include <string>
#include <vector>

namespace bench {

struct Sample {
  double wallSeconds = 0;
  double selfCpuSeconds = 0;      // RUSAGE_SELF: this process, every thread
  double childrenCpuSeconds = 0;  // RUSAGE_CHILDREN: the spawned commands, waited for
  long spawns = 0;                // command lines run through "sh -c"
  long fileOpens = 0;             // opens of the appliance's files
  long registryOpens = 0;         // opens of the registry library's store

  Sample& operator+=(const Sample& other);
};

// Measures what happens between open() and close(). open() empties the journal, so the
// command lines close() finds are the operation's own.
class Window {
 public:
  void open();
  Sample close();
  // The command lines of the last closed window, as the journal holds them.
  const std::vector<std::string>& commands() const { return commands_; }

 private:
  Sample start_;
  std::vector<std::string> commands_;
};

// True when the open counter is loaded (the benchmark re-executes itself with it).
bool countingOpens();

}  // namespace bench

#endif
