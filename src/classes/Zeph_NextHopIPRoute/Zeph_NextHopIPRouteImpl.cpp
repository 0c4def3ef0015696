// A dial-out route: its address, mask and metric are element `index` of the route file's
// three arrays. A new route appends its ROUTES element; its first mask and metric append
// the NETMASK and METRIC elements, later ones edit them in place.
#include "Zeph_NextHopIPRouteImpl.h"

#include <cstdlib>

#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_CommandRunner.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RouteArrays.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kElementName = "IP Routes";
const char* const kLoadedIfName = "ppp0";
const char* const kBareInterface = "ppp";
const char* const kWriteQualifier = "Write";
constexpr auto kAddRouteScript = helperScript("addRoute");

// Malformed address; element already present at that index (the code characters 4 and 5).
const char kInvalidAddress[] = {'#', 4, '#', 0};
const char kElementPresent[] = {'#', 5, '#', 0};
const char* const kInvalidIndex = "Invalid Route Index";

const char* const kRouteProbe = "\tROUTES[%d]=\"%s";

const char* const kLogLoad = "Zeph_NextHopIPRouteImpl::Zeph_NextHopIPRouteImpl\n";
const char* const kLogCreate = "Zeph_NextHopIPRouteImpl::Zeph_NextHopIPRouteImpl- with index %d\n";
const char* const kLogProbe = "paramstring is %s\n";
const char* const kLogDestination = "destAddrString: %s\n";
const char* const kLogSetRoute = "Calling the set route script\n";
const char* const kLogBeforeValue = "When Blank Value";
const char* const kLogAfterValue = "After Receiving Value";
const char* const kLogIfName = "Zeph_NextHopIPRouteImpl::getIfName\n";
const char* const kLogInterface = "Name of Dialout Interface %s";

// What differs between the mask and the metric setter.
struct ElementSetter {
  const RouteArray& array;
  const char* traceLog;
  const char* probe;
  const char* probeLog;
  const char* currentLog;
  const char* inPlaceCommand;
  const char* appendLog;
};

const ElementSetter kMaskSetter = {
    kMaskArray,
    "Zeph_NextHopIPRouteImpl::setDestinationMask\n",
    "\tNETMASK[%d]=",
    "netMaskString: %s\n",
    "mask %s",
    "%s  -i 's/^\tNETMASK\\[%d\\]=\\\"%s\\\"/\\tNETMASK\\[%d\\]=\\\"%s\\\"/'   %s",
    "Calling the set mask script\n",
};

const ElementSetter kMetricSetter = {
    kMetricArray,
    "Zeph_NextHopIPRouteImpl::setRouteMetric\n",
    "\tMETRIC[%d]=",
    "metricString: %s\n",
    kRouteArray.readLog,  // the metric's current value is logged as a route's
    "%s  -i 's/^\tMETRIC\\[%d\\]=\\\"%s\\\"/\\tMETRIC\\[%d\\]=\\\"%d\\\"/'   %s",
    "Calling the set metric script\n",
};

[[noreturn]] void fail(const char* text) {
  throwProviderError({kRouteImplSource, kRouteImplLine}, OpenWBEM::CIMException::FAILED, text);
}

// The first word of the line that begins with `probe`, or empty when there is none.
std::string probeFile(const std::string& probe) {
  std::string word;
  getParameterFromFile(kRouteScript, "%s", probe.c_str(), word);
  return word;
}

enum class Written { InPlace, Appended, Refused };

// Writes `value` as element `index` of the setter's array: an edit when the element exists,
// else an append after the continuation of the previous element; then installs the route.
// Every line is built before the first runs; when one cannot carry its values nothing runs.
Written writeElement(const ElementSetter& setter, int index, const CommandArg& value) {
  platformLogDebug(kLogBeforeValue);
  platformLogDebug(value.text());
  platformLogDebug(kLogAfterValue);
  const std::string probe = formatText(setter.probe, index);
  platformLogDebug(formatText(kLogProbe, probe.c_str()));
  const std::string found = probeFile(probe);
  platformLogDebug(formatText(setter.probeLog, found.c_str()));
  const ShellCommand install(kScriptNumber, {kAddRouteScript, index});
  if (!found.empty()) {
    const std::string old = readRouteElement(setter.array, index, setter.currentLog);
    const ShellCommand edit(setter.inPlaceCommand, {kSed, index, old, index, value, kRouteScript});
    if (!edit.valid() || !install.valid()) return Written::Refused;
    edit.run();
  } else {
    if (index < 0) fail(kInvalidIndex);
    const ElementAppend append(setter.array, index, value);
    if (!append.valid() || !install.valid()) return Written::Refused;
    append.run(setter.appendLog);
  }
  install.run();
  Restart_ppp_add_v2k();
  return found.empty() ? Written::Appended : Written::InPlace;
}

}  // namespace

