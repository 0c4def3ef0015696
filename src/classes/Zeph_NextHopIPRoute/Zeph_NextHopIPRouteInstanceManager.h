// The collection of Zeph_NextHopIPRoute objects, keyed by InstanceID, with its own log lines for a
// failed lookup and for every add and step; this abstract manager refuses to create or delete
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

  Zeph_NextHopIPRoute* get(const std::string& key) const override;
  void add(ras::ManagedObject* object) override;
  Zeph_NextHopIPRoute* next() override;
};

#endif
