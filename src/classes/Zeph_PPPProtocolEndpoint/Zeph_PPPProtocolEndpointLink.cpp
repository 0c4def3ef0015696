// Link control of a PPP endpoint: the link's ppp interface and whether it is up, the switch
// of the direction's service (the gate and status lines of its start script), the buttons
// that tell a user interface which method it may offer, and the two methods.
#include "OW_CIMException.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_CommandRunner.h"
#include "Zeph_DialServiceSteps.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PPPProtocolEndpointImpl.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

int ConnectLinkReturn = 0;
int DisconnectLinkReturn = 0;

namespace {

const char* const kGateClosed = "$IF_ENABLE_CMD";
const char* const kFirstWord = "%s";
const char* const kBareInterface = "ppp";
const char* const kPeerFile = "/tmp/ip_addr";
const char* const kPeerFormat = "P-t-P:%s";
const char* const kApplicable = "Applicable";

const char* const kCmdMarkEnabled = "%s -i 's/#\\?DISABLED/#ENABLED/' %s";
const char* const kCmdMarkDisabled = "%s -i 's/#\\?ENABLED/#DISABLED/' %s";
const char* const kCmdPeerAddress =
    "/sbin/ifconfig %s | grep \"inet\" | grep \"P-t-P\"|cut -b35-53 | cut -f1 -d\" \" > %s";
const char* const kCmdPing = "ping -c 2 -w 2 -I %s %s";

// The CIM error of a start script without its gate line; no source line is fixed for it.
const char* const kImplSource = "../src/Zeph_PPPProtocolEndpointImpl";
constexpr int kInvalidControlFileLine = 0;
const char* const kInvalidControlFile = "Invalid configuration in the config File";

constexpr unsigned char kLinkUp = 0;
constexpr unsigned char kLinkDown = 1;
constexpr int kMethodResult = 1;

const char* const kLogJobControl = "jobCntrl is";
const char* const kLogKillingChat = "Killing Chat Process in setIfStatus";
const char* const kLogNoSleep = "Sleep Removed ...in setIfstatus";
const char* const kLogOtherInterface = "The Interface name is %s and file contains %s";
const char* const kLogConnectionStatus = "Connection Status is %c";
const char* const kLogApplicableTrue = "Returning Applicable = true\n";
const char* const kLogApplicableFalse = "Returning Applicable = false\n";
const char* const kLogNoConnectDialIn = "ERROR:No Connect Functionality for Dial-In \n";
const char* const kLogSetConnectButton = "setConnectButton";
const char* const kLogSetDisconnectButton = "setDisconnectButton";
const char* const kLogPeer = "The P-t-P IP  Address is\n";

enum class Modem { Enabled, Disabled, Unknown, Unreadable };

// "ModemStatus", compared in upper case; a failed read or an odd value is logged.
Modem modemState() {
  std::string status;
  if (!readModemRegistry(kRegModemStatus, status)) {
    platformLogError(kQvlErrorLogUpper);
    return Modem::Unreadable;
  }
  if (status == kRegEnabled) return Modem::Enabled;
  if (status == kRegDisabled) return Modem::Disabled;
  platformLogError(kBadModemStatusLog);
  return Modem::Unknown;
}

bool linkRecorded(const PPPLink& link) {
  return link.markerKey[0] != '\0' && getConfigParameter(kMarkerFile, link.markerKey) == 1;
}

// The interface the link is up on, "" when none: the marker file's for dial-in, for dial-out
// the marker's or else the ppp interface that ifconfig lists beside the dial-in one.
std::string linkInterface(const PPPLink& link) {
  if (link.dialIn) return linkRecorded(link) ? readActiveInterface() : std::string();
  if (!link.dialOut) return std::string();
  const std::string interface = findDialOutInterface();
  return interface == kBareInterface ? std::string() : interface;
}

void addApplicable(ras::Qualifiers& qualifiers, bool applicable) {
  addFlagQualifier(qualifiers, kApplicable, applicable);
}

// The service may run again: gate commented out, status line "#ENABLED", script resumed.
void enableService(const PPPLink& link) {
  openGate(link.controlFile);
  runCommand(kCmdMarkEnabled, {kSed, link.controlFile});
  continueProcess(link.process);
}

// The service stops at its gate; a link that is up is hung up (and mgetty killed for the
// dial-in link) at once.
void disableService(const PPPLink& link, const std::string& interface) {
  closeGate(link.controlFile);
  runCommand(kCmdMarkDisabled, {kSed, link.controlFile});
  if (interface.empty()) return;
  platformLogDebug(kLogKillingChat);
  killChatIntoLog();
  hangUp(interface);
  platformLogDebug(kLogNoSleep);
  if (link.dialIn) killMgettyAfterHangUp();
}

}  // namespace

