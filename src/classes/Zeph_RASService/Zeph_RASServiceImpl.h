// The RAS service switch: "ModemStatus" in the platform registry, with the dial-in and
// dial-out start scripts and running links kept in line with it.
#ifndef ZEPH_RASSERVICEIMPL_H
#define ZEPH_RASSERVICEIMPL_H

#include <string>

#include "Zeph_RASService.h"
#include "Zeph_RASServiceInstanceManager.h"

class Zeph_RASServiceImpl : public Zeph_RASService {
 public:
  using Zeph_RASService::Zeph_RASService;

  int getElementName(std::string& name, ras::Qualifiers& warnings) const override;

  // Reads the registry at every call; a disabled service has both directions stopped again.
  int getmodemStatus(bool& status, ras::Qualifiers& warnings) const override;

  // 0, or 100 when the registry write failed (the stops before it are not undone).
  int setmodemStatus(bool status) override;

 private:
  std::string elementName_;
  bool modemStatus_ = false;  // last value written successfully; gets read the registry
};

// Builds the one RAS service and follows outside changes of "ModemStatus" while it lives.
class Zeph_RASServiceImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_RASServiceInstanceManager, Zeph_RASServiceImpl> {
 public:
  int init() override;
  void destroyZeph_RASService(Zeph_RASService* object) override;
};

#endif
