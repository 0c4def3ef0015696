// Property table of Zeph_NextHopIPRoute (the properties in instance order, keys first in key order)
// and the creation of a route from its destination address.
#include "Zeph_NextHopIPRouteProvider.h"

#include "CFG_Exception.h"
#include "OW_CIMValue.hpp"

namespace {
using X = Zeph_NextHopIPRoute;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_NextHopIPRouteTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("InstanceID", &X::getInstanceID),
      Row::readonly("ElementName", &X::getElementName),
      Row::readonly("DestinationAddress", &X::getDestinationAddress),
      Row::writable("DestinationMask", &X::getDestinationMask, &X::setDestinationMask,
                    ras::maxLength(32, &X::maskStatus)),
      Row::writable("RouteMetric", &X::getRouteMetric, &X::setRouteMetric),
      Row::readonly("IfName", &X::getIfName),
  };
  return table;
}

Zeph_NextHopIPRoute* Zeph_NextHopIPRouteProvider::createFrom(
    const OpenWBEM::CIMInstance& newInstance) const {
  const OpenWBEM::CIMValue value = newInstance.getPropertyValue("DestinationAddress");
  const std::string destination = value ? value.toString().c_str() : "";
  try {
    return X::getInstanceManager()->createZeph_NextHopIPRoute(destination);
  } catch (const CFG_Exception&) {
    refuseCreate();
  }
}

template class ras::InstanceProvider<Zeph_NextHopIPRouteTraits>;
