// Property table of Zeph_CallInSettingData and the named helpers of its provider.
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
      Row::readonly("DNNumber", &X::getDNNumber)};
  return table;
}

template class ras::InstanceProvider<Zeph_CallInSettingDataTraits>;

void Zeph_CallInSettingDataProvider::Zeph_CallInSettingDataToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_CallInSettingDataProvider::Zeph_CallInSettingDataToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_CallInSettingDataProvider::getZeph_CallInSettingDataWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_CallInSettingDataProvider::getZeph_CallInSettingDataWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
