// The route table: loads the routes of the route file, creates a route with its association
// to the dial-out settings, and deletes one by the delete scripts of its case (the only
// route, one before the last, the last), renumbering the routes that follow it.
#include <cstdlib>

#include "CFG_Exception.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_NextHopIPRouteImpl.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RouteArrays.h"
#include "Zeph_RouteAssociations.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kCountFormat = "declare -r NUMBER_OF_ROUTES=\"%s";
const char* const kCountPrefix = "declare -r NUMBER_OF_ROUTES";
constexpr auto kSetCountScript = helperScript("setNumRoute");
const char* const kDuplicate = "Destination Address specified already exists in the table.";

const char* const kCmdDelete = "%s %d %d\n";
const char* const kCmdRemoveBackslash = "%s %d %s\n";

const char* const kLogLoad =
    "Zeph_NextHopIPRouteImplInstanceManager::Zeph_NextHopIPRouteImplInstanceManager\n";
const char* const kLogCount = "routeNumberString %s";
const char* const kLogCreate =
    " Zeph_NextHopIPRouteImplInstanceManager::createZeph_NextHopIPRoute\n";
const char* const kLogNewAddress = " There are no instance of routes currently. Do nothing...";
const char* const kLogOutOfCatch = " Came out of Catch";
const char* const kLogDestroy =
    "Zeph_NextHopIPRouteImplInstanceManager::destroyZeph_NextHopIPRoute\n";
const char* const kLogOnlyRoute = "DELETING the First and the only Route\n";
const char* const kLogIntermediate = "Remvoing Intermediate Entry\n";
const char* const kLogLast = "Removing the last Entry\n";

const RouteArray* const kArrays[] = {&kRouteArray, &kMaskArray, &kMetricArray};

void setRouteCount(int count) {
  runCommand(kScriptNumber, {kSetCountScript, count});
}

std::string instanceIDOf(const Zeph_NextHopIPRoute& route) {
  std::string id;
  Qualifiers unused;
  route.getInstanceID(id, unused);
  return id;
}

}  // namespace

int Zeph_NextHopIPRouteImplInstanceManager::getRoute(int index, std::string& out) const {
  out = readRouteElement(kRouteArray, index);
  return kStatusOk;
}

int Zeph_NextHopIPRouteImplInstanceManager::getMask(int index, std::string& out) const {
  out = readRouteElement(kMaskArray, index);
  return kStatusOk;
}

int Zeph_NextHopIPRouteImplInstanceManager::getMetric(int index, std::string& out) const {
  out = readRouteElement(kMetricArray, index);
  return kStatusOk;
}

int Zeph_NextHopIPRouteImplInstanceManager::init() {
  platformLogDebug(kLogLoad);
  std::string count;
  getParameterFromFile(kRouteScript, kCountFormat, kCountPrefix, count);
  platformLogDebug(formatText(kLogCount, count.c_str()));
  if (!count.empty()) {
    count.pop_back();
    routeCount_ = std::atoi(count.c_str());
  }
  for (int i = 0; i < routeCount_; ++i) {
    std::string destination;
    getRoute(i, destination);
    // A destination listed twice: the earlier route is freed (which erases its entry) and the
    // later element takes the key.
    try {
      delete InstanceManager<Zeph_NextHopIPRoute>::get(destination);
    } catch (const CFG_NoInstance&) {
    }
    (new Zeph_NextHopIPRouteImpl(destination))->SetRouteIndex(i);
  }
  return kStatusOk;
}

Zeph_NextHopIPRoute* Zeph_NextHopIPRouteImplInstanceManager::createZeph_NextHopIPRoute(
    const std::string& destination) {
  platformLogDebug(kLogCreate);
  try {
    get(destination);
    throwProviderError({kRouteImplSource, kRouteImplLine},
                       OpenWBEM::CIMException::INVALID_PARAMETER, kDuplicate);
  } catch (const CFG_NoInstance&) {
    platformLogDebug(kLogNewAddress);
  }
  platformLogDebug(kLogOutOfCatch);
  auto* route = new Zeph_NextHopIPRouteImpl(destination, routeCount_);
  try {
    if (routeAssociations().created != nullptr) routeAssociations().created(destination);
  } catch (const CFG_InstanceCreationFailed&) {
    throwWithoutMessage({kRouteImplSource, kRouteImplLine}, OpenWBEM::CIMException::NOT_SUPPORTED);
  }
  setRouteCount(++routeCount_);
  return route;
}

void Zeph_NextHopIPRouteImplInstanceManager::destroyZeph_NextHopIPRoute(
    Zeph_NextHopIPRoute* route) {
  platformLogDebug(kLogDestroy);
  if (route == nullptr) return;
  const int index = static_cast<Zeph_NextHopIPRouteImpl*>(route)->GetRouteIndex();
  const int count = routeCount_;
  if (index == 0 && count == 1) {
    platformLogDebug(kLogOnlyRoute);
    for (const RouteArray* array : kArrays) runCommand(array->deleteFirstScript, {});
  } else if (index != count - 1) {
    platformLogDebug(kLogIntermediate);
    renumberFollowing(index, count);
    for (const RouteArray* array : kArrays)
      runCommand(kCmdDelete, {array->deleteScript, index, count});
  } else {
    for (const RouteArray* array : kArrays)
      runCommand(kCmdDelete, {array->deleteScript, index, count});
    platformLogDebug(kLogLast);
    for (const RouteArray* array : kArrays) {
      runCommand(kCmdRemoveBackslash,
                 {array->removeBackslashScript, index - 1, readRouteElement(*array, index - 1)});
    }
  }
  routeCount_ = count - 1;
  setRouteCount(routeCount_);
  runCommand(kRouteScript, {});
  if (routeAssociations().removed != nullptr) routeAssociations().removed(instanceIDOf(*route));
  delete route;
}

// The routes after `index` move down by one, found by the addresses the file holds for them.
void Zeph_NextHopIPRouteImplInstanceManager::renumberFollowing(int index, int count) {
  for (int j = index + 1; j < count; ++j) {
    std::string destination;
    getRoute(j, destination);
    static_cast<Zeph_NextHopIPRouteImpl*>(get(destination))->SetRouteIndex(j - 1);
  }
}

RouteAssociations& ras::routeAssociations() {
  static RouteAssociations calls;
  return calls;
}
