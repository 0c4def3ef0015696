// The remote addresses of both dial links, kept in the remote part of each link's local:remote
// pppd address line. The dial-in address is also the one the call-back link hands out.
#include "Zeph_RASStaticIPAddressPoolImpl.h"

#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kDialInID = "Velmar:DialInRASStaticIPAddressPool";
const char* const kDialOutID = "Velmar:DialOutRASStaticIPAddressPool";
const char* const kElementName = "IP Address Pool";
const char* const kWrite = "Write";
constexpr int kStatusMalformedAddress = 12;

const char* const kTraceConstructor =
    "Zeph_RASStaticIPAddressPoolImpl::Zeph_RASStaticIPAddressPoolImpl\n";
const char* const kTraceSetipAddr = "Zeph_RASStaticIPAddressPoolImpl::setipAddr\n";
const char* const kTraceSetuseStaticPool = "Zeph_RASStaticIPAddressPoolImpl::setuseStaticPool\n";
const char* const kLogLocal = "LOCAL IP\n";
const char* const kLogPoolRemote = "Static Pool REMOTE IP\n";
const char* const kLogRemoteLength = "%d";
const char* const kLogPoolOn = "setting static pool to true";
const char* const kLogPoolOff = "setting static pool to false";
const char* const kLogInstanceID = "Static Pool InstanceID\n";

}  // namespace

Zeph_RASStaticIPAddressPoolImpl::Zeph_RASStaticIPAddressPoolImpl(const std::string& instanceID)
    : Zeph_RASStaticIPAddressPool(instanceID), elementName_(kElementName), netMask_(kHostMask) {
  platformLogDebug(kTraceConstructor);
  const AddressLine line = readAddressLine(optionsFile());
  logAddressLine(kLogLocal, kLogRemote, line);
  platformLogDebug(formatText(kLogRemoteLength, static_cast<int>(line.remote.size())));
  ipAddr_ = withoutNewline(line.remote);
  // A line ending in a bare ":" hands out no static address.
  useStaticPool_ = !ipAddr_.empty();
  platformLogDebug(useStaticPool_ ? kLogPoolOn : kLogPoolOff);
}

bool Zeph_RASStaticIPAddressPoolImpl::dialIn() const {
  return instanceID() == kDialInID;
}

const char* Zeph_RASStaticIPAddressPoolImpl::optionsFile() const {
  return dialIn() ? kDialInOptions : kDialOutOptions;
}

std::string Zeph_RASStaticIPAddressPoolImpl::instanceID() const {
  std::string id;
  Qualifiers unused;
  getInstanceID(id, unused);
  return id;
}

// A dial-in change waits for mgetty's next start; a dial-out one hangs up an idle link.
void Zeph_RASStaticIPAddressPoolImpl::restartLink() const {
  if (dialIn()) {
    RestartMgetty();
  } else {
    Restart_ppp_add_v2k();
  }
}

int Zeph_RASStaticIPAddressPoolImpl::getElementName(std::string& value, Qualifiers&) const {
  value = elementName_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getipAddr(std::string& value, Qualifiers& qualifiers) const {
  value = ipAddr_;
  addFlagQualifier(qualifiers, kWrite, useStaticPool_);
  ShowWarningMessage(qualifiers);
  return kStatusOk;
}

// The address is written even while no static address is handed out.
int Zeph_RASStaticIPAddressPoolImpl::setipAddr(std::string value) {
  platformLogDebug(kTraceSetipAddr);
  if (!value.empty() && !isSettableAddress(value)) return kStatusMalformedAddress;
  CommandSequence edits;
  if (dialIn()) {
    const AddressLine callback = readAddressLine(kCallbackOptions);
    edits.add(addressLineEdit(kCallbackOptions, callback.local, value));
  }
  const AddressLine line = readAddressLine(optionsFile());
  logAddressLine(kLogLocal, kLogRemote, line);
  edits.add(addressLineEdit(optionsFile(), line.local, value));
  if (!edits.run()) return kStatusMalformedAddress;
  ipAddr_ = value;
  platformLogDebug(kLogInstanceID);
  platformLogDebug(instanceID());
  restartLink();
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getnetMask(std::string& value, Qualifiers&) const {
  value = netMask_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getuseStaticPool(bool& value, Qualifiers& qualifiers) const {
  value = useStaticPool_;
  ShowWarningMessage(qualifiers);
  return kStatusOk;
}

// The call-back link keeps its address: only the link's own options file changes.
int Zeph_RASStaticIPAddressPoolImpl::setuseStaticPool(bool value) {
  platformLogDebug(kTraceSetuseStaticPool);
  const char* file = optionsFile();
  const AddressLine line = readAddressLine(file);
  logAddressLine(kLogLocalOnSet, value ? kLogRemote : kLogPoolRemote, line);
  const ShellCommand edit = addressLineEdit(file, line.local, value ? ipAddr_ : std::string());
  if (!edit.valid()) return kStatusInvalidValue;
  edit.run();
  useStaticPool_ = value;
  platformLogDebug(kLogInstanceID);
  platformLogDebug(instanceID());
  restartLink();
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getCaption(std::string& value, Qualifiers&) const {
  value = caption_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getDescription(std::string& value, Qualifiers&) const {
  value = description_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getStartAddress(std::string& value, Qualifiers&) const {
  value = startAddress_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getEndAddress(std::string& value, Qualifiers&) const {
  value = endAddress_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImpl::getAddressType(unsigned short& value, Qualifiers&) const {
  value = addressType_;
  return kStatusOk;
}

int Zeph_RASStaticIPAddressPoolImplInstanceManager::init() {
  new Zeph_RASStaticIPAddressPoolImpl(kDialInID);
  new Zeph_RASStaticIPAddressPoolImpl(kDialOutID);
  return kStatusOk;
}
