// Instance provider of Zeph_CallInSettingData: the provider template over the class's traits, with
// the class's named conversion and lookup helpers.
#ifndef ZEPH_CALLINSETTINGDATAPROVIDER_H
#define ZEPH_CALLINSETTINGDATAPROVIDER_H

#include "Zeph_CallInSettingData.h"
#include "Zeph_CallInSettingDataImpl.h"
#include "Zeph_InstanceProvider.h"

struct Zeph_CallInSettingDataTraits
    : ras::ClassTraits<Zeph_CallInSettingData, Zeph_CallInSettingDataInstanceManager> {
  using ImplManager = Zeph_CallInSettingDataImplInstanceManager;
  static constexpr const char* kClass = Zeph_CallInSettingDataName;
  static constexpr const char* kSource = "../src/Zeph_CallInSettingDataProvider";
  static constexpr auto kCreate = &Manager::createZeph_CallInSettingData;
  static constexpr auto kDestroy = &Manager::destroyZeph_CallInSettingData;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_CallInSettingDataTraits>;

class Zeph_CallInSettingDataProvider : public ras::InstanceProvider<Zeph_CallInSettingDataTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_CallInSettingDataToCIMInstance(const OpenWBEM::String& ns,
                                           const Zeph_CallInSettingData& object,
                                           OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_CallInSettingDataToCIMObjectPath(const Zeph_CallInSettingData& object,
                                             OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_CallInSettingData* getZeph_CallInSettingDataWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_CallInSettingData* getZeph_CallInSettingDataWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
