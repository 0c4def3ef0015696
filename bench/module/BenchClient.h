// The module's dispatcher driven as a CIMOM drives it, for the benchmarks: one environment
// per call, a CIMOM handle that serves the appliance's Zeph_Account instances, and a
// logger that keeps nothing (a CIMOM logging at its default level discards the module's
// debug lines too).
#ifndef RAS_BENCH_BENCHCLIENT_H
#define RAS_BENCH_BENCHCLIENT_H

#include <string>
#include <utility>
#include <vector>

#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "Zeph_RASProvider.h"

namespace bench {

// An instance as a client names it: its class and its key properties.
struct Target {
  std::string className;
  std::vector<std::pair<std::string, std::string>> keys;
};

using Change = std::pair<std::string, OpenWBEM::CIMValue>;

class BenchClient {
 public:
  BenchClient();
  // Unloads the module as a CIMOM does, which ends its registry subscription.
  ~BenchClient();
  BenchClient(const BenchClient&) = delete;
  BenchClient& operator=(const BenchClient&) = delete;

  // A new dispatcher, initialised as a CIMOM does when it loads the module.
  void initialize();
  // The dispatcher's cleanup, as a CIMOM unloads the module.
  void unload();

  size_t enumerate(const std::string& className);
  OpenWBEM::CIMInstance get(const Target& target);
  void modify(const Target& target, const std::vector<Change>& changes);
  void create(const Target& target, const std::vector<Change>& changes);
  void remove(const Target& target);

  static OpenWBEM::CIMObjectPath pathOf(const Target& target);

 private:
  OpenWBEM::CIMInstance instanceOf(const Target& target, const std::vector<Change>& changes) const;

  OpenWBEM::ProviderEnvironmentIFCRef env_;
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_;
};

inline OpenWBEM::CIMValue text(const char* value) {
  return OpenWBEM::CIMValue(OpenWBEM::String(value));
}

}  // namespace bench

#endif
