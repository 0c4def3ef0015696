// The ROUTES, NETMASK and METRIC arrays of the route file: element readers and the
// continuation edit that precedes an append.
#include "Zeph_RouteArrays.h"

#include <cstdio>

#include "Zeph_ApplianceFiles.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"
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

}  // namespace

std::string readRouteElement(const RouteArray& array, int index, const char* log) {
  char format[1024] = {};
  std::snprintf(format, sizeof format, array.readFormat, index, "%s");
  std::string word;
  getParameterFromFile(kRouteScript, format, array.prefix, word);
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
