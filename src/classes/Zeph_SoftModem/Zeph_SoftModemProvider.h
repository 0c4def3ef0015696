// Instance provider of Zeph_SoftModem: the provider template over the class's traits, with the
// class's named conversion and lookup helpers.
#ifndef ZEPH_SOFTMODEMPROVIDER_H
#define ZEPH_SOFTMODEMPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_SoftModem.h"
#include "Zeph_SoftModemImpl.h"

struct Zeph_SoftModemTraits : ras::ClassTraits<Zeph_SoftModem, Zeph_SoftModemInstanceManager> {
  static constexpr const char* kClass = Zeph_SoftModemName;
  static constexpr const char* kSource = "../src/Zeph_SoftModemProvider";
  static constexpr auto kCreate = &Manager::createZeph_SoftModem;
  static constexpr auto kDestroy = &Manager::destroyZeph_SoftModem;
  using ImplManager = Zeph_SoftModemImplInstanceManager;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_SoftModemTraits>;

class Zeph_SoftModemProvider : public ras::InstanceProvider<Zeph_SoftModemTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_SoftModemToCIMInstance(const OpenWBEM::String& ns, const Zeph_SoftModem& object,
                                   OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_SoftModemToCIMObjectPath(const Zeph_SoftModem& object,
                                     OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_SoftModem* getZeph_SoftModemWithCIMObjectPath(const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_SoftModem* getZeph_SoftModemWithCIMInstance(const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
