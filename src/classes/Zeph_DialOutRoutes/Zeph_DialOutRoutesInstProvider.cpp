// Property table of Zeph_DialOutRoutes: the properties in instance order, keys first in key order.
#include "Zeph_DialOutRoutesInstProvider.h"

#include "Zeph_DialOutSettingData.h"
#include "Zeph_NextHopIPRoute.h"

namespace {
using X = Zeph_DialOutRoutes;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_DialOutRoutesTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::referenceKey("Antecedent", &X::getAntecedentInstanceID, Zeph_DialOutSettingDataName),
      Row::referenceKey("Dependent", &X::getDependentInstanceID, Zeph_NextHopIPRouteName),
  };
  return table;
}

template class ras::InstanceProvider<Zeph_DialOutRoutesTraits>;
