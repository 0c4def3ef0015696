// Instance provider of Zeph_RASIPProtocolEndpoint: the provider template over the class's traits,
// with the class's named conversion and lookup helpers.
#ifndef ZEPH_RASIPPROTOCOLENDPOINTPROVIDER_H
#define ZEPH_RASIPPROTOCOLENDPOINTPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_RASIPProtocolEndpoint.h"
#include "Zeph_RASIPProtocolEndpointImpl.h"

struct Zeph_RASIPProtocolEndpointTraits
    : ras::ClassTraits<Zeph_RASIPProtocolEndpoint, Zeph_RASIPProtocolEndpointInstanceManager> {
  static constexpr const char* kClass = Zeph_RASIPProtocolEndpointName;
  static constexpr const char* kSource = "../src/Zeph_RASIPProtocolEndpointProvider";
  static constexpr auto kCreate = &Manager::createZeph_RASIPProtocolEndpoint;
  static constexpr auto kDestroy = &Manager::destroyZeph_RASIPProtocolEndpoint;
  using ImplManager = Zeph_RASIPProtocolEndpointImplInstanceManager;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_RASIPProtocolEndpointTraits>;

class Zeph_RASIPProtocolEndpointProvider
    : public ras::InstanceProvider<Zeph_RASIPProtocolEndpointTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_RASIPProtocolEndpointToCIMInstance(const OpenWBEM::String& ns,
                                               const Zeph_RASIPProtocolEndpoint& object,
                                               OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_RASIPProtocolEndpointToCIMObjectPath(const Zeph_RASIPProtocolEndpoint& object,
                                                 OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_RASIPProtocolEndpoint* getZeph_RASIPProtocolEndpointWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_RASIPProtocolEndpoint* getZeph_RASIPProtocolEndpointWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
