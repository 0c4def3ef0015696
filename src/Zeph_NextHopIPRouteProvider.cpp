// Property table of Zeph_NextHopIPRoute and the named helpers of its provider.
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
      Row::readonly("IfName", &X::getIfName)};
  return table;
}

template class ras::InstanceProvider<Zeph_NextHopIPRouteTraits>;

void Zeph_NextHopIPRouteProvider::Zeph_NextHopIPRouteToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_NextHopIPRouteProvider::Zeph_NextHopIPRouteToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_NextHopIPRouteProvider::getZeph_NextHopIPRouteWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_NextHopIPRouteProvider::getZeph_NextHopIPRouteWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
