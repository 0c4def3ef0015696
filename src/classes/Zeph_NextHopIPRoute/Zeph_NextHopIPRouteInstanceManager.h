// The collection of Zeph_NextHopIPRoute objects; this abstract manager refuses to create or delete
// them.
#ifndef ZEPH_NEXTHOPIPROUTEINSTANCEMANAGER_H
#define ZEPH_NEXTHOPIPROUTEINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_NextHopIPRoute;

class Zeph_NextHopIPRouteInstanceManager : public ras::InstanceManager<Zeph_NextHopIPRoute> {
 public:
  virtual Zeph_NextHopIPRoute* createZeph_NextHopIPRoute(const std::string& instanceID) {
    return create({instanceID});
  }
  virtual void destroyZeph_NextHopIPRoute(Zeph_NextHopIPRoute* object) { destroy(object); }
};

#endif
