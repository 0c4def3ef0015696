// HostLogger.hpp: the OpenWBEM logger ras-cim hands to the module: every message at or
// above the chosen level becomes one line "CATEGORY component: message" on standard error
// or in a log file.
#ifndef RAS_HOST_HOSTLOGGER_HPP
#define RAS_HOST_HOSTLOGGER_HPP

#include <fstream>
#include <memory>
#include <mutex>
#include <string>

#include "OW_Logger.hpp"

namespace rascim {

// Where log lines go; shared by every logger of one ras-cim run. Lines may come from the
// platform library's notification thread as well as from requests, so writes are serialised.
class LogSink {
 public:
  LogSink();                                  // standard error
  explicit LogSink(const std::string& path);  // appends to a file; throws std::runtime_error
  void write(const std::string& line);

 private:
  std::mutex mutex_;
  std::ofstream file_;
  std::ostream* out_;
};

class HostLogger : public OpenWBEM::Logger {
 public:
  HostLogger(const OpenWBEM::String& component, OpenWBEM::ELogLevel level,
             std::shared_ptr<LogSink> sink);

 protected:
  void doProcessLogMessage(const OpenWBEM::LogMessage& message) const override;
  OpenWBEM::LoggerRef doClone() const override;

 private:
  std::shared_ptr<LogSink> sink_;
};

// "none", "fatal", "error", "info", "debug" or "all"; throws std::invalid_argument otherwise.
OpenWBEM::ELogLevel parseLogLevel(const std::string& name);

}  // namespace rascim

#endif
