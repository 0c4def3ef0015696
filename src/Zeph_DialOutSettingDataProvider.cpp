// Property table of Zeph_DialOutSettingData and the named helpers of its provider.
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
                    ras::maxLength(32))};
  return table;
}

template class ras::InstanceProvider<Zeph_DialOutSettingDataTraits>;

void Zeph_DialOutSettingDataProvider::Zeph_DialOutSettingDataToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_DialOutSettingDataProvider::Zeph_DialOutSettingDataToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_DialOutSettingDataProvider::getZeph_DialOutSettingDataWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_DialOutSettingDataProvider::getZeph_DialOutSettingDataWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
