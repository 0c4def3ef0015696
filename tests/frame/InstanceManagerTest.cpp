// Instance managers: key order, the single cursor, duplicate keys, concatenated keys of
// four-key classes, and what the base and implementation managers do on create and destroy.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "CFG_Exception.h"
#include "Zeph_CallInSettingData.h"
#include "Zeph_RASService.h"

namespace {

class InstanceManagerTest : public ::testing::Test {
 protected:
  void SetUp() override { Zeph_CallInSettingData::SetInstanceManager(&manager_); }
  void TearDown() override { Zeph_CallInSettingData::ClearInstanceManager(); }

  std::vector<std::string> iteratedKeys() {
    std::vector<std::string> keys;
    ras::Qualifiers scratch;
    for (manager_.startIteration(); manager_.hasNext();) {
      std::string key;
      manager_.next()->getInstanceID(key, scratch);
      keys.push_back(key);
    }
    return keys;
  }

  Zeph_CallInSettingDataInstanceManager manager_;
};

TEST_F(InstanceManagerTest, IteratesInByteOrderOfKeysAndSurvivesRemovalUnderTheCursor) {
  Zeph_CallInSettingData b("b"), a("a");
  auto upper = std::make_unique<Zeph_CallInSettingData>("B");
  EXPECT_EQ(iteratedKeys(), (std::vector<std::string>{"B", "a", "b"}));
  EXPECT_FALSE(manager_.hasNext());
  EXPECT_THROW(manager_.next(), CFG_NoInstance);
  manager_.startIteration();
  manager_.endIteration();
  EXPECT_FALSE(manager_.hasNext());
  // Removing the entry under the cursor leaves the cursor on the next one.
  manager_.startIteration();
  upper.reset();
  ASSERT_TRUE(manager_.hasNext());
  EXPECT_EQ(manager_.next(), &a);
  EXPECT_EQ(manager_.next(), &b);
  EXPECT_FALSE(manager_.hasNext());
}

TEST_F(InstanceManagerTest, LookupFindsTheLastObjectOfAKeyAndThrowsForAbsentKeys) {
  Zeph_CallInSettingData present("Velmar:Zeph_CallInSettingData");
  EXPECT_EQ(manager_.get("Velmar:Zeph_CallInSettingData"), &present);
  for (const char* key : {"", "Velmar:Zeph_CallInSettingDat", "velmar:zeph_callinsettingdata"}) {
    EXPECT_THROW(manager_.get(key), CFG_NoInstance) << key;
  }
  // A duplicate key replaces the entry; destroying either object removes it.
  for (bool destroyFirst : {true, false}) {
    auto first = std::make_unique<Zeph_CallInSettingData>("same");
    auto second = std::make_unique<Zeph_CallInSettingData>("same");
    EXPECT_EQ(manager_.get("same"), second.get());
    (destroyFirst ? first : second).reset();
    EXPECT_THROW(manager_.get("same"), CFG_NoInstance) << "destroyFirst " << destroyFirst;
  }
}

TEST_F(InstanceManagerTest, OnlyTheImplementationManagerCreatesAndDestroys) {
  Zeph_CallInSettingData present("x");
  EXPECT_THROW(manager_.createZeph_CallInSettingData("y"), CFG_InstanceCreationFailed);
  EXPECT_THROW(manager_.destroyZeph_CallInSettingData(&present), CFG_InstanceDeletionFailed);
  EXPECT_EQ(manager_.get("x"), &present);

  ras::ImplInstanceManager<Zeph_CallInSettingDataInstanceManager, Zeph_CallInSettingData> impl;
  EXPECT_EQ(Zeph_CallInSettingData::SetInstanceManager(&impl), ras::kStatusOk);
  Zeph_CallInSettingData* created = impl.createZeph_CallInSettingData("new");
  EXPECT_EQ(impl.get("new"), created);
  impl.destroyZeph_CallInSettingData(created);
  EXPECT_THROW(impl.get("new"), CFG_NoInstance);
  impl.destroyZeph_CallInSettingData(nullptr);
  Zeph_CallInSettingData::SetInstanceManager(&manager_);
}

TEST(ClassModel, ObjectsEnterTheCurrentManagerAndFourKeysAreConcatenated) {
  Zeph_RASServiceInstanceManager manager;
  Zeph_RASService::SetInstanceManager(&manager);
  {
    Zeph_RASService service("Zeph_System", "Zeph", "Zeph_RASService", "RASService");
    EXPECT_EQ(manager.get("Zeph_SystemZephZeph_RASServiceRASService"), &service);
    EXPECT_THROW(manager.get("RASService"), CFG_NoInstance);
  }
  EXPECT_THROW(manager.get("Zeph_SystemZephZeph_RASServiceRASService"), CFG_NoInstance);
  Zeph_RASService::ClearInstanceManager();
  EXPECT_NE(Zeph_RASService::getInstanceManager(), &manager);
}

}  // namespace
