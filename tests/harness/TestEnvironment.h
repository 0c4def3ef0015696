// A provider environment for in-process tests: a recording logger and a CIMOM handle that
// serves nothing.
#ifndef RAS_TESTS_TESTENVIRONMENT_H
#define RAS_TESTS_TESTENVIRONMENT_H

#include <vector>

#include "AccountHandle.h"
#include "OW_Array.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_Logger.hpp"
#include "OW_OperationContext.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "OW_RepositoryIFC.hpp"
#include "OW_String.hpp"
#include "RecordingLogger.h"

// Environment handed to initialize and to each request.
class TestEnvironment : public OpenWBEM::ProviderEnvironmentIFC {
 public:
  TestEnvironment();
  static OpenWBEM::IntrusiveReference<TestEnvironment> make() { return new TestEnvironment; }

  // What the module logged through this environment (and its clones' loggers).
  std::vector<LogLine> logged() const { return recorder_->lines(); }
  RecordingLogger& log() const { return *recorder_; }
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
  OpenWBEM::IntrusiveReference<RecordingLogger> recorder_;
  OpenWBEM::LoggerRef logger_;
  OpenWBEM::CIMOMHandleIFCRef handle_;
  OpenWBEM::OperationContext context_;
};

using TestEnvRef = OpenWBEM::IntrusiveReference<TestEnvironment>;

// The environment of the classes that read the appliance's accounts: its CIMOM serves
// Zeph_Account from the appliance's account list, as the CIMOM on the appliance does.
class AccountEnvironment : public TestEnvironment {
 public:
  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override { return accounts_; }
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return accounts_; }
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override { return new AccountEnvironment; }

 private:
  OpenWBEM::CIMOMHandleIFCRef accounts_{new harness::AccountHandle("/var/lib/appliance/accounts")};
};

#endif
