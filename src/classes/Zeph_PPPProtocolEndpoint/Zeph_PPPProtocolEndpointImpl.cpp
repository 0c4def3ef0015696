// The PPP endpoints: the two instances, each reading its authentication lines and option
// values once when it is built.
#include "Zeph_PPPProtocolEndpointImpl.h"

#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kElementName = "PPP Configuration";

const char* const kLogCreating = "CREATING INSTACES OF PPP\n";
const char* const kTraceConstructor =
    "Zeph_PPPProtocolEndpointImpl::Zeph_PPPProtocolEndpointImpl\n";
const char* const kLogInvalidKey = "ERROR: Invalid Key ";

}  // namespace

Zeph_PPPProtocolEndpointImpl::Zeph_PPPProtocolEndpointImpl(
    const std::string& systemCreationClassName, const std::string& systemName,
    const std::string& creationClassName, const std::string& name)
    : Zeph_PPPProtocolEndpoint(systemCreationClassName, systemName, creationClassName, name) {
  platformLogDebug(kTraceConstructor);
  elementName_ = kElementName;
  if (name == kDialInEndpointName) ReadNewAuthenticationDialIn();
  if (name == kDialOutEndpointName) ReadNewAuthenticationDialOut();
  Initialize_Parameters();
}

void Zeph_PPPProtocolEndpointImpl::Initialize_Parameters() {
  const PPPLink& options = link();
  if (!options.dialIn && !options.dialOut) {
    std::string name;
    ras::Qualifiers unused;
    getName(name, unused);
    platformLogError(kLogInvalidKey);
    platformLogError(name);
  }
  readHeaderComp(options.options);
  readSoftwareComp(options.options);
  readNumbers(options.options);
}

int Zeph_PPPProtocolEndpointImpl::getElementName(std::string& value, ras::Qualifiers&) const {
  value = elementName_;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImplInstanceManager::init() {
  platformLogDebug(kLogCreating);
  for (const PPPLink& link : pppLinks()) {
    new Zeph_PPPProtocolEndpointImpl(kSystemCreationClassName, kSystemName,
                                     Zeph_PPPProtocolEndpointName, link.name);
  }
  return kStatusOk;
}
