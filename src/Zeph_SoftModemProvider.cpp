// Property table of Zeph_SoftModem and the named helpers of its provider.
#include "Zeph_SoftModemProvider.h"

namespace {
using X = Zeph_SoftModem;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_SoftModemTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("SystemCreationClassName", &X::getSystemCreationClassName),
      Row::key("SystemName", &X::getSystemName),
      Row::key("CreationClassName", &X::getCreationClassName),
      Row::key("DeviceID", &X::getDeviceID),
      Row::readonly("Name", &X::getName),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("ErrorControl", &X::getErrorControl, &X::setErrorControl),
      Row::writable("CallSpeed", &X::getCallSpeed, &X::setCallSpeed),
      Row::writable("Compression", &X::getCompression, &X::setCompression)};
  return table;
}

template class ras::InstanceProvider<Zeph_SoftModemTraits>;

void Zeph_SoftModemProvider::Zeph_SoftModemToCIMInstance(const OpenWBEM::String& ns,
                                                         const X& object,
                                                         OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_SoftModemProvider::Zeph_SoftModemToCIMObjectPath(const X& object,
                                                           OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_SoftModemProvider::getZeph_SoftModemWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_SoftModemProvider::getZeph_SoftModemWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
