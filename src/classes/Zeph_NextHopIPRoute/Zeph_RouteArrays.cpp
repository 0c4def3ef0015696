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

const RouteArray kRouteArray = {
    "\tROUTES[%d]=%s",
    "\tROUTES",
    "routesString %s",
    "ipAddr: %s",
    "%s -i 's/ROUTES\\[%d\\]=\\\"%s\\\"/ROUTES\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    "/opt/etc/RasProviderScripts/setRoute",
    "/opt/etc/RasProviderScripts/setfirstRoute",
    "/opt/etc/RasProviderScripts/delRoute",
    "/opt/etc/RasProviderScripts/delfirstRoute",
    "/opt/etc/RasProviderScripts/setRoute_removebackslash",
};

const RouteArray kMaskArray = {
    "\tNETMASK[%d]=%s",
    "\tNETMASK",
    "mask %s",
    nullptr,
    "%s -i 's/NETMASK\\[%d\\]=\\\"%s\\\"/NETMASK\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    "/opt/etc/RasProviderScripts/setMask",
    "/opt/etc/RasProviderScripts/setfirstMask",
    "/opt/etc/RasProviderScripts/delMask",
    "/opt/etc/RasProviderScripts/delfirstMask",
    "/opt/etc/RasProviderScripts/setMask_removebackslash",
};

const RouteArray kMetricArray = {
    "\tMETRIC[%d]=%s",
    "\tMETRIC",
    "metric %s",
    nullptr,
    "%s -i 's/METRIC\\[%d\\]=\\\"%s\\\"/METRIC\\[%d\\]=\\\"%s\\\" \\\\/' %s",
    "/opt/etc/RasProviderScripts/setMetric",
    "/opt/etc/RasProviderScripts/setfirstMetric",
    "/opt/etc/RasProviderScripts/delMetric",
    "/opt/etc/RasProviderScripts/delfirstMetric",
    "/opt/etc/RasProviderScripts/setMetric_removebackslash",
};

namespace {
const char* const kLogContinuation = "cmdline for adding backward slash is %s\n";
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

void continueRouteElement(const RouteArray& array, int index, const std::string& value) {
  const ShellCommand command(array.continuationCommand,
                             {kSed, index, value, index, value, kRouteScript});
  platformLogDebug(formatText(kLogContinuation, command.text().c_str()));
  command.run();
}

}  // namespace ras
