// Wrapper of one Zeph_DialOutSettingData instance: what an outgoing PPP call dials and logs in
// with. The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_DIALOUTSETTINGDATA_H
#define ZEPH_DIALOUTSETTINGDATA_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_DialOutSettingDataInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_DialOutSettingDataName[] = "Zeph_DialOutSettingData";
// InstanceID of the one dial-out settings instance, the antecedent of every route.
inline constexpr char Zeph_DialOutSettingDataInstanceID[] = "Velmar:Zeph_DialOutSettingData";

class Zeph_DialOutSettingData
    : public ras::InstanceIdKeyed<Zeph_DialOutSettingData, Zeph_DialOutSettingDataInstanceManager> {
 public:
  explicit Zeph_DialOutSettingData(const std::string& instanceID) : InstanceIdKeyed(instanceID) {}

  virtual int getDialOutNumber(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDialOutNumber(std::string) { return ras::kStatusNotWritable; }
  virtual int getDialRetries(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDialRetries(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getDialInterval(unsigned short&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDialInterval(unsigned short) { return ras::kStatusNotWritable; }
  virtual int getDialOutUserName(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDialOutUserName(std::string) { return ras::kStatusNotWritable; }
  virtual int getDialOutPassword(std::string&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setDialOutPassword(std::string) { return ras::kStatusNotWritable; }
};

#endif
