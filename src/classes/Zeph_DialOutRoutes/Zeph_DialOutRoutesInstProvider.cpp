// Property table of Zeph_DialOutRoutes (the properties in instance order, keys first in key order)
// and the creation of an association from its two references.
#include "Zeph_DialOutRoutesInstProvider.h"

#include "CFG_Exception.h"
#include "OW_CIMValue.hpp"
#include "Zeph_CimValues.h"
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

Zeph_DialOutRoutes* Zeph_DialOutRoutesInstProvider::createFrom(
    const OpenWBEM::CIMInstance& newInstance) const {
  std::string ids[2];
  const char* const ends[] = {"Antecedent", "Dependent"};
  for (int i = 0; i < 2; ++i) {
    const std::optional<std::string> id =
        ras::referencedInstanceID(newInstance.getPropertyValue(ends[i]));
    if (!id) {
      ras::throwProviderError({Zeph_DialOutRoutesTraits::kSource, 0},
                              OpenWBEM::CIMException::INVALID_PARAMETER,
                              "Invalid reference objectPath");
    }
    ids[i] = *id;
  }
  try {
    return X::getInstanceManager()->createZeph_DialOutRoutes(ids[0], ids[1]);
  } catch (const CFG_Exception&) {
    refuseCreate();
  }
}

template class ras::InstanceProvider<Zeph_DialOutRoutesTraits>;
