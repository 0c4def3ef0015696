// The PPP endpoints: which files, scripts and processes each Name selects, the two instances,
// and the option values read once from the options file when an endpoint is built (with the
// repairs of compression lines that no value can be read from).
#include "Zeph_PPPProtocolEndpointImpl.h"

#include "Zeph_CommandRunner.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kSystemCreationClassName = "Zeph_System";
const char* const kSystemName = "Zeph";
const char* const kDialInName = "DialInEndpoint";
const char* const kDialOutName = "DialOutEndpoint";
const char* const kElementName = "PPP Configuration";

const PPPLink kLinks[] = {
    {kDialInName, true, false, kDialInOptions, "_dialin", kDialInScript, "mgetty_v2k", "DIN",
     "Interface for DialIn  is"},
    {kDialOutName, false, true, kDialOutOptions, "_dialout", kDialOutScript, "ppp_add_v2k", "ADDO",
     "Interface for DialOut  is"},
};
const PPPLink kUnknownLink = {"", false, false, "", "", "", "", "", ""};

const char* const kLogCreating = "CREATING INSTACES OF PPP\n";
const char* const kTraceConstructor =
    "Zeph_PPPProtocolEndpointImpl::Zeph_PPPProtocolEndpointImpl\n";
const char* const kLogInvalidKey = "ERROR: Invalid Key ";

}  // namespace

const PPPLink& ras::pppLinkNamed(const std::string& name) {
  for (const PPPLink& link : kLinks) {
    if (name == link.name) return link;
  }
  return kUnknownLink;
}

Zeph_PPPProtocolEndpointImpl::Zeph_PPPProtocolEndpointImpl(
    const std::string& systemCreationClassName, const std::string& systemName,
    const std::string& creationClassName, const std::string& name)
    : Zeph_PPPProtocolEndpoint(systemCreationClassName, systemName, creationClassName, name) {
  platformLogDebug(kTraceConstructor);
  elementName_ = kElementName;
  if (name == kDialInName) ReadNewAuthenticationDialIn();
  if (name == kDialOutName) ReadNewAuthenticationDialOut();
  Initialize_Parameters();
}

const PPPLink& Zeph_PPPProtocolEndpointImpl::link() const {
  std::string name;
  ras::Qualifiers unused;
  getName(name, unused);
  return pppLinkNamed(name);
}

void Zeph_PPPProtocolEndpointImpl::editOptions(const char* format) const {
  runCommand(format, {kSed, link().options});
}

void Zeph_PPPProtocolEndpointImpl::restartIfDialOut() const {
  if (link().dialOut) Restart_ppp_add_v2k();
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
  for (const PPPLink& link : kLinks) {
    new Zeph_PPPProtocolEndpointImpl(kSystemCreationClassName, kSystemName,
                                     Zeph_PPPProtocolEndpointName, link.name);
  }
  return kStatusOk;
}
