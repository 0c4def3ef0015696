// Wrapper of one Zeph_NextHopIPRoute instance: one static route brought up with the dial-out link.
// The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_NEXTHOPIPROUTE_H
#define ZEPH_NEXTHOPIPROUTE_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_NextHopIPRouteInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_NextHopIPRouteName[] = "Zeph_NextHopIPRoute";

class Zeph_NextHopIPRoute
    : public ras::InstanceIdKeyed<Zeph_NextHopIPRoute, Zeph_NextHopIPRouteInstanceManager> {
 public:
  explicit Zeph_NextHopIPRoute(const std::string& instanceID) : InstanceIdKeyed(instanceID) {}

  // What setDestinationMask gives a mask it refuses; a creation checks the mask first.
  static constexpr int kStatusInvalidMask = 17;
  static int maskStatus(const std::string& mask);

  virtual int getDestinationAddress(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int getDestinationMask(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDestinationMask(std::string) { return ras::kStatusNotWritable; }
  virtual int getRouteMetric(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setRouteMetric(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getIfName(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
};

#endif
