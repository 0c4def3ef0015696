// Wrapper of one Zeph_RASService instance: the on/off switch of the remote-access service.
// The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_RASSERVICE_H
#define ZEPH_RASSERVICE_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_RASServiceInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_RASServiceName[] = "Zeph_RASService";

class Zeph_RASService
    : public ras::SystemElementKeyed<Zeph_RASService, Zeph_RASServiceInstanceManager> {
 public:
  using SystemElementKeyed::SystemElementKeyed;

  virtual int getName(std::string& value, ras::Qualifiers&) const { return identityKey(value); }

  virtual int getmodemStatus(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setmodemStatus(bool) { return ras::kStatusNotWritable; }
};

#endif
