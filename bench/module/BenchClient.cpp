// The benchmarks' client of the dispatcher.
#include "BenchClient.h"

#include <memory>

#include "AccountHandle.h"
#include "CallEnvironment.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_Logger.hpp"
#include "OW_ResultHandlers.hpp"
#include "QvlStandIn.h"
#include "TestEnvironment.h"
#include "Zeph_DialService.h"

using namespace OpenWBEM;

namespace bench {
namespace {

constexpr char kNamespace[] = "root/cimv2";
constexpr char kAccountsFile[] = "/var/lib/appliance/accounts";

class QuietLogger : public Logger {
 public:
  QuietLogger() : Logger("bench", E_ERROR_LEVEL) {}

 protected:
  void doProcessLogMessage(const LogMessage&) const override {}
  LoggerRef doClone() const override { return new QuietLogger; }
};

class BenchEnvironment : public TestEnvironment {
 public:
  LoggerRef getLogger() const override { return logger_; }
  LoggerRef getLogger(const String&) const override { return logger_; }
  CIMOMHandleIFCRef getCIMOMHandle() const override { return accounts_; }
  CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return accounts_; }
  ProviderEnvironmentIFCRef clone() const override { return new BenchEnvironment; }

 private:
  LoggerRef logger_{new QuietLogger};
  CIMOMHandleIFCRef accounts_{new harness::AccountHandle(kAccountsFile)};
};

const CIMClass kNoClass{CIMNULL};

}  // namespace

BenchClient::BenchClient() : env_(new BenchEnvironment) {}

BenchClient::~BenchClient() {
  unload();
}

// The subscription ends as it does when the CIMOM unmaps the library: otherwise the next
// appliance reset, which rewrites the registry, would call back into the module.
void BenchClient::unload() {
  if (!provider_) return;
  provider_->cleanup();
  ras::stopModemStatusNotify();
  QvlNotifySync();
  provider_ = nullptr;
}

void BenchClient::initialize() {
  provider_ = new Zeph_RASProvider;
  harness::withCall(env_, [&](const auto& call) { provider_->initialize(call); });
  QvlNotifySync();
}

CIMObjectPath BenchClient::pathOf(const Target& target) {
  CIMObjectPath path(CIMName(target.className.c_str()), kNamespace);
  for (const auto& [name, value] : target.keys) path.setKeyValue(name.c_str(), text(value.c_str()));
  return path;
}

size_t BenchClient::enumerate(const std::string& className) {
  CIMInstanceArray instances;
  CIMInstanceArrayBuilder result(instances);
  harness::withCall(env_, [&](const auto& call) {
    provider_->enumInstances(call, kNamespace, className.c_str(), result,
                             WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_DEEP,
                             WBEMFlags::E_INCLUDE_QUALIFIERS, WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
                             nullptr, kNoClass, kNoClass);
  });
  return instances.size();
}

CIMInstance BenchClient::get(const Target& target) {
  return harness::withCall(env_, [&](const auto& call) {
    return provider_->getInstance(call, kNamespace, pathOf(target), WBEMFlags::E_NOT_LOCAL_ONLY,
                                  WBEMFlags::E_INCLUDE_QUALIFIERS,
                                  WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, nullptr, kNoClass);
  });
}

CIMInstance BenchClient::instanceOf(const Target& target,
                                    const std::vector<Change>& changes) const {
  CIMInstance instance(target.className.c_str());
  for (const auto& key : pathOf(target).getKeys()) instance.setProperty(key);
  for (const auto& [name, value] : changes) instance.setProperty(name.c_str(), value);
  return instance;
}

void BenchClient::modify(const Target& target, const std::vector<Change>& changes) {
  const CIMInstance instance = instanceOf(target, changes);
  harness::withCall(env_, [&](const auto& call) {
    provider_->modifyInstance(call, kNamespace, instance, instance, WBEMFlags::E_EXCLUDE_QUALIFIERS,
                              nullptr, kNoClass);
  });
}

void BenchClient::create(const Target& target, const std::vector<Change>& changes) {
  const CIMInstance instance = instanceOf(target, changes);
  harness::withCall(
      env_, [&](const auto& call) { provider_->createInstance(call, kNamespace, instance); });
}

void BenchClient::remove(const Target& target) {
  harness::withCall(
      env_, [&](const auto& call) { provider_->deleteInstance(call, kNamespace, pathOf(target)); });
}

}  // namespace bench
