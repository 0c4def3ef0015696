// Wrapper of one Zeph_RASStaticIPAddressPool instance: the address handed to the far end of a dial
// link. The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_RASSTATICIPADDRESSPOOL_H
#define ZEPH_RASSTATICIPADDRESSPOOL_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_RASStaticIPAddressPoolInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_RASStaticIPAddressPoolName[] = "Zeph_RASStaticIPAddressPool";

class Zeph_RASStaticIPAddressPool
    : public ras::InstanceIdKeyed<Zeph_RASStaticIPAddressPool,
                                  Zeph_RASStaticIPAddressPoolInstanceManager> {
 public:
  explicit Zeph_RASStaticIPAddressPool(const std::string& instanceID)
      : InstanceIdKeyed(instanceID) {}

  virtual int getipAddr(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setipAddr(std::string) { return ras::kStatusNotWritable; }
  virtual int getnetMask(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int getuseStaticPool(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setuseStaticPool(bool) { return ras::kStatusNotWritable; }
  virtual int getCaption(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int getDescription(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getStartAddress(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getEndAddress(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getAddressType(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
};

#endif
