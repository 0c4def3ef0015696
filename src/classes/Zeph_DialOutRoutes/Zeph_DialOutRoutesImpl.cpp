// One association per loaded route, all with the single dial-out settings instance.
#include "Zeph_DialOutRoutesImpl.h"

#include <string>

#include "Zeph_NextHopIPRoute.h"

namespace {
const char* const kSettingsInstanceID = "Velmar:Zeph_DialOutSettingData";
}  // namespace

int Zeph_DialOutRoutesImplInstanceManager::init() {
  Zeph_NextHopIPRouteInstanceManager* routes = Zeph_NextHopIPRoute::getInstanceManager();
  for (routes->startIteration(); routes->hasNext();) {
    std::string id;
    ras::Qualifiers unused;
    routes->next()->getInstanceID(id, unused);
    new Zeph_DialOutRoutes(kSettingsInstanceID, id);
  }
  routes->endIteration();
  return ras::kStatusOk;
}
