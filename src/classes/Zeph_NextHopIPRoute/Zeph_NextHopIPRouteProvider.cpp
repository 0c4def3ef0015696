// Property table of Zeph_NextHopIPRoute: the properties in instance order, keys first in key order.
#include "Zeph_NextHopIPRouteProvider.h"

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
                    ras::maxLength(32)),
      Row::writable("RouteMetric", &X::getRouteMetric, &X::setRouteMetric),
      Row::readonly("IfName", &X::getIfName),
  };
  return table;
}

template class ras::InstanceProvider<Zeph_NextHopIPRouteTraits>;
