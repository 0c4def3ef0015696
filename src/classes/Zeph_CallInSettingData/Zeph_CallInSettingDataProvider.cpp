// Property table of Zeph_CallInSettingData: the properties in instance order, keys first in key
// order.
#include "Zeph_CallInSettingDataProvider.h"

namespace {
using X = Zeph_CallInSettingData;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_CallInSettingDataTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("InstanceID", &X::getInstanceID),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("LineToAnswer", &X::getLineToAnswer, &X::setLineToAnswer),
      Row::writable("RingsBeforeAnswer", &X::getRingsBeforeAnswer, &X::setRingsBeforeAnswer,
                    ras::range(1, 20)),
      Row::writable("AutoDisableTimer", &X::getAutoDisableTimer, &X::setAutoDisableTimer),
      Row::writable("AutoDisableFlag", &X::getAutoDisableFlag, &X::setAutoDisableFlag),
      Row::readonly("DNNumber", &X::getDNNumber),
  };
  return table;
}

template class ras::InstanceProvider<Zeph_CallInSettingDataTraits>;
