// HostLogger.cpp: the log sink and the logger the module writes to.
#include "HostLogger.hpp"

#include <iostream>
#include <stdexcept>

#include "OW_LogMessage.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char* const kLevelNames[] = {"none", "fatal", "error", "info", "debug", "all"};

}  // namespace

LogSink::LogSink() : out_(&std::cerr) {}

LogSink::LogSink(const std::string& path) : file_(path, std::ios::app), out_(&file_) {
  if (!file_) throw std::runtime_error("cannot open log file " + path);
}

void LogSink::write(const std::string& line) {
  std::lock_guard<std::mutex> lock(mutex_);
  *out_ << line;
  out_->flush();
}

HostLogger::HostLogger(const String& component, ELogLevel level, std::shared_ptr<LogSink> sink)
    : Logger(component, level), sink_(std::move(sink)) {}

void HostLogger::doProcessLogMessage(const LogMessage& m) const {
  std::string line =
      std::string(m.category.c_str()) + " " + m.component.c_str() + ": " + m.message.c_str();
  if (line.back() != '\n') line += '\n';
  sink_->write(line);
}

LoggerRef HostLogger::doClone() const {
  return LoggerRef(new HostLogger(getDefaultComponent(), getLogLevel(), sink_));
}

ELogLevel parseLogLevel(const std::string& name) {
  for (size_t i = 0; i < sizeof kLevelNames / sizeof kLevelNames[0]; ++i)
    if (name == kLevelNames[i]) return static_cast<ELogLevel>(i);
  throw std::invalid_argument("unknown log level '" + name +
                              "' (none, fatal, error, info, debug, all)");
}

}  // namespace rascim
