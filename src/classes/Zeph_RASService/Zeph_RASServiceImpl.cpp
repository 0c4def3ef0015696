// The RAS service switch and its manager: registry reads and writes of "ModemStatus", the
// stop and resume steps of the dial directions, and the change subscription.
#include "Zeph_RASServiceImpl.h"

#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"

using namespace ras;

namespace {

const char* const kServiceName = "RASService";

// The status a failed registry write reports to the provider.
constexpr int kStatusRegistryWriteFailed = 100;

const char* const kLogGetModemStatus = "Zeph_RASServiceImpl::getmodemStatus\n";
const char* const kLogSetModemStatus = "Zeph_RASServiceImpl::setmodemStatus\n";

// Neither direction may run: gates closed, links hung up, mgetty and chat killed.
void stopBothDirections() {
  stopDialIn();
  stopDialOut();
}

}  // namespace

int Zeph_RASServiceImpl::getElementName(std::string& name, ras::Qualifiers&) const {
  name = elementName_;
  return ras::kStatusOk;
}

int Zeph_RASServiceImpl::getmodemStatus(bool& status, ras::Qualifiers&) const {
  platformLogDebug(kLogGetModemStatus);
  std::string value;
  status = false;
  if (!readModemRegistry(kRegModemStatus, value)) {
    platformLogError(kQvlErrorLogUpper);
    return ras::kStatusOk;
  }
  if (value == kRegEnabled) {
    status = true;
  } else if (value == kRegDisabled) {
    stopBothDirections();
  } else {
    platformLogError(kBadModemStatusLog);
  }
  return ras::kStatusOk;
}

int Zeph_RASServiceImpl::setmodemStatus(bool status) {
  platformLogDebug(kLogSetModemStatus);
  std::string name;
  ras::Qualifiers unused;
  getElementName(name, unused);  // read through the object's own getter; not needed further
  bool written = false;
  if (status) {
    // Enabling: the registry first; its change callback resumes the dial-in side.
    written = writeModemRegistry(kRegModemStatus, kRegEnabled);
    resumeDialOut();
  } else {
    // Disabling: nothing may still run by the time the registry says so.
    stopBothDirections();
    written = writeModemRegistry(kRegModemStatus, kRegDisabled);
  }
  if (!written) {
    platformLogError(kQvlErrorLog);
    return kStatusRegistryWriteFailed;
  }
  modemStatus_ = status;
  return ras::kStatusOk;
}

int Zeph_RASServiceImplInstanceManager::init() {
  new Zeph_RASServiceImpl(kSystemCreationClassName, kSystemName, Zeph_RASServiceName, kServiceName);
  startModemStatusNotify();
  return ras::kStatusOk;
}

void Zeph_RASServiceImplInstanceManager::destroyZeph_RASService(Zeph_RASService* object) {
  stopModemStatusNotify();
  destroy(object);
}
