// The appliance's own IP address on each dial link: the local part of the link's pppd address
// line, or none when the address is left to negotiation.
#ifndef ZEPH_RASIPPROTOCOLENDPOINTIMPL_H
#define ZEPH_RASIPPROTOCOLENDPOINTIMPL_H

#include <string>

#include "Zeph_RASIPProtocolEndpoint.h"

class Zeph_RASIPProtocolEndpointImpl : public Zeph_RASIPProtocolEndpoint {
 public:
  Zeph_RASIPProtocolEndpointImpl(const std::string& systemCreationClassName,
                                 const std::string& systemName,
                                 const std::string& creationClassName, const std::string& name);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  // "Write" is false while the address is assigned by negotiation.
  int getIPv4Address(std::string& value, ras::Qualifiers& qualifiers) const override;
  // An empty or malformed address is dropped silently; every setter reports success.
  int setIPv4Address(std::string value) override;
  int getSubnetMask(std::string& value, ras::Qualifiers&) const override;
  // Kept in memory only.
  int setSubnetMask(std::string value) override;
  int getaddrAssignment(bool& value, ras::Qualifiers&) const override;
  int setaddrAssignment(bool value) override;
  int getForwarding(bool& value, ras::Qualifiers&) const override;
  // Both intervals always read one second.
  int getDefaultTTL(std::string& value, ras::Qualifiers&) const override;
  int getReassemblyTimeout(std::string& value, ras::Qualifiers&) const override;

 private:
  bool dialIn() const;
  const char* optionsFile() const;

  std::string elementName_;
  std::string ipv4Address_;
  std::string subnetMask_;
  bool addrAssignment_ = false;
  bool forwarding_ = false;
  std::string defaultTTL_;
  std::string reassemblyTimeout_;
};

// Builds the dial-in and the dial-out endpoint; clients can neither create nor delete one.
class Zeph_RASIPProtocolEndpointImplInstanceManager
    : public Zeph_RASIPProtocolEndpointInstanceManager {
 public:
  int init() override;
};

#endif
