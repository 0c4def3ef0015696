// Instance provider of Zeph_RASStaticIPAddressPool: the provider template over the class's traits,
// with the class's named conversion and lookup helpers.
#ifndef ZEPH_RASSTATICIPADDRESSPOOLPROVIDER_H
#define ZEPH_RASSTATICIPADDRESSPOOLPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_RASStaticIPAddressPool.h"
#include "Zeph_RASStaticIPAddressPoolImpl.h"

struct Zeph_RASStaticIPAddressPoolTraits
    : ras::ClassTraits<Zeph_RASStaticIPAddressPool, Zeph_RASStaticIPAddressPoolInstanceManager> {
  static constexpr const char* kClass = Zeph_RASStaticIPAddressPoolName;
  static constexpr const char* kSource = "../src/Zeph_RASStaticIPAddressPoolProvider";
  static constexpr auto kCreate = &Manager::createZeph_RASStaticIPAddressPool;
  static constexpr auto kDestroy = &Manager::destroyZeph_RASStaticIPAddressPool;
  using ImplManager = Zeph_RASStaticIPAddressPoolImplInstanceManager;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_RASStaticIPAddressPoolTraits>;

class Zeph_RASStaticIPAddressPoolProvider
    : public ras::InstanceProvider<Zeph_RASStaticIPAddressPoolTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_RASStaticIPAddressPoolToCIMInstance(const OpenWBEM::String& ns,
                                                const Zeph_RASStaticIPAddressPool& object,
                                                OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_RASStaticIPAddressPoolToCIMObjectPath(const Zeph_RASStaticIPAddressPool& object,
                                                  OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_RASStaticIPAddressPool* getZeph_RASStaticIPAddressPoolWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_RASStaticIPAddressPool* getZeph_RASStaticIPAddressPoolWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
