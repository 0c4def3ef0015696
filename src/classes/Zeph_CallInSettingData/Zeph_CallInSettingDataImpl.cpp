// Call-in settings: reads and writes the registry values of the modem group and the rings
// line of mgetty's start script, and restarts mgetty after a rings change.
#include "Zeph_CallInSettingDataImpl.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "Zeph_CommandRunner.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_ShellVariable.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kInstanceID = "Velmar:Zeph_CallInSettingData";
const char* const kElementName = "Dial-In Configuration";

const ShellVariable kRings{kDialInScript, "declare -r NUMBER_OF_RINGS",
                           ShellVariable::Kind::Number};

const char* const kNoLine = "NONE";
const char* const kNumberFormat = "%d";

// Statuses of the setters, reported to the client as RAS_MODEM_<status>.
constexpr int kStatusRingsOutOfRange = 1;
constexpr int kStatusLineTooLong = 13;
constexpr int kStatusTimerTooLong = 14;
constexpr int kStatusLineInvalid = 18;
constexpr int kStatusRegistryWrite = 100;

constexpr std::size_t kMaxLineTextLength = 4;
constexpr unsigned short kMinRings = 1;
constexpr unsigned short kMaxRings = 20;
constexpr unsigned short kMaxAutoDisableTimer = 30;
constexpr unsigned kLineChangePauseSeconds = 1;

const char* const kLogRings = "RingsBeforeAnswer =%d\n";
const char* const kLogInitLine = "Line To Answer is %d";
const char* const kLogInitTimer = "Auto Disable timer value = %d";
const char* const kLogFlagOn = "AutoDisable Flag is ON\n";
const char* const kLogFlagOff = "AutoDisable Flag is Off\n";
const char* const kLogFromRegistry = "Reading value from PDR";
const char* const kLogGetLine = "In get Function Line to answer is %d";
const char* const kLogSetLine = "Line to Answer  %d\n";
const char* const kLogSetTimer = "Setting AutoDisable Timer value %s\n";
const char* const kLogSetFlag = "Setting the AutoDisable FLag to %d\n";

const char* const kTraceGetElementName = "Zeph_CallInSettingDataImpl::getElementName\n";
const char* const kTraceGetLine = "Zeph_CallInSettingDataImpl::getLineToAnswer\n";
const char* const kTraceSetLine = "Zeph_CallInSettingDataImpl::setLineToAnswer\n";
const char* const kTraceGetRings = "Zeph_CallInSettingDataImpl::getRingsBeforeAnswer\n";
const char* const kTraceSetRings = "Zeph_CallInSettingDataImpl::setRingsBeforeAnswer\n";
const char* const kTraceGetTimer = "Zeph_CallInSettingDataImpl::getAutoDisableTimer\n";
const char* const kTraceSetTimer = "Zeph_CallInSettingDataImpl::setAutoDisableTimer\n";
const char* const kTraceGetFlag = "Zeph_CallInSettingDataImpl::getAutoDisableFlag\n";
const char* const kTraceSetFlag = "Zeph_CallInSettingDataImpl::setAutoDisableFlag\n";
const char* const kTraceGetDN = "Zeph_CallInSettingDataImpl::getDNNumber\n";

// Writes a registry value; a failure is logged with the call-in registry error text.
bool writeCallInValue(const char* name, const std::string& value) {
  if (writeModemRegistry(name, value.c_str())) return true;
  platformLogError(kQvlErrorLog);
  return false;
}

}  // namespace

Zeph_CallInSettingDataImpl::Zeph_CallInSettingDataImpl(const std::string& instanceID)
    : Zeph_CallInSettingData(instanceID), elementName_(kElementName) {
  Initialize_Parameters();
}

void Zeph_CallInSettingDataImpl::Initialize_Parameters() {
  int rings = 0;
  kRings.read(rings);
  ringsBeforeAnswer_ = static_cast<unsigned short>(rings);
  platformLogDebug(formatText(kLogRings, rings));
  initializeLineToAnswer();
  initializeAutoDisableTimer();
  initializeAutoDisableFlag();
}

void Zeph_CallInSettingDataImpl::initializeLineToAnswer() {
  std::string text;
  if (!readModemRegistry(kRegLineToAnswer, text)) {
    platformLogError(kQvlErrorLog);
    return;
  }
  lineToAnswer_ = static_cast<unsigned short>(std::atoi(text.c_str()));
  platformLogDebug(formatText(kLogInitLine, lineToAnswer_));
}

