// The current instance manager of each of the ten classes, in canonical class order.
#ifndef FRAME_MODULEMANAGERS_H
#define FRAME_MODULEMANAGERS_H

#include <vector>

#include "Zeph_CallInSettingData.h"
#include "Zeph_DialOutRoutes.h"
#include "Zeph_DialOutSettingData.h"
#include "Zeph_NextHopIPRoute.h"
#include "Zeph_PPPProtocolEndpoint.h"
#include "Zeph_RASIPProtocolEndpoint.h"
#include "Zeph_RASService.h"
#include "Zeph_RASStaticIPAddressPool.h"
#include "Zeph_SerialPort.h"
#include "Zeph_SoftModem.h"

template <class... W>
std::vector<const void*> managersOf() {
  return {static_cast<const void*>(W::getInstanceManager())...};
}

inline std::vector<const void*> currentManagers() {
  return managersOf<Zeph_CallInSettingData, Zeph_DialOutSettingData, Zeph_RASService,
                    Zeph_RASStaticIPAddressPool, Zeph_NextHopIPRoute, Zeph_RASIPProtocolEndpoint,
                    Zeph_PPPProtocolEndpoint, Zeph_SoftModem, Zeph_SerialPort,
                    Zeph_DialOutRoutes>();
}

#endif
