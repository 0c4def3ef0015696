// The collection of Zeph_DialOutRoutes objects; this abstract manager refuses to create or delete
// them.
#ifndef ZEPH_DIALOUTROUTESINSTANCEMANAGER_H
#define ZEPH_DIALOUTROUTESINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_DialOutRoutes;

class Zeph_DialOutRoutesInstanceManager : public ras::InstanceManager<Zeph_DialOutRoutes> {
 public:
  virtual Zeph_DialOutRoutes* createZeph_DialOutRoutes(const std::string& antecedentInstanceID,
                                                       const std::string& dependentInstanceID) {
    return create({antecedentInstanceID, dependentInstanceID});
  }
  virtual void destroyZeph_DialOutRoutes(Zeph_DialOutRoutes* object) { destroy(object); }
};

#endif
