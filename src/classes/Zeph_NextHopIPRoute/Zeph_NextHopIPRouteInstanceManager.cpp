// The route collection's log lines around the shared lookup and iteration.
#include "Zeph_NextHopIPRouteInstanceManager.h"

#include "Zeph_NextHopIPRoute.h"
#include "Zeph_PlatformLog.h"

Zeph_NextHopIPRoute* Zeph_NextHopIPRouteInstanceManager::get(const std::string& key) const {
  try {
    return InstanceManager::get(key);
  } catch (const CFG_NoInstance&) {
    ras::platformLogDebug("The hasKey value in the get operation is i\n");
    throw;
  }
}

namespace {
const char* const kLogCollection = "Size of Collection : \n";
}  // namespace

void Zeph_NextHopIPRouteInstanceManager::add(ras::ManagedObject* object) {
  ras::platformLogDebug(kLogCollection);
  InstanceManager::add(object);
}

Zeph_NextHopIPRoute* Zeph_NextHopIPRouteInstanceManager::next() {
  ras::platformLogDebug(kLogCollection);
  return InstanceManager::next();
}
