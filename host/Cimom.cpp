// Cimom.cpp: provider creation and the CIM operations around the provider calls.
#include "Cimom.hpp"

#include "CallEnvironment.hpp"
#include "CimBuild.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CppAssociatorProviderIFC.hpp"
#include "OW_CppInstanceProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"
#include "OW_ResultHandlers.hpp"

using namespace OpenWBEM;
using namespace OpenWBEM::WBEMFlags;

namespace rascim {
namespace {

const char kNoRole[] = "the provider does not serve this kind of operation";

template <class T>
T& role(T* provider) {
  if (!provider)
    throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::NOT_SUPPORTED, kNoRole);
  return *provider;
}

bool refersTo(const MofClass& association, const std::string& className) {
  for (const MofProperty& p : association.properties)
    if (p.type.name == "ref" && equalsIgnoreCase(p.type.refClass, className)) return true;
  return false;
}

}  // namespace

Cimom::Cimom(const ModuleLibrary& library, ProviderEnvironmentIFCRef env,
             std::shared_ptr<const MofSchema> schema)
    : env_(env), schema_(std::move(schema)) {
  // At start-up a CIMOM asks a first provider object for its roles and throws it away.
  IntrusiveReference<CppProviderBaseIFC> probe(library.createProvider());
  probe->getInstanceProvider();
  probe->getMethodProvider();
  probe->getAssociatorProvider();
  probe = 0;
  provider_ = library.createProvider();
  provider_->initialize(call().env());
}

CppInstanceProviderIFC& Cimom::instances() const {
  return role(provider_->getInstanceProvider());
}
CppMethodProviderIFC& Cimom::methods() const {
  return role(provider_->getMethodProvider());
}
CppAssociatorProviderIFC& Cimom::associations() const {
  return role(provider_->getAssociatorProvider());
}

CIMInstanceArray Cimom::enumInstances(const String& ns, const String& className) {
  CIMInstanceArray out;
  CIMInstanceArrayBuilder result(out);
  const CIMClass cls{CIMName(className)};
  instances().enumInstances(call().env(), ns, className, result, E_NOT_LOCAL_ONLY, E_DEEP,
                            E_INCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0, cls, cls);
  return out;
}

CIMObjectPathArray Cimom::enumInstanceNames(const String& ns, const String& className) {
  CIMObjectPathArray out;
  CIMObjectPathArrayBuilder result(out);
  instances().enumInstanceNames(call().env(), ns, className, result, CIMClass(CIMName(className)));
  return out;
}

CIMInstance Cimom::getInstance(const String& ns, const Path& path) {
  const CIMInstance inst =
      instances().getInstance(call().env(), ns, path, E_NOT_LOCAL_ONLY, E_INCLUDE_QUALIFIERS,
                              E_EXCLUDE_CLASS_ORIGIN, 0, CIMClass(CIMName(path.getClassName())));
  if (!inst) throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::FAILED);
  return inst;
}

Cimom::Path Cimom::createInstance(const String& ns, const CIMInstance& instance) {
  return instances().createInstance(call().env(), ns, instance);
}

void Cimom::modifyInstance(const String& ns, const Path& path, const CIMInstance& modified,
                           const StringArray* propertyList) {
  const CIMInstance previous = getInstance(ns, path);
  instances().modifyInstance(call().env(), ns, modified, previous, E_INCLUDE_QUALIFIERS,
                             propertyList, CIMClass(CIMName(modified.getClassName())));
}

void Cimom::deleteInstance(const String& ns, const Path& path) {
  instances().deleteInstance(call().env(), ns, path);
}

CIMValue Cimom::invokeMethod(const String& ns, const Path& path, const String& method,
                             const CIMParamValueArray& in, CIMParamValueArray& out) {
  if (!path.getKeys().empty()) getInstance(ns, path);
  return methods().invokeMethod(call().env(), ns, path, method, in, out);
}

std::vector<std::string> Cimom::associationClasses(const Path& path,
                                                   const AssociationFilter& f) const {
  if (f.assocClass) return {*f.assocClass};
  std::vector<std::string> out;
  for (const MofClass& c : schema_->classes())
    if (c.isAssociation() && refersTo(c, path.getClassName().c_str())) out.push_back(c.name);
  return out;
}

CIMInstanceArray Cimom::associators(const String& ns, const Path& path,
                                    const AssociationFilter& f) {
  CIMInstanceArray out;
  CIMInstanceArrayBuilder result(out);
  for (const std::string& assoc : associationClasses(path, f))
    associations().associators(call().env(), result, ns, path, assoc.c_str(), f.resultClass.c_str(),
                               f.role.c_str(), f.resultRole.c_str(), E_INCLUDE_QUALIFIERS,
                               E_EXCLUDE_CLASS_ORIGIN, 0);
  return out;
}

CIMObjectPathArray Cimom::associatorNames(const String& ns, const Path& path,
                                          const AssociationFilter& f) {
  CIMObjectPathArray out;
  CIMObjectPathArrayBuilder result(out);
  for (const std::string& assoc : associationClasses(path, f))
    associations().associatorNames(call().env(), result, ns, path, assoc.c_str(),
                                   f.resultClass.c_str(), f.role.c_str(), f.resultRole.c_str());
  return out;
}

CIMInstanceArray Cimom::references(const String& ns, const Path& path, const AssociationFilter& f) {
  CIMInstanceArray out;
  CIMInstanceArrayBuilder result(out);
  for (const std::string& assoc : associationClasses(path, f))
    associations().references(call().env(), result, ns, path, assoc.c_str(), f.role.c_str(),
                              E_INCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0);
  return out;
}

CIMObjectPathArray Cimom::referenceNames(const String& ns, const Path& path,
                                         const AssociationFilter& f) {
  CIMObjectPathArray out;
  CIMObjectPathArrayBuilder result(out);
  for (const std::string& assoc : associationClasses(path, f))
    associations().referenceNames(call().env(), result, ns, path, assoc.c_str(), f.role.c_str());
  return out;
}

}  // namespace rascim
