// The soft modem's error control, connect speed and compression. The answering side reads
// and writes the codes in the modem through the getModemParam/setModemParam helper scripts and
// restarts mgetty; the calling side keeps them, with the "&" the dial-out script passes on to
// the modem, in declare lines of the connect script and restarts the dial-out service.
#include "Zeph_SoftModemImpl.h"

#include "Zeph_CommandRunner.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kAnsweringID = "SoftModemIn";
const char* const kCallingID = "SoftModemOut";
const char* const kElementName = " DSP Soft Modem ";
const char* const kName = " V.42 Modem ";

constexpr auto kSetModemParam = helperScript("setModemParam");
constexpr auto kGetModemParam = helperScript("getModemParam");
// "setModemParam PARAMETER CODE" and "getModemParam PARAMETER > RESULT_FILE".
const char* const kCmdGetModemParam = "%s %d > %s";

// One option: the number the helper scripts address it by, the /tmp file its code is read
// into, and the connect-script variable that holds it for the calling side.
struct ModemOption {
  int parameter;
  const char* resultFile;
  const char* declaration;
};
const ModemOption kErrorControl{2, "/tmp/modem_err", "declare MODEM_OPT_ERRC"};
const ModemOption kCompression{3, "/tmp/modem_comp", "declare MODEM_OPT_COMP"};
const ModemOption kCallSpeed{4, "/tmp/modem_speed", "declare MODEM_OPT_SPEED"};

// The modem's own codes: a letter and a digit, or a letter and the speed number.
const char* const kErrorControlOn = "m5";
const char* const kErrorControlOff = "m0";
const char* const kCompressionOn = "k2";
const char* const kCompressionOff = "k0";
const char* const kSpeedLetter = "n";
const char* const kCallingPrefix = "&";

const char* const kLogErrorControlDialIn = "Setting Error Control for Dialin";
const char* const kLogErrorControlDialOut = "Setting Error Control for Dialout";
const char* const kLogErrorControlMgetty = "Mgetty is Restarted for Error Control";
const char* const kLogErrorControlDialOutRestart = "ppp_add_v2k is Restarted for Error Control";
const char* const kLogSpeedValue = "in set val  =  %d value = %c";
const char* const kLogSpeed = "Call Speed %d";
const char* const kLogSpeedDialIn = "Setting Call Speed for Dialin";
const char* const kLogSpeedDialOut = "Setting Call Speed for DialOut";
const char* const kLogSpeedMgetty = "Mgetty Restarted for  Call Speed  ";
const char* const kLogSpeedDialOutRestart = "ppp_add_v2k is Restarted for Call Speed";
const char* const kLogCompressionOnDialIn = "Setting compression for Dialin";
const char* const kLogCompressionOffDialIn = "Setting Compression for Dialin";
const char* const kLogCompressionDialOut = "Setting Compression for Dialout";
const char* const kLogCompressionMgetty = "Mgetty Restarted for Compression";
const char* const kLogCompressionDialOutRestart = "ppp_add_v2k is Restarted for Compression";

const char* const kLogErrorControlIs = "The value of Error Control is";
const char* const kLogCompressionIs = "The value of Compression is";
const char* const kLogDialInSpeed = "SoftModemDialIn Speed %d";
const char* const kLogCallingCompression =
    "The value of (Dial-Out ) Compression is using GetConfigParameter";
const char* const kLogCallingCompressionIs = "The value of (Dial-Out) Compression is";
const char* const kLogCallingErrorControl = "The value of Error Control is GetCon";
const char* const kLogCallingSpeed = "The value of speed is %d";

std::string calling(const char* code) {
  return std::string(kCallingPrefix) + code;
}

std::string speedCode(unsigned char speed) {
  return kSpeedLetter + std::to_string(speed);
}

// The reader's format for the text after a code's letter in a getModemParam result: "m%s".
std::string answeringFormat(const char* code, const char* conversion) {
  return std::string(1, code[0]) + conversion;
}

// `declaration="%s`: the scanned value keeps the closing quote.
std::string callingTextFormat(const ModemOption& option) {
  return std::string(option.declaration) + "=\"%s";
}

