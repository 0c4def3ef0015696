// The collection of Zeph_PPPProtocolEndpoint objects; this abstract manager refuses to create or
// delete them.
#ifndef ZEPH_PPPPROTOCOLENDPOINTINSTANCEMANAGER_H
#define ZEPH_PPPPROTOCOLENDPOINTINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_PPPProtocolEndpoint;

class Zeph_PPPProtocolEndpointInstanceManager
    : public ras::InstanceManager<Zeph_PPPProtocolEndpoint> {
 public:
  virtual Zeph_PPPProtocolEndpoint* createZeph_PPPProtocolEndpoint(
      const std::string& systemCreationClassName, const std::string& systemName,
      const std::string& creationClassName, const std::string& name) {
    return create({systemCreationClassName, systemName, creationClassName, name});
  }
  virtual void destroyZeph_PPPProtocolEndpoint(Zeph_PPPProtocolEndpoint* object) {
    destroy(object);
  }
};

#endif
