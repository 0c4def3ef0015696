// The dispatching operations: each picks the per-class provider by the request's class name
// and forwards its arguments unchanged, inside the handler set.
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_DispatchGuard.h"
#include "Zeph_DispatchOperations.h"
#include "Zeph_ModuleClasses.h"
#include "Zeph_RASProvider.h"

namespace {

using ras::ModuleClass;
using ras::Operation;
using namespace ras::operations;

// Runs `forward` on the instance/method providers of `className`, if the module has them.
template <class Forward>
void toClass(const ras::EnvRef& env, const Operation& op, const OpenWBEM::String& className,
             Forward forward) {
  ras::guarded(env, op, className, [&] {
    const ModuleClass* target = ras::findModuleClass(className);
    if (target != nullptr) forward(*target);
    return target != nullptr;
  });
}

// Runs `forward` on the association provider of `assocClass`, if the module has one.
template <class Forward>
void toAssociation(const ras::EnvRef& env, const Operation& op, const OpenWBEM::String& assocClass,
                   Forward forward) {
  ras::guarded(env, op, assocClass, [&] {
    OpenWBEM::CppAssociatorProviderIFC* target = ras::findAssociationProvider(assocClass);
    if (target != nullptr) forward(*target);
    return target != nullptr;
  });
}

}  // namespace

using namespace OpenWBEM;

void Zeph_RASProvider::enumInstanceNames(const EnvRef& env, const String& ns,
                                         const String& className,
                                         CIMObjectPathResultHandlerIFC& result,
                                         const CIMClass& cimClass) {
  toClass(env, kEnumInstanceNames, className, [&](const ModuleClass& c) {
    c.instances->enumInstanceNames(env, ns, className, result, cimClass);
  });
}

void Zeph_RASProvider::enumInstances(const EnvRef& env, const String& ns, const String& className,
                                     CIMInstanceResultHandlerIFC& result,
                                     WBEMFlags::ELocalOnlyFlag localOnly, WBEMFlags::EDeepFlag deep,
                                     WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                     WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                     const StringArray* propertyList,
                                     const CIMClass& requestedClass, const CIMClass& cimClass) {
  toClass(env, kEnumInstances, className, [&](const ModuleClass& c) {
    c.instances->enumInstances(env, ns, className, result, localOnly, deep, includeQualifiers,
                               includeClassOrigin, propertyList, requestedClass, cimClass);
  });
}

CIMInstance Zeph_RASProvider::getInstance(const EnvRef& env, const String& ns,
                                          const CIMObjectPath& instanceName,
                                          WBEMFlags::ELocalOnlyFlag localOnly,
                                          WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                          WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                          const StringArray* propertyList,
                                          const CIMClass& cimClass) {
  CIMInstance instance(CIMNULL);
  toClass(env, kGetInstance, instanceName.getClassName(), [&](const ModuleClass& c) {
    instance = c.instances->getInstance(env, ns, instanceName, localOnly, includeQualifiers,
                                        includeClassOrigin, propertyList, cimClass);
  });
  return instance;
}

CIMObjectPath Zeph_RASProvider::createInstance(const EnvRef& env, const String& ns,
                                               const CIMInstance& cimInstance) {
  CIMObjectPath path(CIMNULL);
  toClass(env, kCreateInstance, cimInstance.getClassName(),
          [&](const ModuleClass& c) { path = c.instances->createInstance(env, ns, cimInstance); });
  return path;
}

void Zeph_RASProvider::deleteInstance(const EnvRef& env, const String& ns,
                                      const CIMObjectPath& cop) {
  toClass(env, kDeleteInstance, cop.getClassName(),
          [&](const ModuleClass& c) { c.instances->deleteInstance(env, ns, cop); });
}

void Zeph_RASProvider::modifyInstance(const EnvRef& env, const String& ns,
                                      const CIMInstance& modifiedInstance,
                                      const CIMInstance& previousInstance,
                                      WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                      const StringArray* propertyList, const CIMClass& theClass) {
  toClass(env, kModifyInstance, modifiedInstance.getClassName(), [&](const ModuleClass& c) {
    c.instances->modifyInstance(env, ns, modifiedInstance, previousInstance, includeQualifiers,
                                propertyList, theClass);
  });
}

CIMValue Zeph_RASProvider::invokeMethod(const EnvRef& env, const String& ns,
                                        const CIMObjectPath& path, const String& methodName,
                                        const CIMParamValueArray& in, CIMParamValueArray& out) {
  CIMValue value(CIMNULL);
  toClass(env, kInvokeMethod, path.getClassName(), [&](const ModuleClass& c) {
    value = c.methods->invokeMethod(env, ns, path, methodName, in, out);
  });
  return value;
}

void Zeph_RASProvider::associators(const EnvRef& env, CIMInstanceResultHandlerIFC& result,
                                   const String& ns, const CIMObjectPath& objectName,
                                   const String& assocClass, const String& resultClass,
                                   const String& role, const String& resultRole,
                                   WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                   WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                   const StringArray* propertyList) {
  toAssociation(env, kAssociators, assocClass, [&](CppAssociatorProviderIFC& p) {
    p.associators(env, result, ns, objectName, assocClass, resultClass, role, resultRole,
                  includeQualifiers, includeClassOrigin, propertyList);
  });
}

void Zeph_RASProvider::associatorNames(const EnvRef& env, CIMObjectPathResultHandlerIFC& result,
                                       const String& ns, const CIMObjectPath& objectName,
                                       const String& assocClass, const String& resultClass,
                                       const String& role, const String& resultRole) {
  toAssociation(env, kAssociatorNames, assocClass, [&](CppAssociatorProviderIFC& p) {
    p.associatorNames(env, result, ns, objectName, assocClass, resultClass, role, resultRole);
  });
}

void Zeph_RASProvider::references(const EnvRef& env, CIMInstanceResultHandlerIFC& result,
                                  const String& ns, const CIMObjectPath& objectName,
                                  const String& resultClass, const String& role,
                                  WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                  WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                                  const StringArray* propertyList) {
  toAssociation(env, kReferences, resultClass, [&](CppAssociatorProviderIFC& p) {
    p.references(env, result, ns, objectName, resultClass, role, includeQualifiers,
                 includeClassOrigin, propertyList);
  });
}

void Zeph_RASProvider::referenceNames(const EnvRef& env, CIMObjectPathResultHandlerIFC& result,
                                      const String& ns, const CIMObjectPath& objectName,
                                      const String& resultClass, const String& role) {
  toAssociation(env, kReferenceNames, resultClass, [&](CppAssociatorProviderIFC& p) {
    p.referenceNames(env, result, ns, objectName, resultClass, role);
  });
}
