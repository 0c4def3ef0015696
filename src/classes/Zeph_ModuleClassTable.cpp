// The module's ten classes, one row each, in canonical class order: the order the module
// objects are constructed in, initialized and cleaned up, and the order the dispatcher
// compares class names in.
#include <string>
#include <vector>

#include "Zeph_ClassTable.h"
#include "Zeph_ModuleProviders.h"

namespace {

using ModuleClassTable = ras::WithModuleProviders<ras::ClassTable>;

// The module objects; unload destroys them in reverse order.
ModuleClassTable moduleObjects;

// How the dispatcher reaches each module object, built once from the table.
struct Routes {
  ras::ModuleClass rows[ModuleClassTable::kSize];
  int count = 0;
  template <class Provider>
  void operator()(Provider& p) {
    rows[count++] = ras::moduleClassOf(p);
  }
};

const Routes& routes() {
  static const Routes built = [] {
    Routes r;
    moduleObjects.forEach(r);
    return r;
  }();
  return built;
}

}  // namespace

namespace ras {

const ModuleClass* findModuleClass(const OpenWBEM::String& className) {
  for (const ModuleClass& moduleClass : routes().rows) {
    if (className.equals(moduleClass.name)) return &moduleClass;
  }
  return nullptr;
}

OpenWBEM::CppAssociatorProviderIFC* findAssociationProvider(const OpenWBEM::String& assocClass) {
  const ModuleClass* moduleClass = findModuleClass(assocClass);
  return moduleClass != nullptr ? moduleClass->associations : nullptr;
}

std::vector<std::string> moduleClassNames() {
  std::vector<std::string> names;
  for (const ModuleClass& moduleClass : routes().rows) names.emplace_back(moduleClass.name);
  return names;
}

void initializeModuleClasses(const OpenWBEM::ProviderEnvironmentIFCRef& env) {
  auto initialize = [&env](auto& provider) { provider.initialize(env); };
  moduleObjects.forEach(initialize);
}

// Deliberately the same order as initialize, not reversed.
void cleanupModuleClasses() {
  auto cleanup = [](auto& provider) { provider.cleanup(); };
  moduleObjects.forEach(cleanup);
}

}  // namespace ras
