// HostEnvironment.cpp: the provider environment.
#include "HostEnvironment.hpp"

#include "OW_Array.hpp"
#include "OW_RepositoryIFC.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char kDefaultComponent[] = "ras-cim";
const char kUserName[] = "root";

}  // namespace

HostEnvironment::HostEnvironment(CIMOMHandleIFCRef handle, ELogLevel level,
                                 std::shared_ptr<LogSink> sink)
    : handle_(handle), level_(level), sink_(std::move(sink)) {}

CIMOMHandleIFCRef HostEnvironment::getCIMOMHandle() const {
  return handle_;
}

CIMOMHandleIFCRef HostEnvironment::getRepositoryCIMOMHandle() const {
  return handle_;
}

RepositoryIFCRef HostEnvironment::getRepository() const {
  return RepositoryIFCRef();
}

LoggerRef HostEnvironment::getLogger() const {
  return getLogger(kDefaultComponent);
}

LoggerRef HostEnvironment::getLogger(const String& componentName) const {
  return LoggerRef(new HostLogger(componentName, level_, sink_));
}

String HostEnvironment::getConfigItem(const String&, const String& defRetVal) const {
  return defRetVal;
}

StringArray HostEnvironment::getMultiConfigItem(const String&, const StringArray& defRetVal,
                                                const char*) const {
  return defRetVal;
}

String HostEnvironment::getUserName() const {
  return kUserName;
}

OperationContext& HostEnvironment::getOperationContext() {
  return context_;
}

ProviderEnvironmentIFCRef HostEnvironment::clone() const {
  return ProviderEnvironmentIFCRef(new HostEnvironment(handle_, level_, sink_));
}

}  // namespace rascim
