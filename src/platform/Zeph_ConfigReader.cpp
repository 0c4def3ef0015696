// The configuration file reader: fresh scans of a file, cached scans through FileList (with
// the one-shot /tmp files and the marker file closed after each read), the last-match reader
// and the address-line reader of the pppd options files.
#include "Zeph_ConfigReader.h"

#include <cctype>
#include <cerrno>
#include <cstdarg>
#include <cstring>

#include "Zeph_ApplianceFiles.h"
#include "Zeph_ConfigScan.h"
#include "Zeph_PlatformLog.h"

using namespace ras;

namespace {

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

ras::CachedConfigFile FileList[ras::kFileListSize] = {
    {ras::kDialInScript, 2, nullptr},   {ras::kDialOutPppdScript, 1, nullptr},
    {ras::kDialOutOptions, 2, nullptr}, {ras::kDialInOptions, 2, nullptr},
    {ras::kDialOutScript, 1, nullptr},  {ras::kCallbackConfig, 1, nullptr},
    {ras::kRouteScript, 1, nullptr},    {ras::kCallScript, 2, nullptr},
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
  for (const ras::CachedConfigFile& entry : FileList) {
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
  for (ras::CachedConfigFile& entry : FileList) {
    if (entry.stream != nullptr) std::fclose(entry.stream);
    entry.stream = std::fopen(entry.path, kOpenMode);
    platformLogDebug(entry.stream != nullptr ? kLogOpeningFile : kLogOpenFileFailed);
    platformLogDebug(entry.path);
  }
}

void CloseFile(const char* path) {
  for (ras::CachedConfigFile& entry : FileList) {
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
