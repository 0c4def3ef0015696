// Base of providers that implement extrinsic methods.
#ifndef OW_CPPMETHODPROVIDERIFC_HPP_INCLUDE_GUARD_
#define OW_CPPMETHODPROVIDERIFC_HPP_INCLUDE_GUARD_
#include "OW_CppProviderBaseIFC.hpp"
#include "OW_MethodProviderInfo.hpp"
#include "OW_SharedLibraryReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CppMethodProviderIFC : public virtual CppProviderBaseIFC {
 public:
  virtual ~CppMethodProviderIFC();

  virtual void getMethodProviderInfoWithEnv(const ProviderRegistrationEnvironmentIFCRef& env,
                                            MethodProviderInfo& info);
  virtual void getMethodProviderInfo(MethodProviderInfo& info);
  virtual CIMValue invokeMethod(const ProviderEnvironmentIFCRef& env, const String& ns,
                                const CIMObjectPath& path, const String& methodName,
                                const CIMParamValueArray& in, CIMParamValueArray& out) = 0;

  virtual CppMethodProviderIFC* getMethodProvider();
};

typedef SharedLibraryReference<IntrusiveReference<CppMethodProviderIFC> > CppMethodProviderIFCRef;

}  // namespace OW_NAMESPACE

#endif
