// The local addresses of both dial links, kept in the local part of each link's local:remote
// pppd address line; an empty local part lets pppd negotiate the address. A new dial-in
// address also goes to the call-back link. Only dial-out changes restart their link.
#include "Zeph_RASIPProtocolEndpointImpl.h"

#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"

using namespace ras;

namespace {

const char* const kDialInName = kDialInEndpointName;
const char* const kDialOutName = kDialOutEndpointName;
const char* const kElementName = "Local IP Address Configuration";
const char* const kWrite = "Write";
// The intervals are reported as this many seconds, whatever the members hold.
constexpr int kIntervalSeconds = 1;

const char* const kTraceSetIPv4Address = "setIPv4Address\n";
const char* const kTraceSetaddrAssignment = "setaddrAssignment\n";
const char* const kTraceSetSubnetMask = "setSubnetMask\n";
const char* const kLogLocal = "LOCAL IP\n";

}  // namespace

Zeph_RASIPProtocolEndpointImpl::Zeph_RASIPProtocolEndpointImpl(
    const std::string& systemCreationClassName, const std::string& systemName,
    const std::string& creationClassName, const std::string& name)
    : Zeph_RASIPProtocolEndpoint(systemCreationClassName, systemName, creationClassName, name),
      elementName_(kElementName),
      subnetMask_(kHostMask) {
  const AddressLine line = readAddressLine(optionsFile());
  addrAssignment_ = line.local.empty();
  logAddressLine(kLogLocal, kLogRemote, line);
  ipv4Address_ = line.local;
}

bool Zeph_RASIPProtocolEndpointImpl::dialIn() const {
  std::string name;
  Qualifiers unused;
  getName(name, unused);
  return name == kDialInName;
}

const char* Zeph_RASIPProtocolEndpointImpl::optionsFile() const {
  return dialIn() ? kDialInOptions : kDialOutOptions;
}

int Zeph_RASIPProtocolEndpointImpl::getElementName(std::string& value, Qualifiers&) const {
  value = elementName_;
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getIPv4Address(std::string& value,
                                                   Qualifiers& qualifiers) const {
  value = ipv4Address_;
  addFlagQualifier(qualifiers, kWrite, !addrAssignment_);
  ShowWarningMessage(qualifiers);
  return kStatusOk;
}

// While the address is negotiated the line keeps an empty local part and the address is only
// remembered; the call-back link takes it at once either way.
int Zeph_RASIPProtocolEndpointImpl::setIPv4Address(std::string value) {
  // A malformed address is dropped, as it always was; one that passes the address check but
  // would not stay data in the address line is refused.
  if (value.empty() || IsIPValid(value.data()) != 1) return kStatusOk;
  if (!isSettableAddress(value)) return kStatusInvalidValue;
  platformLogDebug(kTraceSetIPv4Address);
  CommandSequence edits;
  if (dialIn()) {
    const AddressLine callback = readAddressLine(kCallbackOptions);
    edits.add(addressLineEdit(kCallbackOptions, value, callback.remote));
  }
  const char* file = optionsFile();
  const AddressLine line = readAddressLine(file);
  logAddressLine(kLogLocalOnSet, kLogRemote, line);
  edits.add(addressLineEdit(file, addrAssignment_ ? std::string() : value, line.remote));
  if (!edits.run()) return kStatusInvalidValue;
  ipv4Address_ = value;
  if (!dialIn()) Restart_ppp_add_v2k();
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getSubnetMask(std::string& value, Qualifiers&) const {
  value = subnetMask_;
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::setSubnetMask(std::string value) {
  platformLogDebug(kTraceSetSubnetMask);
  subnetMask_ = value;
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getaddrAssignment(bool& value, Qualifiers&) const {
  value = addrAssignment_;
  return kStatusOk;
}

// Negotiated: the local part is emptied. Fixed: the remembered address is written back.
int Zeph_RASIPProtocolEndpointImpl::setaddrAssignment(bool value) {
  platformLogDebug(kTraceSetaddrAssignment);
  const char* file = optionsFile();
  const AddressLine line = readAddressLine(file);
  logAddressLine(kLogLocalOnSet, kLogRemote, line);
  const ShellCommand edit =
      addressLineEdit(file, value ? std::string() : ipv4Address_, line.remote);
  if (!edit.valid()) return kStatusInvalidValue;
  edit.run();
  addrAssignment_ = value;
  if (!dialIn()) Restart_ppp_add_v2k();
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getForwarding(bool& value, Qualifiers&) const {
  value = forwarding_;
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getDefaultTTL(std::string& value, Qualifiers&) const {
  value = defaultTTL_;
  timeTodatetimeFormat(value, kIntervalSeconds);
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImpl::getReassemblyTimeout(std::string& value, Qualifiers&) const {
  value = reassemblyTimeout_;
  timeTodatetimeFormat(value, kIntervalSeconds);
  return kStatusOk;
}

int Zeph_RASIPProtocolEndpointImplInstanceManager::init() {
  new Zeph_RASIPProtocolEndpointImpl(kSystemCreationClassName, kSystemName,
                                     Zeph_RASIPProtocolEndpointName, kDialInName);
  new Zeph_RASIPProtocolEndpointImpl(kSystemCreationClassName, kSystemName,
                                     Zeph_RASIPProtocolEndpointName, kDialOutName);
  return kStatusOk;
}
