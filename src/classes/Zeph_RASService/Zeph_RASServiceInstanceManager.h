// The collection of Zeph_RASService objects; this abstract manager refuses to create or delete
// them.
#ifndef ZEPH_RASSERVICEINSTANCEMANAGER_H
#define ZEPH_RASSERVICEINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_RASService;

class Zeph_RASServiceInstanceManager : public ras::InstanceManager<Zeph_RASService> {
 public:
  virtual Zeph_RASService* createZeph_RASService(const std::string& systemCreationClassName,
                                                 const std::string& systemName,
                                                 const std::string& creationClassName,
                                                 const std::string& name) {
    return create({systemCreationClassName, systemName, creationClassName, name});
  }
  virtual void destroyZeph_RASService(Zeph_RASService* object) { destroy(object); }
};

#endif
