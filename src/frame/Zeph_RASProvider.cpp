// The provider's life cycle over the class table; initialize keeps the CIMOM's logger.
#include "Zeph_RASProvider.h"

#include "Zeph_ModuleClasses.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RequestScope.h"

Zeph_RASProvider::~Zeph_RASProvider() = default;

void Zeph_RASProvider::initialize(const EnvRef& env) {
  ras::RequestScope request(env);
  logger = env->getLogger(ras::kLogComponent);
  ras::initializeModuleClasses(env);
}

void Zeph_RASProvider::cleanup() {
  ras::cleanupModuleClasses();
}
