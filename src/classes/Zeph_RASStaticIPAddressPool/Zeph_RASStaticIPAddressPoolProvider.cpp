// Property table of Zeph_RASStaticIPAddressPool: the properties in instance order, keys first in
// key order.
#include "Zeph_RASStaticIPAddressPoolProvider.h"

namespace {
using X = Zeph_RASStaticIPAddressPool;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_RASStaticIPAddressPoolTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("InstanceID", &X::getInstanceID),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("ipAddr", &X::getipAddr, &X::setipAddr, ras::maxLength(32)),
      Row::readonly("netMask", &X::getnetMask),
      Row::writable("useStaticPool", &X::getuseStaticPool, &X::setuseStaticPool),
      Row::readonly("Caption", &X::getCaption),
      Row::readonly("Description", &X::getDescription),
      Row::readonly("StartAddress", &X::getStartAddress),
      Row::readonly("EndAddress", &X::getEndAddress),
      Row::readonly("AddressType", &X::getAddressType),
  };
  return table;
}

template class ras::InstanceProvider<Zeph_RASStaticIPAddressPoolTraits>;
