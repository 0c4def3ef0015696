// Property table of Zeph_RASIPProtocolEndpoint and the named helpers of its provider.
#include "Zeph_RASIPProtocolEndpointProvider.h"

namespace {
using X = Zeph_RASIPProtocolEndpoint;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_RASIPProtocolEndpointTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("SystemCreationClassName", &X::getSystemCreationClassName),
      Row::key("SystemName", &X::getSystemName),
      Row::key("CreationClassName", &X::getCreationClassName),
      Row::key("Name", &X::getName),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("IPv4Address", &X::getIPv4Address, &X::setIPv4Address, ras::maxLength(32)),
      Row::writable("SubnetMask", &X::getSubnetMask, &X::setSubnetMask, ras::maxLength(32)),
      Row::writable("addrAssignment", &X::getaddrAssignment, &X::setaddrAssignment),
      Row::readonly("Forwarding", &X::getForwarding),
      Row::datetime("DefaultTTL", &X::getDefaultTTL),
      Row::datetime("ReassemblyTimeout", &X::getReassemblyTimeout)};
  return table;
}

template class ras::InstanceProvider<Zeph_RASIPProtocolEndpointTraits>;

void Zeph_RASIPProtocolEndpointProvider::Zeph_RASIPProtocolEndpointToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_RASIPProtocolEndpointProvider::Zeph_RASIPProtocolEndpointToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_RASIPProtocolEndpointProvider::getZeph_RASIPProtocolEndpointWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_RASIPProtocolEndpointProvider::getZeph_RASIPProtocolEndpointWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
