// The associations of the dial-out settings with the dial-out routes: one per route, derived
// from the route table at load and kept in step by the route table afterwards.
#ifndef ZEPH_DIALOUTROUTESIMPL_H
#define ZEPH_DIALOUTROUTESIMPL_H

#include "Zeph_DialOutRoutes.h"
#include "Zeph_InstanceManager.h"

class Zeph_DialOutRoutesImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_DialOutRoutesInstanceManager, Zeph_DialOutRoutes> {
 public:
  int init() override;
};

#endif
