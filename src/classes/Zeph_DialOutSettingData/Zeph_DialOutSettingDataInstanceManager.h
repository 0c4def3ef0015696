// The collection of Zeph_DialOutSettingData objects; this abstract manager refuses to create or
// delete them.
#ifndef ZEPH_DIALOUTSETTINGDATAINSTANCEMANAGER_H
#define ZEPH_DIALOUTSETTINGDATAINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_DialOutSettingData;

class Zeph_DialOutSettingDataInstanceManager
    : public ras::InstanceManager<Zeph_DialOutSettingData> {
 public:
  virtual Zeph_DialOutSettingData* createZeph_DialOutSettingData(const std::string& instanceID) {
    return create({instanceID});
  }
  virtual void destroyZeph_DialOutSettingData(Zeph_DialOutSettingData* object) { destroy(object); }
};

#endif
