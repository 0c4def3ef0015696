// The collection of Zeph_RASIPProtocolEndpoint objects; this abstract manager refuses to create or
// delete them.
#ifndef ZEPH_RASIPPROTOCOLENDPOINTINSTANCEMANAGER_H
#define ZEPH_RASIPPROTOCOLENDPOINTINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_RASIPProtocolEndpoint;

class Zeph_RASIPProtocolEndpointInstanceManager
    : public ras::InstanceManager<Zeph_RASIPProtocolEndpoint> {
 public:
  virtual Zeph_RASIPProtocolEndpoint* createZeph_RASIPProtocolEndpoint(
      const std::string& systemCreationClassName, const std::string& systemName,
      const std::string& creationClassName, const std::string& name) {
    return create({systemCreationClassName, systemName, creationClassName, name});
  }
  virtual void destroyZeph_RASIPProtocolEndpoint(Zeph_RASIPProtocolEndpoint* object) {
    destroy(object);
  }
};

#endif
