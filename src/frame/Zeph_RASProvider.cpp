// The module's logger and CIMOM handle, and the provider's life cycle over the class table.
#include "Zeph_RASProvider.h"

#include "Zeph_ModuleClasses.h"
#include "Zeph_ModuleGlobals.h"

OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;
ras::CurrentCIMOMHandle hdl;

Zeph_RASProvider::~Zeph_RASProvider() = default;

void Zeph_RASProvider::initialize(const EnvRef& env) {
  ras::RequestScope request(env);
  logger = env->getLogger(ras::kLogComponent);
  ras::initializeModuleClasses(env);
}

void Zeph_RASProvider::cleanup() {
  ras::cleanupModuleClasses();
}
