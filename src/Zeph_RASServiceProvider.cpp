// Property table of Zeph_RASService and the named helpers of its provider.
#include "Zeph_RASServiceProvider.h"

namespace {
using X = Zeph_RASService;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_RASServiceTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("SystemCreationClassName", &X::getSystemCreationClassName),
      Row::key("SystemName", &X::getSystemName),
      Row::key("CreationClassName", &X::getCreationClassName),
      Row::key("Name", &X::getName),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("modemStatus", &X::getmodemStatus, &X::setmodemStatus)};
  return table;
}

template class ras::InstanceProvider<Zeph_RASServiceTraits>;

void Zeph_RASServiceProvider::Zeph_RASServiceToCIMInstance(const OpenWBEM::String& ns,
                                                           const X& object,
                                                           OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_RASServiceProvider::Zeph_RASServiceToCIMObjectPath(const X& object,
                                                             OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_RASServiceProvider::getZeph_RASServiceWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_RASServiceProvider::getZeph_RASServiceWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
