// The module's one provider object: routes every request by its class name to the
// per-class provider, and is the module's error boundary.
#ifndef ZEPH_RASPROVIDER_H
#define ZEPH_RASPROVIDER_H

#include "OW_CppAssociatorProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"

class Zeph_RASProvider : public OpenWBEM::CppMethodProviderIFC,
                         public OpenWBEM::CppAssociatorProviderIFC {
 public:
  using EnvRef = OpenWBEM::ProviderEnvironmentIFCRef;
  using String = OpenWBEM::String;

  ~Zeph_RASProvider() override;

  void initialize(const EnvRef& env) override;
  void cleanup();

  void enumInstanceNames(const EnvRef& env, const String& ns, const String& className,
                         OpenWBEM::CIMObjectPathResultHandlerIFC& result,
                         const OpenWBEM::CIMClass& cimClass) override;
  void enumInstances(const EnvRef& env, const String& ns, const String& className,
                     OpenWBEM::CIMInstanceResultHandlerIFC& result,
                     OpenWBEM::WBEMFlags::ELocalOnlyFlag localOnly,
                     OpenWBEM::WBEMFlags::EDeepFlag deep,
                     OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                     OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                     const OpenWBEM::StringArray* propertyList,
                     const OpenWBEM::CIMClass& requestedClass,
                     const OpenWBEM::CIMClass& cimClass) override;
  OpenWBEM::CIMInstance getInstance(const EnvRef& env, const String& ns,
                                    const OpenWBEM::CIMObjectPath& instanceName,
                                    OpenWBEM::WBEMFlags::ELocalOnlyFlag localOnly,
                                    OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                    OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                    const OpenWBEM::StringArray* propertyList,
                                    const OpenWBEM::CIMClass& cimClass) override;
  OpenWBEM::CIMObjectPath createInstance(const EnvRef& env, const String& ns,
                                         const OpenWBEM::CIMInstance& cimInstance) override;
  void deleteInstance(const EnvRef& env, const String& ns,
                      const OpenWBEM::CIMObjectPath& cop) override;
  void modifyInstance(const EnvRef& env, const String& ns,
                      const OpenWBEM::CIMInstance& modifiedInstance,
                      const OpenWBEM::CIMInstance& previousInstance,
                      OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                      const OpenWBEM::StringArray* propertyList,
                      const OpenWBEM::CIMClass& theClass) override;
  OpenWBEM::CIMValue invokeMethod(const EnvRef& env, const String& ns,
                                  const OpenWBEM::CIMObjectPath& path, const String& methodName,
                                  const OpenWBEM::CIMParamValueArray& in,
                                  OpenWBEM::CIMParamValueArray& out) override;
  void associators(const EnvRef& env, OpenWBEM::CIMInstanceResultHandlerIFC& result,
                   const String& ns, const OpenWBEM::CIMObjectPath& objectName,
                   const String& assocClass, const String& resultClass, const String& role,
                   const String& resultRole,
                   OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                   OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                   const OpenWBEM::StringArray* propertyList) override;
  void associatorNames(const EnvRef& env, OpenWBEM::CIMObjectPathResultHandlerIFC& result,
                       const String& ns, const OpenWBEM::CIMObjectPath& objectName,
                       const String& assocClass, const String& resultClass, const String& role,
                       const String& resultRole) override;
  void references(const EnvRef& env, OpenWBEM::CIMInstanceResultHandlerIFC& result,
                  const String& ns, const OpenWBEM::CIMObjectPath& objectName,
                  const String& resultClass, const String& role,
                  OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                  OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                  const OpenWBEM::StringArray* propertyList) override;
  void referenceNames(const EnvRef& env, OpenWBEM::CIMObjectPathResultHandlerIFC& result,
                      const String& ns, const OpenWBEM::CIMObjectPath& objectName,
                      const String& resultClass, const String& role) override;
};

// The module's two exported entry points.
extern "C" {
__attribute__((visibility("default"))) OpenWBEM::CppProviderBaseIFC*
createProviderZeph_RASProvider();
__attribute__((visibility("default"))) const char* getOWVersion();
}

#endif
