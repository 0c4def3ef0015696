// A logger that accepts every message at every level and drops it, so that the fuzzed
// functions run their logging paths too.
#ifndef RAS_FUZZ_FUZZLOGGER_H
#define RAS_FUZZ_FUZZLOGGER_H

#include "OW_LogLevel.hpp"
#include "OW_Logger.hpp"
#include "Zeph_ModuleGlobals.h"

namespace rasfuzz {

class DroppingLogger : public OpenWBEM::Logger {
 public:
  DroppingLogger() : Logger("rasfuzz", OpenWBEM::E_ALL_LEVEL) {}

 protected:
  void doProcessLogMessage(const OpenWBEM::LogMessage&) const override {}
  OpenWBEM::LoggerRef doClone() const override { return OpenWBEM::LoggerRef(new DroppingLogger); }
};

// Installs the logger as the module's once per process.
inline void installLogger() {
  if (!logger) logger = new DroppingLogger;
}

}  // namespace rasfuzz

#endif
