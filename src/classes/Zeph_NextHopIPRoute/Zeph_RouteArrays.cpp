// The ROUTES, NETMASK and METRIC arrays of the route file: element readers and the
// continuation edit that precedes an append.
#include "Zeph_RouteArrays.h"

#include <sys/stat.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "Zeph_ApplianceFiles.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_ConfigScan.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

namespace ras {

namespace {

// The helper scripts of the three arrays.
constexpr auto kSetRoute = helperScript("setRoute");
constexpr auto kSetfirstRoute = helperScript("setfirstRoute");
constexpr auto kDelRoute = helperScript("delRoute");
constexpr auto kDelfirstRoute = helperScript("delfirstRoute");
constexpr auto kSetRouteRemovebackslash = helperScript("setRoute_removebackslash");
constexpr auto kSetMask = helperScript("setMask");
constexpr auto kSetfirstMask = helperScript("setfirstMask");
constexpr auto kDelMask = helperScript("delMask");
constexpr auto kDelfirstMask = helperScript("delfirstMask");
constexpr auto kSetMaskRemovebackslash = helperScript("setMask_removebackslash");
constexpr auto kSetMetric = helperScript("setMetric");
constexpr auto kSetfirstMetric = helperScript("setfirstMetric");
constexpr auto kDelMetric = helperScript("delMetric");
constexpr auto kDelfirstMetric = helperScript("delfirstMetric");
constexpr auto kSetMetricRemovebackslash = helperScript("setMetric_removebackslash");

}  // namespace

const RouteArray kRouteArray = {
    "\tROUTES[%d]=%s",
    "\tROUTES",
    "routesString %s",
    "ipAddr: %s",
    "%s -i 's/ROUTES\\[%d\\]=\\\"%s\\\"/ROUTES\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    kSetRoute,
    kSetfirstRoute,
    kDelRoute,
    kDelfirstRoute,
    kSetRouteRemovebackslash,
};

const RouteArray kMaskArray = {
    "\tNETMASK[%d]=%s",
    "\tNETMASK",
    "mask %s",
    nullptr,
    "%s -i 's/NETMASK\\[%d\\]=\\\"%s\\\"/NETMASK\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    kSetMask,
    kSetfirstMask,
    kDelMask,
    kDelfirstMask,
    kSetMaskRemovebackslash,
};

const RouteArray kMetricArray = {
    "\tMETRIC[%d]=%s",
    "\tMETRIC",
    "metric %s",
    nullptr,
    "%s -i 's/METRIC\\[%d\\]=\\\"%s\\\"/METRIC\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    kSetMetric,
    kSetfirstMetric,
    kDelMetric,
    kDelfirstMetric,
    kSetMetricRemovebackslash,
};

namespace {

const char* const kLogContinuation = "cmdline for adding backward slash is %s\n";
const char* const kCmdIndexNumber = "%s %d %d";

ShellCommand appendLine(const RouteArray& array, int index, const CommandArg& value) {
  if (index > 0) {
    return ShellCommand(value.isNumber() ? kCmdIndexNumber : kScriptNumberText,
                        {array.appendScript, index, value});
  }
  return ShellCommand(value.isNumber() ? kScriptNumber : kScriptText, {array.firstScript, value});
}

// What the file reader logs before each line it scans (Zeph_ConfigReader.cpp).
const char* const kLogLine = "LINE: ";

const RouteArray* const kArrays[] = {&kRouteArray, &kMaskArray, &kMetricArray};
constexpr std::size_t kArrayCount = sizeof kArrays / sizeof kArrays[0];

// One line of an array as the file reader scans it: its text, and the element it holds
// (index and word, quotes included) when the array's read format for that index takes it.
struct ArrayLine {
  std::string text;
  int index = -1;
  std::string word;
};

// The route file's array lines from one read of it, kept within one request while no command
// has run (fileEpoch) and the file looks unchanged: a delete renumbers every later route and
// an enumeration reads three elements per route, which would otherwise read the whole file
// again each time. An array's elements are worked out at its first read.
struct RouteFileSnapshot {
  bool valid = false;
  unsigned long epoch = 0;
  struct stat file {};
  std::vector<ArrayLine> lines[kArrayCount];
  bool parsed[kArrayCount] = {};
};

RouteFileSnapshot snapshot;

bool sameFile(const struct stat& a, const struct stat& b) {
  return a.st_ino == b.st_ino && a.st_dev == b.st_dev && a.st_size == b.st_size &&
         a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec &&
         a.st_ctim.tv_sec == b.st_ctim.tv_sec && a.st_ctim.tv_nsec == b.st_ctim.tv_nsec;
}

std::string readFormat(const RouteArray& array, int index) {
  char format[1024] = {};
  std::snprintf(format, sizeof format, array.readFormat, index, "%s");
  return format;
}

// Works out the element of a line that begins with the array's prefix. The read format of
// element i is the prefix, "[i]=" and a bounded "%s": the line holds element i when the
// prefix is followed by "[", the decimal digits of i as printf writes them, "]=" and a word.
void parseLine(ArrayLine& line, std::size_t prefixLength) {
  static const std::string wordFormat = [] {
    std::string bounded;
    boundedScanFormat("%s", ScanTarget::Text, kFileValueSize, bounded);
    return bounded;
  }();
  const char* p = line.text.c_str() + prefixLength;
  if (*p++ != '[') return;
  const char* digits = p;
  while (*p >= '0' && *p <= '9') ++p;
  const std::size_t count = static_cast<std::size_t>(p - digits);
  if (count == 0 || count > 10 || (count > 1 && digits[0] == '0')) return;
  const long long index = std::strtoll(std::string(digits, count).c_str(), nullptr, 10);
  if (index > INT_MAX || p[0] != ']' || p[1] != '=') return;
  char found[kFileValueSize] = {};
  if (std::sscanf(p + 2, wordFormat.c_str(), found) != 1) return;
  line.index = static_cast<int>(index);
  line.word = found;
}

// Brings the snapshot up to date; false when the file cannot be opened.
bool currentSnapshot() {
  struct stat now {};
  if (snapshot.valid && snapshot.epoch == fileEpoch() && stat(kRouteScript, &now) == 0 &&
      sameFile(now, snapshot.file)) {
    return true;
  }
  snapshot.valid = false;
  const unsigned long epoch = fileEpoch();
  FILE* stream = std::fopen(kRouteScript, "r+");
  if (stream == nullptr) return false;
  for (std::size_t a = 0; a < kArrayCount; ++a) {
    snapshot.lines[a].clear();
    snapshot.parsed[a] = false;
  }
  char line[kLineSize] = {};
  while (std::fgets(line, sizeof line, stream) != nullptr) {
    for (std::size_t a = 0; a < kArrayCount; ++a) {
      const char* prefix = kArrays[a]->prefix;
      if (std::strncmp(line, prefix, std::strlen(prefix)) == 0) {
        snapshot.lines[a].push_back({line, -1, {}});
      }
    }
  }
  snapshot.valid = fstat(fileno(stream), &snapshot.file) == 0;
  snapshot.epoch = epoch;
  std::fclose(stream);
  return true;
}

// Element `index`: the word of the last line that holds it. With debug logging on, the
// lines the file reader logs for each line it scans (the line and the word found so far).
std::string elementOf(std::size_t a, int index) {
  std::vector<ArrayLine>& lines = snapshot.lines[a];
  if (!snapshot.parsed[a]) {
    const std::size_t prefixLength = std::strlen(kArrays[a]->prefix);
    for (ArrayLine& line : lines) parseLine(line, prefixLength);
    snapshot.parsed[a] = true;
  }
  const bool logging = logger && logger->getLogLevel() >= OpenWBEM::E_DEBUG_LEVEL;
  std::string word;
  for (const ArrayLine& line : lines) {
    if (line.index == index) word = line.word;
    if (logging) {
      platformLogDebug(kLogLine);
      platformLogDebug(line.text);
      platformLogDebug(word);
    }
  }
  return word;
}

std::string readWord(const RouteArray& array, int index) {
  std::string word;
  if (!currentSnapshot()) {
    // The reader logs why the file cannot be read, at every read.
    getParameterFromFile(kRouteScript, readFormat(array, index).c_str(), array.prefix, word);
    return word;
  }
  for (std::size_t a = 0; a < kArrayCount; ++a) {
    if (kArrays[a] == &array) return elementOf(a, index);
  }
  return word;
}

}  // namespace

std::string readRouteElement(const RouteArray& array, int index, const char* log) {
  const std::string word = readWord(array, index);
  platformLogDebug(formatText(log != nullptr ? log : array.readLog, word.c_str()));
  // The word keeps its quotes: skip the opening one, drop the closing one.
  std::string value;
  if (word.size() > 1 && word[0] == '"') value = word.substr(1, word.size() - 2);
  if (array.valueLog != nullptr) platformLogDebug(formatText(array.valueLog, value.c_str()));
  return value;
}

ElementAppend::ElementAppend(const RouteArray& array, int index, const CommandArg& value)
    : append_(appendLine(array, index, value)) {
  if (index <= 0) return;
  const std::string before = readRouteElement(array, index - 1);
  continuation_.emplace(
      array.continuationCommand,
      std::initializer_list<CommandArg>{kSed, index - 1, before, index - 1, before, kRouteScript});
}

bool ElementAppend::valid() const {
  return append_.valid() && (!continuation_ || continuation_->valid());
}

void ElementAppend::run(const char* appendLog) const {
  if (continuation_) {
    platformLogDebug(formatText(kLogContinuation, continuation_->text().c_str()));
    continuation_->run();
    platformLogDebug(appendLog);
  }
  append_.run();
}

}  // namespace ras
