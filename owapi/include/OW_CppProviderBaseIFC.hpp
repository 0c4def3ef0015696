// Base of every C++ provider, the role queries and the library entry-point macros.
#ifndef OW_CPPPROVIDERBASEIFC_HPP_INCLUDE_GUARD_
#define OW_CPPPROVIDERBASEIFC_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_DateTime.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "OW_ProviderRegistrationEnvironmentIFC.hpp"
#include "OW_SharedLibraryReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CppInstanceProviderIFC;
class CppSecondaryInstanceProviderIFC;
class CppMethodProviderIFC;
class CppAssociatorProviderIFC;
class CppIndicationExportProviderIFC;
class CppPolledProviderIFC;
class CppIndicationProviderIFC;

class CppProviderBaseIFC : public virtual IntrusiveCountableBase {
 public:
  CppProviderBaseIFC();
  CppProviderBaseIFC(const CppProviderBaseIFC& arg);
  virtual ~CppProviderBaseIFC();

  virtual void initialize(const ProviderEnvironmentIFCRef& env);
  virtual void shuttingDown(const ProviderEnvironmentIFCRef& env);
  virtual CppInstanceProviderIFC* getInstanceProvider();
  virtual CppSecondaryInstanceProviderIFC* getSecondaryInstanceProvider();
  virtual CppMethodProviderIFC* getMethodProvider();
  virtual CppAssociatorProviderIFC* getAssociatorProvider();
  virtual CppIndicationExportProviderIFC* getIndicationExportProvider();
  virtual CppPolledProviderIFC* getPolledProvider();
  virtual CppIndicationProviderIFC* getIndicationProvider();
  virtual bool canUnload();

  DateTime getLastAccessTime() const;
  void updateAccessTime();
  bool getPersist() const;
  void setPersist(bool persist = true);

 private:
  DateTime m_dt;
  bool m_persist;
};

typedef SharedLibraryReference<IntrusiveReference<CppProviderBaseIFC> > CppProviderBaseIFCRef;

}  // namespace OW_NAMESPACE

#define OW_PROVIDERFACTORY(prov, name)                                            \
  extern "C" OW_EXPORT const char* getOWVersion() {                               \
    return OW_VERSION;                                                            \
  }                                                                               \
  extern "C" OW_EXPORT OW_NAMESPACE::CppProviderBaseIFC* createProvider##name() { \
    return new prov;                                                              \
  }

#define OW_PROVIDERFACTORY_NOID(prov, name) OW_NOIDPROVIDERFACTORY(prov)

#define OW_NOIDPROVIDERFACTORY(prov)                                             \
  extern "C" OW_EXPORT const char* getOWVersion() {                              \
    return OW_VERSION;                                                           \
  }                                                                              \
  extern "C" OW_EXPORT OW_NAMESPACE::CppProviderBaseIFC* createProviderNO_ID() { \
    return new prov;                                                             \
  }

#endif
