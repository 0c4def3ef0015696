// Instance provider of Zeph_PPPProtocolEndpoint: the provider template over the class's traits,
// with the class's named conversion and lookup helpers.
#ifndef ZEPH_PPPPROTOCOLENDPOINTPROVIDER_H
#define ZEPH_PPPPROTOCOLENDPOINTPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_PPPProtocolEndpoint.h"
#include "Zeph_PPPProtocolEndpointImpl.h"

struct Zeph_PPPProtocolEndpointTraits
    : ras::ClassTraits<Zeph_PPPProtocolEndpoint, Zeph_PPPProtocolEndpointInstanceManager> {
  using ImplManager = Zeph_PPPProtocolEndpointImplInstanceManager;
  static constexpr const char* kClass = Zeph_PPPProtocolEndpointName;
  static constexpr const char* kSource = "../src/Zeph_PPPProtocolEndpointProvider";
  static constexpr auto kCreate = &Manager::createZeph_PPPProtocolEndpoint;
  static constexpr auto kDestroy = &Manager::destroyZeph_PPPProtocolEndpoint;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_PPPProtocolEndpointTraits>;

class Zeph_PPPProtocolEndpointProvider
    : public ras::InstanceProvider<Zeph_PPPProtocolEndpointTraits> {
 public:
  using InstanceProvider::modifyInstance;

  // ConnectLink and DisconnectLink of the endpoint the path names; any other method is
  // refused as the template refuses it.
  OpenWBEM::CIMValue invokeMethod(const EnvRef& env, const String& ns, const CIMObjectPath& path,
                                  const String& methodName, const OpenWBEM::CIMParamValueArray& in,
                                  OpenWBEM::CIMParamValueArray& out) override;

  void Zeph_PPPProtocolEndpointToCIMInstance(const OpenWBEM::String& ns,
                                             const Zeph_PPPProtocolEndpoint& object,
                                             OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_PPPProtocolEndpointToCIMObjectPath(const Zeph_PPPProtocolEndpoint& object,
                                               OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_PPPProtocolEndpoint* getZeph_PPPProtocolEndpointWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_PPPProtocolEndpoint* getZeph_PPPProtocolEndpointWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
