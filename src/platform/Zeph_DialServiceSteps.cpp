// The steps of the dial-service restarts, each with the exact files and command lines the
// appliance's scripts and stand-in tools expect.
#include "Zeph_DialServiceSteps.h"

#include "Zeph_ApplianceFiles.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_PlatformLog.h"

namespace ras {
namespace {

const char* const kHangupScript = "/qv/etc/ppp/ppp_hup_v2k";
const char* const kIfoutFile = "/tmp/ifout";
const char* const kSignalKillall = "/usr/bin/killall";
const char* const kChat = "chat";
const char* const kMgetty = "mgetty";

const char* const kKeyDialOut = "ADDO";
const char* const kKeyDialIn = "DIN";
const char* const kUnitFormat = "ppp%s";
const char* const kInterfacePrefix = "ppp";
const char* const kFirstWord = "%s";
const char* const kMarkerEnabled = "#ENABLED";
const char* const kMarkerDisabled = "#DISABLED";

const char* const kCmdListPpp = "/sbin/ifconfig | grep \"ppp\" > %s ";
const char* const kCmdListPppExcept = "/sbin/ifconfig | grep \"ppp\" | grep -v \"%s\" > %s ";
const char* const kCmdKill9 = "killall -9 %s";
const char* const kCmdInitReload = "init q";
const char* const kCmdCloseGate = "%s -i 's/#\\?$IF_ENABLE_CMD/$IF_ENABLE_CMD/' %s";
const char* const kCmdOpenGate = "%s -i 's/#\\?$IF_ENABLE_CMD/#$IF_ENABLE_CMD/' %s";
const char* const kCmdContinue = "%s -s CONT %s\n";
const char* const kCmdKillChatIntoLog = "killall -9 %s >> /tmp/chatlog";

const char* const kLogProcessCmd = "ProcessCmd is";
const char* const kLogProcessCmd1 = "ProcessCmd1 is";

const char* const kLogDialInResumed = "For Dialin Previous interface";
const char* const kLogDialOutResumed = "For Dialout Previous Interface";

// "ppp" and the unit of the first "ppp" line of `path`.
std::string interfaceFrom(const char* path) {
  std::string unit;
  getConfigParameter(path, kUnitFormat, &unit);
  return kInterfacePrefix + unit;
}

// The first word of the line of `script` that begins with `prefix` ("" when none).
std::string firstWordOf(const char* script, const char* prefix) {
  std::string value;
  getParameterFromFile(script, kFirstWord, prefix, value);
  return value;
}

}  // namespace

const char* const kOpenGateLine = "#$IF_ENABLE_CMD";
const char* const kLogDialInInterface = "Interface for DialIn  is";
const char* const kLogDialOutInterface = "Interface for DialOut  is";

const DialDirection kDialInDirection = {kDialInScript, "mgetty_v2k", kLogDialInResumed};
const DialDirection kDialOutDirection = {kDialOutScript, "ppp_add_v2k", kLogDialOutResumed};

int dialOutRecorded() {
  return getConfigParameter(kMarkerFile, kKeyDialOut);
}

int dialInRecorded() {
  return getConfigParameter(kMarkerFile, kKeyDialIn);
}

std::string interfaceInMarker() {
  return interfaceFrom(kMarkerFile);
}

std::string dialOutInterfaceFor(int addo) {
  if (addo == -1) {
    runCommand(kCmdListPpp, {kIfoutFile});
    return interfaceFrom(kIfoutFile);
  }
  const std::string active = interfaceInMarker();
  if (addo == 1) return active;
  runCommand(kCmdListPppExcept, {active, kIfoutFile});
  return interfaceFrom(kIfoutFile);
}

std::string gateState(const char* script) {
  return firstWordOf(script, kOpenGateLine);
}

void closeGate(const char* script) {
  runCommand(kCmdCloseGate, {kSed, script});
}

void openGate(const char* script) {
  runCommand(kCmdOpenGate, {kSed, script});
}

void continueProcess(const char* process) {
  runCommand(kCmdContinue, {kSignalKillall, process});
}

void resumeDirection(const DialDirection& direction) {
  std::string marker = firstWordOf(direction.script, kMarkerEnabled);
  if (marker == kMarkerEnabled) {
    openGate(direction.script);
    continueProcess(direction.process);
    platformLogDebug(direction.resumedLog);
    return;
  }
  getParameterFromFile(direction.script, kFirstWord, kMarkerDisabled, marker);
  if (marker == kMarkerDisabled) closeGate(direction.script);
}

ShellCommand hangupCommand(const std::string& interface) {
  return ShellCommand(kScriptText, {kHangupScript, interface});
}

ShellCommand killMgettyCommand() {
  return ShellCommand(kCmdKill9, {kMgetty});
}

void killChat() {
  runCommand(kCmdKill9, {kChat});
}

void killChatIntoLog() {
  runCommand(kCmdKillChatIntoLog, {kChat});
}

void hangUp(const std::string& interface) {
  logAndRun(kLogProcessCmd, hangupCommand(interface));
}

void killMgettyAfterHangUp() {
  logAndRun(kLogProcessCmd1, killMgettyCommand());
}

void reloadInit() {
  runCommand(kCmdInitReload, {});
}

void logAndRun(const char* label, const ShellCommand& command) {
  platformLogDebug(label);
  platformLogDebug(command.text());
  command.run();
}

}  // namespace ras