int Zeph_PPPProtocolEndpointImpl::getIfName(std::string& value, ras::Qualifiers&) const {
  value = linkInterface(link());
  return kStatusOk;
}

// Enabled while the gate line of the start script is commented out.
int Zeph_PPPProtocolEndpointImpl::getIfStatus(bool& value, ras::Qualifiers&) const {
  const char* script = link().controlFile;
  std::string word = gateState(script);
  if (word == kOpenGateLine) {
    value = true;
    return kStatusOk;
  }
  getParameterFromFile(script, kFirstWord, kGateClosed, word);
  if (word == kGateClosed) {
    value = false;
    return kStatusOk;
  }
  platformLogDebug(kLogJobControl);
  platformLogDebug(word);
  throwProviderError({kImplSource, kInvalidControlFileLine},
                     OpenWBEM::CIMException::INVALID_PARAMETER, kInvalidControlFile);
}

// Nothing changes while the modem is disabled.
int Zeph_PPPProtocolEndpointImpl::setIfStatus(bool value) {
  if (modemState() == Modem::Disabled) return kStatusOk;
  const PPPLink& current = link();
  const std::string interface = linkInterface(current);
  platformLogDebug(current.interfaceLog);
  platformLogDebug(interface);
  if (value) {
    enableService(current);
  } else {
    disableService(current, interface);
  }
  ifStatus_ = value;
  return kStatusOk;
}

// Up when the marker file records this link on the interface IfName names. The reading is
// kept for the impact warnings.
int Zeph_PPPProtocolEndpointImpl::getConnectionStatus(unsigned char& value,
                                                      ras::Qualifiers& qualifiers) const {
  const PPPLink& current = link();
  bool up = false;
  if (linkRecorded(current)) {
    const std::string recorded = readActiveInterface();
    std::string name;
    getIfName(name, qualifiers);
    up = name == recorded;
    if (!up) platformLogDebug(formatText(kLogOtherInterface, name.c_str(), recorded.c_str()));
  }
  if (current.dialIn) ConnectionStatus = up;
  if (current.dialOut) DialOutConnectionStatus = up;
  getName(check_key, qualifiers);
  value = up ? kLinkUp : kLinkDown;
  platformLogDebug(formatText(kLogConnectionStatus, value));
  return kStatusOk;
}

// Applicable while the modem is enabled, the dial-out link is down and its service enabled.
int Zeph_PPPProtocolEndpointImpl::getConnectButton(bool& value, ras::Qualifiers& qualifiers) const {
  value = false;
  const Modem modem = modemState();
  if (modem == Modem::Enabled && link().dialIn) platformLogDebug(kLogNoConnectDialIn);
  if (modem == Modem::Enabled && link().dialOut) {
    if (!linkRecorded(link())) getIfStatus(value, qualifiers);
    platformLogDebug(value ? kLogApplicableTrue : kLogApplicableFalse);
    addApplicable(qualifiers, value);
  }
  if (modem == Modem::Disabled) addApplicable(qualifiers, false);
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::setConnectButton(bool) {
  platformLogDebug(kLogSetConnectButton);
  return kStatusOk;
}

// Applicable while the modem is enabled and the link is up.
int Zeph_PPPProtocolEndpointImpl::getDisconnectButton(bool& value,
                                                      ras::Qualifiers& qualifiers) const {
  value = false;
  const Modem modem = modemState();
  if (modem == Modem::Enabled) value = linkRecorded(link());
  if (modem == Modem::Enabled || modem == Modem::Disabled) addApplicable(qualifiers, value);
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::setDisconnectButton(bool) {
  platformLogDebug(kLogSetDisconnectButton);
  return kStatusOk;
}

// Traffic to the peer makes the demand-dialling pppd dial; nothing waits for the link.
int Zeph_PPPProtocolEndpointImpl::ConnectLink() {
  ConnectLinkReturn = kMethodResult;
  std::string interface;
  ras::Qualifiers unused;
  getIfName(interface, unused);
  runCommand(kCmdPeerAddress, {interface, kPeerFile});
  std::string peer;
  getConfigParameter(kPeerFile, kPeerFormat, &peer);
  platformLogDebug(kLogPeer);
  platformLogDebug(peer);
  runCommand(kCmdPing, {interface, peer});
  return ConnectLinkReturn;
}

int Zeph_PPPProtocolEndpointImpl::DisconnectLink() {
  DisconnectLinkReturn = kMethodResult;
  std::string interface;
  ras::Qualifiers unused;
  getIfName(interface, unused);
  if (!interface.empty()) hangupCommand(interface).run();
  return DisconnectLinkReturn;
}
