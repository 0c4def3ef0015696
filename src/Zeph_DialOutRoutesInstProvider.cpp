// Property table of Zeph_DialOutRoutes and the named helpers of its provider.
#include "Zeph_DialOutRoutesInstProvider.h"

namespace {
using X = Zeph_DialOutRoutes;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_DialOutRoutesTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::referenceKey("Antecedent", &X::getAntecedentInstanceID, Zeph_DialOutSettingDataName),
      Row::referenceKey("Dependent", &X::getDependentInstanceID, Zeph_NextHopIPRouteName)};
  return table;
}

template class ras::InstanceProvider<Zeph_DialOutRoutesTraits>;

void Zeph_DialOutRoutesInstProvider::Zeph_DialOutRoutesToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_DialOutRoutesInstProvider::Zeph_DialOutRoutesToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_DialOutRoutesInstProvider::getZeph_DialOutRoutesWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_DialOutRoutesInstProvider::getZeph_DialOutRoutesWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
