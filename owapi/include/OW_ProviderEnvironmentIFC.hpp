// What the CIMOM offers a provider during a request: handles, logger, configuration.
#ifndef OW_PROVIDERENVIRONMENTIFC_HPP_INCLUDE_GUARD_
#define OW_PROVIDERENVIRONMENTIFC_HPP_INCLUDE_GUARD_
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_IfcsFwd.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_Logger.hpp"
#include "OW_ProviderFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class ProviderEnvironmentIFC : public IntrusiveCountableBase {
 public:
  virtual ~ProviderEnvironmentIFC();
  virtual CIMOMHandleIFCRef getCIMOMHandle() const = 0;
  virtual CIMOMHandleIFCRef getRepositoryCIMOMHandle() const = 0;
  virtual RepositoryIFCRef getRepository() const = 0;
  virtual LoggerRef getLogger() const OW_DEPRECATED = 0;
  virtual LoggerRef getLogger(const String& componentName) const = 0;
  virtual String getConfigItem(const String& name, const String& defRetVal = "") const = 0;
  virtual StringArray getMultiConfigItem(const String& itemName, const StringArray& defRetVal,
                                         const char* tokenizeSeparator = 0) const = 0;
  virtual String getUserName() const = 0;
  virtual OperationContext& getOperationContext() = 0;
  virtual ProviderEnvironmentIFCRef clone() const = 0;
};

}  // namespace OW_NAMESPACE

#endif
