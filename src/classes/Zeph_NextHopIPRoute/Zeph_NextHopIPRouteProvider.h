// Instance provider of Zeph_NextHopIPRoute: the provider template over the class's traits, with the
// class's named conversion and lookup helpers; clients create and delete its instances.
#ifndef ZEPH_NEXTHOPIPROUTEPROVIDER_H
#define ZEPH_NEXTHOPIPROUTEPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_NextHopIPRoute.h"
#include "Zeph_NextHopIPRouteImpl.h"

struct Zeph_NextHopIPRouteTraits
    : ras::ClassTraits<Zeph_NextHopIPRoute, Zeph_NextHopIPRouteInstanceManager> {
  using ImplManager = Zeph_NextHopIPRouteImplInstanceManager;
  static constexpr const char* kClass = Zeph_NextHopIPRouteName;
  static constexpr const char* kSource = "../src/Zeph_NextHopIPRouteProvider";
  static constexpr auto kCreate = &Manager::createZeph_NextHopIPRoute;
  static constexpr auto kDestroy = &Manager::destroyZeph_NextHopIPRoute;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_NextHopIPRouteTraits>;

class Zeph_NextHopIPRouteProvider : public ras::InstanceProvider<Zeph_NextHopIPRouteTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_NextHopIPRouteToCIMInstance(const OpenWBEM::String& ns,
                                        const Zeph_NextHopIPRoute& object,
                                        OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_NextHopIPRouteToCIMObjectPath(const Zeph_NextHopIPRoute& object,
                                          OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_NextHopIPRoute* getZeph_NextHopIPRouteWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_NextHopIPRoute* getZeph_NextHopIPRouteWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }

 protected:
  // A route is created from its DestinationAddress; the rest of the instance follows through
  // modifyInstance.
  Zeph_NextHopIPRoute* createFrom(const OpenWBEM::CIMInstance& newInstance) const override;
};

#endif