Zeph_NextHopIPRouteImpl::Zeph_NextHopIPRouteImpl(const std::string& destination)
    : Zeph_NextHopIPRoute(destination) {
  platformLogDebug(kLogLoad);
  if (!isSettableAddress(destination)) fail(kInvalidAddress);
  destinationMask_ = kHostMask;
  ifName_ = kLoadedIfName;
}

Zeph_NextHopIPRouteImpl::Zeph_NextHopIPRouteImpl(const std::string& destination, int index)
    : Zeph_NextHopIPRoute(destination) {
  platformLogDebug(formatText(kLogCreate, index));
  if (!isSettableAddress(destination)) fail(kInvalidAddress);
  index_ = index;
  destinationMask_ = kHostMask;
  const std::string probe = formatText(kRouteProbe, index, destination.c_str());
  platformLogDebug(formatText(kLogProbe, probe.c_str()));
  const std::string found = probeFile(probe);
  platformLogDebug(formatText(kLogDestination, found.c_str()));
  if (!found.empty()) fail(kElementPresent);
  if (index < 0) fail(kInvalidIndex);
  const ElementAppend append(kRouteArray, index, destination);
  if (!append.valid()) fail(kInvalidAddress);
  append.run(kLogSetRoute);
  destinationAddress_ = destination;
}

int Zeph_NextHopIPRouteImpl::getElementName(std::string& value, Qualifiers&) const {
  value = kElementName;
  return kStatusOk;
}

int Zeph_NextHopIPRouteImpl::getDestinationAddress(std::string& value,
                                                   Qualifiers& qualifiers) const {
  value = readRouteElement(kRouteArray, index_);
  OpenWBEM::CIMQualifier write(kWriteQualifier);
  write.setValue(OpenWBEM::CIMValue(false));
  qualifiers.push_back(write);
  return kStatusOk;
}

int Zeph_NextHopIPRouteImpl::getDestinationMask(std::string& value, Qualifiers&) const {
  value = readRouteElement(kMaskArray, index_);
  return kStatusOk;
}

// A mask that IsMaskValid refuses, or that would not stay data in the route file or in the
// sed edits of it, is refused before anything is written.
int Zeph_NextHopIPRoute::maskStatus(const std::string& mask) {
  return isSettableMask(mask) ? kStatusOk : kStatusInvalidMask;
}

int Zeph_NextHopIPRouteImpl::setDestinationMask(std::string value) {
  platformLogDebug(kMaskSetter.traceLog);
  const int status = maskStatus(value);
  if (status != kStatusOk) return status;
  const Written written = writeElement(kMaskSetter, index_, value);
  if (written == Written::Refused) return kStatusInvalidMask;
  if (written == Written::Appended) destinationMask_ = value;
  return kStatusOk;
}

int Zeph_NextHopIPRouteImpl::getRouteMetric(unsigned short& value, Qualifiers&) const {
  value = static_cast<unsigned short>(std::atoi(readRouteElement(kMetricArray, index_).c_str()));
  return kStatusOk;
}

int Zeph_NextHopIPRouteImpl::setRouteMetric(unsigned short value) {
  platformLogDebug(kMetricSetter.traceLog);
  const Written written = writeElement(kMetricSetter, index_, static_cast<int>(value));
  if (written == Written::Refused) return kStatusInvalidValue;
  if (written == Written::Appended) routeMetric_ = value;
  return kStatusOk;
}

// The connected dial-out link's interface; the member's value when none is found.
int Zeph_NextHopIPRouteImpl::getIfName(std::string& value, Qualifiers&) const {
  platformLogDebug(kLogIfName);
  value = ifName_;
  const std::string found = findDialOutInterface();
  if (found != kBareInterface) value = found;
  platformLogDebug(formatText(kLogInterface, value.c_str()));
  return kStatusOk;
}
