// The module's per-class providers as the dispatcher sees them, in canonical class order.
#ifndef ZEPH_MODULECLASSES_H
#define ZEPH_MODULECLASSES_H

#include <string>
#include <vector>

#include "OW_CppAssociatorProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"

namespace ras {

struct ModuleClass {
  const char* name;
  OpenWBEM::CppInstanceProviderIFC* instances;
  OpenWBEM::CppMethodProviderIFC* methods;
  OpenWBEM::CppAssociatorProviderIFC* associations;  // null unless the class is an association
};

// The providers of `className` (exact, case-sensitive name), or null if the module has none.
const ModuleClass* findModuleClass(const OpenWBEM::String& className);

// The association provider of `assocClass`, or null; only Zeph_DialOutRoutes has one.
OpenWBEM::CppAssociatorProviderIFC* findAssociationProvider(const OpenWBEM::String& assocClass);

// The names of the module's classes, in canonical class order.
std::vector<std::string> moduleClassNames();

// initialize and cleanup of every per-class provider, in canonical class order.
void initializeModuleClasses(const OpenWBEM::ProviderEnvironmentIFCRef& env);
void cleanupModuleClasses();

}  // namespace ras

#endif
