// The module's ten classes, one row each, in canonical class order: the order the module
// objects are constructed in, initialized and cleaned up, and the order the dispatcher
// compares class names in.
#include "Zeph_CallInSettingDataProvider.h"
#include "Zeph_ClassTable.h"
#include "Zeph_DialOutRoutesProvider.h"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_NextHopIPRouteProvider.h"
#include "Zeph_PPPProtocolEndpointProvider.h"
#include "Zeph_RASIPProtocolEndpointProvider.h"
#include "Zeph_RASServiceProvider.h"
#include "Zeph_RASStaticIPAddressPoolProvider.h"
#include "Zeph_SerialPortProvider.h"
#include "Zeph_SoftModemProvider.h"

namespace {

using ModuleClassTable = ras::ClassTable<Zeph_CallInSettingDataProvider,       //
                                         Zeph_DialOutSettingDataProvider,      //
                                         Zeph_RASServiceProvider,              //
                                         Zeph_RASStaticIPAddressPoolProvider,  //
                                         Zeph_NextHopIPRouteProvider,          //
                                         Zeph_RASIPProtocolEndpointProvider,   //
                                         Zeph_PPPProtocolEndpointProvider,     //
                                         Zeph_SoftModemProvider,               //
                                         Zeph_SerialPortProvider,              //
                                         Zeph_DialOutRoutesProvider>;

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
