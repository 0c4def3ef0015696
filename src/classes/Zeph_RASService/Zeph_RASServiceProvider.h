// Instance provider of Zeph_RASService: the provider template over the class's traits, with the
// class's named conversion and lookup helpers.
#ifndef ZEPH_RASSERVICEPROVIDER_H
#define ZEPH_RASSERVICEPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_RASService.h"
#include "Zeph_RASServiceImpl.h"

struct Zeph_RASServiceTraits : ras::ClassTraits<Zeph_RASService, Zeph_RASServiceInstanceManager> {
  static constexpr const char* kClass = Zeph_RASServiceName;
  static constexpr const char* kSource = "../src/Zeph_RASServiceProvider";
  static constexpr auto kCreate = &Manager::createZeph_RASService;
  static constexpr auto kDestroy = &Manager::destroyZeph_RASService;
  using ImplManager = Zeph_RASServiceImplInstanceManager;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_RASServiceTraits>;

class Zeph_RASServiceProvider : public ras::InstanceProvider<Zeph_RASServiceTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_RASServiceToCIMInstance(const OpenWBEM::String& ns, const Zeph_RASService& object,
                                    OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_RASServiceToCIMObjectPath(const Zeph_RASService& object,
                                      OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_RASService* getZeph_RASServiceWithCIMObjectPath(const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_RASService* getZeph_RASServiceWithCIMInstance(const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
