// Instance managers: key order, the single cursor, duplicate keys, which managers create and
// destroy, and the concatenated keys of four-key classes.
#include <gtest/gtest.h>

#include "CFG_Exception.h"
#include "Zeph_CallInSettingData.h"
#include "Zeph_RASService.h"

namespace {

using Names = std::vector<std::string>;

// Keys in byte order under a single cursor that survives removal of its entry; the last object
// of a key wins and destroying either removes it; only the implementation manager creates and
// destroys; four keys are concatenated.
TEST(InstanceManager, KeysCursorDuplicatesAndCreation) {
  Zeph_CallInSettingDataInstanceManager manager;
  Zeph_CallInSettingData::SetInstanceManager(&manager);
  Zeph_CallInSettingData b("b"), a("a");
  auto upper = std::make_unique<Zeph_CallInSettingData>("B");
  Names keys;
  ras::Qualifiers scratch;
  for (manager.startIteration(); manager.hasNext();) {
    manager.next()->getInstanceID(keys.emplace_back(), scratch);
  }
  EXPECT_EQ(keys, (Names{"B", "a", "b"}));
  EXPECT_THROW(manager.next(), CFG_NoInstance);
  manager.startIteration();
  manager.endIteration();
  EXPECT_FALSE(manager.hasNext());
  manager.startIteration();
  upper.reset();
  EXPECT_EQ(manager.next(), &a);
  EXPECT_EQ(manager.next(), &b);
  EXPECT_FALSE(manager.hasNext());
  for (const char* absent : {"", "B", "A", "bb"}) EXPECT_THROW(manager.get(absent), CFG_NoInstance);
  for (bool destroyFirst : {true, false}) {
    auto first = std::make_unique<Zeph_CallInSettingData>("same");
    auto second = std::make_unique<Zeph_CallInSettingData>("same");
    EXPECT_EQ(manager.get("same"), second.get());
    (destroyFirst ? first : second).reset();
    EXPECT_THROW(manager.get("same"), CFG_NoInstance) << destroyFirst;
  }
  EXPECT_THROW(manager.createZeph_CallInSettingData("y"), CFG_InstanceCreationFailed);
  EXPECT_THROW(manager.destroyZeph_CallInSettingData(&a), CFG_InstanceDeletionFailed);
  EXPECT_EQ(manager.get("a"), &a);
  ras::ImplInstanceManager<Zeph_CallInSettingDataInstanceManager, Zeph_CallInSettingData> impl;
  Zeph_CallInSettingData::SetInstanceManager(&impl);
  impl.destroyZeph_CallInSettingData(impl.createZeph_CallInSettingData("new"));
  EXPECT_THROW(impl.get("new"), CFG_NoInstance);
  impl.destroyZeph_CallInSettingData(nullptr);
  Zeph_CallInSettingData::SetInstanceManager(&manager);
  Zeph_CallInSettingData::ClearInstanceManager();

  ras::ImplInstanceManager<Zeph_RASServiceInstanceManager, Zeph_RASService> services;
  Zeph_RASService::SetInstanceManager(&services);
  for (int i = 0; i < 2; ++i) {  // a second create under the key frees the first object
    Zeph_RASService* service =
        services.createZeph_RASService("Zeph_System", "Zeph", "Zeph_RASService", "RASService");
    EXPECT_EQ(services.get("Zeph_SystemZephZeph_RASServiceRASService"), service);
  }
  services.destroyZeph_RASService(services.get("Zeph_SystemZephZeph_RASServiceRASService"));
  EXPECT_THROW(services.get("Zeph_SystemZephZeph_RASServiceRASService"), CFG_NoInstance);
  Zeph_RASService::ClearInstanceManager();
  EXPECT_NE(Zeph_RASService::getInstanceManager(), &services);
}

}  // namespace
