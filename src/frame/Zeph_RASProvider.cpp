// The module objects (ten per-class providers, then logger and hdl), the class table the
// dispatcher routes through, and the provider's life cycle.
#include "Zeph_RASProvider.h"

#include "Zeph_CallInSettingDataProvider.h"
#include "Zeph_DialOutRoutesProvider.h"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_ModuleClasses.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_NextHopIPRouteProvider.h"
#include "Zeph_PPPProtocolEndpointProvider.h"
#include "Zeph_RASIPProtocolEndpointProvider.h"
#include "Zeph_RASServiceProvider.h"
#include "Zeph_RASStaticIPAddressPoolProvider.h"
#include "Zeph_SerialPortProvider.h"
#include "Zeph_SoftModemProvider.h"

// Construction follows the canonical class order; unload destroys them in reverse.
static Zeph_CallInSettingDataProvider Zeph_CallInSettingDataProv;
static Zeph_DialOutSettingDataProvider Zeph_DialOutSettingDataProv;
static Zeph_RASServiceProvider Zeph_RASServiceProv;
static Zeph_RASStaticIPAddressPoolProvider Zeph_RASStaticIPAddressPoolProv;
static Zeph_NextHopIPRouteProvider Zeph_NextHopIPRouteProv;
static Zeph_RASIPProtocolEndpointProvider Zeph_RASIPProtocolEndpointProv;
static Zeph_PPPProtocolEndpointProvider Zeph_PPPProtocolEndpointProv;
static Zeph_SoftModemProvider Zeph_SoftModemProv;
static Zeph_SerialPortProvider Zeph_SerialPortProv;
static Zeph_DialOutRoutesProvider Zeph_DialOutRoutesProv;

OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;
ras::CurrentCIMOMHandle hdl;

namespace {

constexpr char kLogComponent[] = "Zeph_RASProvider";

// Instance and method requests for Zeph_DialOutRoutes go to its instance-provider base.
Zeph_DialOutRoutesInstProvider& dialOutRoutesInstances = Zeph_DialOutRoutesProv;

const ras::ModuleClass kModuleClasses[] = {
    {Zeph_CallInSettingDataName, &Zeph_CallInSettingDataProv, &Zeph_CallInSettingDataProv},
    {Zeph_DialOutSettingDataName, &Zeph_DialOutSettingDataProv, &Zeph_DialOutSettingDataProv},
    {Zeph_RASServiceName, &Zeph_RASServiceProv, &Zeph_RASServiceProv},
    {Zeph_RASStaticIPAddressPoolName, &Zeph_RASStaticIPAddressPoolProv,
     &Zeph_RASStaticIPAddressPoolProv},
    {Zeph_NextHopIPRouteName, &Zeph_NextHopIPRouteProv, &Zeph_NextHopIPRouteProv},
    {Zeph_RASIPProtocolEndpointName, &Zeph_RASIPProtocolEndpointProv,
     &Zeph_RASIPProtocolEndpointProv},
    {Zeph_PPPProtocolEndpointName, &Zeph_PPPProtocolEndpointProv, &Zeph_PPPProtocolEndpointProv},
    {Zeph_SoftModemName, &Zeph_SoftModemProv, &Zeph_SoftModemProv},
    {Zeph_SerialPortName, &Zeph_SerialPortProv, &Zeph_SerialPortProv},
    {Zeph_DialOutRoutesName, &dialOutRoutesInstances, &dialOutRoutesInstances},
};

}  // namespace

namespace ras {

const ModuleClass* findModuleClass(const OpenWBEM::String& className) {
  for (const ModuleClass& moduleClass : kModuleClasses) {
    if (className.equals(moduleClass.name)) return &moduleClass;
  }
  return nullptr;
}

OpenWBEM::CppAssociatorProviderIFC* findAssociationProvider(const OpenWBEM::String& assocClass) {
  return assocClass.equals(Zeph_DialOutRoutesName) ? &Zeph_DialOutRoutesProv : nullptr;
}

void initializeModuleClasses(const OpenWBEM::ProviderEnvironmentIFCRef& env) {
  Zeph_CallInSettingDataProv.initialize(env);
  Zeph_DialOutSettingDataProv.initialize(env);
  Zeph_RASServiceProv.initialize(env);
  Zeph_RASStaticIPAddressPoolProv.initialize(env);
  Zeph_NextHopIPRouteProv.initialize(env);
  Zeph_RASIPProtocolEndpointProv.initialize(env);
  Zeph_PPPProtocolEndpointProv.initialize(env);
  Zeph_SoftModemProv.initialize(env);
  Zeph_SerialPortProv.initialize(env);
  Zeph_DialOutRoutesProv.initialize(env);
}

// Deliberately the same order as initialize, not reversed.
void cleanupModuleClasses() {
  Zeph_CallInSettingDataProv.cleanup();
  Zeph_DialOutSettingDataProv.cleanup();
  Zeph_RASServiceProv.cleanup();
  Zeph_RASStaticIPAddressPoolProv.cleanup();
  Zeph_NextHopIPRouteProv.cleanup();
  Zeph_RASIPProtocolEndpointProv.cleanup();
  Zeph_PPPProtocolEndpointProv.cleanup();
  Zeph_SoftModemProv.cleanup();
  Zeph_SerialPortProv.cleanup();
  Zeph_DialOutRoutesProv.cleanup();
}

}  // namespace ras

Zeph_RASProvider::~Zeph_RASProvider() = default;

void Zeph_RASProvider::initialize(const EnvRef& env) {
  ras::RequestScope request(env);
  logger = env->getLogger(kLogComponent);
  ras::initializeModuleClasses(env);
}

void Zeph_RASProvider::cleanup() {
  ras::cleanupModuleClasses();
}
