// Instance provider of Zeph_DialOutRoutes: the provider template over the class's traits, with the
// class's named conversion and lookup helpers.
#ifndef ZEPH_DIALOUTROUTESINSTPROVIDER_H
#define ZEPH_DIALOUTROUTESINSTPROVIDER_H

#include "Zeph_DialOutRoutes.h"
#include "Zeph_DialOutRoutesImpl.h"
#include "Zeph_InstanceProvider.h"

struct Zeph_DialOutRoutesTraits
    : ras::ClassTraits<Zeph_DialOutRoutes, Zeph_DialOutRoutesInstanceManager> {
  using ImplManager = Zeph_DialOutRoutesImplInstanceManager;
  static constexpr const char* kClass = Zeph_DialOutRoutesName;
  static constexpr const char* kSource = "../src/Zeph_DialOutRoutesInstProvider";
  static constexpr auto kCreate = &Manager::createZeph_DialOutRoutes;
  static constexpr auto kDestroy = &Manager::destroyZeph_DialOutRoutes;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_DialOutRoutesTraits>;

class Zeph_DialOutRoutesInstProvider : public ras::InstanceProvider<Zeph_DialOutRoutesTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_DialOutRoutesToCIMInstance(const OpenWBEM::String& ns, const Zeph_DialOutRoutes& object,
                                       OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_DialOutRoutesToCIMObjectPath(const Zeph_DialOutRoutes& object,
                                         OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_DialOutRoutes* getZeph_DialOutRoutesWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_DialOutRoutes* getZeph_DialOutRoutesWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }

 protected:
  // Both references must name their object by InstanceID.
  Zeph_DialOutRoutes* createFrom(const OpenWBEM::CIMInstance& newInstance) const override;
};

#endif
