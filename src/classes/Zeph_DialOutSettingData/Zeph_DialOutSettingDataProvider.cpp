// Property table of Zeph_DialOutSettingData: the properties in instance order, keys first in key
// order.
#include "Zeph_DialOutSettingDataProvider.h"

namespace {
using X = Zeph_DialOutSettingData;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_DialOutSettingDataTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("InstanceID", &X::getInstanceID),
      Row::readonly("ElementName", &X::getElementName),
      Row::writable("DialOutNumber", &X::getDialOutNumber, &X::setDialOutNumber,
                    ras::maxLength(32)),
      Row::writable("DialRetries", &X::getDialRetries, &X::setDialRetries),
      Row::writable("DialInterval", &X::getDialInterval, &X::setDialInterval),
      Row::writable("DialOutUserName", &X::getDialOutUserName, &X::setDialOutUserName,
                    ras::maxLength(32)),
      Row::writable("DialOutPassword", &X::getDialOutPassword, &X::setDialOutPassword,
                    ras::maxLength(32)),
  };
  return table;
}

template class ras::InstanceProvider<Zeph_DialOutSettingDataTraits>;
