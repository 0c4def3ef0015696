// The platform-access free functions: the configuration reader, the value checks, the
// registry conventions and the restarts of the dial services.
#include "Zeph_PlatformAccess.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "QvlShared.h"
#include "TORapi.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigScan.h"
#include "Zeph_DialServiceSteps.h"
#include "Zeph_PlatformLog.h"

namespace {

constexpr std::size_t kAddressCopySize = 256;

const char* const kOpenMode = "r+";
const char* const kTmpPrefix = "/tmp";

const char* const kLogErrorHead = "Error:\n";
const char* const kLogInvalidFile = "Invalid File\n";
const char* const kLogDeletedTmp = "Deleted Temprory File";
const char* const kLogDeletingTmp = "Deleting Temprory File";
const char* const kPrintFirstOpen = "Opening files for first time\n";
const char* const kLogOpeningFile = "Opening File";
const char* const kLogOpenFileFailed = "Error in opening the file\n";
const char* const kLogOpenTmpFailed = "Error in Opening Temprory File";
const char* const kLogLine = "LINE: ";

const char* const kLogNotDigit = "Character is not a digit at %d %d\n";
const char* const kLogTooLong = "Length is grater than 3 %d\n";
const char* const kLogOutOfRange = "Less than 0 and greater than 255 %d %d\n";
const char* const kLogNotEnoughTokens = "Not Enough Tokens\n";
const char* const kLogBlankMask = "Blank Mask\n";
const char* const kLogInetAtonFailed = "inet_aton failed\n";
const char* const kLogBadLineNumber = "Not Valid Line Number";
const char* const kLogBadFallbackLine = "Condition is True for 0";
const char* const kLogInvalidTime = "Invalid time value\n";
const char* const kLogNotifyStarted = "Successful in Notify";

const char* const kDatetimePrefixes[] = {"0000010100000", "000001010000", "00000101000",
                                         "0000010100"};
const char* const kDatetimeSuffix = ".000000+000";

// Line range used when the registry does not give one.
constexpr int kFallbackLineMin = 1;
constexpr int kFallbackLineMax = 268;

std::string formatText(const char* format, ...) {
  char buffer[kLineSize];
  va_list args;
  va_start(args, format);
  std::vsnprintf(buffer, sizeof buffer, format, args);
  va_end(args);
  return buffer;
}

// atoi without its overflow: out-of-range numbers saturate.
int toInt(const char* text) {
  const long value = std::strtol(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

bool isTmpPath(const char* path) {
  return std::strncmp(path, kTmpPrefix, 4) == 0;
}

void logOpenFailure(int error, const char* path, bool withInvalidFile) {
  platformLogError(kLogErrorHead);
  platformLogError(std::strerror(error));
  if (withInvalidFile) platformLogError(kLogInvalidFile);
  platformLogError(path);
}

void closeTmpStream() {
  if (file_tmp != nullptr) std::fclose(file_tmp);
  file_tmp = nullptr;
}

// What a cached read leaves behind: one-shot /tmp files go, the marker file is closed.
void finishCachedRead(const char* path) {
  if (isTmpPath(path)) {
    closeTmpStream();
    if (std::remove(path) == 0) {
      platformLogDebug(kLogDeletingTmp);
      platformLogDebug(path);
    }
  } else if (std::strcmp(path, kMarkerFile) == 0) {
    closeTmpStream();
  }
}

}  // namespace

// ---- Configuration file reader ----

CachedConfigFile FileList[kFileListSize] = {
    {"/qv/etc/ppp/mgetty_v2k", 2, nullptr},
    {"/qv/etc/ppp/pppd_dialout_v2k", 1, nullptr},
    {"/qv/etc/ppp/options_dialout", 2, nullptr},
    {"/qv/etc/ppp/options_dialin", 2, nullptr},
    {"/qv/etc/ppp/ppp_add_v2k", 1, nullptr},
    {"/opt/etc/mgetty+sendfax/callback.config", 1, nullptr},
    {"/qv/etc/ppp/ip_up_add_v2k", 1, nullptr},
    {"/qv/etc/ppp/ppp_call_v2k", 2, nullptr},
};

FILE* file_tmp = nullptr;

int getConfigParameter(const char* path, const char* format, ...) {
  FILE* stream = std::fopen(path, kOpenMode);
  if (stream == nullptr) {
    logOpenFailure(errno, path, false);
    return -1;
  }
  va_list args;
  va_start(args, format);
  const int result = scanConfigLines(stream, format, args, true);
  va_end(args);
  std::fclose(stream);
  if (isTmpPath(path) && std::remove(path) == 0) platformLogDebug(kLogDeletedTmp);
  return result;
}

int getConfigParameterEx(const char* path, const char* format, ...) {
  static int checkfirst = 1;
  if (checkfirst) {
    std::fputs(kPrintFirstOpen, stdout);
    OpenFirstTime();
    checkfirst = 0;
  }
  FILE* stream = IsOpen(path);
  if (stream == nullptr) return -1;
  std::fseek(stream, 0, SEEK_SET);
  va_list args;
  va_start(args, format);
  const int result = scanConfigLines(stream, format, args, false);
  va_end(args);
  finishCachedRead(path);
  return result;
}

FILE* IsOpen(const char* path) {
  for (const CachedConfigFile& entry : FileList) {
    if (std::strcmp(entry.path, path) == 0) return entry.stream;
  }
  closeTmpStream();
  file_tmp = std::fopen(path, kOpenMode);
  if (file_tmp != nullptr) return file_tmp;
  platformLogDebug(kLogOpenTmpFailed);
  platformLogDebug(path);
  return nullptr;
}

void OpenFirstTime() {
  for (CachedConfigFile& entry : FileList) {
    if (entry.stream != nullptr) std::fclose(entry.stream);
    entry.stream = std::fopen(entry.path, kOpenMode);
    platformLogDebug(entry.stream != nullptr ? kLogOpeningFile : kLogOpenFileFailed);
    platformLogDebug(entry.path);
  }
}

void CloseFile(const char* path) {
  for (CachedConfigFile& entry : FileList) {
    if (std::strcmp(entry.path, path) != 0) continue;
    if (--entry.count == -1 && entry.stream != nullptr) {
      std::fclose(entry.stream);
      entry.stream = nullptr;
    }
  }
}

int getParameterFromFile(const char* path, const char* format, const char* prefix,
                         std::string& value) {
  char found[kFileValueSize] = {};
  FILE* stream = std::fopen(path, kOpenMode);
  if (stream == nullptr) {
    logOpenFailure(errno, path, true);
    return -1;
  }
  std::string bounded;
  const bool scannable = boundedScanFormat(format, ScanTarget::Text, sizeof found, bounded);
  const std::size_t prefixLength = std::strlen(prefix);
  char line[kLineSize] = {};
  while (std::fgets(line, sizeof line, stream) != nullptr) {
    if (std::strncmp(line, prefix, prefixLength) != 0) continue;
    platformLogDebug(kLogLine);
    platformLogDebug(line);
    if (scannable) std::sscanf(line, bounded.c_str(), found);
    value = found;
    platformLogDebug(value);
  }
  std::fclose(stream);
  return 0;
}

namespace {

// Takes the address parts of one line of a pppd options file, if it holds any.
void takeAddressLine(char* line, const char* delimiters, std::string& first, std::string& second) {
  char copy[kLineSize] = {};
  std::strncpy(copy, line, kLineSize - 1);
  char* save = nullptr;
  const char* token = strtok_r(copy, delimiters, &save);
  if (token == nullptr || IsComment(line) == 1 || std::strcmp(token, line) == 0) return;
  platformLogDebug(token);
  if (std::strcmp(copy, line) == 0) {
    second = token;
    return;
  }
  first = token;
  token = strtok_r(nullptr, delimiters, &save);
  if (token != nullptr) {
    platformLogDebug(token);
    second = token;
  }
}

}  // namespace

int getIPFromFile(const char* path, const char* /*reserved*/, const char* delimiters,
                  std::string& first, std::string& second) {
  first = "";
  second = "";
  FILE* stream = std::fopen(path, kOpenMode);
  if (stream == nullptr) {
    platformLogError(kLogInvalidFile);
    return -1;
  }
  char line[kLineSize] = {};
  while (std::fgets(line, sizeof line, stream) != nullptr) {
    takeAddressLine(line, delimiters, first, second);
  }
  std::fclose(stream);
  return 0;
}

int IsComment(char* line) {
  const char* p = line;
  while (*p != '\0' && std::isspace(static_cast<unsigned char>(*p))) ++p;
  return *p == '#' ? 1 : 0;
}

// ---- Value checks and formatting ----

namespace {

// Checks one of the first four parts of a dotted quad; logs every reason it fails.
bool isAddressPartValid(const char* token, int index) {
  bool valid = true;
  const std::size_t length = std::strlen(token);
  int position = 0;
  if (length < 4) {
    for (std::size_t i = 0; i < length; ++i) {
      position = static_cast<int>(i) + 1;
      if (std::isdigit(static_cast<unsigned char>(token[i]))) continue;
      platformLogDebug(formatText(kLogNotDigit, index, position));
      valid = false;
    }
  } else {
    platformLogDebug(formatText(kLogTooLong, index));
    valid = false;
  }
  const int number = toInt(token);
  if (number < 0 || number > 255) {
    platformLogDebug(formatText(kLogOutOfRange, index, position));
    valid = false;
  }
  return valid;
}

}  // namespace

int IsIPValid(char* address) {
  char copy[kAddressCopySize] = {};
  std::strncpy(copy, address, kAddressCopySize - 1);
  int valid = 1;
  int index = 0;
  char* save = nullptr;
  for (char* token = strtok_r(copy, ".", &save); token != nullptr && index < 4; ++index) {
    if (!isAddressPartValid(token, index)) valid = 0;
    token = strtok_r(nullptr, ".", &save);
  }
  if (index < 4) {
    platformLogDebug(kLogNotEnoughTokens);
    valid = 0;
  }
  return valid;
}

int IsMaskValid(char* mask) {
  if (mask == nullptr || mask[0] == '\0') {
    platformLogDebug(kLogBlankMask);
    return 0;
  }
  in_addr address{};
  if (inet_aton(mask, &address) == 0) {
    platformLogDebug(kLogInetAtonFailed);
    return 0;
  }
  std::uint32_t bits = ntohl(address.s_addr);
  int counter = 32;
  for (; counter > 0 && (bits & 1U) == 0; --counter) bits >>= 1;
  for (; counter > 0; --counter) {
    if ((bits & 1U) == 0) return 0;
    bits >>= 1;
  }
  return 1;
}

int IsLineNumberValid(int line) {
  std::string minText;
  std::string maxText;
  const bool haveMin = readModemRegistry(kRegMinLine, minText);
  const bool haveMax = readModemRegistry(kRegMaxLine, maxText);
  if (haveMin && haveMax) {
    if (toInt(minText.c_str()) <= line && line <= toInt(maxText.c_str())) return 1;
    platformLogDebug(kLogBadLineNumber);
    return 0;
  }
  if (line >= kFallbackLineMin && line <= kFallbackLineMax) return 1;
  platformLogDebug(kLogBadFallbackLine);
  return 0;
}

void timeTodatetimeFormat(std::string& out, int seconds) {
  const long long number = static_cast<long long>(seconds / 60) * 100 + seconds % 60;
  const std::string digits = std::to_string(number);
  if (digits.size() > 4) {
    platformLogError(kLogInvalidTime);
    return;
  }
  out = kDatetimePrefixes[digits.size() - 1] + digits + kDatetimeSuffix;
}

int itoa(int value, char* text) {
  const bool negative = value < 0;
  // Unsigned arithmetic keeps the most negative value representable.
  unsigned int magnitude =
      negative ? 0U - static_cast<unsigned int>(value) : static_cast<unsigned int>(value);
  int i = 0;
  do {
    text[i++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude > 0);
  if (negative) text[i++] = '-';
  text[i] = '\0';
  return reverse(text);
}

int reverse(char* text) {
  const int length = static_cast<int>(std::strlen(text));
  for (int i = 0, j = length - 1; i < j; ++i, --j) {
    const char c = text[i];
    text[i] = text[j];
    text[j] = c;
  }
  return length;
}

// ---- Registry ----

const char* const kRegSection = "SoftModem";
const char* const kRegGroup = "ModemCC";
const char* const kRegModemStatus = "ModemStatus";
const char* const kRegMinLine = "MinLine";
const char* const kRegMaxLine = "MaxLine";
const char* const kRegLineToAnswer = "LineToAnswer";
const char* const kRegAutoDisableTimer = "AutoDisableTimer";
const char* const kRegAutoDisableFlag = "AutoDisableFlag";
const char* const kRegModemDn = "modemdn";
const char* const kRegEnabled = "ENABLED";
const char* const kRegDisabled = "DISABLED";
const char* const kRegOn = "ON";
const char* const kRegOff = "OFF";
const char* const kQvlErrorLog = "Error in QVL Operation\n";
const char* const kQvlErrorLogUpper = "Error IN QVL Operation\n";

int handle = -1;

namespace {
bool readModemRegistryBuffer(const char* name, std::string& value, bool upperCase) {
  char buffer[kRegValueSize] = {};
  if (QvlGetRegEntryString(kRegSection, kRegGroup, name, buffer, kRegValueSize) != 0) {
    return false;
  }
  buffer[kRegValueSize - 1] = '\0';
  value = upperCase ? osStrUpr(buffer) : buffer;
  return true;
}
}  // namespace

bool readModemRegistry(const char* name, std::string& value) {
  return readModemRegistryBuffer(name, value, true);
}

bool readModemRegistryAsStored(const char* name, std::string& value) {
  return readModemRegistryBuffer(name, value, false);
}

bool writeModemRegistry(const char* name, const char* value) {
  return QvlSetRegEntryString(kRegSection, kRegGroup, name, value) == 0;
}

int startModemStatusNotify() {
  const int result =
      QvlNotifyRegChangeStart(kRegSection, kRegGroup, kRegModemStatus, remove_ppp_link, 0, &handle);
  if (result == 0) platformLogDebug(kLogNotifyStarted);
  return result;
}

void stopModemStatusNotify() {
  if (handle != -1) QvlNotifyRegChangeStop(handle);
}

// ---- Dial service process control ----

namespace {

const char* const kLogJobControl = "Restart_ppp_add_v2k:jobCntrl";
const char* const kLogProcessCmd = "ProcessCmd is";
const char* const kLogProcessCmd1 = "ProcessCmd1 is";
const char* const kLogRestartInterface = "Name of DialOut in Restart  Interface.. ";
const char* const kLogKillingMgetty = "Killing Mgetty";
const char* const kLogCallback = "Calling Callback Function";
const char* const kLogDialOutInterface = "Interface for DialOut  is";
const char* const kLogDialInInterface = "Interface for DialIn  is";

}  // namespace

std::string findDialOutInterface() {
  return dialOutInterfaceFor(dialOutRecorded());
}

std::string readActiveInterface() {
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
  logAndRun(kLogProcessCmd, hangupCommand(interface));
}

void RestartMgetty() {
  gateState(kDialInScript);
  const int din = dialInRecorded();
  // A dial-in call in progress is never cut by a settings change.
  if (din != -1 && din != 0) return;
  logAndRun(kLogKillingMgetty, killMgettyCommand());
  reloadInit();
}

void stopDialOut() {
  const std::string interface = findDialOutInterface();
  platformLogDebug(kLogDialOutInterface);
  platformLogDebug(interface);
  closeGate(kDialOutScript);
  if (interface.empty()) return;
  killChat();
  logAndRun(kLogProcessCmd, hangupCommand(interface));
}

void stopDialIn() {
  closeGate(kDialInScript);
  const std::string interface = dialInRecorded() == 1 ? interfaceInMarker() : std::string();
  platformLogDebug(kLogDialInInterface);
  platformLogDebug(interface);
  if (!interface.empty()) logAndRun(kLogProcessCmd, hangupCommand(interface));
  logAndRun(kLogProcessCmd1, killMgettyCommand());
}

void resumeDialOut() {
  resumeDirection(kDialOutDirection);
}

void resumeDialIn() {
  resumeDirection(kDialInDirection);
}

void remove_ppp_link(unsigned long) {
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
