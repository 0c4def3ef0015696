// Property table of Zeph_RASIPProtocolEndpoint: the properties in instance order, keys first in key
// order.
#include "Zeph_RASIPProtocolEndpointProvider.h"

namespace {
using X = Zeph_RASIPProtocolEndpoint;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_RASIPProtocolEndpointTraits::properties() {
  static const ras::PropertyTable<X> table = Row::joined(
      Row::systemElementKeys("Name", &X::getName),
      {
          Row::readonly("ElementName", &X::getElementName),
          Row::writable("IPv4Address", &X::getIPv4Address, &X::setIPv4Address, ras::maxLength(32)),
          Row::writable("SubnetMask", &X::getSubnetMask, &X::setSubnetMask, ras::maxLength(32)),
          Row::writable("addrAssignment", &X::getaddrAssignment, &X::setaddrAssignment),
          Row::readonly("Forwarding", &X::getForwarding),
          Row::datetime("DefaultTTL", &X::getDefaultTTL),
          Row::datetime("ReassemblyTimeout", &X::getReassemblyTimeout),
      });
  return table;
}

template class ras::InstanceProvider<Zeph_RASIPProtocolEndpointTraits>;
