// The collection of Zeph_CallInSettingData objects; this abstract manager refuses to create or
// delete them.
#ifndef ZEPH_CALLINSETTINGDATAINSTANCEMANAGER_H
#define ZEPH_CALLINSETTINGDATAINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_CallInSettingData;

class Zeph_CallInSettingDataInstanceManager : public ras::InstanceManager<Zeph_CallInSettingData> {
 public:
  virtual Zeph_CallInSettingData* createZeph_CallInSettingData(const std::string& instanceID) {
    return create({instanceID});
  }
  virtual void destroyZeph_CallInSettingData(Zeph_CallInSettingData* object) { destroy(object); }
};

#endif
