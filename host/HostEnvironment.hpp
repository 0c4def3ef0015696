// HostEnvironment.hpp: the provider environment ras-cim passes to every provider call:
// its CIMOM handle and loggers at the chosen level; no configuration items, no repository.
#ifndef RAS_HOST_HOSTENVIRONMENT_HPP
#define RAS_HOST_HOSTENVIRONMENT_HPP

#include <memory>

#include "HostLogger.hpp"
#include "OW_OperationContext.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"

namespace rascim {

class HostEnvironment : public OpenWBEM::ProviderEnvironmentIFC {
 public:
  HostEnvironment(OpenWBEM::CIMOMHandleIFCRef handle, OpenWBEM::ELogLevel level,
                  std::shared_ptr<LogSink> sink);

  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override;
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override;
  OpenWBEM::RepositoryIFCRef getRepository() const override;
  OpenWBEM::LoggerRef getLogger() const override;
  OpenWBEM::LoggerRef getLogger(const OpenWBEM::String& componentName) const override;
  OpenWBEM::String getConfigItem(const OpenWBEM::String& name,
                                 const OpenWBEM::String& defRetVal) const override;
  OpenWBEM::StringArray getMultiConfigItem(const OpenWBEM::String& itemName,
                                           const OpenWBEM::StringArray& defRetVal,
                                           const char* tokenizeSeparator) const override;
  OpenWBEM::String getUserName() const override;
  OpenWBEM::OperationContext& getOperationContext() override;
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override;

 private:
  OpenWBEM::CIMOMHandleIFCRef handle_;
  OpenWBEM::ELogLevel level_;
  std::shared_ptr<LogSink> sink_;
  OpenWBEM::OperationContext context_;
};

}  // namespace rascim

#endif
