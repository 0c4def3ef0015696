// The collection of Zeph_RASStaticIPAddressPool objects; this abstract manager refuses to create or
// delete them.
#ifndef ZEPH_RASSTATICIPADDRESSPOOLINSTANCEMANAGER_H
#define ZEPH_RASSTATICIPADDRESSPOOLINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_RASStaticIPAddressPool;

class Zeph_RASStaticIPAddressPoolInstanceManager
    : public ras::InstanceManager<Zeph_RASStaticIPAddressPool> {
 public:
  virtual Zeph_RASStaticIPAddressPool* createZeph_RASStaticIPAddressPool(
      const std::string& instanceID) {
    return create({instanceID});
  }
  virtual void destroyZeph_RASStaticIPAddressPool(Zeph_RASStaticIPAddressPool* object) {
    destroy(object);
  }
};

#endif