std::string callingSpeedFormat() {
  return std::string(kCallSpeed.declaration) + "=\"" + calling(kSpeedLetter) + "%d\"";
}

// `sed -i '/^declaration=/ c declaration="&%s"' %s`, with the code and the connect script;
// the "&" belongs to the format, so the value in the sed expression is a plain word.
std::string callingEditFormat(const ModemOption& option) {
  const std::string declaration = option.declaration;
  return "sed -i '/^" + declaration + "=/ c " + declaration + "=\"" + kCallingPrefix + "%s\"' %s";
}

void writeModemCode(const ModemOption& option, const std::string& code) {
  runCommand(kScriptNumberText, {kSetModemParam, option.parameter, code});
}

void writeCallingCode(const ModemOption& option, const std::string& code) {
  runCommand(callingEditFormat(option).c_str(), {code, kCallScript});
}

// getModemParam prints the option's code into its result file, which the reader deletes.
void fetchModemCode(const ModemOption& option) {
  runCommand(kCmdGetModemParam, {kGetModemParam, option.parameter, option.resultFile});
}

void readModemCode(const ModemOption& option, const char* code, std::string& value) {
  fetchModemCode(option);
  getConfigParameter(option.resultFile, answeringFormat(code, "%s").c_str(), &value);
}

int readModemSpeed(int current) {
  fetchModemCode(kCallSpeed);
  getConfigParameter(kCallSpeed.resultFile, answeringFormat(kSpeedLetter, "%d").c_str(), &current);
  return current;
}

std::string readCallingText(const ModemOption& option) {
  std::string value;
  getConfigParameter(kCallScript, callingTextFormat(option).c_str(), &value);
  if (!value.empty()) value.pop_back();  // the closing quote
  return value;
}

// Sets `field` when `value` is one of the two codes; false for any other value.
bool decodeSwitch(const std::string& value, const std::string& on, const std::string& off,
                  bool& field) {
  if (value != on && value != off) return false;
  field = value == on;
  return true;
}

void restartAnswering(const char* log) {
  RestartMgetty();
  platformLogDebug(log);
}

void restartCalling(const char* log) {
  Restart_ppp_add_v2k();
  platformLogDebug(log);
}

}  // namespace

Zeph_SoftModemImpl::Zeph_SoftModemImpl(const std::string& systemCreationClassName,
                                       const std::string& systemName,
                                       const std::string& creationClassName,
                                       const std::string& deviceID)
    : Zeph_SoftModem(systemCreationClassName, systemName, creationClassName, deviceID),
      elementName_(kElementName),
      name_(kName) {
  Initialize_Parameters();
}

Zeph_SoftModemImpl::Role Zeph_SoftModemImpl::role() const {
  std::string id;
  ras::Qualifiers unused;
  getDeviceID(id, unused);
  if (id == kAnsweringID) return Role::Answering;
  if (id == kCallingID) return Role::Calling;
  return Role::Other;
}

void Zeph_SoftModemImpl::Initialize_Parameters() {
  const Role own = role();
  if (own == Role::Answering) readAnsweringCodes();
  if (own == Role::Calling) readCallingCodes();
}

void Zeph_SoftModemImpl::readAnsweringCodes() {
  std::string errorControl;
  readModemCode(kErrorControl, kErrorControlOn, errorControl);
  if (!decodeSwitch(errorControl, kErrorControlOn + 1, kErrorControlOff + 1, errorControl_)) {
    platformLogDebug(kLogErrorControlIs);
    platformLogDebug(errorControl);
  }
  callSpeed_ = static_cast<unsigned char>(readModemSpeed(callSpeed_));
  platformLogDebug(formatText(kLogDialInSpeed, callSpeed_));
  std::string compression;
  readModemCode(kCompression, kCompressionOn, compression);
  if (!decodeSwitch(compression, kCompressionOn + 1, kCompressionOff + 1, compression_)) {
    platformLogDebug(kLogCompressionIs);
    platformLogDebug(compression);
  }
}

