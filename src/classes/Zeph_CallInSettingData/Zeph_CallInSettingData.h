// Wrapper of one Zeph_CallInSettingData instance: how incoming calls are answered (line, rings,
// auto-disable). The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_CALLINSETTINGDATA_H
#define ZEPH_CALLINSETTINGDATA_H

#include <string>

#include "Zeph_CallInSettingDataInstanceManager.h"
#include "Zeph_ClassModel.h"

// The CIM class name.
inline constexpr char Zeph_CallInSettingDataName[] = "Zeph_CallInSettingData";

class Zeph_CallInSettingData
    : public ras::InstanceIdKeyed<Zeph_CallInSettingData, Zeph_CallInSettingDataInstanceManager> {
 public:
  explicit Zeph_CallInSettingData(const std::string& instanceID) : InstanceIdKeyed(instanceID) {}

  virtual int getLineToAnswer(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setLineToAnswer(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getRingsBeforeAnswer(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setRingsBeforeAnswer(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getAutoDisableTimer(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setAutoDisableTimer(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getAutoDisableFlag(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setAutoDisableFlag(bool) { return ras::kStatusNotWritable; }
  virtual int getDNNumber(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
};

#endif
