// One association per route, all with the single dial-out settings instance: made for every
// loaded route, and made or dropped with each route the route table creates or removes.
#include "Zeph_DialOutRoutesImpl.h"

#include <string>

#include "Zeph_DialOutSettingData.h"
#include "Zeph_NextHopIPRoute.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RouteAssociations.h"

namespace {

const char* const kLogDeletingAssociation = "Deleting the association\n";
const char* const kLogDeletedAssociation = "Deleted the association\n";

void associateRoute(const std::string& routeInstanceID) {
  Zeph_DialOutRoutes::getInstanceManager()->createZeph_DialOutRoutes(
      Zeph_DialOutSettingDataInstanceID, routeInstanceID);
}

void dropRouteAssociation(const std::string& routeInstanceID) {
  Zeph_DialOutRoutesInstanceManager* associations = Zeph_DialOutRoutes::getInstanceManager();
  for (associations->startIteration(); associations->hasNext();) {
    Zeph_DialOutRoutes* association = associations->next();
    std::string dependent;
    ras::Qualifiers unused;
    association->getDependentInstanceID(dependent, unused);
    if (dependent != routeInstanceID) continue;
    ras::platformLogDebug(kLogDeletingAssociation);
    associations->destroyZeph_DialOutRoutes(association);
    ras::platformLogDebug(kLogDeletedAssociation);
    break;
  }
}

// Installed when the module is loaded, before any request can create or remove a route.
const bool kFollowsRoutes = [] {
  ras::routeAssociations() = {associateRoute, dropRouteAssociation};
  return true;
}();

}  // namespace

int Zeph_DialOutRoutesImplInstanceManager::init() {
  Zeph_NextHopIPRouteInstanceManager* routes = Zeph_NextHopIPRoute::getInstanceManager();
  for (routes->startIteration(); routes->hasNext();) {
    std::string id;
    ras::Qualifiers unused;
    routes->next()->getInstanceID(id, unused);
    new Zeph_DialOutRoutes(Zeph_DialOutSettingDataInstanceID, id);
  }
  routes->endIteration();
  return ras::kStatusOk;
}
