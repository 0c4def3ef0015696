// Dial service process control: the restarts after a settings change, the stop and resume of
// both directions on a "ModemStatus" change, and the subscription to that change.
#include "Zeph_DialService.h"

#include "QvlShared.h"
#include "Zeph_ApplianceFiles.h"
#include "Zeph_DialServiceSteps.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_Registry.h"
#include "Zeph_RequestScope.h"

using namespace ras;

int handle = -1;

namespace {

const char* const kLogJobControl = "Restart_ppp_add_v2k:jobCntrl";
const char* const kLogRestartInterface = "Name of DialOut in Restart  Interface.. ";
const char* const kLogKillingMgetty = "Killing Mgetty";
const char* const kLogCallback = "Calling Callback Function";
const char* const kLogNotifyStarted = "Successful in Notify";

}  // namespace

std::string ras::findDialOutInterface() {
  return dialOutInterfaceFor(dialOutRecorded());
}

std::string ras::readActiveInterface() {
  return interfaceInMarker();
}

void Restart_ppp_add_v2k() {
  platformLogDebug(kLogJobControl);
  platformLogDebug(gateState(kDialOutScript));
  const int addo = dialOutRecorded();
  if (addo == 1) {
    // An established dial-out call is left alone.
    interfaceInMarker();
    return;
  }
  const std::string interface = dialOutInterfaceFor(addo);
  if (addo == -1) {
    killChat();
  } else {
    platformLogDebug(kLogRestartInterface);
    platformLogDebug(interface);
  }
  hangUp(interface);
}

void RestartMgetty() {
  gateState(kDialInScript);
  const int din = dialInRecorded();
  // A dial-in call in progress is never cut by a settings change.
  if (din != -1 && din != 0) return;
  logAndRun(kLogKillingMgetty, killMgettyCommand());
  reloadInit();
}

void ras::stopDialOut() {
  const std::string interface = findDialOutInterface();
  platformLogDebug(kLogDialOutInterface);
  platformLogDebug(interface);
  closeGate(kDialOutScript);
  if (interface.empty()) return;
  killChat();
  hangUp(interface);
}

void ras::stopDialIn() {
  closeGate(kDialInScript);
  const std::string interface = dialInRecorded() == 1 ? interfaceInMarker() : std::string();
  platformLogDebug(kLogDialInInterface);
  platformLogDebug(interface);
  if (!interface.empty()) hangUp(interface);
  killMgettyAfterHangUp();
}

void ras::resumeDialOut() {
  resumeDirection(kDialOutDirection);
}

void ras::resumeDialIn() {
  resumeDirection(kDialInDirection);
}

void remove_ppp_link(unsigned long) {
  const CallbackScope callback;
  if (!callback.entered()) return;
  platformLogDebug(kLogCallback);
  std::string status;
  if (!readModemRegistry(kRegModemStatus, status)) return;
  if (status == kRegDisabled) {
    stopDialOut();
    stopDialIn();
  }
  if (status == kRegEnabled) {
    resumeDialIn();
    resumeDialOut();
  }
}

namespace {

// When the CIMOM unloads the module (at shutdown or on SIGHUP), the subscription must end
// first: the platform library's thread would otherwise go on calling into code that is no
// longer mapped, and the library itself may be unloaded under it. Made at the first
// subscription, after every other object of the module, so it is destroyed before them all
// and the callback never meets a destroyed logger or file list.
struct SubscriptionEndsAtUnload {
  ~SubscriptionEndsAtUnload() { ras::stopModemStatusNotify(); }
};

}  // namespace

int ras::startModemStatusNotify() {
  static SubscriptionEndsAtUnload endsAtUnload;
  // A re-initialised module replaces its subscription instead of adding a second one.
  stopModemStatusNotify();
  const int result =
      QvlNotifyRegChangeStart(kRegSection, kRegGroup, kRegModemStatus, remove_ppp_link, 0, &handle);
  if (result == 0) platformLogDebug(kLogNotifyStarted);
  return result;
}

void ras::stopModemStatusNotify() {
  if (handle == -1) return;
  const SubscriptionEnding ending;
  QvlNotifyRegChangeStop(handle);
  handle = -1;
}
