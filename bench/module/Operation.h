// One benchmark row: an operation through the dispatcher, what it is run on, and the
// number of command lines the design prescribes for it. Adding a class, or a size of the
// route table, is adding rows.
#ifndef RAS_BENCH_OPERATION_H
#define RAS_BENCH_OPERATION_H

#include <functional>
#include <string>
#include <vector>

#include "BenchClient.h"

namespace bench {

using Step = std::function<void(BenchClient&)>;

struct Operation {
  std::string name;
  // Command lines the design prescribes for one run of `action` in the state the row
  // sets up (written from the design, not taken from the module).
  long prescribed = 0;
  Step action;               // what is measured
  Step setUp;                // once, in the pristine appliance, before the module is initialised
  Step before;               // before each measured run, not measured
  Step after;                // after each measured run, not measured
  bool settles = false;      // the action changes the registry: wait for the module's callback
  bool initializes = false;  // the action initialises the module itself
};

Operation initializeRow(long prescribed);
Operation enumerateRow(const std::string& className, long prescribed);
Operation getRow(const Target& target, long prescribed);
Operation modifyRow(const Target& target, const std::string& label, std::vector<Change> changes,
                    long prescribed);

// The rows of the setting, device and address classes and of initialisation.
std::vector<Operation> classRows();
// The route table's series; empty while Zeph_NextHopIPRoute has no implementation.
std::vector<Operation> routeRows();

// Registers every row with Google Benchmark; smoke: one iteration each.
void registerRows(const std::vector<Operation>& rows, bool smoke);
// True when a row's spawn count differed from its prescribed count, or a row failed.
bool anyRowFailed();

}  // namespace bench

#endif
