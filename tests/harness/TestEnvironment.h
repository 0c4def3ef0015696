// A provider environment for in-process tests: a logger that records level and text, and a
// CIMOM handle that serves nothing.
#ifndef FRAME_TESTENVIRONMENT_H
#define FRAME_TESTENVIRONMENT_H

#include <memory>
#include <string>
#include <vector>

#include "OW_Array.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_Logger.hpp"
#include "OW_OperationContext.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "OW_RepositoryIFC.hpp"
#include "OW_String.hpp"

struct LogLine {
  std::string category;  // "ERROR", "DEBUG", ...
  std::string text;
};

class RecordingLogger : public OpenWBEM::Logger {
 public:
  explicit RecordingLogger(std::shared_ptr<std::vector<LogLine>> lines);
  std::vector<LogLine>& lines() const { return *lines_; }

 protected:
  void doProcessLogMessage(const OpenWBEM::LogMessage& message) const override;
  OpenWBEM::LoggerRef doClone() const override;

 private:
  std::shared_ptr<std::vector<LogLine>> lines_;
};

// Environment handed to initialize and to each request.
class TestEnvironment : public OpenWBEM::ProviderEnvironmentIFC {
 public:
  TestEnvironment();
  static OpenWBEM::IntrusiveReference<TestEnvironment> make() { return new TestEnvironment; }

  std::vector<LogLine>& logged() const { return *lines_; }
  OpenWBEM::LoggerRef loggerRef() const { return logger_; }

  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override { return handle_; }
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return handle_; }
  OpenWBEM::RepositoryIFCRef getRepository() const override { return {}; }
  OpenWBEM::LoggerRef getLogger() const override { return logger_; }
  OpenWBEM::LoggerRef getLogger(const OpenWBEM::String&) const override { return logger_; }
  OpenWBEM::String getConfigItem(const OpenWBEM::String&,
                                 const OpenWBEM::String& fallback) const override {
    return fallback;
  }
  OpenWBEM::StringArray getMultiConfigItem(const OpenWBEM::String&,
                                           const OpenWBEM::StringArray& fallback,
                                           const char*) const override {
    return fallback;
  }
  OpenWBEM::String getUserName() const override { return OpenWBEM::String(); }
  OpenWBEM::OperationContext& getOperationContext() override { return context_; }
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override { return new TestEnvironment; }

 private:
  std::shared_ptr<std::vector<LogLine>> lines_;
  OpenWBEM::LoggerRef logger_;
  OpenWBEM::CIMOMHandleIFCRef handle_;
  OpenWBEM::OperationContext context_;
};

using TestEnvRef = OpenWBEM::IntrusiveReference<TestEnvironment>;

#endif
