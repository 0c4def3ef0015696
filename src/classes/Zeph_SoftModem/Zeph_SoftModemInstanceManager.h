// The collection of Zeph_SoftModem objects; this abstract manager refuses to create or delete them.
#ifndef ZEPH_SOFTMODEMINSTANCEMANAGER_H
#define ZEPH_SOFTMODEMINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_SoftModem;

class Zeph_SoftModemInstanceManager : public ras::InstanceManager<Zeph_SoftModem> {
 public:
  virtual Zeph_SoftModem* createZeph_SoftModem(const std::string& systemCreationClassName,
                                               const std::string& systemName,
                                               const std::string& creationClassName,
                                               const std::string& deviceID) {
    return create({systemCreationClassName, systemName, creationClassName, deviceID});
  }
  virtual void destroyZeph_SoftModem(Zeph_SoftModem* object) { destroy(object); }
};

#endif
