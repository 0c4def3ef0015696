// Property table of Zeph_SerialPort and the named helpers of its provider.
#include "Zeph_SerialPortProvider.h"

namespace {
using X = Zeph_SerialPort;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_SerialPortTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("SystemCreationClassName", &X::getSystemCreationClassName),
      Row::key("SystemName", &X::getSystemName),
      Row::key("CreationClassName", &X::getCreationClassName),
      Row::key("DeviceId", &X::getDeviceId),
      Row::writable("Name", &X::getName, &X::setName, ras::maxLength(32)),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("FlowControl", &X::getFlowControl, &X::setFlowControl)};
  return table;
}

template class ras::InstanceProvider<Zeph_SerialPortTraits>;

void Zeph_SerialPortProvider::Zeph_SerialPortToCIMInstance(const OpenWBEM::String& ns,
                                                           const X& object,
                                                           OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_SerialPortProvider::Zeph_SerialPortToCIMObjectPath(const X& object,
                                                             OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_SerialPortProvider::getZeph_SerialPortWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_SerialPortProvider::getZeph_SerialPortWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
