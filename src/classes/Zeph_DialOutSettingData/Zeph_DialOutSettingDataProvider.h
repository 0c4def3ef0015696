// Instance provider of Zeph_DialOutSettingData: the provider template over the class's traits, with
// the class's named conversion and lookup helpers.
#ifndef ZEPH_DIALOUTSETTINGDATAPROVIDER_H
#define ZEPH_DIALOUTSETTINGDATAPROVIDER_H

#include "Zeph_DialOutSettingData.h"
#include "Zeph_DialOutSettingDataImpl.h"
#include "Zeph_InstanceProvider.h"

struct Zeph_DialOutSettingDataTraits
    : ras::ClassTraits<Zeph_DialOutSettingData, Zeph_DialOutSettingDataInstanceManager> {
  using ImplManager = Zeph_DialOutSettingDataImplInstanceManager;
  static constexpr const char* kClass = Zeph_DialOutSettingDataName;
  static constexpr const char* kSource = "../src/Zeph_DialOutSettingDataProvider";
  static constexpr auto kCreate = &Manager::createZeph_DialOutSettingData;
  static constexpr auto kDestroy = &Manager::destroyZeph_DialOutSettingData;
  static const ras::PropertyTable<Wrapper>& properties();
};

extern template class ras::InstanceProvider<Zeph_DialOutSettingDataTraits>;

class Zeph_DialOutSettingDataProvider
    : public ras::InstanceProvider<Zeph_DialOutSettingDataTraits> {
 public:
  using InstanceProvider::modifyInstance;

  void Zeph_DialOutSettingDataToCIMInstance(const OpenWBEM::String& ns,
                                            const Zeph_DialOutSettingData& object,
                                            OpenWBEM::CIMInstance& instance) const {
    toInstance(ns, object, instance);
  }
  void Zeph_DialOutSettingDataToCIMObjectPath(const Zeph_DialOutSettingData& object,
                                              OpenWBEM::CIMObjectPath& path) const {
    toObjectPath(object, path);
  }
  Zeph_DialOutSettingData* getZeph_DialOutSettingDataWithCIMObjectPath(
      const OpenWBEM::CIMObjectPath& path) const {
    return lookup(path);
  }
  Zeph_DialOutSettingData* getZeph_DialOutSettingDataWithCIMInstance(
      const OpenWBEM::CIMInstance& instance) const {
    return lookup(instance);
  }
};

#endif
