// Default behaviour of the C++ provider bases: no roles, no registration, unloadable.
#include "OW_CIM.hpp"
#include "OW_CppAssociatorProviderIFC.hpp"
#include "OW_CppInstanceProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"
#include "OW_CppProviderBaseIFC.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "OW_ProviderRegistrationEnvironmentIFC.hpp"
#include "OW_ResultHandlers.hpp"

namespace OW_NAMESPACE {

using namespace WBEMFlags;

ProviderEnvironmentIFC::~ProviderEnvironmentIFC() {}
ProviderRegistrationEnvironmentIFC::~ProviderRegistrationEnvironmentIFC() {}

CppProviderBaseIFC::CppProviderBaseIFC() : m_dt(0), m_persist(false) {}
CppProviderBaseIFC::CppProviderBaseIFC(const CppProviderBaseIFC& arg)
    : IntrusiveCountableBase(arg), m_dt(arg.m_dt), m_persist(arg.m_persist) {}
CppProviderBaseIFC::~CppProviderBaseIFC() {}
void CppProviderBaseIFC::initialize(const ProviderEnvironmentIFCRef&) {}
void CppProviderBaseIFC::shuttingDown(const ProviderEnvironmentIFCRef&) {}
CppInstanceProviderIFC* CppProviderBaseIFC::getInstanceProvider() {
  return 0;
}
CppSecondaryInstanceProviderIFC* CppProviderBaseIFC::getSecondaryInstanceProvider() {
  return 0;
}
CppMethodProviderIFC* CppProviderBaseIFC::getMethodProvider() {
  return 0;
}
CppAssociatorProviderIFC* CppProviderBaseIFC::getAssociatorProvider() {
  return 0;
}
CppIndicationExportProviderIFC* CppProviderBaseIFC::getIndicationExportProvider() {
  return 0;
}
CppPolledProviderIFC* CppProviderBaseIFC::getPolledProvider() {
  return 0;
}
CppIndicationProviderIFC* CppProviderBaseIFC::getIndicationProvider() {
  return 0;
}
bool CppProviderBaseIFC::canUnload() {
  return true;
}
DateTime CppProviderBaseIFC::getLastAccessTime() const {
  return m_dt;
}
void CppProviderBaseIFC::updateAccessTime() {
  m_dt.setToCurrent();
}
bool CppProviderBaseIFC::getPersist() const {
  return m_persist;
}
void CppProviderBaseIFC::setPersist(bool persist) {
  m_persist = persist;
}

CppInstanceProviderIFC::CppInstanceProviderIFC() {}
CppInstanceProviderIFC::~CppInstanceProviderIFC() {}

void CppInstanceProviderIFC::getInstanceProviderInfoWithEnv(
    const ProviderRegistrationEnvironmentIFCRef&, InstanceProviderInfo& info) {
  getInstanceProviderInfo(info);
}

void CppInstanceProviderIFC::getInstanceProviderInfo(InstanceProviderInfo&) {}

void CppInstanceProviderIFC::enumInstances(
    const ProviderEnvironmentIFCRef& env, const String& ns, const String& className,
    CIMInstanceResultHandlerIFC& result, ELocalOnlyFlag localOnly, EDeepFlag,
    EIncludeQualifiersFlag includeQualifiers, EIncludeClassOriginFlag includeClassOrigin,
    const StringArray* propertyList, const CIMClass&, const CIMClass& cimClass) {
  CIMObjectPathArray names;
  CIMObjectPathArrayBuilder collect(names);
  enumInstanceNames(env, ns, className, collect, cimClass);
  for (size_t i = 0; i < names.size(); ++i) {
    result.handle(getInstance(env, ns, names[i], localOnly, includeQualifiers, includeClassOrigin,
                              propertyList, cimClass));
  }
}

CppInstanceProviderIFC* CppInstanceProviderIFC::getInstanceProvider() {
  return this;
}

CppMethodProviderIFC::~CppMethodProviderIFC() {}

void CppMethodProviderIFC::getMethodProviderInfoWithEnv(
    const ProviderRegistrationEnvironmentIFCRef&, MethodProviderInfo& info) {
  getMethodProviderInfo(info);
}

void CppMethodProviderIFC::getMethodProviderInfo(MethodProviderInfo&) {}
CppMethodProviderIFC* CppMethodProviderIFC::getMethodProvider() {
  return this;
}

CppAssociatorProviderIFC::~CppAssociatorProviderIFC() {}

void CppAssociatorProviderIFC::getAssociatorProviderInfoWithEnv(
    const ProviderRegistrationEnvironmentIFCRef&, AssociatorProviderInfo& info) {
  getAssociatorProviderInfo(info);
}

void CppAssociatorProviderIFC::getAssociatorProviderInfo(AssociatorProviderInfo&) {}
CppAssociatorProviderIFC* CppAssociatorProviderIFC::getAssociatorProvider() {
  return this;
}

}  // namespace OW_NAMESPACE
