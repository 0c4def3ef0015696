// Wrapper of one Zeph_RASIPProtocolEndpoint instance: the appliance's own IP address on a dial
// link. The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_RASIPPROTOCOLENDPOINT_H
#define ZEPH_RASIPPROTOCOLENDPOINT_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_RASIPProtocolEndpointInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_RASIPProtocolEndpointName[] = "Zeph_RASIPProtocolEndpoint";

class Zeph_RASIPProtocolEndpoint
    : public ras::SystemElementKeyed<Zeph_RASIPProtocolEndpoint,
                                     Zeph_RASIPProtocolEndpointInstanceManager> {
 public:
  using SystemElementKeyed::SystemElementKeyed;

  virtual int getName(std::string& value, ras::Qualifiers&) const { return identityKey(value); }

  virtual int getIPv4Address(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setIPv4Address(std::string) { return ras::kStatusNotWritable; }
  virtual int getSubnetMask(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setSubnetMask(std::string) { return ras::kStatusNotWritable; }
  virtual int getaddrAssignment(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setaddrAssignment(bool) { return ras::kStatusNotWritable; }
  virtual int getForwarding(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int getDefaultTTL(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getReassemblyTimeout(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
};

#endif
