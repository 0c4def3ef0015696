// Base of providers that serve instances of their classes.
#ifndef OW_CPPINSTANCEPROVIDERIFC_HPP_INCLUDE_GUARD_
#define OW_CPPINSTANCEPROVIDERIFC_HPP_INCLUDE_GUARD_
#include "OW_CppProviderBaseIFC.hpp"
#include "OW_InstanceProviderInfo.hpp"
#include "OW_ResultHandlerIFC.hpp"
#include "OW_SharedLibraryReference.hpp"
#include "OW_WBEMFlags.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CppInstanceProviderIFC : public virtual CppProviderBaseIFC {
 public:
  CppInstanceProviderIFC();
  virtual ~CppInstanceProviderIFC();

  virtual void getInstanceProviderInfoWithEnv(const ProviderRegistrationEnvironmentIFCRef& env,
                                              InstanceProviderInfo& info);
  virtual void getInstanceProviderInfo(InstanceProviderInfo& info);

  virtual void enumInstanceNames(const ProviderEnvironmentIFCRef& env, const String& ns,
                                 const String& className, CIMObjectPathResultHandlerIFC& result,
                                 const CIMClass& cimClass) = 0;
  // Default: the names from enumInstanceNames, each fetched with getInstance.
  virtual void enumInstances(const ProviderEnvironmentIFCRef& env, const String& ns,
                             const String& className, CIMInstanceResultHandlerIFC& result,
                             WBEMFlags::ELocalOnlyFlag localOnly, WBEMFlags::EDeepFlag deep,
                             WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                             WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                             const StringArray* propertyList, const CIMClass& requestedClass,
                             const CIMClass& cimClass);
  virtual CIMInstance getInstance(const ProviderEnvironmentIFCRef& env, const String& ns,
                                  const CIMObjectPath& instanceName,
                                  WBEMFlags::ELocalOnlyFlag localOnly,
                                  WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                  WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                  const StringArray* propertyList, const CIMClass& cimClass) = 0;
  virtual CIMObjectPath createInstance(const ProviderEnvironmentIFCRef& env, const String& ns,
                                       const CIMInstance& cimInstance) = 0;
  virtual void modifyInstance(const ProviderEnvironmentIFCRef& env, const String& ns,
                              const CIMInstance& modifiedInstance,
                              const CIMInstance& previousInstance,
                              WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                              const StringArray* propertyList, const CIMClass& theClass) = 0;
  virtual void deleteInstance(const ProviderEnvironmentIFCRef& env, const String& ns,
                              const CIMObjectPath& cop) = 0;

  virtual CppInstanceProviderIFC* getInstanceProvider();
};

typedef SharedLibraryReference<IntrusiveReference<CppInstanceProviderIFC> >
    CppInstanceProviderIFCRef;

}  // namespace OW_NAMESPACE

#endif
