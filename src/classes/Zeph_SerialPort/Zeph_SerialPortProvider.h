// Instance provider of Zeph_SerialPort: the provider template over the class's traits, with the
// class's named conversion and lookup helpers.
#ifndef ZEPH_SERIALPORTPROVIDER_H
#define ZEPH_SERIALPORTPROVIDER_H

#include "Zeph_InstanceProvider.h"
#include "Zeph_SerialPort.h"
#include "Zeph_SerialPortImpl.h"

struct Zeph_SerialPortTraits : ras::ClassTraits<Zeph_SerialPort, Zeph_SerialPortInstanceManager> {
  static constexpr const char* kClass = Zeph_SerialPortName;
  static constexpr const char* kSource = "../src/Zeph_SerialPortProvider";
  static constexpr auto kCreate = &Manager::createZeph_SerialPort;
  static constexpr auto kDestroy = &Manager::destroyZeph_SerialPort;
  using ImplManager = Zeph_SerialPortImplInstanceManager;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_SerialPortTraits>;

class Zeph_SerialPortProvider : public ras::InstanceProvider<Zeph_SerialPortTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_SerialPortToCIMInstance(const OpenWBEM::String& ns, const Zeph_SerialPort& object,
                                    OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_SerialPortToCIMObjectPath(const Zeph_SerialPort& object,
                                      OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_SerialPort* getZeph_SerialPortWithCIMObjectPath(const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_SerialPort* getZeph_SerialPortWithCIMInstance(const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