void Zeph_SoftModemImpl::readCallingCodes() {
  const std::string compression = readCallingText(kCompression);
  platformLogDebug(kLogCallingCompression);
  if (!decodeSwitch(compression, calling(kCompressionOn), calling(kCompressionOff), compression_)) {
    platformLogDebug(kLogCallingCompressionIs);
  }
  const std::string errorControl = readCallingText(kErrorControl);
  platformLogDebug(kLogCallingErrorControl);
  if (!decodeSwitch(errorControl, calling(kErrorControlOn), calling(kErrorControlOff),
                    errorControl_)) {
    platformLogDebug(kLogErrorControlIs);
  }
  int speed = callSpeed_;
  getConfigParameter(kCallScript, callingSpeedFormat().c_str(), &speed);
  callSpeed_ = static_cast<unsigned char>(speed);
  platformLogDebug(formatText(kLogCallingSpeed, callSpeed_));
}

int Zeph_SoftModemImpl::getName(std::string& value, ras::Qualifiers&) const {
  value = name_;
  return kStatusOk;
}

int Zeph_SoftModemImpl::getElementName(std::string& value, ras::Qualifiers&) const {
  value = elementName_;
  return kStatusOk;
}

int Zeph_SoftModemImpl::getErrorControl(bool& value, ras::Qualifiers&) const {
  value = errorControl_;
  return kStatusOk;
}

int Zeph_SoftModemImpl::setErrorControl(bool value) {
  const char* code = value ? kErrorControlOn : kErrorControlOff;
  const Role own = role();
  if (own == Role::Answering) {
    platformLogDebug(kLogErrorControlDialIn);
    writeModemCode(kErrorControl, code);
    restartAnswering(kLogErrorControlMgetty);
  } else if (own == Role::Calling) {
    platformLogDebug(kLogErrorControlDialOut);
    writeCallingCode(kErrorControl, code);
    restartCalling(kLogErrorControlDialOutRestart);
  }
  errorControl_ = value;
  return kStatusOk;
}

int Zeph_SoftModemImpl::getCallSpeed(unsigned char& value, ras::Qualifiers&) const {
  value = callSpeed_;
  return kStatusOk;
}

// Any 8-bit speed is written as it is; the modem decides what it makes of it.
int Zeph_SoftModemImpl::setCallSpeed(unsigned char value) {
  platformLogDebug(formatText(kLogSpeedValue, value, value));
  const Role own = role();
  if (own == Role::Answering) {
    writeModemCode(kCallSpeed, speedCode(value));
    platformLogDebug(formatText(kLogSpeed, value));
    platformLogDebug(kLogSpeedDialIn);
    restartAnswering(kLogSpeedMgetty);
  } else if (own == Role::Calling) {
    writeCallingCode(kCallSpeed, speedCode(value));
    platformLogDebug(formatText(kLogSpeed, value));
    platformLogDebug(kLogSpeedDialOut);
    restartCalling(kLogSpeedDialOutRestart);
  }
  callSpeed_ = value;
  return kStatusOk;
}

int Zeph_SoftModemImpl::getCompression(bool& value, ras::Qualifiers&) const {
  value = compression_;
  return kStatusOk;
}

int Zeph_SoftModemImpl::setCompression(bool value) {
  const char* code = value ? kCompressionOn : kCompressionOff;
  const Role own = role();
  if (own == Role::Answering) {
    // Two spellings, as the appliance's logs have always shown them.
    platformLogDebug(value ? kLogCompressionOnDialIn : kLogCompressionOffDialIn);
    writeModemCode(kCompression, code);
    restartAnswering(kLogCompressionMgetty);
  } else if (own == Role::Calling) {
    platformLogDebug(kLogCompressionDialOut);
    writeCallingCode(kCompression, code);
    restartCalling(kLogCompressionDialOutRestart);
  }
  compression_ = value;
  return kStatusOk;
}

int Zeph_SoftModemImplInstanceManager::init() {
  new Zeph_SoftModemImpl(kSystemCreationClassName, kSystemName, Zeph_SoftModemName, kAnsweringID);
  new Zeph_SoftModemImpl(kSystemCreationClassName, kSystemName, Zeph_SoftModemName, kCallingID);
  return kStatusOk;
}