void Zeph_CallInSettingDataImpl::initializeAutoDisableTimer() {
  autoDisableTimer_ = 0;
  std::string text;
  if (!readModemRegistry(kRegAutoDisableTimer, text)) {
    // The one registry failure of this class logged in this case and at debug level.
    platformLogDebug(kQvlErrorLogUpper);
    return;
  }
  int timer = 0;
  std::sscanf(text.c_str(), kNumberFormat, &timer);
  autoDisableTimer_ = static_cast<unsigned short>(timer);
  platformLogDebug(formatText(kLogInitTimer, timer));
}

void Zeph_CallInSettingDataImpl::initializeAutoDisableFlag() {
  std::string text;
  if (!readModemRegistry(kRegAutoDisableFlag, text)) {
    platformLogError(kQvlErrorLog);
    return;
  }
  autoDisableFlag_ = text == kRegOn;
  platformLogDebug(autoDisableFlag_ ? kLogFlagOn : kLogFlagOff);
}

int Zeph_CallInSettingDataImpl::getElementName(std::string& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetElementName);
  value = elementName_;
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::getLineToAnswer(unsigned short& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetLine);
  std::string text;
  if (!readModemRegistry(kRegLineToAnswer, text)) {
    platformLogError(kQvlErrorLog);
    return ras::kStatusOk;
  }
  value = static_cast<unsigned short>(std::atoi(text.c_str()));
  platformLogDebug(kLogFromRegistry);
  platformLogDebug(formatText(kLogGetLine, value));
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::setLineToAnswer(unsigned short value) {
  platformLogDebug(kTraceSetLine);
  const std::string text = value == 0 ? kNoLine : formatText(kNumberFormat, value);
  if (text.size() > kMaxLineTextLength) return kStatusLineTooLong;
  if (value != 0 && !IsLineNumberValid(value)) return kStatusLineInvalid;
  if (!writeCallInValue(kRegLineToAnswer, text)) return kStatusRegistryWrite;
  platformLogDebug(formatText(kLogSetLine, value));
  lineToAnswer_ = value;
  // Gives the modem time to take the new line before anything else is changed.
  sleep(kLineChangePauseSeconds);
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::getRingsBeforeAnswer(unsigned short& value,
                                                     ras::Qualifiers& qualifiers) const {
  platformLogDebug(kTraceGetRings);
  value = ringsBeforeAnswer_;
  ShowWarningMessage(qualifiers);
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::setRingsBeforeAnswer(unsigned short value) {
  platformLogDebug(kTraceSetRings);
  if (value < kMinRings || value > kMaxRings) return kStatusRingsOutOfRange;
  kRings.edit(static_cast<int>(value)).run();
  ringsBeforeAnswer_ = value;
  RestartMgetty();
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::getAutoDisableTimer(unsigned short& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetTimer);
  value = autoDisableTimer_;
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::setAutoDisableTimer(unsigned short value) {
  platformLogDebug(kTraceSetTimer);
  if (value > kMaxAutoDisableTimer) return kStatusTimerTooLong;
  const std::string text = formatText(kNumberFormat, value);
  if (!writeCallInValue(kRegAutoDisableTimer, text)) return kStatusRegistryWrite;
  platformLogDebug(formatText(kLogSetTimer, text.c_str()));
  autoDisableTimer_ = value;
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::getAutoDisableFlag(bool& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetFlag);
  value = autoDisableFlag_;
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::setAutoDisableFlag(bool value) {
  platformLogDebug(kTraceSetFlag);
  if (!writeCallInValue(kRegAutoDisableFlag, value ? kRegOn : kRegOff)) {
    return kStatusRegistryWrite;
  }
  platformLogDebug(formatText(kLogSetFlag, value ? 1 : 0));
  autoDisableFlag_ = value;
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImpl::getDNNumber(std::string& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetDN);
  value = dnNumber_;
  std::string text;
  if (!readModemRegistryAsStored(kRegModemDn, text)) {
    platformLogError(kQvlErrorLog);
    return ras::kStatusOk;
  }
  dnNumber_ = text;
  value = text;
  platformLogDebug(kLogFromRegistry);
  return ras::kStatusOk;
}

int Zeph_CallInSettingDataImplInstanceManager::init() {
  new Zeph_CallInSettingDataImpl(kInstanceID);
  return ras::kStatusOk;
}
