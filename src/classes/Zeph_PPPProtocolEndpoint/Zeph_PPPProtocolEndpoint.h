// Wrapper of one Zeph_PPPProtocolEndpoint instance: the PPP options, authentication and link
// control of a dial link. The implementation overrides the accessors; these defaults report "not
// provided".
#ifndef ZEPH_PPPPROTOCOLENDPOINT_H
#define ZEPH_PPPPROTOCOLENDPOINT_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_PPPProtocolEndpointInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_PPPProtocolEndpointName[] = "Zeph_PPPProtocolEndpoint";

class Zeph_PPPProtocolEndpoint
    : public ras::SystemElementKeyed<Zeph_PPPProtocolEndpoint,
                                     Zeph_PPPProtocolEndpointInstanceManager> {
 public:
  using SystemElementKeyed::SystemElementKeyed;

  virtual int getName(std::string& value, ras::Qualifiers&) const { return identityKey(value); }

  virtual int getIfName(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int getIfStatus(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setIfStatus(bool) { return ras::kStatusNotWritable; }
  virtual int getConnectionStatus(unsigned char&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getConnectButton(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setConnectButton(bool) { return ras::kStatusNotWritable; }
  virtual int getDisconnectButton(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setDisconnectButton(bool) { return ras::kStatusNotWritable; }
  virtual int getIPHeaderComp(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setIPHeaderComp(bool) { return ras::kStatusNotWritable; }
  virtual int getSoftwareComp(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setSoftwareComp(bool) { return ras::kStatusNotWritable; }
  virtual int getIdleTimeout(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setIdleTimeout(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getMRU(unsigned short&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setMRU(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getMTU(unsigned short&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setMTU(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getPapStatus(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setPapStatus(bool) { return ras::kStatusNotWritable; }
  virtual int getchapStatus(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setchapStatus(bool) { return ras::kStatusNotWritable; }
  virtual int getMschapStatus(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setMschapStatus(bool) { return ras::kStatusNotWritable; }
  virtual int getMschapv2Status(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setMschapv2Status(bool) { return ras::kStatusNotWritable; }
  virtual int getauthLevel(unsigned char&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setauthLevel(unsigned char) { return ras::kStatusNotWritable; }
  virtual int getcsAuth(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setcsAuth(bool) { return ras::kStatusNotWritable; }
  virtual int getmaxConfigureNak(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setmaxConfigureNak(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getmaxConfigureRequest(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setmaxConfigureRequest(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getmaxTerminateReq(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setmaxTerminateReq(unsigned short) { return ras::kStatusNotWritable; }

  // The class's methods; their result is the method's return value.
  virtual int ConnectLink() { return ras::kStatusNotProvided; }
  virtual int DisconnectLink() { return ras::kStatusNotProvided; }
};

#endif
